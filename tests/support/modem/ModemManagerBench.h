#ifndef TESTS_SUPPORT_MODEM_MODEMMANAGERBENCH_H
#define TESTS_SUPPORT_MODEM_MODEMMANAGERBENCH_H

#include "support/modem/Modem.h"
#include "support/modem/PrivateBus.h"

#include <functional>
#include <map>
#include <memory>

namespace modemsim
{

// What ModemManager is told about a port.
enum class Role {
    Primary,
    Secondary,
    Free,   // nothing: it finds out that it speaks AT and leaves it alone
    Ignored // ID_MM_PORT_IGNORE
};

struct BenchSetup {
    Plan plan = standardPlan(); // its ports are made here, one a role
    std::vector<Role> roles = {Role::Primary, Role::Secondary};
    // true: a mocked machine with USB ports on pseudo terminals, real plugging and unplugging, seconds a plug. false:
    // the daemon's own test interface with abstract sockets, less than a second, but a modem once found never leaves.
    bool usb = true;
    bool daemon = true; // false: none until startDaemon()
    std::string vendor = "2c7c";
    std::string product = "0125";
};

// The real ModemManager on a private bus, as an ordinary user, with the simulated modem before it:
//
//     modemsim::BenchSetup setup;
//     setup.roles = {Role::Primary, Role::Secondary, Role::Free};
//     modemsim::ModemManagerBench bench(setup);
//     bench.plug();
//     CHECK(bench.waitForModem());
//     runProgram({"program", "that", "asks", "ModemManager"}, bench.environment());
//
// The bus stands for session and system bus. Programs that open a port by the name that ModemManager gives (ttyUSB2)
// need the whole environment, which puts a library before them; terminal() leads there without. Exclusive use is not
// real on mocked ports: look at held() and at the modem's transcript.
class ModemManagerBench
{
public:
    // Starts the bus, the mocked machine and, as set up, the daemon; nothing is plugged. Throws std::runtime_error.
    explicit ModemManagerBench(const BenchSetup& setup = BenchSetup());
    ~ModemManagerBench();
    ModemManagerBench(const ModemManagerBench&) = delete;
    ModemManagerBench& operator=(const ModemManagerBench&) = delete;

    Modem& modem(size_t number = 0) { return *m_modems.at(number).modem; }
    // A further modem beside the first, not plugged yet; its number. Its ports go on counting where the last ended.
    size_t addModem(const Plan& plan, const std::vector<Role>& roles);
    // The addresses of the bus, and with USB the mocked machine. For programs of this build: a sanitizer's library must
    // be the first one of a process.
    Environment environment() const;

    void plug(size_t number = 0);
    void unplug(size_t number = 0); // with USB only
    void startDaemon();
    pid_t busDaemon() const { return m_bus.daemon(); }
    void endDaemon(int signal); // SIGTERM, or SIGKILL as in a crash
    // The ports ("ttyUSB0") that the daemon, which runs, has open.
    std::vector<std::string> held() const;
    std::string node(size_t port, size_t number = 0) const; // "ttyUSB0", or the socket's name

    // mmcli with these arguments.
    Outcome mmcli(std::vector<std::string> arguments) const;
    // What mmcli knows of the first modem that it finds, or of its SIM, by key ("modem.generic.state"); empty without
    // one.
    std::map<std::string, std::string> modemFacts() const;
    std::map<std::string, std::string> simFacts() const;
    std::string fact(const std::string& key) const;
    // Waits until the condition holds, looking again at each signal of the daemon.
    bool waitFor(const std::function<bool()>& condition, Milliseconds time = Milliseconds(30000));
    bool waitForModem(); // found and past its initialization
    bool waitForNoModem();
    bool waitForFact(const std::string& key, const std::string& value);

private:
    struct Plugged {
        std::vector<Role> roles;
        std::vector<std::string> nodes;
        std::unique_ptr<Modem> modem;
    };

    Environment systemEnvironment() const;
    void startMachine();
    void tellMachine(const std::string& order);
    void setProfile(size_t number);

    BenchSetup m_setup;
    PrivateBus m_bus;
    std::string m_machineFolder;
    std::vector<Plugged> m_modems;
    std::unique_ptr<Child> m_machine;
    std::unique_ptr<Child> m_monitor;
    std::unique_ptr<Child> m_daemon;
};

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_MODEMMANAGERBENCH_H
