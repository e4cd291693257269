#include "device/DeviceWatcher.h"

#include "linkhand/plugin/Codes.h"
#include "orva/orva_sdk.h"
#include "sdk/SdkListener.h"

DeviceWatcher::DeviceWatcher(QObject* pParent) : QObject(pParent), m_bStarted(false) {}

DeviceWatcher::~DeviceWatcher()
{
    Stop();
}

void DeviceWatcher::Start()
{
    SdkListener<DeviceWatcher>::SetReceiver(this);
    m_bStarted = true;
    ORVA_DevSrv_RegisterDevInitEventCallback(&SdkListener<DeviceWatcher>::OnEvent);
    ORVA_DevSrv_RegisterDevMgrCallback(&SdkListener<DeviceWatcher>::OnEvent);
    ORVA_NetSrv_RegisterNetSrvEvent(&SdkListener<DeviceWatcher>::OnEvent);
    Refresh();
}

void DeviceWatcher::Stop()
{
    if (!m_bStarted) {
        return;
    }
    m_bStarted = false;
    ORVA_DevSrv_UnRegisterDevInitEventCallback(&SdkListener<DeviceWatcher>::OnEvent);
    ORVA_DevSrv_UnRegisterDevMgrCallback(&SdkListener<DeviceWatcher>::OnEvent);
    ORVA_NetSrv_UnRegisterNetSrvEvent(&SdkListener<DeviceWatcher>::OnEvent);
    SdkListener<DeviceWatcher>::SetReceiver(nullptr);
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
