#ifndef SDK_CONTACTAPPS_CONTACTAPPS_H
#define SDK_CONTACTAPPS_CONTACTAPPS_H

#include <string_view>

#include "base/Profile.h"
#include "base/RowBlock.h"
#include "csv/RowReader.h"

namespace orva
{

// The applications that contacts can be taken over from go by two names: "Outlook" stands for Evolution, "Outlook
// Express" for Thunderbird. Both keep a local address book in the user's home; it is only ever read, from a copy.

// Whether an application of that name has an address book here.
bool hasContactApp(std::string_view name);

// Its contacts as rows for a memory, numbered from 1. The source has the columns of the memory itself: an entry of
// `map`, one for each field, is the field it is taken from, or -1. Failure(ORVA_E_NOT_FOUND) if there is no such
// application, ORVA_E_FORMAT if it has no contact.
RowBlock readContactApp(std::string_view name, const Profile& profile, const int* map, const RowReader::Report& report);

} // namespace orva

#endif // SDK_CONTACTAPPS_CONTACTAPPS_H
