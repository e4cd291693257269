#include "coding/AlphaIdentifier.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstddef>

namespace orva
{

namespace
{

constexpr std::u16string_view defaultLatin = u"@£$¥èéùìòÇ\nØø\rÅå_ÆæßÉ !\"#¤%&'()*+,-./0123456789:;<=>?"
                                             u"¡ABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÑÜ§¿abcdefghijklmnopqrstuvwxyzäöñüà";
constexpr std::u16string_view defaultGreek = u"ΔΦΓΛΩΠΨΣΘΞ";
constexpr std::u16string_view extensionLatin = u"^{}\\[~]|";
constexpr char16_t euro = u'\u20AC';

constexpr std::array<unsigned char, 256> latinOctets()
{
    std::array<unsigned char, 256> octets{};
    for (const char16_t c : defaultLatin)
        octets[c] = 1;
    for (const char16_t c : extensionLatin)
        octets[c] = 2;
    return octets;
}

constexpr std::array<unsigned char, 256> latinTable = latinOctets();

// The longest text whose length in the longest form still fits an int.
constexpr std::size_t countable = (INT_MAX - 1) / 2;

// What one walk over a text finds out, enough to tell its length in every form.
struct Survey {
    std::size_t gsm = 0;      // octets of the characters that the default alphabet has
    std::size_t others = 0;   // number of the others
    char16_t lowest = 0xFFFF; // of the others
    char16_t highest = 0;

    // Octets behind the header of a half-page form: every character of the page or the alphabet takes its own.
    std::size_t halfPageOctets() const { return gsm + others; }
};

Survey survey(std::u16string_view text) noexcept
{
    Survey found;
    for (const char16_t c : text) {
        const int octets = gsmOctets(c);
        if (octets != 0) {
            found.gsm += static_cast<std::size_t>(octets);
        } else {
            ++found.others;
            found.lowest = std::min(found.lowest, c);
            found.highest = std::max(found.highest, c);
        }
    }
    return found;
}

std::size_t simLength(std::u16string_view text) noexcept
{
    const Survey found = survey(text);
    if (found.others == 0)
        return found.gsm;
    std::size_t best = 1 + 2 * text.size(); // form 80: every unit in two octets
    // The half-page forms tell their length in one octet. Form 81 names a page of 128 characters that begins at a
    // multiple of 128 below 8000, in one octet; form 82 a page that begins anywhere, in two.
    if (found.halfPageOctets() <= 255) {
        if (found.highest < 0x8000 && found.lowest / 128 == found.highest / 128)
            best = std::min(best, 3 + found.halfPageOctets());
        else if (found.highest - found.lowest < 128)
            best = std::min(best, 4 + found.halfPageOctets());
    }
    return best;
}

std::size_t uimLength(std::u16string_view text) noexcept
{
    const bool ascii = std::all_of(text.begin(), text.end(), [](char16_t c) { return c < 0x80; });
    return ascii ? text.size() : 1 + 2 * text.size();
}

} // namespace

int gsmOctets(char16_t c) noexcept
{
    if (c < latinTable.size())
        return latinTable[c];
    if (c == euro)
        return 2;
    return defaultGreek.find(c) != std::u16string_view::npos ? 1 : 0;
}

int alphaLength(std::u16string_view text, AlphaRule rule) noexcept
{
    text = text.substr(0, countable);
    switch (rule) {
    case AlphaRule::Uim:
        return static_cast<int>(uimLength(text));
    case AlphaRule::Units:
        return static_cast<int>(text.size());
    case AlphaRule::Sim:
        break;
    }
    return static_cast<int>(simLength(text));
}

} // namespace orva
