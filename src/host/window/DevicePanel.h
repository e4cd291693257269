#ifndef LINKHAND_HOST_DEVICEPANEL_H
#define LINKHAND_HOST_DEVICEPANEL_H

#include <QFrame>

class DeviceWatcher;
class HardwarePanel;
class Modem;
class PageView;
class QCheckBox;
class QComboBox;
class QLabel;

// The choice of the hardware, and the switches of the simulated device: what a real one would do by itself. Each goes
// to the SDK, which tells everybody. With real hardware there are none.
class DevicePanel : public QFrame
{
    Q_OBJECT

public:
    // Watcher and modem outlive the panel. Without a modem it is as with the simulated one.
    DevicePanel(DeviceWatcher& watcher, Modem* pModem, QWidget* pParent);

    void Retranslate();

private slots:
    void OnStateChanged();
    void OnDevice(bool bAttached);
    void OnCard(bool bInserted);
    void OnPin(int iIndex);
    void OnRadio(bool bOn);
    void OnNetwork(bool bInService);
    void OnSystemMode(int iIndex);
    void OnSpeed(int iIndex);
    void OnResized();

protected:
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    void fill(QComboBox* pBox, const char* const* ppszIds, int iCount);

    void place(bool bSwitches);
    void fitWidth();

    DeviceWatcher& m_watcher;
    PageView* m_pView;
    HardwarePanel* m_pHardware;
    QLabel* m_pTitle;
    QLabel* m_pHint;
    QCheckBox* m_pDevice;
    QCheckBox* m_pCard;
    QCheckBox* m_pRadio;
    QCheckBox* m_pNetwork;
    QLabel* m_pPinLabel;
    QComboBox* m_pPin;
    QLabel* m_pModeLabel;
    QComboBox* m_pMode;
    QLabel* m_pSpeedLabel;
    QComboBox* m_pSpeed;
};

#endif // LINKHAND_HOST_DEVICEPANEL_H
