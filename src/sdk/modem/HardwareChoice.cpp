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

// Empty if nothing is kept.
std::string keptLine(const std::string& folder)
{
    const std::string text = readSmallFile(choiceFile(folder), choiceLimit);
    return text.substr(0, text.find('\n'));
}

// Empty if the environment says nothing.
std::string environmentChoice()
{
    const char* const chosen = std::getenv("LINKHAND_MODEM");
    return chosen != nullptr ? chosen : std::string();
}

} // namespace

std::string keptHardwareChoice(const std::string& folder)
{
    const std::string line = keptLine(folder);
    return line.empty() ? simulatedChoice : line;
}

std::string hardwareChoice(const std::string& folder)
{
    const std::string chosen = environmentChoice();
    return chosen.empty() ? keptHardwareChoice(folder) : chosen;
}

bool hasHardwareChoice(const std::string& folder)
{
    return !environmentChoice().empty() || !keptLine(folder).empty();
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
