#ifndef SDK_VCARD_CARDCONTACT_H
#define SDK_VCARD_CARDCONTACT_H

#include <string>
#include <vector>

#include "base/ContactFields.h"
#include "vcard/Card.h"

namespace orva
{

// What a card says of somebody. UTF-8.
struct CardContact : ContactFields {
    std::vector<std::string> groups;

    // The properties named in `left`, in the same order.
    std::vector<CardProperty> kept;
};

// Takes the fields out of a card: the name from FN, else N, ORG or the e-mail address; numbers by the types of TEL
// (CELL, WORK, HOME), the first of a kind, and one without a kind in the first place that is free; the first or the
// preferred EMAIL; the first NOTE; groups from CATEGORIES. What tells only of the card itself (VERSION, PRODID, REV,
// UID, KIND, the parts of a name) does not count as left.
CardContact contactOf(const Card& card);

// A new card with those fields.
Card cardOf(const CardContact& contact, CardVersion version);

} // namespace orva

#endif // SDK_VCARD_CARDCONTACT_H
