#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/QueuedEmit.h"
#include "logic/SdkCall.h"
#include "orva/orva_sdk.h"

// The callbacks of the SDK's four services, the signals made of their events, and the state of device and card.

void AddrBookLogic::RegisterCallbacks()
{
    ADDRBOOK_LOG_ENTER();
    long lResult = 0;
    SDK_CALL(lResult, ORVA_DevSrv_RegisterDevInitEventCallback, (OnDeviceMgrInitEvent));
    SDK_CALL(lResult, ORVA_DevSrv_RegisterDevMgrCallback, (OnDeviceMgrInitEvent));
    SDK_CALL(lResult, ORVA_NetSrv_RegisterNetSrvEvent, (OnDeviceMgrInitEvent));
    SDK_CALL(lResult, ORVA_PBSrv_RegisterPBCallback, (OnDeviceMgrInitEvent));
    ADDRBOOK_LOG_EXIT();
}

void AddrBookLogic::unSDKRegisterEvent()
{
    ADDRBOOK_LOG_ENTER();
    long lResult = 0;
    SDK_CALL(lResult, ORVA_DevSrv_UnRegisterDevInitEventCallback, (OnDeviceMgrInitEvent));
    SDK_CALL(lResult, ORVA_DevSrv_UnRegisterDevMgrCallback, (OnDeviceMgrInitEvent));
    SDK_CALL(lResult, ORVA_NetSrv_UnRegisterNetSrvEvent, (OnDeviceMgrInitEvent));
    SDK_CALL(lResult, ORVA_PBSrv_UnRegisterPBCallback, (OnDeviceMgrInitEvent));
    ADDRBOOK_LOG_EXIT();
}

int AddrBookLogic::OnDeviceMgrInitEvent(int enNotifyType, void* /*pvData*/)
{
    ADDRBOOK_LOG("event %d", enNotifyType);
    AddrBookLogic* const pLogic = m_pInstance;
    if (CommonUtils::IsShuttingDown() || pLogic == nullptr)
        return 0;

    switch (enNotifyType) {
    case ORVA_EVENT_NET_STATUS:
        return 1;
    case ORVA_EVENT_DEV_SIM_INVALID:
        ADDRBOOK_LOG("ORVA_EVENT_DEV_SIM_INVALID");
        QUEUED_EMIT_FROM(pLogic, signalNetStatus, false);
        QUEUED_EMIT_FROM(pLogic, signalSimStatus, false);
        return 1;
    case ORVA_EVENT_DEV_DEVICE_INIT_FINISH:
    case ORVA_EVENT_DEV_CARD_CHANGED:
    case ORVA_EVENT_DEV_PIN_CHANGED:
        ADDRBOOK_LOG("ORVA_EVENT_DEV_DEVICE_INIT_FINISH");
        pLogic->signalDeviceState();
        return 1;
    case ORVA_EVENT_DEV_RF_SWITCH:
        ADDRBOOK_LOG("ORVA_EVENT_DEV_RF_SWITCH");
        pLogic->signalRadioState();
        return 1;
    case ORVA_EVENT_PBM_EVENT_READY:
        ADDRBOOK_LOG("ORVA_EVENT_PBM_EVENT_READY");
        m_bPbServiceReady = true;
        QUEUED_EMIT_FROM(pLogic, signalDeviceConnected, true);
        return 1;
    case ORVA_EVENT_PBM_EVENT_SIM_READY:
        ADDRBOOK_LOG("ORVA_EVENT_PBM_EVENT_SIM_READY");
        m_bPbServiceReady = true;
        QUEUED_EMIT_FROM(pLogic, signalAddrBookSimReady);
        return 1;
    case ORVA_EVENT_PBM_EVENT_NV_READY:
        ADDRBOOK_LOG("ORVA_EVENT_PBM_EVENT_NV_READY");
        m_bPbServiceReady = true;
        QUEUED_EMIT_FROM(pLogic, signalAddrBookDeviceReady);
        return 1;
    default:
        return 0;
    }
}

// The network is declared up once the device is, and down before the device goes.
void AddrBookLogic::signalDeviceState()
{
    int iStatus = ORVA_DEVICE_AWAY;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_DevSrv_GetDevStatus, (&iStatus));
    if (lResult == 0 && iStatus == ORVA_DEVICE_AVAILABLE) {
        QUEUED_EMIT(signalDeviceConnected, true);
        const bool bInService = GetSystemModeStatus();
        QUEUED_EMIT(signalNetStatus, bInService);
    } else {
        QUEUED_EMIT(signalNetStatus, false);
        QUEUED_EMIT(signalDeviceConnected, false);
    }
}

void AddrBookLogic::signalRadioState()
{
    int aiStates[2] = {0, 0};
    long lResult = 0;
    SDK_CALL(lResult, ORVA_DevSrv_GetRFSwitch, (aiStates));
    if (lResult == 0)
        QUEUED_EMIT(signalNetStatus, aiStates[0] == 1 && aiStates[1] == 1);
}

bool AddrBookLogic::PbServiceReady()
{
    return m_bPbServiceReady;
}

bool AddrBookLogic::GetSystemModeStatus()
{
    int iStatus = 0;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_NetSrv_GetSrvStatus, (&iStatus));
    return lResult == 0 && iStatus == ORVA_NETWORK_IN_SERVICE;
}

bool AddrBookLogic::IsSimValidForPB()
{
    ADDRBOOK_LOG_CALLED();
    int iPinStatus = 0;
    unsigned char aucBytes[3] = {0, 0, 0};
    long lResult = 0;
    SDK_CALL(lResult, ORVA_DevSrv_GetPinStatus, (0, &iPinStatus, &aucBytes[0], &aucBytes[1], &aucBytes[2]));
    if (lResult != 0 || (iPinStatus != ORVA_PIN_NOT_NEEDED && iPinStatus != ORVA_PIN_VERIFIED))
        return false;

    int iProduct = 3;
    SDK_CALL(lResult, ORVA_DevSrv_GetProductType, (&iProduct));
    if (lResult != 0)
        iProduct = 3;
    int iCard = 0;
    SDK_CALL(lResult, ORVA_DevSrv_GetSimType, (&iCard));
    if (lResult != 0)
        return true;
    if (iProduct == ORVA_PRODUCT_UIM)
        return iCard == 3 || iCard == 4;
    return iCard != 4;
}
