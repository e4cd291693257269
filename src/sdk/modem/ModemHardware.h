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
#include "modem/PortFinder.h"

namespace orva
{

class DialogRecord;
class Tty;

/*
 * A modem behind a port that its user has named, or that ModemManager lists and can spare, as the hardware of card and
 * device.
 *
 * One thread speaks to it, from the first use on until stop(): it waits for the port, opens it, reads card and device
 * in the background, looks after the card every five seconds, and does what callers ask for one after the other. The
 * same poll hears of modems that are plugged. A caller waits until its turn is over; one whose turn does not come in
 * time gets ORVA_E_BUSY and nothing has happened.
 *
 * A modem that is there without a port for us is a device without memories, with the card, radio and network that
 * ModemManager tells.
 */
class ModemHardware final : public Hardware
{
public:
    // `folder` is the data folder; `choice` a tty or "auto".
    ModemHardware(const std::string& folder, std::string choice, EventHub& events,
                  const ModemTimings& timings = ModemTimings(), PortFinder::OpenWatch openWatch = openModemWatch);
    ~ModemHardware() override;
    ModemHardware(const ModemHardware&) = delete;
    ModemHardware& operator=(const ModemHardware&) = delete;

    const std::string& choice() const { return m_choice; }

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

    // What the modem last said of its room for messages, and with `look` it is asked again. See
    // ORVA_Modem_GetMessageStore, of which the codes are.
    MessageStore messageStore(bool look);

    // Runs `work` on the modem's thread. ORVA_E_ABSENT without a modem, and when it goes meanwhile.
    void perform(const std::function<void(ModemSession&)>& work);

    // What is in the way, and what the modem says of itself: "key=value" a line.
    std::string report();

    // Leaves the modem, also in the middle of a command. For good; waits for the thread.
    void stop();

private:
    struct Job;
    enum class Outcome {
        None,    // there was no port to open
        Missing, // it is not there
        Refused, // it cannot be used
        Silent,  // nobody answers
        Served   // until it went
    };

    void start() const;
    void run();
    Outcome tryPorts(PortFinder& finder);
    Outcome serve(PortFinder& finder, const std::string& port, std::string& problem);
    void converse(PortFinder& finder, Tty& tty, ModemSession& session);
    void show(const ListedModem& modem, const std::string& problem);
    void hide(const std::string& problem);
    void doJobs(ModemSession& session);
    void refuseJobs();
    std::shared_ptr<Job> nextJob();
    bool waitForNews(PortFinder& finder, Milliseconds atMost);
    bool leaving() const;
    void setFound(const std::string& port, const std::string& spare, const std::string& about = std::string());

    const std::string m_folder;
    const std::string m_choice;
    const ModemTimings m_timings;
    const PortFinder::OpenWatch m_openWatch;
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
    std::string m_port;  // in use
    std::string m_spare; // that a rule may set aside for us
    std::string m_about; // lines of the report on a modem without a port in use
};

} // namespace orva

#endif // SDK_MODEM_MODEMHARDWARE_H
