// Store: opening, damage, check, backup and restore.

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <ctime>
#include <mutex>
#include <utility>

#include "base/Log.h"
#include "orva/orva_store.h"
#include "store/Salvage.h"
#include "store/Store.h"
#include "store/SyncTables.h"

namespace orva
{

namespace
{

std::uint64_t inodeOf(const std::string& path)
{
    struct stat state = {};
    return ::lstat(path.c_str(), &state) == 0 ? state.st_ino : 0;
}

} // namespace

void Store::openFile(Turn turn)
{
    preparePrivateFolder(m_folder);
    preparePrivateFile(m_path);
    m_db = std::make_unique<Database>(m_path, Database::Mode::ReadWrite);
    SchemaState state = inspectSchema(*m_db, newestVersion());
    std::unique_lock<FileLock> taken;
    if (turn == Turn::ToTake && (state == SchemaState::Empty || state == SchemaState::OlderVersion)) {
        // One process at a time makes or migrates a store. Another may have done it meanwhile.
        taken = std::unique_lock<FileLock>(*m_turn);
        state = inspectSchema(*m_db, newestVersion());
    }
    switch (state) {
    case SchemaState::Empty:
        createSchema(*m_db, m_columns, newestVersion());
        syncFolder(m_folder);
        break;
    case SchemaState::Ours:
        break;
    case SchemaState::OlderVersion: {
        std::string copy;
        configureConnection(*m_db);
        migrate(*m_db, migrationSteps(), [&] { copy = m_backups.make(*m_db, ORVA_BACKUP_MIGRATION); });
        m_backups.rotate(m_db->queryInt("SELECT count(*) FROM records"), {copy});
        logFormat("%s: migrated to version %d; the old store is %s", m_path.c_str(), newestVersion(), copy.c_str());
        break;
    }
    case SchemaState::NewerVersion:
        throw Failure(ORVA_E_VERSION, m_path + " was written by a newer release");
    case SchemaState::Foreign:
        throw Failure(ORVA_E_STORE, m_path + " is not a phonebook");
    }
    configureConnection(*m_db);
    prepareOpened(Use::Writing);
    if (std::exchange(m_refusal, ORVA_OK) != ORVA_OK) {
        logFormat("%s: can be written again", m_path.c_str());
        tellAccess();
    }
}

void Store::prepareOpened(Use use)
{
    // Before the first look at the content: what another process writes from here on is seen as a change.
    m_dataVersion = m_db->queryInt("PRAGMA data_version");
    try {
        // Tables that are not as they should be show here, and so does a file that ends too early.
        m_db->prepared(m_insert.c_str());
        m_db->prepared("SELECT id, grp, record FROM memberships WHERE id = (SELECT max(id) FROM memberships)");
        m_db->prepared("SELECT parent, name FROM groups WHERE id = 1");
        m_db->prepared(m_selectBin.c_str());
        m_db->prepared("SELECT record, reason, time, grps, kept FROM bin WHERE id = (SELECT max(id) FROM bin)");
        m_db->prepared("SELECT lines FROM kept WHERE record = (SELECT max(record) FROM kept)");
        m_db->prepared("SELECT parent, name, time FROM bin_groups WHERE id = 1");
        requireSyncTables(*m_db);
        reloadCounters();
    } catch (const SqlFailure& failure) {
        if ((failure.sqlCode() & 0xff) == SQLITE_ERROR)
            throw SqlFailure(SQLITE_CORRUPT, failure.what());
        throw;
    }
    if (m_suspect) {
        const std::vector<std::string> problems = problemsOf(*m_db);
        if (!problems.empty())
            throw SqlFailure(SQLITE_CORRUPT, "the integrity check failed: " + problems.front());
        m_suspect = false;
    }
    if (m_bin == Bin::Filled && use == Use::Writing) {
        fillBin(*m_db, m_columns);
        watchForSync(*m_db, m_columns);
    }
    m_db->learnEncoding();
    m_inode = inodeOf(m_path);
    forgetContent();
    ++m_changes;
}

// Makes a new store; where there is no room for one, the damaged one has to be found again when there is.
void Store::replaceOrPutBack(const std::string& aside)
{
    try {
        openFile(Turn::Taken);
    } catch (const Failure&) {
        m_db.reset();
        ::unlink((m_path + "-wal").c_str());
        ::unlink((m_path + "-shm").c_str());
        ::rename(aside.c_str(), m_path.c_str());
        ::rename((aside + "-wal").c_str(), (m_path + "-wal").c_str());
        throw;
    }
}

void Store::replaceDamaged()
{
    m_turn->lock();
    try {
        try {
            // Another process may have done all of this just now.
            openFile(Turn::Taken);
        } catch (const SqlFailure& failure) {
            m_db.reset();
            if (!failure.isDamage())
                throw;
            const std::string aside = asideName(m_path, "damaged");
            logFormat("%s is damaged (%s); it is kept as %s", m_path.c_str(), failure.what(), aside.c_str());
            ::rename((m_path + "-wal").c_str(), (aside + "-wal").c_str());
            ::unlink((m_path + "-shm").c_str());
            if (::rename(m_path.c_str(), aside.c_str()) != 0)
                throw Failure(ORVA_E_STORE, m_path + " is damaged and cannot be put aside");
            replaceOrPutBack(aside);
            Damage damage;
            damage.time = static_cast<long long>(std::time(nullptr));
            damage.file = aside;
            damage.what = failure.what();
            try {
                const Salvaged found = salvage(aside, *m_db, m_columns);
                logFormat("%s: %d records, %d groups and %d memberships were saved from the damaged store",
                          m_path.c_str(), found.records, found.groups, found.memberships);
                damage.records = found.records;
                damage.groups = found.groups;
            } catch (const Failure& lost) {
                logFormat("%s: nothing could be saved from the damaged store: %s", m_path.c_str(), lost.what());
            }
            rememberDamage(m_path, damage);
            forgetContent();
            reloadCounters();
        }
    } catch (...) {
        m_db.reset();
        m_turn->unlock();
        throw;
    }
    m_turn->unlock();
}

void Store::noteDamage(const Failure& failure)
{
    const auto* const sql = dynamic_cast<const SqlFailure*>(&failure);
    if (sql == nullptr || !sql->isDamage() || !m_db)
        return;
    // The next call opens the file anew and looks at all of it.
    logFormat("%s: met damage: %s", m_path.c_str(), failure.what());
    if (m_transaction == Transaction::Open)
        breakTransaction(failure);
    m_suspect = true;
    m_db.reset();
}

void Store::reconnectIfReplaced()
{
    if (m_db->inTransaction() || inodeOf(m_path) == m_inode)
        return;
    logFormat("%s: the file was replaced; opening it anew", m_path.c_str());
    ++m_foreignChanges;
    m_db.reset();
    connect(Use::Reading);
}

void Store::refresh()
{
    if (!m_db->inTransaction())
        reconnectIfReplaced();
    const int version = m_db->queryInt("PRAGMA data_version");
    if (version != m_dataVersion) {
        // Another process has written.
        m_dataVersion = version;
        ++m_foreignChanges;
        forgetContent();
        ++m_changes;
        reloadCounters();
    }
    if (m_count < 0)
        m_count = m_db->queryInt("SELECT count(*) FROM records");
}

int Store::foreignChanges()
{
    return reading([this] {
        refresh();
        return m_foreignChanges;
    });
}

void Store::forgetContent()
{
    m_count = -1;
    m_newest = 0;
    m_groups.reset();
}

void Store::reloadCounters()
{
    // Never down: what was given out once, even in a transaction that was lost, is not given out again.
    m_lastRecord = std::max({m_lastRecord, m_db->queryInt("SELECT value FROM counters WHERE name = 'record'"),
                             m_db->queryInt("SELECT max(id) FROM records")});
    m_lastGroup = std::max({m_lastGroup, m_db->queryInt("SELECT value FROM counters WHERE name = 'group'"),
                            m_db->queryInt("SELECT max(id) FROM groups")});
}

std::vector<std::string> Store::check()
{
    return reading([&] { return problemsOf(*m_db); });
}

std::optional<Damage> Store::damage(bool once)
{
    return reading([&] {
        std::optional<Damage> found = rememberedDamage(m_path);
        if (once && found && found->told)
            return std::optional<Damage>();
        if (once && found) {
            found->told = true;
            rememberDamage(m_path, *found);
        }
        return found;
    });
}

void Store::backup(const std::string& path)
{
    reading([&] {
        if (m_db->inTransaction())
            commit();
        backupDatabase(*m_db, path);
    });
}

void Store::restore(const std::string& path)
{
    Lock lock(m_mutex);
    connect(Use::Writing);
    requireWritable();
    if (m_db->inTransaction())
        commit();
    std::string aside;
    try {
        Database source(path, Database::Mode::ReadOnly);
        const SchemaState state = requireBackup(source);
        aside = backUpHere(ORVA_BACKUP_RESTORE);
        Database restored(std::string(), Database::Mode::Passing);
        copyDatabase(source, restored);
        prepareRestored(restored, state);
        copyDatabase(restored, *m_db);
        logFormat("%s: restored from a backup; what was there before is %s", m_path.c_str(), aside.c_str());
    } catch (const SqlFailure& failure) {
        if (failure.isDamage() || (failure.sqlCode() & 0xff) == SQLITE_ERROR)
            throw Failure(ORVA_E_FORMAT, std::string("the backup cannot be used: ") + failure.what());
        throw;
    }
    configureConnection(*m_db);
    m_db->learnEncoding();
    forgetContent();
    ++m_changes;
    reloadCounters();
    startWriting(lock);
    m_countersChanged = true; // another process may have given some out meanwhile
    commit();
    m_backups.rotate(m_db->queryInt("SELECT count(*) FROM records"), {aside, path});
}

// Before it takes the store's place, since whoever opens that after a kill finds no half of a restore.
void Store::prepareRestored(Database& restored, SchemaState state)
{
    restored.execute("PRAGMA secure_delete = FAST");
    if (state == SchemaState::OlderVersion)
        migrate(restored, migrationSteps(), [] {}); // the old form is in the file that it came from
    restored.execute("BEGIN");
    dropSyncBase(restored);
    // Identifiers given out since the backup stay given out.
    reloadCounters();
    const char* const raise = "UPDATE counters SET value = max(value, ?) WHERE name = ?";
    Query(restored, raise).bind(1, m_lastRecord).bind(2, u"record").step();
    Query(restored, raise).bind(1, m_lastGroup).bind(2, u"group").step();
    restored.execute("COMMIT");
}

SchemaState Store::requireBackup(Database& source)
{
    const SchemaState state = inspectSchema(source, newestVersion());
    if (state == SchemaState::NewerVersion)
        throw Failure(ORVA_E_VERSION, "the backup was written by a newer release");
    if (state != SchemaState::Ours && state != SchemaState::OlderVersion)
        throw Failure(ORVA_E_FORMAT, "the file is not a backup of a phonebook");
    if (!problemsOf(source).empty())
        throw Failure(ORVA_E_FORMAT, "the backup is damaged");
    source.prepared(m_selectOne.back().c_str());
    return state;
}

} // namespace orva
