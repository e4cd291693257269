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
#include "modem/HardwareChoice.h"
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

ModemHardware::ModemHardware(const std::string& folder, std::string choice, EventHub& events,
                             const ModemTimings& timings, PortFinder::OpenWatch openWatch)
    : m_folder(folder),
      m_choice(std::move(choice)),
      m_timings(timings),
      m_openWatch(std::move(openWatch)),
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
    m_thread = std::thread([self = const_cast<ModemHardware*>(this)] { self->run(); });
    m_started = true; // not if there was no thread to be had: the next use tries again
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

MessageStore ModemHardware::messageStore(bool look)
{
    start();
    if (m_state.wantMessages(look))
        signal(m_wake);
    return m_state.messages();
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

bool ModemHardware::leaving() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_stopping;
}

void ModemHardware::setFound(const std::string& port, const std::string& spare, const std::string& about)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_port = port;
    m_spare = spare;
    m_about = about;
}

void ModemHardware::run()
{
    PortFinder finder(m_choice, m_openWatch);
    Milliseconds pause = m_timings.retry;
    Milliseconds grown = m_timings.reread;
    while (!leaving()) {
        finder.heed();
        const Outcome outcome = tryPorts(finder);
        if (finder.settled())
            refuseJobs();
        // What is asked again for nothing is asked less and less often, until something is plugged.
        const bool patient = outcome == Outcome::Silent || outcome == Outcome::None ||
                             (outcome == Outcome::Refused && m_choice == autoChoice);
        if (patient)
            pause = std::exchange(grown, std::min(m_timings.longest, grown * 2));
        else
            pause = m_timings.retry;
        if (waitForNews(finder, pause) || !patient)
            grown = m_timings.reread;
    }
    m_state.detach();
}

// Leaves the state as it is to be while there is no port.
ModemHardware::Outcome ModemHardware::tryPorts(PortFinder& finder)
{
    const PortOffer offer = finder.offer();
    std::string problem = offer.problem;
    std::string spare = offer.spare;
    Outcome outcome = Outcome::None;
    for (const std::string& port : offer.ports) {
        std::string why;
        const Outcome one = serve(finder, port, why);
        if (one == Outcome::Served) {
            setFound({}, {});
            hide(why);
            return one;
        }
        problem += (problem.empty() ? "" : "; ") + why;
        if (one == Outcome::Refused)
            spare = port;
        // One that is not there is on its way out, or in.
        if (outcome != Outcome::Missing)
            outcome = one;
    }
    std::string about;
    if (offer.modem)
        about = "manufacturer=" + offer.modem->manufacturer + "\nmodel=" + offer.modem->model + "\n";
    setFound({}, spare, about);
    if (offer.modem && outcome != Outcome::Missing)
        show(*offer.modem, problem);
    else if (finder.settled())
        hide(problem);
    return outcome;
}

void ModemHardware::hide(const std::string& problem)
{
    m_state.setProblem(problem);
    m_state.detach();
}

void ModemHardware::show(const ListedModem& modem, const std::string& problem)
{
    if (m_state.status().attached == 0)
        m_state.attach(modem.card, false, false, problem); // whoever sees it sees why it has no memories
    m_state.setCard(modem.card);
    m_state.setRadio(modem.radio);
    m_state.setNetwork(modem.inService);
    m_state.setProblem(problem);
}

ModemHardware::Outcome ModemHardware::serve(PortFinder& finder, const std::string& port, std::string& problem)
{
    bool served = false;
    long code = ORVA_E_INTERNAL;
    try {
        Tty tty(port, m_leave);
        if (m_record)
            m_record->note("port opened");
        ModemSession session(tty, m_record.get(), m_state, m_timings, m_folder + "/backups");
        // Known before the state says that a modem is there.
        setFound(port, {});
        if (!session.start()) {
            problem = "modem port " + port + ": nobody answers";
            return Outcome::Silent;
        }
        served = true;
        finder.take(port);
        converse(finder, tty, session);
    } catch (const Failure& failure) {
        problem = failure.what();
        code = failure.code();
    } catch (const std::exception& failure) {
        problem = std::string("modem: ") + failure.what();
    }
    if (served)
        return Outcome::Served;
    return code == ORVA_E_ABSENT ? Outcome::Missing : Outcome::Refused;
}

// Ends by what it throws.
void ModemHardware::converse(PortFinder& finder, Tty& tty, ModemSession& session)
{
    for (;;) {
        doJobs(session);
        switch (finder.news()) {
        case PortFinder::News::Leave:
            throw PortGone("ModemManager does not offer the port any more");
        case PortFinder::News::Look:
            session.lookNow();
            break;
        case PortFinder::News::None:
            break;
        }
        const Milliseconds idle = std::min(session.work(), finder.patience());
        std::vector<pollfd> waited = {{tty.file(), POLLIN, 0}, {m_wake, POLLIN, 0}, {m_leave, POLLIN, 0}};
        finder.fill(waited);
        ::poll(waited.data(), waited.size(), static_cast<int>(idle.count()));
        if ((waited[1].revents & POLLIN) != 0)
            quiet(m_wake);
    }
}

// True if modems or ports have changed.
bool ModemHardware::waitForNews(PortFinder& finder, Milliseconds atMost)
{
    const auto until = std::chrono::steady_clock::now() + atMost;
    for (;;) {
        const auto left = std::chrono::ceil<Milliseconds>(until - std::chrono::steady_clock::now());
        if (left.count() <= 0)
            return false;
        std::vector<pollfd> waited = {{m_wake, POLLIN, 0}, {m_leave, POLLIN, 0}};
        finder.fill(waited);
        ::poll(waited.data(), waited.size(), static_cast<int>(std::min(left, finder.patience()).count()));
        if ((waited[1].revents & POLLIN) != 0)
            return false;
        if (finder.heed())
            return true;
        if ((waited[0].revents & POLLIN) == 0)
            continue;
        quiet(m_wake);
        if (finder.settled())
            refuseJobs();
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
    std::string port = m_choice;
    std::string spare;
    std::string about;
    bool open = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        open = !m_port.empty();
        spare = m_spare;
        about = m_about;
        if (open || m_choice == autoChoice)
            port = m_port;
    }
    std::string text;
    if (!port.empty())
        text += "port=" + port + "\n";
    const std::string problem = m_state.problem();
    if (!problem.empty())
        text += "problem=" + problem + "\n";
    if (!spare.empty())
        text += "spare=" + spare + "\n";
    if (open && m_state.status().attached != 0)
        perform([&text](ModemSession& session) { text += session.report(); });
    else
        text += about;
    return text;
}

} // namespace orva
