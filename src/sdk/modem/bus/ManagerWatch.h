#ifndef SDK_MODEM_BUS_MANAGERWATCH_H
#define SDK_MODEM_BUS_MANAGERWATCH_H

#include <systemd/sd-bus.h>

#include <chrono>
#include <string>

#include "modem/ModemWatch.h"
#include "modem/bus/DeviceTable.h"

namespace orva
{

/*
 * What ModemManager lists, by its ObjectManager on the system bus: asked for anew whenever it says that something has
 * changed. It is never started from here. A bus that goes is looked for again, at growing distances.
 */
class ManagerWatch final : public ModemWatch
{
public:
    ManagerWatch();
    ~ManagerWatch() override;
    ManagerWatch(const ManagerWatch&) = delete;
    ManagerWatch& operator=(const ManagerWatch&) = delete;

    void fill(std::vector<pollfd>& waited) const override;
    Milliseconds patience() const override;
    void process() noexcept override;
    const ModemList& list() const override { return m_list; }
    std::uint64_t changes() const override { return m_changes; }

private:
    using Time = std::chrono::steady_clock::time_point;

    static int ownerTold(sd_bus_message* message, void* self, sd_bus_error* error);
    static int ownerChanged(sd_bus_message* message, void* self, sd_bus_error* error);
    static int objectsChanged(sd_bus_message* message, void* self, sd_bus_error* error);
    static int propertiesChanged(sd_bus_message* message, void* self, sd_bus_error* error);
    static int listed(sd_bus_message* message, void* self, sd_bus_error* error);

    void connect();
    void disconnect(int error);
    int subscribe();
    void setOwner(const char* owner);
    void ask();
    void settle(std::vector<ListedModem> modems, std::string problem);
    void fillIn(std::vector<ListedModem>& modems) const;

    sd_bus* m_bus = nullptr;
    sd_bus_slot* m_question = nullptr; // under way
    bool m_again = false;              // something has changed since it was asked
    Time m_connectAt;
    Milliseconds m_pause;
    DeviceTable m_devices;
    ModemList m_list;
    std::uint64_t m_changes = 0;
};

} // namespace orva

#endif // SDK_MODEM_BUS_MANAGERWATCH_H
