#include "modem/TextCoding.h"

#include <algorithm>
#include <array>

#include "base/Hex.h"
#include "base/Unicode.h"
#include "coding/AlphaCoding.h"

namespace orva
{

namespace
{

constexpr char hexDigits[] = "0123456789ABCDEF";

struct Named {
    CharacterSet set;
    const char* name;
};

constexpr std::array<Named, 6> names = {{{CharacterSet::Ucs2, "UCS2"},
                                         {CharacterSet::Utf8, "UTF-8"},
                                         {CharacterSet::Hex, "HEX"},
                                         {CharacterSet::Latin1, "8859-1"},
                                         {CharacterSet::Gsm, "GSM"},
                                         {CharacterSet::Ira, "IRA"}}};

bool isHex(std::string_view text, std::size_t group)
{
    return !text.empty() && text.size() % group == 0 &&
           std::all_of(text.begin(), text.end(), [](char c) { return hexDigit(c) >= 0; });
}

std::string octetsOf(std::string_view hex)
{
    std::string out;
    for (std::size_t i = 0; i + 2 <= hex.size(); i += 2)
        out.push_back(static_cast<char>(hexDigit(hex[i]) * 16 + hexDigit(hex[i + 1])));
    return out;
}

std::string hexOf(std::string_view octets)
{
    std::string out;
    for (const char c : octets) {
        out.push_back(hexDigits[static_cast<unsigned char>(c) >> 4]);
        out.push_back(hexDigits[static_cast<unsigned char>(c) & 0xF]);
    }
    return out;
}

std::u16string unitsOf(std::string_view hex)
{
    std::u16string out;
    const std::string octets = octetsOf(hex);
    for (std::size_t i = 0; i + 1 < octets.size(); i += 2) {
        const auto unit = static_cast<char16_t>(static_cast<unsigned char>(octets[i]) << 8 |
                                                static_cast<unsigned char>(octets[i + 1]));
        if (unit == 0xFFFF)
            break;
        out.push_back(unit);
    }
    return out;
}

// Whether every surrogate has its other half, and nothing is a control character.
bool sound(std::u16string_view text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (c < 0x20 && c != u'\n' && c != u'\r' && c != u'\t')
            return false;
        if (c >= 0xDC00 && c < 0xE000)
            return false;
        if (c >= 0xD800 && c < 0xDC00) {
            if (i + 1 == text.size() || text[i + 1] < 0xDC00 || text[i + 1] >= 0xE000)
                return false;
            ++i;
        }
    }
    return true;
}

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::u16string latin(std::string_view text)
{
    std::u16string out;
    for (const char c : text)
        out.push_back(static_cast<unsigned char>(c));
    return out;
}

// A text of unknown coding: UTF-8 if it is such, else Latin.
std::u16string plain(std::string_view text)
{
    std::u16string out;
    return appendUtf16(text, out) ? out : latin(text);
}

// Quotation mark, backslash and @ as some modems write them between quotation marks: a backslash and two digits.
std::string unescaped(std::string_view text)
{
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string_view code = text.substr(i, 3);
        if (code == "\\22" || code == "\\5C" || code == "\\5c" || code == "\\00") {
            out.push_back(static_cast<char>(hexDigit(code[1]) * 16 + hexDigit(code[2])));
            i += 2;
        } else {
            out.push_back(text[i]);
        }
    }
    return out;
}

std::u16string cutAtFill(std::u16string text)
{
    const std::size_t fill = text.find(u'\xFFFF');
    if (fill != std::u16string::npos)
        text.resize(fill);
    return text;
}

// The card's own coding in hexadecimal digits, which some modems give whatever set is chosen.
bool isHexAlpha(std::string_view field)
{
    return isHex(field, 2) && isAlphaForm(octetsOf(field));
}

std::u16string ucs2Text(std::string_view field)
{
    if (isHex(field, 4)) {
        std::u16string text = unitsOf(field);
        // A plain word may look like digits; the text that it would spell seldom makes sense.
        return sound(text) ? text : plain(field);
    }
    if (isHexAlpha(field))
        return alphaText(octetsOf(field));
    return plain(field);
}

std::u16string gsmFieldText(std::string_view field)
{
    std::u16string text;
    if (!isAscii(field) && appendUtf16(field, text))
        return text;
    return gsmText(field);
}

} // namespace

const char* nameOf(CharacterSet set)
{
    for (const Named& named : names) {
        if (named.set == set)
            return named.name;
    }
    return "";
}

std::optional<CharacterSet> characterSetNamed(std::string_view name)
{
    while (!name.empty() && (name.front() == '"' || name.front() == ' '))
        name.remove_prefix(1);
    while (!name.empty() && (name.back() == '"' || name.back() == ' '))
        name.remove_suffix(1);
    const std::optional<std::string> spelt = asciiOfHexUcs2(name);
    if (spelt)
        name = *spelt;
    if (name == "UTF8")
        name = "UTF-8";
    for (const Named& named : names) {
        if (name == named.name)
            return named.set;
    }
    return std::nullopt;
}

std::vector<CharacterSet> characterSetsIn(std::string_view answer)
{
    std::vector<CharacterSet> found;
    std::size_t begin = 0;
    while (begin < answer.size()) {
        const std::size_t end = std::min(answer.find_first_of("(),", begin), answer.size());
        const auto set = characterSetNamed(answer.substr(begin, end - begin));
        if (set && std::find(found.begin(), found.end(), *set) == found.end())
            found.push_back(*set);
        begin = end + 1;
    }
    std::sort(found.begin(), found.end());
    return found;
}

std::u16string textFrom(std::string_view field, CharacterSet set)
{
    if (set == CharacterSet::Ucs2)
        return cutAtFill(ucs2Text(field));
    if (set == CharacterSet::Hex)
        return cutAtFill(isHex(field, 2) ? alphaText(octetsOf(field)) : plain(field));
    if (isHexAlpha(field))
        return alphaText(octetsOf(field));
    const std::string bytes = unescaped(field);
    switch (set) {
    case CharacterSet::Gsm:
        return cutAtFill(gsmFieldText(bytes));
    case CharacterSet::Latin1: {
        // Two Latin letters in a row that make UTF-8 are UTF-8.
        const std::size_t fill = bytes.find('\xFF');
        return cutAtFill(plain(std::string_view(bytes).substr(0, fill)));
    }
    default:
        return cutAtFill(plain(bytes));
    }
}

std::optional<std::string> fieldFor(std::u16string_view text, CharacterSet set)
{
    if (set == CharacterSet::Ucs2)
        return hexUcs2(text);
    if (set == CharacterSet::Hex)
        return hexOf(toAlpha(text));
    std::string out;
    switch (set) {
    case CharacterSet::Utf8:
        appendUtf8(text, out);
        break;
    case CharacterSet::Latin1:
        for (const char16_t c : text) {
            if (c > 0xFF)
                return std::nullopt;
            out.push_back(static_cast<char>(c));
        }
        break;
    case CharacterSet::Gsm: {
        const std::optional<std::string> gsm = toGsm(text);
        if (!gsm)
            return std::nullopt;
        out = *gsm;
        break;
    }
    default:
        for (const char16_t c : text) {
            if (c > 0x7E)
                return std::nullopt;
            out.push_back(static_cast<char>(c));
        }
        break;
    }
    // What would end the field or the command, and what would not come back as it went.
    if (out.find_first_of("\"\r\n\x1A") != std::string::npos || textFrom(out, set) != text)
        return std::nullopt;
    return out;
}

std::string hexUcs2(std::u16string_view text)
{
    std::string octets;
    for (const char16_t c : text) {
        octets.push_back(static_cast<char>(c >> 8));
        octets.push_back(static_cast<char>(c & 0xFF));
    }
    return hexOf(octets);
}

std::string hexUcs2(std::string_view ascii)
{
    return hexUcs2(std::u16string_view(latin(ascii)));
}

std::optional<std::string> asciiOfHexUcs2(std::string_view digits)
{
    if (!isHex(digits, 4))
        return std::nullopt;
    std::string out;
    for (std::size_t i = 0; i < digits.size(); i += 4) {
        const std::string unit = octetsOf(digits.substr(i, 4));
        if (unit[0] != '\0' || static_cast<unsigned char>(unit[1]) < 0x20 || static_cast<unsigned char>(unit[1]) > 0x7E)
            return std::nullopt;
        out.push_back(unit[1]);
    }
    return out;
}

} // namespace orva
