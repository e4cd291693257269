#ifndef SDK_EVENTS_EVENTHUB_H
#define SDK_EVENTS_EVENTHUB_H

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

#include "orva/orva_sdk.h"

namespace orva
{

enum class Service : std::uint8_t { DeviceStart, DeviceManager, Network, Phonebook };

// The service that an event belongs to.
Service serviceOf(int event);

/*
 * Delivers events to callbacks, one at a time, on one thread of its own, in the order in which they were posted. The
 * thread starts with the first registration; an event that nobody listens to is dropped.
 *
 * No lock is held while a callback runs, so that it may call anything here.
 */
class EventHub
{
public:
    EventHub() = default;

    // Not from within a callback; waits for a running one.
    ~EventHub();
    EventHub(const EventHub&) = delete;
    EventHub& operator=(const EventHub&) = delete;

    void add(Service service, ORVA_CALLBACK callback);

    // When it returns the callback is not running and will not run again for this service, unless it is the callback
    // that calls. False if it was not registered.
    bool remove(Service service, ORVA_CALLBACK callback);

    void post(int event);

    // Waits until everything posted before has been delivered. False from within a callback.
    bool drain();

    // Drops what is still to be delivered and waits until no callback runs any more. False if one still does after that
    // time, or if it is a callback that asks. For good.
    bool stop(std::chrono::milliseconds atMost);

    bool onEventThread() const;

private:
    void deliver();
    void deliverTo(Service service, int event, std::unique_lock<std::mutex>& lock);

    mutable std::mutex m_mutex;
    std::condition_variable m_posted;    // for the thread
    std::condition_variable m_delivered; // for those who wait on it
    std::array<std::vector<ORVA_CALLBACK>, 4> m_callbacks;
    std::deque<int> m_queue;
    std::uint64_t m_postedCount = 0;
    std::uint64_t m_deliveredCount = 0;
    ORVA_CALLBACK m_running = nullptr;
    Service m_runningService = Service::Network;
    bool m_stop = false;
    bool m_left = false; // the thread is through with all of this
    std::thread m_thread;
    std::atomic<std::thread::id> m_threadId{std::thread::id()};
};

} // namespace orva

#endif // SDK_EVENTS_EVENTHUB_H
