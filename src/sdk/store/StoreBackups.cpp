// Store: automatic backups.

#include <sys/stat.h>

#include <algorithm>
#include <ctime>

#include "base/Log.h"
#include "orva/orva_store.h"
#include "store/Store.h"

namespace orva
{

namespace
{

bool sameDay(long long a, long long b)
{
    const std::time_t moments[] = {static_cast<std::time_t>(a), static_cast<std::time_t>(b)};
    std::tm days[2] = {};
    return ::localtime_r(&moments[0], &days[0]) != nullptr && ::localtime_r(&moments[1], &days[1]) != nullptr &&
           days[0].tm_year == days[1].tm_year && days[0].tm_yday == days[1].tm_yday;
}

} // namespace

std::string Store::backUpHere(int reason)
{
    try {
        return m_backups.make(*m_db, reason);
    } catch (const SqlFailure& failure) {
        noteDamage(failure);
        if (m_db)
            throw;
    }
    // What is damaged is no backup: once more of what could be saved of it.
    connect();
    return m_backups.make(*m_db, reason);
}

void Store::keepBackup(int reason)
{
    const auto backUp = [&] {
        const int records = size(); // opens the file, and migrates and mends it if need be
        // A connection of its own, so that nobody waits for the copy.
        Database source(m_path, Database::Mode::ReadWrite);
        const std::string path = m_backups.make(source, reason);
        m_backups.rotate(records, {path});
    };
    try {
        backUp();
        return;
    } catch (const SqlFailure& failure) {
        const Lock lock(m_mutex);
        noteDamage(failure);
        if (!failure.isDamage())
            throw;
    }
    backUp();
}

bool Store::isUnchangedSince(long long time) const
{
    struct stat file = {};
    struct stat journal = {};
    if (::lstat(m_path.c_str(), &file) != 0 || file.st_mtime >= time)
        return false;
    return ::lstat((m_path + "-wal").c_str(), &journal) != 0 || journal.st_size == 0 || journal.st_mtime < time;
}

bool Store::keepDailyBackup()
{
    if (size() == 0)
        return false;
    const std::vector<BackupFile> files = m_backups.list();
    const long long now = std::time(nullptr);
    for (const BackupFile& file : files)
        if (file.reason == ORVA_BACKUP_DAILY && sameDay(file.time, now))
            return false;
    // One of the future was made while the clock was wrong.
    const auto last =
        std::find_if(files.begin(), files.end(), [now](const BackupFile& file) { return file.time <= now; });
    if (last != files.end() && isUnchangedSince(last->time))
        return false;
    keepBackup(ORVA_BACKUP_DAILY);
    return true;
}

void Store::backUpIfAsked()
{
    if (m_backUpFirst.load(std::memory_order_relaxed) == 0)
        return;
    const int reason = m_backUpFirst.exchange(0);
    if (reason == 0)
        return;
    try {
        keepBackup(reason);
    } catch (const Failure& failure) {
        logFormat("%s: no backup before a change: %s", m_path.c_str(), failure.what());
    }
}

} // namespace orva
