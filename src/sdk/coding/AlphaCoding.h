#ifndef SDK_CODING_ALPHACODING_H
#define SDK_CODING_ALPHACODING_H

#include <optional>
#include <string>
#include <string_view>

namespace orva
{

// Text in the default alphabet of 3GPP TS 23.038, one octet a septet. What no table has comes as U+FFFD.
std::u16string gsmText(std::string_view octets);

// The same backwards; nothing for a text with another character, or with a line end or escape, which are no text.
std::optional<std::string> toGsm(std::u16string_view text);

// An alpha identifier as a card keeps it (ETSI TS 102 221 Annex A, all three UCS-2 forms), with or without the FF that
// fill its record up. A form that is cut off gives what there is of it.
std::u16string alphaText(std::string_view octets);

// The same backwards, in as many octets as alphaLength() counts.
std::string toAlpha(std::u16string_view text);

// Whether the octets are one whole alpha identifier in a UCS-2 form.
bool isAlphaForm(std::string_view octets);

} // namespace orva

#endif // SDK_CODING_ALPHACODING_H
