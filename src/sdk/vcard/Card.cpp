#include "vcard/Card.h"

#include <algorithm>
#include <utility>

namespace orva
{

namespace
{

char lower(char c)
{
    return static_cast<char>(c >= 'A' && c <= 'Z' ? c + 0x20 : c);
}

// A type among those of a value, which may be a list inside quotation marks.
bool listHas(std::string_view list, std::string_view word)
{
    while (true) {
        const std::size_t end = std::min(list.find(','), list.size());
        if (sameCardName(list.substr(0, end), word))
            return true;
        if (end == list.size())
            return false;
        list.remove_prefix(end + 1);
    }
}

CardEncoding encodingOf(std::string_view word)
{
    if (sameCardName(word, "QUOTED-PRINTABLE"))
        return CardEncoding::QuotedPrintable;
    if (sameCardName(word, "BASE64") || sameCardName(word, "B"))
        return CardEncoding::Base64;
    return CardEncoding::None;
}

} // namespace

bool sameCardName(std::string_view a, std::string_view b)
{
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return lower(x) == lower(y); });
}

CardProperty::CardProperty(std::string name, std::string group) : m_group(std::move(group)), m_name(std::move(name)) {}

CardProperty CardProperty::unreadable(std::string text)
{
    CardProperty property((std::string()));
    property.m_value = std::move(text);
    return property;
}

bool CardProperty::is(std::string_view name) const
{
    return sameCardName(m_name, name);
}

const CardParameter* CardProperty::parameter(std::string_view name) const
{
    for (const CardParameter& parameter : m_parameters)
        if (!parameter.name.empty() && sameCardName(parameter.name, name))
            return &parameter;
    return nullptr;
}

bool CardProperty::hasType(std::string_view type) const
{
    for (const CardParameter& parameter : m_parameters) {
        if (!parameter.name.empty() && !sameCardName(parameter.name, "TYPE"))
            continue;
        for (const std::string& value : parameter.values)
            if (listHas(value, type))
                return true;
    }
    return false;
}

CardEncoding CardProperty::encoding() const
{
    for (const CardParameter& parameter : m_parameters) {
        if (parameter.values.empty() || (!parameter.name.empty() && !sameCardName(parameter.name, "ENCODING")))
            continue;
        const CardEncoding encoding = encodingOf(parameter.values.front());
        // A bare "B" is no encoding.
        if (encoding != CardEncoding::None && (!parameter.name.empty() || parameter.values.front().size() > 1))
            return encoding;
    }
    return CardEncoding::None;
}

void CardProperty::setParameters(std::vector<CardParameter> parameters)
{
    m_parameters = std::move(parameters);
    m_octets.clear();
}

void CardProperty::setValue(std::string value)
{
    m_value = std::move(value);
    m_octets.clear();
}

Card Card::empty(CardVersion version)
{
    Card card;
    card.version = version;
    card.properties.emplace_back("VERSION");
    card.properties.back().setValue(version == CardVersion::V21 ? "2.1" : version == CardVersion::V30 ? "3.0" : "4.0");
    return card;
}

const CardProperty* Card::find(std::string_view name) const
{
    for (const CardProperty& property : properties)
        if (property.is(name))
            return &property;
    return nullptr;
}

} // namespace orva
