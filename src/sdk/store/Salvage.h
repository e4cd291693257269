#ifndef SDK_STORE_SALVAGE_H
#define SDK_STORE_SALVAGE_H

#include <string>

#include "store/Database.h"
#include "store/Schema.h"

namespace orva
{

struct Salvaged {
    int records = 0;
    int groups = 0;
    int memberships = 0;
};

// Copies what can still be read of a damaged store into a new, empty one, in one transaction: records and groups with
// their identifiers, memberships whose record and group both came through, what is kept with records, the bin, the
// state of the last sync. The damaged file is only read.
Salvaged salvage(const std::string& damagedPath, Database& target, const Columns& columns);

} // namespace orva

#endif // SDK_STORE_SALVAGE_H
