#ifndef SDK_CARE_MERGER_H
#define SDK_CARE_MERGER_H

#include <string>
#include <string_view>
#include <vector>

#include "base/Profile.h"
#include "base/Values.h"

namespace orva
{

/*
 * Makes one contact of several. The first has the say: its values stay, and the others' go into the fields that it
 * leaves empty. A value that has no room there, and is no other way of writing one that has, goes into the note with a
 * word for its field, as "Mobile: +441632960001"; what the note has no room for is kept beside the fields. Notes are
 * joined, and so is what is kept.
 */
class Merger
{
public:
    // A profile with a field for notes. The region is a country's two letters for the comparison of numbers
    // (NumberKey.h); empty for none.
    explicit Merger(const Profile& profile, std::string region = std::string());

    // One contact or more, with as many values as the profile has fields.
    Content merged(const std::vector<Content>& contacts) const;

private:
    struct Rest {
        std::size_t field;
        std::u16string value;
    };

    std::vector<Rest> fillFields(Values& values, const Values& other) const;
    bool hasNumber(const Values& values, std::u16string_view number) const;
    bool addNote(Values& values, std::u16string_view text) const;

    const Profile m_profile;
    const std::string m_region;
    std::size_t m_note = 0;
};

} // namespace orva

#endif // SDK_CARE_MERGER_H
