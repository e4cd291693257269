#include "base/Text.h"

#include <cstring>

#include "base/Failure.h"
#include "base/Unicode.h"

namespace orva
{

namespace
{

constexpr std::size_t longestText = 65536;
constexpr char16_t replacement = 0xfffd;

std::u16string_view viewOf(const unsigned short* text)
{
    if (text == nullptr)
        throw Failure(ORVA_E_ARGUMENT, "null text");
    std::size_t length = 0;
    while (text[length] != 0) {
        if (++length > longestText)
            throw Failure(ORVA_E_TOO_LONG, "a text is too long");
    }
    return {reinterpret_cast<const char16_t*>(text), length};
}

} // namespace

std::u16string fromApi(const unsigned short* text)
{
    return std::u16string(viewOf(text));
}

void fromApi(const unsigned short* text, std::u16string& into)
{
    into.assign(viewOf(text));
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
    appendUtf8(text, out);
    return out;
}

std::u16string fromUtf8(std::string_view text)
{
    std::u16string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const std::size_t piece = utf8Piece(text);
        if (piece == 0 || !appendUtf16(text.substr(0, piece), out))
            out += replacement;
        text.remove_prefix(piece == 0 ? 1 : piece);
    }
    return out;
}

} // namespace orva
