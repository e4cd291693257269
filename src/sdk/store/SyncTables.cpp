#include "store/SyncTables.h"

#include <ctime>
#include <string>

namespace orva
{

void createSync(Database& db)
{
    db.execute("CREATE TABLE sync_folders (id INTEGER PRIMARY KEY, folder BLOB NOT NULL UNIQUE, path BLOB NOT NULL, "
               "time INTEGER NOT NULL)");
    // No reference to the record: that it is gone is what the next sync has to know. The card stands last, since most
    // reads do without it.
    db.execute("CREATE TABLE sync_links (id INTEGER PRIMARY KEY, folder BLOB NOT NULL, record INTEGER NOT NULL, "
               "uid BLOB NOT NULL, file BLOB NOT NULL, look BLOB NOT NULL, remote BLOB NOT NULL, local BLOB NOT NULL, "
               "grps BLOB NOT NULL, changed INTEGER NOT NULL, touched INTEGER NOT NULL DEFAULT 0, "
               "doubtful INTEGER NOT NULL DEFAULT 0, card BLOB, UNIQUE (folder, record))");
    db.execute("CREATE INDEX sync_links_record ON sync_links (record)");
    db.execute("CREATE INDEX bin_record ON bin (record)");
}

void createSyncLooks(Database& db)
{
    // All columns of the queries below: with the cards beside them they are ten times as many pages.
    db.execute("CREATE INDEX sync_links_look ON sync_links (folder, file, look, uid, touched, doubtful, grps, record)");
}

const char* const selectSyncLooks = "SELECT record, file, look, touched | doubtful, grps FROM sync_links "
                                    "INDEXED BY sync_links_look WHERE folder = ?";
const char* const selectSyncUids = "SELECT record, uid FROM sync_links INDEXED BY sync_links_look WHERE folder = ?";

void requireSyncTables(Database& db)
{
    db.prepared(selectSyncLooks);
    db.prepared("SELECT folder, path, time FROM sync_folders WHERE id = (SELECT max(id) FROM sync_folders)");
    db.prepared("SELECT folder, record, uid, file, look, remote, local, grps, changed, touched, doubtful, card "
                "FROM sync_links WHERE id = (SELECT max(id) FROM sync_links)");
}

void watchForSync(Database& db, const Columns& columns)
{
    std::string differs;
    for (const std::string& column : columns)
        differs.append(differs.empty() ? "OLD." : " OR OLD.").append(column).append(" IS NOT NEW.").append(column);
    const auto mark = [&db](const std::string& name, const std::string& event, const std::string& which) {
        db.execute(("CREATE TEMP TRIGGER sync_" + name + " AFTER " + event +
                    " BEGIN UPDATE sync_links SET touched = 1 WHERE touched = 0" + which + "; END")
                       .c_str());
    };
    mark("gone", "DELETE ON main.records", " AND record = OLD.id");
    mark("record", "UPDATE ON main.records WHEN " + differs, " AND record = NEW.id");
    mark("kept_in", "INSERT ON main.kept", " AND record = NEW.record");
    mark("kept_changed", "UPDATE ON main.kept", " AND record = NEW.record");
    mark("kept_out", "DELETE ON main.kept", " AND record = OLD.record");
    mark("joined", "INSERT ON main.memberships", " AND record = NEW.record");
    mark("left", "DELETE ON main.memberships", " AND record = OLD.record");
    // Whoever is in it or below it; that is seldom enough to look at everybody.
    mark("group", "UPDATE OF name, parent ON main.groups", "");
}

void dropSyncBase(Database& db)
{
    // Later than whatever was written in this second.
    Query(db, "UPDATE sync_links SET card = NULL, look = x'', remote = x'', local = x'', touched = 1, changed = ?")
        .bind(1, static_cast<long long>(std::time(nullptr)) + 1)
        .step();
}

const char* const SyncCopy::selectLinks =
    "SELECT id, folder, record, uid, file, look, remote, local, grps, changed, card FROM sync_links WHERE id >= ? "
    "ORDER BY id";
const char* const SyncCopy::selectFolders = "SELECT id, folder, path, time FROM sync_folders WHERE id >= ? ORDER BY id";

void SyncCopy::takeLink(Query& row) const
{
    std::string texts[] = {row.octets(1), row.octets(3), row.octets(4), row.octets(5),
                           row.octets(6), row.octets(7), row.octets(8), row.octets(10)};
    Query link(m_target,
               "INSERT OR IGNORE INTO sync_links (folder, uid, file, look, remote, local, grps, card, record, "
               "changed, touched, doubtful) SELECT ?, ?, ?, ?, ?, ?, ?, nullif(?, x''), id, ?, 1, 1 "
               "FROM records WHERE id = ?");
    for (int i = 0; i < 8; ++i)
        link.bindOctets(i + 1, texts[i]);
    link.bind(9, row.wideInteger(9)).bind(10, row.integer(2));
    link.step();
}

void SyncCopy::takeFolder(Query& row) const
{
    const std::string folder = row.octets(1);
    const std::string path = row.octets(2);
    Query query(m_target, "INSERT OR IGNORE INTO sync_folders (folder, path, time) VALUES (?, ?, ?)");
    query.bindOctets(1, folder).bindOctets(2, path).bind(3, row.wideInteger(3));
    query.step();
}

} // namespace orva
