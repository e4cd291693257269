// Store: opened for writing, or for reading alone while writing is impossible.

#include <utility>

#include "base/Log.h"
#include "store/Store.h"

namespace orva
{

namespace
{

// How often reading looks whether the store can be written again. Each write looks.
constexpr std::chrono::milliseconds betweenLooks(1000);

} // namespace

void Store::connect(Use use)
{
    if (m_db && m_refusal == ORVA_OK)
        return;
    const bool changed = m_db && !m_live && stateOfStore(m_path) != m_seen;
    if (m_db && use == Use::Reading && Clock::now() < m_nextLook && !changed)
        return;
    m_foreignChanges += changed ? 1 : 0;
    if (!m_turn || m_refusal != ORVA_OK) // its file cannot be made where nothing can
        m_turn = std::make_unique<FileLock>(m_path.substr(0, m_path.size() - 3) + ".lock");
    try {
        openFile(Turn::ToTake);
    } catch (const SqlFailure& failure) {
        m_db.reset();
        if (failure.isDamage())
            replaceDamaged();
        else if (!openReadOnly(failure))
            throw;
    } catch (const Failure& failure) {
        m_db.reset();
        if (!openReadOnly(failure))
            throw Failure(failure.code() == ORVA_E_READ_ONLY ? ORVA_E_STORE : failure.code(), failure.what());
    } catch (...) {
        m_db.reset();
        throw;
    }
}

// After the store could not be opened to be written. False if it cannot be read either, or for another reason.
bool Store::openReadOnly(const Failure& failure)
{
    switch (failure.code()) {
    case ORVA_E_STORE:
    case ORVA_E_NO_SPACE:
    case ORVA_E_READ_ONLY:
        break;
    default:
        return false;
    }
    const bool noRight = failure.code() == ORVA_E_STORE && mayOnlyRead(m_path);
    const long refusal = noRight ? ORVA_E_READ_ONLY : failure.code();
    try {
        m_seen = stateOfStore(m_path);
        OpenedForReading opened = openForReading(m_path);
        m_db = std::move(opened.db);
        m_live = opened.live;
        if (inspectSchema(*m_db, newestVersion()) != SchemaState::Ours)
            throw Failure(ORVA_E_STORE, "no store of this release");
        prepareOpened(Use::Reading);
    } catch (const Failure&) {
        m_db.reset();
        m_refusal = ORVA_OK;
        return false;
    }
    m_nextLook = Clock::now() + betweenLooks;
    if (std::exchange(m_refusal, refusal) != refusal) {
        logFormat("%s: can be read, but not written: %s", m_path.c_str(), failure.what());
        tellAccess();
    }
    return true;
}

void Store::requireWritable() const
{
    if (m_refusal != ORVA_OK)
        throw Failure(m_refusal, m_path + " can only be read");
}

void Store::noteWritten(long code)
{
    const bool tell = (code == ORVA_OK) != (m_unwritten == ORVA_OK);
    m_unwritten = code;
    if (tell)
        tellAccess();
}

void Store::tellAccess()
{
    if (m_tellAccess)
        m_tellAccess();
}

long Store::access()
{
    Lock lock(m_mutex);
    connect(Use::Writing);
    if (m_refusal != ORVA_OK)
        return m_refusal;
    if (m_unwritten == ORVA_OK || m_db->inTransaction())
        return m_unwritten;
    // A write like any other, that changes nothing in the end. What never changes would not be written.
    try {
        startWriting(lock);
        m_db->execute("UPDATE counters SET value = value + 1 WHERE name = 'record'");
        m_db->execute("UPDATE counters SET value = value - 1 WHERE name = 'record'");
        commit();
    } catch (const Failure& failure) {
        if (m_db && m_db->inTransaction())
            rollback();
        if (failure.code() != ORVA_E_BUSY)
            m_unwritten = failure.code();
    }
    return m_unwritten;
}

} // namespace orva
