#include "modem/bus/ObjectReader.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace orva
{

namespace
{

constexpr char modemInterface[] = "org.freedesktop.ModemManager1.Modem";
constexpr char networkInterface[] = "org.freedesktop.ModemManager1.Modem.Modem3gpp";

// ModemManager's numbers.
enum PortNumber : std::uint32_t { PortAt = 3, PortQmi = 6, PortMbim = 7, PortIgnored = 9 };
enum Lock : std::uint32_t { LockUnknown = 0, LockNone = 1, LockPin2 = 3, LockPuk = 4, LockPuk2 = 5 };
enum State : std::int32_t { StateEnabled = 6 };
enum Power : std::uint32_t { PowerOn = 3 };
enum Registration : std::uint32_t { RegistrationHome = 1, RegistrationRoaming = 5 };

// As they come; the order of properties is anybody's.
struct Raw {
    ListedModem modem;
    bool isModem = false;
    std::string sim;
    std::uint32_t lock = LockUnknown;
    std::int32_t state = 0;
    std::uint32_t power = 0;
    std::uint32_t registration = 0;
};

PortType typeOf(std::uint32_t number)
{
    switch (number) {
    case PortAt:
        return PortType::At;
    case PortQmi:
    case PortMbim:
        return PortType::Control;
    case PortIgnored:
        return PortType::Ignored;
    default:
        return PortType::Other;
    }
}

int readText(sd_bus_message* message, const char* type, std::string& text)
{
    const char* value = "";
    const int result = sd_bus_message_read(message, "v", type, &value);
    text = result >= 0 && value != nullptr ? value : "";
    // A modem names itself; a line of a report stays one.
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < ' '; }, ' ');
    return result;
}

int readPorts(sd_bus_message* message, std::vector<ListedPort>& ports)
{
    int result = sd_bus_message_enter_container(message, 'v', "a(su)");
    if (result >= 0)
        result = sd_bus_message_enter_container(message, 'a', "(su)");
    const char* name = nullptr;
    std::uint32_t type = 0;
    while (result >= 0 && (result = sd_bus_message_read(message, "(su)", &name, &type)) > 0) {
        ListedPort port;
        port.name = name;
        port.type = typeOf(type);
        ports.push_back(port);
    }
    if (result >= 0)
        result = sd_bus_message_exit_container(message);
    return result >= 0 ? sd_bus_message_exit_container(message) : result;
}

int readModemProperty(sd_bus_message* message, std::string_view name, Raw& raw)
{
    if (name == "Manufacturer")
        return readText(message, "s", raw.modem.manufacturer);
    if (name == "Model")
        return readText(message, "s", raw.modem.model);
    if (name == "PrimaryPort")
        return readText(message, "s", raw.modem.primary);
    if (name == "Sim")
        return readText(message, "o", raw.sim);
    if (name == "Ports")
        return readPorts(message, raw.modem.ports);
    if (name == "UnlockRequired")
        return sd_bus_message_read(message, "v", "u", &raw.lock);
    if (name == "State")
        return sd_bus_message_read(message, "v", "i", &raw.state);
    if (name == "PowerState")
        return sd_bus_message_read(message, "v", "u", &raw.power);
    return sd_bus_message_skip(message, "v");
}

int readProperties(sd_bus_message* message, std::string_view interface, Raw& raw)
{
    int result = sd_bus_message_enter_container(message, 'a', "{sv}");
    while (result >= 0 && (result = sd_bus_message_enter_container(message, 'e', "sv")) > 0) {
        const char* name = nullptr;
        result = sd_bus_message_read(message, "s", &name);
        if (result < 0)
            return result;
        if (interface == modemInterface)
            result = readModemProperty(message, name, raw);
        else if (interface == networkInterface && std::strcmp(name, "RegistrationState") == 0)
            result = sd_bus_message_read(message, "v", "u", &raw.registration);
        else
            result = sd_bus_message_skip(message, "v");
        if (result >= 0)
            result = sd_bus_message_exit_container(message);
    }
    return result >= 0 ? sd_bus_message_exit_container(message) : result;
}

int readInterfaces(sd_bus_message* message, Raw& raw)
{
    int result = sd_bus_message_enter_container(message, 'a', "{sa{sv}}");
    while (result >= 0 && (result = sd_bus_message_enter_container(message, 'e', "sa{sv}")) > 0) {
        const char* name = nullptr;
        result = sd_bus_message_read(message, "s", &name);
        if (result < 0)
            return result;
        raw.isModem = raw.isModem || std::strcmp(name, modemInterface) == 0;
        result = readProperties(message, name, raw);
        if (result >= 0)
            result = sd_bus_message_exit_container(message);
    }
    return result >= 0 ? sd_bus_message_exit_container(message) : result;
}

CardState cardOf(const Raw& raw)
{
    if (raw.sim.size() <= 1) // "/" is no object
        return CardState::Absent;
    switch (raw.lock) {
    case LockNone:
    case LockPin2:
    case LockPuk2:
        return CardState::Ready;
    case LockUnknown:
        return CardState::Failed;
    case LockPuk:
        return CardState::PukNeeded;
    default:
        return CardState::PinNeeded;
    }
}

ListedModem finished(Raw& raw)
{
    raw.modem.card = cardOf(raw);
    raw.modem.enabled = raw.state >= StateEnabled;
    raw.modem.radio = raw.power == PowerOn;
    raw.modem.inService = raw.registration == RegistrationHome || raw.registration == RegistrationRoaming;
    return raw.modem;
}

} // namespace

int readModems(sd_bus_message* message, std::vector<ListedModem>& modems)
{
    int result = sd_bus_message_enter_container(message, 'a', "{oa{sa{sv}}}");
    while (result >= 0 && (result = sd_bus_message_enter_container(message, 'e', "oa{sa{sv}}")) > 0) {
        Raw raw;
        const char* path = nullptr;
        result = sd_bus_message_read(message, "o", &path);
        if (result < 0)
            return result;
        raw.modem.path = path;
        result = readInterfaces(message, raw);
        if (result < 0)
            return result;
        if (raw.isModem)
            modems.push_back(finished(raw));
        result = sd_bus_message_exit_container(message);
    }
    std::sort(modems.begin(), modems.end(), [](const ListedModem& a, const ListedModem& b) {
        return a.path.size() != b.path.size() ? a.path.size() < b.path.size() : a.path < b.path;
    });
    return result >= 0 ? sd_bus_message_exit_container(message) : result;
}

} // namespace orva
