// A modem that keeps silent at one question, or takes a PIN nowhere: nobody is told what nobody has said.

#include "sdk/modem/ModemFixture.h"
#include "support/Check.h"

using namespace fixture;
using modemsim::Fault;
using modemsim::Modem;

namespace
{

constexpr int cardFailure = 13;

// Timings in which no silence is overcome by the next regular look.
ModemTimings rareLooks()
{
    ModemTimings timings = quickTimings();
    timings.question = Milliseconds(600000);
    return timings;
}

struct PinGiven {
    long code = ORVA_OK;
    int unlocks = 0;
    int tries = 0;
};

PinGiven givePin(const std::string& command, Fault fault, int error, const char* quirk = "")
{
    const Place place;
    modemsim::Plan plan = place.plan();
    plan.card.pin = "1234";
    if (*quirk != '\0')
        plan.quirks.set(quirk);
    Modem modem(plan);
    Library library(place, rareLooks());
    PinGiven given;
    library.hardware.status();
    if (!eventually([&] { return library.hardware.status().attached != 0; }))
        throw std::runtime_error("the modem does not come up");
    modem.failAt(command, 1, fault, error);
    given.code = codeOf([&] { library.hardware.perform([](ModemSession& session) { session.unlock("1234"); }); });
    given.unlocks = modem.unlocks();
    given.tries = modem.pinTries();
    return given;
}

} // namespace

TEST(aPinThatTheCardHasNotTakenIsNotToldAsGiven)
{
    struct {
        Fault fault;
        int error;
        const char* quirk;
        long code;
    } const cases[] = {{Fault::PullCard, 0, "", ORVA_E_ABSENT},
                       {Fault::PullCard, 0, "no_cmee", ORVA_E_ABSENT},
                       {Fault::Error, cardFailure, "", ORVA_E_ABSENT},
                       {Fault::Error, 10, "", ORVA_E_ABSENT},
                       {Fault::Error, 14, "", ORVA_E_BUSY},
                       {Fault::SilentBefore, 0, "", ORVA_E_STORE}};
    for (const auto& one : cases) {
        const PinGiven given = givePin("AT+CPIN=\"", one.fault, one.error, one.quirk);
        const std::string where = std::to_string(static_cast<int>(one.fault)) + " " + one.quirk;
        check::equal(given.code, one.code, where.c_str(), __FILE__, __LINE__);
        CHECK_EQ(given.unlocks, 0);
        CHECK_EQ(given.tries, 3);
    }
}

TEST(aPinThatTheCardHasTakenIsGivenWhateverTheModemSaysOfIt)
{
    for (const Fault fault : {Fault::SilentAfter, Fault::ErrorAfter, Fault::StallInside}) {
        const PinGiven given = givePin("AT+CPIN=\"", fault, cardFailure);
        CHECK_EQ(given.code, ORVA_OK);
        CHECK_EQ(given.unlocks, 1);
    }
    // The card is busy behind it, and says nothing of its state for a moment.
    const PinGiven given = givePin("AT+CPIN=\"", Fault::SilentAfter, 0, "simbusy=1500");
    CHECK_EQ(given.code, ORVA_OK);
    CHECK_EQ(given.unlocks, 1);
}

TEST(aCardWhoseNumberIsNotToldAtOnceKeepsItsIdentifiers)
{
    for (const int silences : {1, 2}) {
        const Place place;
        Modem modem(place.plan());
        modem.failAt("AT+CRSM=176", 1, Fault::SilentBefore, 0, silences);
        Library library(place, rareLooks());
        REQUIRE(library.ready());
        const int anna = idOf(library, "Anna");
        REQUIRE(anna != 0);
        CHECK_EQ(codeOf([&] { library.card.erase(anna); }), ORVA_OK);
    }
}

TEST(aCardThatIsBusyWhenAskedForItsNumberKeepsItsIdentifiers)
{
    const Place place;
    Modem modem(place.plan());
    modem.failAt("AT+CRSM=176", 1, Fault::Error, 14, 2);
    Library library(place, rareLooks());
    REQUIRE(library.ready());
    CHECK_EQ(codeOf([&] { library.card.erase(idOf(library, "Anna")); }), ORVA_OK);
}

TEST(aModemThatTellsItsNumberLateKeepsItsIdentifiers)
{
    const Place place;
    Modem modem(place.plan());
    modem.failAt("AT+CGSN", 1, Fault::SilentBefore, 0, 2);
    Library library(place, rareLooks());
    REQUIRE(library.ready());
    CHECK_EQ(library.device.size(), 2);
    CHECK_EQ(library.hardware.state().with(ORVA_MEMORY_DEVICE, [](ModemBook& book) { return book.key; }),
             "ME-350000000000006");
}

TEST(aCardOfWhichNothingIsToldAtTheStartIsAskedForAgain)
{
    for (const int silences : {1, 4}) {
        const Place place;
        Modem modem(place.plan());
        modem.failAt("AT+CPIN?", 1, Fault::SilentBefore, 0, silences);
        Library library(place, rareLooks());
        REQUIRE(library.ready());
    }
}

TEST(aStorageThatIsChosenInSilenceIsThereLater)
{
    for (const char* const storage : {"AT+CPBS=\"SM\"", "AT+CPBS=\"ME\""}) {
        const Place place;
        Modem modem(place.plan());
        modem.failAt(storage, 1, Fault::SilentBefore, 0, 3);
        Library library(place, rareLooks());
        REQUIRE(library.ready());
        CHECK_EQ(library.card.size(), 5);
        CHECK_EQ(library.device.size(), 2);
    }
}

TEST(anEntryOfAMemoryThatIsNotReadYetIsNotMissing)
{
    const Place place;
    Modem modem(place.plan());
    modem.failAt("AT+CPBR=?", 1, Fault::Error, cardFailure, 1000000);
    Library library(place);
    library.hardware.status();
    REQUIRE(eventually([&] { return library.hardware.status().attached != 0; }));
    CHECK_EQ(codeOf([&] { library.card.erase(1); }), ORVA_E_BUSY);
    CHECK_EQ(codeOf([&] { library.card.update(1, values("x", "1")); }), ORVA_E_BUSY);
}

TEST(nothingIsWrittenWhileTheModemKeepsSilentAboutItsCard)
{
    const Place place;
    Modem modem(place.plan());
    ModemTimings timings = rareLooks();
    timings.fresh = Milliseconds(0);
    Library library(place, timings);
    REQUIRE(library.ready());
    const std::string before = told(modem);
    modem.failAt("AT+CPIN?", 1, Fault::SilentBefore);
    CHECK_EQ(codeOf([&] { library.card.erase(idOf(library, "Anna")); }), ORVA_E_BUSY);
    modem.failAt("AT+CPBS?", 1, Fault::SilentBefore, 0, 2);
    CHECK_EQ(codeOf([&] { library.card.erase(idOf(library, "Anna")); }), ORVA_E_BUSY);
    CHECK_EQ(told(modem), before);
    CHECK_EQ(codeOf([&] { library.card.erase(idOf(library, "Anna")); }), ORVA_OK);
}

CHECK_MAIN
