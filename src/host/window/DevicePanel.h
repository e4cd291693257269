#ifndef LINKHAND_HOST_DEVICEPANEL_H
#define LINKHAND_HOST_DEVICEPANEL_H

#include <QFrame>

class DeviceWatcher;
class QCheckBox;
class QComboBox;
class QLabel;

// Switches of the simulated device: what a real one would do by itself. Each goes to the SDK, which tells everybody.
class DevicePanel : public QFrame
{
    Q_OBJECT

public:
    // The watcher outlives the panel.
    DevicePanel(DeviceWatcher& watcher, QWidget* pParent);

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

private:
    void fill(QComboBox* pBox, const char* const* ppszIds, int iCount);

    DeviceWatcher& m_watcher;
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
