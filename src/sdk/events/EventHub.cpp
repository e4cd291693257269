#include "events/EventHub.h"

#include <algorithm>
#include <exception>

#include "base/Log.h"

namespace orva
{

Service serviceOf(int event)
{
    if (event >= 20000 && event <= 29999)
        return Service::Phonebook;
    if (event == ORVA_EVENT_DEV_DEVICE_INIT_FINISH)
        return Service::DeviceStart;
    if (event == ORVA_EVENT_DEV_SIM_INVALID || (event >= 6600 && event <= 6699))
        return Service::DeviceManager;
    return Service::Network;
}

EventHub::~EventHub()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stop = true;
    }
    m_posted.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

bool EventHub::stop(std::chrono::milliseconds atMost)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_stop = true;
    m_posted.notify_all();
    if (onEventThread())
        return false;
    const auto until = std::chrono::steady_clock::now() + atMost;
    if (!m_thread.joinable())
        return true;
    if (!m_delivered.wait_until(lock, until, [&] { return m_left; }))
        return false;
    // It is past its last callback and about to return.
    lock.unlock();
    m_thread.join();
    return true;
}

void EventHub::add(Service service, ORVA_CALLBACK callback)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<ORVA_CALLBACK>& callbacks = m_callbacks[static_cast<std::size_t>(service)];
    if (std::find(callbacks.begin(), callbacks.end(), callback) != callbacks.end())
        return;
    if (!m_thread.joinable() && !m_stop)
        m_thread = std::thread(&EventHub::deliver, this);
    callbacks.push_back(callback);
}

bool EventHub::remove(Service service, ORVA_CALLBACK callback)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    std::vector<ORVA_CALLBACK>& callbacks = m_callbacks[static_cast<std::size_t>(service)];
    const auto found = std::find(callbacks.begin(), callbacks.end(), callback);
    const bool known = found != callbacks.end();
    if (known)
        callbacks.erase(found);
    // Also for one that another thread has just removed: it may still be running.
    if (!onEventThread())
        m_delivered.wait(lock, [&] { return m_running != callback || m_runningService != service; });
    return known;
}

void EventHub::post(int event)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_thread.joinable())
            return;
        m_queue.push_back(event);
        ++m_postedCount;
    }
    m_posted.notify_one();
}

bool EventHub::drain()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (onEventThread())
        return false;
    const std::uint64_t until = m_postedCount;
    m_delivered.wait(lock, [&] { return m_deliveredCount >= until; });
    return true;
}

bool EventHub::onEventThread() const
{
    return m_threadId.load() == std::this_thread::get_id();
}

void EventHub::deliver()
{
    m_threadId = std::this_thread::get_id();
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        m_posted.wait(lock, [&] { return m_stop || !m_queue.empty(); });
        if (m_stop)
            break;
        const int event = m_queue.front();
        m_queue.pop_front();
        deliverTo(serviceOf(event), event, lock);
        ++m_deliveredCount;
        m_delivered.notify_all();
    }
    m_left = true;
    m_delivered.notify_all();
}

void EventHub::deliverTo(Service service, int event, std::unique_lock<std::mutex>& lock)
{
    const std::vector<ORVA_CALLBACK>& callbacks = m_callbacks[static_cast<std::size_t>(service)];
    // Those who are registered now; who is removed while another one runs is not called any more.
    const std::vector<ORVA_CALLBACK> chosen = callbacks;
    for (const ORVA_CALLBACK callback : chosen) {
        if (m_stop)
            return;
        if (std::find(callbacks.begin(), callbacks.end(), callback) == callbacks.end())
            continue;
        m_running = callback;
        m_runningService = service;
        lock.unlock();
        try {
            callback(event, nullptr);
        } catch (const std::exception& failure) {
            // A client's mistake must not end the process from here.
            logFormat("a callback threw: %s", failure.what());
        }
        lock.lock();
        m_running = nullptr;
        m_delivered.notify_all();
    }
}

} // namespace orva
