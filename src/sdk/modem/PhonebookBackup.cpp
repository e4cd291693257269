#include "modem/PhonebookBackup.h"

#include <charconv>
#include <set>

#include "base/Text.h"
#include "base/Unicode.h"

namespace orva
{

namespace
{

constexpr std::string_view head = "linkhand phonebook ";
constexpr std::string_view version = "1";
constexpr std::string_view end = "end";

std::string escaped(std::string_view text)
{
    std::string out;
    for (const char c : text) {
        switch (c) {
        case '\\':
            out += "\\\\";
            break;
        case '\t':
            out += "\\t";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        default:
            out.push_back(c);
        }
    }
    return out;
}

std::string unescaped(std::string_view text)
{
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            out.push_back(text[i]);
            continue;
        }
        const char c = text[++i];
        out.push_back(c == 't' ? '\t' : c == 'n' ? '\n' : c == 'r' ? '\r' : c);
    }
    return out;
}

std::string_view takeUpTo(std::string_view& text, char separator)
{
    const std::size_t at = std::min(text.find(separator), text.size());
    const std::string_view taken = text.substr(0, at);
    text.remove_prefix(std::min(at + 1, text.size()));
    return taken;
}

Failure noBackup()
{
    return Failure(ORVA_E_FORMAT, "no whole copy of a phonebook");
}

PhonebookEntry readEntry(std::string_view line)
{
    PhonebookEntry entry;
    const std::string_view location = takeUpTo(line, '\t');
    const auto read = std::from_chars(location.data(), location.data() + location.size(), entry.location);
    if (read.ec != std::errc() || read.ptr != location.data() + location.size() || entry.location < 0)
        throw noBackup();
    entry.number = unescaped(takeUpTo(line, '\t'));
    if (entry.number != cleanNumber(entry.number) || !appendUtf16(unescaped(takeUpTo(line, '\t')), entry.alpha))
        throw noBackup();
    entry.tail = unescaped(line);
    return entry;
}

} // namespace

std::string writeBackup(const PhonebookBackup& backup)
{
    std::string text = std::string(head) + std::string(version) + "\n" + backup.key + "\n";
    for (const PhonebookEntry& entry : backup.entries)
        text += std::to_string(entry.location) + "\t" + escaped(entry.number) + "\t" + escaped(toUtf8(entry.alpha)) +
                "\t" + escaped(entry.tail) + "\n";
    return text + std::string(end) + "\n";
}

PhonebookBackup readBackup(std::string_view text)
{
    const std::string_view first = takeUpTo(text, '\n');
    if (first.substr(0, head.size()) != head)
        throw noBackup();
    if (first.substr(head.size()) != version)
        throw Failure(ORVA_E_VERSION, "a copy of a phonebook by a newer release");
    PhonebookBackup backup;
    backup.key = takeUpTo(text, '\n');
    std::set<int> locations;
    while (!text.empty()) {
        const std::string_view line = takeUpTo(text, '\n');
        if (line == end)
            return backup;
        backup.entries.push_back(readEntry(line));
        if (!locations.insert(backup.entries.back().location).second)
            throw noBackup();
    }
    throw noBackup();
}

} // namespace orva
