#include "store/Schema.h"

#include <unistd.h>

#include <chrono>
#include <thread>

#include "base/Files.h"
#include "store/Bin.h"
#include "store/SyncTables.h"

namespace orva
{

namespace
{

void setPragma(Database& db, const char* name, int value)
{
    db.execute(("PRAGMA " + std::string(name) + " = " + std::to_string(value)).c_str());
}

// SQLite does not wait here: while another connection so much as looks at the file, the change of its mode is busy.
void useWriteAheadLog(Database& db)
{
    const auto giveUp = std::chrono::steady_clock::now() + std::chrono::seconds(3);
    for (;;) {
        try {
            db.execute("PRAGMA journal_mode = WAL");
            return;
        } catch (const SqlFailure& failure) {
            if (failure.code() != ORVA_E_BUSY || std::chrono::steady_clock::now() >= giveUp)
                throw;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

} // namespace

const std::vector<MigrationStep>& migrationSteps()
{
    static const std::vector<MigrationStep> steps = {createBin, createKept, createSync, createSyncLooks};
    return steps;
}

int newestVersion()
{
    return static_cast<int>(migrationSteps().size()) + 1;
}

namespace
{

SchemaState stateOf(Database& db, int currentVersion)
{
    const int application = db.queryInt("PRAGMA application_id");
    const int version = db.queryInt("PRAGMA user_version");
    if (application == 0 && version == 0 && db.queryInt("SELECT count(*) FROM sqlite_master") == 0)
        return SchemaState::Empty;
    if (application != storeApplicationId)
        return SchemaState::Foreign;
    if (version > currentVersion)
        return SchemaState::NewerVersion;
    return version < currentVersion ? SchemaState::OlderVersion : SchemaState::Ours;
}

} // namespace

SchemaState inspectSchema(Database& db, int currentVersion)
{
    if (db.inTransaction())
        return stateOf(db, currentVersion);
    // All of it at one moment: another process may be making the store just now.
    db.execute("BEGIN");
    try {
        const SchemaState state = stateOf(db, currentVersion);
        db.execute("COMMIT");
        return state;
    } catch (...) {
        if (db.inTransaction())
            sqlite3_exec(db.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

void configureConnection(Database& db)
{
    useWriteAheadLog(db);
    db.execute("PRAGMA synchronous = FULL");
    db.execute("PRAGMA foreign_keys = ON");
    db.execute("PRAGMA secure_delete = FAST");
    // What a savepoint keeps would otherwise go through a file in the public folder for temporary ones.
    db.execute("PRAGMA temp_store = MEMORY");
}

void createSchema(Database& db, const Columns& columns, int version)
{
    // Must precede the first table. Text is kept as clients pass it, so that no unit of it is ever changed.
    db.execute("PRAGMA encoding = 'UTF-16'");
    configureConnection(db);
    db.execute("BEGIN IMMEDIATE");
    try {
        // Another process may have been faster.
        if (inspectSchema(db, version) == SchemaState::Empty) {
            std::string records = "CREATE TABLE records (id INTEGER PRIMARY KEY";
            for (const std::string& column : columns)
                records += ", " + column + " TEXT NOT NULL DEFAULT ''";
            db.execute((records + ")").c_str());
            db.execute("CREATE TABLE groups (id INTEGER PRIMARY KEY, parent INTEGER REFERENCES groups (id), "
                       "name TEXT NOT NULL)");
            db.execute("CREATE INDEX groups_parent ON groups (parent)");
            db.execute("CREATE TABLE memberships (id INTEGER PRIMARY KEY, "
                       "grp INTEGER NOT NULL REFERENCES groups (id) ON DELETE CASCADE, "
                       "record INTEGER NOT NULL REFERENCES records (id) ON DELETE CASCADE, UNIQUE (grp, record))");
            db.execute("CREATE INDEX memberships_record ON memberships (record)");
            // The highest identifiers ever given out, so that none is used twice.
            db.execute("CREATE TABLE counters (name TEXT PRIMARY KEY, value INTEGER NOT NULL) WITHOUT ROWID");
            db.execute("INSERT INTO counters VALUES ('record', 0), ('group', 0)");
            createBin(db);
            createKept(db);
            createSync(db);
            createSyncLooks(db);
            setPragma(db, "application_id", storeApplicationId);
            setPragma(db, "user_version", version);
        }
        db.execute("COMMIT");
    } catch (...) {
        if (db.inTransaction())
            sqlite3_exec(db.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

void migrate(Database& db, const std::vector<MigrationStep>& steps, const std::function<void()>& backUp)
{
    backUp();
    db.execute("BEGIN IMMEDIATE");
    try {
        const auto version = static_cast<std::size_t>(db.queryInt("PRAGMA user_version"));
        for (std::size_t step = version; step <= steps.size(); ++step)
            steps[step - 1](db);
        setPragma(db, "user_version", static_cast<int>(steps.size()) + 1);
        db.execute("COMMIT");
    } catch (...) {
        if (db.inTransaction())
            sqlite3_exec(db.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

void copyDatabase(Database& source, Database& target)
{
    sqlite3_backup* const backup = sqlite3_backup_init(target.handle(), "main", source.handle(), "main");
    if (backup == nullptr)
        target.fail(sqlite3_errcode(target.handle()), "starting to copy a database");
    const int stepped = sqlite3_backup_step(backup, -1);
    const int finished = sqlite3_backup_finish(backup);
    if (stepped != SQLITE_DONE)
        throw SqlFailure(stepped, "copying a database: " + std::string(sqlite3_errstr(stepped)));
    if (finished != SQLITE_OK)
        target.fail(finished, "ending the copy of a database");
}

std::vector<std::string> problemsOf(Database& db)
{
    std::vector<std::string> problems;
    Query integrity(db, "PRAGMA integrity_check");
    while (integrity.step()) {
        const std::string line = integrity.bytes(0);
        if (line != "ok")
            problems.push_back(line);
    }
    Query keys(db, "PRAGMA foreign_key_check");
    while (keys.step())
        problems.push_back("a row of " + keys.bytes(0) + " names a row of " + keys.bytes(2) + " that is not there");
    return problems;
}

namespace
{

// Keeps a connection at one moment of its database.
class OneMoment
{
public:
    explicit OneMoment(Database& db) : m_db(db), m_began(!db.inTransaction())
    {
        if (!m_began)
            return;
        m_db.execute("BEGIN");
        m_db.queryInt("SELECT count(*) FROM sqlite_master"); // the moment begins with the first read
    }
    ~OneMoment()
    {
        if (m_began)
            sqlite3_exec(m_db.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    }
    OneMoment(const OneMoment&) = delete;
    OneMoment& operator=(const OneMoment&) = delete;

private:
    Database& m_db;
    const bool m_began;
};

void requireSameRows(Database& db, Database& copy)
{
    std::vector<std::string> tables;
    Query names(copy, "SELECT name FROM sqlite_master WHERE type = 'table'");
    while (names.step())
        tables.push_back(names.bytes(0));
    for (const std::string& table : tables) {
        const std::string count = "SELECT count(*) FROM \"" + table + "\"";
        if (db.queryInt(count.c_str()) != copy.queryInt(count.c_str()))
            throw SqlFailure(SQLITE_CORRUPT, "the copy of a store has lost rows of " + table);
    }
}

} // namespace

void backupDatabase(Database& db, const std::string& path)
{
    if (!preparePrivateFile(path))
        throw Failure(ORVA_E_STORE, path + " is there already");
    fillBackup(db, path);
}

void fillBackup(Database& db, const std::string& path)
{
    try {
        Database target(path, Database::Mode::ReadWrite);
        const OneMoment moment(db);
        copyDatabase(db, target);
        // One file that can be carried away.
        target.execute("PRAGMA journal_mode = DELETE");
        const std::vector<std::string> problems = problemsOf(target);
        if (!problems.empty())
            throw SqlFailure(SQLITE_CORRUPT, "a store is damaged: " + problems.front());
        requireSameRows(db, target);
    } catch (...) {
        for (const char* part : {"", "-journal", "-wal", "-shm"})
            ::unlink((path + part).c_str());
        throw;
    }
}

} // namespace orva
