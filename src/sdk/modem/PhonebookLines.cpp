#include "modem/PhonebookLines.h"

#include <algorithm>
#include <charconv>

#include "modem/AtDialog.h"
#include "modem/TextCoding.h"

namespace orva
{

namespace
{

constexpr std::size_t npos = std::string_view::npos;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool allDigits(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), isDigit);
}

int number(std::string_view text, int otherwise)
{
    text = trimmed(text);
    int value = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value);
    return !text.empty() && read.ec == std::errc() && read.ptr == end && value >= 0 ? value : otherwise;
}

std::string_view withoutBlanks(std::string_view text)
{
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    return text;
}

// Takes the field that `rest` begins with, and the comma behind it. A quotation mark within is not expected here.
std::string_view takeField(std::string_view& rest)
{
    rest = withoutBlanks(rest);
    std::size_t end = 0;
    std::string_view field;
    if (!rest.empty() && rest.front() == '"') {
        const std::size_t close = std::min(rest.find('"', 1), rest.size());
        field = rest.substr(1, close - 1);
        end = std::min(rest.find(',', close), rest.size());
    } else {
        end = std::min(rest.find(','), rest.size());
        field = trimmed(rest.substr(0, end));
    }
    rest = end < rest.size() ? rest.substr(end + 1) : std::string_view();
    return field;
}

// Whether what stands behind a text can be further fields of an entry.
bool plausibleTail(std::string_view rest)
{
    for (;;) {
        rest = withoutBlanks(rest);
        if (rest.empty())
            return true;
        if (rest.front() != ',')
            return false;
        rest = withoutBlanks(rest.substr(1));
        if (!rest.empty() && rest.front() == '"') {
            const std::size_t close = rest.find('"', 1);
            if (close == npos)
                return false;
            rest = rest.substr(close + 1);
            continue;
        }
        std::size_t end = 0;
        while (end < rest.size() && isDigit(rest[end]))
            ++end;
        rest = rest.substr(end);
    }
}

// The alpha identifier, which may hold raw quotation marks, and what stands behind it.
void takeText(std::string_view rest, EntryLine& entry)
{
    rest = withoutBlanks(rest);
    if (rest.empty() || rest.front() != '"') {
        const std::size_t end = std::min(rest.find(','), rest.size());
        entry.text = trimmed(rest.substr(0, end));
        entry.tail = rest.substr(end);
        return;
    }
    rest.remove_prefix(1);
    for (std::size_t close = rest.find('"'); close != npos; close = rest.find('"', close + 1)) {
        if (plausibleTail(rest.substr(close + 1))) {
            entry.text = rest.substr(0, close);
            entry.tail = trimmed(rest.substr(close + 1));
            return;
        }
    }
    entry.text = rest; // cut off
}

// The smallest and the largest number of a list such as "1-250" or "1,2,5-9".
void readRange(std::string_view list, StorageShape& shape)
{
    for (std::size_t i = 0; i < list.size();) {
        if (!isDigit(list[i])) {
            ++i;
            continue;
        }
        std::size_t end = i;
        while (end < list.size() && isDigit(list[end]))
            ++end;
        const int value = number(list.substr(i, end - i), -1);
        if (value >= 0) {
            shape.first = shape.first < 0 ? value : std::min(shape.first, value);
            shape.last = std::max(shape.last, value);
        }
        i = end;
    }
}

std::string plainName(std::string_view name)
{
    return asciiOfHexUcs2(name).value_or(std::string(name));
}

} // namespace

bool isLocation(std::string_view field)
{
    constexpr std::size_t longest = 5;
    field = trimmed(field);
    if (field.size() >= 2 && field.front() == '"' && field.back() == '"')
        field = field.substr(1, field.size() - 2);
    return field.size() <= longest && allDigits(field);
}

std::optional<EntryLine> readEntryLine(std::string_view line)
{
    std::string_view rest = answerText(line, "+CPBR");
    EntryLine entry;
    if (!isLocation(rest.substr(0, rest.find(','))))
        return std::nullopt;
    entry.location = number(takeField(rest), -1);
    if (entry.location < 0)
        return std::nullopt;
    std::string_view first = takeField(rest);
    rest = withoutBlanks(rest);
    if (!rest.empty() && rest.front() == '"') {
        // A field of the modem's own before the number: then the type stands third.
        std::string_view behind = rest;
        const std::string_view second = takeField(behind);
        std::string_view typed = behind;
        if (const std::string_view type = takeField(typed); !type.empty() && allDigits(type)) {
            first = second;
            rest = behind;
        }
    }
    entry.number = first;
    if (!rest.empty() && rest.front() != '"')
        entry.type = number(takeField(rest), 0);
    takeText(rest, entry);
    return entry;
}

StorageStatus readStorageStatus(std::string_view line)
{
    std::string_view rest = answerText(line, "+CPBS");
    StorageStatus status;
    status.storage = plainName(takeField(rest));
    status.used = number(takeField(rest), -1);
    status.total = number(takeField(rest), -1);
    return status;
}

StorageShape readStorageShape(std::string_view line)
{
    std::string_view rest = answerText(line, "+CPBR");
    StorageShape shape;
    std::size_t end = std::min(rest.find(','), rest.size());
    if (!rest.empty() && rest.front() == '(')
        end = std::min(rest.find(')'), rest.size());
    readRange(rest.substr(0, end), shape);
    rest = rest.substr(std::min(rest.find(',', end), rest.size()));
    if (!rest.empty())
        rest.remove_prefix(1);
    std::vector<int> lengths;
    while (!rest.empty()) {
        std::string field(takeField(rest));
        field.erase(std::remove_if(field.begin(), field.end(), [](char c) { return c == '(' || c == ')'; }),
                    field.end());
        // A length may be told as a range of its own, of which the end counts.
        const std::size_t dash = field.find('-');
        lengths.push_back(number(dash == std::string::npos ? field : field.substr(dash + 1), -1));
    }
    if (!lengths.empty())
        shape.numberLength = lengths[0];
    if (lengths.size() > 1)
        shape.textLength = lengths[1];
    shape.moreLengths = lengths.size() > 2 ? static_cast<int>(lengths.size()) - 2 : 0;
    return shape;
}

std::vector<std::string> readStorageNames(std::string_view line)
{
    std::vector<std::string> names;
    std::string_view rest = answerText(line, "+CPBS");
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find_first_of("(), \""), rest.size());
        if (end > 0) {
            const std::string name = plainName(rest.substr(0, end));
            if (std::find(names.begin(), names.end(), name) == names.end())
                names.push_back(name);
        }
        rest = rest.substr(std::min(end + 1, rest.size()));
    }
    return names;
}

std::string writableTail(std::string_view tail)
{
    std::vector<std::string> fields;
    bool quotedFirst = false;
    std::string_view rest = withoutBlanks(tail);
    if (!rest.empty() && rest.front() == ',')
        rest.remove_prefix(1);
    for (bool more = !rest.empty(); more;) {
        const std::string_view left = withoutBlanks(rest);
        const bool quoted = !left.empty() && left.front() == '"';
        const bool last = left.find(',', quoted ? std::min(left.find('"', 1), left.size()) : 0) == npos;
        if (fields.empty())
            quotedFirst = quoted;
        const std::string field(takeField(rest));
        fields.push_back(quoted ? "\"" + field + "\"" : field);
        more = !last;
    }
    // An entry's answer tells first whether it is hidden, the command last.
    constexpr std::size_t behindText = 7;
    const bool hiddenFirst = !fields.empty() && !quotedFirst && (!fields[0].empty() || fields.size() > behindText);
    std::string hidden;
    if (hiddenFirst) {
        hidden = fields[0];
        fields.erase(fields.begin());
    }
    if (hidden == "1") {
        fields.resize(behindText);
        fields.push_back(hidden);
    }
    std::string out;
    const bool any =
        std::any_of(fields.begin(), fields.end(), [](const std::string& f) { return f.size() > 2 || f == "1"; });
    for (const std::string& field : fields)
        out += "," + field;
    return any ? out : std::string();
}

std::vector<std::string> splitFields(std::string_view text)
{
    std::vector<std::string> fields;
    while (!text.empty())
        fields.emplace_back(takeField(text));
    return fields;
}

} // namespace orva
