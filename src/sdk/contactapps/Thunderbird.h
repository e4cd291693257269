#ifndef SDK_CONTACTAPPS_THUNDERBIRD_H
#define SDK_CONTACTAPPS_THUNDERBIRD_H

#include <string>
#include <vector>

#include "base/ContactFields.h"

namespace orva
{

// The file of Thunderbird's personal address book, in the first of the user's profiles that has one, the one in use
// first; empty if there is none.
std::string thunderbirdBook();

// Its contacts, in the order in which it keeps them.
std::vector<ContactFields> readThunderbirdBook(const std::string& path);

} // namespace orva

#endif // SDK_CONTACTAPPS_THUNDERBIRD_H
