// Messages, calls, PIN and card of the simulated modem as the real ModemManager sees them, over its test interface.

#include "support/Check.h"
#include "support/modem/ModemManagerBench.h"

#include <algorithm>

using namespace modemsim;

namespace
{

struct Sockets : BenchSetup {
    Sockets() { usb = false; }
};

void enable(ModemManagerBench& bench)
{
    CHECK_EQ(bench.mmcli({"-m", "any", "--enable"}).status, 0);
    CHECK(bench.waitForFact("modem.generic.state", "registered"));
}

// The object path of the first thing of this kind in mmcli's words.
std::string path(const Outcome& outcome, const std::string& kind)
{
    const size_t begin = outcome.output.find("/org/freedesktop/ModemManager1/" + kind + '/');
    if (begin == std::string::npos)
        return std::string();
    return outcome.output.substr(begin, outcome.output.find_first_of(" \n\r", begin) - begin);
}

} // namespace

TEST(aMessageIsSentWholeOrInParts)
{
    ModemManagerBench bench((Sockets()));
    bench.plug();
    REQUIRE(bench.waitForModem());
    enable(bench);
    const std::string plain = "Gr\u00FC\u00DFe aus dem Simulator \u20AC";
    std::string wide;
    for (int i = 0; i < 16; ++i)
        wide += "\u041F\u0440\u0438\u0432\u0435\u0442 ";
    for (const std::string& text : {plain, wide}) {
        const Outcome made =
            bench.mmcli({"-m", "any", "--messaging-create-sms=text='" + text + "',number='+491711234567'"});
        CHECK_EQ(bench.mmcli({"-s", path(made, "SMS"), "--send"}).status, 0);
    }
    const std::vector<SentMessage> sent = bench.modem().sentMessages();
    REQUIRE(sent.size() == 3);
    CHECK_EQ(sent[0].number, "+491711234567");
    CHECK_EQ(sent[0].text, plain);
    CHECK_EQ(sent[1].parts, 2);
    CHECK_EQ(sent[2].part, 2);
    CHECK_EQ(sent[1].text + sent[2].text, wide);
}

TEST(aRefusedPartIsAFailedMessage)
{
    ModemManagerBench bench((Sockets()));
    bench.plug();
    REQUIRE(bench.waitForModem());
    enable(bench);
    bench.modem().setMessageError(38, 2);
    const Outcome made = bench.mmcli(
        {"-m", "any", "--messaging-create-sms=text='" + std::string(300, 'x') + "',number='+491711234567'"});
    CHECK(bench.mmcli({"-s", path(made, "SMS"), "--send"}).status != 0);
    CHECK_EQ(bench.modem().sentMessages().size(), 1U);
}

TEST(aReceivedMessageIsListed)
{
    ModemManagerBench bench((Sockets()));
    bench.plug();
    REQUIRE(bench.waitForModem());
    enable(bench);
    bench.modem().receiveMessage("+4930123", "Hello from outside");
    CHECK(bench.waitFor([&] {
        return bench.mmcli({"-m", "any", "--messaging-list-sms"}).output.find("received") != std::string::npos;
    }));
    const std::string message = path(bench.mmcli({"-m", "any", "--messaging-list-sms"}), "SMS");
    const Outcome shown = bench.mmcli({"-s", message});
    CHECK(shown.output.find("Hello from outside") != std::string::npos);
    CHECK(shown.output.find("+4930123") != std::string::npos);
    CHECK_EQ(bench.mmcli({"-m", "any", "--messaging-delete-sms=" + message}).status, 0);
    CHECK_EQ(bench.modem().storedMessages(), 0);
}

TEST(aCallIsDialledAnsweredAndEndedByTheOther)
{
    ModemManagerBench bench((Sockets()));
    bench.plug();
    REQUIRE(bench.waitForModem());
    enable(bench);
    const std::string call = path(bench.mmcli({"-m", "any", "--voice-create-call=number=+491711234567"}), "Call");
    CHECK_EQ(bench.mmcli({"-o", call, "--start"}).status, 0);
    CHECK(bench.waitFor([&] { return bench.mmcli({"-o", call}).output.find("active") != std::string::npos; }));
    CHECK(bench.modem().inCall());
    bench.modem().hangUpByOther();
    CHECK(bench.waitFor([&] { return bench.mmcli({"-o", call}).output.find("terminated") != std::string::npos; }));
}

TEST(aCallComesInAndIsRefused)
{
    ModemManagerBench bench((Sockets()));
    bench.plug();
    REQUIRE(bench.waitForModem());
    enable(bench);
    bench.modem().ring("+4930123");
    CHECK(bench.waitFor([&] {
        return bench.mmcli({"-m", "any", "--voice-list-calls"}).output.find("ringing-in") != std::string::npos;
    }));
    const std::string call = path(bench.mmcli({"-m", "any", "--voice-list-calls"}), "Call");
    CHECK(bench.mmcli({"-o", call}).output.find("+4930123") != std::string::npos);
    CHECK_EQ(bench.mmcli({"-o", call, "--hangup"}).status, 0);
    CHECK(bench.waitFor([&] { return bench.modem().commands("AT+CHUP") > 0; }));
}

TEST(aLockedCardIsOpenedWithItsPin)
{
    Sockets setup;
    setup.plan.card.pin = "1234";
    ModemManagerBench bench(setup);
    bench.plug();
    REQUIRE(bench.waitForFact("modem.generic.state", "locked"));
    CHECK_EQ(bench.fact("modem.generic.unlock-required"), "sim-pin");
    CHECK(bench.mmcli({"-i", "any", "--pin=0000"}).status != 0);
    CHECK_EQ(bench.modem().pinTries(), 2);
    CHECK_EQ(bench.mmcli({"-i", "any", "--pin=1234"}).status, 0);
    CHECK(bench.waitForFact("modem.generic.state", "disabled"));
    enable(bench);
}

TEST(anEmptySlotIsTold)
{
    Sockets setup;
    setup.plan.cardIn = false;
    ModemManagerBench bench(setup);
    bench.plug();
    CHECK(bench.waitForFact("modem.generic.state", "failed"));
    CHECK_EQ(bench.fact("modem.generic.state-failed-reason"), "sim-missing");
}

CHECK_MAIN
