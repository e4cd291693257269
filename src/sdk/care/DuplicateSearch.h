#ifndef SDK_CARE_DUPLICATESEARCH_H
#define SDK_CARE_DUPLICATESEARCH_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/Profile.h"
#include "base/Values.h"

namespace orva
{

// Contacts that belong together, by their identifiers as they came.
struct DuplicateSet {
    bool same = false; // the same person; else people with one number, as in a family
    std::vector<int> ids;
};

/*
 * Finds the contacts of a whole memory that stand for the same person: those with the same name, whatever its case and
 * however its letters are composed, and a number or an e-mail address in common. What contacts have in common is laid
 * one behind the other and sorted at the end: a table of it would be looked up all over the memory for each contact,
 * and costs more a contact the larger it is.
 */
class DuplicateSearch
{
public:
    // The region is a country's two letters for the comparison of numbers (NumberKey.h); empty for none.
    DuplicateSearch(const Profile& profile, std::string region);

    // Takes a contact in. Values stand in the order of the profile.
    void add(int id, const Values& values);

    // The sets of two or more: the same people first, then those with a number in common, in the order of their first
    // contacts. Of a person who is there several times, a number alone brings nobody together again.
    std::vector<DuplicateSet> sets();

private:
    struct Mention {
        std::size_t hash;
        std::size_t at; // in m_texts
        std::uint32_t length;
        std::uint32_t contact;
    };
    using Mentions = std::vector<Mention>;

    void mention(Mentions& mentions, const std::string& text);
    std::string_view textOf(const Mention& mention) const;
    std::vector<Mentions> inCommon(Mentions& mentions) const;
    std::size_t rootOf(std::size_t contact);
    void findPersons(std::vector<DuplicateSet>& found);
    void findSharers(std::vector<DuplicateSet>& found);

    const Profile m_profile;
    const std::string m_region;
    std::vector<int> m_ids;
    std::vector<std::size_t> m_parents; // of each contact, another of its person with a smaller index, or itself
    std::string m_texts;
    Mentions m_persons;
    Mentions m_numbers;
};

} // namespace orva

#endif // SDK_CARE_DUPLICATESEARCH_H
