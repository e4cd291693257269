#include "sync/Pairing.h"

#include <unordered_map>

#include "base/Profile.h"
#include "care/Matcher.h"

namespace orva
{

std::vector<std::pair<int, int>> pairUp(const std::vector<Unpaired>& here, const std::vector<Unpaired>& there,
                                        const std::string& region)
{
    std::vector<std::pair<int, int>> pairs;
    std::vector<bool> hereTaken(here.size());
    std::vector<bool> thereTaken(there.size());
    const auto pair = [&](std::size_t one, std::size_t other) {
        hereTaken[one] = thereTaken[other] = true;
        pairs.emplace_back(static_cast<int>(one), static_cast<int>(other));
    };
    std::unordered_map<std::string, std::size_t> byUid;
    for (std::size_t i = 0; i < here.size(); ++i)
        if (!here[i].uid.empty())
            byUid.emplace(here[i].uid, i);
    for (std::size_t i = 0; i < there.size(); ++i) {
        const auto found = there[i].uid.empty() ? byUid.end() : byUid.find(there[i].uid);
        if (found != byUid.end() && !hereTaken[found->second])
            pair(found->second, i);
    }
    // The matcher names the first of several that are the same, so twins take as many rounds as there are of them.
    for (bool found = true; found;) {
        found = false;
        Matcher matcher(localProfile(), region);
        for (std::size_t i = 0; i < here.size(); ++i)
            if (!hereTaken[i])
                matcher.add(static_cast<int>(i) + 1, here[i].values);
        for (std::size_t i = 0; i < there.size(); ++i) {
            const int same = thereTaken[i] ? 0 : matcher.find(there[i].values);
            if (same == 0 || hereTaken[static_cast<std::size_t>(same) - 1])
                continue;
            pair(static_cast<std::size_t>(same) - 1, i);
            found = true;
        }
    }
    return pairs;
}

} // namespace orva
