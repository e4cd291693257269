#ifndef LINKHAND_HOST_SIMULATEDCONTACTS_H
#define LINKHAND_HOST_SIMULATEDCONTACTS_H

// What the simulated card and device hold, which nothing shows any longer once a modem stands behind these memories.
// Only while the hardware is simulated.
namespace SimulatedContacts
{

// How many of them the PC does not have, with the same name and number.
int CountMissing();

// Copies these to the PC, all of them or none; what the card and the device hold stays there. False if that fails.
bool CopyToPc();

} // namespace SimulatedContacts

#endif // LINKHAND_HOST_SIMULATEDCONTACTS_H
