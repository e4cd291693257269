// The simulated modem by itself: its lines, its phonebooks, its card and its ends. What others make of it is tested
// with independent programs.

#include "support/Check.h"
#include "support/modem/Dialog.h"
#include "support/modem/Modem.h"

#include <fcntl.h>
#include <set>
#include <stdexcept>
#include <sys/ioctl.h>
#include <unistd.h>

using modemsim::Dialog;
using modemsim::Fault;
using modemsim::Modem;
using modemsim::Plan;
using modemsim::standardPlan;

namespace
{

Plan withQuirk(const char* setting)
{
    Plan plan = standardPlan();
    plan.quirks.set(setting);
    return plan;
}

std::string first(const Plan& plan, const std::string& command)
{
    Modem modem(plan);
    Dialog dialog(modem.portPath(0));
    dialog.say("ATE0");
    dialog.say("AT+CMEE=1");
    return dialog.heard(command);
}

} // namespace

TEST(linesAreThoseOfAModem)
{
    Modem modem;
    Dialog dialog(modem.portPath(0));
    REQUIRE(dialog.isOpen());
    dialog.write("AT\r");
    CHECK_EQ(dialog.readUntil("OK\r\n"), "AT\r\r\nOK\r\n");
    dialog.say("ATE0");
    dialog.write("AT+CPBS?\r");
    CHECK_EQ(dialog.readUntil("OK\r\n"), "\r\n+CPBS: \"SM\",5,20\r\n\r\nOK\r\n");
    CHECK_EQ(dialog.heard("AT+XYZ"), "ERROR");
    dialog.say("AT+CMEE=1");
    CHECK_EQ(dialog.heard("AT+XYZ"), "+CME ERROR: 4");
    dialog.say("AT+CMEE=2");
    CHECK_EQ(dialog.heard("AT+CPBR=21"), "+CME ERROR: invalid index");
}

TEST(joinedCommandsHaveOneResult)
{
    Modem modem;
    Dialog dialog(modem.portPath(0));
    dialog.say("ATE0");
    CHECK_EQ(dialog.heard("AT+CPBS=\"ME\";+CPBR=3"), "+CPBR: 3,\"555\",129,\"Device entry\"|OK");
    CHECK_EQ(dialog.heard("AT+CPBS=\"SM\";+CPBR=99;+CPBR=1"), "ERROR");
}

TEST(aCardIsReadInEachCharacterSet)
{
    Modem modem;
    Dialog dialog(modem.portPath(0));
    dialog.say("ATE0");
    dialog.say("AT+CSCS=\"UCS2\"");
    CHECK_EQ(dialog.heard("AT+CPBR=5"), "+CPBR: 5,\"+79161234567\",145,\"041804320430043D\"|OK");
    dialog.say("AT+CSCS=\"UTF-8\"");
    CHECK_EQ(dialog.heard("AT+CPBR=2"), "+CPBR: 2,\"0301234567\",129,\"Zo\u00EB M\u00FCller\"|OK");
    dialog.say("AT+CSCS=\"8859-1\"");
    CHECK_EQ(dialog.heard("AT+CPBR=2"), "+CPBR: 2,\"0301234567\",129,\"Zo\xEB M\xFCller\"|OK");
    dialog.say("AT+CSCS=\"GSM\"");
    CHECK_EQ(dialog.heard("AT+CPBR=2"), "+CPBR: 2,\"0301234567\",129,\"Zo? M\x7Eller\"|OK");
    CHECK_EQ(dialog.heard("AT+CPBR=1,20").size(), dialog.heard("AT+CPBR=01,20").size());
}

TEST(writesAreJudgedAndKept)
{
    Modem modem;
    Dialog dialog(modem.portPath(0));
    dialog.say("ATE0");
    dialog.say("AT+CMEE=1;+CSCS=\"UCS2\"");
    CHECK_EQ(dialog.heard("AT+CPBW=3,\"4917999\",145,\"0047007200FC00DF0065\""), "OK");
    const std::vector<modemsim::Entry> entries = modem.entries("SM");
    REQUIRE(entries.size() == 6);
    CHECK_EQ(entries[2].number, "+4917999");
    CHECK_EQ(entries[2].name, "Gr\u00FC\u00DFe");
    dialog.say("AT+CSCS=\"IRA\"");
    CHECK_EQ(dialog.heard("AT+CPBW=3,\"1\",129,\"1234567890123456789\""), "+CME ERROR: 24");
    CHECK_EQ(dialog.heard("AT+CPBW=3,\"1/2\",129,\"A\""), "+CME ERROR: 27");
    CHECK_EQ(dialog.heard("AT+CPBW=3"), "OK");
    CHECK_EQ(modem.entries("SM").size(), 5U);
}

TEST(eachQuirkChangesWhatIsSaidOrDone)
{
    CHECK_EQ(first(withQuirk("no_space"), "AT+CPBR=99"), "+CME ERROR:21");
    CHECK_EQ(first(withQuirk("first_index=101"), "AT+CPBR=101"), "+CPBR: 101,\"+491711234567\",145,\"Anna\"|OK");
    CHECK_EQ(first(withQuirk("empty_error=22"), "AT+CPBR=3"), "+CME ERROR: 22");
    CHECK_EQ(first(withQuirk("max_range=10"), "AT+CPBR=1,11"), "+CME ERROR: 3");
    CHECK_EQ(first(withQuirk("cpbr_test=sharp"), "AT+CPBR=?"), "+CPBR: (),40,18|OK");
    CHECK_EQ(first(withQuirk("double_parens"), "AT+CSCS=?"),
             "+CSCS: ((\"GSM\",\"IRA\",\"UCS2\",\"UTF-8\",\"8859-1\"))|OK");
    CHECK_EQ(first(withQuirk("first_hits=2"), "AT+CPBR=1,20").find("+CPBR: 5"), std::string::npos);
    CHECK_EQ(first(withQuirk("tail=commas"), "AT+CPBR=1"), "+CPBR: 1,\"+491711234567\",145,\"Anna\",,,,,,,|OK");
    CHECK_EQ(first(withQuirk("truncate"), "AT+CPBW=3,\"1\",129,\"1234567890123456789\";+CPBR=3"),
             "+CPBR: 3,\"1\",129,\"123456789012345678\"|OK");
    CHECK_EQ(first(withQuirk("simbusy=60000"), "AT+CPBS?"), "+CME ERROR: 14");
    CHECK_EQ(first(withQuirk("fragment=1"), "AT+CPBR=1"), "+CPBR: 1,\"+491711234567\",145,\"Anna\"|OK");
}

// All that a client could notice: what is said to one dialog that reads, writes and looks, in each set, and what is
// left. What falls silent is not waited for longer than the patience.
static std::string everything(const Plan& plan, std::chrono::milliseconds patience)
{
    Modem modem(plan);
    std::string said;
    Dialog dialog(modem.portPath(0));
    Dialog other(modem.portPath(1));
    for (const char* command : {"AT",
                                "ATE0",
                                "ATV1",
                                "AT+CMEE=1",
                                "AT+CPIN?",
                                "AT+CPBS?",
                                "AT+CPBS=?",
                                "AT+CPBS=\"SM\"",
                                "AT+CPBS?",
                                "AT+CPBR=?",
                                "AT+CPBR=1,20",
                                "AT+CPBR=1,301",
                                "AT+CPBR=258",
                                "AT+CPBR=3",
                                "AT+CSCS=?",
                                "AT+CSCS=\"GSM\"",
                                "AT+CPBR=1,7",
                                "AT+CSCS=\"UTF-8\"",
                                "AT+CPBR=1,7",
                                "AT+CSCS=\"UCS2\"",
                                "AT+CPBR=1,7",
                                "AT+CSCS?",
                                "AT+CSCS=\"00490052\"",
                                "AT+CSCS=\"IRA\"",
                                "AT+CPBW=3,\"1\",129,\"1234567890123456789\"",
                                "AT+CPBW=4,\"1/2\",129,\"A\"",
                                "AT+CPBW=,\"1\",129,\"Free\"",
                                "AT+CPBW=6,\"123456789012345678901\",129,\"Long\"",
                                "AT+CPBW=19",
                                "AT+CPBW=18,\"1\",129,\"B\"",
                                "AT+CRSM=176,12258,0,0,10",
                                "AT+CCID",
                                "AT+CSCS=\"UCS2\"",
                                "AT+CPBW=8,\"1\",129,\"53174EAC53174EAC53174EAC53174EAC53174EAC\"",
                                "AT+CPBS=\"ME\"",
                                "AT+CPBR=1",
                                "AT+CSCS=\"UCS2\"",
                                "AT+CPBW=5,\"1\",129,\"0418043304340438043A0418043304340438043A\""}) {
        said += dialog.raw(command, patience);
    }
    said += other.heard("AT+CPBS?;+CSCS?", patience);
    modem.pullCard();
    said += dialog.heard("AT+CPBS=\"SM\"", patience) + dialog.heard("AT+CPBR=1", patience);
    for (const modemsim::Entry& entry : modem.entries("SM"))
        said += std::to_string(entry.location) + entry.number + entry.name + '\n';
    return said;
}

// A switch that changes nothing would make every test of it a test of nothing.
TEST(everyQuirkCanBeNoticed)
{
    Plan plain = standardPlan();
    plain.ports.resize(2);
    plain.card.storages[0].total = 300;
    const std::chrono::milliseconds sure(20000);
    const std::chrono::milliseconds brief(60); // a switch that changes nothing is silent nowhere and needs no more
    const std::string without = everything(plain, sure);
    CHECK_EQ(everything(plain, sure), without);
    // These change when something is said, not what.
    const std::set<std::string> ofTime = {"fragment", "delay", "read_ms", "ready_urc", "simbusy"};
    for (const modemsim::QuirkInfo& quirk : modemsim::knownQuirks()) {
        Plan plan = plain;
        plan.quirks.set(std::string(quirk.name) + (*quirk.sample != 0 ? "=" : "") + quirk.sample);
        if (ofTime.count(quirk.name) == 0 && everything(plan, brief) == without)
            check::report(__FILE__, __LINE__, std::string("nothing changes with ") + quirk.name);
    }
}

TEST(selectedStorageCanBeSharedBetweenPorts)
{
    for (const bool shared : {false, true}) {
        Plan plan = standardPlan();
        plan.ports.resize(2);
        if (shared)
            plan.quirks.set("cpbs_shared");
        Modem modem(plan);
        Dialog one(modem.portPath(0));
        Dialog other(modem.portPath(1));
        other.say("AT+CPBS=\"ME\"");
        CHECK_EQ(one.heard("AT+CPBS?"), shared ? "+CPBS: \"ME\",2,50|OK" : "+CPBS: \"SM\",5,20|OK");
    }
}

TEST(aPinIsAskedForAndCounted)
{
    Plan plan = standardPlan();
    plan.card.pin = "1234";
    Modem modem(plan);
    Dialog dialog(modem.portPath(0));
    dialog.say("ATE0");
    dialog.say("AT+CMEE=1");
    CHECK_EQ(dialog.heard("AT+CPIN?"), "+CPIN: SIM PIN|OK");
    CHECK_EQ(dialog.heard("AT+CPBR=1"), "+CME ERROR: 11");
    CHECK_EQ(dialog.heard("AT+CPIN=\"0000\""), "+CME ERROR: 16");
    CHECK_EQ(modem.pinTries(), 2);
    CHECK_EQ(dialog.heard("AT+CSIM=10,\"0020000100\""), "+CSIM: 4,\"63C2\"|OK");
    CHECK_EQ(dialog.heard("AT+CPIN=\"1234\""), "OK");
    CHECK(!modem.locked());
    CHECK_EQ(modem.pinTries(), 3);
    CHECK_EQ(dialog.heard("AT+CPBR=1"), "+CPBR: 1,\"+491711234567\",145,\"Anna\"|OK");
}

TEST(aCardIsPulledAndAnotherPutIn)
{
    Modem modem;
    Dialog dialog(modem.portPath(0));
    dialog.say("ATE0;+CMEE=1");
    CHECK_EQ(dialog.heard("AT+CRSM=176,12258,0,0,10"), "+CRSM: 144,0,\"989420000021436587F9\"|OK");
    modem.pullCard();
    CHECK_EQ(dialog.heard("AT+CPIN?"), "+CME ERROR: 10");
    CHECK_EQ(dialog.heard("AT+CPBR=1"), "+CME ERROR: 10");
    CHECK_EQ(dialog.heard("AT+CPBS=\"ME\";+CPBR=3"), "+CPBR: 3,\"555\",129,\"Device entry\"|OK");
    modemsim::CardPlan other = modemsim::standardCard();
    other.iccid = "8949020000000000001";
    other.storages[0].entries.clear();
    modem.insertCard(other);
    CHECK_EQ(dialog.heard("AT+CRSM=176,12258,0,0,10"), "+CRSM: 144,0,\"989420000000000000F1\"|OK");
    CHECK_EQ(dialog.heard("AT+CPBS=\"SM\";+CPBR=1,20"), "OK");
}

TEST(aCardsRecordsAreReadAndWrittenInTheirOwnCoding)
{
    Modem modem;
    Dialog dialog(modem.portPath(0));
    dialog.say("ATE0");
    CHECK_EQ(dialog.heard("AT+CRSM=178,28474,2,4,32"),
             "+CRSM: 144,0,\"810A015A6FEB204D7E6C6C6572FFFFFFFFFF06813010325476FFFFFFFFFFFFFF\"|OK");
    CHECK_EQ(dialog.heard("AT+CRSM=220,28474,4,4,32,"
                          "\"80041800410042FFFFFFFFFFFFFFFFFFFFFF049171991200FFFFFFFFFFFFFFFF\""),
             "+CRSM: 144,0|OK");
}

TEST(anUnpluggedModemEndsTheLine)
{
    Modem modem;
    Dialog dialog(modem.portPath(0));
    dialog.say("ATE0");
    modem.unplug();
    CHECK(dialog.gone());
    CHECK(!Dialog(modem.terminal(0)).isOpen());
    modem.plug();
    Dialog again(modem.portPath(0));
    CHECK_EQ(again.heard("AT+CPBS?"), "+CPBS: \"SM\",5,20|OK");
}

TEST(faultsMeetTheChosenCommand)
{
    Modem modem;
    Dialog dialog(modem.portPath(0));
    dialog.say("ATE0;+CMEE=1");
    modem.failAt("AT+CPBR", 2, Fault::Error, 13);
    CHECK_EQ(dialog.heard("AT+CPBR=3"), "OK");
    CHECK_EQ(dialog.heard("AT+CPBR=3"), "+CME ERROR: 13");
    modem.failAt("AT+CPBR", 1, Fault::Error, 13, 2);
    for (const char* const answer : {"+CME ERROR: 13", "+CME ERROR: 13", "OK"})
        CHECK_EQ(dialog.heard("AT+CPBR=3"), answer);
    modem.failAt("AT+CPBW", 1, Fault::ErrorAfter, 13);
    CHECK_EQ(dialog.heard("AT+CPBW=3,\"1\",129,\"x\""), "+CME ERROR: 13");
    CHECK_EQ(modem.entries("SM").size(), 6U);
    CHECK_EQ(dialog.heard("AT+CPBW=3"), "OK");
    modem.failAt("AT+CPBW", 1, Fault::SilentAfter);
    CHECK_EQ(dialog.heard("AT+CPBW=1", std::chrono::milliseconds(50)), "");
    CHECK_EQ(modem.entries("SM").size(), 4U);
    modem.failAt("AT+CPBW", 1, Fault::SilentBefore);
    CHECK_EQ(dialog.heard("AT+CPBW=2", std::chrono::milliseconds(50)), "");
    CHECK_EQ(modem.entries("SM").size(), 4U);
    modem.failAt("AT+CPBR", 1, Fault::PullCard);
    CHECK_EQ(dialog.heard("AT+CPBR=2"), "+CME ERROR: 10");
    modem.insertCard();
    modem.failAt("AT+CPBR", 1, Fault::UnplugInside);
    CHECK_EQ(dialog.heard("AT+CPBR=2").find("OK"), std::string::npos);
    CHECK(dialog.gone());
    CHECK(!modem.plugged());
}

TEST(aDeadModemSaysNothingUntilItLives)
{
    Modem modem;
    Dialog dialog(modem.portPath(0));
    modem.setDead(true);
    CHECK_EQ(dialog.heard("AT", std::chrono::milliseconds(50)), "");
    modem.setDead(false);
    CHECK_EQ(dialog.heard("AT"), "OK");
}

TEST(theLineHasItsSpeed)
{
    Plan plan = standardPlan();
    plan.baud = 9600;
    Modem modem(plan);
    Dialog dialog(modem.portPath(0));
    dialog.say("ATE0");
    const auto begin = std::chrono::steady_clock::now();
    size_t bytes = 0;
    for (const std::string& line : dialog.say("AT+CPBR=1,20"))
        bytes += line.size() + 2;
    const auto took = std::chrono::steady_clock::now() - begin;
    CHECK(took >= std::chrono::milliseconds(bytes * 10000 / 9600 - 25));
}

TEST(exclusiveUseEndsWithTheUser)
{
    Modem modem;
    {
        Dialog dialog(modem.portPath(0));
        REQUIRE(dialog.isOpen());
        CHECK_EQ(::ioctl(dialog.descriptor(), TIOCEXCL), 0);
        CHECK_EQ(dialog.heard("AT"), "OK");
    }
    // The close is seen by the modem's thread.
    CHECK(modem.waitFor([&] { return Dialog(modem.portPath(0)).isOpen(); }));
}

TEST(linesThatNobodyAskedForReachWhoListens)
{
    Modem modem;
    modem.unsolicited("+CREG: 1"); // nobody there: lost
    Dialog dialog(modem.portPath(0));
    dialog.say("ATE0");
    modem.unsolicited("^RSSI:17");
    CHECK_EQ(dialog.readUntil("17\r\n"), "\r\n^RSSI:17\r\n");
    dialog.say("AT+CRC=1;+CLIP=1");
    modem.ring("+4930123");
    CHECK_EQ(dialog.readUntil("145\r\n"), "\r\n+CRING: VOICE\r\n\r\n+CLIP: \"+4930123\",145\r\n");
    CHECK_EQ(dialog.heard("ATA"), "OK");
    CHECK(modem.inCall());
    CHECK_EQ(dialog.heard("AT+CLCC"), "+CLCC: 1,1,0,0,0,\"+4930123\",145|OK");
    modem.hangUpByOther();
    CHECK_EQ(dialog.readUntil("CARRIER\r\n"), "\r\nNO CARRIER\r\n");
}

TEST(callsTakeTheirCourse)
{
    Modem modem;
    Dialog dialog(modem.portPath(0));
    dialog.say("ATE0");
    CHECK_EQ(dialog.heard("ATD+491711234567;"), "OK");
    CHECK(modem.waitFor([&] { return modem.inCall(); }));
    CHECK_EQ(dialog.heard("AT+CHUP"), "OK");
    modem.setCallOutcome("busy");
    CHECK_EQ(dialog.heard("ATD>SM1;"), "OK");
    CHECK_EQ(dialog.readUntil("BUSY\r\n"), "\r\nBUSY\r\n");
    CHECK_EQ(modem.dialled().back(), "+491711234567");
    modem.setCallOutcome("no_credit");
    CHECK_EQ(dialog.heard("ATD1;"), "NO CARRIER");
}

TEST(messagesAreSentAndReceived)
{
    Modem modem;
    Dialog dialog(modem.portPath(0));
    dialog.say("ATE0;+CNMI=2,1");
    dialog.write("AT+CMGS=36\r");
    CHECK_EQ(dialog.readUntil("> "), "\r\n> ");
    dialog.write("\n0001000C9194711132547600001A47B9DF530685EB7310B9DC064DD3ED3A3B4C7FCB419B32\x1A");
    CHECK_EQ(dialog.readUntil("OK\r\n"), "\r\n+CMGS: 1\r\n\r\nOK\r\n");
    REQUIRE(modem.sentMessages().size() == 1);
    CHECK_EQ(modem.sentMessages()[0].number, "+491711234567");
    CHECK_EQ(modem.sentMessages()[0].text, "Gr\u00FC\u00DFe aus dem Simulator \u20AC");
    modem.receiveMessage("+4930123", "Hello");
    CHECK_EQ(dialog.readUntil("1\r\n"), "\r\n+CMTI: \"SM\",1\r\n");
    CHECK_EQ(dialog.heard("AT+CMGL=4"), "+CMGL: 1,0,,22|00040791940321F300006211220100000005C8329BFD06|OK");
    CHECK_EQ(dialog.heard("AT+CMGD=1"), "OK");
    CHECK_EQ(modem.storedMessages(), 0);
}

TEST(aMessageOfSeveralPartsTellsWhichPartWasRefused)
{
    Modem modem;
    Dialog dialog(modem.portPath(0));
    dialog.say("ATE0;+CMEE=1");
    modem.setMessageError(38, 2);
    const std::string part = "0041000491214300000B050003070201CC3219CC01";
    for (const char number : {'1', '2'}) {
        std::string pdu = part;
        pdu[31] = number;
        dialog.write("AT+CMGS=20\r");
        dialog.readUntil("> ");
        dialog.write(pdu + "\x1A");
        const std::string end = dialog.readUntil(number == '1' ? "OK\r\n" : "38\r\n");
        CHECK(end.find(number == '1' ? "+CMGS: 1" : "+CMS ERROR: 38") != std::string::npos);
    }
    REQUIRE(modem.sentMessages().size() == 1);
    CHECK_EQ(modem.sentMessages()[0].parts, 2);
}

TEST(anUnknownQuirkIsRefused)
{
    bool refused = false;
    try {
        modemsim::Quirks quirks = {"no_such_quirk"};
    } catch (const std::invalid_argument&) {
        refused = true;
    }
    CHECK(refused);
}

CHECK_MAIN
