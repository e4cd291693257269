#ifndef SDK_TRANSFER_IMPORTCONTACT_H
#define SDK_TRANSFER_IMPORTCONTACT_H

#include <string>
#include <utility>
#include <vector>

#include "base/Values.h"

namespace orva
{

// Somebody on the way in.
struct ImportContact {
    int line = 0;
    Values values;    // one a field of the memory
    std::string kept; // beside the fields, as ORVA_Care_SetKept takes it
    std::vector<std::string> groups;

    std::vector<std::string> keptNames;                // of the properties in `kept` that came along
    std::vector<std::pair<int, std::string>> findings; // reasons and names, which count once the contact is taken
};

} // namespace orva

#endif // SDK_TRANSFER_IMPORTCONTACT_H
