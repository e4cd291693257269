#ifndef SDK_MODEM_MODEMWATCH_H
#define SDK_MODEM_MODEMWATCH_H

#include <poll.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "modem/AtPhonebook.h"
#include "modem/Channel.h"

namespace orva
{

enum class PortType { At, Control /* QMI or MBIM */, Ignored, Other };

// A port of a modem as ModemManager lists it.
struct ListedPort {
    std::string name; // "ttyUSB2"
    std::string node; // "/dev/ttyUSB2"; empty if it is no tty
    PortType type = PortType::Other;
    bool secondary = false; // udev says that it is the second one for commands
    bool data = false;      // udev says that connections run over it

    bool operator==(const ListedPort& other) const
    {
        return name == other.name && node == other.node && type == other.type && secondary == other.secondary &&
               data == other.data;
    }
};

// A modem as ModemManager lists it, with what it knows of its card, radio and network.
struct ListedModem {
    std::string path; // on the bus
    std::string manufacturer;
    std::string model;
    std::string primary; // the port that ModemManager speaks on
    std::vector<ListedPort> ports;
    bool enabled = false; // ModemManager has its ports open
    CardState card = CardState::Absent;
    bool radio = false;
    bool inService = false;

    bool operator==(const ListedModem& other) const
    {
        return path == other.path && manufacturer == other.manufacturer && model == other.model &&
               primary == other.primary && ports == other.ports && enabled == other.enabled && card == other.card &&
               radio == other.radio && inService == other.inService;
    }
};

// What a watch knows at a moment.
struct ModemList {
    bool settled = false; // an answer has come, be it that nobody is there
    std::string owner;    // this run of ModemManager; empty while it does not run
    std::string problem;  // why nothing can be known
    std::vector<ListedModem> modems;
};

/*
 * Hears of modems that come, go and change. One thread, which polls its files among others and never waits in it.
 */
class ModemWatch
{
public:
    virtual ~ModemWatch() = default;

    // What to poll for; process() is due when one of them is ready or that time has passed.
    virtual void fill(std::vector<pollfd>& waited) const = 0;
    virtual Milliseconds patience() const = 0;
    virtual void process() noexcept = 0;

    virtual const ModemList& list() const = 0;
    // Grows with each change of the list, and with each port that is plugged.
    virtual std::uint64_t changes() const = 0;
};

enum class WatchKind {
    Modems, // what ModemManager lists
    Plugs   // ttys that are plugged, no more
};

// A watch of the module for D-Bus and udev, which is opened at the first call; null, and why, without it. Any thread.
std::unique_ptr<ModemWatch> openModemWatch(WatchKind kind, std::string& problem);

// The module's one entry: a new watch, the caller's.
constexpr char modemWatchEntry[] = "linkhand_modem_watch_1";
using ModemWatchEntry = ModemWatch* (*)(WatchKind);

} // namespace orva

#endif // SDK_MODEM_MODEMWATCH_H
