// A process that gets no further thread for a while.

#include <system_error>

#include "sdk/modem/ModemFixture.h"
#include "support/Check.h"
#include "support/NoThreads.h"

using namespace fixture;

namespace
{

bool isRefused(const std::function<void()>& action)
{
    try {
        action();
    } catch (const std::system_error&) {
        return true;
    }
    return false;
}

} // namespace

TEST(aModemIsFoundOnceThereIsAThreadForIt)
{
    const Place place;
    const modemsim::Modem modem(place.plan());
    Library library(place);
    {
        const NoThreads none;
        CHECK(isRefused([&] { library.hardware.status(); }));
        CHECK(isRefused([&] { library.card.size(); }));
    }
    CHECK(library.ready());
    CHECK_EQ(library.card.size(), 5);
}

TEST(aListenerWithoutAThreadIsNoneAndHearsAtTheNextTry)
{
    Events::all().clear();
    EventHub events;
    {
        const NoThreads none;
        CHECK(isRefused([&] { events.add(Service::Phonebook, &Events::heard); }));
    }
    CHECK(!events.remove(Service::Phonebook, &Events::heard));
    events.add(Service::Phonebook, &Events::heard);
    events.post(ORVA_EVENT_PBM_EVENT_READY);
    events.drain();
    CHECK_EQ(Events::all().count(ORVA_EVENT_PBM_EVENT_READY), 1);
}

CHECK_MAIN
