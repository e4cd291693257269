// A modem's coming and going, its card's and its PIN's, as events and states; and its thread's end.

#include "sdk/modem/ModemFixture.h"
#include "support/Check.h"

using namespace fixture;
using modemsim::Modem;

namespace
{

bool heardInOrder(const std::vector<int>& wanted)
{
    const std::vector<int> heard = Events::all().heard();
    std::size_t at = 0;
    for (const int event : heard) {
        if (at < wanted.size() && event == wanted[at])
            ++at;
    }
    return at == wanted.size();
}

} // namespace

TEST(nothingIsOpenedBeforeFirstUse)
{
    const Place place;
    Modem modem(place.plan());
    Library library(place);
    std::this_thread::sleep_for(Milliseconds(50));
    CHECK_EQ(modem.commands(), 0);
    library.hardware.status();
    CHECK(modem.waitFor([&] { return modem.commands() > 0; }));
}

TEST(aModemAppearsAndItsMemoriesBecomeReady)
{
    Plugged f;
    CHECK(f.library.hardware.memories() == (std::vector<int>{ORVA_MEMORY_CARD, ORVA_MEMORY_DEVICE}));
    CHECK_EQ(f.library.card.capacity(), 20);
    CHECK_EQ(f.library.card.size(), 5);
    CHECK_EQ(f.library.device.size(), 2);
    CHECK_EQ(f.library.card.profile()->size(), 2);
    CHECK_EQ(f.library.card.profile()->fields()[0].maxLength, 18);
    CHECK_EQ(f.library.card.profile()->fields()[1].maxLength, 40);
    CHECK_EQ(f.library.hardware.status().pinStatus, ORVA_PIN_NOT_NEEDED);
    CHECK_EQ(f.library.hardware.status().network, ORVA_NETWORK_IN_SERVICE);
    f.library.events.drain();
    CHECK(heardInOrder({ORVA_EVENT_DEV_DEVICE_INIT_FINISH, ORVA_EVENT_PBM_EVENT_READY, ORVA_EVENT_PBM_EVENT_SIM_READY,
                        ORVA_EVENT_PBM_EVENT_NV_READY}));
}

TEST(aMemoryIsEmptyAndWithoutRoomUntilItIsRead)
{
    const Place place;
    modemsim::Plan plan = place.plan();
    plan.entryMs = 15;
    Modem modem(plan);
    Library library(place);
    REQUIRE(eventually([&] { return library.hardware.status().attached != 0; }));
    CHECK_EQ(library.card.capacity(), 0);
    CHECK_EQ(library.card.size(), 0);
    CHECK_EQ(codeOf([&] { library.card.add(values("x", "1")); }), ORVA_E_BUSY);
    CHECK(library.ready());
}

TEST(aModemWithoutPhonebookOfItsOwnIsReadyWithItsCard)
{
    const Place place;
    modemsim::Plan plan = place.plan();
    plan.quirks.set("no_me");
    Modem modem(plan);
    Library library(place);
    REQUIRE(eventually([&] { return library.hardware.memories() == std::vector<int>{ORVA_MEMORY_CARD}; }));
    CHECK(eventually([&] { return library.card.capacity() > 0; }));
    CHECK_EQ(codeOf([&] { library.device.size(); }), ORVA_E_ABSENT);
    library.events.drain();
    CHECK_EQ(Events::all().count(ORVA_EVENT_PBM_EVENT_NV_READY), 1);
}

TEST(aCardPulledAndPutInReachesTheListeners)
{
    Plugged f;
    const std::string rows = f.library.rows(f.library.card);
    Events::all().clear();
    f.modem.pullCard();
    REQUIRE(eventually([&] { return f.library.hardware.status().card == 0; }));
    CHECK_EQ(codeOf([&] { f.library.card.size(); }), ORVA_E_ABSENT);
    CHECK_EQ(codeOf([&] { f.library.card.readOne(1); }), ORVA_E_ABSENT);
    CHECK_EQ(f.library.device.size(), 2);
    f.modem.insertCard();
    REQUIRE(f.library.ready());
    CHECK_EQ(f.library.rows(f.library.card), rows);
    f.library.events.drain();
    CHECK(heardInOrder({ORVA_EVENT_DEV_SIM_INVALID, ORVA_EVENT_DEV_CARD_CHANGED, ORVA_EVENT_PBM_EVENT_SIM_READY}));
}

TEST(anIdentifierOfOneCardNamesNothingOnAnother)
{
    Plugged f;
    const int old = f.library.card.extent().last;
    modemsim::CardPlan other = modemsim::standardCard();
    other.iccid = "8949020000999999999";
    f.modem.pullCard();
    REQUIRE(eventually([&] { return f.library.hardware.status().card == 0; }));
    f.modem.insertCard(other);
    REQUIRE(f.library.ready());
    CHECK_EQ(f.library.card.size(), 5);
    for (int id = 1; id <= old; ++id)
        CHECK_EQ(codeOf([&] { f.library.card.readOne(id); }), ORVA_E_NOT_FOUND);
}

TEST(aCardThatDoesNotTellWhichOneItIsStaysTheOneItWas)
{
    const Place place;
    Modem modem(place.plan());
    ModemTimings timings = quickTimings();
    timings.question = Milliseconds(60000);
    timings.fresh = Milliseconds(0);
    Library library(place, timings);
    REQUIRE(library.ready());
    const std::string rows = library.rows(library.card);
    for (const char* const command : {"AT+CRSM", "AT+CCID", "AT+ICCID"})
        modem.failAt(command, 1, modemsim::Fault::Error, 100, 1);
    CHECK_EQ(codeOf([&] { library.card.add(values("new", "1")); }), ORVA_E_BUSY);
    CHECK_EQ(modem.commands("AT+CPBW"), 0);
    CHECK_EQ(library.rows(library.card), rows);
    CHECK(library.card.add(values("new", "1")) > 0);
}

TEST(anotherCardBetweenTwoLooksIsNoticedBeforeAWrite)
{
    const Place place;
    Modem modem(place.plan());
    ModemTimings timings = quickTimings();
    timings.question = Milliseconds(60000);
    Library library(place, timings);
    REQUIRE(library.ready());
    modemsim::CardPlan other = modemsim::standardCard();
    other.iccid = "8949020000999999999";
    std::this_thread::sleep_for(timings.fresh * 2);
    modem.pullCard();
    modem.insertCard(other);
    CHECK_EQ(codeOf([&] { library.card.add(values("for the first card", "1")); }), ORVA_E_ABSENT);
    CHECK_EQ(modem.entries("SM").size(), 5u);
    CHECK(library.ready());
}

TEST(aPinKeepsTheCardClosedUntilItIsGiven)
{
    const Place place;
    modemsim::Plan plan = place.plan();
    plan.card.pin = "1234";
    Modem modem(plan);
    Library library(place);
    REQUIRE(eventually([&] { return library.hardware.status().attached != 0; }));
    CHECK_EQ(library.hardware.status().card, 1);
    CHECK(library.hardware.status().pinStatus != ORVA_PIN_NOT_NEEDED);
    CHECK_EQ(codeOf([&] { library.card.size(); }), ORVA_E_ABSENT);
    CHECK_EQ(library.card.capacity(), 0);
    const auto unlock = [&](const char* pin) {
        return codeOf([&] { library.hardware.perform([&](ModemSession& session) { session.unlock(pin); }); });
    };
    CHECK_EQ(unlock("12"), ORVA_E_ARGUMENT);
    CHECK_EQ(modem.pinTries(), 3);
    CHECK_EQ(unlock("9999"), ORVA_E_ARGUMENT);
    CHECK_EQ(modem.pinTries(), 2);
    CHECK_EQ(unlock("1234"), ORVA_OK);
    CHECK(library.ready());
    // Where none is asked for, none is spent.
    const int given = modem.commands("AT+CPIN=");
    CHECK_EQ(unlock("9999"), ORVA_E_UNSUPPORTED);
    CHECK_EQ(modem.commands("AT+CPIN="), given);
    CHECK_EQ(library.card.size(), 5);
    library.events.drain();
    CHECK_EQ(Events::all().count(ORVA_EVENT_DEV_PIN_CHANGED), 1);
}

TEST(aCardBusyAfterItsPinIsWaitedFor)
{
    const Place place;
    modemsim::Plan plan = place.plan();
    plan.quirks.set("simbusy=600");
    Modem modem(plan);
    Library library(place);
    CHECK(library.ready());
    CHECK_EQ(library.card.size(), 5);
}

TEST(anUnpluggedModemIsAwayAndComesBackWithTheSameIdentifiers)
{
    Plugged f;
    const std::string rows = f.library.rows(f.library.card);
    const std::string deviceRows = f.library.rows(f.library.device);
    Events::all().clear();
    f.modem.unplug();
    REQUIRE(eventually([&] { return f.library.hardware.status().attached == 0; }));
    CHECK(f.library.hardware.memories().empty());
    CHECK_EQ(codeOf([&] { f.library.card.size(); }), ORVA_E_ABSENT);
    CHECK_EQ(codeOf([&] { f.library.hardware.perform([](ModemSession&) {}); }), ORVA_E_ABSENT);
    f.modem.plug();
    REQUIRE(f.library.ready());
    CHECK_EQ(f.library.rows(f.library.card), rows);
    CHECK_EQ(f.library.rows(f.library.device), deviceRows);
    f.library.events.drain();
    CHECK(heardInOrder({ORVA_EVENT_DEV_DEVICE_INIT_FINISH, ORVA_EVENT_DEV_DEVICE_INIT_FINISH,
                        ORVA_EVENT_PBM_EVENT_READY, ORVA_EVENT_PBM_EVENT_SIM_READY}));
}

TEST(aModemThatFallsSilentIsAwayUntilItAnswers)
{
    Plugged f;
    f.modem.setDead(true);
    CHECK(eventually([&] { return f.library.hardware.status().attached == 0; }));
    CHECK(eventually([&] { return f.library.hardware.state().problem().find("nobody answers") != std::string::npos; }));
    f.modem.setDead(false);
    CHECK(f.library.ready());
    CHECK_EQ(f.library.hardware.state().problem(), "");
}

TEST(aPortThatAnotherProgramHasIsWaitedForAndTold)
{
    const Place place;
    Modem modem(place.plan());
    auto other = std::make_unique<Tty>(place.port, -1);
    Library library(place);
    library.hardware.status();
    CHECK(eventually([&] { return library.hardware.state().problem().find("busy") != std::string::npos; }));
    CHECK_EQ(library.hardware.status().attached, 0);
    other.reset();
    CHECK(library.ready());
}

TEST(radioAndNetworkReachTheListeners)
{
    Plugged f;
    f.modem.setRadio(false);
    CHECK(eventually([&] { return f.library.hardware.status().radioFirst == 0; }));
    f.modem.setRadio(true);
    f.modem.setRegistration(2);
    CHECK(eventually([&] { return f.library.hardware.status().network != ORVA_NETWORK_IN_SERVICE; }));
    f.modem.setRegistration(5);
    CHECK(eventually([&] { return f.library.hardware.status().network == ORVA_NETWORK_IN_SERVICE; }));
    f.library.events.drain();
    CHECK(Events::all().count(ORVA_EVENT_DEV_RF_SWITCH) >= 1);
    CHECK(Events::all().count(ORVA_EVENT_NET_STATUS) >= 3);
}

TEST(theThreadEndsWithinASecondInTheMiddleOfACommand)
{
    const Place place;
    Modem modem(place.plan());
    ModemTimings timings = quickTimings();
    timings.patience = Patience();
    auto library = std::make_unique<Library>(place, timings);
    REQUIRE(library->ready());
    modem.setQuirk("read_ms=20000");
    long code = 0;
    std::thread caller([&] { code = codeOf([&] { library->card.add(values("x", "1")); }); });
    REQUIRE(modem.waitFor([&] { return modem.commands("AT+CPBR") > 2; }));
    const auto before = std::chrono::steady_clock::now();
    library->hardware.stop();
    CHECK(std::chrono::steady_clock::now() - before < std::chrono::seconds(1));
    caller.join();
    CHECK_EQ(code, ORVA_E_ABSENT);
    CHECK_EQ(codeOf([&] { library->hardware.perform([](ModemSession&) {}); }), ORVA_E_ABSENT);
}

TEST(aModemTellsAboutItself)
{
    Plugged f;
    const std::string report = f.library.hardware.report();
    for (const char* const part : {"manufacturer=Linkhand Tests\n", "model=Simulated Modem\n", "operator=Test Net\n",
                                   "signal=20/31\n", "card=SM 5/20 name 18 number 40\n", "device=ME 2/50 "})
        CHECK(report.find(part) != std::string::npos);
}

CHECK_MAIN
