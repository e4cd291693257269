// A seeded storm of callers, cards, plugs and busy times. Nothing crashes or hangs, and when it is over the memory
// shows what is on the card. LINKHAND_FULL makes it 10,000 events long.

#include <random>

#include "sdk/modem/ModemFixture.h"
#include "support/Check.h"

using namespace fixture;
using modemsim::Modem;

namespace
{

constexpr int usualEvents = 400;
constexpr int fullEvents = 10000;
constexpr int callers = 3;

void disturb(Modem& modem, std::mt19937& random)
{
    switch (random() % 12) {
    case 0:
        modem.pullCard();
        break;
    case 1:
        modem.unplug();
        modem.plug();
        break;
    case 2:
        modem.setBusy(Milliseconds(random() % 40));
        break;
    case 3:
        modem.putEntry("SM", {1 + static_cast<int>(random() % 20), std::to_string(random() % 1000 + 1), "other", ""});
        break;
    case 4:
        modem.removeEntry("SM", 1 + static_cast<int>(random() % 20));
        break;
    case 5:
        modem.unsolicited("+CMTI: \"SM\",1");
        break;
    case 6:
        modem.failAt("AT", 1 + static_cast<int>(random() % 5), modemsim::Fault::Error, 13);
        break;
    case 7:
        modem.failAt("AT+CPBR", 1, modemsim::Fault::UnplugInside);
        modem.plug();
        break;
    case 8:
        modem.setRadio(random() % 2 == 0);
        break;
    default:
        modem.insertCard();
        break;
    }
}

void call(Library& library, std::mt19937& random)
{
    const int last =
        library.hardware.state().with(ORVA_MEMORY_CARD, [](ModemBook& book) { return book.entries.last(); });
    const int id = last == 0 ? 1 : 1 + static_cast<int>(random() % static_cast<unsigned>(last));
    switch (random() % 5) {
    case 0:
        library.card.add(values("new", std::to_string(random() % 1000 + 1).c_str()));
        break;
    case 1:
        library.card.update(id, values("changed", std::to_string(random() % 1000 + 1).c_str()));
        break;
    case 2:
        library.card.erase(id);
        break;
    case 3:
        library.card.begin();
        library.rows(library.card);
        library.card.end();
        break;
    default:
        library.hardware.memories();
        library.card.capacity();
        break;
    }
}

} // namespace

TEST(aStormLeavesTheMemoryAsTheCardIs)
{
    const char* const full = std::getenv("LINKHAND_FULL");
    const int events = full != nullptr && *full == '1' ? fullEvents : usualEvents;
    const Place place;
    Modem modem(place.plan());
    ModemTimings timings = quickTimings();
    timings.patience.plain = timings.patience.pin = timings.patience.read = timings.patience.write = Milliseconds(100);
    timings.patience.life = Milliseconds(100);
    timings.question = Milliseconds(20);
    timings.retry = Milliseconds(5);
    Library library(place, timings);
    REQUIRE(library.ready());
    std::atomic<bool> over{false};
    std::atomic<int> done{0};
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < callers; ++i) {
        threads.emplace_back([&library, &over, &done, i] {
            std::mt19937 random(i + 1);
            while (!over) {
                // Any code is right; what it has done wrong shows at the end.
                if (codeOf([&] { call(library, random); }) == ORVA_OK)
                    ++done;
                std::this_thread::yield();
            }
        });
    }
    std::mt19937 random(42);
    for (int event = 0; event < events; ++event) {
        disturb(modem, random);
        std::this_thread::sleep_for(Milliseconds(3));
    }
    over = true;
    for (std::thread& thread : threads)
        thread.join();
    CHECK(done > 0);
    modem.failAt("AT", 1000000, modemsim::Fault::Error);
    modem.failAt("AT+CPBR", 1000000, modemsim::Fault::Error);
    modem.setRadio(true);
    modem.plug();
    modem.pullCard();
    CHECK(eventually([&] { return library.hardware.status().attached != 0 && library.hardware.status().card == 0; }));
    modem.insertCard();
    REQUIRE(library.ready());
    std::string shown;
    library.hardware.state().with(ORVA_MEMORY_CARD, [&shown](ModemBook& book) {
        std::map<int, PhonebookEntry> byLocation;
        for (const auto& [id, entry] : book.entries.entries())
            byLocation[entry.location] = entry;
        for (const auto& [location, entry] : byLocation)
            shown += std::to_string(location) + " " + toUtf8(entry.alpha) + " " + entry.number + "\n";
    });
    CHECK_EQ(shown, told(modem));
    library.hardware.stop();
}

CHECK_MAIN
