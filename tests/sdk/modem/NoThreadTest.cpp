// A process that gets no further thread for a while.

#include <pthread.h>

#include <system_error>

#include "sdk/modem/ModemFixture.h"
#include "support/Check.h"

using namespace fixture;

namespace
{

// While it lives each new thread wants a stack larger than any address space.
class NoThreads
{
public:
    NoThreads()
    {
        ::pthread_attr_init(&m_before);
        ::pthread_getattr_default_np(&m_before);
        pthread_attr_t wide = m_before;
        ::pthread_attr_setstacksize(&wide, std::size_t(1) << 62);
        ::pthread_setattr_default_np(&wide);
    }
    ~NoThreads()
    {
        ::pthread_setattr_default_np(&m_before);
        ::pthread_attr_destroy(&m_before);
    }
    NoThreads(const NoThreads&) = delete;
    NoThreads& operator=(const NoThreads&) = delete;

private:
    pthread_attr_t m_before;
};

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
