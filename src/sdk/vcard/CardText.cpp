#include "vcard/CardText.h"

#include <algorithm>

#include "base/Conversion.h"
#include "base/Hex.h"
#include "base/Unicode.h"

namespace orva
{

namespace
{

const char replacement[] = "\xEF\xBF\xBD";

std::string fromQuotedPrintable(const std::string& text)
{
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool coded =
            text[i] == '=' && i + 2 < text.size() && hexDigit(text[i + 1]) >= 0 && hexDigit(text[i + 2]) >= 0;
        out.push_back(coded ? static_cast<char>(hexDigit(text[i + 1]) * 16 + hexDigit(text[i + 2])) : text[i]);
        i += coded ? 2 : 0;
    }
    return out;
}

// A file chooses the name, and iconv gives some characters in it a meaning.
bool isCharsetName(std::string_view name)
{
    return !name.empty() && name.size() <= 40 && std::all_of(name.begin(), name.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' || c == '_' ||
               c == ':' || c == '.';
    });
}

// False if all of the text cannot be read so.
bool convertFrom(const std::string& charset, std::string_view text, std::string& out)
{
    Conversion conversion("UTF-8", charset.c_str());
    out.clear();
    return conversion.usable() && conversion.convert(text, out, nullptr);
}

std::string fromCharset(const std::string& charset, const std::string& text)
{
    std::string out;
    if (isCharsetName(charset) && !sameCardName(charset, "UTF-8") && convertFrom(charset, text, out) && isUtf8(out))
        return out;
    if (isUtf8(text))
        return text;
    // A few octets mean nothing in Windows-1252; each of them has a meaning in ISO 8859-1.
    if (!convertFrom("WINDOWS-1252", text, out))
        convertFrom("ISO-8859-1", text, out);
    return out;
}

std::string withoutZeros(std::string text)
{
    for (std::size_t at = text.find('\0'); at != std::string::npos; at = text.find('\0', at))
        text.replace(at, 1, replacement);
    return text;
}

// The character that an escape stands for; 0 for none.
char escaped(char c, CardVersion version)
{
    if (c == '\\' || c == ',' || c == ';' || c == ':')
        return c;
    return (c == 'n' || c == 'N') && version != CardVersion::V21 ? '\n' : '\0';
}

// Calls `take` with each character that is meant and `cut` at each separator that is not escaped.
template <typename Take, typename Cut>
void readEscaped(std::string_view text, CardVersion version, Take take, Cut cut)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char meant = text[i] == '\\' && i + 1 < text.size() ? escaped(text[i + 1], version) : '\0';
        if (meant != '\0') {
            take(meant);
            ++i;
        } else if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            continue;
        } else if (!cut(text[i])) {
            take(text[i]);
        }
    }
}

void appendEscaped(std::string_view text, bool semicolons, CardVersion version, std::string& out)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            continue;
        if (c == '\n' && version != CardVersion::V21) {
            out += "\\n";
            continue;
        }
        if (c == '\\' || (c == ';' && (semicolons || version != CardVersion::V21)) ||
            (c == ',' && version != CardVersion::V21))
            out.push_back('\\');
        out.push_back(c);
    }
}

std::string toQuotedPrintable(const std::string& text)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string out;
    for (const char c : text) {
        const auto octet = static_cast<unsigned char>(c);
        if (c == '\n') {
            out += "=0D=0A";
        } else if (octet < 0x20 || octet > 0x7E || c == '=') {
            out.push_back('=');
            out.push_back(digits[octet >> 4]);
            out.push_back(digits[octet & 15]);
        } else {
            out.push_back(c);
        }
    }
    if (!out.empty() && out.back() == ' ')
        out.replace(out.size() - 1, 1, "=20");
    return out;
}

bool isPlainLine(const std::string& text)
{
    return text.size() <= 60 && (text.empty() || text.back() != ' ') &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c < 0x7F; });
}

void setEscaped(CardProperty& property, std::string value, CardVersion version)
{
    std::vector<CardParameter> parameters = property.parameters();
    const auto isCoding = [](const CardParameter& p) {
        if (p.name.empty())
            return p.values.size() == 1 &&
                   (sameCardName(p.values[0], "QUOTED-PRINTABLE") || sameCardName(p.values[0], "BASE64"));
        return sameCardName(p.name, "ENCODING") || sameCardName(p.name, "CHARSET");
    };
    parameters.erase(std::remove_if(parameters.begin(), parameters.end(), isCoding), parameters.end());
    if (version == CardVersion::V21 && !isPlainLine(value)) {
        parameters.push_back({"CHARSET", {"UTF-8"}});
        parameters.push_back({"ENCODING", {"QUOTED-PRINTABLE"}});
        value = toQuotedPrintable(value);
    }
    property.setParameters(std::move(parameters));
    property.setValue(std::move(value));
}

} // namespace

std::string cardOctets(const CardProperty& property)
{
    const CardEncoding encoding = property.encoding();
    if (encoding == CardEncoding::Base64)
        return withoutZeros(fromCharset(std::string(), property.value()));
    const CardParameter* charset = property.parameter("CHARSET");
    const std::string& name = charset != nullptr && !charset->values.empty() ? charset->values.front() : std::string();
    return withoutZeros(fromCharset(
        name, encoding == CardEncoding::QuotedPrintable ? fromQuotedPrintable(property.value()) : property.value()));
}

std::string cardText(const CardProperty& property, CardVersion version)
{
    std::string out;
    readEscaped(
        cardOctets(property), version, [&out](char c) { out.push_back(c); }, [](char) { return false; });
    return out;
}

std::vector<std::vector<std::string>> cardComponents(const CardProperty& property, CardVersion version)
{
    std::vector<std::vector<std::string>> out(1, std::vector<std::string>(1));
    readEscaped(
        cardOctets(property), version, [&out](char c) { out.back().back().push_back(c); },
        [&out, version](char c) {
            if (c == ';')
                out.emplace_back(1);
            else if (c == ',' && version != CardVersion::V21)
                out.back().emplace_back();
            else
                return false;
            return true;
        });
    return out;
}

std::vector<std::string> cardList(const CardProperty& property, CardVersion version)
{
    std::vector<std::string> out(1);
    readEscaped(
        cardOctets(property), version, [&out](char c) { out.back().push_back(c); },
        [&out](char c) {
            if (c == ',')
                out.emplace_back();
            return c == ',';
        });
    return out;
}

void setCardText(CardProperty& property, std::string_view text, CardVersion version)
{
    std::string value;
    appendEscaped(text, false, version, value);
    setEscaped(property, std::move(value), version);
}

void setCardList(CardProperty& property, const std::vector<std::string>& values, CardVersion version)
{
    std::string value;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0)
            value.push_back(',');
        // Commas part a list in every version.
        appendEscaped(values[i], false, version == CardVersion::V21 ? CardVersion::V30 : version, value);
    }
    setEscaped(property, std::move(value), version);
}

void setCardComponents(CardProperty& property, const std::vector<std::string>& components, CardVersion version)
{
    std::string value;
    for (std::size_t i = 0; i < components.size(); ++i) {
        if (i > 0)
            value.push_back(';');
        appendEscaped(components[i], true, version, value);
    }
    setEscaped(property, std::move(value), version);
}

} // namespace orva
