#include "Arguments.h"

#include <getopt.h>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string_view>

#include "base/Unicode.h"
#include "csv/LocalText.h"
#include "orva/orva_sdk.h"

namespace pbctl
{

namespace
{

constexpr int longOption = 256; // beyond all characters

constexpr option known[] = {
    {"help", no_argument, nullptr, longOption},
    {"version", no_argument, nullptr, longOption},
    {"no-groups", no_argument, nullptr, longOption},
    {"skip-existing", no_argument, nullptr, longOption},
    {"update", no_argument, nullptr, longOption},
    {"dry-run", no_argument, nullptr, longOption},
    {"json", no_argument, nullptr, longOption},
    {"empty", no_argument, nullptr, longOption},
    {"all", no_argument, nullptr, longOption},
    {"memory", required_argument, nullptr, longOption},
    {"data-dir", required_argument, nullptr, longOption},
    {"group", required_argument, nullptr, longOption},
    {"map", required_argument, nullptr, longOption},
    {"from", required_argument, nullptr, longOption},
    {"hardware", required_argument, nullptr, longOption},
    {"use", required_argument, nullptr, longOption},
    {"unlock", no_argument, nullptr, longOption},
    {"last-try", no_argument, nullptr, longOption},
    {"format", required_argument, nullptr, longOption},
    {"force", no_argument, nullptr, longOption},
    {"setup", required_argument, nullptr, longOption},
    {"user", required_argument, nullptr, longOption},
    {"password-command", required_argument, nullptr, longOption},
    {"run", no_argument, nullptr, longOption},
    {"timer", no_argument, nullptr, longOption},
    {"merge", no_argument, nullptr, longOption},
    {"before", required_argument, nullptr, longOption},
    {"wait", required_argument, nullptr, longOption},
    {nullptr, 0, nullptr, 0},
};

// Those that are text; the others are paths, words of ours, or another program's.
constexpr std::string_view texts[] = {"group", "map", "user"};

std::string valueIn(std::string_view name, const char* given)
{
    const std::string value(given != nullptr ? given : "");
    return std::find(std::begin(texts), std::end(texts), name) == std::end(texts) ? value : textIn(value);
}

// The colon: getopt says nothing by itself, and tells a missing value from an unknown option.
constexpr char shortOptions[] = ":h";

} // namespace

Arguments::Arguments(int argc, char** argv)
{
    optind = 0; // from the beginning, also a second time
    for (;;) {
        int index = 0;
        const int found = getopt_long(argc, argv, shortOptions, known, &index);
        if (found == -1)
            break;
        if (found == longOption) {
            m_options[known[index].name].push_back(valueIn(known[index].name, optarg));
        } else if (found == 'h') {
            m_options["help"].emplace_back();
        } else {
            const bool isShort = optopt > 0 && optopt < longOption;
            const std::string given = isShort ? std::string("-") + static_cast<char>(optopt) : argv[optind - 1];
            throw UsageError(found == ':' ? "the option " + given + " needs a value" : "unknown option " + given);
        }
    }
    m_words.assign(argv + optind, argv + argc);
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
        if (option.first != "data-dir" && option.first != "hardware" &&
            std::find(options.begin(), options.end(), option.first) == options.end())
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

std::string textIn(const std::string& argument)
{
    constexpr std::string_view unreadable = "\xEF\xBF\xBD";
    if (orva::isUtf8(argument))
        return argument;
    std::string text = orva::fromLocal(argument);
    if (!orva::isUtf8(text) || text.find(unreadable) != std::string::npos)
        throw UsageError("neither UTF-8 nor text in the encoding of the locale: \"" + argument + "\"");
    return text;
}

int identifierIn(const std::string& word)
{
    int id = 0;
    const auto read = std::from_chars(word.data(), word.data() + word.size(), id);
    if (read.ec != std::errc() || read.ptr != word.data() + word.size() || id < 1)
        throw UsageError("\"" + word + "\" is no identifier");
    return id;
}

} // namespace pbctl
