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
    Plugged f;
    change.make(f.library);
    return told(f.modem);
}

// Makes the change on a card that `fail` has made fail: its code, and whether the card and the library show it then.
void makeOnFailingCard(const Change& change, const std::function<void(Modem&)>& fail, long code, bool made)
{
    Plugged f;
    const std::string expected = made ? goalOf(change) : told(f.modem);
    fail(f.modem);
    check::equal(codeOf([&] { change.make(f.library); }), code, change.name, __FILE__, __LINE__);
    check::equal(told(f.modem), expected, change.name, __FILE__, __LINE__);
    check::equal(shown(f.library), expected, change.name, __FILE__, __LINE__);
}

} // namespace

TEST(aChangeThatCanBeReadBackOnlyAMomentLaterIsDone)
{
    for (const Change& change : changes) {
        for (const int times : {1, 3}) {
            const auto fail = [times](Modem& modem) {
                atTheFirstWrite(modem,
                                [&modem, times] { modem.failAt("AT+CPBR", 1, Fault::Error, cardFailure, times); });
            };
            makeOnFailingCard(change, fail, ORVA_OK, true);
        }
    }
}

TEST(aChangeThatTheCardCallsFailedAndHasMadeIsDone)
{
    const auto fail = [](Modem& modem) { modem.failAt("AT+CPBW", 1, Fault::ErrorAfter, cardFailure); };
    for (const Change& change : changes)
        makeOnFailingCard(change, fail, ORVA_OK, true);
}

TEST(aChangeThatTheCardCallsFailedAndHasNotMadeIsTheCardsFailure)
{
    const auto fail = [](Modem& modem) { modem.failAt("AT+CPBW", 1, Fault::Error, cardFailure); };
    for (const Change& change : changes)
        makeOnFailingCard(change, fail, ORVA_E_ABSENT, false);
}

TEST(aChangeThatIsLostWhileTheCardFailsIsNotDone)
{
    const auto fail = [](Modem& modem) {
        modem.setQuirk("write_lost");
        atTheFirstWrite(modem, [&modem] { modem.failAt("AT+CPBR", 1, Fault::Error, cardFailure, 2); });
    };
    for (const Change& change : changes)
        makeOnFailingCard(change, fail, ORVA_E_STORE, false);
}

TEST(whatIsStoredInsteadIsUndoneAlsoWhenTheCardFailsMeanwhile)
{
    Plugged f;
    const std::string before = told(f.modem);
    // Both looks fail at first: the one behind the write, and the one behind the undoing.
    int writes = 0;
    int reads = 0;
    f.modem.setObserver([&](size_t, const std::string& command) {
        if (command.compare(0, 8, "AT+CPBW=") == 0 && ++writes <= 2)
            f.modem.failAt("AT+CPBR", 1, Fault::Error, cardFailure);
        else if (writes == 1 && command.compare(0, 8, "AT+CPBR=") == 0 && ++reads == 2)
            f.modem.putEntry("SM", {3, "1", "ne", ""});
    });
    const long code = codeOf([&] { f.library.card.add(values("new", "1")); });
    f.modem.setObserver({});
    CHECK_EQ(code, ORVA_E_STORE);
    CHECK_EQ(writes, 2);
    CHECK_EQ(told(f.modem), before);
    CHECK_EQ(shown(f.library), before);
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
