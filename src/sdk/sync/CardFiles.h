#ifndef SDK_SYNC_CARDFILES_H
#define SDK_SYNC_CARDFILES_H

#include <optional>
#include <string>

namespace orva
{

// Makes one card of two of the same contact, as a sync merges them: where only one of them has changed a property since
// the third, that change lives, and where both have, that of the later REV. Nothing where one of the first two is no
// card.
std::optional<std::string> mergedCard(const std::string& ours, const std::string& theirs,
                                      const std::optional<std::string>& before, const std::string& region);

// The octets of the card with a UID in a folder; nothing if there is none.
std::optional<std::string> cardOfUid(const std::string& folder, const std::string& uid);

// Merges two files into both of them, with the card of their UID in a folder as what was before; an empty folder for
// none. Failure(ORVA_E_NOT_FOUND) for a file that is not there, ORVA_E_FORMAT for one that holds not one card.
void mergeCardFiles(const std::string& file, const std::string& other, const std::string& before,
                    const std::string& region);

} // namespace orva

#endif // SDK_SYNC_CARDFILES_H
