#ifndef LINKHAND_HOST_DEVICEWATCHER_H
#define LINKHAND_HOST_DEVICEWATCHER_H

#include <QObject>

#include "device/DeviceState.h"

// Follows the device, the card, the radio and the network through the SDK's events and says it in the host's notify
// codes, on the user-interface thread. One object a process.
class DeviceWatcher : public QObject
{
    Q_OBJECT

public:
    explicit DeviceWatcher(QObject* pParent = nullptr);

    // Takes the SDK callbacks away.
    ~DeviceWatcher() override;

    // Registers the SDK callbacks and reads the first state.
    void Start();

    // After it no event is sent on; takes the SDK callbacks away.
    void Stop();

    const DeviceState& State() const { return m_state; }

    // Which events of the SDK are for this. On any thread.
    static bool Takes(int /*iEvent*/) { return true; }

public slots:
    // Reads the state anew; for a change that sends no event.
    void Refresh();

    // Says that the system mode has changed, which no event tells.
    void AnnounceSystemMode();

signals:
    // A code for the plug-ins (INotify::Notify) and its first parameter.
    void notifyCode(int iCode, int iParam);

    // The state is another one than before.
    void changed();

private slots:
    void OnSdkEvent(int iEvent);

private:
    void handle(int iEvent);

    DeviceState m_state;
    bool m_bStarted;
};

#endif // LINKHAND_HOST_DEVICEWATCHER_H
