#include "csv/NumberText.h"

namespace orva
{

namespace
{

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
    if ((c >= u'0' && c <= u'9') || c == u'+' || c == u'*' || c == u'#')
        return c;
    for (const char16_t zero :
         {0x0660, 0x06F0, 0x0966, 0x0E50, 0xFF10}) // Arabic, Persian, Devanagari, Thai, full width
        if (c >= zero && c <= zero + 9)
            return static_cast<char16_t>(u'0' + (c - zero));
    return c == 0xFF0B ? u'+' : u'\0';
}

} // namespace

void cleanNumber(std::u16string& text)
{
    for (const char16_t c : text)
        if (dialled(c) == 0 && !isDecoration(c))
            return;
    std::size_t to = 0;
    for (const char16_t c : text)
        if (const char16_t sign = dialled(c); sign != 0)
            text[to++] = sign;
    text.resize(to);
}

void keepFirst(std::u16string& text)
{
    const std::size_t end = text.find(u" ::: ");
    if (end != std::u16string::npos)
        text.resize(end);
}

} // namespace orva
