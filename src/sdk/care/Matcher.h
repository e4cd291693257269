#ifndef SDK_CARE_MATCHER_H
#define SDK_CARE_MATCHER_H

#include <string>
#include <string_view>
#include <unordered_map>
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
 * Finds contacts that stand for the same person: those with the same name, whatever its case and however its letters
 * are composed, and a number or an e-mail address in common. Takes time and memory in proportion to the contacts.
 */
class Matcher
{
public:
    // The region is a country's two letters for the comparison of numbers (NumberKey.h); empty for none.
    explicit Matcher(const Profile& profile, std::string region = std::string());

    // Takes a contact in. Values stand in the order of the profile.
    void add(int id, const Values& values);

    // The first contact taken in that has the same text in every field, so that one of nothing but a name or a number
    // is found as well, else the first that is the same person; 0 for none.
    int find(const Values& values) const;

    // The sets of two or more: the same people first, then those with a number in common, in the order of their first
    // contacts. Of a person who is there several times, a number alone brings nobody together again.
    std::vector<DuplicateSet> duplicates();

private:
    struct Keys {
        std::vector<std::string> person;  // a name with a number or an e-mail address each
        std::vector<std::string> numbers; // alone
        std::string whole;                // every field; empty for a contact of nothing
    };

    Keys keysOf(const Values& values) const;
    std::size_t rootOf(std::size_t contact);

    const Profile m_profile;
    const std::string m_region;
    std::vector<int> m_ids;
    std::vector<std::size_t> m_parents; // of each contact, another of its person with a smaller index, or itself
    std::unordered_map<std::string, std::size_t> m_persons;
    std::unordered_map<std::string, std::size_t> m_wholes;
    std::unordered_map<std::string, std::size_t> m_numbers; // to their index in m_byNumber
    std::vector<std::vector<std::size_t>> m_byNumber;
};

// A text as it is compared: without case, its letters composed (Unicode's normalisation form C).
std::string foldedText(std::u16string_view text);

} // namespace orva

#endif // SDK_CARE_MATCHER_H
