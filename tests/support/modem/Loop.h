#ifndef TESTS_SUPPORT_MODEM_LOOP_H
#define TESTS_SUPPORT_MODEM_LOOP_H

#include "support/modem/Endpoint.h"
#include "support/modem/Modem.h"
#include "support/modem/Port.h"
#include "support/modem/State.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace modemsim
{

// The modem's thread: it alone touches the state and the ports; others have work done on it.
class Modem::Loop
{
public:
    explicit Loop(const Plan& plan);
    ~Loop();

    // Runs the work on the modem's thread and returns when it is done.
    void call(const std::function<void()>& work);
    template <typename T>
    T ask(const std::function<T()>& question)
    {
        T answer{};
        call([&] { answer = question(); });
        return answer;
    }
    bool waitFor(const std::function<bool()>& condition, std::chrono::milliseconds time);

    // On the modem's thread.
    State state;
    std::vector<std::string> transcript;
    std::vector<std::string> commands;
    std::function<void(size_t, const std::string&)> observer;
    std::string address(size_t port) const { return m_endpoints[port]->address(); }
    void unplug();
    void plug();
    void hangUpAll();

private:
    struct Job {
        const std::function<void()>* work;
        bool done = false;
    };

    void run();
    void doJobs();
    void fireTimers();
    void serve(size_t port);
    int timeout(Clock::time_point now) const;
    void wake() const;
    void changed();

    std::vector<std::unique_ptr<Endpoint>> m_endpoints;
    std::vector<Port> m_ports;
    int m_wake = -1;
    std::mutex m_mutex;
    std::condition_variable m_happened;
    std::vector<Job*> m_jobs;
    unsigned long m_changes = 0;
    bool m_stopping = false;
    std::thread m_thread;
};

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_LOOP_H
