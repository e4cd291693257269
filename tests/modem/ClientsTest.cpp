// Independent programs vouch for the simulated modem: what gammu and gnokii write is what the modem holds and what the
// other reads, and each reads a card whatever quirk it knows how to live with.

#include "support/Check.h"
#include "support/modem/Modem.h"
#include "support/modem/Program.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <future>
#include <set>

using modemsim::Entry;
using modemsim::Modem;
using modemsim::Outcome;
using modemsim::Plan;
using modemsim::runProgram;
using modemsim::standardPlan;

namespace
{

std::string homeFile(const std::string& name)
{
    const char* home = std::getenv("HOME");
    return std::string(home != nullptr ? home : "/tmp") + '/' + name;
}

std::string written(const std::string& name, const std::string& text)
{
    const std::string path = homeFile(name);
    std::ofstream(path) << text;
    return path;
}

Outcome gammu(const Modem& modem, std::vector<std::string> arguments)
{
    // Each modem has a file of its own: several runs go side by side.
    const std::string terminal = modem.portPath(0);
    const std::string config =
        written("gammurc" + terminal.substr(terminal.rfind('/') + 1),
                "[gammu]\ndevice = " + terminal + "\nconnection = at115200\nsynchronizetime = no\nuse_locking = no\n");
    arguments.insert(arguments.begin(), {"gammu", "-c", config});
    return runProgram(arguments);
}

Outcome gnokii(const Modem& modem, std::vector<std::string> arguments, const std::string& input = std::string())
{
    const std::string terminal = modem.portPath(0);
    const std::string config =
        written("gnokiirc" + terminal.substr(terminal.rfind('/') + 1),
                "[global]\nport = " + terminal +
                    "\nmodel = AT\nconnection = serial\nuse_locking = no\nserial_baudrate = 115200\n"
                    "[flags]\n[logging]\ndebug = off\nrlpdebug = off\nxdebug = off\n");
    arguments.insert(arguments.begin(), {"gnokii", "--config", config});
    return runProgram(arguments, modemsim::Environment(), input);
}

bool has(const Outcome& outcome, const std::string& text)
{
    if (outcome.output.find(text) != std::string::npos)
        return true;
    std::fprintf(stderr, "not in it: %s\nstatus %d:\n%s\n", text.c_str(), outcome.status, outcome.output.c_str());
    return false;
}

bool hasNot(const Outcome& outcome, const std::string& text)
{
    return outcome.output.find(text) == std::string::npos;
}

Entry at(const Modem& modem, const std::string& storage, int location)
{
    for (const Entry& entry : modem.entries(storage)) {
        if (entry.location == location)
            return entry;
    }
    return Entry();
}

// The five entries of the standard card, as both programs print them.
void checkStandardCard(const Outcome& outcome)
{
    for (const char* text : {"Anna", "+491711234567", "Zo\u00EB M\u00FCller", "0301234567", "\u0418\u0432\u0430\u043D",
                             "\u5317\u4EAC", "Last \"one\", ok"})
        CHECK(has(outcome, text));
}

} // namespace

TEST(gammuReadsWhatIsThere)
{
    Modem modem;
    Modem other;
    auto running = std::async(std::launch::async, [&other] { return gammu(other, {"getallmemory", "ME"}); });
    checkStandardCard(gammu(modem, {"getallmemory", "SM"}));
    const Outcome device = running.get();
    CHECK(has(device, "R\u00E9my"));
    CHECK(has(device, "Device entry"));
}

TEST(gnokiiReadsWhatIsThere)
{
    Modem modem;
    CHECK(has(gnokii(modem, {"--identify"}), "350000000000006"));
    checkStandardCard(gnokii(modem, {"--getphonebook", "SM", "1", "end"}));
    CHECK(has(gnokii(modem, {"--getphonebook", "ME", "1", "end"}), "Device entry"));
}

TEST(whatGnokiiWritesGammuReadsAndDeletes)
{
    Modem modem;
    CHECK(gnokii(modem, {"--writephonebook", "--find-free"}, "Written first;+49557;SM;0;0;\n").status == 0);
    CHECK_EQ(at(modem, "SM", 3).name, "Written first");
    CHECK_EQ(at(modem, "SM", 3).number, "+49557");
    CHECK(has(gammu(modem, {"getmemory", "SM", "3"}), "Written first"));
    CHECK(gammu(modem, {"deletememory", "SM", "3"}).status == 0);
    CHECK_EQ(at(modem, "SM", 3).name, "");
    CHECK(hasNot(gnokii(modem, {"--getphonebook", "SM", "3"}), "Written first"));
}

TEST(whatGammuWritesGnokiiReadsAndDeletes)
{
    Modem modem;
    const std::string card = written("new.vcf", "BEGIN:VCARD\r\nVERSION:2.1\r\n"
                                                "N;CHARSET=UTF-8:\u041D\u043E\u0432\u044B\u0439\r\n"
                                                "TEL:+49558\r\nEND:VCARD\r\n");
    CHECK(gammu(modem, {"addnew", card, "-yes", "-memory", "SM"}).status == 0);
    CHECK_EQ(at(modem, "SM", 3).name, "\u041D\u043E\u0432\u044B\u0439");
    CHECK_EQ(at(modem, "SM", 3).number, "+49558");
    const Outcome read = gnokii(modem, {"--getphonebook", "SM", "3"});
    CHECK(has(read, "\u041D\u043E\u0432\u044B\u0439"));
    CHECK(has(read, "+49558"));
    CHECK(gnokii(modem, {"--deletephonebook", "SM", "3"}).status == 0);
    CHECK_EQ(at(modem, "SM", 3).name, "");
    CHECK(hasNot(gammu(modem, {"getmemory", "SM", "3"}), "+49558"));
}

TEST(whatGnokiiWritesOverAnEntryReplacesIt)
{
    Modem modem;
    CHECK(gnokii(modem, {"--writephonebook", "-o"}, "Instead;+49559;SM;2;0;\n").status == 0);
    CHECK_EQ(at(modem, "SM", 2).name, "Instead");
    CHECK_EQ(modem.entries("SM").size(), 5U);
}

TEST(messagesAndCallsOfBothReachTheNetwork)
{
    Modem modem;
    CHECK(gammu(modem, {"sendsms", "TEXT", "+491711", "-text", "From gammu"}).status == 0);
    CHECK(gnokii(modem, {"--sendsms", "+491712"}, "From gnokii").status == 0);
    const std::vector<modemsim::SentMessage> sent = modem.sentMessages();
    REQUIRE(sent.size() == 2);
    CHECK_EQ(sent[0].number, "+491711");
    CHECK_EQ(sent[0].text, "From gammu");
    CHECK_EQ(sent[1].number, "+491712");
    CHECK_EQ(sent[1].text, "From gnokii");
    modem.receiveMessage("+4930123", "Received");
    CHECK(has(gnokii(modem, {"--getsms", "SM", "1"}), "Received"));
    CHECK(has(gammu(modem, {"getallsms"}), "Received"));
    gnokii(modem, {"--dialvoice", "+491713"});
    REQUIRE(!modem.dialled().empty());
    CHECK_EQ(modem.dialled().back(), "+491713");
}

// The card as a client reads it behind a quirk; both wait more than they work, so some go side by side.
using Reader = Outcome (*)(const Modem&);

static void checkBehind(const std::vector<std::string>& quirks, Reader read)
{
    constexpr size_t together = 8;
    for (size_t begin = 0; begin < quirks.size(); begin += together) {
        const size_t end = std::min(begin + together, quirks.size());
        std::vector<std::future<Outcome>> runs;
        for (size_t i = begin; i < end; ++i) {
            runs.push_back(std::async(std::launch::async, [&quirks, i, read] {
                Plan plan = standardPlan();
                plan.quirks.set(quirks[i]);
                const Modem modem(plan);
                return read(modem);
            }));
        }
        for (size_t i = begin; i < end; ++i) {
            const int before = check::failures();
            checkStandardCard(runs[i - begin].get());
            if (check::failures() != before)
                std::fprintf(stderr, "behind %s\n", quirks[i].c_str());
        }
    }
}

// Those that leave the same entries to be read, in the long run all but those that the client is known to stumble over.
static std::vector<std::string> quirksFor(const std::vector<std::string>& few, const std::set<std::string>& tooMuch)
{
    if (std::getenv("LINKHAND_FULL") == nullptr)
        return few;
    std::vector<std::string> all;
    for (const modemsim::QuirkInfo& info : modemsim::knownQuirks()) {
        if (info.kind != modemsim::QuirkKind::Different && tooMuch.count(info.name) == 0)
            all.push_back(info.name);
    }
    return all;
}

TEST(gammuReadsTheCardBehindQuirks)
{
    checkBehind(quirksFor({"empty_error", "no_space", "fragment"}, {"escape_quotes", "raw_alpha", "silent"}),
                [](const Modem& modem) {
                    return gammu(modem, {"getallmemory", "SM"});
                });
}

TEST(gnokiiReadsTheCardBehindQuirks)
{
    checkBehind(
        quirksFor({"first_index", "fragment", "empty_lines", "twice", "comma_space", "unquoted_hex", "max_range"},
                  {"simbusy", "strip_plus", "ucs2_ignored", "ucs2_number", "utf8_anyway"}),
        [](const Modem& modem) {
            return gnokii(modem, {"--getphonebook", "SM", "1", "20"});
        });
}

CHECK_MAIN
