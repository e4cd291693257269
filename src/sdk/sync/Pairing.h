#ifndef SDK_SYNC_PAIRING_H
#define SDK_SYNC_PAIRING_H

#include <string>
#include <utility>
#include <vector>

#include "base/Values.h"

namespace orva
{

// Somebody of one side whom nobody of the other is known for yet.
struct Unpaired {
    std::string uid; // empty for none
    Values values;
};

// Who of the one side is who of the other, by their places: the same UID, else the same person as the care for
// duplicates has it. Each is paired once at most. The region is as for numberKey().
std::vector<std::pair<int, int>> pairUp(const std::vector<Unpaired>& here, const std::vector<Unpaired>& there,
                                        const std::string& region);

} // namespace orva

#endif // SDK_SYNC_PAIRING_H
