// Which of a modem's ports are free beside ModemManager, and what is told if none is.

#include "modem/PortChooser.h"
#include "modem/HardwareChoice.h"
#include "sdk/modem/ScriptedWatch.h"
#include "support/Check.h"

using namespace fixture;

namespace
{

std::string joined(const std::vector<std::string>& all)
{
    std::string text;
    for (const std::string& one : all)
        text += (text.empty() ? "" : " ") + one;
    return text;
}

ListedPort command(int number)
{
    return listedPort("/dev/ttyUSB" + std::to_string(number));
}

ListedPort ignored(int number)
{
    return listedPort("/dev/ttyUSB" + std::to_string(number), PortType::Ignored);
}

ListedPort control()
{
    ListedPort port = listedPort("cdc-wdm0", PortType::Control);
    port.node.clear();
    return port;
}

std::string freeOf(const std::vector<ListedPort>& ports, bool heldShows = true)
{
    return joined(freePorts(listedModem("/Modem/0", ports), heldShows));
}

} // namespace

TEST(theTwoPortsOfAModemOfCommandsAreNeverTaken)
{
    CHECK_EQ(freeOf({command(0)}), "");
    CHECK_EQ(freeOf({command(0), command(1)}), "");
    ListedModem untagged = listedModem("/Modem/0", {command(0), command(1)});
    untagged.ports[1].secondary = false;
    untagged.enabled = true;
    CHECK_EQ(joined(freePorts(untagged, true)), "");
}

TEST(aPortBeyondTheTwoIsFree)
{
    CHECK_EQ(freeOf({command(0), command(1), command(2)}), "/dev/ttyUSB2");
    CHECK_EQ(freeOf({command(0), command(1), command(2), command(3)}), "/dev/ttyUSB2 /dev/ttyUSB3");
    CHECK_EQ(freeOf({command(0), command(1), command(10), command(9)}), "/dev/ttyUSB9 /dev/ttyUSB10");
}

TEST(withoutKnowingTheSecondPortOnlyModemManagersHoldTellsWhichIsFree)
{
    ListedModem modem = listedModem("/Modem/0", {command(0), command(1), command(2)});
    modem.ports[1].secondary = false;
    CHECK_EQ(joined(freePorts(modem, true)), "");
    modem.enabled = true;
    CHECK_EQ(joined(freePorts(modem, true)), "/dev/ttyUSB1 /dev/ttyUSB2");
    CHECK_EQ(joined(freePorts(modem, false)), "");
    // One that connections run over is not free even so.
    modem.ports[2].data = true;
    CHECK_EQ(joined(freePorts(modem, true)), "/dev/ttyUSB1");
}

TEST(aSecondPortThatDoesNotSpeakLeavesTheSecondUnknown)
{
    ListedModem modem = listedModem("/Modem/0", {command(0), command(1), command(2), command(3)});
    modem.ports[1].type = PortType::Other;
    CHECK_EQ(joined(freePorts(modem, true)), "");
}

TEST(anIgnoredPortGoesFirst)
{
    CHECK_EQ(freeOf({command(0), command(1), ignored(2), command(3)}), "/dev/ttyUSB2 /dev/ttyUSB3");
    CHECK_EQ(freeOf({command(0), command(1), command(2), ignored(3)}), "/dev/ttyUSB3 /dev/ttyUSB2");
    CHECK_EQ(freeOf({command(0), ignored(1)}), "/dev/ttyUSB1");
    ListedPort network = listedPort("wwan0", PortType::Ignored);
    network.node.clear();
    CHECK_EQ(freeOf({command(0), command(1), network}), "");
}

TEST(aModemBehindAControlPortSparesAnyOfItsPorts)
{
    ListedModem modem = listedModem("/Modem/0", {control(), command(2), command(3)});
    CHECK_EQ(joined(freePorts(modem, true)), "/dev/ttyUSB3 /dev/ttyUSB2");
    modem.primary = "ttyUSB2"; // it has such a port, but commands go over the other
    CHECK_EQ(joined(freePorts(modem, true)), "");
    CHECK_EQ(freeOf({control(), command(0)}), "/dev/ttyUSB0");
    CHECK_EQ(freeOf({control()}), "");
}

TEST(theRuleNamesAPortThatTheModemCanSpare)
{
    CHECK_EQ(portToSpare(listedModem("/Modem/0", {command(0), command(1)})), "");
    CHECK_EQ(portToSpare(listedModem("/Modem/0", {command(0), command(1), command(2)})), "/dev/ttyUSB2");
    CHECK_EQ(portToSpare(listedModem("/Modem/0", {control(), command(2)})), "/dev/ttyUSB2");
    CHECK_EQ(portToSpare(listedModem("/Modem/0", {control()})), "");
    CHECK(whyNoPort(listedModem("/Modem/0", {command(0), command(1)})).find("needs both ports") != std::string::npos);
    CHECK(whyNoPort(listedModem("/Modem/0", {command(0)})).find("needs the only port") != std::string::npos);
    CHECK(whyNoPort(listedModem("/Modem/0", {control()})).find("no port") == 0);
}

TEST(withoutModemManagerNothingIsOpenedThatNobodyNamed)
{
    Machine machine;
    PortFinder finder(autoChoice, machine.open());
    CHECK(!finder.settled());
    CHECK_EQ(finder.offer().problem, "");
    machine.tell([](ModemList& list) {
        // A list of a run that has ended does not count.
        list.modems.push_back(listedModem("/Modem/0", {command(0), ignored(1)}));
    });
    CHECK(finder.heed());
    CHECK(!finder.heed());
    CHECK(finder.settled());
    CHECK_EQ(finder.offer().ports.size(), 0u);
    CHECK_EQ(finder.offer().problem, "ModemManager does not run: without it only a port that is named is opened");
    const PortFinder named("/dev/ttyUSB7", machine.open());
    CHECK_EQ(joined(named.offer().ports), "/dev/ttyUSB7");
    const PortFinder alone(autoChoice, [](WatchKind, std::string& problem) {
        problem = "no module";
        return nullptr;
    });
    CHECK(alone.settled());
    CHECK_EQ(alone.offer().problem, "no module; a port can be named");
}

CHECK_MAIN
