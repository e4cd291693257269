#include "support/modem/ModemManagerBench.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

namespace modemsim
{

namespace
{

const char preload[] = "libumockdev-preload.so.0";
const char daemonName[] = "org.freedesktop.ModemManager1";

// The library of the sanitizer that this program is built with, and a blank; empty without one.
std::string sanitizerLibrary()
{
    Dl_info info{};
    void* const start = dlsym(RTLD_DEFAULT, "__asan_init");
    return start != nullptr && dladdr(start, &info) != 0 ? std::string(info.dli_fname) + ' ' : std::string();
}

const char* roleName(Role role)
{
    switch (role) {
    case Role::Primary:
        return "primary";
    case Role::Secondary:
        return "secondary";
    case Role::Ignored:
        return "ignored";
    case Role::Free:
        break;
    }
    return "free";
}

// The lines "key : value" of mmcli's form for programs; "--" stands for nothing.
std::map<std::string, std::string> facts(const Outcome& outcome)
{
    std::map<std::string, std::string> all;
    std::istringstream lines(outcome.output);
    for (std::string line; std::getline(lines, line);) {
        const size_t colon = line.find(" : ");
        if (outcome.status != 0 || colon == std::string::npos)
            continue;
        const std::string value = line.substr(colon + 3);
        all[line.substr(0, line.find_last_not_of(' ', colon) + 1)] = value == "--" ? std::string() : value;
    }
    return all;
}

} // namespace

ModemManagerBench::ModemManagerBench(const BenchSetup& setup) : m_setup(setup)
{
    m_monitor =
        std::make_unique<Child>(std::vector<std::string>{"dbus-monitor", "--session", "--profile",
                                                         "type='signal',sender='org.freedesktop.ModemManager1'"},
                                m_bus.environment());
    addModem(setup.plan, setup.roles);
    if (setup.usb)
        startMachine();
    if (setup.daemon)
        startDaemon();
}

size_t ModemManagerBench::addModem(const Plan& plan, const std::vector<Role>& roles)
{
    size_t count = 0;
    for (const Plugged& plugged : m_modems)
        count += plugged.nodes.size();
    Plugged added;
    added.roles = roles;
    Plan whole = plan;
    whole.ports.clear();
    for (size_t i = 0; i < roles.size(); ++i, ++count) {
        PortPlan port;
        if (!m_setup.usb) {
            // Behind the daemon's prefix its whole name is the socket's.
            port.kind = PortPlan::Socket;
            port.name = "abstract:modembench-" + std::to_string(::getpid()) + '-' +
                        m_bus.folder().substr(m_bus.folder().size() - 6) + '-' + std::to_string(count);
        }
        added.nodes.push_back(m_setup.usb ? "ttyUSB" + std::to_string(count) : port.name);
        whole.ports.push_back(port);
    }
    added.modem = std::make_unique<Modem>(whole);
    if (m_setup.usb)
        added.modem->unplug();
    m_modems.push_back(std::move(added));
    return m_modems.size() - 1;
}

ModemManagerBench::~ModemManagerBench()
{
    if (m_daemon)
        m_daemon->end(SIGTERM);
    m_monitor.reset();
    if (m_machine) {
        m_machine->closeInput();
        m_machine->wait(Milliseconds(30000)); // it takes its folder away
    }
}

void ModemManagerBench::startMachine()
{
    const char* source = std::getenv("LINKHAND_SOURCE_DIR");
    const std::string script = (source != nullptr ? std::string(source) : std::string(MODEMSIM_SOURCE_DIR)) +
                               "/tests/support/modem/mockusb.py";
    m_machine = std::make_unique<Child>(std::vector<std::string>{"/usr/bin/python3", script},
                                        Environment{{"LD_PRELOAD", preload}, {"PYTHONDONTWRITEBYTECODE", "1"}});
    while (m_machineFolder.empty() || m_machineFolder[0] != '/') {
        if (!m_machine->readLine(m_machineFolder, Milliseconds(30000)))
            throw std::runtime_error("the mocked machine does not start");
    }
}

void ModemManagerBench::tellMachine(const std::string& order)
{
    m_machine->write(order + '\n');
    std::string answer;
    if (!m_machine->readLine(answer) || answer != "ok")
        throw std::runtime_error(order + ": " + answer);
}

Environment ModemManagerBench::environment() const
{
    Environment all = systemEnvironment();
    if (m_setup.usb)
        all["LD_PRELOAD"] = sanitizerLibrary() + all["LD_PRELOAD"];
    return all;
}

Environment ModemManagerBench::systemEnvironment() const
{
    Environment all = m_bus.environment();
    if (m_setup.usb) {
        all["UMOCKDEV_DIR"] = m_machineFolder;
        all["LD_PRELOAD"] = preload;
    }
    return all;
}

std::string ModemManagerBench::node(size_t port, size_t number) const
{
    return m_modems.at(number).nodes.at(port);
}

void ModemManagerBench::startDaemon()
{
    std::vector<std::string> command = {"ModemManager", "--test-session", "--test-no-suspend-resume"};
    // Without udev or without QRTR it would not scan for ports either.
    if (m_setup.usb)
        command.insert(command.end(), {"--filter-policy=strict"});
    else
        command.insert(command.end(), {"--test-enable", "--test-no-udev", "--test-no-qrtr", "--no-auto-scan"});
    m_daemon = std::make_unique<Child>(command, systemEnvironment(), m_bus.folder() + "/daemon.log");
    if (!waitFor([this] { return mmcli({"--list-modems"}).status == 0; }))
        throw std::runtime_error("ModemManager does not start");
}

void ModemManagerBench::endDaemon(int signal)
{
    m_daemon->end(signal);
}

void ModemManagerBench::setProfile(size_t number)
{
    std::string names;
    for (const std::string& name : m_modems.at(number).nodes)
        names += (names.empty() ? "" : ",") + name;
    const Outcome outcome =
        runProgram({"dbus-send", "--session", "--print-reply", std::string("--dest=") + daemonName,
                    "/org/freedesktop/ModemManager1", std::string(daemonName) + ".Test.SetProfile",
                    "string:test" + std::to_string(number), "string:generic", "array:string:" + names},
                   m_bus.environment());
    if (outcome.status != 0)
        throw std::runtime_error(outcome.output);
}

// The place of a modem on the hub.
static std::string usbName(size_t number)
{
    return "1-" + std::to_string(number + 1);
}

void ModemManagerBench::plug(size_t number)
{
    const Plugged& plugged = m_modems.at(number);
    plugged.modem->plug();
    if (!m_setup.usb) {
        setProfile(number);
        return;
    }
    std::string order = "plug " + usbName(number) + ' ' + m_setup.vendor + ' ' + m_setup.product;
    for (size_t i = 0; i < plugged.nodes.size(); ++i)
        order += ' ' + plugged.nodes[i] + ':' + plugged.modem->terminal(i) + ':' + roleName(plugged.roles[i]);
    tellMachine(order);
}

// The lines die first, as they do when a plug is pulled; the kernel's message follows.
void ModemManagerBench::unplug(size_t number)
{
    m_modems.at(number).modem->unplug();
    tellMachine("unplug " + usbName(number));
}

std::vector<std::string> ModemManagerBench::held() const
{
    std::vector<std::string> names;
    std::error_code ignored;
    const std::string folder = "/proc/" + std::to_string(m_daemon->pid()) + "/fd";
    for (const auto& entry : std::filesystem::directory_iterator(folder, ignored)) {
        const std::string target = std::filesystem::read_symlink(entry.path(), ignored).string();
        for (const Plugged& plugged : m_modems) {
            for (size_t i = 0; i < plugged.nodes.size(); ++i) {
                if (!target.empty() && target == plugged.modem->terminal(i))
                    names.push_back(plugged.nodes[i]);
            }
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

Outcome ModemManagerBench::mmcli(std::vector<std::string> arguments) const
{
    arguments.insert(arguments.begin(), "mmcli");
    return runProgram(arguments, m_bus.environment());
}

std::map<std::string, std::string> ModemManagerBench::modemFacts() const
{
    return facts(mmcli({"-m", "any", "-K"}));
}

std::map<std::string, std::string> ModemManagerBench::simFacts() const
{
    return facts(mmcli({"-i", "any", "-K"}));
}

std::string ModemManagerBench::fact(const std::string& key) const
{
    const auto all = key.compare(0, 4, "sim.") == 0 ? simFacts() : modemFacts();
    const auto found = all.find(key);
    return found == all.end() ? std::string() : found->second;
}

// Signals may be missed between a look and the wait: so it looks again after half a second of silence at the latest.
bool ModemManagerBench::waitFor(const std::function<bool()>& condition, Milliseconds time)
{
    const auto end = std::chrono::steady_clock::now() + time;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::string line;
        if (m_monitor->readLine(line, Milliseconds(500))) {
            while (m_monitor->readLine(line, Milliseconds(0))) {
            }
        }
    }
    return true;
}

bool ModemManagerBench::waitForModem()
{
    return waitFor([this] {
        const std::string state = fact("modem.generic.state");
        return !state.empty() && state != "unknown" && state != "initializing";
    });
}

bool ModemManagerBench::waitForNoModem()
{
    return waitFor([this] { return mmcli({"--list-modems"}).output.find("/Modem/") == std::string::npos; });
}

bool ModemManagerBench::waitForFact(const std::string& key, const std::string& value)
{
    if (waitFor([&] { return fact(key) == value; }))
        return true;
    std::fprintf(stderr, "%s is \"%s\" and not \"%s\"\n", key.c_str(), fact(key).c_str(), value.c_str());
    return false;
}

} // namespace modemsim
