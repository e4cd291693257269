#ifndef SDK_BASE_VALUES_H
#define SDK_BASE_VALUES_H

#include <string>
#include <vector>

namespace orva
{

// The values of one record, in the order of its memory's profile.
using Values = std::vector<std::u16string>;

// All that is stored of one record.
struct Content {
    Values values;
    std::string kept; // beside the fields, as ORVA_Care_SetKept takes it
};

// What was there at one moment: how many records, and the highest identifier given out. As identifiers ascend and
// are never reused, "up to `last`" names the same records for good.
struct Extent {
    int count = 0;
    int last = 0;
};

} // namespace orva

#endif // SDK_BASE_VALUES_H
