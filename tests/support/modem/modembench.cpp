// A program, or a shell, that finds the simulated modem behind the real ModemManager on a private bus.

#include "support/modem/ControlSocket.h"
#include "support/modem/ModemManagerBench.h"
#include "support/modem/Options.h"

#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <unistd.h>

using namespace modemsim;

namespace
{

void help()
{
    std::printf(
        "Usage: modembench [OPTIONS] -- COMMAND...\n\n"
        "Runs the command with a bus of its own on which ModemManager has found the simulated modem. The variable\n"
        "MODEMSIM_CONTROL names the socket for orders: modemsim --tell $MODEMSIM_CONTROL unplug\n\n"
        "  --roles ROLE,...       a port each: primary, secondary, free, ignored; without it one of the first three\n"
        "  --sockets              not a mocked machine with USB ports, but the daemon's own test interface\n"
        "  --unplugged            the modem is not there at the start\n"
        "  --no-daemon            ModemManager does not run, and the modem is not there\n"
        "  --control NAME         the name of the socket for orders\n%s",
        optionsHelp());
}

std::vector<Role> rolesOf(const std::string& text)
{
    std::vector<Role> roles;
    for (size_t at = 0; at <= text.size();) {
        const size_t end = std::min(text.find(',', at), text.size());
        const std::string name = text.substr(at, end - at);
        if (name == "primary")
            roles.push_back(Role::Primary);
        else if (name == "secondary")
            roles.push_back(Role::Secondary);
        else if (name == "free")
            roles.push_back(Role::Free);
        else if (name == "ignored")
            roles.push_back(Role::Ignored);
        else
            throw std::invalid_argument("no such role: " + name);
        at = end + 1;
    }
    return roles;
}

// Orders that concern more than the modem itself.
void addOrders(Control& control, ModemManagerBench& bench)
{
    control.add("plug", "", [&bench](const std::string&) {
        bench.plug();
        return std::string();
    });
    control.add("unplug", "", [&bench](const std::string&) {
        bench.unplug();
        return std::string();
    });
    control.add("daemon", "kill, stop or start: ModemManager", [&bench](const std::string& argument) {
        if (argument == "start")
            bench.startDaemon();
        else
            bench.endDaemon(argument == "kill" ? SIGKILL : SIGTERM);
        return std::string();
    });
    control.add("held", "the ports that ModemManager has open", [&bench](const std::string&) {
        std::string text;
        for (const std::string& port : bench.held())
            text += port + '\n';
        return text;
    });
}

// Ends with the command, or ends the command on a signal.
int runCommand(const std::vector<std::string>& command, const Environment& environment, const sigset_t& ends)
{
    Child child(command, environment, "-");
    while (true) {
        const int status = child.wait(Milliseconds(100));
        if (status >= 0)
            return status;
        const timespec none = {};
        if (::sigtimedwait(&ends, nullptr, &none) > 0)
            child.end(SIGTERM);
    }
}

int serve(const BenchSetup& setup, bool plugged, std::string controlName, const std::vector<std::string>& command)
{
    sigset_t ends;
    ::sigemptyset(&ends);
    ::sigaddset(&ends, SIGINT);
    ::sigaddset(&ends, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &ends, nullptr);
    ModemManagerBench bench(setup);
    if (plugged) {
        bench.plug();
        if (!bench.waitForModem())
            throw std::runtime_error("ModemManager does not find the modem");
    }
    Control control(bench.modem());
    addOrders(control, bench);
    if (controlName.empty())
        controlName = "modembench-control-" + std::to_string(::getpid());
    const ControlSocket socket(controlName, control);
    Environment environment = bench.environment();
    environment["MODEMSIM_CONTROL"] = controlName;
    return runCommand(command, environment, ends);
}

} // namespace

int main(int argc, char** argv)
{
    BenchSetup setup;
    setup.roles = {Role::Primary, Role::Secondary, Role::Free};
    bool plugged = true;
    std::string control;
    std::vector<std::string> command;
    try {
        for (int i = 1; i < argc; ++i) {
            const std::string option = argv[i];
            if (takeOption(argc, argv, i, setup.plan))
                continue;
            if (option == "--roles" && i + 1 < argc) {
                setup.roles = rolesOf(argv[++i]);
            } else if (option == "--control" && i + 1 < argc) {
                control = argv[++i];
            } else if (option == "--sockets") {
                setup.usb = false;
            } else if (option == "--unplugged") {
                plugged = false;
            } else if (option == "--no-daemon") {
                plugged = setup.daemon = false;
            } else if (option == "--") {
                command.assign(argv + i + 1, argv + argc);
                break;
            } else {
                help();
                return option == "--help" ? 0 : 2;
            }
        }
        if (command.empty()) {
            help();
            return 2;
        }
        return serve(setup, plugged, control, command);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "modembench: %s\n", e.what());
        return 1;
    }
}
