#ifndef SDK_VCARD_CARDCONTACT_H
#define SDK_VCARD_CARDCONTACT_H

#include <string>
#include <vector>

#include "base/ContactFields.h"
#include "vcard/Card.h"

namespace orva
{

// Where in a card each field comes from: an index of its properties, -1 for nowhere.
struct CardSources {
    int name = -1;
    int mobile = -1;
    int office = -1;
    int home = -1;
    int email = -1;
    int note = -1;
};

// What a card says of somebody. UTF-8.
struct CardContact : ContactFields {
    std::vector<std::string> groups;

    // The properties named in `left`, in the same order.
    std::vector<CardProperty> kept;

    // Where in the card those stand.
    std::vector<int> keptAt;

    CardSources sources;
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
