#ifndef TESTS_SDK_MODEM_MODEMFIXTURE_H
#define TESTS_SDK_MODEM_MODEMFIXTURE_H

// A library's hardware on a simulated modem, in a data folder of its own.

#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "base/Text.h"
#include "events/EventHub.h"
#include "memories/ModemMemory.h"
#include "modem/ModemHardware.h"
#include "modem/Tty.h"
#include "support/modem/Modem.h"

namespace fixture
{

using namespace orva;

// Looks again until the condition holds; false after a minute.
inline bool eventually(const std::function<bool()>& condition)
{
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > until)
            return false;
        std::this_thread::sleep_for(Milliseconds(2));
    }
    return true;
}

class Events
{
public:
    static Events& all()
    {
        static Events events;
        return events;
    }
    static int heard(int event, void*)
    {
        const std::lock_guard<std::mutex> lock(all().m_mutex);
        all().m_heard.push_back(event);
        return 1;
    }
    std::vector<int> heard() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_heard;
    }
    int count(int event) const
    {
        int n = 0;
        for (const int one : heard())
            n += one == event ? 1 : 0;
        return n;
    }
    void clear()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_heard.clear();
    }

private:
    mutable std::mutex m_mutex;
    std::vector<int> m_heard;
};

inline ModemTimings quickTimings()
{
    ModemTimings timings;
    timings.patience.plain = timings.patience.pin = timings.patience.read = timings.patience.write = Milliseconds(1200);
    timings.patience.life = Milliseconds(800);
    timings.patience.quiet = Milliseconds(20);
    timings.question = Milliseconds(100);
    timings.retry = Milliseconds(20);
    timings.reread = Milliseconds(20);
    timings.longest = Milliseconds(500);
    timings.fresh = Milliseconds(50);
    timings.decide = Milliseconds(30000);
    return timings;
}

// The data folder and the port's name outlive modem and library.
struct Place {
    Place()
    {
        char name[] = "/tmp/linkhand-modem-XXXXXX";
        folder = ::mkdtemp(name);
        port = folder + "/port";
    }
    ~Place() { std::filesystem::remove_all(folder); }

    modemsim::Plan plan() const
    {
        modemsim::Plan made = modemsim::standardPlan();
        made.ports[0].name = port;
        return made;
    }

    std::string folder;
    std::string port;
};

struct Library {
    explicit Library(const Place& place, const ModemTimings& timings = quickTimings(), const std::string& choice = {},
                     const PortFinder::OpenWatch& openWatch = openModemWatch)
        : hardware(place.folder, choice.empty() ? place.port : choice, events, timings, openWatch),
          card(hardware, ORVA_MEMORY_CARD),
          device(hardware, ORVA_MEMORY_DEVICE)
    {
        Events::all().clear();
        for (const Service service :
             {Service::DeviceStart, Service::DeviceManager, Service::Network, Service::Phonebook})
            events.add(service, &Events::heard);
    }

    // Starts it and waits until card and device can be read.
    bool ready()
    {
        return eventually([&] {
            try {
                return hardware.status().attached != 0 && card.capacity() > 0 && device.capacity() > 0;
            } catch (const Failure&) {
                return false;
            }
        });
    }

    // "id name number" of each record.
    std::string rows(ModemMemory& memory)
    {
        RowBlock block;
        memory.read(1, memory.extent().last, 10000, block);
        std::string text;
        for (std::size_t i = 0; i < block.rows(); ++i)
            text +=
                std::to_string(block.id(i)) + " " + toUtf8(block.value(i, 0)) + " " + toUtf8(block.value(i, 1)) + "\n";
        return text;
    }

    EventHub events;
    ModemHardware hardware;
    ModemMemory card;
    ModemMemory device;
};

// A modem that is plugged in, and a library that has found it.
struct Plugged {
    explicit Plugged(const ModemTimings& timings = quickTimings()) : modem(place.plan()), library(place, timings)
    {
        if (!library.ready())
            throw std::runtime_error("the modem does not come up");
    }

    const Place place;
    modemsim::Modem modem;
    Library library;
};

// Of the first of that name on the card; 0 if there is none.
inline int idOf(Library& library, const char* name)
{
    RowBlock block;
    library.card.read(1, library.card.extent().last, 10000, block);
    for (std::size_t i = 0; i < block.rows(); ++i) {
        if (toUtf8(block.value(i, 0)) == name)
            return block.id(i);
    }
    return 0;
}

inline Values values(const char* name, const char* number)
{
    return {fromUtf8(name), fromUtf8(number)};
}

inline long codeOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return failure.code();
    }
    return ORVA_OK;
}

inline std::string told(const modemsim::Modem& modem, const char* storage = "SM")
{
    std::string text;
    for (const modemsim::Entry& entry : modem.entries(storage))
        text += std::to_string(entry.location) + " " + entry.name + " " + entry.number + "\n";
    return text;
}

// The same of the card as the library shows it.
inline std::string shown(Library& library)
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

} // namespace fixture

#endif // TESTS_SDK_MODEM_MODEMFIXTURE_H
