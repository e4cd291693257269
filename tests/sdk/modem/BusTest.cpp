// The real ModemManager on a private bus, heard by the thread that speaks to the modem; and a bus that fails.

#include <csignal>
#include <cstdlib>

#include "modem/HardwareChoice.h"
#include "modem/bus/Entry.h"
#include "sdk/modem/ModemFixture.h"
#include "support/Check.h"
#include "support/modem/ModemManagerBench.h"

using namespace fixture;
using modemsim::BenchSetup;
using modemsim::ModemManagerBench;

namespace
{

std::unique_ptr<ModemWatch> openLinked(WatchKind kind, std::string&)
{
    return std::unique_ptr<ModemWatch>(linkhand_modem_watch_1(kind));
}

BenchSetup onSockets()
{
    BenchSetup setup;
    setup.usb = false;
    return setup;
}

void useBus(const modemsim::Environment& environment)
{
    for (const auto& [name, value] : environment)
        ::setenv(name.c_str(), value.c_str(), 1);
}

bool problemIs(Library& library, const std::string& part)
{
    library.hardware.status();
    return eventually([&] { return library.hardware.state().problem().find(part) != std::string::npos; });
}

} // namespace

TEST(aModemOnNoTtyIsADeviceThatFollowsModemManager)
{
    BenchSetup setup = onSockets();
    setup.plan.card.pin = "1234";
    ModemManagerBench bench(setup);
    useBus(bench.environment());
    const Place place;
    Library library(place, quickTimings(), autoChoice, openLinked);
    CHECK(problemIs(library, "no modem"));
    CHECK_EQ(library.hardware.status().attached, 0);
    bench.plug();
    CHECK(problemIs(library, "no port of the modem speaks AT"));
    CHECK(library.hardware.report().find("model=Simulated Modem\n") != std::string::npos);
    REQUIRE(eventually([&] { return library.hardware.status().card == 1; }));
    CHECK(library.hardware.status().pinStatus != ORVA_PIN_NOT_NEEDED);
    CHECK_EQ(bench.mmcli({"-i", "any", "--pin=1234"}).status, 0);
    CHECK(eventually([&] { return library.hardware.status().pinStatus == ORVA_PIN_NOT_NEEDED; }));
    REQUIRE(bench.waitForFact("modem.generic.state", "disabled"));
    CHECK_EQ(bench.mmcli({"-m", "any", "--enable"}).status, 0);
    CHECK(eventually([&] { return library.hardware.status().network == ORVA_NETWORK_IN_SERVICE; }));
    CHECK(library.hardware.memories().empty());
    bench.endDaemon(SIGKILL);
    CHECK(problemIs(library, "ModemManager does not run"));
    CHECK_EQ(library.hardware.status().attached, 0);
    bench.startDaemon();
    CHECK(problemIs(library, "no modem"));
    library.events.drain();
    CHECK(Events::all().count(ORVA_EVENT_DEV_PIN_CHANGED) >= 1);
    CHECK(Events::all().count(ORVA_EVENT_NET_STATUS) >= 1);
    CHECK_EQ(Events::all().count(ORVA_EVENT_DEV_DEVICE_INIT_FINISH), 2);
}

TEST(withoutABusNothingIsFoundAndTheReasonIsTold)
{
    useBus({{"DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/bus"}});
    const Place place;
    Library library(place, quickTimings(), autoChoice, openLinked);
    CHECK(problemIs(library, "no system bus"));
    CHECK_EQ(library.hardware.status().attached, 0);
}

TEST(aBusThatGoesIsToldAndModemManagerWithIt)
{
    auto bus = std::make_unique<modemsim::PrivateBus>();
    useBus(bus->environment());
    const Place place;
    Library library(place, quickTimings(), autoChoice, openLinked);
    CHECK(problemIs(library, "ModemManager does not run"));
    bus.reset();
    CHECK(problemIs(library, "no system bus"));
}

TEST(aBusThatHangsDoesNotHoldTheEndUp)
{
    ModemManagerBench bench(onSockets());
    useBus(bench.environment());
    const Place place;
    Library library(place, quickTimings(), autoChoice, openLinked);
    CHECK(problemIs(library, "no modem"));
    const pid_t busDaemon = bench.busDaemon();
    REQUIRE(::kill(busDaemon, SIGSTOP) == 0);
    Library second(place, quickTimings(), autoChoice, openLinked);
    second.hardware.status();
    const auto before = std::chrono::steady_clock::now();
    library.hardware.stop();
    second.hardware.stop();
    CHECK(std::chrono::steady_clock::now() - before < std::chrono::seconds(1));
    ::kill(busDaemon, SIGCONT);
}

CHECK_MAIN
