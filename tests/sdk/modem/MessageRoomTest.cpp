// The room for messages of a card: told once somebody wants to know, anew when something has come, and never at the
// cost of what else the modem is there for.

#include "sdk/modem/ModemFixture.h"
#include "support/Check.h"

using namespace fixture;
using modemsim::Fault;
using modemsim::Modem;

namespace
{

struct Room {
    explicit Room(int fits = 3) : modem(planOf(place, fits)), library(place) {}

    static modemsim::Plan planOf(const Place& place, int fits)
    {
        modemsim::Plan plan = place.plan();
        plan.card.messageTotal = fits;
        return plan;
    }

    long code(bool look = false)
    {
        return codeOf([&] { said = library.hardware.messageStore(look); });
    }
    bool becomes(int used)
    {
        return eventually([&] { return code() == ORVA_OK && said.used == used; });
    }

    Place place;
    Modem modem;
    Library library;
    MessageStore said;
};

} // namespace

TEST(nobodyWhoDoesNotAskMakesTheModemSay)
{
    Room room;
    REQUIRE(room.library.ready());
    const int looks = room.modem.commands("AT+CPIN?");
    REQUIRE(room.modem.waitFor([&] { return room.modem.commands("AT+CPIN?") > looks + 3; }));
    CHECK_EQ(room.modem.commands("AT+CPMS"), 0);
}

TEST(theRoomOfTheCardIsToldAndFollowsWhatComesIn)
{
    Room room;
    REQUIRE(room.library.ready());
    REQUIRE(room.becomes(0));
    CHECK_EQ(room.said.total, 3);
    room.modem.receiveMessage("+491711234567", "one");
    room.modem.receiveMessage("+491711234567", "two");
    room.modem.unsolicited("+CMTI: \"SM\",2");
    CHECK(room.becomes(2));
    room.modem.receiveMessage("+491711234567", "three");
    room.code(true);
    CHECK(room.becomes(3));
    CHECK_EQ(room.said.used, room.said.total);
}

TEST(aModemThatIsNotAskedToLookAgainIsLeftAlone)
{
    Room room;
    REQUIRE(room.library.ready());
    REQUIRE(room.becomes(0));
    const int asked = room.modem.commands("AT+CPMS");
    const int looks = room.modem.commands("AT+CPIN?");
    REQUIRE(eventually([&] { return room.code() == ORVA_OK && room.modem.commands("AT+CPIN?") > looks + 3; }));
    CHECK_EQ(room.modem.commands("AT+CPMS"), asked);
}

TEST(aModemThatDoesNotKnowTheQuestionIsAskedNoMore)
{
    for (const Fault fault : {Fault::Error, Fault::SilentBefore}) {
        Room room;
        room.modem.failAt("AT+CPMS", 1, fault, 4, 1000);
        REQUIRE(room.library.ready());
        REQUIRE(eventually([&] { return room.code() == ORVA_E_UNSUPPORTED; }));
        const int asked = room.modem.commands("AT+CPMS");
        const int looks = room.modem.commands("AT+CPIN?");
        REQUIRE(eventually([&] { return room.code(true) != ORVA_OK && room.modem.commands("AT+CPIN?") > looks + 3; }));
        CHECK_EQ(room.modem.commands("AT+CPMS"), asked);
        CHECK_EQ(codeOf([&] { room.library.card.add(values("Still", "123")); }), ORVA_OK);
    }
}

TEST(aBusyCardIsAskedUntilItSays)
{
    Room room;
    room.modem.failAt("AT+CPMS", 1, Fault::Error, 14, 5);
    REQUIRE(room.library.ready());
    CHECK(room.becomes(0));
    CHECK(room.modem.commands("AT+CPMS") > 5);
}

TEST(whatACardHeldIsNotToldOfTheNextOne)
{
    Room room(1);
    room.modem.receiveMessage("+491711234567", "one");
    REQUIRE(room.library.ready());
    REQUIRE(room.becomes(1));
    room.modem.pullCard();
    REQUIRE(eventually([&] { return room.code() == ORVA_E_ABSENT; }));
    const int asked = room.modem.commands("AT+CPMS");
    room.modem.insertCard();
    CHECK(room.becomes(1));
    CHECK(room.modem.commands("AT+CPMS") > asked);
}

CHECK_MAIN
