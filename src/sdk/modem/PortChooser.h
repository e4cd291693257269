#ifndef SDK_MODEM_PORTCHOOSER_H
#define SDK_MODEM_PORTCHOOSER_H

#include <string>
#include <vector>

#include "modem/ModemWatch.h"

namespace orva
{

// The ports of a modem that ModemManager does not need, as nodes, the best first: those that it ignores; AT ports
// beyond the two that it takes; any AT port of a modem that runs over QMI or MBIM. Which the second of the two is, only
// udev tells, or that it cannot be opened: `heldShows` says that a port which ModemManager has open is refused to us.
std::vector<std::string> freePorts(const ListedModem& modem, bool heldShows);

// The port that a rule may take from ModemManager for the phonebook, as node; empty if it needs all that there are.
std::string portToSpare(const ListedModem& modem);

// Why a modem without free ports has none, and what to do, for people.
std::string whyNoPort(const ListedModem& modem);

} // namespace orva

#endif // SDK_MODEM_PORTCHOOSER_H
