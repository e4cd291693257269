#ifndef PBCTL_EXISTING_H
#define PBCTL_EXISTING_H

#include <set>
#include <string>
#include <vector>

#include "Arguments.h"
#include "Sdk.h"

namespace pbctl
{

// What an import does with those who are in the memory already: nothing special, unless --skip-existing or --update
// says so. Contacts of the import itself are no reason to leave another out, and one that is there takes at most one of
// them, so that of several for one person none takes away what another has brought.
class Existing
{
public:
    // Reads the memory, if need be. UsageError for both options at once.
    Existing(const Arguments& arguments, int memory, const std::vector<Field>& fields);
    Existing(const Existing&) = delete;
    Existing& operator=(const Existing&) = delete;

    enum class Answer {
        New,     // to be added
        Skipped, // to be left out
        Same,    // there is nothing to change in the one that is there
        Changed, // to be stored in place of the one that is there
    };

    // Whether anybody is looked up at all.
    bool looks() const { return m_way != Way::AddAll; }

    // Looks a contact up. For Same and Changed it gets the identifier of the one that is there, and whatever that has
    // and the import has not.
    Answer settle(Contact& contact);

    // Says that a changed one was stored.
    void changed() { ++m_changed; }

    // How many were no addition, and what to say of them.
    int count() const { return m_skipped + m_same + m_changed; }
    std::string summary() const;

private:
    enum class Way { AddAll, Skip, Update };

    const Way m_way;
    const int m_memory;
    const std::vector<Field>& m_fields;
    Handle m_match;
    std::set<int> m_taken;
    int m_skipped = 0;
    int m_same = 0;
    int m_changed = 0;
};

} // namespace pbctl

#endif // PBCTL_EXISTING_H
