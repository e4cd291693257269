// A card that fails behind a write, so that nobody can read back at once: what it holds decides in the end, and what is
// told as failed has changed nothing.

#include <atomic>

#include "sdk/modem/ModemFixture.h"
#include "support/Check.h"

using namespace fixture;
using modemsim::Fault;
using modemsim::Modem;

namespace
{

constexpr int cardFailure = 13;

// "location name number" of each entry that the library shows.
std::string shown(Library& library)
{
    std::map<int, std::string> lines;
    library.hardware.state().with(ORVA_MEMORY_CARD, [&lines](ModemBook& book) {
        for (const auto& [id, entry] : book.entries.entries())
            lines[entry.location] = std::to_string(entry.location) + " " + toUtf8(entry.alpha) + " " + entry.number;
    });
    std::string text;
    for (const auto& [location, line] : lines)
        text += line + "\n";
    return text;
}

// Calls `action` on the modem's thread at the first write of an entry.
void atTheFirstWrite(Modem& modem, const std::function<void()>& action)
{
    const auto done = std::make_shared<bool>(false);
    modem.setObserver([action, done](size_t, const std::string& command) {
        if (command.compare(0, 8, "AT+CPBW=") == 0 && !std::exchange(*done, true))
            action();
    });
}

struct Change {
    const char* name;
    std::function<void(Library&)> make;
};

const Change changes[] = {
    {"add", [](Library& library) { library.card.add(values("new", "1")); }},
    {"update", [](Library& library) { library.card.update(idOf(library, "Anna"), values("Berta", "2")); }},
    {"erase", [](Library& library) { library.card.erase(idOf(library, "Anna")); }},
};

// What the card holds when nothing is in the way of the change.
std::string goalOf(const Change& change)
{
    const Place place;
    Modem modem(place.plan());
    Library library(place);
    if (!library.ready())
        throw std::runtime_error("the modem does not come up");
    change.make(library);
    return told(modem);
}

} // namespace

TEST(aChangeThatCanBeReadBackOnlyAMomentLaterIsDone)
{
    for (const Change& change : changes) {
        for (const int times : {1, 3}) {
            const Place place;
            Modem modem(place.plan());
            Library library(place);
            REQUIRE(library.ready());
            atTheFirstWrite(modem, [&] { modem.failAt("AT+CPBR", 1, Fault::Error, cardFailure, times); });
            check::equal(codeOf([&] { change.make(library); }), static_cast<long>(ORVA_OK), change.name, __FILE__,
                         __LINE__);
            check::equal(told(modem), goalOf(change), change.name, __FILE__, __LINE__);
            check::equal(shown(library), told(modem), change.name, __FILE__, __LINE__);
        }
    }
}

TEST(aChangeThatTheCardCallsFailedAndHasMadeIsDone)
{
    for (const Change& change : changes) {
        const Place place;
        Modem modem(place.plan());
        Library library(place);
        REQUIRE(library.ready());
        modem.failAt("AT+CPBW", 1, Fault::ErrorAfter, cardFailure);
        check::equal(codeOf([&] { change.make(library); }), static_cast<long>(ORVA_OK), change.name, __FILE__,
                     __LINE__);
        check::equal(told(modem), goalOf(change), change.name, __FILE__, __LINE__);
        check::equal(shown(library), told(modem), change.name, __FILE__, __LINE__);
    }
}

TEST(aChangeThatTheCardCallsFailedAndHasNotMadeIsTheCardsFailure)
{
    for (const Change& change : changes) {
        const Place place;
        Modem modem(place.plan());
        Library library(place);
        REQUIRE(library.ready());
        const std::string before = told(modem);
        modem.failAt("AT+CPBW", 1, Fault::Error, cardFailure);
        check::equal(codeOf([&] { change.make(library); }), static_cast<long>(ORVA_E_ABSENT), change.name, __FILE__,
                     __LINE__);
        check::equal(told(modem), before, change.name, __FILE__, __LINE__);
        check::equal(shown(library), before, change.name, __FILE__, __LINE__);
    }
}

TEST(aChangeThatIsLostWhileTheCardFailsIsNotDone)
{
    for (const Change& change : changes) {
        const Place place;
        Modem modem(place.plan());
        Library library(place);
        REQUIRE(library.ready());
        const std::string before = told(modem);
        modem.setQuirk("write_lost");
        atTheFirstWrite(modem, [&] { modem.failAt("AT+CPBR", 1, Fault::Error, cardFailure, 2); });
        check::equal(codeOf([&] { change.make(library); }), static_cast<long>(ORVA_E_STORE), change.name, __FILE__,
                     __LINE__);
        check::equal(told(modem), before, change.name, __FILE__, __LINE__);
        check::equal(shown(library), before, change.name, __FILE__, __LINE__);
    }
}

TEST(whatIsStoredInsteadIsUndoneAlsoWhenTheCardFailsMeanwhile)
{
    const Place place;
    Modem modem(place.plan());
    Library library(place);
    REQUIRE(library.ready());
    const std::string before = told(modem);
    // Both looks fail at first: the one behind the write, and the one behind the undoing.
    int writes = 0;
    int reads = 0;
    modem.setObserver([&](size_t, const std::string& command) {
        if (command.compare(0, 8, "AT+CPBW=") == 0 && ++writes <= 2)
            modem.failAt("AT+CPBR", 1, Fault::Error, cardFailure);
        else if (writes == 1 && command.compare(0, 8, "AT+CPBR=") == 0 && ++reads == 2)
            modem.putEntry("SM", {3, "1", "ne", ""});
    });
    const long code = codeOf([&] { library.card.add(values("new", "1")); });
    modem.setObserver({});
    CHECK_EQ(code, ORVA_E_STORE);
    CHECK_EQ(writes, 2);
    CHECK_EQ(told(modem), before);
    CHECK_EQ(shown(library), before);
}

TEST(aCardThatFailsForGoodIsAbsentAndShowsWhatItHoldsWhenItIsBack)
{
    for (const Change& change : changes) {
        const Place place;
        Modem modem(place.plan());
        ModemTimings timings = quickTimings();
        timings.question = Milliseconds(60000);
        timings.decide = Milliseconds(300);
        Library library(place, timings);
        REQUIRE(library.ready());
        atTheFirstWrite(modem, [&] { modem.failAt("AT+CPBR", 1, Fault::Error, cardFailure, 1000000); });
        check::equal(codeOf([&] { change.make(library); }), static_cast<long>(ORVA_E_ABSENT), change.name, __FILE__,
                     __LINE__);
        // Neither pulled nor plugged: it answers again, and that is all.
        modem.failAt("AT+CPBR", 1000000, Fault::Error);
        CHECK(eventually([&] { return shown(library) == told(modem); }));
        check::equal(told(modem), goalOf(change), change.name, __FILE__, __LINE__);
    }
}

TEST(aCardPutInMeanwhileIsLeftAlone)
{
    for (const Change& change : changes) {
        const Place place;
        Modem modem(place.plan());
        modemsim::CardPlan other = modemsim::standardCard();
        other.iccid = "8949020000000000001";
        for (modemsim::Entry& entry : other.storages[0].entries)
            entry.name = "other";
        modem.setQuirk("card_out_error=13");
        ModemTimings timings = quickTimings();
        timings.question = Milliseconds(60000);
        Library library(place, timings);
        REQUIRE(library.ready());
        std::string before;
        int writes = 0;
        bool out = false;
        modem.setObserver([&](size_t, const std::string& command) {
            if (command.compare(0, 8, "AT+CPBW=") == 0)
                ++writes;
            else if (writes > 0 && !out && command.compare(0, 8, "AT+CPBR=") == 0) {
                modem.pullCard();
                out = true;
            } else if (out && before.empty() && command.compare(0, 7, "AT+CPIN") == 0) {
                modem.insertCard(other);
                before = told(modem);
            }
        });
        check::equal(codeOf([&] { change.make(library); }), static_cast<long>(ORVA_E_ABSENT), change.name, __FILE__,
                     __LINE__);
        modem.setObserver({}); // which runs on the modem's thread
        CHECK(!before.empty());
        CHECK_EQ(writes, 1);
        CHECK_EQ(told(modem), before);
        CHECK(eventually([&] { return shown(library) == before; }));
    }
}

CHECK_MAIN
