#ifndef SDK_MODEM_BUS_OBJECTREADER_H
#define SDK_MODEM_BUS_OBJECTREADER_H

#include <systemd/sd-bus.h>

#include <vector>

#include "modem/ModemWatch.h"

namespace orva
{

// Reads the modems out of ModemManager's answer to GetManagedObjects, in the order of their numbers; a negative error
// for another shape of answer.
int readModems(sd_bus_message* message, std::vector<ListedModem>& modems);

} // namespace orva

#endif // SDK_MODEM_BUS_OBJECTREADER_H
