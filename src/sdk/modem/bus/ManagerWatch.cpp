#include "modem/bus/ManagerWatch.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

#include "modem/bus/ObjectReader.h"

namespace orva
{

namespace
{

constexpr char managerName[] = "org.freedesktop.ModemManager1";
constexpr char managerPath[] = "/org/freedesktop/ModemManager1";
constexpr char busName[] = "org.freedesktop.DBus";
constexpr char objectManager[] = "org.freedesktop.DBus.ObjectManager";

constexpr Milliseconds firstPause(1000);
constexpr Milliseconds longestPause(60000);

// The properties that ListedModem holds. The signal's quality changes every few seconds and is not among them.
bool matters(std::string_view property)
{
    for (const char* const one :
         {"State", "Ports", "PrimaryPort", "Sim", "UnlockRequired", "PowerState", "RegistrationState"}) {
        if (property == one)
            return true;
    }
    return false;
}

} // namespace

ManagerWatch::ManagerWatch() : m_pause(firstPause)
{
    connect();
}

ManagerWatch::~ManagerWatch()
{
    sd_bus_slot_unref(m_question);
    sd_bus_close_unref(m_bus);
}

void ManagerWatch::connect()
{
    int result = sd_bus_open_system(&m_bus);
    if (result >= 0)
        result = subscribe();
    if (result < 0)
        disconnect(result);
}

void ManagerWatch::disconnect(int error)
{
    m_question = sd_bus_slot_unref(m_question);
    m_bus = sd_bus_close_unref(m_bus);
    m_again = false;
    m_connectAt = std::chrono::steady_clock::now() + m_pause;
    m_pause = std::min(longestPause, m_pause * 2);
    m_list.owner.clear();
    settle({}, std::string("no system bus (") + std::strerror(-error) + ")");
}

int ManagerWatch::subscribe()
{
    const std::string sender = std::string("type='signal',sender='") + managerName + "',";
    const std::pair<std::string, sd_bus_message_handler_t> wanted[] = {
        {std::string("type='signal',sender='") + busName + "',member='NameOwnerChanged',arg0='" + managerName + "'",
         &ManagerWatch::ownerChanged},
        {sender + "interface='" + objectManager + "',path='" + managerPath + "'", &ManagerWatch::objectsChanged},
        {sender + "interface='org.freedesktop.DBus.Properties',member='PropertiesChanged',path_namespace='" +
             managerPath + "/Modem'",
         &ManagerWatch::propertiesChanged}};
    int result = 0;
    for (const auto& [match, handler] : wanted) {
        if (result >= 0)
            result = sd_bus_add_match_async(m_bus, nullptr, match.c_str(), handler, nullptr, this);
    }
    if (result >= 0)
        result = sd_bus_call_method_async(m_bus, &m_question, busName, "/org/freedesktop/DBus", busName, "GetNameOwner",
                                          &ManagerWatch::ownerTold, this, "s", managerName);
    return result;
}

void ManagerWatch::fill(std::vector<pollfd>& waited) const
{
    if (m_bus != nullptr)
        waited.push_back({sd_bus_get_fd(m_bus), static_cast<short>(std::max(0, sd_bus_get_events(m_bus))), 0});
}

Milliseconds ManagerWatch::patience() const
{
    const auto now = std::chrono::steady_clock::now();
    if (m_bus == nullptr)
        return std::max(Milliseconds(0), std::chrono::ceil<Milliseconds>(m_connectAt - now));
    std::uint64_t until = UINT64_MAX;
    if (sd_bus_get_timeout(m_bus, &until) < 0 || until == UINT64_MAX)
        return longestPause;
    // Both count CLOCK_MONOTONIC.
    const auto left = std::chrono::microseconds(static_cast<std::int64_t>(until)) - now.time_since_epoch();
    return std::clamp(std::chrono::ceil<Milliseconds>(left), Milliseconds(0), longestPause);
}

void ManagerWatch::process() noexcept
{
    if (m_bus == nullptr) {
        if (std::chrono::steady_clock::now() >= m_connectAt)
            connect();
        return;
    }
    int result = 0;
    do {
        result = sd_bus_process(m_bus, nullptr);
    } while (result > 0);
    if (result < 0)
        disconnect(result);
}

// ---- What is heard

int ManagerWatch::ownerTold(sd_bus_message* message, void* self, sd_bus_error*)
{
    auto* const watch = static_cast<ManagerWatch*>(self);
    watch->m_question = sd_bus_slot_unref(watch->m_question);
    watch->m_pause = firstPause;
    const char* owner = nullptr;
    // An error says that nobody has the name.
    if (sd_bus_message_is_method_error(message, nullptr) != 0 || sd_bus_message_read(message, "s", &owner) < 0)
        owner = "";
    watch->setOwner(owner);
    return 0;
}

int ManagerWatch::ownerChanged(sd_bus_message* message, void* self, sd_bus_error*)
{
    const char* name = nullptr;
    const char* before = nullptr;
    const char* owner = nullptr;
    if (sd_bus_message_read(message, "sss", &name, &before, &owner) >= 0)
        static_cast<ManagerWatch*>(self)->setOwner(owner);
    return 0;
}

void ManagerWatch::setOwner(const char* owner)
{
    if (m_list.settled && m_list.owner == owner)
        return;
    m_question = sd_bus_slot_unref(m_question); // what the one before would answer
    m_list.owner = owner;
    m_list.modems.clear();
    ++m_changes;
    if (m_list.owner.empty())
        settle({}, {});
    else
        ask();
}

int ManagerWatch::objectsChanged(sd_bus_message*, void* self, sd_bus_error*)
{
    static_cast<ManagerWatch*>(self)->ask();
    return 0;
}

int ManagerWatch::propertiesChanged(sd_bus_message* message, void* self, sd_bus_error*)
{
    const char* interface = nullptr;
    const char* name = nullptr;
    bool asked = false;
    if (sd_bus_message_read(message, "s", &interface) < 0 || sd_bus_message_enter_container(message, 'a', "{sv}") < 0)
        return 0;
    while (!asked && sd_bus_message_enter_container(message, 'e', "sv") > 0) {
        if (sd_bus_message_read(message, "s", &name) < 0)
            return 0;
        asked = matters(name);
        sd_bus_message_skip(message, "v");
        sd_bus_message_exit_container(message);
    }
    if (asked)
        static_cast<ManagerWatch*>(self)->ask();
    return 0;
}

// ---- The question

void ManagerWatch::ask()
{
    m_again = m_question != nullptr;
    if (m_again || m_list.owner.empty())
        return;
    sd_bus_message* call = nullptr;
    int result = sd_bus_message_new_method_call(m_bus, &call, m_list.owner.c_str(), managerPath, objectManager,
                                                "GetManagedObjects");
    if (result >= 0)
        result = sd_bus_message_set_auto_start(call, 0);
    if (result >= 0)
        result = sd_bus_call_async(m_bus, &m_question, call, &ManagerWatch::listed, this, 0);
    sd_bus_message_unref(call);
    if (result < 0)
        settle({}, std::string("ModemManager cannot be asked (") + std::strerror(-result) + ")");
}

int ManagerWatch::listed(sd_bus_message* message, void* self, sd_bus_error*)
{
    auto* const watch = static_cast<ManagerWatch*>(self);
    watch->m_question = sd_bus_slot_unref(watch->m_question);
    if (std::exchange(watch->m_again, false)) {
        watch->ask();
        return 0;
    }
    if (sd_bus_message_is_method_error(message, nullptr) != 0) {
        const sd_bus_error* const error = sd_bus_message_get_error(message);
        watch->settle({}, std::string("ModemManager does not tell its modems: ") +
                              (error->message != nullptr ? error->message : error->name));
        return 0;
    }
    std::vector<ListedModem> modems;
    const int result = readModems(message, modems);
    if (result < 0) {
        watch->settle({}, std::string("what ModemManager lists cannot be read (") + std::strerror(-result) + ")");
        return 0;
    }
    watch->fillIn(modems);
    watch->settle(std::move(modems), {});
    return 0;
}

// What ModemManager does not tell of its ports, the kernel's devices do.
void ManagerWatch::fillIn(std::vector<ListedModem>& modems) const
{
    for (ListedModem& modem : modems) {
        for (ListedPort& port : modem.ports)
            m_devices.describe(port);
    }
}

void ManagerWatch::settle(std::vector<ListedModem> modems, std::string problem)
{
    if (m_list.settled && m_list.problem == problem && m_list.modems == modems)
        return;
    m_list.settled = true;
    m_list.problem = std::move(problem);
    m_list.modems = std::move(modems);
    ++m_changes;
}

} // namespace orva
