// The real ModemManager with the simulated modem before it: what it finds, which ports it takes, and what becomes of a
// modem that is plugged and unplugged while it runs.

#include "support/Check.h"
#include "support/modem/Dialog.h"
#include "support/modem/ModemManagerBench.h"

#include <csignal>

using namespace modemsim;

namespace
{

BenchSetup withRoles(const std::vector<Role>& roles)
{
    BenchSetup setup;
    setup.roles = roles;
    return setup;
}

void enable(ModemManagerBench& bench)
{
    CHECK_EQ(bench.mmcli({"-m", "any", "--enable"}).status, 0);
    CHECK(bench.waitForFact("modem.generic.state", "registered"));
}

std::string joined(const std::vector<std::string>& texts)
{
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : " ") + text;
    return all;
}

// Another program reads the card on a port while ModemManager uses the modem.
void checkPhonebookOn(ModemManagerBench& bench, size_t port)
{
    Dialog dialog(bench.modem().terminal(port));
    dialog.say("ATE0");
    CHECK_EQ(dialog.heard("AT+CPBS=\"SM\";+CPBR=1"), "+CPBR: 1,\"+491711234567\",145,\"Anna\"|OK");
}

} // namespace

TEST(aPluggedModemIsFoundAndRegisters)
{
    ModemManagerBench bench;
    CHECK_EQ(bench.modemFacts().size(), 0U);
    bench.plug();
    REQUIRE(bench.waitForModem());
    auto facts = bench.modemFacts();
    CHECK_EQ(facts["modem.generic.manufacturer"], "Linkhand Tests");
    CHECK_EQ(facts["modem.generic.model"], "Simulated Modem");
    CHECK_EQ(facts["modem.generic.plugin"], "quectel");
    CHECK_EQ(facts["modem.3gpp.imei"], "350000000000006");
    CHECK_EQ(bench.fact("sim.properties.iccid"), "8949020000123456789");
    enable(bench);
    facts = bench.modemFacts();
    CHECK_EQ(facts["modem.3gpp.operator-name"], "Test Net");
    CHECK_EQ(joined(bench.held()), "ttyUSB0 ttyUSB1");
}

TEST(aThirdPortIsLeftAlone)
{
    ModemManagerBench bench(withRoles({Role::Primary, Role::Secondary, Role::Free}));
    bench.plug();
    REQUIRE(bench.waitForModem());
    enable(bench);
    CHECK_EQ(bench.fact("modem.generic.ports.value[3]"), "ttyUSB2 (at)");
    CHECK_EQ(joined(bench.held()), "ttyUSB0 ttyUSB1");
    checkPhonebookOn(bench, 2);
    CHECK_EQ(bench.fact("modem.generic.state"), "registered");
}

TEST(anIgnoredPortIsToldAndLeftAlone)
{
    ModemManagerBench bench(withRoles({Role::Primary, Role::Secondary, Role::Ignored, Role::Free}));
    bench.plug();
    REQUIRE(bench.waitForModem());
    enable(bench);
    CHECK_EQ(bench.fact("modem.generic.ports.value[3]"), "ttyUSB2 (ignored)");
    CHECK_EQ(bench.fact("modem.generic.ports.value[4]"), "ttyUSB3 (at)");
    CHECK_EQ(joined(bench.held()), "ttyUSB0 ttyUSB1");
    checkPhonebookOn(bench, 2);
    checkPhonebookOn(bench, 3);
}

TEST(aSecondModemIsFoundBesideTheFirst)
{
    ModemManagerBench bench;
    Plan other = standardPlan();
    other.imei = "350000000000014";
    other.card.iccid = "8949020000000000001";
    const size_t number = bench.addModem(other, {Role::Primary, Role::Secondary, Role::Free});
    bench.plug();
    bench.plug(number);
    const auto listed = [&bench] { return bench.mmcli({"--list-modems"}).output; };
    REQUIRE(bench.waitFor([&] {
        const std::string all = listed();
        return all.find("/Modem/0") != std::string::npos && all.find("/Modem/1") != std::string::npos;
    }));
    CHECK_EQ(bench.node(2, number), "ttyUSB4");
    bench.unplug();
    CHECK(bench.waitForFact("modem.3gpp.imei", "350000000000014"));
    CHECK_EQ(bench.fact("sim.properties.iccid"), "8949020000000000001");
}

TEST(anUnpluggedModemLeavesAndComesAgain)
{
    ModemManagerBench bench;
    bench.plug();
    REQUIRE(bench.waitForModem());
    bench.unplug();
    CHECK(bench.waitForNoModem());
    bench.plug();
    REQUIRE(bench.waitForModem());
    CHECK_EQ(bench.fact("modem.3gpp.imei"), "350000000000006");
    bench.endDaemon(SIGKILL);
    CHECK(bench.mmcli({"--list-modems"}).status != 0);
    bench.startDaemon();
    CHECK(bench.waitForModem());
    CHECK_EQ(bench.fact("modem.3gpp.imei"), "350000000000006");
}

CHECK_MAIN
