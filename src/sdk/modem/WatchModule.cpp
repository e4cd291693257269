// The module is a library of its own, so that nobody who names no modem needs what it stands on.

#include "base/Module.h"
#include "modem/ModemWatch.h"

namespace orva
{

std::unique_ptr<ModemWatch> openModemWatch(WatchKind kind, std::string& problem)
{
    std::string why;
    const auto entry = reinterpret_cast<ModemWatchEntry>(moduleEntry("libsdk-modem.so", modemWatchEntry, why));
    if (entry == nullptr) {
        problem = "modems cannot be found: " + why;
        return nullptr;
    }
    return std::unique_ptr<ModemWatch>(entry(kind));
}

} // namespace orva
