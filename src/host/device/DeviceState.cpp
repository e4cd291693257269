#include "device/DeviceState.h"

#include "orva/orva_sdk.h"

bool DeviceState::operator==(const DeviceState& other) const
{
    return bAttached == other.bAttached && bCardReady == other.bCardReady && bRadioOn == other.bRadioOn &&
           bRegistered == other.bRegistered && iPinStatus == other.iPinStatus && iProductType == other.iProductType &&
           iCardType == other.iCardType;
}

DeviceState DeviceState::Read()
{
    DeviceState state;
    int iStatus = 0;
    state.bAttached = ORVA_DevSrv_GetDevStatus(&iStatus) == ORVA_OK && iStatus == ORVA_DEVICE_AVAILABLE;
    int iPin = 0;
    unsigned char aucRest[3] = {};
    if (state.bAttached && ORVA_DevSrv_GetPinStatus(0, &iPin, &aucRest[0], &aucRest[1], &aucRest[2]) == ORVA_OK) {
        state.iPinStatus = iPin;
        state.bCardReady = iPin == ORVA_PIN_NOT_NEEDED || iPin == ORVA_PIN_VERIFIED;
    }
    int aiRadio[2] = {};
    state.bRadioOn = ORVA_DevSrv_GetRFSwitch(aiRadio) == ORVA_OK && aiRadio[0] == 1 && aiRadio[1] == 1;
    int iNetwork = 0;
    state.bRegistered = ORVA_NetSrv_GetSrvStatus(&iNetwork) == ORVA_OK && iNetwork == ORVA_NETWORK_IN_SERVICE;
    if (ORVA_DevSrv_GetProductType(&state.iProductType) != ORVA_OK) {
        state.iProductType = 0;
    }
    if (ORVA_DevSrv_GetSimType(&state.iCardType) != ORVA_OK) {
        state.iCardType = 0;
    }
    return state;
}
