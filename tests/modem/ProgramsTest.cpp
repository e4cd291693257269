// The simulated modem as a program: its ports, its orders, its end; and the bench that runs a command before the real
// ModemManager.

#include "support/Check.h"
#include "support/modem/Dialog.h"
#include "support/modem/ModemProcess.h"

#include <stdexcept>

using namespace modemsim;

TEST(aProcessServesSeveralPortsAndTakesOrders)
{
    ModemProcess modem({"--pty", "--pty", "--quirk", "no_space", "--pin", "1234"});
    Dialog one(modem.portPath(0));
    Dialog other(modem.portPath(1));
    one.say("ATE0");
    CHECK_EQ(one.heard("AT+CPIN?"), "+CPIN:SIM PIN|OK");
    other.say("AT+CPIN=\"1234\"");
    CHECK_EQ(modem.tell("locked"), "no 3\n");
    modem.tell("put SM 3 +49555 Somebody else");
    CHECK_EQ(one.heard("AT+CPBR=3"), "+CPBR:3,\"+49555\",145,\"Somebody else\"|OK");
    other.say("AT+CPBW=3");
    CHECK_EQ(modem.tell("entries SM").find("Somebody"), std::string::npos);
    modem.tell("card out");
    CHECK_EQ(one.heard("AT+CPIN?"), "ERROR");
    bool refused = false;
    try {
        modem.tell("fly");
    } catch (const std::runtime_error&) {
        refused = true;
    }
    CHECK(refused);
}

TEST(aKilledProcessEndsTheLine)
{
    ModemProcess modem;
    Dialog dialog(modem.portPath(0));
    CHECK_EQ(dialog.heard("AT"), "OK");
    modem.freeze();
    CHECK_EQ(dialog.heard("AT", Milliseconds(50)), "");
    modem.thaw();
    CHECK(dialog.readUntil("OK").find("OK") != std::string::npos);
    modem.kill();
    CHECK(dialog.gone());
}

TEST(aCommandRunsBeforeModemManagerAndGivesOrders)
{
    const std::string tests = MODEM_TEST_PROGRAMS;
    const std::string script = "mmcli -m any -K | grep -E 'modem.generic.(model|plugin)'; " + tests +
                               "/modemsim --tell $MODEMSIM_CONTROL 'entries ME'; exit 7";
    const Outcome outcome =
        runProgram({tests + "/modembench", "--sockets", "--roles", "primary,secondary", "--", "sh", "-c", script});
    CHECK_EQ(outcome.status, 7);
    CHECK(outcome.output.find("Simulated Modem") != std::string::npos);
    CHECK(outcome.output.find("3\t555\tDevice entry") != std::string::npos);
}

CHECK_MAIN
