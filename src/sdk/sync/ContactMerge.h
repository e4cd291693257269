#ifndef SDK_SYNC_CONTACTMERGE_H
#define SDK_SYNC_CONTACTMERGE_H

#include <optional>
#include <string>
#include <vector>

#include "store/SyncLink.h"
#include "sync/CardView.h"
#include "vcard/Card.h"

namespace orva
{

// Both sides of one person, and what they had in common.
struct ContactSides {
    const Card* base = nullptr; // null where nothing is known; then neither side gives anything up that the other lacks
    std::vector<std::string> baseGroups;
    SyncContent here;
    Card there;
    std::vector<std::string> groupsThere; // those of cards of groups; the card's own are not among them
    long long timeHere = 0;               // when each side was written: seconds since 1970, 0 if it is not known
    long long timeThere = 0;
};

struct MergedContact {
    SyncContent here;
    Card there;
    bool changesHere = false;
    bool changesThere = false;

    // What both sides changed, each in its own way, by the names of fields and properties; and whose is in force.
    std::vector<std::string> conflicts;
    bool hereWins = false;

    // Memberships that cards of groups hold.
    std::vector<std::string> joins;
    std::vector<std::string> leaves;
};

// Merges by property: a change of one side lives, and so do different changes of both. Of two changes of the same field
// the later one does. `groupCards` are the groups that have a card of their own; the region is a country's two letters
// for the comparison of numbers, empty for none.
MergedContact mergeContact(const ContactSides& sides, const std::vector<std::string>& groupCards,
                           const std::string& region);

// Whether two contents say the same, however their kept lines are written.
bool sameContent(const SyncContent& one, const SyncContent& other);

} // namespace orva

#endif // SDK_SYNC_CONTACTMERGE_H
