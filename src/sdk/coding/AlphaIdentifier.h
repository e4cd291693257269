#ifndef SDK_CODING_ALPHAIDENTIFIER_H
#define SDK_CODING_ALPHAIDENTIFIER_H

#include <string_view>

namespace orva
{

// What kind of card, or customisation, a text is counted for.
enum class AlphaRule {
    // A SIM: the default alphabet of 3GPP TS 23.038, one octet a character and two for one of the extension table; a
    // text with any other character takes the shortest of the three UCS-2 forms of ETSI TS 102 221 Annex A, with
    // their header octets.
    Sim,
    // A UIM: ASCII, one octet a character; any other text in plain UCS-2, two octets a unit and the header octet.
    Uim,
    // One for each UTF-16 unit whatever it is, for products whose cards promise a number of characters.
    Units,
};

// Length of a text as an alpha identifier, in octets (AlphaRule::Units: in units). The empty text has length 0, and a
// text is never shorter than any of its beginnings, so that cutting characters off the end always comes to fit. Any
// text is allowed, lone surrogates included; no result overflows an int.
int alphaLength(std::u16string_view text, AlphaRule rule) noexcept;

// Octets of a character in the default alphabet: 1, 2 for the extension table, 0 if it is not a text character of
// either (form feed and escape are in the tables, but are no text).
int gsmOctets(char16_t c) noexcept;

} // namespace orva

#endif // SDK_CODING_ALPHAIDENTIFIER_H
