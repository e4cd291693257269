#ifndef SDK_BASE_CONTACTFIELDS_H
#define SDK_BASE_CONTACTFIELDS_H

#include <string>
#include <vector>

namespace orva
{

// What is known of somebody, as far as our memories have fields for it. UTF-8.
struct ContactFields {
    std::string name;
    std::string mobile;
    std::string office;
    std::string home;
    std::string email;
    std::string note;

    // The names of properties, in upper case and one for each, that say more than that.
    std::vector<std::string> left;

    bool empty() const
    {
        return name.empty() && mobile.empty() && office.empty() && home.empty() && email.empty() && note.empty();
    }
};

} // namespace orva

#endif // SDK_BASE_CONTACTFIELDS_H
