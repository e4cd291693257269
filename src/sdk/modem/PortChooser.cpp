#include "modem/PortChooser.h"

#include <algorithm>

namespace orva
{

namespace
{

constexpr std::size_t neededForCommands = 2;

bool overControl(const ListedModem& modem)
{
    return std::any_of(modem.ports.begin(), modem.ports.end(), [&modem](const ListedPort& port) {
        return port.type == PortType::Control && port.name == modem.primary;
    });
}

// The ttys that speak AT, in the order of their numbers: ttyUSB9 before ttyUSB10.
std::vector<ListedPort> commandPorts(const ListedModem& modem)
{
    std::vector<ListedPort> ports;
    for (const ListedPort& port : modem.ports) {
        if (port.type == PortType::At && !port.node.empty())
            ports.push_back(port);
    }
    std::sort(ports.begin(), ports.end(), [](const ListedPort& a, const ListedPort& b) {
        return a.name.size() != b.name.size() ? a.name.size() < b.name.size() : a.name < b.name;
    });
    return ports;
}

bool spoken(const ListedModem& modem, const ListedPort& port)
{
    return port.name == modem.primary || port.secondary || port.data;
}

// Those that ModemManager takes for sure, of a modem that it speaks AT with.
bool secondIsKnown(const ListedModem& modem, const std::vector<ListedPort>& ports)
{
    return std::any_of(ports.begin(), ports.end(),
                       [&](const ListedPort& port) { return port.secondary && port.name != modem.primary; });
}

} // namespace

std::vector<std::string> freePorts(const ListedModem& modem, bool heldShows)
{
    std::vector<std::string> nodes;
    for (const ListedPort& port : modem.ports) {
        if (port.type == PortType::Ignored && !port.node.empty())
            nodes.push_back(port.node);
    }
    const std::vector<ListedPort> ports = commandPorts(modem);
    const bool control = overControl(modem);
    const bool beyond =
        ports.size() > neededForCommands && (secondIsKnown(modem, ports) || (modem.enabled && heldShows));
    for (const ListedPort& port : ports) {
        if ((control || beyond) && !spoken(modem, port))
            nodes.push_back(port.node);
    }
    for (const ListedPort& port : ports) {
        if (control && spoken(modem, port))
            nodes.push_back(port.node);
    }
    return nodes;
}

std::string portToSpare(const ListedModem& modem)
{
    const std::vector<ListedPort> ports = commandPorts(modem);
    const bool control = overControl(modem);
    if (!control && ports.size() <= neededForCommands)
        return {};
    std::string spare;
    for (const ListedPort& port : ports) {
        if (!spoken(modem, port))
            spare = port.node;
    }
    return spare.empty() && control && !ports.empty() ? ports.back().node : spare;
}

std::string whyNoPort(const ListedModem& modem)
{
    const std::size_t count = commandPorts(modem).size();
    if (count == 0)
        return "no port of the modem speaks AT: its phonebook cannot be reached";
    if (!overControl(modem) && count <= neededForCommands)
        return "ModemManager needs " + std::string(count == 1 ? "the only port" : "both ports") +
               " of the modem for itself: while it runs the phonebook cannot be reached";
    return "ModemManager may use every port of the modem: a rule for udev sets one aside for the phonebook";
}

} // namespace orva
