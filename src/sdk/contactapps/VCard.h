#ifndef SDK_CONTACTAPPS_VCARD_H
#define SDK_CONTACTAPPS_VCARD_H

#include <string_view>

#include "base/ContactFields.h"

namespace orva
{

// Reads one vCard (2.1, 3.0 of RFC 2426 or 4.0 of RFC 6350). Anything may be missing or malformed; what cannot be read
// is left out. The first number of a kind counts; a number without a kind takes the first place that is free. A list
// of contacts gives an empty one.
ContactFields readVCard(std::string_view card);

} // namespace orva

#endif // SDK_CONTACTAPPS_VCARD_H
