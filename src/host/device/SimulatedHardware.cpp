#include "device/SimulatedHardware.h"

#include "orva/orva_sim.h"

// Null where the SDK in use does not have them.
#pragma weak ORVA_Sim_SetDevice
#pragma weak ORVA_Sim_SetCard
#pragma weak ORVA_Sim_SetPinStatus
#pragma weak ORVA_Sim_SetProductType
#pragma weak ORVA_Sim_SetCardType
#pragma weak ORVA_Sim_SetRadio
#pragma weak ORVA_Sim_SetNetwork
#pragma weak ORVA_Sim_SetDelay
#pragma weak ORVA_Sim_SendEvent
#pragma weak ORVA_Sim_SetNameUnits

bool SimulatedHardware::Available()
{
    return &ORVA_Sim_SetDevice != nullptr && &ORVA_Sim_SetCard != nullptr && &ORVA_Sim_SetPinStatus != nullptr &&
           &ORVA_Sim_SetProductType != nullptr && &ORVA_Sim_SetCardType != nullptr && &ORVA_Sim_SetRadio != nullptr &&
           &ORVA_Sim_SetNetwork != nullptr && &ORVA_Sim_SetDelay != nullptr && &ORVA_Sim_SendEvent != nullptr;
}

void SimulatedHardware::SetDevice(bool bAttached)
{
    if (Available()) {
        ORVA_Sim_SetDevice(bAttached ? 1 : 0);
    }
}

void SimulatedHardware::SetCard(bool bInserted)
{
    if (Available()) {
        ORVA_Sim_SetCard(bInserted ? 1 : 0);
    }
}

void SimulatedHardware::SetPinStatus(int iStatus)
{
    if (Available()) {
        ORVA_Sim_SetPinStatus(iStatus);
    }
}

void SimulatedHardware::SetProductType(int iType)
{
    if (Available()) {
        ORVA_Sim_SetProductType(iType);
    }
}

void SimulatedHardware::SetCardType(int iType)
{
    if (Available()) {
        ORVA_Sim_SetCardType(iType);
    }
}

void SimulatedHardware::SetRadio(bool bOn)
{
    if (Available()) {
        ORVA_Sim_SetRadio(1, bOn ? 1 : 0);
    }
}

void SimulatedHardware::SetNetwork(bool bInService)
{
    if (Available()) {
        ORVA_Sim_SetNetwork(bInService ? ORVA_NETWORK_IN_SERVICE : 0);
    }
}

void SimulatedHardware::SetDelay(int iReadMs)
{
    if (Available()) {
        ORVA_Sim_SetDelay(ORVA_MEMORY_CARD, iReadMs, iReadMs);
        ORVA_Sim_SetDelay(ORVA_MEMORY_DEVICE, iReadMs, iReadMs);
    }
}

void SimulatedHardware::SetNameUnits(bool bUnits)
{
    if (&ORVA_Sim_SetNameUnits != nullptr) {
        ORVA_Sim_SetNameUnits(bUnits ? 1 : 0);
    }
}

void SimulatedHardware::SendReady()
{
    if (Available()) {
        ORVA_Sim_SendEvent(ORVA_EVENT_PBM_EVENT_SIM_READY);
        ORVA_Sim_SendEvent(ORVA_EVENT_PBM_EVENT_NV_READY);
    }
}
