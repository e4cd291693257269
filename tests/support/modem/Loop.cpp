#include "support/modem/Loop.h"

#include <algorithm>
#include <stdexcept>
#include <sys/eventfd.h>
#include <unistd.h>

namespace modemsim
{

Modem::Loop::Loop(const Plan& plan) : state(plan), m_wake(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
    if (m_wake < 0)
        throw std::runtime_error("no eventfd");
    m_ports.reserve(plan.ports.size());
    for (size_t i = 0; i < plan.ports.size(); ++i) {
        m_endpoints.push_back(Endpoint::make(plan.ports[i]));
        m_ports.emplace_back(state, i);
    }
    state.unplug = [this] { unplug(); };
    state.pullCard = [this] { state.cardIn = false; };
    state.said = [this](size_t port, char direction, const std::string& line) {
        transcript.push_back(std::to_string(port) + direction + ' ' + line);
    };
    state.began = [this](size_t port, const std::string& command) {
        commands.push_back(command);
        if (observer)
            observer(port, command);
    };
    state.sendUnsolicited = [this](const std::string& text, int port) {
        for (size_t i = 0; i < m_ports.size(); ++i) {
            if ((port < 0 || static_cast<size_t>(port) == i) && m_endpoints[i]->hasClient())
                m_ports[i].unsolicited(text);
        }
    };
    for (const auto& endpoint : m_endpoints)
        endpoint->open();
    m_thread = std::thread([this] { run(); });
}

Modem::Loop::~Loop()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stopping = true;
    }
    wake();
    m_thread.join();
    ::close(m_wake);
}

void Modem::Loop::wake() const
{
    const uint64_t one = 1;
    if (::write(m_wake, &one, sizeof one) < 0)
        return; // full: the thread is woken anyway
}

void Modem::Loop::call(const std::function<void()>& work)
{
    if (std::this_thread::get_id() == m_thread.get_id()) {
        work();
        return;
    }
    Job job = {&work};
    std::unique_lock<std::mutex> lock(m_mutex);
    m_jobs.push_back(&job);
    wake();
    m_happened.wait(lock, [&] { return job.done; });
}

void Modem::Loop::doJobs()
{
    std::vector<Job*> jobs;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        jobs.swap(m_jobs);
    }
    for (Job* job : jobs) {
        (*job->work)();
        const std::lock_guard<std::mutex> lock(m_mutex);
        job->done = true;
        m_happened.notify_all();
    }
}

void Modem::Loop::changed()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_changes;
    m_happened.notify_all();
}

bool Modem::Loop::waitFor(const std::function<bool()>& condition, std::chrono::milliseconds time)
{
    const Clock::time_point end = Clock::now() + time;
    while (true) {
        unsigned long seen = 0;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            seen = m_changes;
        }
        if (condition())
            return true;
        std::unique_lock<std::mutex> lock(m_mutex);
        if (!m_happened.wait_until(lock, end, [&] { return m_changes != seen; }))
            return false;
    }
}

void Modem::Loop::unplug()
{
    state.plugged = false;
    hangUpAll();
    for (const auto& endpoint : m_endpoints)
        endpoint->close();
}

void Modem::Loop::plug()
{
    if (state.plugged)
        return;
    // What a modem has been told is forgotten without power, and the PIN is asked for again.
    state.ports.assign(state.ports.size(), PortSettings());
    state.card->pinVerified = state.card->plan.pin.empty();
    state.call.reset();
    for (const auto& endpoint : m_endpoints)
        endpoint->open();
    state.plugged = true;
    state.startBusy(state.quirks.number("simbusy", 0));
}

void Modem::Loop::hangUpAll()
{
    for (Port& port : m_ports)
        port.hangUp();
}

void Modem::Loop::fireTimers()
{
    const Clock::time_point now = Clock::now();
    std::vector<State::Timer> due;
    const auto later = std::stable_partition(state.timers.begin(), state.timers.end(),
                                             [&](const State::Timer& timer) { return timer.due <= now; });
    due.assign(std::make_move_iterator(state.timers.begin()), std::make_move_iterator(later));
    state.timers.erase(state.timers.begin(), later);
    for (const State::Timer& timer : due)
        timer.work();
    if (!due.empty())
        changed();
}

void Modem::Loop::serve(size_t i)
{
    Endpoint& endpoint = *m_endpoints[i];
    Port& port = m_ports[i];
    if (!endpoint.isOpen())
        return;
    std::string bytes;
    const bool left = endpoint.receive(bytes);
    if (!bytes.empty())
        port.feed(bytes);
    if (left && !endpoint.hasClient())
        port.hangUp();
    while (port.waiting()) {
        const Clock::time_point now = Clock::now();
        const std::string out = port.ready(now);
        if (out.empty())
            break;
        const size_t count = endpoint.hasClient() ? endpoint.send(out.data(), out.size()) : out.size();
        if (count == 0)
            break;
        port.sent(count, now);
        if (!endpoint.isOpen())
            break;
    }
    if (!bytes.empty() || left)
        changed();
}

// Until the next timer or the next piece of output that is not due yet; what is due goes when the line has room.
int Modem::Loop::timeout(Clock::time_point now) const
{
    Clock::time_point next = now + std::chrono::hours(1);
    for (const State::Timer& timer : state.timers)
        next = std::min(next, timer.due);
    for (const Port& port : m_ports) {
        if (port.waiting() && port.due() > now)
            next = std::min(next, port.due());
    }
    const auto wait = std::chrono::duration_cast<std::chrono::microseconds>(next - now).count();
    return wait <= 0 ? 0 : static_cast<int>(std::min<long>((wait + 999) / 1000, 3600000));
}

void Modem::Loop::run()
{
    while (true) {
        // One time for both: what becomes due between two of them would be waited for by neither.
        const Clock::time_point now = Clock::now();
        std::vector<pollfd> watched = {{m_wake, POLLIN, 0}};
        for (size_t i = 0; i < m_endpoints.size(); ++i) {
            if (m_endpoints[i]->isOpen())
                m_endpoints[i]->watch(watched, m_ports[i].waiting() && m_ports[i].due() <= now);
        }
        ::poll(watched.data(), watched.size(), timeout(now));
        uint64_t count = 0;
        while (::read(m_wake, &count, sizeof count) > 0) {
        }
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if (m_stopping)
                return;
        }
        doJobs();
        fireTimers();
        for (size_t i = 0; i < m_ports.size(); ++i)
            serve(i);
    }
}

} // namespace modemsim
