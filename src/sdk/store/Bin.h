#ifndef SDK_STORE_BIN_H
#define SDK_STORE_BIN_H

#include <string>
#include <vector>

#include "store/Database.h"
#include "store/Schema.h"

namespace orva
{

/*
 * The bin: what records said before they were deleted or overwritten, with the groups they were in, and the names of
 * groups that were deleted. The statement that takes something away writes it there as well, by triggers of the
 * connection, so that neither is ever without the other. What is older than binDays is as good as gone, and goes for
 * good with a later write.
 */

constexpr int binDays = 30;

struct BinEntry {
    int id = 0;     // never used twice
    int record = 0; // the identifier that the record had
    int reason = 0; // ORVA_BIN_DELETED or ORVA_BIN_CHANGED
    long long time = 0;
};

// Makes the tables of the bin, with the columns that records have.
void createBin(Database& db);

// Makes the table of what is kept with records beside their columns, and room for it in the bin.
void createKept(Database& db);

// Has a connection fill the bin from now on.
void fillBin(Database& db, const Columns& columns);

// Puts a copy of a record as it stands there, with what is kept with it, into the bin.
void copyToBin(Database& db, const Columns& columns, int record, int reason);

// Removes what is too old.
void purgeBin(Database& db);

// The identifiers of a list that SQLite has joined by commas.
std::vector<int> splitIdentifiers(const std::string& list);

} // namespace orva

#endif // SDK_STORE_BIN_H
