#ifndef BENCHMARKS_MODEM_PLUGTIMES_H
#define BENCHMARKS_MODEM_PLUGTIMES_H

#include <chrono>
#include <future>
#include <stdexcept>
#include <string>

#include "orva/orva_sdk.h"
#include "tests/support/modem/ModemManagerBench.h"

namespace plug
{

// Seconds from the plug on.
struct Times {
    double rows = 0;   // a client of the library has them
    double listed = 0; // ModemManager says that there is a modem
};

// A client of the library before the real ModemManager, and somebody who hears ModemManager on the bus.
class Client
{
public:
    Client(modemsim::ModemManagerBench& machine, const std::string& folder)
        : m_machine(machine),
          m_client({FOLLOWER}, with(machine, folder)),
          m_bus({"dbus-monitor", "--session", "--profile",
                 "type='signal',interface='org.freedesktop.DBus.ObjectManager',path='/org/freedesktop/ModemManager1'"},
                machine.environment())
    {
        waitFor("report", "no modem");
    }

    Times plug(int entries)
    {
        const auto begin = std::chrono::steady_clock::now();
        const auto since = [begin] {
            return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
        };
        auto listed = std::async(std::launch::async, [this, since] {
            heard(m_bus, "InterfacesAdded");
            return since();
        });
        m_machine.plug();
        heard(m_client, "event " + std::to_string(ORVA_EVENT_PBM_EVENT_SIM_READY));
        waitFor("rows", std::to_string(entries) + " ");
        Times times;
        times.rows = since();
        times.listed = listed.get();
        return times;
    }

    void unplug()
    {
        m_machine.unplug();
        heard(m_bus, "InterfacesRemoved");
        waitFor("report", "no modem");
    }

private:
    static modemsim::Environment with(const modemsim::ModemManagerBench& machine, const std::string& folder)
    {
        modemsim::Environment all = machine.environment();
        all["LINKHAND_MODEM"] = "auto";
        all["LINKHAND_DATA_DIR"] = folder;
        return all;
    }

    static void heard(modemsim::Child& child, const std::string& wanted)
    {
        std::string line;
        while (child.readLine(line, modemsim::Milliseconds(30000))) {
            if (line.find(wanted) != std::string::npos)
                return;
        }
        throw std::runtime_error("not heard: " + wanted);
    }

    // Asks until the answer has these words.
    void waitFor(const std::string& order, const std::string& wanted)
    {
        for (bool found = false; !found;) {
            m_client.write(order + "\n");
            std::string line;
            do {
                if (!m_client.readLine(line))
                    throw std::runtime_error("the client is silent");
                found = found || line.find(wanted) != std::string::npos;
            } while (line != "=");
        }
    }

    modemsim::ModemManagerBench& m_machine;
    modemsim::Child m_client;
    modemsim::Child m_bus;
};

} // namespace plug

#endif // BENCHMARKS_MODEM_PLUGTIMES_H
