#include "vcard/CardWriter.h"

#include <algorithm>
#include <string_view>

#include "base/Unicode.h"

namespace orva
{

namespace
{

constexpr std::size_t lineOctets = 75;

std::string writtenParameterValue(const std::string& value, CardVersion version)
{
    std::string out;
    for (const char c : value) {
        if (version == CardVersion::V21)
            out.push_back(c == '\n' || c == '\r' || c == '"' ? ' ' : c);
        else if (c == '\n' || c == '^' || c == '"')
            out.append("^").push_back(c == '\n' ? 'n' : c == '^' ? '^' : '\'');
        else if (c != '\r')
            out.push_back(c);
    }
    return out.find_first_of(",;:") == std::string::npos ? out : '"' + out + '"';
}

std::string writtenHead(const CardProperty& property, CardVersion version)
{
    std::string out = property.group().empty() ? property.name() : property.group() + '.' + property.name();
    for (const CardParameter& parameter : property.parameters()) {
        out.push_back(';');
        if (!parameter.name.empty())
            out.append(parameter.name).push_back('=');
        for (std::size_t i = 0; i < parameter.values.size(); ++i) {
            if (i > 0)
                out.push_back(',');
            out += writtenParameterValue(parameter.values[i], version);
        }
    }
    return out + ':';
}

// A value never begins a line of its own, whatever somebody set.
std::string inOneLine(const std::string& value, CardVersion version)
{
    std::string out;
    for (const char c : value) {
        if (c == '\n')
            out += version == CardVersion::V21 ? " " : "\\n";
        else if (c != '\r')
            out.push_back(c);
    }
    return out;
}

// Length of the character that a text begins with; an octet that is none counts as one.
std::size_t characterLength(std::string_view text)
{
    const std::size_t length = utf8Piece(text.substr(0, 4)); // four octets hold no run of ASCII
    return length == 0 ? 1 : length;
}

void appendFolded(std::string_view line, const std::string& lineEnd, std::string& out)
{
    std::size_t room = lineOctets;
    while (!line.empty()) {
        const std::size_t length = characterLength(line);
        if (length > room) {
            out += lineEnd + ' ';
            room = lineOctets - 1;
        }
        out.append(line.substr(0, length));
        line.remove_prefix(length);
        room -= length;
    }
}

// Whether a soft line break may stand before the octet at `at`.
bool mayBreak(std::string_view line, std::size_t at)
{
    const std::string_view rest = line.substr(at);
    return line[at - 1] != '=' && (at < 2 || line[at - 2] != '=') && !sameCardName(rest.substr(0, 4), "END:") &&
           !sameCardName(rest.substr(0, 6), "BEGIN:");
}

// `from` is where the value begins: nothing before it is parted.
void appendSoftBroken(std::string_view line, std::size_t from, const std::string& lineEnd, std::string& out)
{
    while (line.size() > std::max(lineOctets, from)) {
        std::size_t at = std::max(lineOctets - 1, from);
        while (at > from && !mayBreak(line, at))
            --at;
        if (at == 0)
            at = lineOctets - 1;
        out.append(line.substr(0, at)).append("=").append(lineEnd);
        line.remove_prefix(at);
        from = 0;
    }
    out.append(line);
}

void appendProperty(const CardProperty& property, const Card& card, std::string& out)
{
    if (!property.octets().empty()) {
        out += property.octets();
        return;
    }
    if (!property.readable())
        return;
    const std::string head = writtenHead(property, card.version);
    const CardEncoding encoding = property.encoding();
    const bool v21 = card.version == CardVersion::V21;
    if (v21 && property.is("AGENT") && property.value().find('\n') != std::string::npos) {
        out += head + card.lineEnd;
        for (const char c : property.value())
            out += c == '\n' ? card.lineEnd : std::string(1, c);
        return;
    }
    const std::string line = head + inOneLine(property.value(), card.version);
    if (encoding == CardEncoding::QuotedPrintable)
        appendSoftBroken(line, head.size(), card.lineEnd, out);
    else if (v21 && encoding == CardEncoding::None)
        out += line; // folds there only at blanks, and no reader agrees on them
    else
        appendFolded(line, card.lineEnd, out);
    out += card.lineEnd;
    if (v21 && encoding == CardEncoding::Base64)
        out += card.lineEnd;
}

void beginLine(const std::string& lineEnd, std::string& out)
{
    if (!out.empty() && out.back() != '\n')
        out += lineEnd;
}

} // namespace

void appendCard(const Card& card, std::string& out)
{
    beginLine(card.lineEnd, out);
    out += card.begin.empty() ? "BEGIN:VCARD" + card.lineEnd : card.begin;
    for (const CardProperty& property : card.properties) {
        beginLine(card.lineEnd, out);
        appendProperty(property, card, out);
    }
    beginLine(card.lineEnd, out);
    out += card.end.empty() ? "END:VCARD" + card.lineEnd : card.end;
}

} // namespace orva
