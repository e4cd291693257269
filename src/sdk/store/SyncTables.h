#ifndef SDK_STORE_SYNCTABLES_H
#define SDK_STORE_SYNCTABLES_H

#include "store/Database.h"
#include "store/Schema.h"

namespace orva
{

/*
 * What the store knows of the last sync: the folders, and for each record in one of them the card of then. A record
 * that anything was written of since is marked as touched, by triggers of the connection in the statement that writes,
 * so that a sync need not read all records to find those that changed.
 */

void createSync(Database& db);

// What most syncs read, by itself.
void createSyncLooks(Database& db);
extern const char* const selectSyncLooks; // record, file, look, whether touched or doubtful, groups of a folder
extern const char* const selectSyncUids;  // record, UID, in the same order

// SqlFailure if the tables are not as they should be.
void requireSyncTables(Database& db);

// Has a connection mark what it touches from now on.
void watchForSync(Database& db, const Columns& columns);

// Forgets the cards of the last sync, but not who is who: what is in the store is then taken as written just now.
void dropSyncBase(Database& db);

// Carries the tables of a damaged store over, row by row. A link whose record is lost stays behind, so that nobody
// takes the loss for a deletion; the others are marked as doubtful.
class SyncCopy
{
public:
    static const char* const selectLinks; // from an identifier on
    static const char* const selectFolders;

    explicit SyncCopy(Database& target) : m_target(target) {}
    void takeLink(Query& row) const;
    void takeFolder(Query& row) const;

private:
    Database& m_target;
};

} // namespace orva

#endif // SDK_STORE_SYNCTABLES_H
