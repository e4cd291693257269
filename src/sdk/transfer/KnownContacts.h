#ifndef SDK_TRANSFER_KNOWNCONTACTS_H
#define SDK_TRANSFER_KNOWNCONTACTS_H

#include <string>
#include <unordered_set>

#include "care/Matcher.h"
#include "memories/Memory.h"
#include "transfer/ImportContact.h"

namespace orva
{

class Store;

// What an import does with those who are in the memory already. Contacts of the import itself are no reason to leave
// another out, and one that is there takes at most one of them, so that of several for one person none takes away what
// another has brought.
class KnownContacts
{
public:
    enum class Way { AddAll, Skip, Update };
    enum class Answer {
        New,     // to be added
        Skipped, // to be left out
        Same,    // there is nothing to change in the one that is there
        Changed, // to be stored in place of the one that is there
    };

    // Reads the memory, if need be. `store` is that of a memory that keeps something beside the fields, else null.
    KnownContacts(Way way, Memory& memory, Store* store, const std::string& region);

    // Whether anybody is looked up at all.
    bool looks() const { return m_way != Way::AddAll; }

    // Looks a contact up. For Same and Changed it gets whatever the one that is there has and the import has not, and
    // `id` is the identifier of that one.
    Answer settle(ImportContact& contact, int& id);

private:
    const Way m_way;
    Memory& m_memory;
    Store* const m_store;
    Matcher m_matcher;
    std::unordered_set<int> m_taken;
};

} // namespace orva

#endif // SDK_TRANSFER_KNOWNCONTACTS_H
