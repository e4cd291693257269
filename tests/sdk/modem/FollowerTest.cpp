// A program that uses "auto" before the real ModemManager, on a machine whose USB ports are mocked: which port it
// takes, and what it hears when modems are plugged and pulled, and ModemManager is killed.

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "orva/orva_sdk.h"
#include "support/Check.h"
#include "support/modem/ModemManagerBench.h"

using namespace modemsim;

namespace
{

const std::string available = std::to_string(ORVA_DEVICE_AVAILABLE);

class Follower
{
public:
    explicit Follower(const ModemManagerBench& bench) : m_folder(makeFolder()), m_child({FOLLOWER}, with(bench)) {}
    ~Follower()
    {
        m_child.closeInput();
        m_child.wait(Milliseconds(5000));
        std::filesystem::remove_all(m_folder);
    }

    std::string ask(const std::string& order)
    {
        m_child.write(order + "\n");
        std::string text;
        for (std::string line; m_child.readLine(line);) {
            if (line == "=")
                return text;
            if (line.compare(0, 6, "event ") == 0)
                m_events.push_back(std::atoi(line.c_str() + 6));
            else
                text += (text.empty() ? "" : "\n") + line;
        }
        throw std::runtime_error("the follower is silent");
    }
    bool waitFor(const std::string& order, const std::string& wanted)
    {
        const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        while (ask(order).find(wanted) == std::string::npos) {
            if (std::chrono::steady_clock::now() > until)
                return false;
            std::this_thread::sleep_for(Milliseconds(10));
        }
        return true;
    }
    // Of those events that say something of the device, card and phonebook as such; waits for so many of them, which
    // may come behind the state that they tell of.
    std::vector<int> takeEvents(std::size_t wanted = 0)
    {
        std::vector<int> heard;
        const auto limit = std::chrono::steady_clock::now() + std::chrono::minutes(1);
        do {
            ask("device");
            for (const int event : m_events) {
                if (event != ORVA_EVENT_NET_STATUS)
                    heard.push_back(event);
            }
            m_events.clear();
        } while (heard.size() < wanted && std::chrono::steady_clock::now() < limit);
        return heard;
    }
    // Takes the events up to one of a kind; false if that does not come.
    bool hears(int event)
    {
        const auto limit = std::chrono::steady_clock::now() + std::chrono::minutes(1);
        while (std::chrono::steady_clock::now() < limit) {
            const std::vector<int> heard = takeEvents();
            if (std::find(heard.begin(), heard.end(), event) != heard.end())
                return true;
        }
        return false;
    }
    long end()
    {
        const auto before = std::chrono::steady_clock::now();
        m_child.closeInput();
        m_child.wait(Milliseconds(10000));
        return std::chrono::duration_cast<Milliseconds>(std::chrono::steady_clock::now() - before).count();
    }

private:
    static std::string makeFolder()
    {
        char name[] = "/tmp/linkhand-follower-XXXXXX";
        return ::mkdtemp(name);
    }
    Environment with(const ModemManagerBench& bench) const
    {
        Environment all = bench.environment();
        all["LINKHAND_MODEM"] = "auto";
        all["LINKHAND_DATA_DIR"] = m_folder;
        return all;
    }

    const std::string m_folder;
    Child m_child;
    std::vector<int> m_events;
};

BenchSetup withRoles(const std::vector<Role>& roles)
{
    BenchSetup setup;
    setup.roles = roles;
    return setup;
}

bool heldByModemManager(ModemManagerBench& bench)
{
    CHECK_EQ(bench.mmcli({"-m", "any", "--enable"}).status, 0);
    return bench.waitForFact("modem.generic.state", "registered") &&
           bench.held() == std::vector<std::string>{"ttyUSB0", "ttyUSB1"};
}

// Phonebook commands are ours alone.
std::string portsWithPhonebook(const Modem& modem)
{
    std::string ports;
    for (const std::string& line : modem.transcript()) {
        if (line.find("> AT+CPB") != std::string::npos && ports.find(line[0]) == std::string::npos)
            ports += line[0];
    }
    return ports;
}

bool contains(const std::vector<int>& all, int one)
{
    return std::find(all.begin(), all.end(), one) != all.end();
}

} // namespace

TEST(theTwoPortsOfAModemAreLeftToModemManager)
{
    ModemManagerBench bench(withRoles({Role::Primary, Role::Secondary}));
    bench.plug();
    REQUIRE(bench.waitForModem());
    Follower follower(bench);
    CHECK(follower.waitFor("device", available));
    CHECK(follower.waitFor("report", "needs both ports"));
    CHECK_EQ(follower.ask("rows"), "-1 -1");
    CHECK_EQ(follower.ask("report").find("spare="), std::string::npos);
    CHECK(heldByModemManager(bench));
    CHECK_EQ(portsWithPhonebook(bench.modem()), "");
}

TEST(theThirdPortIsTakenWhileModemManagerUsesTheModem)
{
    ModemManagerBench bench(withRoles({Role::Primary, Role::Secondary, Role::Free}));
    bench.plug();
    REQUIRE(bench.waitForModem());
    Follower follower(bench);
    CHECK(follower.waitFor("rows", "5 2"));
    CHECK(heldByModemManager(bench));
    CHECK_EQ(portsWithPhonebook(bench.modem()), "2");
    CHECK(follower.ask("report").find("port=/dev/ttyUSB2\n") == 0);
    // ModemManager tells of a card that it unlocks, sees or loses; the port's own question does the same here.
    follower.takeEvents();
    bench.modem().pullCard();
    CHECK(follower.waitFor("card", "none"));
    CHECK(follower.hears(ORVA_EVENT_DEV_SIM_INVALID));
    CHECK(follower.end() < 1000);
}

TEST(anIgnoredPortIsTakenBeforeAFreeOne)
{
    ModemManagerBench bench(withRoles({Role::Primary, Role::Secondary, Role::Free, Role::Ignored}));
    bench.plug();
    REQUIRE(bench.waitForModem());
    Follower follower(bench);
    CHECK(follower.waitFor("rows", "5 2"));
    CHECK(heldByModemManager(bench));
    CHECK_EQ(portsWithPhonebook(bench.modem()), "3");
}

TEST(ofFourPortsTheThirdIsTaken)
{
    ModemManagerBench bench(withRoles({Role::Secondary, Role::Free, Role::Primary, Role::Free}));
    bench.plug();
    REQUIRE(bench.waitForModem());
    Follower follower(bench);
    CHECK(follower.waitFor("rows", "5 2"));
    CHECK_EQ(portsWithPhonebook(bench.modem()), "1");
}

TEST(modemsThatComeAndGoAreFollowed)
{
    ModemManagerBench bench(withRoles({Role::Primary, Role::Secondary, Role::Free}));
    Plan plan = standardPlan();
    plan.imei = "350000000000014";
    plan.card.iccid = "8949020000000000001";
    plan.card.storages[0].entries.resize(2);
    const size_t other = bench.addModem(plan, {Role::Primary, Role::Secondary, Role::Free});
    Follower follower(bench);
    CHECK(follower.waitFor("report", "no modem"));
    CHECK(follower.ask("device") != available);
    bench.plug();
    CHECK(follower.waitFor("rows", "5 2"));
    const std::vector<int> events = follower.takeEvents(4);
    REQUIRE(events.size() >= 4);
    CHECK_EQ(events[0], ORVA_EVENT_DEV_DEVICE_INIT_FINISH);
    CHECK_EQ(events[1], ORVA_EVENT_PBM_EVENT_READY);
    CHECK_EQ(events[2], ORVA_EVENT_PBM_EVENT_SIM_READY);
    CHECK_EQ(events[3], ORVA_EVENT_PBM_EVENT_NV_READY);
    bench.unplug();
    CHECK(follower.waitFor("rows", "-1 -1"));
    CHECK(follower.ask("device") != available);
    CHECK(follower.takeEvents(1) == std::vector<int>{ORVA_EVENT_DEV_DEVICE_INIT_FINISH});
    bench.plug(other);
    CHECK(follower.waitFor("rows", "2 2"));
    bench.unplug(other);
    CHECK(follower.waitFor("rows", "-1 -1"));
    bench.plug();
    CHECK(follower.waitFor("rows", "5 2"));
}

TEST(aKilledModemManagerCostsNothingAndItsNextRunHasThePortsFirst)
{
    ModemManagerBench bench(withRoles({Role::Primary, Role::Secondary, Role::Free}));
    bench.plug();
    REQUIRE(bench.waitForModem());
    Follower follower(bench);
    CHECK(follower.waitFor("rows", "5 2"));
    CHECK(follower.hears(ORVA_EVENT_PBM_EVENT_NV_READY));
    bench.endDaemon(SIGKILL);
    CHECK_EQ(follower.ask("rows"), "5 2");
    bench.modem().pullCard();
    CHECK(follower.waitFor("card", "none"));
    bench.modem().insertCard();
    CHECK(follower.waitFor("rows", "5 2"));
    CHECK(!contains(follower.takeEvents(), ORVA_EVENT_DEV_DEVICE_INIT_FINISH));
    bench.startDaemon();
    CHECK(follower.waitFor("rows", "-1 -1"));
    REQUIRE(bench.waitForModem());
    CHECK_EQ(bench.fact("modem.generic.ports.value[3]"), "ttyUSB2 (at)");
    CHECK(follower.waitFor("rows", "5 2"));
    CHECK(heldByModemManager(bench));
}

CHECK_MAIN
