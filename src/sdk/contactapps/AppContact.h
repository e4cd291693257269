#ifndef SDK_CONTACTAPPS_APPCONTACT_H
#define SDK_CONTACTAPPS_APPCONTACT_H

#include <string>
#include <vector>

namespace orva
{

// What a contacts application knows of somebody, as far as our memories have fields for it. UTF-8.
struct AppContact {
    std::string name;
    std::string mobile;
    std::string office;
    std::string home;
    std::string email;
    std::string note;

    // The names of properties that say more than that.
    std::vector<std::string> left;

    bool empty() const
    {
        return name.empty() && mobile.empty() && office.empty() && home.empty() && email.empty() && note.empty();
    }
};

} // namespace orva

#endif // SDK_CONTACTAPPS_APPCONTACT_H
