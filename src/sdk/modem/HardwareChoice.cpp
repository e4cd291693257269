#include "modem/HardwareChoice.h"

#include <cstdlib>

#include "base/Failure.h"
#include "base/Files.h"

namespace orva
{

namespace
{

constexpr std::size_t choiceLimit = 4096;

std::string choiceFile(const std::string& folder)
{
    return folder + "/hardware";
}

} // namespace

std::string keptHardwareChoice(const std::string& folder)
{
    const std::string text = readSmallFile(choiceFile(folder), choiceLimit);
    const std::string line = text.substr(0, text.find('\n'));
    return line.empty() ? simulatedChoice : line;
}

std::string hardwareChoice(const std::string& folder)
{
    const char* const chosen = std::getenv("LINKHAND_MODEM");
    return chosen != nullptr && *chosen != '\0' ? chosen : keptHardwareChoice(folder);
}

void keepHardwareChoice(const std::string& folder, const std::string& choice)
{
    const bool port = choice.size() > 1 && choice.front() == '/' && choice.size() < choiceLimit;
    const bool named = choice == simulatedChoice || choice == autoChoice;
    if ((!named && !port) || choice.find('\n') != std::string::npos)
        throw Failure(ORVA_E_ARGUMENT, "the hardware is \"simulated\", \"auto\" or the path of a modem's port");
    preparePrivateFolder(folder);
    replacePrivateFile(choiceFile(folder), choice + "\n");
}

} // namespace orva
