#include "contactapps/VCard.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

namespace orva
{

namespace
{

struct Property {
    std::string name;       // upper case, without a group in front
    std::string parameters; // upper case, as ";TYPE=CELL;..." or ";CELL"
    std::string value;
};

std::string upper(std::string_view text)
{
    std::string out(text);
    for (char& c : out)
        c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 0x20 : c);
    return out;
}

// The lines of a card with folded ones joined.
std::vector<std::string> unfolded(std::string_view card)
{
    std::vector<std::string> lines;
    while (!card.empty()) {
        const std::size_t end = std::min(card.find('\n'), card.size());
        std::string_view line = card.substr(0, end);
        card.remove_prefix(std::min(end + 1, card.size()));
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        if (!lines.empty() && !line.empty() && (line[0] == ' ' || line[0] == '\t'))
            lines.back().append(line.substr(1));
        else
            lines.emplace_back(line);
    }
    return lines;
}

bool readProperty(const std::string& line, Property& property)
{
    bool quoted = false;
    std::size_t colon = 0;
    while (colon < line.size() && (quoted || line[colon] != ':')) {
        quoted = quoted != (line[colon] == '"');
        ++colon;
    }
    if (colon >= line.size())
        return false;
    const std::string head = upper(std::string_view(line).substr(0, colon));
    const std::size_t semicolon = std::min(head.find(';'), head.size());
    const std::size_t dot = head.rfind('.', semicolon);
    const std::size_t begin = dot == std::string::npos ? 0 : dot + 1;
    property.name = begin <= semicolon ? head.substr(begin, semicolon - begin) : std::string();
    property.parameters = head.substr(semicolon);
    property.value = line.substr(colon + 1);
    return true;
}

bool has(const Property& property, const char* word)
{
    return property.parameters.find(word) != std::string::npos;
}

std::string fromQuotedPrintable(const std::string& text)
{
    const auto digit = [](char c) { return c >= '0' && c <= '9' ? c - '0' : c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1; };
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '=' && i + 2 < text.size() && digit(text[i + 1]) >= 0 && digit(text[i + 2]) >= 0) {
            out.push_back(static_cast<char>(digit(text[i + 1]) * 16 + digit(text[i + 2])));
            i += 2;
        } else {
            out.push_back(text[i]);
        }
    }
    return out;
}

// Splits at separators that no backslash precedes, and takes the backslashes out.
std::vector<std::string> parts(std::string_view value, char separator)
{
    std::vector<std::string> out(1);
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '\\' && i + 1 < value.size()) {
            ++i;
            out.back().push_back(value[i] == 'n' || value[i] == 'N' ? '\n' : value[i]);
        } else if (value[i] == separator) {
            out.emplace_back();
        } else {
            out.back().push_back(value[i]);
        }
    }
    return out;
}

std::string plain(const Property& property)
{
    return parts(property.value, '\0').front();
}

// "Family;Given;Additional;..." as it is said.
std::string spokenName(const Property& property)
{
    const std::vector<std::string> names = parts(property.value, ';');
    std::string out = names.size() > 1 ? names[1] : std::string();
    if (!out.empty() && !names[0].empty())
        out.push_back(' ');
    return out + names[0];
}

void addNumber(const Property& property, AppContact& contact)
{
    if (has(property, "FAX") || has(property, "PAGER"))
        return;
    std::string number = plain(property);
    if (upper(number).rfind("TEL:", 0) == 0)
        number.erase(0, 4);
    std::string* place = has(property, "CELL")   ? &contact.mobile
                         : has(property, "WORK") ? &contact.office
                         : has(property, "HOME") ? &contact.home
                                                 : nullptr;
    for (std::string* next : {place, &contact.mobile, &contact.home, &contact.office}) {
        if (next != nullptr && next->empty()) {
            *next = number;
            return;
        }
        if (next != nullptr && next == place)
            return; // a second one of its kind
    }
}

} // namespace

AppContact readVCard(std::string_view card)
{
    AppContact contact;
    std::string structuredName;
    std::string company;
    std::vector<Property> numbers; // those of a kind go first
    for (const std::string& line : unfolded(card)) {
        Property property;
        if (!readProperty(line, property))
            continue;
        if (has(property, "QUOTED-PRINTABLE"))
            property.value = fromQuotedPrintable(property.value);
        const std::string& name = property.name;
        if (name == "X-EVOLUTION-LIST" && upper(property.value) == "TRUE")
            return AppContact();
        if (name == "FN" && contact.name.empty())
            contact.name = plain(property);
        else if (name == "N" && structuredName.empty())
            structuredName = spokenName(property);
        else if (name == "ORG" && company.empty())
            company = parts(property.value, ';').front();
        else if (name == "EMAIL" && (contact.email.empty() || has(property, "PREF")))
            contact.email = plain(property);
        else if (name == "NOTE" && contact.note.empty())
            contact.note = plain(property);
        else if (name == "TEL")
            numbers.push_back(property);
    }
    const auto ofKind = [](const Property& p) { return has(p, "CELL") || has(p, "WORK") || has(p, "HOME"); };
    std::stable_partition(numbers.begin(), numbers.end(), ofKind);
    for (const Property& number : numbers)
        addNumber(number, contact);
    for (const std::string* other : {&structuredName, &company, &contact.email})
        if (contact.name.empty())
            contact.name = *other;
    return contact;
}

} // namespace orva
