// The phonebook of a simulated modem over a real terminal: the same entries whatever its manners, and what is written
// is there, or nothing has changed.

#include <map>
#include <memory>

#include "base/Text.h"
#include "modem/AtPhonebook.h"
#include "modem/Tty.h"
#include "support/Check.h"
#include "support/modem/Modem.h"

using namespace orva;

namespace
{

Patience shortPatience()
{
    Patience patience;
    patience.plain = patience.pin = patience.read = patience.write = Milliseconds(2500);
    patience.life = Milliseconds(4000);
    patience.quiet = Milliseconds(50);
    patience.busy = Milliseconds(5000);
    return patience;
}

struct Line {
    explicit Line(const modemsim::Plan& plan = modemsim::standardPlan(), std::size_t port = 0)
        : modem(std::make_unique<modemsim::Modem>(plan)),
          tty(modem->portPath(port), -1),
          dialog(tty, shortPatience()),
          book(dialog)
    {
    }

    std::unique_ptr<modemsim::Modem> modem;
    Tty tty;
    AtDialog dialog;
    AtPhonebook book;
};

modemsim::Plan planWith(const std::string& quirk)
{
    modemsim::Plan plan = modemsim::standardPlan();
    if (!quirk.empty())
        plan.quirks.set(quirk);
    return plan;
}

PhonebookEntry entry(int location, const char* name, const char* number)
{
    PhonebookEntry made;
    made.location = location;
    made.alpha = fromUtf8(name);
    made.number = number;
    return made;
}

// A line for each entry; locations counted from the storage's first, which is the modem's own business.
std::string told(const std::vector<PhonebookEntry>& entries, int first)
{
    std::string text;
    for (const PhonebookEntry& one : entries)
        text += std::to_string(one.location - first + 1) + " " + one.number + " " + toUtf8(one.alpha) + "\n";
    return text;
}

std::string told(const std::vector<modemsim::Entry>& entries)
{
    std::string text;
    for (const modemsim::Entry& one : entries)
        text += std::to_string(one.location) + " " + one.number + " " + one.name + "\n";
    return text;
}

std::string readWith(const std::string& quirk)
{
    Line line(planWith(quirk));
    if (!line.book.start())
        return "nobody answers";
    const PhonebookStorage storage = line.book.open("SM");
    const std::vector<PhonebookEntry> entries = line.book.readAll(storage);
    line.book.finish();
    return told(entries, storage.first);
}

long codeOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return failure.code();
    }
    return ORVA_OK;
}

} // namespace

TEST(theSameEntriesAreReadWhateverTheQuirk)
{
    const std::string wanted = told(modemsim::Modem(modemsim::standardPlan()).entries("SM"));
    CHECK_EQ(readWith(""), wanted);
    int tried = 0;
    for (const modemsim::QuirkInfo& quirk : modemsim::knownQuirks()) {
        if (quirk.kind == modemsim::QuirkKind::Different)
            continue;
        ++tried;
        const std::string setting = *quirk.sample == '\0' ? quirk.name : std::string(quirk.name) + "=" + quirk.sample;
        if (!check::equal(readWith(setting), wanted, setting.c_str(), __FILE__, __LINE__))
            std::printf("with %s\n", setting.c_str());
    }
    CHECK(tried > 40);
}

TEST(theSameEntriesAreReadWhateverTheValueOfAQuirk)
{
    const std::string wanted = told(modemsim::Modem(modemsim::standardPlan()).entries("SM"));
    for (const char* const setting :
         {"cpbr_test=sharp", "cpbr_test=nolen", "cpbr_test=short", "cpbr_test=extra", "cpbr_test=full",
          "cpbr_test=tight", "cpbr_test=used",  "cpbr_test=error", "first_index=0",   "empty_error=100",
          "empty_error=23",  "empty_error=3",   "empty_error=21",  "max_range=1",     "first_hits=1",
          "tail=commas",     "tail=date",       "tail=before",     "charsets=UTF-8",  "charsets=UTF-8/GSM",
          "silent=AT+CSCS?", "lost_ok=AT+CPBR", "no_cmee"})
        check::equal(readWith(setting), wanted, setting, __FILE__, __LINE__);
}

TEST(rangesOfThousandAreReadInSteps)
{
    modemsim::Plan plan = modemsim::standardPlan();
    plan.card.storages[0].total = 300;
    plan.card.storages[0].entries.push_back({290, "+1", "far", ""});
    for (const char* const quirk : {"", "max_index=255", "max_range=10"}) {
        plan.quirks = modemsim::Quirks();
        if (*quirk != '\0')
            plan.quirks.set(quirk);
        Line line(plan);
        REQUIRE(line.book.start());
        const PhonebookStorage storage = line.book.open("SM");
        CHECK_EQ(storage.capacity, 300);
        const bool reachable = std::string(quirk) != "max_index=255";
        CHECK_EQ(line.book.readAll(storage).size(), reachable ? 6u : 5u);
        if (*quirk == '\0')
            CHECK(line.modem->commands("AT+CPBR") < 20);
    }
}

TEST(theModemsOwnCharacterSetIsPutBack)
{
    Line line;
    REQUIRE(line.book.start());
    line.book.readAll(line.book.open("SM"));
    line.book.finish();
    const std::vector<std::string> said = line.modem->transcript();
    CHECK(said[said.size() - 2].find("AT+CSCS=\"") != std::string::npos);
    CHECK(said[said.size() - 2].find("UCS2") == std::string::npos);
    CHECK_EQ(said.back(), "0< OK");
}

TEST(whatIsWrittenIsThereWhateverTheQuirk)
{
    for (const char* const quirk :
         {"", "no_index_write", "written_index", "ucs2_number", "ucs2_memory", "cpbs_shared", "first_index=101",
          "urc_inside", "echo_stays", "silent=AT+CPBS?", "lost_ok=AT+CPBW", "empty_error=22", "delete_empty_error=22",
          "tail=zero", "text_units", "charsets=UTF-8", "fragment=1"}) {
        Line line(planWith(quirk));
        REQUIRE(line.book.start());
        const PhonebookStorage storage = line.book.open("SM");
        line.book.readAll(storage);
        const PhonebookEntry added = entry(storage.first + 2, "Gr\u00FC\u00DFe \u0418", "+4917999");
        check::equal(codeOf([&] { line.book.write(storage, added, std::nullopt); }), long{ORVA_OK}, quirk, __FILE__,
                     __LINE__);
        const std::vector<modemsim::Entry> all = line.modem->entries("SM");
        REQUIRE(all.size() == 6);
        CHECK_EQ(all[2].location, 3);
        check::equal(all[2].name, std::string("Gr\u00FC\u00DFe \u0418"), quirk, __FILE__, __LINE__);
        check::equal(all[2].number, std::string("+4917999"), quirk, __FILE__, __LINE__);
        const PhonebookEntry changed = entry(storage.first + 2, "Otto", "123");
        line.book.write(storage, changed, added);
        CHECK_EQ(line.modem->entries("SM")[2].name, "Otto");
        line.book.erase(storage, storage.first + 2);
        CHECK_EQ(line.modem->entries("SM").size(), 5u);
        CHECK_EQ(codeOf([&] { line.book.erase(storage, storage.first + 2); }), ORVA_OK);
    }
}

TEST(whatTheModemStoresInAnotherWayIsUndoneAndReported)
{
    const auto failing = [](const char* quirk, const PhonebookEntry& asked,
                            const std::optional<PhonebookEntry>& before) {
        Line line(planWith(quirk));
        REQUIRE(line.book.start());
        const PhonebookStorage storage = line.book.open("SM");
        const std::string wanted = told(line.modem->entries("SM"));
        const long code = codeOf([&] { line.book.write(storage, asked, before); });
        CHECK_EQ(told(line.modem->entries("SM")), wanted);
        return code;
    };
    const PhonebookEntry anna = entry(1, "Anna", "+491711234567");
    const char* const lengthy = "A name of far more than eighteen octets";
    CHECK_EQ(failing("truncate", entry(3, lengthy, "1"), std::nullopt), ORVA_E_TOO_LONG);
    CHECK_EQ(failing("truncate", entry(1, lengthy, "1"), anna), ORVA_E_TOO_LONG);
    CHECK_EQ(failing("", entry(3, lengthy, "1"), std::nullopt), ORVA_E_TOO_LONG);
    CHECK_EQ(failing("write_lost", entry(3, "x", "1"), std::nullopt), ORVA_E_STORE);
    CHECK_EQ(failing("charsets=GSM/IRA", entry(3, "\u0418", "1"), std::nullopt), ORVA_E_ARGUMENT);
    CHECK_EQ(failing("", entry(21, "x", "1"), std::nullopt), ORVA_E_NOT_FOUND);
}

TEST(anAnswerThatGetsLostDoesNotDecideWhatWasWritten)
{
    Line line;
    REQUIRE(line.book.start());
    const PhonebookStorage storage = line.book.open("SM");
    line.modem->failAt("AT+CPBW", 1, modemsim::Fault::SilentAfter);
    CHECK_EQ(codeOf([&] { line.book.write(storage, entry(3, "kept", "1"), std::nullopt); }), ORVA_OK);
    CHECK_EQ(line.modem->entries("SM").size(), 6u);
    line.modem->failAt("AT+CPBW", 1, modemsim::Fault::SilentBefore);
    CHECK_EQ(codeOf([&] { line.book.write(storage, entry(4, "lost", "1"), std::nullopt); }), ORVA_E_STORE);
    CHECK_EQ(line.modem->entries("SM").size(), 6u);
}

TEST(furtherFieldsSurviveAChangeOfTheName)
{
    modemsim::Plan plan = planWith("cpbr_test=full");
    plan.card.storages[0].entries[0].hiddenFields = ",0,\"Team\"";
    Line line(plan);
    REQUIRE(line.book.start());
    const PhonebookStorage storage = line.book.open("SM");
    const std::optional<PhonebookEntry> before = line.book.read(storage, storage.first);
    REQUIRE(before.has_value());
    CHECK_EQ(before->tail, ",0,\"Team\"");
    PhonebookEntry changed = *before;
    changed.alpha = u"Berta";
    CHECK(storage.furtherFields);
    line.book.write(storage, changed, before);
    const std::vector<std::string> said = line.modem->transcript();
    bool kept = false;
    for (const std::string& one : said)
        kept = kept || (one.find("+CPBW=") != std::string::npos && one.find("\"Team\"") != std::string::npos);
    CHECK(kept);
}

TEST(eachCommandOfEachFlowMayBeCutOffByAnUnplugging)
{
    for (const modemsim::Fault fault :
         {modemsim::Fault::UnplugBefore, modemsim::Fault::UnplugAfter, modemsim::Fault::UnplugInside}) {
        int cut = 0;
        for (int nth = 1;; ++nth) {
            Line line;
            line.modem->failAt("AT", nth, fault);
            const long code = codeOf([&] {
                line.book.start();
                const PhonebookStorage storage = line.book.open("SM");
                line.book.readAll(storage);
                line.book.write(storage, entry(3, "new", "1"), std::nullopt);
                line.book.erase(storage, 3);
                line.book.finish();
            });
            if (code == ORVA_OK)
                break;
            ++cut;
            CHECK_EQ(code, ORVA_E_ABSENT);
            REQUIRE(nth < 100);
            const std::vector<modemsim::Entry> all = line.modem->entries("SM");
            CHECK(all.size() == 5 || (all.size() == 6 && all[2].name == "new"));
        }
        CHECK(cut > 15);
    }
}

TEST(theStateOfTheCardIsTold)
{
    modemsim::Plan plan = modemsim::standardPlan();
    plan.card.pin = "1234";
    Line line(plan);
    REQUIRE(line.book.start());
    CHECK_EQ(line.book.cardState(), CardState::PinNeeded);
    CHECK_EQ(line.book.triesLeft().pin, 3);
    CHECK_EQ(codeOf([&] { line.book.open("SM"); }), ORVA_E_ABSENT);
    line.modem->pullCard();
    CHECK_EQ(line.book.cardState(), CardState::Absent);
    line.modem->insertCard(modemsim::standardCard());
    CHECK_EQ(line.book.cardState(), CardState::Ready);
    CHECK_EQ(line.book.cardIdentity(), "8949020000123456789");
    CHECK_EQ(line.book.modemIdentity(), "350000000000006");
    CHECK_EQ(line.book.product().size(), 3u);
    line.modem->setDead(true);
    CHECK_EQ(line.book.cardState(), CardState::Silent);
}

TEST(aBusyCardIsWaitedForAndADeadModemIsNot)
{
    Line line;
    REQUIRE(line.book.start());
    line.modem->setBusy(Milliseconds(800));
    const PhonebookStorage storage = line.book.open("SM");
    CHECK_EQ(line.book.readAll(storage).size(), 5u);
    line.modem->setDead(true);
    CHECK_EQ(codeOf([&] { line.book.readAll(storage); }), ORVA_E_ABSENT);
}

TEST(aPortIsForOneProgramAndAMissingOneIsAbsent)
{
    Line line;
    CHECK_EQ(codeOf([&] { const Tty second(line.modem->portPath(0), -1); }), ORVA_E_BUSY);
    CHECK_EQ(codeOf([] { const Tty none("/dev/no-such-modem", -1); }), ORVA_E_ABSENT);
    CHECK_EQ(codeOf([] { const Tty none("/dev/null", -1); }), ORVA_E_ABSENT);
}

CHECK_MAIN
