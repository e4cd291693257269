#ifndef SDK_MODEM_HARDWARECHOICE_H
#define SDK_MODEM_HARDWARECHOICE_H

#include <string>

namespace orva
{

constexpr char simulatedChoice[] = "simulated";
constexpr char autoChoice[] = "auto";

// What stands behind card and device: "simulated", "auto" for the modem that is there, or the path of a modem's port.
// LINKHAND_MODEM says so, else what is kept in the data folder, else it is simulated.
std::string hardwareChoice(const std::string& folder);

// What is kept in the data folder, whatever the environment says.
std::string keptHardwareChoice(const std::string& folder);

// Whether the environment or the data folder says anything.
bool hasHardwareChoice(const std::string& folder);

// Keeps a choice for the programs that start from now on. Failure(ORVA_E_ARGUMENT) for anything else than the above.
void keepHardwareChoice(const std::string& folder, const std::string& choice);

} // namespace orva

#endif // SDK_MODEM_HARDWARECHOICE_H
