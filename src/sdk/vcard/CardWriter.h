#ifndef SDK_VCARD_CARDWRITER_H
#define SDK_VCARD_CARDWRITER_H

#include <string>

#include "vcard/Card.h"

namespace orva
{

// Appends a card. What was not changed since it was read comes out octet for octet; the rest is written as its version
// wants it, in lines of at most 75 octets (RFC 6350, 3.2) that are parted between characters, quoted-printable with
// soft line breaks (RFC 2045, 6.7). Each card begins in a line of its own.
void appendCard(const Card& card, std::string& out);

} // namespace orva

#endif // SDK_VCARD_CARDWRITER_H
