#ifndef SDK_MODEM_MODEMHARDWARE_H
#define SDK_MODEM_MODEMHARDWARE_H

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "modem/ModemSession.h"
#include "modem/ModemState.h"

namespace orva
{

class DialogRecord;

/*
 * A modem behind a port that its user has named, as the hardware of card and device.
 *
 * One thread speaks to it, from the first use on until stop(): it waits for the port, opens it, reads card and device
 * in the background, looks after the card every five seconds, and does what callers ask for one after the other. A
 * caller waits until its turn is over; one whose turn does not come in time gets ORVA_E_BUSY and nothing has happened.
 */
class ModemHardware final : public Hardware
{
public:
    // `folder` is the data folder; `port` a tty.
    ModemHardware(const std::string& folder, std::string port, EventHub& events,
                  const ModemTimings& timings = ModemTimings());
    ~ModemHardware() override;
    ModemHardware(const ModemHardware&) = delete;
    ModemHardware& operator=(const ModemHardware&) = delete;

    const std::string& port() const { return m_port; }

    DeviceStatus status() const override;
    std::vector<int> memories() const override;
    void requireOpen(int memory) const override;
    std::shared_ptr<const Profile> profile(int memory) const override;
    int capacity(int memory) const override;
    std::uint64_t epoch() const override;

    // What is known without asking; starts the thread like everything else here.
    ModemState& state();

    // Somebody opens a memory's list: it is looked at again if that was long ago.
    void noteOpened(int memory);

    // Runs `work` on the modem's thread. ORVA_E_ABSENT without a modem, and when it goes meanwhile.
    void perform(const std::function<void(ModemSession&)>& work);

    // What is in the way, and what the modem says of itself: "key=value" a line.
    std::string report();

    // Leaves the modem, also in the middle of a command. For good; waits for the thread.
    void stop();

private:
    struct Job;

    void start() const;
    void run();
    void serve();
    void doJobs(ModemSession& session);
    void refuseJobs();
    std::shared_ptr<Job> nextJob();
    void waitForPort();

    const std::string m_folder;
    const std::string m_port;
    const ModemTimings m_timings;
    mutable ModemState m_state;
    std::unique_ptr<DialogRecord> m_record;
    const int m_wake;  // readable when there is something to do
    const int m_leave; // readable when the modem is to be left
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_done;
    std::deque<std::shared_ptr<Job>> m_jobs;
    mutable std::thread m_thread;
    mutable bool m_started = false;
    bool m_stopping = false;
};

} // namespace orva

#endif // SDK_MODEM_MODEMHARDWARE_H
