#include "sync/CardEditor.h"

#include <algorithm>

#include "base/Text.h"
#include "vcard/CardText.h"
#include "vcard/GroupNames.h"
#include "vcard/KeptLines.h"

namespace orva
{

namespace
{

constexpr ContactField numberFields[] = {ContactField::Mobile, ContactField::Office, ContactField::Home};

const char* kindOf(ContactField field)
{
    return field == ContactField::Mobile ? "CELL" : field == ContactField::Office ? "WORK" : "HOME";
}

const std::u16string& valueOf(const Values& values, ContactField field)
{
    return values[static_cast<std::size_t>(field)];
}

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// The value of N at its semicolons, each part as it is written.
std::vector<std::string> rawParts(const std::string& value)
{
    std::vector<std::string> parts(1);
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '\\' && i + 1 < value.size()) {
            parts.back().append(value, i, 2);
            ++i;
        } else if (value[i] == ';') {
            parts.emplace_back();
        } else {
            parts.back().push_back(value[i]);
        }
    }
    return parts;
}

std::string firstText(const std::vector<std::vector<std::string>>& parts, std::size_t at)
{
    return at < parts.size() ? parts[at].front() : std::string();
}

// What is family and what is given in a name that was changed, told by what they were.
std::pair<std::string, std::string> splitName(const std::string& name, const std::string& family,
                                              const std::string& given)
{
    if (!family.empty() && endsWith(name, " " + family))
        return {family, name.substr(0, name.size() - family.size() - 1)};
    if (!given.empty() && name.compare(0, given.size() + 1, given + " ") == 0)
        return {name.substr(given.size() + 1), given};
    const std::size_t blank = name.rfind(' ');
    if (family.empty() || given.empty() || blank == std::string::npos)
        return given.empty() || !family.empty() ? std::make_pair(name, std::string())
                                                : std::make_pair(std::string(), name);
    return {name.substr(blank + 1), name.substr(0, blank)};
}

} // namespace

void CardEditor::insert(std::size_t at, CardProperty property)
{
    m_card.properties.insert(m_card.properties.begin() + static_cast<std::ptrdiff_t>(at), std::move(property));
    m_changed = true;
}

void CardEditor::erase(int at)
{
    m_card.properties.erase(m_card.properties.begin() + at);
    m_changed = true;
}

void CardEditor::setFields(const Values& values, const std::vector<ContactField>& fields)
{
    const Card before = m_card;
    Values wanted = viewOf(m_card).content.content.values;
    for (const ContactField field : fields) {
        wanted[static_cast<std::size_t>(field)] = valueOf(values, field);
        setField(field, valueOf(values, field));
    }
    // A number that goes leaves its place to one whose kind the card does not name, unless it does.
    const Values now = viewOf(m_card).content.content.values;
    if (std::all_of(std::begin(numberFields), std::end(numberFields),
                    [&](ContactField field) { return valueOf(now, field) == valueOf(wanted, field); }))
        return;
    m_card = before;
    nameKindsOfNumbers();
    for (const ContactField field : fields)
        setField(field, valueOf(values, field));
}

void CardEditor::setField(ContactField field, const std::u16string& value)
{
    const CardView view = viewOf(m_card);
    const int source = view.source(field);
    const std::string text = toUtf8(value);
    if (valueOf(view.content.content.values, field) == value)
        return;
    if (field == ContactField::Name) {
        setName(source, text);
        return;
    }
    // A note that no field holds in whole stays, and the new one comes before it.
    const bool whole = std::find(view.kept.begin(), view.kept.end(), source) == view.kept.end();
    if (source < 0 || (field == ContactField::Note && !whole)) {
        if (!text.empty())
            addField(field, text);
        return;
    }
    if (text.empty()) {
        erase(source);
        return;
    }
    CardProperty& property = m_card.properties[static_cast<std::size_t>(source)];
    if (property.is("TEL"))
        setNumber(property, text);
    else
        setCardText(property, text, m_card.version);
    m_changed = true;
}

void CardEditor::setNumber(CardProperty& property, const std::string& number) const
{
    const bool uri = sameCardName(cardText(property, m_card.version).substr(0, 4), "TEL:");
    setCardText(property, uri ? "tel:" + number : number, m_card.version);
}

void CardEditor::addField(ContactField field, const std::string& text)
{
    const char* const name = field == ContactField::Note ? "NOTE" : field == ContactField::Email ? "EMAIL" : "TEL";
    CardProperty property(name);
    if (property.is("TEL"))
        property.setParameters({{m_card.version == CardVersion::V21 ? "" : "TYPE", {kindOf(field)}}});
    setCardText(property, text, m_card.version);
    // Before others of its name, since the first is the one that counts.
    const auto first = std::find_if(m_card.properties.begin(), m_card.properties.end(),
                                    [name](const CardProperty& other) { return other.is(name); });
    insert(static_cast<std::size_t>(first - m_card.properties.begin()), std::move(property));
}

void CardEditor::nameKindsOfNumbers()
{
    const CardView view = viewOf(m_card);
    for (const ContactField field : numberFields) {
        const int source = view.source(field);
        if (source < 0)
            continue;
        CardProperty& property = m_card.properties[static_cast<std::size_t>(source)];
        if (property.hasType("CELL") || property.hasType("WORK") || property.hasType("HOME"))
            continue;
        std::vector<CardParameter> parameters = property.parameters();
        parameters.push_back({m_card.version == CardVersion::V21 ? "" : "TYPE", {kindOf(field)}});
        property.setParameters(std::move(parameters));
        m_changed = true;
    }
}

void CardEditor::setName(int source, const std::string& name)
{
    const std::string was = toUtf8(valueOf(viewOf(m_card).content.content.values, ContactField::Name));
    setStructuredName(was, name);
    const auto index = static_cast<std::size_t>(source);
    if (source >= 0 && m_card.properties[index].is("FN")) {
        setCardText(m_card.properties[index], name, m_card.version);
        m_changed = true;
        return;
    }
    const auto empty = std::find_if(m_card.properties.begin(), m_card.properties.end(),
                                    [](const CardProperty& other) { return other.is("FN"); });
    if (empty != m_card.properties.end()) {
        setCardText(*empty, name, m_card.version);
        m_changed = true;
        return;
    }
    CardProperty property("FN");
    setCardText(property, name, m_card.version);
    insert(m_card.properties.empty() ? 0 : 1, std::move(property));
}

// Only the family's and the given name; what else N says stays.
void CardEditor::setStructuredName(const std::string& was, const std::string& name)
{
    const auto found = std::find_if(m_card.properties.begin(), m_card.properties.end(),
                                    [](const CardProperty& other) { return other.is("N"); });
    if (found == m_card.properties.end())
        return;
    const auto parts = cardComponents(*found, m_card.version);
    std::string rest = name;
    const std::string prefix = firstText(parts, 3);
    if (!prefix.empty() && was.compare(0, prefix.size() + 1, prefix + " ") == 0 &&
        rest.compare(0, prefix.size() + 1, prefix + " ") == 0)
        rest.erase(0, prefix.size() + 1);
    const auto [family, given] = splitName(rest, firstText(parts, 0), firstText(parts, 1));
    m_changed = true;
    if (found->encoding() != CardEncoding::None || m_card.version == CardVersion::V21) {
        std::vector<std::string> texts = {family, given, firstText(parts, 2), firstText(parts, 3), firstText(parts, 4)};
        setCardComponents(*found, texts, m_card.version);
        return;
    }
    std::vector<std::string> raw = rawParts(found->value());
    raw.resize(std::max<std::size_t>(raw.size(), 5));
    CardProperty written("N");
    setCardComponents(written, {family}, m_card.version);
    raw[0] = written.value();
    setCardComponents(written, {given}, m_card.version);
    raw[1] = written.value();
    std::string value;
    for (std::size_t i = 0; i < raw.size(); ++i)
        value += (i == 0 ? "" : ";") + raw[i];
    found->setValue(value);
}

int CardEditor::indexOfKept(const std::string& key) const
{
    for (const int index : viewOf(m_card).kept) {
        const std::vector<CardProperty> kept =
            keptProperties(keptLines({m_card.properties[static_cast<std::size_t>(index)]}, m_card.version));
        if (kept.size() == 1 && propertyKey(kept.front()) == key)
            return index;
    }
    return -1;
}

// A line of 3.0 as the card's version writes it. In 2.1 commas and backslashes are text, and types have no name.
CardProperty CardEditor::inVersion(const CardProperty& kept) const
{
    if (m_card.version != CardVersion::V21)
        return kept;
    CardProperty older(kept.name(), kept.group());
    std::vector<CardParameter> parameters;
    for (const CardParameter& parameter : kept.parameters()) {
        const bool bare = sameCardName(parameter.name, "TYPE");
        const bool base64 = sameCardName(parameter.name, "ENCODING");
        for (const std::string& value : parameter.values)
            parameters.push_back({bare ? "" : parameter.name, {base64 ? "BASE64" : value}});
    }
    older.setParameters(std::move(parameters));
    if (kept.encoding() == CardEncoding::Base64)
        older.setValue(kept.value());
    else
        setCardText(older, cardText(kept, CardVersion::V30), CardVersion::V21);
    return older;
}

void CardEditor::addKept(const CardProperty& kept)
{
    insert(m_card.properties.size(), inVersion(kept));
}

bool CardEditor::removeKept(const std::string& key)
{
    const int index = indexOfKept(key);
    if (index >= 0)
        erase(index);
    return index >= 0;
}

bool CardEditor::replaceKept(const std::string& key, const CardProperty& kept)
{
    const int index = indexOfKept(key);
    if (index < 0)
        return false;
    m_card.properties[static_cast<std::size_t>(index)] = inVersion(kept);
    m_changed = true;
    return true;
}

void CardEditor::changeGroups(const std::vector<std::string>& added, const std::vector<std::string>& removed)
{
    std::vector<std::string> missing = added;
    CardProperty* first = nullptr;
    for (std::size_t i = 0; i < m_card.properties.size(); ++i) {
        CardProperty& property = m_card.properties[i];
        if (!property.is("CATEGORIES"))
            continue;
        std::vector<std::string> names = cardList(property, m_card.version);
        const std::size_t before = names.size();
        const auto isRemoved = [&removed](const std::string& name) {
            return std::find(removed.begin(), removed.end(), groupCalled(name)) != removed.end();
        };
        names.erase(std::remove_if(names.begin(), names.end(), isRemoved), names.end());
        if (names.size() != before) {
            setCardList(property, names, m_card.version);
            m_changed = true;
        }
        if (names.empty()) {
            erase(static_cast<int>(i--));
            first = nullptr;
        }
    }
    for (CardProperty& property : m_card.properties)
        if (first == nullptr && property.is("CATEGORIES"))
            first = &property;
    if (missing.empty())
        return;
    m_changed = true;
    if (first == nullptr) {
        m_card.properties.emplace_back("CATEGORIES");
        first = &m_card.properties.back();
    } else {
        const std::vector<std::string> names = cardList(*first, m_card.version);
        missing.insert(missing.begin(), names.begin(), names.end());
    }
    setCardList(*first, missing, m_card.version);
}

void CardEditor::setSingle(const char* name, const std::string& value)
{
    const auto found = std::find_if(m_card.properties.begin(), m_card.properties.end(),
                                    [name](const CardProperty& other) { return other.is(name); });
    m_changed = true;
    if (found != m_card.properties.end()) {
        found->setParameters({});
        found->setValue(value);
        return;
    }
    CardProperty property(name);
    property.setValue(value);
    insert(m_card.properties.size(), std::move(property));
}

void CardEditor::setUid(const std::string& uid)
{
    CardProperty property("UID");
    setCardText(property, uid, m_card.version);
    setSingle("UID", property.value());
}

void CardEditor::setRevision(long long time)
{
    setSingle("REV", revisionText(time));
}

Card newCard(const SyncContent& content)
{
    CardContact contact;
    const Values& values = content.content.values;
    contact.name = toUtf8(valueOf(values, ContactField::Name));
    contact.mobile = toUtf8(valueOf(values, ContactField::Mobile));
    contact.office = toUtf8(valueOf(values, ContactField::Office));
    contact.home = toUtf8(valueOf(values, ContactField::Home));
    contact.email = toUtf8(valueOf(values, ContactField::Email));
    contact.note = toUtf8(valueOf(values, ContactField::Note));
    contact.groups = content.groups;
    Card card = cardOf(contact, CardVersion::V30);
    for (CardProperty& property : keptProperties(content.content.kept))
        card.properties.push_back(std::move(property));
    return card;
}

} // namespace orva
