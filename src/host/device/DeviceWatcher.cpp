#include "device/DeviceWatcher.h"

#include <QMetaObject>
#include <QMutex>
#include <QMutexLocker>

#include "linkhand/plugin/Codes.h"
#include "orva/orva_sdk.h"

namespace
{

// The SDK's callback has no argument of ours, so that the object is found here. The lock keeps it alive meanwhile.
QMutex s_mutex;
DeviceWatcher* s_pWatcher = nullptr;

} // namespace

DeviceWatcher::DeviceWatcher(QObject* pParent) : QObject(pParent), m_bStarted(false) {}

DeviceWatcher::~DeviceWatcher()
{
    Stop();
}

void DeviceWatcher::Start()
{
    {
        QMutexLocker locker(&s_mutex);
        s_pWatcher = this;
    }
    m_bStarted = true;
    ORVA_DevSrv_RegisterDevInitEventCallback(&DeviceWatcher::onSdkEvent);
    ORVA_DevSrv_RegisterDevMgrCallback(&DeviceWatcher::onSdkEvent);
    ORVA_NetSrv_RegisterNetSrvEvent(&DeviceWatcher::onSdkEvent);
    Refresh();
}

void DeviceWatcher::Stop()
{
    if (!m_bStarted) {
        return;
    }
    m_bStarted = false;
    ORVA_DevSrv_UnRegisterDevInitEventCallback(&DeviceWatcher::onSdkEvent);
    ORVA_DevSrv_UnRegisterDevMgrCallback(&DeviceWatcher::onSdkEvent);
    ORVA_NetSrv_UnRegisterNetSrvEvent(&DeviceWatcher::onSdkEvent);
    QMutexLocker locker(&s_mutex);
    s_pWatcher = nullptr;
}

void DeviceWatcher::Refresh()
{
    const DeviceState state = DeviceState::Read();
    if (!(state == m_state)) {
        m_state = state;
        emit changed();
    }
}

void DeviceWatcher::AnnounceSystemMode()
{
    Refresh();
    emit notifyCode(HOST_NOTIFY_SYSTEM_MODE, 0);
}

void DeviceWatcher::OnSdkEvent(int iEvent)
{
    if (m_bStarted) {
        handle(iEvent);
    }
}

// On the SDK's event thread.
int DeviceWatcher::onSdkEvent(int iEvent, void*)
{
    QMutexLocker locker(&s_mutex);
    if (s_pWatcher != nullptr) {
        QMetaObject::invokeMethod(s_pWatcher, "OnSdkEvent", Qt::QueuedConnection, Q_ARG(int, iEvent));
    }
    return 0;
}

void DeviceWatcher::handle(int iEvent)
{
    Refresh();
    switch (iEvent) {
    case ORVA_EVENT_NET_STATUS:
        emit notifyCode(HOST_NOTIFY_REGISTRATION, m_state.bRegistered ? 1 : 0);
        break;
    case ORVA_EVENT_DEV_DEVICE_INIT_FINISH:
    case ORVA_EVENT_DEV_RF_SWITCH:
        emit notifyCode(m_state.Online() ? HOST_NOTIFY_NETWORK_GAINED : HOST_NOTIFY_NETWORK_LOST, 0);
        break;
    case ORVA_EVENT_DEV_SIM_INVALID:
        emit notifyCode(HOST_NOTIFY_CARD_DISABLED, 0);
        break;
    case ORVA_EVENT_DEV_CARD_CHANGED:
    case ORVA_EVENT_DEV_PIN_CHANGED:
        emit notifyCode(m_state.bCardReady ? HOST_NOTIFY_CARD_ENABLED : HOST_NOTIFY_CARD_DISABLED, 0);
        break;
    default:
        break;
    }
}
