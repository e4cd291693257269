#ifndef LINKHAND_HOST_SIMULATEDHARDWARE_H
#define LINKHAND_HOST_SIMULATEDHARDWARE_H

// The switches of the SDK's simulated device. An SDK for real hardware has none, and the program runs with it all the
// same: Available is then false and the switches do nothing.
namespace SimulatedHardware
{

bool Available();

void SetDevice(bool bAttached);
void SetCard(bool bInserted);
void SetPinStatus(int iStatus);
void SetProductType(int iType);
void SetCardType(int iType);
void SetRadio(bool bOn);
void SetNetwork(bool bInService);
void SetDelay(int iReadMs);

// Lets the card measure names by characters, as the form does for a product that promises a number of them.
void SetNameUnits(bool bUnits);

// Announces the card's and the device's phonebook as ready.
void SendReady();

} // namespace SimulatedHardware

#endif // LINKHAND_HOST_SIMULATEDHARDWARE_H
