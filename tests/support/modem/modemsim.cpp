// The simulated modem as a program, for clients that are programs themselves. Orders come by standard input, each
// answer ends with a line that holds a full stop; it ends with its standard input, or on a signal with --stay.

#include "support/modem/ControlSocket.h"
#include "support/modem/Options.h"

#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <sys/prctl.h>
#include <unistd.h>

using namespace modemsim;

static void help()
{
    std::printf("Usage: modemsim [OPTIONS]\n"
                "       modemsim --tell NAME ORDER   sends an order to a running one\n\n"
                "  --pty [LINK]           a port on a pseudo terminal, with a symbolic link to it\n"
                "  --socket NAME          a port on an abstract socket\n"
                "  --tcp PORT             a port on 127.0.0.1\n"
                "  --control NAME         takes orders at an abstract socket too\n"
                "  --stay                 does not end with its standard input\n%s"
                "  --quirks               lists the quirks\n",
                optionsHelp());
}

static void listQuirks()
{
    for (const QuirkInfo& info : knownQuirks())
        std::printf("%-22s %s\n", (std::string(info.name) + (*info.sample ? "=" : "") + info.sample).c_str(),
                    info.what);
}

static int serve(const Plan& plan, const std::string& controlName, bool stay)
{
    Modem modem(plan);
    const Control control(modem);
    std::unique_ptr<ControlSocket> socket;
    if (!controlName.empty())
        socket = std::make_unique<ControlSocket>(controlName, control);
    for (size_t i = 0; i < plan.ports.size(); ++i)
        std::cout << "port " << i << ' ' << modem.portPath(i) << '\n';
    std::cout << ".\n" << std::flush;
    for (std::string line; std::getline(std::cin, line);) {
        if (line == "quit")
            return 0;
        std::cout << control.obey(line) << std::flush;
    }
    sigset_t ends;
    sigemptyset(&ends);
    sigaddset(&ends, SIGINT);
    sigaddset(&ends, SIGTERM);
    int signal = 0;
    if (stay)
        sigwait(&ends, &signal);
    return 0;
}

int main(int argc, char** argv)
{
    Plan plan = standardPlan();
    plan.ports.clear();
    std::string control;
    bool stay = false;
    try {
        for (int i = 1; i < argc; ++i) {
            const std::string option = argv[i];
            const bool hasValue = i + 1 < argc && argv[i + 1][0] != '-';
            if (takeOption(argc, argv, i, plan))
                continue;
            if (option == "--pty") {
                plan.ports.push_back({PortPlan::Pty, hasValue ? argv[++i] : ""});
            } else if (option == "--socket" && hasValue) {
                plan.ports.push_back({PortPlan::Socket, argv[++i]});
            } else if (option == "--tcp" && hasValue) {
                plan.ports.push_back({PortPlan::Tcp, argv[++i]});
            } else if (option == "--control" && hasValue) {
                control = argv[++i];
            } else if (option == "--stay") {
                stay = true;
            } else if (option == "--quirks") {
                listQuirks();
                return 0;
            } else if (option == "--tell" && i + 2 < argc) {
                std::cout << ControlSocket::tell(argv[i + 1], argv[i + 2]);
                return 0;
            } else {
                help();
                return option == "--help" ? 0 : 2;
            }
        }
        if (plan.ports.empty())
            plan.ports.emplace_back();
        if (stay) {
            sigset_t ends;
            sigemptyset(&ends);
            sigaddset(&ends, SIGINT);
            sigaddset(&ends, SIGTERM);
            ::pthread_sigmask(SIG_BLOCK, &ends, nullptr);
        }
        return serve(plan, control, stay);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "modemsim: %s\n", e.what());
        return 1;
    }
}
