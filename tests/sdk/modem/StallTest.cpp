// A listing that falls silent: what it had to say still counts, and fewer entries than there are never do.

#include <fstream>
#include <iterator>

#include "modem/AtPhonebook.h"
#include "modem/PhonebookBackup.h"
#include "sdk/modem/ModemFixture.h"
#include "sdk/modem/ScriptedChannel.h"
#include "support/Check.h"

using namespace fixture;
using modemsim::Fault;
using modemsim::Modem;

namespace
{

// Without a count nothing but the listing itself tells whether it is whole; locations that are listed as empty make a
// listing that has said something look as if it had said all.
constexpr const char* manners[] = {"", "cpbs_short", "empty_lines"};

std::string rowsWithout(const Place& place)
{
    Modem modem(place.plan());
    Library library(place);
    return library.ready() ? library.rows(library.card) : std::string("not ready");
}

std::size_t filesIn(const std::string& folder)
{
    if (!std::filesystem::exists(folder))
        return 0;
    const std::filesystem::directory_iterator all(folder);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

// Three locations; a range falls silent, so that each is asked for by itself.
struct ScriptedBook {
    scripted::Channel channel;
    AtDialog dialog{channel};
    AtPhonebook book{dialog};
    PhonebookStorage storage;

    explicit ScriptedBook(int used)
    {
        storage.name = "SM";
        storage.first = 1;
        storage.last = storage.capacity = 3;
        storage.used = used;
        channel.answers["AT+CSCS?"] = {scripted::lines({"+CSCS: \"IRA\""})};
        channel.answers[question("1,3")] = {"<silence>"};
        for (const char* const location : {"1", "2", "3"})
            channel.answers[question(location)] = {scripted::lines({line(location)})};
    }

    static std::string question(const std::string& range) { return "AT+CPBS=\"SM\";+CPBR=" + range; }
    static std::string line(const std::string& location)
    {
        return "+CPBR: " + location + ",\"10" + location + "\",129,\"x\"";
    }
};

} // namespace

TEST(aLocationIsNotTakenAsReadForTheLateLineOfAnother)
{
    ScriptedBook scripted(-1);
    scripted.channel.answers[ScriptedBook::question("2")] = {"\r\n" + ScriptedBook::line("1") + "\r\n",
                                                             scripted::lines({ScriptedBook::line("2")})};
    const std::vector<PhonebookEntry> entries = scripted.book.readAll(scripted.storage, {});
    REQUIRE(entries.size() == 3);
    CHECK_EQ(entries[1].number, "102");
}

TEST(behindASilenceFewerEntriesThanCountedAreNoListing)
{
    ScriptedBook scripted(3);
    scripted.channel.answers[ScriptedBook::question("2")] = {scripted::ok()};
    CHECK_EQ(codeOf([&] { scripted.book.readAll(scripted.storage, {}); }), ORVA_E_BUSY);
}

TEST(aListingThatStallsOnceIsAskedForAgain)
{
    const Place place;
    const std::string wanted = rowsWithout(place);
    for (const char* const manner : manners) {
        for (int nth = 2; nth < 5; ++nth) {
            modemsim::Plan plan = place.plan();
            if (*manner != '\0')
                plan.quirks.set(manner);
            Modem modem(plan);
            modem.failAt("AT+CPBR", nth, Fault::StallInside);
            Library library(place);
            REQUIRE(library.ready());
            check::equal(library.rows(library.card), wanted, manner, __FILE__, __LINE__);
            CHECK_EQ(library.device.size(), 2);
        }
    }
}

TEST(aMemoryThatCannotBeReadToItsEndIsNotShown)
{
    const Place place;
    const std::string wanted = rowsWithout(place);
    for (const char* const manner : manners) {
        modemsim::Plan plan = place.plan();
        plan.quirks.set("stall_at=7");
        if (*manner != '\0')
            plan.quirks.set(manner);
        Modem modem(plan);
        ModemTimings timings = quickTimings();
        timings.patience.read = Milliseconds(150);
        Library library(place, timings);
        CHECK(
            eventually([&] { return library.hardware.state().problem().find("cannot be read") != std::string::npos; }));
        CHECK_EQ(library.card.capacity(), 0);
        CHECK_EQ(library.card.size(), 0);
        CHECK_EQ(codeOf([&] { library.card.backup(place.folder + "/copy"); }), ORVA_E_BUSY);
        CHECK(!std::filesystem::exists(place.folder + "/copy"));
        // Identifiers are those of before, so nothing incomplete has been kept either.
        modem.clearQuirk("stall_at");
        REQUIRE(library.ready());
        check::equal(library.rows(library.card), wanted, manner, __FILE__, __LINE__);
        CHECK_EQ(library.hardware.state().problem(), "");
    }
}

TEST(aCardThatStallsBeforeTheFirstWriteIsNeitherPutAsideNorWrittenTo)
{
    const Place place;
    Modem modem(place.plan());
    ModemTimings timings = quickTimings();
    timings.patience.read = Milliseconds(150);
    Library library(place, timings);
    REQUIRE(library.ready());
    const std::string before = told(modem);
    const std::string rows = library.rows(library.card);
    modem.setQuirk("stall_at=7");
    CHECK_EQ(codeOf([&] { library.card.add(values("new", "1")); }), ORVA_E_BUSY);
    CHECK_EQ(modem.commands("AT+CPBW"), 0);
    CHECK_EQ(filesIn(place.folder + "/backups"), 0u);
    CHECK_EQ(library.rows(library.card), rows);
    modem.clearQuirk("stall_at");
    CHECK(library.card.add(values("new", "1")) > 0);
    CHECK_EQ(filesIn(place.folder + "/backups"), 1u);
}

TEST(aRequestForCodesThatWasLostIsMadeAgain)
{
    const Place place;
    Modem modem(place.plan());
    modem.failAt("AT+CMEE=1", 1, Fault::SilentBefore);
    Library library(place);
    REQUIRE(library.ready());
    modem.pullCard();
    CHECK(eventually([&] { return library.hardware.status().card == 0; }));
    modem.insertCard();
    CHECK(library.ready());
}

CHECK_MAIN
