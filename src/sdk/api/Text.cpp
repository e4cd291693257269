#include "api/Text.h"

#include <algorithm>
#include <cstring>

#include "memories/Failure.h"

namespace orva
{

namespace
{

constexpr std::size_t longestText = 65536;
constexpr char32_t replacement = 0xfffd;

bool isHigh(char32_t unit)
{
    return unit >= 0xd800 && unit <= 0xdbff;
}

bool isLow(char32_t unit)
{
    return unit >= 0xdc00 && unit <= 0xdfff;
}

void appendUtf8(std::string& out, char32_t c)
{
    const auto byte = [&out](char32_t value) { out += static_cast<char>(static_cast<unsigned char>(value)); };
    if (c < 0x80) {
        byte(c);
    } else if (c < 0x800) {
        byte(0xc0 | (c >> 6));
        byte(0x80 | (c & 0x3f));
    } else if (c < 0x10000) {
        byte(0xe0 | (c >> 12));
        byte(0x80 | ((c >> 6) & 0x3f));
        byte(0x80 | (c & 0x3f));
    } else {
        byte(0xf0 | (c >> 18));
        byte(0x80 | ((c >> 12) & 0x3f));
        byte(0x80 | ((c >> 6) & 0x3f));
        byte(0x80 | (c & 0x3f));
    }
}

void appendUtf16(std::u16string& out, char32_t c)
{
    if (c < 0x10000) {
        out += static_cast<char16_t>(c);
        return;
    }
    out += static_cast<char16_t>(0xd800 + ((c - 0x10000) >> 10));
    out += static_cast<char16_t>(0xdc00 + ((c - 0x10000) & 0x3ff));
}

// Takes one character off the front; what is not well formed gives the replacement character and takes one byte.
char32_t takeUtf8(std::string_view& text)
{
    const auto first = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    if (first < 0x80)
        return first;
    const int more = first >= 0xf0 ? 3 : first >= 0xe0 ? 2 : 1;
    if (first < 0xc2 || first > 0xf4 || text.size() < static_cast<std::size_t>(more))
        return replacement;
    char32_t c = first & (0x3fU >> more);
    for (int i = 0; i < more; ++i) {
        const auto next = static_cast<unsigned char>(text[static_cast<std::size_t>(i)]);
        if ((next & 0xc0) != 0x80)
            return replacement;
        c = (c << 6) | (next & 0x3f);
    }
    const char32_t lowest = more == 3 ? 0x10000 : more == 2 ? 0x800 : 0x80;
    if (c < lowest || c > 0x10ffff || isHigh(c) || isLow(c))
        return replacement;
    text.remove_prefix(static_cast<std::size_t>(more));
    return c;
}

} // namespace

std::u16string fromApi(const unsigned short* text)
{
    if (text == nullptr)
        throw Failure(ORVA_E_ARGUMENT, "null text");
    std::size_t length = 0;
    while (text[length] != 0) {
        if (++length > longestText)
            throw Failure(ORVA_E_TOO_LONG, "a text is too long");
    }
    return std::u16string(text, text + length);
}

unsigned short* toApi(std::u16string_view text)
{
    static_assert(sizeof(unsigned short) == sizeof(char16_t));
    auto* const buffer = new unsigned short[text.size() + 1];
    if (!text.empty())
        std::memcpy(buffer, text.data(), text.size() * sizeof(char16_t));
    buffer[text.size()] = 0;
    return buffer;
}

std::string toUtf8(std::u16string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (isHigh(c) && i + 1 < text.size() && isLow(text[i + 1])) {
            c = 0x10000 + ((c - 0xd800) << 10) + (text[i + 1] - 0xdc00U);
            ++i;
        } else if (isHigh(c) || isLow(c)) {
            c = replacement;
        }
        appendUtf8(out, c);
    }
    return out;
}

std::u16string fromUtf8(std::string_view text)
{
    std::u16string out;
    out.reserve(text.size());
    while (!text.empty())
        appendUtf16(out, takeUtf8(text));
    return out;
}

} // namespace orva
