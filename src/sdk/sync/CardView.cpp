#include "sync/CardView.h"

#include <algorithm>
#include <ctime>
#include <set>

#include "base/EmailText.h"
#include "base/NumberText.h"
#include "base/Profile.h"
#include "base/Text.h"
#include "base/Unicode.h"
#include "vcard/CardText.h"
#include "vcard/GroupNames.h"
#include "vcard/KeptLines.h"

namespace orva
{

namespace
{

constexpr std::size_t longestLevel = 1024; // of a group's path

std::size_t roomOf(ContactField field)
{
    static const Profile profile = localProfile();
    return static_cast<std::size_t>(profile.fields()[static_cast<std::size_t>(field)].maxLength);
}

// Cuts a text to what a field holds. False if it fits.
bool cut(std::u16string& text, ContactField field)
{
    const std::size_t units = cutLength(text, roomOf(field));
    if (units == text.size())
        return false;
    text.resize(units);
    return true;
}

std::optional<NumberText> numberOf(const std::string& text)
{
    std::optional<NumberText> number = readNumber(fromUtf8(text), Pauses::No);
    if (!number || number->number.empty() || number->number.size() > roomOf(ContactField::Mobile))
        return std::nullopt;
    return number;
}

// Whether a number or an address is one that a field takes.
bool isUsable(const CardProperty& property, CardVersion version)
{
    if (property.is("TEL"))
        return numberOf(cardText(property, version)).has_value();
    if (!property.is("EMAIL"))
        return true;
    const std::u16string text = fromUtf8(cardText(property, version));
    return text.size() <= roomOf(ContactField::Email) && isEmailText(text);
}

bool isGroupPath(const std::string& path)
{
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string level = path.substr(begin, end - begin);
        if (trimmedName(level).empty() || level.size() > longestLevel || level.find('\n') != std::string::npos)
            return false;
        begin = end + 1;
    }
    return true;
}

std::vector<std::string> groupsOf(const CardContact& contact, CardVersion version)
{
    std::set<std::string> paths;
    for (const std::string& category : contact.groups) {
        // In 2.1, which tells no semicolon in a name from one between names, it is the latter.
        const bool several = version == CardVersion::V21;
        for (const std::string& path :
             several ? splitGroups(category) : std::vector<std::string>{groupCalled(category)})
            if (isGroupPath(path))
                paths.insert(path);
    }
    return {paths.begin(), paths.end()};
}

// Whether a line stands in a note already, from the beginning of a line to the end of one.
bool holdsLine(const std::u16string& note, const std::u16string& line)
{
    for (std::size_t at = note.find(line); at != std::u16string::npos; at = note.find(line, at + 1)) {
        const std::size_t end = at + line.size();
        if ((at == 0 || note[at - 1] == u'\n') && (end == note.size() || note[end] == u'\n'))
            return true;
    }
    return false;
}

// Numbers as they are stored, extensions into the note; false for one whose extension has no room.
bool setNumber(const std::string& text, std::u16string& value, std::u16string& note)
{
    const std::optional<NumberText> number = numberOf(text);
    if (!number)
        return true;
    value = number->number;
    if (number->extension.empty())
        return true;
    const std::u16string line = extensionNote(*number);
    if (holdsLine(note, line))
        return true;
    const std::size_t between = note.empty() ? 0 : 1;
    if (note.size() + between + line.size() > roomOf(ContactField::Note))
        return false;
    note.append(between, u'\n').append(line);
    return true;
}

void setValues(const CardContact& contact, CardView& view)
{
    Values& values = view.content.content.values;
    values.resize(contactFields);
    std::u16string& name = values[static_cast<std::size_t>(ContactField::Name)];
    std::u16string& note = values[static_cast<std::size_t>(ContactField::Note)];
    name = fromUtf8(contact.name);
    note = fromUtf8(contact.note);
    values[static_cast<std::size_t>(ContactField::Email)] = fromUtf8(contact.email);
    if (cut(name, ContactField::Name) && view.sources.name >= 0)
        view.kept.push_back(view.sources.name);
    if (cut(note, ContactField::Note))
        view.kept.push_back(view.sources.note);
    const std::pair<const std::string*, ContactField> numbers[] = {{&contact.mobile, ContactField::Mobile},
                                                                   {&contact.office, ContactField::Office},
                                                                   {&contact.home, ContactField::Home}};
    for (const auto& number : numbers)
        if (!setNumber(*number.first, values[static_cast<std::size_t>(number.second)], note))
            view.kept.push_back(view.source(number.second));
}

// A copy without what no field takes, and where in the card each of its properties stands.
Card usablePart(const Card& card, std::vector<int>& places, std::vector<int>& unusable)
{
    Card part = card;
    part.properties.clear();
    for (std::size_t i = 0; i < card.properties.size(); ++i) {
        const bool usable = isUsable(card.properties[i], card.version);
        (usable ? places : unusable).push_back(static_cast<int>(i));
        if (usable)
            part.properties.push_back(card.properties[i]);
    }
    return part;
}

std::string upper(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 0x20 : c);
    return text;
}

} // namespace

int CardView::source(ContactField field) const
{
    const int all[] = {sources.name, sources.mobile, sources.office, sources.home, sources.email, sources.note};
    return all[static_cast<std::size_t>(field)];
}

bool CardView::empty() const
{
    const Values& values = content.content.values;
    return std::all_of(values.begin(), values.end(), [](const std::u16string& value) { return value.empty(); });
}

CardView viewOf(const Card& card)
{
    CardView view;
    std::vector<int> places;
    const Card part = usablePart(card, places, view.kept);
    const CardContact contact = contactOf(part);
    for (int* source : {&view.sources.name, &view.sources.mobile, &view.sources.office, &view.sources.home,
                        &view.sources.email, &view.sources.note})
        *source = -1;
    const auto place = [&places](int index) { return index < 0 ? -1 : places[static_cast<std::size_t>(index)]; };
    view.sources.name = place(contact.sources.name);
    view.sources.mobile = place(contact.sources.mobile);
    view.sources.office = place(contact.sources.office);
    view.sources.home = place(contact.sources.home);
    view.sources.email = place(contact.sources.email);
    view.sources.note = place(contact.sources.note);
    for (const int index : contact.keptAt)
        view.kept.push_back(place(index));
    setValues(contact, view);
    std::sort(view.kept.begin(), view.kept.end());
    view.kept.erase(std::unique(view.kept.begin(), view.kept.end()), view.kept.end());
    std::vector<CardProperty> kept;
    for (const int index : view.kept)
        kept.push_back(card.properties[static_cast<std::size_t>(index)]);
    view.content.content.kept = keptLines(kept, card.version);
    view.content.groups = groupsOf(contact, card.version);
    return view;
}

std::string propertyKey(const CardProperty& property)
{
    std::vector<std::string> parameters;
    for (const CardParameter& parameter : property.parameters()) {
        const std::string name = upper(parameter.name);
        for (const std::string& value : parameter.values) {
            // TYPE="home,voice" is the same as TYPE=home,voice and TYPE=HOME;TYPE=VOICE.
            for (std::size_t at = 0; at <= value.size();) {
                const std::size_t end = std::min(value.find(name == "TYPE" ? ',' : '\0', at), value.size());
                const std::string one = value.substr(at, end - at);
                parameters.push_back(name + '=' + (name == "TYPE" ? upper(one) : one));
                at = end + 1;
            }
        }
    }
    std::sort(parameters.begin(), parameters.end());
    std::string key = upper(property.group()) + '.' + upper(property.name());
    for (const std::string& parameter : parameters)
        key += ';' + parameter;
    return key + ':' + property.value();
}

std::string uidOf(const Card& card)
{
    const CardProperty* const uid = card.find("UID");
    return uid == nullptr ? std::string() : trimmedName(cardText(*uid, card.version));
}

std::string memberUid(const std::string& text)
{
    constexpr char scheme[] = "urn:uuid:";
    constexpr std::size_t length = sizeof scheme - 1;
    return text.size() >= length && sameCardName(text.substr(0, length), scheme) ? text.substr(length) : text;
}

bool isGroupCard(const Card& card)
{
    for (const char* name : {"KIND", "X-ADDRESSBOOKSERVER-KIND"}) {
        const CardProperty* const kind = card.find(name);
        if (kind != nullptr && sameCardName(trimmedName(kind->value()), "group"))
            return true;
    }
    return false;
}

// "20240131T235959Z", "2024-01-31T23:59:59Z", with parts of seconds or an offset.
long long revisionOf(const Card& card)
{
    const CardProperty* const property = card.find("REV");
    if (property == nullptr)
        return 0;
    const std::string& text = property->value();
    std::string digits;
    std::size_t at = 0;
    for (; at < text.size() && digits.size() < 14; ++at) {
        if (text[at] >= '0' && text[at] <= '9')
            digits.push_back(text[at]);
        else if (text[at] != '-' && text[at] != ':' && text[at] != 'T' && text[at] != ' ')
            break;
    }
    if (digits.size() < 8)
        return 0;
    digits.resize(14, '0');
    const auto number = [&digits](std::size_t from, std::size_t count) {
        return std::stoi(digits.substr(from, count));
    };
    std::tm moment{};
    moment.tm_year = number(0, 4) - 1900;
    moment.tm_mon = number(4, 2) - 1;
    moment.tm_mday = number(6, 2);
    moment.tm_hour = number(8, 2);
    moment.tm_min = number(10, 2);
    moment.tm_sec = number(12, 2);
    if (moment.tm_mon < 0 || moment.tm_mon > 11 || moment.tm_mday < 1 || moment.tm_mday > 31)
        return 0;
    long long seconds = ::timegm(&moment);
    const std::size_t sign = text.find_first_of("+-", at);
    if (sign != std::string::npos) {
        std::string offset;
        for (std::size_t i = sign + 1; i < text.size() && offset.size() < 4; ++i)
            if (text[i] >= '0' && text[i] <= '9')
                offset.push_back(text[i]);
        offset.resize(4, '0');
        const int minutes = std::stoi(offset.substr(0, 2)) * 60 + std::stoi(offset.substr(2, 2));
        seconds += text[sign] == '+' ? -60LL * minutes : 60LL * minutes;
    }
    return std::max(seconds, 0LL);
}

std::string revisionText(long long time)
{
    const auto moment = static_cast<std::time_t>(time);
    std::tm parts{};
    ::gmtime_r(&moment, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%Y%m%dT%H%M%SZ", &parts);
    return text;
}

} // namespace orva
