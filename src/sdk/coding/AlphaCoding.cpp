#include "coding/AlphaCoding.h"

#include <algorithm>
#include <cstddef>

#include "coding/AlphaIdentifier.h"

namespace orva
{

namespace
{

constexpr char16_t unknown = 0xFFFD;
constexpr unsigned char escape = 0x1B;
constexpr unsigned char fill = 0xFF;

// The default alphabet by code. The escape stands as U+FFFD.
constexpr std::u16string_view alphabet =
    u"@\u00A3$\u00A5\u00E8\u00E9\u00F9\u00EC\u00F2\u00C7\n\u00D8\u00F8\r\u00C5\u00E5"
    u"\u0394_\u03A6\u0393\u039B\u03A9\u03A0\u03A8\u03A3\u0398\u039E\uFFFD\u00C6\u00E6\u00DF\u00C9"
    u" !\"#\u00A4%&'()*+,-./0123456789:;<=>?"
    u"\u00A1ABCDEFGHIJKLMNOPQRSTUVWXYZ\u00C4\u00D6\u00D1\u00DC\u00A7"
    u"\u00BFabcdefghijklmnopqrstuvwxyz\u00E4\u00F6\u00F1\u00FC\u00E0";
static_assert(alphabet.size() == 128);

constexpr std::u16string_view extensionText = u"^{}\\[~]|\u20AC";
constexpr std::string_view extensionCodes = "\x14\x28\x29\x2F\x3C\x3D\x3E\x40\x65";
static_assert(extensionText.size() == extensionCodes.size());

unsigned char at(std::string_view octets, std::size_t index)
{
    return static_cast<unsigned char>(octets[index]);
}

// Appends the character at `index`, which moves behind it.
void appendGsmText(std::string_view octets, std::size_t& index, std::u16string& out)
{
    const unsigned char code = at(octets, index++);
    if (code >= alphabet.size()) {
        out.push_back(unknown);
    } else if (code != escape) {
        out.push_back(alphabet[code]);
    } else if (index < octets.size()) {
        const std::size_t found = extensionCodes.find(octets[index++]);
        out.push_back(found == std::string_view::npos ? unknown : extensionText[found]);
    }
}

// False for a character that the alphabet has not.
bool appendGsm(char16_t c, std::string& out)
{
    if (gsmOctets(c) == 0)
        return false;
    const std::size_t extension = extensionText.find(c);
    if (extension != std::u16string_view::npos) {
        out.push_back(static_cast<char>(escape));
        out.push_back(extensionCodes[extension]);
        return true;
    }
    const std::size_t code = alphabet.find(c);
    if (code == std::u16string_view::npos)
        return false;
    out.push_back(static_cast<char>(code));
    return true;
}

std::u16string halfPageText(std::string_view octets, std::size_t header)
{
    std::u16string out;
    if (octets.size() < header)
        return out;
    const unsigned base = header == 3 ? static_cast<unsigned>(at(octets, 2)) << 7
                                      : static_cast<unsigned>(at(octets, 2)) << 8 | at(octets, 3);
    const std::string_view body = octets.substr(header, at(octets, 1));
    for (std::size_t i = 0; i < body.size();) {
        if ((at(body, i) & 0x80) != 0)
            out.push_back(static_cast<char16_t>(base + (at(body, i++) & 0x7F)));
        else
            appendGsmText(body, i, out);
    }
    return out;
}

std::string plainForm(std::u16string_view text)
{
    std::string out(1, '\x80');
    for (const char16_t c : text) {
        out.push_back(static_cast<char>(c >> 8));
        out.push_back(static_cast<char>(c & 0xFF));
    }
    return out;
}

// A half-page form with the page that begins at `base`, which all characters outside the alphabet lie in.
std::string halfPageForm(std::u16string_view text, std::string header, unsigned base)
{
    std::string body;
    for (const char16_t c : text) {
        if (!appendGsm(c, body))
            body.push_back(static_cast<char>(0x80 | (c - base)));
    }
    header.insert(1, 1, static_cast<char>(body.size()));
    return header + body;
}

} // namespace

std::u16string gsmText(std::string_view octets)
{
    std::u16string out;
    for (std::size_t i = 0; i < octets.size();)
        appendGsmText(octets, i, out);
    return out;
}

std::optional<std::string> toGsm(std::u16string_view text)
{
    std::string out;
    for (const char16_t c : text) {
        if (c == u'\n' || c == u'\r' || !appendGsm(c, out))
            return std::nullopt;
    }
    return out;
}

std::u16string alphaText(std::string_view octets)
{
    if (octets.empty() || at(octets, 0) == fill)
        return {};
    switch (at(octets, 0)) {
    case 0x80: {
        std::u16string out;
        for (std::size_t i = 1; i + 1 < octets.size(); i += 2) {
            const auto unit = static_cast<char16_t>(at(octets, i) << 8 | at(octets, i + 1));
            if (unit == 0xFFFF)
                break;
            out.push_back(unit);
        }
        return out;
    }
    case 0x81:
        return halfPageText(octets, 3);
    case 0x82:
        return halfPageText(octets, 4);
    default:
        break;
    }
    return gsmText(octets.substr(0, octets.find(static_cast<char>(fill))));
}

std::string toAlpha(std::u16string_view text)
{
    const auto length = static_cast<std::size_t>(alphaLength(text, AlphaRule::Sim));
    std::string gsm;
    char16_t lowest = 0xFFFF;
    bool all = true;
    for (const char16_t c : text) {
        if (!appendGsm(c, gsm)) {
            all = false;
            lowest = std::min(lowest, c);
        }
    }
    if (all)
        return gsm;
    if (length == 1 + 2 * text.size())
        return plainForm(text);
    // The counting has taken the page apart already: 3 octets of header are form 81, 4 are form 82.
    const auto others =
        static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char16_t c) { return gsmOctets(c) == 0; }));
    if (length == 3 + gsm.size() + others)
        return halfPageForm(text, {'\x81', static_cast<char>(lowest >> 7)}, lowest & 0xFF80U);
    return halfPageForm(text, {'\x82', static_cast<char>(lowest >> 8), static_cast<char>(lowest & 0xFF)}, lowest);
}

bool isAlphaForm(std::string_view octets)
{
    if (octets.size() < 3)
        return false;
    switch (at(octets, 0)) {
    case 0x80:
        return octets.size() % 2 == 1;
    case 0x81:
        return octets.size() == 3U + at(octets, 1);
    case 0x82:
        return octets.size() >= 4 && octets.size() == 4U + at(octets, 1);
    default:
        return false;
    }
}

} // namespace orva
