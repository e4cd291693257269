// modem: what stands behind card and device, and which hardware that is.

#include <termios.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "Commands.h"
#include "Sdk.h"
#include "orva/orva_modem.h"

namespace pbctl
{

namespace
{

constexpr int longestReading = 60000;

std::string chosenHardware()
{
    unsigned short* choice = nullptr;
    check(ORVA_Modem_GetHardware(&choice), "asking for the hardware");
    return takeUtf8(choice);
}

std::string reportOf()
{
    unsigned short* report = nullptr;
    check(ORVA_Modem_GetReport(&report), "asking the modem");
    return takeUtf8(report);
}

// The value of a key in a report; empty for none.
std::string valueIn(const std::string& report, const std::string& key)
{
    const std::string wanted = "\n" + key + "=";
    const std::size_t at = ("\n" + report).find(wanted);
    if (at == std::string::npos)
        return {};
    const std::size_t begin = at + wanted.size() - 1;
    return report.substr(begin, report.find('\n', begin) - begin);
}

std::string firstLine(const std::filesystem::path& file)
{
    std::ifstream in(file);
    std::string line;
    std::getline(in, line);
    return line;
}

// The rule that keeps ModemManager away from this port and lets the user at the screen open it; nothing for a port that
// is on no USB.
void printRule(const std::string& port)
{
    std::error_code failure;
    const std::filesystem::path known = "/sys/class/tty";
    std::filesystem::path at = std::filesystem::canonical(known / std::filesystem::path(port).filename(), failure);
    if (failure) // another name for it
        at = std::filesystem::canonical(known / std::filesystem::canonical(port, failure).filename(), failure);
    std::string interface;
    for (; !failure && at.has_relative_path(); at = at.parent_path()) {
        if (interface.empty())
            interface = firstLine(at / "bInterfaceNumber");
        const std::string vendor = firstLine(at / "idVendor");
        const std::string product = firstLine(at / "idProduct");
        if (vendor.empty() || product.empty())
            continue;
        std::printf("to keep this port for the phonebook, a line for /etc/udev/rules.d/77-linkhand.rules:\n"
                    "  SUBSYSTEM==\"tty\", ATTRS{idVendor}==\"%s\", ATTRS{idProduct}==\"%s\", "
                    "ENV{ID_USB_INTERFACE_NUM}==\"%s\", ENV{ID_MM_PORT_IGNORE}=\"1\", TAG+=\"uaccess\"\n",
                    vendor.c_str(), product.c_str(), interface.c_str());
        return;
    }
}

void printReport(const std::string& report)
{
    for (std::size_t at = 0; at < report.size();) {
        const std::size_t end = report.find('\n', at);
        const std::string line = report.substr(at, end - at);
        const std::size_t sign = line.find('=');
        const std::string key = line.substr(0, sign);
        if (key != "spare") // the rule names it
            std::printf("%-13s%s\n", key.c_str(), line.substr(sign + 1).c_str());
        at = end + 1;
    }
}

// A line from the standard input, which a terminal does not show.
std::string readSecret()
{
    termios before = {};
    const bool terminal = ::tcgetattr(STDIN_FILENO, &before) == 0;
    if (terminal) {
        termios silent = before;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        ::tcsetattr(STDIN_FILENO, TCSANOW, &silent);
        std::fprintf(stderr, "PIN of the card: ");
    }
    std::string line;
    std::getline(std::cin, line);
    if (terminal) {
        ::tcsetattr(STDIN_FILENO, TCSANOW, &before);
        std::fprintf(stderr, "\n");
    }
    return line;
}

int unlock(bool lastTry)
{
    const std::string tries = valueIn(reportOf(), "pin-tries");
    // One that is not told may be the last.
    if ((tries.empty() || tries == "0" || tries == "1") && !lastTry) {
        const std::string left =
            tries.empty() ? "the modem does not tell how many tries are left" : tries + " tries are left";
        std::fprintf(stderr, "pbctl: %s; a wrong PIN may lock the card. To try all the same: --last-try\n",
                     left.c_str());
        return failed;
    }
    check(ORVA_Modem_Unlock(units(toSdk(readSecret()))), "unlocking the card");
    std::printf("the card is unlocked\n");
    return done;
}

int keepHardware(const std::string& choice)
{
    if (ORVA_Modem_SetHardware(units(toSdk(choice))) == ORVA_E_ARGUMENT)
        throw UsageError("\"" + choice + "\" is neither \"simulated\" nor \"auto\" nor the path of a modem's port");
    std::printf("programs that start from now on use %s\n", choice.c_str());
    return done;
}

} // namespace

void awaitMemory(int memory)
{
    if (memory != ORVA_MEMORY_LOCAL && ORVA_Modem_WaitReady(memory, longestReading) == ORVA_E_BUSY)
        throw SdkError("reading the " + memoryName(memory), ORVA_E_BUSY);
}

int runModem(const Arguments& arguments)
{
    arguments.require(0, 0, {"use", "unlock", "last-try"});
    if (arguments.has("use"))
        return keepHardware(arguments.value("use"));
    const std::string choice = chosenHardware();
    if (choice == "simulated") {
        std::printf("card and device are simulated\n");
        return arguments.has("unlock") ? failed : done;
    }
    awaitMemory(ORVA_MEMORY_CARD);
    if (arguments.has("unlock"))
        return unlock(arguments.has("last-try"));
    awaitMemory(ORVA_MEMORY_DEVICE);
    const std::string report = reportOf();
    printReport(report);
    int status = 0;
    if (ORVA_DevSrv_GetPinStatus(0, &status, nullptr, nullptr, nullptr) != ORVA_OK)
        std::printf("%-13s%s\n", "card", "none");
    else if (status != ORVA_PIN_NOT_NEEDED && status != ORVA_PIN_VERIFIED)
        std::printf("%-13s%s\n", "card", "locked; pbctl modem --unlock takes its PIN");
    const std::string spare = valueIn(report, "spare");
    printRule(spare.empty() ? valueIn(report, "port") : spare);
    return valueIn(report, "problem").empty() ? done : failed;
}

} // namespace pbctl
