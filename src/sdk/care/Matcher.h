#ifndef SDK_CARE_MATCHER_H
#define SDK_CARE_MATCHER_H

#include <string>
#include <unordered_map>
#include <vector>

#include "base/Profile.h"
#include "base/Values.h"

namespace orva
{

/*
 * Looks contacts up among others, for those that stand for the same person: those with the same name, whatever its case
 * and however its letters are composed, and a number or an e-mail address in common. Takes time and memory in
 * proportion to the contacts.
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

private:
    const Profile m_profile;
    const std::string m_region;
    std::vector<int> m_ids;
    std::unordered_map<std::string, std::size_t> m_persons;
    std::unordered_map<std::string, std::size_t> m_wholes;
};

} // namespace orva

#endif // SDK_CARE_MATCHER_H
