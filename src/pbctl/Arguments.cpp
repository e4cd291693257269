#include "Arguments.h"

#include <algorithm>

#include "orva/orva_sdk.h"

namespace pbctl
{

namespace
{

const std::vector<std::string> switches = {"help", "no-groups", "dry-run", "version"};
const std::vector<std::string> valued = {"memory", "data-dir", "group", "map", "from"};

bool contains(const std::vector<std::string>& list, const std::string& text)
{
    return std::find(list.begin(), list.end(), text) != list.end();
}

} // namespace

Arguments::Arguments(int argc, char** argv)
{
    bool onlyWords = false;
    for (int i = 1; i < argc; ++i) {
        const std::string given = argv[i];
        if (onlyWords || given.size() < 2 || given[0] != '-') {
            m_words.push_back(given);
        } else if (given == "--") {
            onlyWords = true;
        } else if (given == "-h") {
            m_options["help"].emplace_back();
        } else {
            const std::size_t equals = std::min(given.find('='), given.size());
            const std::string name = given.substr(0, 2) == "--" ? given.substr(2, equals - 2) : std::string();
            const bool hasValue = equals < given.size();
            if (contains(switches, name) && !hasValue)
                m_options[name].emplace_back();
            else if (contains(valued, name) && hasValue)
                m_options[name].push_back(given.substr(equals + 1));
            else if (contains(valued, name) && i + 1 < argc)
                m_options[name].emplace_back(argv[++i]);
            else if (contains(valued, name))
                throw UsageError("the option --" + name + " needs a value");
            else
                throw UsageError("unknown option " + given);
        }
    }
}

std::string Arguments::value(const std::string& option, const std::string& otherwise) const
{
    const auto found = m_options.find(option);
    return found == m_options.end() ? otherwise : found->second.back();
}

std::vector<std::string> Arguments::values(const std::string& option) const
{
    const auto found = m_options.find(option);
    return found == m_options.end() ? std::vector<std::string>() : found->second;
}

void Arguments::require(std::size_t atLeast, std::size_t atMost, const std::vector<std::string>& options) const
{
    const std::size_t words = m_words.size() - 1;
    if (words < atLeast)
        throw UsageError("something is missing behind \"" + m_words[0] + "\"");
    if (words > atMost)
        throw UsageError("what is \"" + m_words[atMost + 1] + "\"?");
    for (const auto& option : m_options)
        if (option.first != "data-dir" && !contains(options, option.first))
            throw UsageError("\"" + m_words[0] + "\" has no option --" + option.first);
}

int Arguments::memory() const
{
    const std::string name = value("memory", "local");
    if (name == "local" || name == "pc")
        return ORVA_MEMORY_LOCAL;
    if (name == "card" || name == "sim")
        return ORVA_MEMORY_CARD;
    if (name == "device")
        return ORVA_MEMORY_DEVICE;
    throw UsageError("unknown memory \"" + name + "\": local, card or device");
}

} // namespace pbctl
