#ifndef LINKHAND_HOST_HARDWARECHOICE_H
#define LINKHAND_HOST_HARDWARECHOICE_H

#include <QString>

// What stands behind card, device, messages and calls: "simulated", "auto" for the modem that there is, or the path of
// a modem's port. The SDK keeps it in the data folder; an SDK without real hardware is always simulated.
namespace HardwareChoice
{

// What this process goes by.
QString Current();
bool IsReal();

// The path of the port, empty for "auto" and where it is simulated.
QString Port();

// True if the environment has chosen, so that what is kept has no effect.
bool IsFixed();

// True if the environment or the user has chosen, or an SDK leaves no choice.
bool IsChosen();

// Whether it is one of the three kinds.
bool IsKnown(const QString& strChoice);

// Keeps a choice for the programs that start from now on. False if the SDK does not know it, or it cannot be written.
bool Keep(const QString& strChoice);

// The same for this process, too, before anything of the SDK is in use.
bool Begin(const QString& strChoice);

} // namespace HardwareChoice

#endif // LINKHAND_HOST_HARDWARECHOICE_H
