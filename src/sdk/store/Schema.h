#ifndef SDK_STORE_SCHEMA_H
#define SDK_STORE_SCHEMA_H

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

// The version that this release reads and writes.
int newestVersion();

enum class SchemaState { Empty, Ours, OlderVersion, NewerVersion, Foreign };

// What an opened file holds.
SchemaState inspectSchema(Database& db, int currentVersion);

// Lays out an empty file. In one transaction.
void createSchema(Database& db, const Columns& columns, int version);

// Takes an older store to the newest version, all steps in one transaction, after a copy of it has been put aside as
// backupPath. A failing step leaves the store as it was.
void migrate(Database& db, const std::vector<MigrationStep>& steps, const std::string& backupPath);

// Copies a whole database, as of one moment, into a new private file.
void backupDatabase(Database& db, const std::string& path);

// Copies all of one open database over another, in one transaction of the latter.
void copyDatabase(Database& source, Database& target);

// Settings of each connection that writes.
void configureConnection(Database& db);

} // namespace orva

#endif // SDK_STORE_SCHEMA_H
