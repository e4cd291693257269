#include "csv/NumberText.h"

namespace orva
{

namespace
{

bool isDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

bool isSign(char16_t c)
{
    return c == u'+' || c == u'*' || c == u'#';
}

bool isDecoration(char16_t c)
{
    switch (c) {
    case u' ':
    case u'\t':
    case u'\r':
    case u'\n':
    case u'.':
    case u'-':
    case u'/':
    case u'(':
    case u')':
    case 0x00A0: // blanks of other widths
    case 0x202F:
    case 0x3000:
    case 0x00AD: // dashes of other lengths
    case 0x2212:
    case 0xFF0D:
    case 0x200E: // direction marks and other invisible things that come with a copied number
    case 0x200F:
    case 0x061C:
    case 0x2060:
    case 0xFEFF:
        return true;
    default:
        return (c >= 0x2000 && c <= 0x200D) || (c >= 0x2010 && c <= 0x2015) || (c >= 0x202A && c <= 0x202E) ||
               (c >= 0x2066 && c <= 0x2069);
    }
}

// The digit, plus, star or hash that a character is; 0 for anything else.
char16_t dialled(char16_t c)
{
    if (isDigit(c) || isSign(c))
        return c;
    for (const char16_t zero :
         {0x0660, 0x06F0, 0x0966, 0x0E50, 0xFF10}) // Arabic, Persian, Devanagari, Thai, full width
        if (c >= zero && c <= zero + 9)
            return static_cast<char16_t>(u'0' + (c - zero));
    return c == 0xFF0B ? u'+' : u'\0';
}

} // namespace

std::size_t cleanNumber(char16_t* text, std::size_t length)
{
    std::size_t plain = 0;
    while (plain < length && (isDigit(text[plain]) || isSign(text[plain])))
        ++plain;
    for (std::size_t i = plain; i < length; ++i)
        if (dialled(text[i]) == 0 && !isDecoration(text[i]))
            return length;
    std::size_t to = plain;
    for (std::size_t i = plain; i < length; ++i)
        if (const char16_t c = dialled(text[i]); c != 0)
            text[to++] = c;
    return to;
}

std::size_t firstLength(std::u16string_view text)
{
    constexpr std::u16string_view between = u" ::: ";
    for (std::size_t at = text.find(u' '); at < text.size(); at = text.find(u' ', at + 1))
        if (text.substr(at, between.size()) == between)
            return at;
    return text.size();
}

} // namespace orva
