#include "base/NumberText.h"

#include <algorithm>
#include <iterator>

namespace orva
{

namespace
{

constexpr std::size_t extensionDigitsAtMost = 7;

// The zero of each script's decimal digits; the other nine follow it.
constexpr char32_t zeros[] = {0x0660,  0x06F0,  0x07C0,  0x0966,  0x09E6,  0x0A66,  0x0AE6,  0x0B66,  0x0BE6,  0x0C66,
                              0x0CE6,  0x0D66,  0x0DE6,  0x0E50,  0x0ED0,  0x0F20,  0x1040,  0x1090,  0x17E0,  0x1810,
                              0x1946,  0x19D0,  0x1A80,  0x1A90,  0x1B50,  0x1BB0,  0x1C40,  0x1C50,  0xA620,  0xA8D0,
                              0xA900,  0xA9D0,  0xA9F0,  0xAA50,  0xABF0,  0xFF10,  0x104A0, 0x10D30, 0x11066, 0x110F0,
                              0x11136, 0x111D0, 0x112F0, 0x11450, 0x114D0, 0x11650, 0x116C0, 0x11730, 0x118E0, 0x11950,
                              0x11C50, 0x11D50, 0x11DA0, 0x16A60, 0x16AC0, 0x16B50, 0x1D7CE, 0x1D7D8, 0x1D7E2, 0x1D7EC,
                              0x1D7F6, 0x1E140, 0x1E2F0, 0x1E950, 0x1FBF0};

struct Range {
    char32_t first;
    char32_t last;
};

// What stands in a number for the eye: blanks, dashes, dots and slashes of all widths, and invisible marks that come
// along with a copied text.
constexpr Range decorations[] = {
    {U'\t', U'\r'},   {U' ', U' '},     {U'-', U'/'},     {0x0085, 0x0085}, {0x00A0, 0x00A0}, {0x00AD, 0x00AD},
    {0x034F, 0x034F}, {0x061C, 0x061C}, {0x1680, 0x1680}, {0x180E, 0x180E}, {0x2000, 0x2015}, {0x2024, 0x2024},
    {0x2028, 0x202F}, {0x2043, 0x2044}, {0x205F, 0x2060}, {0x2066, 0x2069}, {0x2212, 0x2212}, {0x2215, 0x2215},
    {0x3000, 0x3000}, {0x301C, 0x301C}, {0x30FC, 0x30FC}, {0xFE00, 0xFE0F}, {0xFE58, 0xFE58}, {0xFE63, 0xFE63},
    {0xFEFF, 0xFEFF}, {0xFF0D, 0xFF0F}};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isSign(char c)
{
    return c == '+' || c == '*' || c == '#';
}

bool isDecoration(char32_t point)
{
    const Range* const after = std::upper_bound(std::begin(decorations), std::end(decorations), point,
                                                [](char32_t p, const Range& range) { return p < range.first; });
    return after != std::begin(decorations) && point <= (after - 1)->last;
}

// The digit that a character is in its script, as ASCII; 0 for none.
char digitOf(char32_t point)
{
    const char32_t* const after = std::upper_bound(std::begin(zeros), std::end(zeros), point);
    if (after == std::begin(zeros) || point - *(after - 1) > 9)
        return 0;
    return static_cast<char>('0' + (point - *(after - 1)));
}

// The sign or parenthesis that a character is in another width; 0 for none.
char narrow(char32_t point)
{
    switch (point) {
    case 0xFF0B:
    case 0xFE62:
        return '+';
    case 0xFF0A:
        return '*';
    case 0xFF03:
        return '#';
    case 0xFF08:
        return '(';
    case 0xFF09:
        return ')';
    default:
        return 0;
    }
}

// A character in the small alphabet that the rest reads: digits, signs, parentheses, small letters, ":", ";", "," and
// "=", and a blank for all decoration; 0 for what no number holds.
char spelt(char32_t point)
{
    if ((point >= U'0' && point <= U'9') || (point >= U'a' && point <= U'z') ||
        (point != 0 && point < 0x80 &&
         std::string_view("+*#():;,=").find(static_cast<char>(point)) != std::string_view::npos))
        return static_cast<char>(point);
    if (point >= U'A' && point <= U'Z')
        return static_cast<char>(point - U'A' + U'a');
    if (isDecoration(point))
        return ' ';
    const char digit = digitOf(point);
    return digit != 0 ? digit : narrow(point);
}

// The whole text so; nothing if a character of it is in no number.
std::optional<std::string> spellOut(std::u16string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t point = text[i];
        if ((point & 0xFC00) == 0xD800 && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00)
            point = 0x10000 + ((point & 0x3FF) << 10) + (text[++i] & 0x3FFU);
        const char c = spelt(point);
        if (c == 0)
            return std::nullopt;
        out.push_back(c);
    }
    return out;
}

bool takePrefix(std::string_view& text, std::string_view prefix)
{
    if (text.substr(0, prefix.size()) != prefix)
        return false;
    text.remove_prefix(prefix.size());
    return true;
}

void skip(std::string_view& text, const char* characters)
{
    text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
}

// Reads " ext. 12", ", x12", ";ext=12" to the end of the text; empty if it is none of these.
std::string_view readExtension(std::string_view text)
{
    skip(text, " ,;");
    if (!takePrefix(text, "extension") && !takePrefix(text, "extn") && !takePrefix(text, "ext") &&
        !takePrefix(text, "x"))
        return {};
    skip(text, " :=");
    const std::string_view digits = text.substr(0, std::min(text.find_first_not_of("0123456789"), text.size()));
    text.remove_prefix(digits.size());
    skip(text, " )");
    return text.empty() && digits.size() <= extensionDigitsAtMost ? digits : std::string_view();
}

// Whether these are an international prefix and a country's code alone, of a country whose numbers lose their zero
// when they are dialled from abroad. Those of Italy and San Marino keep it.
bool endsTrunk(std::string_view dialled)
{
    if (!takePrefix(dialled, "+") && !takePrefix(dialled, "00"))
        return false;
    return !dialled.empty() && dialled.size() <= 3 && dialled != "39" && dialled != "378";
}

// Length of the "(0)" that a text begins with; 0 for none.
std::size_t trunkZero(std::string_view text)
{
    std::string_view rest = text;
    if (!takePrefix(rest, "("))
        return 0;
    skip(rest, " ");
    if (!takePrefix(rest, "0"))
        return 0;
    skip(rest, " ");
    return takePrefix(rest, ")") ? text.size() - rest.size() : 0;
}

std::string dialled(std::string_view text)
{
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t zero = trunkZero(text.substr(i));
        if (zero != 0 && endsTrunk(out))
            i += zero - 1;
        else if (text[i] != ' ' && text[i] != '(' && text[i] != ')')
            out.push_back(text[i]);
    }
    return out;
}

} // namespace

std::optional<NumberText> readNumber(std::u16string_view text, Pauses pauses)
{
    const std::optional<std::string> whole = spellOut(text);
    if (!whole)
        return std::nullopt;
    std::string_view rest = *whole;
    skip(rest, " ");
    takePrefix(rest, "tel:");
    const char* const ofNumber = pauses == Pauses::Yes ? "0123456789+*# ()pw" : "0123456789+*# ()";
    const std::size_t end = std::min(rest.find_first_not_of(ofNumber), rest.size());
    const std::string number = dialled(rest.substr(0, end));
    const std::string_view extension = readExtension(rest.substr(end));
    if (end < rest.size() && (extension.empty() || std::none_of(number.begin(), number.end(), isDigit)))
        return std::nullopt;
    return NumberText{{number.begin(), number.end()}, {extension.begin(), extension.end()}};
}

bool isPlainNumber(std::u16string_view text, Pauses pauses)
{
    for (const char16_t c : text) {
        if (c >= u'0' && c <= u'9')
            continue;
        const bool pause = pauses == Pauses::Yes && (c == u'p' || c == u'w');
        if (!pause && (c >= 0x80 || !isSign(static_cast<char>(c))))
            return false;
    }
    return true;
}

bool isNumberField(const Field& field)
{
    return field.kind == "Number" || field.kind == "Mobile";
}

Pauses pausesOf(const Field& field)
{
    return field.accepted.find('p') != std::string::npos ? Pauses::Yes : Pauses::No;
}

std::u16string extensionNote(const NumberText& text)
{
    return text.number + u" ext. " + text.extension;
}

} // namespace orva
