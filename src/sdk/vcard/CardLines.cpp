#include "vcard/CardLines.h"

#include <algorithm>
#include <utility>

namespace orva
{

namespace
{

constexpr std::size_t maxParameters = 100;
constexpr std::size_t maxParameterValues = 1000;

std::string_view trimmedEnd(std::string_view text)
{
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t' || text.back() == '\r'))
        text.remove_suffix(1);
    return text;
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    return trimmedEnd(text);
}

bool isName(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' || c == '_';
    });
}

bool isBase64(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '+' || c == '/' ||
               c == '=';
    });
}

// Walks over the lines of a text.
class LineWalk
{
public:
    LineWalk(std::string_view text, int line) : m_text(text), m_number(line - 1) {}

    bool next()
    {
        if (!peek(m_line))
            return false;
        m_begin = m_end;
        m_end = std::min(m_text.find('\n', m_end), m_text.size() - 1) + 1;
        ++m_number;
        return true;
    }

    // The line behind the current one.
    bool peek(std::string_view& line) const
    {
        if (m_end >= m_text.size())
            return false;
        line = m_text.substr(m_end, m_text.find('\n', m_end) - m_end);
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        return true;
    }

    std::string_view line() const { return m_line; }
    std::size_t begin() const { return m_begin; }
    int number() const { return m_number; }

    // The octets from an offset to the end of the current line.
    std::string octetsFrom(std::size_t begin) const { return std::string(m_text.substr(begin, m_end - begin)); }

private:
    std::string_view m_text;
    std::string_view m_line;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    int m_number;
};

// Calls `take` with each part between separators that stand outside quotation marks; false if it gives false.
template <typename Take>
bool splitOutsideQuotes(std::string_view text, char separator, Take take)
{
    bool quoted = false;
    std::size_t begin = 0;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        if (i == text.size() || (text[i] == separator && !quoted)) {
            if (!take(text.substr(begin, i - begin)))
                return false;
            begin = i + 1;
        } else {
            quoted = quoted != (text[i] == '"');
        }
    }
    return true;
}

// Without quotation marks and circumflexes (RFC 6868).
std::string parameterValue(std::string_view written, CardVersion version)
{
    std::string out;
    for (std::size_t i = 0; i < written.size(); ++i) {
        const char next = i + 1 < written.size() ? written[i + 1] : '\0';
        if (written[i] == '"')
            continue;
        if (written[i] == '^' && version != CardVersion::V21 && (next == 'n' || next == '^' || next == '\'')) {
            out.push_back(next == 'n' ? '\n' : next == '^' ? '^' : '"');
            ++i;
        } else {
            out.push_back(written[i]);
        }
    }
    return out;
}

bool readParameter(std::string_view text, CardVersion version, CardParameter& parameter)
{
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos) {
        parameter.values.push_back(parameterValue(trimmed(text), version));
        return true;
    }
    parameter.name = std::string(trimmed(text.substr(0, equals)));
    return isName(parameter.name) &&
           splitOutsideQuotes(text.substr(equals + 1), ',', [&parameter, version](std::string_view value) {
               parameter.values.push_back(parameterValue(trimmed(value), version));
               return parameter.values.size() <= maxParameterValues;
           });
}

// What stands before the colon; a property without a name if that is none.
CardProperty readHead(std::string_view head, CardVersion version)
{
    std::string_view name;
    std::vector<CardParameter> parameters;
    bool first = true;
    const bool good = splitOutsideQuotes(head, ';', [&](std::string_view part) {
        if (std::exchange(first, false)) {
            name = trimmed(part);
            return true;
        }
        parameters.emplace_back();
        return parameters.size() <= maxParameters && readParameter(part, version, parameters.back());
    });
    const std::size_t dot = name.rfind('.');
    const std::string_view group = dot == std::string_view::npos ? std::string_view() : name.substr(0, dot);
    name.remove_prefix(dot == std::string_view::npos ? 0 : dot + 1);
    if (!good || !isName(name) || (dot != std::string_view::npos && !isName(group)))
        return CardProperty::unreadable(std::string());
    CardProperty property((std::string(name)), std::string(group));
    property.setParameters(std::move(parameters));
    return property;
}

// A line in the making, which grows by the folded ones behind it.
class JoinedLine
{
public:
    JoinedLine(std::string_view line, CardVersion version) : m_text(line), m_version(version) { findColon(); }

    // Whether the next line belongs to it; it is joined then.
    bool join(std::string_view next)
    {
        if (isCardBegin(next) || isCardEnd(next))
            return false;
        const CardEncoding encoding = m_property.encoding();
        const std::size_t end = m_text.find_last_not_of(" \t");
        if (encoding == CardEncoding::QuotedPrintable && end != std::string::npos && m_text[end] == '=') {
            m_text.replace(end, std::string::npos, next);
        } else if (!next.empty() && (next[0] == ' ' || next[0] == '\t')) {
            const bool blankCounts = m_version == CardVersion::V21 && encoding != CardEncoding::Base64;
            m_text.append(next.substr(blankCounts ? 0 : 1));
        } else if (encoding == CardEncoding::Base64 && !next.empty() && isBase64(next)) {
            m_text.append(next);
        } else {
            return false;
        }
        findColon();
        return true;
    }

    CardProperty property() const
    {
        if (!m_property.readable())
            return CardProperty::unreadable(m_text);
        CardProperty out = m_property;
        out.setValue(m_text.substr(m_colon + 1));
        return out;
    }

private:
    void findColon()
    {
        if (m_found)
            return;
        for (; m_colon < m_text.size(); ++m_colon) {
            if (m_text[m_colon] == ':' && !m_quoted) {
                m_found = true;
                m_property = readHead(std::string_view(m_text).substr(0, m_colon), m_version);
                return;
            }
            m_quoted = m_quoted != (m_text[m_colon] == '"');
        }
    }

    std::string m_text;
    CardVersion m_version;
    CardProperty m_property = CardProperty::unreadable(std::string());
    std::size_t m_colon = 0; // or how far it was looked for
    bool m_quoted = false;
    bool m_found = false;
};

void say(const CardReport& report, int line, int reason)
{
    if (report)
        report({line, reason});
}

CardVersion versionOf(std::string_view text, int line, const CardReport& report)
{
    LineWalk walk(text, line);
    while (walk.next()) {
        if (!sameCardName(walk.line().substr(0, 8), "VERSION:"))
            continue;
        const std::string_view version = trimmed(walk.line().substr(8));
        if (version == "2.1")
            return CardVersion::V21;
        if (version == "4.0")
            return CardVersion::V40;
        if (version != "3.0")
            say(report, walk.number(), ORVA_FINDING_CARD_VERSION);
        break;
    }
    return CardVersion::V30;
}

// The lines of a card inside a card.
std::string embeddedCard(LineWalk& walk)
{
    std::string out;
    bool ended = false;
    while (!ended && walk.next()) {
        out.append(walk.line()).push_back('\n');
        ended = isCardEnd(walk.line());
    }
    return out;
}

CardProperty readProperty(LineWalk& walk, CardVersion version, const CardReport& report)
{
    const int line = walk.number();
    const std::size_t begin = walk.begin();
    JoinedLine joined(walk.line(), version);
    std::string_view next;
    while (walk.peek(next) && joined.join(next))
        walk.next();
    CardProperty property = joined.property();
    // By the line alone, as whoever looked for the end of the card has done.
    if (isAgentLine(walk.line()) && walk.peek(next) && isCardBegin(next)) {
        std::string inner = embeddedCard(walk);
        if (property.is("AGENT"))
            property.setValue(std::move(inner));
    }
    if (!property.readable())
        say(report, line, ORVA_FINDING_CARD_LINE);
    property.setOctets(walk.octetsFrom(begin));
    property.setLine(line);
    return property;
}

} // namespace

// A line with a blank before it is folded text, whatever it says.
bool isCardBegin(std::string_view line)
{
    return sameCardName(trimmedEnd(line), "BEGIN:VCARD");
}

bool isCardEnd(std::string_view line)
{
    return sameCardName(trimmedEnd(line), "END:VCARD");
}

bool isAgentLine(std::string_view line)
{
    const std::string_view text = trimmedEnd(line);
    return text.size() > 5 && (text[5] == ':' || text[5] == ';') && text.back() == ':' &&
           sameCardName(text.substr(0, 5), "AGENT");
}

Card parseCard(std::string_view text, int line, const CardReport& report, const CardLimits& limits)
{
    Card card;
    card.line = line;
    card.version = versionOf(text, line, report);
    const std::size_t end = text.find('\n');
    if (end != std::string_view::npos && (end == 0 || text[end - 1] != '\r'))
        card.lineEnd = "\n";
    LineWalk walk(text, line);
    while (walk.next()) {
        if (walk.line().empty()) {
            // A blank line ends BASE64 in 2.1; it stays where it was.
            if (card.properties.empty())
                card.begin += walk.octetsFrom(walk.begin());
            else
                card.properties.back().setOctets(card.properties.back().octets() + walk.octetsFrom(walk.begin()));
        } else if (isCardBegin(walk.line()) && card.properties.empty() && card.begin.empty()) {
            card.begin = walk.octetsFrom(walk.begin());
        } else if (isCardEnd(walk.line())) {
            card.end = walk.octetsFrom(walk.begin());
            break;
        } else if (card.properties.size() == limits.properties) {
            break;
        } else {
            card.properties.push_back(readProperty(walk, card.version, report));
        }
    }
    return card;
}

} // namespace orva
