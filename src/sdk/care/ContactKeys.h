#ifndef SDK_CARE_CONTACTKEYS_H
#define SDK_CARE_CONTACTKEYS_H

#include <string>
#include <string_view>
#include <vector>

#include "base/Profile.h"
#include "base/Values.h"

namespace orva
{

// What a contact has in common with others that stand for the same person.
struct ContactKeys {
    std::vector<std::string> person;  // a name with a number or an e-mail address each
    std::vector<std::string> numbers; // alone
    std::string whole;                // every field; empty for a contact of nothing
};

// Values stand in the order of the profile. The region is a country's two letters for the comparison of numbers
// (NumberKey.h); empty for none.
ContactKeys contactKeys(const Profile& profile, const std::string& region, const Values& values);

// A text as it is compared: without case, its letters composed (Unicode's normalisation form C).
std::string foldedText(std::u16string_view text);

} // namespace orva

#endif // SDK_CARE_CONTACTKEYS_H
