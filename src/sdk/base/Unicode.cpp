#include "base/Unicode.h"

#include <cstdint>
#include <cstring>

namespace orva
{

namespace
{

constexpr char16_t replacement = 0xFFFD;

inline bool isAscii(const char* text)
{
    std::uint64_t block = 0;
    std::memcpy(&block, text, sizeof block);
    return (block & 0x8080808080808080U) == 0;
}

// The same, and none of them zero.
inline bool isAsciiText(const char* text)
{
    std::uint64_t block = 0;
    std::memcpy(&block, text, sizeof block);
    return ((block | (block - 0x0101010101010101U)) & 0x8080808080808080U) == 0;
}

// Eight octets of ASCII as units. By way of locals, which the compiler knows to be apart, so that it takes all at once.
inline void widen(const char* text, char16_t* to)
{
    unsigned char octets[8];
    char16_t units[8];
    std::memcpy(octets, text, sizeof octets);
    for (int i = 0; i < 8; ++i)
        units[i] = octets[i];
    std::memcpy(to, units, sizeof units);
}

// What the lead octet of a sequence says: its length, and the range that the second octet must lie in (which is what
// keeps out overlong forms, surrogates and values beyond U+10FFFF).
struct Lead {
    std::size_t length;
    unsigned char low;
    unsigned char high;
};

inline Lead leadOf(unsigned char c)
{
    if (c < 0x80)
        return {1, 0, 0};
    if (c < 0xC2 || c > 0xF4)
        return {0, 0, 0};
    if (c < 0xE0)
        return {2, 0x80, 0xBF};
    if (c < 0xF0)
        return {3, static_cast<unsigned char>(c == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(c == 0xED ? 0x9F : 0xBF)};
    return {4, static_cast<unsigned char>(c == 0xF0 ? 0x90 : 0x80),
            static_cast<unsigned char>(c == 0xF4 ? 0x8F : 0xBF)};
}

// Length of the sequence at `text`, of which `room` octets are there; 0 for none, with *cut set if there may be one.
inline std::size_t sequenceLength(const char* text, std::size_t room, bool* cut)
{
    const Lead lead = leadOf(static_cast<unsigned char>(text[0]));
    for (std::size_t i = 1; i < lead.length; ++i) {
        if (i == room) {
            if (cut != nullptr)
                *cut = true;
            return 0;
        }
        const auto c = static_cast<unsigned char>(text[i]);
        if (c < (i == 1 ? lead.low : 0x80) || c > (i == 1 ? lead.high : 0xBF))
            return 0;
    }
    return lead.length;
}

inline char* putThree(char16_t c, char* to)
{
    *to++ = static_cast<char>(0xE0 | c >> 12);
    *to++ = static_cast<char>(0x80 | (c >> 6 & 0x3F));
    *to++ = static_cast<char>(0x80 | (c & 0x3F));
    return to;
}

char32_t decode(const char* text, std::size_t length)
{
    const auto octet = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    if (length == 2)
        return (octet(0) & 0x1FU) << 6 | (octet(1) & 0x3FU);
    if (length == 3)
        return (octet(0) & 0x0FU) << 12 | (octet(1) & 0x3FU) << 6 | (octet(2) & 0x3FU);
    return (octet(0) & 0x07U) << 18 | (octet(1) & 0x3FU) << 12 | (octet(2) & 0x3FU) << 6 | (octet(3) & 0x3FU);
}

} // namespace

void appendUtf8(char32_t point, std::string& out)
{
    if ((point >= 0xD800 && point < 0xE000) || point > 0x10FFFF)
        point = replacement;
    if (point < 0x80) {
        out.push_back(static_cast<char>(point));
    } else if (point < 0x800) {
        out.push_back(static_cast<char>(0xC0 | point >> 6));
        out.push_back(static_cast<char>(0x80 | (point & 0x3F)));
    } else if (point < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | point >> 12));
        out.push_back(static_cast<char>(0x80 | (point >> 6 & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (point & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | point >> 18));
        out.push_back(static_cast<char>(0x80 | (point >> 12 & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (point >> 6 & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (point & 0x3F)));
    }
}

void appendUtf8(std::u16string_view text, std::string& out)
{
    const std::size_t before = out.size();
    out.resize(before + 3 * text.size()); // UTF-8 never has more octets than three a unit
    char* to = out.data() + before;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (c < 0x80) {
            *to++ = static_cast<char>(c);
        } else if (c < 0x800) {
            *to++ = static_cast<char>(0xC0 | c >> 6);
            *to++ = static_cast<char>(0x80 | (c & 0x3F));
        } else if (c < 0xD800 || c >= 0xE000) {
            to = putThree(c, to);
        } else if (c < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000) {
            const char32_t point = 0x10000 + (static_cast<char32_t>(c - 0xD800) << 10) + (text[++i] - 0xDC00U);
            *to++ = static_cast<char>(0xF0 | point >> 18);
            *to++ = static_cast<char>(0x80 | (point >> 12 & 0x3F));
            *to++ = static_cast<char>(0x80 | (point >> 6 & 0x3F));
            *to++ = static_cast<char>(0x80 | (point & 0x3F));
        } else {
            to = putThree(replacement, to);
        }
    }
    out.resize(static_cast<std::size_t>(to - out.data()));
}

std::size_t toUtf16(std::string_view text, char16_t* out)
{
    char16_t* to = out;
    const char* from = text.data();
    const char* const end = from + text.size();
    while (from < end) {
        const auto c = static_cast<unsigned char>(*from);
        if (end - from >= 8 && isAsciiText(from)) {
            widen(from, to);
            to += 8;
            from += 8;
            continue;
        }
        if (c < 0x80 && c != 0) {
            *to++ = c;
            ++from;
            continue;
        }
        // Most letters of Latin, Greek and Cyrillic names.
        if (c >= 0xC2 && c < 0xE0 && end - from >= 2 && (from[1] & 0xC0) == 0x80) {
            *to++ = static_cast<char16_t>((c & 0x1FU) << 6 | (from[1] & 0x3FU));
            from += 2;
            continue;
        }
        const std::size_t length = sequenceLength(from, static_cast<std::size_t>(end - from), nullptr);
        if (length < 2)
            return std::string_view::npos;
        const char32_t point = decode(from, length);
        if (point < 0x10000) {
            *to++ = static_cast<char16_t>(point);
        } else {
            *to++ = static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
            *to++ = static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF));
        }
        from += length;
    }
    return static_cast<std::size_t>(to - out);
}

bool appendUtf16(std::string_view text, std::u16string& out)
{
    const std::size_t before = out.size();
    out.resize(before + text.size());
    const std::size_t length = toUtf16(text, out.data() + before);
    out.resize(before + (length == std::string_view::npos ? 0 : length));
    return length != std::string_view::npos;
}

std::size_t cutLength(std::u16string_view text, std::size_t units)
{
    if (text.size() <= units)
        return text.size();
    const bool splitsPair = units > 0 && (text[units - 1] & 0xFC00) == 0xD800 && (text[units] & 0xFC00) == 0xDC00;
    return splitsPair ? units - 1 : units;
}

std::size_t utf8Piece(std::string_view text, bool* cut)
{
    // A run of ASCII counts as one piece: nearly all of nearly every file.
    std::size_t ascii = 0;
    while (ascii + 8 <= text.size() && isAscii(text.data() + ascii))
        ascii += 8;
    if (ascii > 0 || text.empty())
        return ascii;
    return sequenceLength(text.data(), text.size(), cut);
}

bool isUtf8(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t piece = utf8Piece(text);
        if (piece == 0)
            return false;
        text.remove_prefix(piece);
    }
    return true;
}

} // namespace orva
