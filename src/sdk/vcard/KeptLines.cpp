#include "vcard/KeptLines.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "base/Unicode.h"
#include "vcard/CardLines.h"
#include "vcard/CardText.h"
#include "vcard/CardWriter.h"

namespace orva
{

namespace
{

// A value of 2.1, whose commas and backslashes are text, as 3.0 writes it. Semicolons between parts stay.
std::string newerValue(const std::string& older)
{
    std::string out;
    for (std::size_t i = 0; i < older.size(); ++i) {
        const char c = older[i];
        const char next = i + 1 < older.size() ? older[i + 1] : '\0';
        if (c == '\\' && (next == ';' || next == '\\')) {
            out.append(1, c).append(1, next);
            ++i;
        } else if (c == '\n') {
            out += "\\n";
        } else if (c == '\\' || c == ',') {
            out.append(1, '\\').append(1, c);
        } else if (c != '\r') {
            out.push_back(c);
        }
    }
    return out;
}

std::string withoutBlanks(const std::string& value)
{
    std::string out;
    for (const char c : value)
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n')
            out.push_back(c);
    return out;
}

// Of 2.1: bare types get their name, codings of the text go, BASE64 has another word.
std::vector<CardParameter> newerParameters(const CardProperty& property)
{
    std::vector<CardParameter> out;
    for (const CardParameter& parameter : property.parameters()) {
        const bool bare = parameter.name.empty();
        const std::string value = parameter.values.empty() ? std::string() : parameter.values.front();
        const bool coding = sameCardName(parameter.name, "ENCODING") || sameCardName(value, "QUOTED-PRINTABLE") ||
                            sameCardName(value, "BASE64") || sameCardName(value, "8BIT") || sameCardName(value, "7BIT");
        if (sameCardName(parameter.name, "CHARSET") || coding)
            continue;
        out.push_back({bare ? "TYPE" : parameter.name, parameter.values});
    }
    if (property.encoding() == CardEncoding::Base64)
        out.push_back({"ENCODING", {"b"}});
    return out;
}

CardProperty newer(const CardProperty& property, CardVersion version)
{
    const bool base64 = property.encoding() == CardEncoding::Base64;
    CardProperty out(property.name(), property.group());
    out.setParameters(version == CardVersion::V21 ? newerParameters(property) : property.parameters());
    if (base64)
        out.setValue(withoutBlanks(property.value()));
    else
        out.setValue(version == CardVersion::V21 ? newerValue(cardOctets(property)) : cardOctets(property));
    return out;
}

} // namespace

bool canKeep(const CardProperty& property, CardVersion version)
{
    return property.readable() && !(version == CardVersion::V21 && property.is("AGENT"));
}

std::string keptLines(const std::vector<CardProperty>& properties, CardVersion version)
{
    std::vector<CardProperty> kept;
    for (const CardProperty& property : properties) {
        if (!canKeep(property, version))
            continue;
        const bool asItIs = version != CardVersion::V21 && !property.octets().empty() && isUtf8(property.octets());
        kept.push_back(asItIs ? property : newer(property, version));
    }
    return linesOf(kept);
}

std::vector<CardProperty> keptProperties(const std::string& lines)
{
    std::vector<CardProperty> properties;
    if (lines.empty())
        return properties;
    for (CardProperty& property : parseCard("BEGIN:VCARD\r\nVERSION:3.0\r\n" + lines + "END:VCARD\r\n").properties)
        if (property.readable() && !property.is("VERSION"))
            properties.push_back(std::move(property));
    return properties;
}

std::string linesOf(const std::vector<CardProperty>& properties)
{
    if (properties.empty())
        return {};
    Card card;
    card.properties = properties;
    std::string out;
    appendCard(card, out);
    const std::size_t begin = out.find('\n') + 1;
    return out.substr(begin, out.rfind("END:VCARD") - begin);
}

std::string headOf(const CardProperty& property)
{
    std::string head = property.group().empty() ? property.name() : property.group() + "." + property.name();
    for (const CardParameter& parameter : property.parameters()) {
        head += ";" + parameter.name;
        for (std::size_t i = 0; i < parameter.values.size(); ++i)
            head += (i > 0 ? "," : parameter.name.empty() ? "" : "=") + parameter.values[i];
    }
    return head;
}

bool isKeptName(const std::string& name)
{
    static const char* const names[] = {
        "ADR",  "ANNIVERSARY", "BDAY",     "CALURI", "EMAIL",   "GENDER", "GEO",   "IMPP", "KEY",   "LANG", "LOGO",
        "NOTE", "ORG",         "NICKNAME", "PHOTO",  "RELATED", "ROLE",   "SOUND", "TEL",  "TITLE", "TZ",   "URL"};
    const bool own =
        name.size() > 2 && sameCardName(name.substr(0, 2), "X-") &&
        name.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-") == std::string::npos;
    return own || std::any_of(std::begin(names), std::end(names),
                              [&name](const char* known) { return sameCardName(known, name); });
}

} // namespace orva
