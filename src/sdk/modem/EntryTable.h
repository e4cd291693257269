#ifndef SDK_MODEM_ENTRYTABLE_H
#define SDK_MODEM_ENTRYTABLE_H

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "modem/AtPhonebook.h"

namespace orva
{

// Gives out identifiers that no card and no device of this data folder ever had: a contact's identifier must not name
// another one when the cards are changed.
class Identifiers
{
public:
    // `folder` may be empty; then they are new in this process alone.
    explicit Identifiers(std::string folder) : m_folder(std::move(folder)) {}

    int next();

private:
    void reserve();

    const std::string m_folder;
    int m_next = 0;     // 0 until the file was read
    int m_reserved = 0; // first one that is not this process's
};

/*
 * The entries of a storage by identifiers, which are kept in a file for the card's or modem's number: a location that
 * still has its name or its number keeps its identifier. The file holds digests alone, no contact. Not for several
 * threads.
 */
class EntryTable
{
public:
    EntryTable(std::string folder, Identifiers& identifiers) : m_folder(std::move(folder)), m_identifiers(identifiers)
    {
    }

    // Takes over what was read. `key` names the card or modem and the storage; empty for one that has no number, whose
    // identifiers do not outlast it. True if anything differs from what was there.
    bool take(const std::string& key, const std::vector<PhonebookEntry>& entries);

    // Forgets everything, but not in the file.
    void clear();

    const std::map<int, PhonebookEntry>& entries() const { return m_entries; }
    int size() const { return static_cast<int>(m_entries.size()); }
    int last() const { return m_entries.empty() ? 0 : m_entries.rbegin()->first; }

    // Null if it is not there.
    const PhonebookEntry* find(int id) const;

    // 0 for an empty location.
    int idAt(int location) const;

    // The lowest location of a range that has no entry; -1 for none.
    int freeLocation(int first, int last) const;

    // A change of ours: a new entry and its identifier, an entry's new content, an entry gone.
    int add(const PhonebookEntry& entry);
    void replace(int id, const PhonebookEntry& entry);
    void erase(int id);

    // What somebody else has put into a location, or taken out of it (an entry without content).
    void notice(const PhonebookEntry& entry);

private:
    struct Kept {
        int id = 0;
        std::uint64_t alpha = 0;
        std::uint64_t number = 0;
    };

    std::map<int, Kept> readKept() const;
    void keep() const;
    std::string path() const;

    const std::string m_folder;
    Identifiers& m_identifiers;
    std::string m_key;
    std::map<int, PhonebookEntry> m_entries; // by identifier
    std::map<int, int> m_ids;                // by location
};

} // namespace orva

#endif // SDK_MODEM_ENTRYTABLE_H
