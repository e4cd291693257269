#ifndef SDK_STORE_BACKUPS_H
#define SDK_STORE_BACKUPS_H

#include <string>
#include <vector>

#include "store/Database.h"

namespace orva
{

// An automatic backup.
struct BackupFile {
    std::string name; // of the file, without folder and ending
    std::string path;
    long long time = 0;
    int number = 1; // among those of the same second
    int reason = 0; // ORVA_BACKUP_...

    // How many records are in it; -1 if it cannot be read.
    int records() const;
};

/*
 * The automatic backups of one store: files of the user alone in the folder "backups", called STORE-TIME-REASON.db.
 * Half a backup has another name, so that whatever is listed was sound when it was made. Several processes may be at
 * it.
 */
class Backups
{
public:
    // Of the store `store` in the data folder; nothing is made yet.
    Backups(const std::string& folder, std::string store);

    // The newest first.
    std::vector<BackupFile> list() const;

    // Makes one and gives its path; as fillBackup().
    std::string make(Database& db, int reason);

    // Removes all but the newest, the newest with more than twice as many records, and those spared.
    void rotate(int records, const std::vector<std::string>& spared) const;

private:
    void removeHalves() const;

    const std::string m_folder;
    const std::string m_store;
};

} // namespace orva

#endif // SDK_STORE_BACKUPS_H
