#ifndef SDK_MODEM_PHONEBOOKREPAIR_H
#define SDK_MODEM_PHONEBOOKREPAIR_H

#include <map>
#include <set>

#include "modem/AtPhonebook.h"

namespace orva
{

// The entries of a storage by their locations.
using Listing = std::map<int, PhonebookEntry>;

Listing listingOf(const std::vector<PhonebookEntry>& entries);

// Locations other than `asked` where what was asked for has happened: `entry` stands there now, or, without one, what
// stood there is gone and what stood at `asked` is not.
std::set<int> strayLocations(const Listing& before, const Listing& now, int asked, const PhonebookEntry* entry);

/*
 * Puts locations back that a modem has changed in place of the one it was told, by commands that may go astray as well:
 * each is followed by a look at the whole list, and what it hit tells where to aim next.
 */
class PhonebookRepair
{
public:
    // `wanted` is what shall stand there again.
    PhonebookRepair(AtPhonebook& book, const PhonebookStorage& storage, const Listing& wanted)
        : m_book(book), m_storage(storage), m_wanted(wanted)
    {
    }

    // A command for `asked` has hit `hit`: `now` is what stands there since. False if not all could be put back.
    bool putBack(Listing now, int asked, const std::set<int>& hit, bool erased);

private:
    bool asWanted(const Listing& now, int location) const;
    int within(int location) const;
    void command(int asked, int meant, const Listing& now);
    bool learn(const Listing& before, const Listing& after, int asked, bool erasing);

    AtPhonebook& m_book;
    const PhonebookStorage& m_storage;
    const Listing& m_wanted;
    std::set<int> m_touched;
    int m_writeShift = 0; // how far behind the location that it is told the modem writes
    int m_eraseShift = 0;
};

} // namespace orva

#endif // SDK_MODEM_PHONEBOOKREPAIR_H
