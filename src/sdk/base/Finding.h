#ifndef SDK_BASE_FINDING_H
#define SDK_BASE_FINDING_H

#include <functional>
#include <string_view>

#include "orva/orva_care.h"

namespace orva
{

// Something of a file that did not come out of it as it stands there. The texts are UTF-8 or octets of the file, and
// valid while it is reported.
struct Finding {
    int line = 0;   // that its row or card begins in; 0 for a whole column
    int reason = 0; // ORVA_FINDING_...
    int count = 1;
    int column = -1; // counted from 0; -1 for none
    std::string_view name = {};
    std::string_view value = {};
};

using FindingReport = std::function<void(const Finding& finding)>;

// What a reason means, in a few words of English.
const char* findingText(int reason);

} // namespace orva

#endif // SDK_BASE_FINDING_H
