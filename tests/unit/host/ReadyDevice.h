#ifndef LINKHAND_TESTS_READYDEVICE_H
#define LINKHAND_TESTS_READYDEVICE_H

#include "device/SimulatedHardware.h"
#include "orva/orva_sim.h"

// A device with a card that is ready, radio on, in service; what is told of that has been told.
inline void makeDeviceReady()
{
    SimulatedHardware::SetDevice(true);
    SimulatedHardware::SetCard(true);
    SimulatedHardware::SetPinStatus(1);
    ORVA_Sim_SetRadio(1, 1);
    SimulatedHardware::SetNetwork(true);
    SimulatedHardware::SetProductType(0);
    SimulatedHardware::SetCardType(1);
    ORVA_Sim_WaitEvents();
}

#endif // LINKHAND_TESTS_READYDEVICE_H
