#ifndef SDK_STORE_SCHEMA_H
#define SDK_STORE_SCHEMA_H

#include <functional>
#include <string>
#include <vector>

#include "store/Database.h"

namespace orva
{

// The columns of a memory's records, in the order of its widest profile.
using Columns = std::vector<std::string>;

// Marks a file as one of ours ("Lkhd").
constexpr int storeApplicationId = 0x4c6b6864;

// One step from version n to n + 1 is the n-th of a list.
using MigrationStep = void (*)(Database& db);

// The steps that this release knows; stores are at version 1 plus their number when done.
const std::vector<MigrationStep>& migrationSteps();

enum class SchemaState { Empty, Ours, OlderVersion, NewerVersion, Foreign };

// What an opened file holds.
SchemaState inspectSchema(Database& db, int currentVersion);

// Lays out an empty file. In one transaction.
void createSchema(Database& db, const Columns& columns, int version);

// Takes an older store to the newest version, all steps in one transaction, after `backUp` has put a copy of it aside.
// A failing step leaves the store as it was, and so does a failing backup.
void migrate(Database& db, const std::vector<MigrationStep>& steps, const std::function<void()>& backUp);

// What is wrong with a database, a line each.
std::vector<std::string> problemsOf(Database& db);

// Copies a whole database, as of one moment, into a new private file, or into an empty one that is there. The copy is
// sound and has as many rows in each table, or the file is gone: SqlFailure with SQLITE_CORRUPT for a damaged database.
void backupDatabase(Database& db, const std::string& path);
void fillBackup(Database& db, const std::string& path);

// Copies all of one open database over another, in one transaction of the latter.
void copyDatabase(Database& source, Database& target);

// Settings of each connection that writes.
void configureConnection(Database& db);

} // namespace orva

#endif // SDK_STORE_SCHEMA_H
