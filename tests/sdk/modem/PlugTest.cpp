// Ports that udev tells of, on a machine without ModemManager: modembench --no-daemon -- sdk_modem_plug_test. Nothing
// is tried again by itself here: what happens, happens because udev has told.

#include <cstdlib>

#include "modem/HardwareChoice.h"
#include "modem/bus/Entry.h"
#include "sdk/modem/ModemFixture.h"
#include "support/Check.h"
#include "support/modem/ControlSocket.h"

using namespace fixture;

namespace
{

constexpr char firstPort[] = "/dev/ttyUSB0";

std::unique_ptr<ModemWatch> openLinked(WatchKind kind, std::string&)
{
    return std::unique_ptr<ModemWatch>(linkhand_modem_watch_1(kind));
}

std::string tell(const std::string& order)
{
    const char* const control = std::getenv("MODEMSIM_CONTROL");
    return modemsim::ControlSocket::tell(control != nullptr ? control : "", order);
}

ModemTimings onlyByNews()
{
    ModemTimings timings = quickTimings();
    timings.retry = timings.reread = timings.longest = Milliseconds(3600 * 1000);
    return timings;
}

bool problemIs(Library& library, const std::string& part)
{
    library.hardware.status();
    return eventually([&] { return library.hardware.state().problem().find(part) != std::string::npos; });
}

// A modem that is there for the length of a test.
struct PluggedPort {
    PluggedPort() { tell("plug"); }
    ~PluggedPort() { tell("unplug"); }
};

} // namespace

TEST(aNamedPortIsOpenedWhenItIsPluggedAndAgain)
{
    const Place place;
    Library library(place, onlyByNews(), firstPort, openLinked);
    CHECK(problemIs(library, "No such file"));
    for (int i = 0; i < 2; ++i) {
        {
            const PluggedPort plugged;
            REQUIRE(library.ready());
            CHECK_EQ(library.card.size(), 5);
        }
        CHECK(eventually([&] { return library.hardware.status().attached == 0; }));
    }
}

TEST(aNamedPortWhereNobodyAnsweredIsTriedAgainWhenSomethingIsPlugged)
{
    tell("quirk silent=AT");
    const Place place;
    Library library(place, onlyByNews(), firstPort, openLinked);
    CHECK(problemIs(library, "No such file"));
    {
        const PluggedPort plugged;
        CHECK(problemIs(library, "nobody answers"));
    }
    tell("noquirk silent");
    const PluggedPort again;
    CHECK(library.ready());
}

TEST(withoutModemManagerNothingIsOpenedThatNobodyNamed)
{
    const Place place;
    Library library(place, onlyByNews(), autoChoice, openLinked);
    CHECK(problemIs(library, "ModemManager does not run"));
    const std::unique_ptr<ModemWatch> watch(linkhand_modem_watch_1(WatchKind::Plugs));
    const std::string before = tell("log");
    const PluggedPort plugged;
    CHECK(eventually([&] {
        watch->process();
        return watch->changes() >= 3; // a port each
    }));
    CHECK_EQ(library.hardware.status().attached, 0);
    CHECK_EQ(tell("log"), before);
}

CHECK_MAIN
