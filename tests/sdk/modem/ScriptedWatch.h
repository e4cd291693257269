#ifndef TESTS_SDK_MODEM_SCRIPTEDWATCH_H
#define TESTS_SDK_MODEM_SCRIPTEDWATCH_H

// What ModemManager and udev tell, as a test has it.

#include <sys/eventfd.h>
#include <unistd.h>

#include <functional>
#include <memory>
#include <mutex>

#include "modem/PortFinder.h"

namespace fixture
{

using namespace orva;

// Any thread tells; the modem's thread hears.
class Machine
{
public:
    Machine() : m_file(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}
    ~Machine() { ::close(m_file); }
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    void tell(const std::function<void(ModemList&)>& change)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_list.settled = true;
        change(m_list);
        ++m_changes;
        ::eventfd_write(m_file, 1);
    }
    void plug()
    {
        tell([](ModemList&) {});
    }

    PortFinder::OpenWatch open()
    {
        return [this](WatchKind, std::string&) { return std::make_unique<Watch>(*this); };
    }

private:
    class Watch final : public ModemWatch
    {
    public:
        explicit Watch(Machine& machine) : m_machine(machine) {}

        void fill(std::vector<pollfd>& waited) const override { waited.push_back({m_machine.m_file, POLLIN, 0}); }
        Milliseconds patience() const override { return Milliseconds(60000); }
        void process() noexcept override
        {
            const std::lock_guard<std::mutex> lock(m_machine.m_mutex);
            eventfd_t count = 0;
            ::eventfd_read(m_machine.m_file, &count);
            m_list = m_machine.m_list;
            m_changes = m_machine.m_changes;
        }
        const ModemList& list() const override { return m_list; }
        std::uint64_t changes() const override { return m_changes; }

    private:
        Machine& m_machine;
        ModemList m_list;
        std::uint64_t m_changes = 0;
    };

    const int m_file;
    std::mutex m_mutex;
    ModemList m_list;
    std::uint64_t m_changes = 0;
};

inline ListedPort listedPort(const std::string& node, PortType type = PortType::At)
{
    ListedPort port;
    port.name = node.substr(node.rfind('/') + 1);
    port.node = node;
    port.type = type;
    return port;
}

// A modem that ModemManager speaks with over the first port; udev calls the second one secondary.
inline ListedModem listedModem(const std::string& path, const std::vector<ListedPort>& ports)
{
    ListedModem modem;
    modem.path = path;
    modem.manufacturer = "Linkhand Tests";
    modem.model = "Simulated Modem";
    modem.ports = ports;
    modem.primary = ports.empty() ? std::string() : ports.front().name;
    if (modem.ports.size() > 1 && modem.ports[1].type == PortType::At)
        modem.ports[1].secondary = true;
    modem.card = CardState::Ready;
    modem.radio = true;
    modem.inService = true;
    return modem;
}

} // namespace fixture

#endif // TESTS_SDK_MODEM_SCRIPTEDWATCH_H
