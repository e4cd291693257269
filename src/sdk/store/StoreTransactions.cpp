// Store: when writes begin, and when they reach the disk.

#include <algorithm>
#include <thread>
#include <utility>

#include "base/Log.h"
#include "store/Store.h"

namespace orva
{

namespace
{

using std::chrono::milliseconds;

// A transaction that nobody ends is committed within a second; what is left of it is for the commit itself.
constexpr milliseconds openAtMost(800);

// How long a write waits for another process, and how often it tries.
constexpr milliseconds waitForTurn(3000);
constexpr milliseconds betweenTries(1);

// How often a write also looks for what the bin no longer has to keep.
constexpr std::chrono::hours betweenPurges(1);

} // namespace

void Store::begin()
{
    const Lock lock(m_mutex);
    if (m_transaction != Transaction::None || m_stopKeeper)
        return;
    if (!m_keeper.joinable()) {
        try {
            m_keeper = std::thread(&Store::keepTime, this);
        } catch (const std::system_error&) {
            // Without its keeper no transaction is opened: every write is one by itself.
            logFormat("%s: no thread for transactions", m_path.c_str());
            return;
        }
    }
    m_transaction = Transaction::Open;
    m_deadline = Clock::now() + openAtMost;
    if (m_keeperIdle)
        m_wakeKeeper.notify_one();
}

void Store::end()
{
    const Lock lock(m_mutex);
    const bool open = m_transaction == Transaction::Open;
    m_transaction = Transaction::None;
    const long lost = m_lostCode;
    m_lostCode = ORVA_OK;
    if (open && m_db && m_db->inTransaction()) {
        try {
            commit();
        } catch (const Failure& failure) {
            noteDamage(failure);
            throw;
        }
    }
    if (lost != ORVA_OK)
        throw Failure(lost, "writes of this transaction were lost");
}

void Store::shutDown()
{
    {
        const Lock lock(m_mutex);
        m_stopKeeper = true;
    }
    m_wakeKeeper.notify_all();
    if (m_keeper.joinable())
        m_keeper.join();
    try {
        end();
    } catch (const std::exception& failure) {
        logFormat("%s: closing: %s", m_path.c_str(), failure.what());
    }
    const Lock lock(m_mutex);
    m_db.reset();
}

void Store::startWriting(Lock& lock)
{
    if (m_transaction == Transaction::Broken)
        throw Failure(m_lostCode, "the transaction has failed before");
    requireWritable();
    if (m_db->inTransaction())
        return;
    const Clock::time_point giveUp = Clock::now() + waitForTurn;
    for (;;) {
        reconnectIfReplaced();
        // Who waits holds the turn, so that a process that writes without a pause cannot keep others out.
        if (m_turn->tryLock()) {
            sqlite3_busy_timeout(m_db->handle(), 0);
            const int result = sqlite3_exec(m_db->handle(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
            sqlite3_busy_timeout(m_db->handle(), 2000);
            if (result == SQLITE_OK || (result & 0xff) != SQLITE_BUSY)
                m_turn->unlock();
            if (result == SQLITE_OK) {
                m_changesBefore = sqlite3_total_changes(m_db->handle());
                break;
            }
            if ((result & 0xff) != SQLITE_BUSY)
                m_db->fail(result, "BEGIN IMMEDIATE");
        }
        if (Clock::now() >= giveUp) {
            m_turn->unlock();
            throw Failure(ORVA_E_BUSY, "another process holds the store");
        }
        // Readers of this process go on meanwhile.
        lock.unlock();
        std::this_thread::sleep_for(betweenTries);
        lock.lock();
        connect(Use::Writing);
        requireWritable();
        if (m_transaction == Transaction::Broken)
            throw Failure(m_lostCode, "the transaction has failed before");
        if (m_db->inTransaction())
            break;
    }
    refresh();
    purgeInTime();
}

void Store::purgeInTime()
{
    const Clock::time_point now = Clock::now();
    if (m_bin == Bin::None || (m_purged != Clock::time_point() && now - m_purged < betweenPurges))
        return;
    purgeBin(*m_db);
    m_purged = now;
}

void Store::commit()
{
    try {
        writeCounters();
        const bool wrote = sqlite3_total_changes(m_db->handle()) != m_changesBefore;
        m_db->execute("COMMIT");
        m_gathered.clear();
        // One that had nothing to write proves nothing.
        if (wrote) {
            m_refused = false;
            noteWritten(ORVA_OK);
        }
    } catch (const std::exception& failure) {
        const auto* known = dynamic_cast<const Failure*>(&failure);
        rollback();
        noteRefusal(known != nullptr ? known->code() : ORVA_E_INTERNAL);
        throw;
    }
}

void Store::noteRefusal(long code)
{
    m_refused = true;
    if (m_gathered.empty())
        return;
    std::sort(m_gathered.begin(), m_gathered.end());
    const auto end = std::unique(m_gathered.begin(), m_gathered.end());
    const int groupsAlone = m_gathered.front() == 0 ? 1 : 0;
    const int records = static_cast<int>(end - m_gathered.begin()) - groupsAlone;
    m_gathered.clear();
    if (m_transaction == Transaction::Open)
        m_lostCode = code; // its end is still to come
    m_loss.code = code;
    m_loss.records += records;
    logFormat("%s: a commit was refused (%ld); changes of %d records are lost", m_path.c_str(), code, records);
    if (m_tellLoss)
        m_tellLoss();
}

Loss Store::takeLoss()
{
    const Lock lock(m_mutex);
    return std::exchange(m_loss, Loss());
}

void Store::rollback()
{
    // SQLite may have rolled back by itself, and then the statement fails without harm.
    if (m_db->inTransaction())
        sqlite3_exec(m_db->handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    forgetContent();
    ++m_changes;
}

void Store::writeCounters()
{
    if (!m_countersChanged)
        return;
    Query(*m_db, "UPDATE counters SET value = ? WHERE name = 'record'").bind(1, m_lastRecord).step();
    Query(*m_db, "UPDATE counters SET value = ? WHERE name = 'group'").bind(1, m_lastGroup).step();
    m_countersChanged = false;
}

void Store::breakTransaction(const Failure& failure)
{
    // What was written in it before is gone; end() must not say otherwise.
    m_transaction = Transaction::Broken;
    m_lostCode = failure.code();
    noteRefusal(failure.code());
    forgetContent();
    ++m_changes;
}

void Store::keepTime()
{
    Lock lock(m_mutex);
    while (!m_stopKeeper) {
        if (m_transaction == Transaction::None) {
            m_keeperIdle = true;
            m_wakeKeeper.wait(lock);
            m_keeperIdle = false;
            continue;
        }
        if (Clock::now() < m_deadline) {
            m_wakeKeeper.wait_until(lock, m_deadline);
            continue;
        }
        // m_lostCode of a broken one stays for the end that may still come.
        const bool open = m_transaction == Transaction::Open;
        m_transaction = Transaction::None;
        if (!open || !m_db || !m_db->inTransaction())
            continue;
        try {
            commit();
        } catch (const std::exception& failure) {
            const auto* known = dynamic_cast<const Failure*>(&failure);
            m_lostCode = known != nullptr ? known->code() : ORVA_E_INTERNAL;
            logFormat("%s: committing a transaction that was left open: %s", m_path.c_str(), failure.what());
            if (known != nullptr)
                noteDamage(*known);
        }
    }
}

} // namespace orva
