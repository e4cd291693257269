#include "support/modem/Text.h"

namespace modemsim
{

std::u32string fromUtf8(const std::string& text)
{
    std::u32string out;
    for (size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        char32_t c = length == 1 ? lead : lead & (0xFFU >> (length + 1));
        for (size_t k = 1; k < length && i + k < text.size(); ++k)
            c = c << 6 | (static_cast<unsigned char>(text[i + k]) & 0x3FU);
        out += c;
        i += length;
    }
    return out;
}

std::string toUtf8(const std::u32string& text)
{
    std::string out;
    for (const char32_t c : text) {
        if (c < 0x80) {
            out += static_cast<char>(c);
            continue;
        }
        const int more = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
        const unsigned lead = more == 1 ? 0xC0 : more == 2 ? 0xE0 : 0xF0;
        out += static_cast<char>(lead | c >> (6 * more));
        for (int k = more - 1; k >= 0; --k)
            out += static_cast<char>(0x80 | (c >> (6 * k) & 0x3F));
    }
    return out;
}

std::u16string toUtf16(const std::u32string& text)
{
    std::u16string out;
    for (const char32_t c : text) {
        if (c < 0x10000) {
            out += static_cast<char16_t>(c);
        } else {
            out += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            out += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        }
    }
    return out;
}

std::u32string fromUtf16(const std::u16string& text)
{
    std::u32string out;
    for (size_t i = 0; i < text.size(); ++i) {
        const char32_t c = text[i];
        if (c >= 0xD800 && c < 0xDC00 && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00)
            out += 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00U);
        else
            out += c;
    }
    return out;
}

std::string toHex(const std::string& bytes)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string out;
    for (const char c : bytes) {
        out += digits[static_cast<unsigned char>(c) >> 4];
        out += digits[static_cast<unsigned char>(c) & 0xF];
    }
    return out;
}

bool fromHex(const std::string& hex, std::string& bytes)
{
    bytes.clear();
    if (hex.size() % 2 != 0 || hex.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos)
        return false;
    for (size_t i = 0; i < hex.size(); i += 2)
        bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
    return true;
}

namespace
{

std::string bigEndian(const std::u16string& units)
{
    std::string out;
    for (const char16_t unit : units) {
        out += static_cast<char>(unit >> 8);
        out += static_cast<char>(unit & 0xFF);
    }
    return out;
}

std::u16string fromBigEndian(const std::string& bytes)
{
    std::u16string out;
    for (size_t i = 0; i + 1 < bytes.size(); i += 2)
        out +=
            static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) << 8 | static_cast<unsigned char>(bytes[i + 1]));
    return out;
}

// One byte a character, for what the set has.
std::string narrow(const std::u32string& text, char32_t end)
{
    std::string out;
    for (const char32_t c : text)
        out += c < end ? static_cast<char>(c) : '?';
    return out;
}

std::u32string widen(const std::string& text)
{
    std::u32string out;
    for (const char c : text)
        out += static_cast<unsigned char>(c);
    return out;
}

} // namespace

std::string encode(const std::string& text, const std::string& charset)
{
    const std::u32string wide = fromUtf8(text);
    if (charset == "UCS2")
        return toHex(bigEndian(toUtf16(wide)));
    if (charset == "UTF-8")
        return text;
    if (charset == "8859-1")
        return narrow(wide, 0x100);
    if (charset != "GSM")
        return narrow(wide, 0x80);
    std::string out;
    for (const char32_t c : wide) {
        std::string septets;
        out += toGsm(std::u32string(1, c), septets) ? septets : "?";
    }
    return out;
}

std::string decode(const std::string& text, const std::string& charset)
{
    std::string bytes;
    if (charset == "UCS2")
        return fromHex(text, bytes) ? toUtf8(fromUtf16(fromBigEndian(bytes))) : text;
    if (charset == "UTF-8")
        return text;
    if (charset == "GSM")
        return toUtf8(fromGsm(text));
    return toUtf8(widen(text));
}

// The half-page forms hold characters of the default alphabet and those of one page of 128 characters.
static bool halfPage(const std::u32string& text, std::string& out)
{
    char32_t base = 0;
    std::string body;
    for (const char32_t c : text) {
        std::string septets;
        if (toGsm(std::u32string(1, c), septets)) {
            body += septets;
            continue;
        }
        if (c >= 0x10000 || (base != 0 && c - (c & 0x7F) != base))
            return false;
        base = c - (c & 0x7F);
        body += static_cast<char>(0x80 | (c & 0x7F));
    }
    const char count = static_cast<char>(text.size());
    if (base < 0x8000)
        out = std::string("\x81") + count + static_cast<char>(base >> 7) + body;
    else
        out = std::string("\x82") + count + static_cast<char>(base >> 8) + static_cast<char>(base & 0xFF) + body;
    return true;
}

std::string toAlpha(const std::u32string& text)
{
    std::string out;
    if (toGsm(text, out))
        return out;
    const std::string full = "\x80" + bigEndian(toUtf16(text));
    return halfPage(text, out) && out.size() < full.size() ? out : full;
}

std::u32string fromAlpha(const std::string& octets)
{
    if (octets.empty() || static_cast<unsigned char>(octets[0]) < 0x80 || octets[0] == '\xFF')
        return fromGsm(octets.substr(0, octets.find('\xFF')));
    if (octets[0] == '\x80') {
        std::u16string units = fromBigEndian(octets.substr(1));
        units.resize(std::min(units.size(), units.find(u'\uFFFF')));
        return fromUtf16(units);
    }
    const std::u32string bytes = widen(octets);
    if (bytes.size() < 4)
        return std::u32string();
    const bool any = octets[0] == '\x82';
    const char32_t base = any ? bytes[2] << 8 | bytes[3] : bytes[2] << 7;
    std::u32string out;
    const size_t first = any ? 4 : 3;
    for (size_t i = first; i < bytes.size() && i < first + bytes[1]; ++i)
        out += bytes[i] >= 0x80 ? std::u32string(1, base + (bytes[i] & 0x7F)) : fromGsm(std::string(1, octets[i]));
    return out;
}

} // namespace modemsim
