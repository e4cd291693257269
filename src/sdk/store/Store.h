#ifndef SDK_STORE_STORE_H
#define SDK_STORE_STORE_H

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "base/Files.h"
#include "base/RowBlock.h"
#include "base/Values.h"
#include "store/Backups.h"
#include "store/Bin.h"
#include "store/Damage.h"
#include "store/Database.h"
#include "store/ReadOnly.h"
#include "store/Schema.h"
#include "store/SyncLink.h"

namespace orva
{

struct StoredGroup {
    int id = 0;
    int parent = 0;
    int size = 0;
    std::u16string name;
};

// What a restore would do to a record.
struct Difference {
    int kind = 0; // ORVA_RESTORE_...
    std::u16string name;
};

// What refused commits took away of what writes had returned success for.
struct Loss {
    long code = ORVA_OK; // of the last refusal; ORVA_OK for no loss
    int records = 0;     // whose changes are gone, or whose memberships
};

/*
 * The records, groups and memberships of one memory in one SQLite file. All SQL on them is here.
 *
 * One lock, one connection. A transaction belongs to the store and not to a thread: it begins with the first write
 * after begin(), so that reading inside one keeps no other process waiting, and ends with end(), or by the store's own
 * thread when nobody ends it in time. A write outside a transaction is one by itself. Whatever returned from end(), or
 * from a write outside a transaction, is on disk.
 *
 * A commit that is refused takes the whole transaction along, whose writes had all succeeded. From then on nothing is
 * gathered: every write is committed by itself, and fails if that cannot be, until one goes through.
 *
 * The file is opened on first use. A damaged one is put aside with its journal, and what can be read of it goes into
 * the new one. One that cannot be written, such as on a full disk, is read as it is; each write tries anew.
 */
class Store
{
public:
    // Whether what is deleted and overwritten stays in a bin for a while.
    enum class Bin { None, Filled };

    // `name` is the file's name without ".db".
    Store(std::string folder, std::string name, Columns columns, Bin bin = Bin::None);

    // Shuts down.
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    int size();
    Extent extent();
    void read(int first, int last, std::size_t maxRows, int fields, RowBlock& rows);
    void readSome(const int* ids, std::size_t count, int fields, RowBlock& rows);
    Values readOne(int id, int fields);

    // ORVA_E_FULL when `capacity` records are there. With `kept`, that is stored with the record; an update without it
    // leaves what is kept as it is.
    int add(const Values& values, int capacity, const std::string* kept = nullptr);
    void update(int id, const Values& values, const std::string* kept = nullptr);
    void erase(int id);

    // What is kept with a record beside its fields; empty for nothing.
    std::string kept(int id);

    // Everything of some records, at one moment; ORVA_E_NOT_FOUND if one is not there.
    std::vector<Content> contents(const std::vector<int>& ids);

    // The paths of the groups that records are in; one that several are in comes several times.
    std::vector<std::u16string> groupPaths(const std::vector<int>& ids);

    // Makes one record of each set: its first gets what `mergedOf` makes of all of them, and the groups of the others,
    // which are deleted. All sets, or nothing.
    using MergedOf = std::function<Content(const std::vector<Content>& contents)>;
    void merge(const std::vector<std::vector<int>>& sets, const MergedOf& mergedOf);

    // All of them, in the order of their identifiers; shared until something is written.
    std::shared_ptr<const std::vector<StoredGroup>> groups();
    std::vector<int> members(int group);
    int addGroup(std::u16string_view name, int parent);
    void renameGroup(int id, std::u16string_view name);
    void eraseGroup(int id);
    void join(int group, int record);
    void leave(int group, int record);

    // What is in the bin, the newest first; one entry's record and the paths of the groups it was in.
    std::vector<BinEntry> bin();
    Values readBin(int entry, int fields);
    std::vector<std::u16string> binGroups(int entry);
    std::string binKept(int entry);

    // Takes an entry out of the bin and stores its record anew, in its groups, which are made if they are gone; the
    // new identifier. ORVA_E_FULL when `capacity` records are there.
    int undelete(int entry, int capacity);

    // Removes an entry, or all of them for 0, for good.
    void emptyBin(int entry);

    // The identifier of the folder that the last sync found at a path; empty for none.
    std::string syncFolderAt(const std::string& path);
    void rememberSyncFolder(const std::string& folder, const std::string& path);

    // What is known of a folder's contacts: enough to tell which to look at, their UIDs by their records, in the same
    // order, all of one, and the card of one; those whose record is gone; and the records that nothing is known of,
    // with the UID that they have in another folder.
    SyncLooks syncLooks(const std::string& folder);
    std::vector<std::pair<int, std::string>> syncUids(const std::string& folder);
    std::optional<SyncLink> syncLink(const std::string& folder, int record);
    std::vector<int> linksWithoutRecord(const std::string& folder);
    std::string syncCard(const std::string& folder, int record);
    std::vector<SyncLink> recordsWithoutLink(const std::string& folder);

    // All of a record at one moment; nothing if it is not there. And when it was last written: seconds since 1970, 0 if
    // the bin does not tell.
    std::optional<SyncContent> syncContent(int record);
    long long changedAt(int record);

    // Takes the steps, all of them or with a Failure none; each tells what became of it.
    void applySync(const std::string& folder, std::vector<SyncStep>& steps, int capacity);

    void begin();
    void end();

    // The losses since the last call. `told` runs after each, with the store locked, on whatever thread met it.
    Loss takeLoss();
    void onLoss(std::function<void()> told) { m_tellLoss = std::move(told); }

    // ORVA_OK if the store can be written, as far as is known: it is tried where it could not. Else ORVA_E_NO_SPACE,
    // ORVA_E_READ_ONLY, or what the last write met. A Failure if it cannot be read. `told` runs after each change of
    // that, like that of onLoss().
    long access();
    void onAccess(std::function<void()> told) { m_tellAccess = std::move(told); }

    // Commits what is open, closes the file and opens no further transaction. Whoever still comes, such as a thread
    // that outlasts the end of main, opens the file anew.
    void shutDown();

    std::uint64_t changes() const { return m_changes.load(std::memory_order_acquire); }

    // How often another process has been found to have changed or replaced the file; looks for that.
    int foreignChanges();

    // Looks for damage; each finding is a line. Empty: the store is sound.
    std::vector<std::string> check();

    // That the store was damaged and replaced, until the damaged file is removed; with `once` only to the first who
    // asks so.
    std::optional<Damage> damage(bool once);

    // Copies the store, as of one moment, into a new file.
    void backup(const std::string& path);

    // Makes an automatic backup of what is committed, and lets the oldest ones go; others read and write meanwhile.
    void keepBackup(int reason);

    // The same, unless one was made today or nothing has changed since the last one. Whether it was made.
    bool keepDailyBackup();

    // Has the next add or update make one first. If that fails they go on all the same, and the log says so.
    void backUpBeforeChange(int reason) { m_backUpFirst = reason; }

    // The automatic backups, the newest first.
    std::vector<BackupFile> backups() { return m_backups.list(); }

    // A Failure if a backup is none that a restore takes.
    void checkBackup(const std::string& path);

    // What a restore would do, of what is committed. Others read and write meanwhile.
    std::vector<Difference> compareBackup(const std::string& path);

    // Puts a backup's content in place of the store's, after an automatic backup of the latter.
    void restore(const std::string& path);

private:
    enum class Transaction { None, Open, Broken };
    enum class Turn { ToTake, Taken };
    enum class Use { Reading, Writing };

    using Lock = std::unique_lock<std::mutex>;
    using Clock = std::chrono::steady_clock;

    void connect(Use use);
    bool openReadOnly(const Failure& failure);
    void requireWritable() const;
    void noteWritten(long code);
    void tellAccess();
    void openFile(Turn turn);
    void prepareOpened(Use use);
    void replaceOrPutBack(const std::string& aside);
    void replaceDamaged();
    void noteDamage(const Failure& failure);
    SchemaState requireBackup(Database& source);
    void prepareRestored(Database& restored, SchemaState state);
    std::string backUpHere(int reason);
    void backUpIfAsked();
    bool isUnchangedSince(long long time) const;
    void reconnectIfReplaced();
    void refresh();
    void forgetContent();
    void reloadCounters();
    void makeStatements();

    // Of a write under way.
    int insertRecord(const Values& values, int capacity);
    void replaceRecord(int id, const Values& values);
    void eraseRecord(int id);
    void storeContent(int id, const Values& values, const std::string& kept);
    Content readContent(int id);
    void mergeSet(const std::vector<int>& ids, const MergedOf& mergedOf);
    std::string readKept(int id);
    void writeKept(int id, const std::string& kept);
    int insertGroup(std::u16string_view name, int parent);
    int groupFromBin(int group);
    SyncContent readSyncContent(int record);
    void keepInBin(int record, const Content& content);
    void applySyncStep(const std::string& folder, SyncStep& step, int capacity,
                       const std::function<void(int record, const std::vector<std::string>& groups)>& setGroups);
    template <typename Body>
    auto wholly(Body&& body) -> decltype(body());

    void startWriting(Lock& lock);
    void purgeInTime();
    void commit();
    void rollback();
    void writeCounters();
    void breakTransaction(const Failure& failure);
    void noteRefusal(long code);
    bool gathers() const { return m_transaction == Transaction::Open && !m_refused; }
    void keepTime();

    // Run with the lock held, on an open connection. A reading body may be run twice.
    template <typename Body>
    auto reading(Body&& body) -> decltype(body());
    template <typename Body>
    auto writing(Body&& body) -> decltype(body());

    const std::string m_folder;
    const std::string m_path;
    const Columns m_columns;
    const Bin m_bin;
    Backups m_backups;
    std::atomic<int> m_backUpFirst{0}; // the reason; 0 for none

    std::mutex m_mutex;
    std::unique_ptr<FileLock> m_turn; // who of several processes writes next
    std::unique_ptr<Database> m_db;
    std::uint64_t m_inode = 0;

    // Of a store that is read because it cannot be written.
    long m_refusal = ORVA_OK; // of a write; ORVA_OK for a store that is open for writing
    StoreState m_seen;
    Clock::time_point m_nextLook;
    long m_unwritten = ORVA_OK; // what the last write met that met the disk
    std::function<void()> m_tellAccess;

    // Statements over the columns, one a number of fields.
    std::vector<std::string> m_selectRange;
    std::vector<std::string> m_selectOne;
    std::string m_insert;
    std::string m_append; // the same behind the highest identifier
    std::string m_update;
    std::string m_selectBin;
    Clock::time_point m_purged; // the bin, by this process; the epoch for never

    // What the file holds, as far as this connection knows.
    std::shared_ptr<const std::vector<StoredGroup>> m_groups; // null: to be read
    int m_dataVersion = 0;
    int m_foreignChanges = 0;
    int m_count = -1; // -1: to be counted
    int m_lastRecord = 0;
    int m_newest = 0; // the record added last, while nothing was deleted since; 0 for not known
    int m_lastGroup = 0;
    bool m_countersChanged = false;
    bool m_suspect = false; // an operation met damage
    bool m_live = false;    // what is read for want of writing shows what others write

    bool m_refused = false; // the last commit was
    Transaction m_transaction = Transaction::None;
    long m_lostCode = ORVA_OK;   // what the next end() has to report
    std::vector<int> m_gathered; // records that the open transaction changed; 0 stands for a group alone
    int m_touched = 0;           // the one of the write under way
    int m_changesBefore = 0;     // of the connection, when the transaction on it began
    Loss m_loss;
    std::function<void()> m_tellLoss;
    Clock::time_point m_deadline;
    bool m_keeperIdle = false;
    bool m_stopKeeper = false;
    std::condition_variable m_wakeKeeper;
    std::thread m_keeper;

    std::atomic<std::uint64_t> m_changes{1};
};

template <typename Body>
auto Store::reading(Body&& body) -> decltype(body())
{
    const Lock lock(m_mutex);
    connect(Use::Reading);
    try {
        return body();
    } catch (const SqlFailure& failure) {
        noteDamage(failure);
        if (m_db)
            throw;
    }
    // The file was damaged: once more on what could be saved of it.
    connect(Use::Reading);
    return body();
}

template <typename Body>
auto Store::writing(Body&& body) -> decltype(body())
{
    Lock lock(m_mutex);
    connect(Use::Writing);
    try {
        startWriting(lock);
        m_groups.reset();
        // Every write is one statement, so that a failing one leaves nothing half done behind.
        m_touched = 0;
        const auto result = body();
        if (gathers())
            m_gathered.push_back(m_touched);
        else
            commit();
        return result;
    } catch (const Failure& failure) {
        if (m_db && m_db->inTransaction() && !gathers())
            rollback();
        else if (m_db && !m_db->inTransaction() && gathers() && dynamic_cast<const SqlFailure*>(&failure) != nullptr)
            breakTransaction(failure);
        if (failure.code() == ORVA_E_NO_SPACE || failure.code() == ORVA_E_READ_ONLY)
            noteWritten(failure.code());
        noteDamage(failure);
        throw;
    }
}

// Several statements of one write: all of them count, or none.
template <typename Body>
auto Store::wholly(Body&& body) -> decltype(body())
{
    const int count = m_count;
    m_db->execute("SAVEPOINT whole");
    try {
        const auto result = body();
        m_db->execute("RELEASE whole");
        return result;
    } catch (...) {
        // SQLite may have rolled back everything by itself, and then these fail without harm.
        sqlite3_exec(m_db->handle(), "ROLLBACK TO whole", nullptr, nullptr, nullptr);
        sqlite3_exec(m_db->handle(), "RELEASE whole", nullptr, nullptr, nullptr);
        m_count = count;
        m_newest = 0;
        throw;
    }
}

} // namespace orva

#endif // SDK_STORE_STORE_H
