#ifndef SDK_SYNC_CARDVIEW_H
#define SDK_SYNC_CARDVIEW_H

#include <string>
#include <vector>

#include "store/SyncLink.h"
#include "vcard/Card.h"
#include "vcard/CardContact.h"

namespace orva
{

// The fields of the PC's phonebook, in the order of its profile.
enum class ContactField { Name, Mobile, Office, Home, Email, Note };
constexpr std::size_t contactFields = 6;

// What the phonebook stores of a card, and where in the card that stands.
struct CardView {
    SyncContent content;
    CardSources sources;
    std::vector<int> kept; // the properties that are kept beside the fields, in their order

    int source(ContactField field) const;

    // Whether there is anything that a field is meant for.
    bool empty() const;
};

// Numbers are stored as the phonebook has them; an extension goes into the note. What no field takes in whole, such as
// a note that is too long or a number that is none, is kept in whole; a text is cut in the field then.
CardView viewOf(const Card& card);

// A text by which a property is found again after another program has written it anew: case of its name, order of its
// parameters and folds make no difference.
std::string propertyKey(const CardProperty& property);

// The text of UID as it is written; empty for none.
std::string uidOf(const Card& card);

// A UID as members of a group are compared: without "urn:uuid:".
std::string memberUid(const std::string& text);

// Whether a card stands for a group and not for somebody (RFC 6350, 6.1.4, and what address books in 3.0 write).
bool isGroupCard(const Card& card);

// When REV says that a card was written: seconds since the beginning of 1970, UTC; 0 if it does not say.
long long revisionOf(const Card& card);

// That as REV is written.
std::string revisionText(long long time);

} // namespace orva

#endif // SDK_SYNC_CARDVIEW_H
