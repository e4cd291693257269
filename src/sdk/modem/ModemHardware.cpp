#include "modem/ModemHardware.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <new>
#include <optional>
#include <utility>

#include "base/Log.h"
#include "modem/DialogRecord.h"
#include "modem/Tty.h"

namespace orva
{

namespace
{

void signal(int eventFile)
{
    const std::uint64_t one = 1;
    // Full or not, it is readable.
    if (::write(eventFile, &one, sizeof one) != static_cast<ssize_t>(sizeof one))
        return;
}

void quiet(int eventFile)
{
    std::uint64_t count = 0;
    if (::read(eventFile, &count, sizeof count) != static_cast<ssize_t>(sizeof count))
        return;
}

} // namespace

// Shared by its caller and the thread; whoever of both is last frees it.
struct ModemHardware::Job {
    explicit Job(const std::function<void(ModemSession&)>& asked) : work(asked) {}

    const std::function<void(ModemSession&)>& work; // the caller's, who waits while it runs
    std::optional<Failure> failure;                 // by value: the thread and the caller each have their own
    bool running = false;
    bool done = false;
};

ModemHardware::ModemHardware(const std::string& folder, std::string port, EventHub& events, const ModemTimings& timings)
    : m_folder(folder),
      m_port(std::move(port)),
      m_timings(timings),
      m_state(folder + "/modem", events),
      m_record(DialogRecord::fromEnvironment()),
      m_wake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      m_leave(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
}

ModemHardware::~ModemHardware()
{
    stop();
    ::close(m_wake);
    ::close(m_leave);
}

void ModemHardware::start() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_started || m_stopping)
        return;
    m_started = true;
    m_thread = std::thread([self = const_cast<ModemHardware*>(this)] { self->run(); });
}

DeviceStatus ModemHardware::status() const
{
    start();
    return m_state.status();
}

std::vector<int> ModemHardware::memories() const
{
    start();
    return m_state.memories();
}

void ModemHardware::requireOpen(int memory) const
{
    start();
    m_state.requireOpen(memory);
}

std::shared_ptr<const Profile> ModemHardware::profile(int memory) const
{
    start();
    return m_state.profile(memory);
}

int ModemHardware::capacity(int memory) const
{
    start();
    return m_state.capacity(memory);
}

std::uint64_t ModemHardware::epoch() const
{
    return m_state.changes();
}

ModemState& ModemHardware::state()
{
    start();
    return m_state;
}

void ModemHardware::noteOpened(int memory)
{
    m_state.noteOpened(memory);
    signal(m_wake);
}

// ---- Jobs

void ModemHardware::perform(const std::function<void(ModemSession&)>& work)
{
    start();
    const auto job = std::make_shared<Job>(work);
    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_stopping)
        throw Failure(ORVA_E_ABSENT, "the modem is being left");
    m_jobs.push_back(job);
    signal(m_wake);
    if (!m_done.wait_for(lock, m_timings.job, [&] { return job->running || job->done; })) {
        m_jobs.erase(std::remove(m_jobs.begin(), m_jobs.end(), job), m_jobs.end());
        throw Failure(ORVA_E_BUSY, "the modem is busy");
    }
    // Under way it has its own deadlines, and its outcome must be known.
    m_done.wait(lock, [&] { return job->done; });
    if (job->failure)
        throw Failure(*job->failure);
}

std::shared_ptr<ModemHardware::Job> ModemHardware::nextJob()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_jobs.empty())
        return nullptr;
    std::shared_ptr<Job> job = m_jobs.front();
    m_jobs.pop_front();
    job->running = true;
    return job;
}

void ModemHardware::doJobs(ModemSession& session)
{
    while (const std::shared_ptr<Job> job = nextJob()) {
        std::optional<Failure> failure;
        bool gone = false;
        try {
            job->work(session);
        } catch (const PortGone& ended) {
            failure = ended;
            gone = true;
        } catch (const Failure& failed) {
            failure = failed;
        } catch (const std::bad_alloc&) {
            failure = Failure(ORVA_E_NO_MEMORY, "out of memory");
        } catch (const std::exception& unexpected) {
            failure = Failure(ORVA_E_INTERNAL, unexpected.what());
        }
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            job->failure = failure;
            job->done = true;
        }
        m_done.notify_all();
        if (gone)
            throw PortGone("the modem has gone");
    }
}

// Nothing can be done for those who wait.
void ModemHardware::refuseJobs()
{
    const Failure failure(ORVA_E_ABSENT, "no modem");
    while (const std::shared_ptr<Job> job = nextJob()) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        job->failure = failure;
        job->done = true;
        m_done.notify_all();
    }
}

// ---- The thread

void ModemHardware::run()
{
    for (;;) {
        try {
            serve();
        } catch (const Failure& failure) {
            m_state.setProblem(failure.what());
        } catch (const std::exception& failure) {
            m_state.setProblem(std::string("modem: ") + failure.what());
        }
        m_state.detach();
        refuseJobs();
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if (m_stopping)
                return;
        }
        waitForPort();
    }
}

void ModemHardware::serve()
{
    if (m_port.empty() || m_port.front() != '/')
        throw Failure(ORVA_E_ARGUMENT, "\"" + m_port + "\" is neither \"simulated\" nor the path of a modem's port");
    Tty tty(m_port, m_leave);
    if (m_record)
        m_record->note("port opened");
    ModemSession session(tty, m_record.get(), m_state, m_timings, m_folder + "/backups");
    if (!session.start())
        throw PortGone("modem port " + m_port + ": nobody answers");
    for (;;) {
        doJobs(session);
        const Milliseconds idle = session.work();
        pollfd waited[3] = {{tty.file(), POLLIN, 0}, {m_wake, POLLIN, 0}, {m_leave, POLLIN, 0}};
        ::poll(waited, 3, static_cast<int>(idle.count()));
        if ((waited[1].revents & POLLIN) != 0)
            quiet(m_wake);
    }
}

void ModemHardware::waitForPort()
{
    const auto until = std::chrono::steady_clock::now() + m_timings.retry;
    for (;;) {
        const auto left = std::chrono::ceil<Milliseconds>(until - std::chrono::steady_clock::now());
        if (left.count() <= 0)
            return;
        pollfd waited[2] = {{m_wake, POLLIN, 0}, {m_leave, POLLIN, 0}};
        ::poll(waited, 2, static_cast<int>(left.count()));
        if ((waited[1].revents & POLLIN) != 0)
            return;
        if ((waited[0].revents & POLLIN) != 0) {
            quiet(m_wake);
            refuseJobs();
        }
    }
}

void ModemHardware::stop()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stopping = true;
    }
    signal(m_leave);
    if (m_thread.joinable())
        m_thread.join();
    refuseJobs();
}

std::string ModemHardware::report()
{
    start();
    std::string text = "port=" + m_port + "\n";
    const std::string problem = m_state.problem();
    if (!problem.empty())
        text += "problem=" + problem + "\n";
    if (m_state.status().attached == 0)
        return text;
    perform([&text](ModemSession& session) { text += session.report(); });
    return text;
}

} // namespace orva
