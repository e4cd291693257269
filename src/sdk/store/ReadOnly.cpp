#include "store/ReadOnly.h"

#include <sys/stat.h>
#include <unistd.h>

#include "base/Files.h"

namespace orva
{

namespace
{

FileState stateOfFile(const std::string& path)
{
    constexpr std::int64_t nanoseconds = 1000000000;
    struct stat found = {};
    if (::lstat(path.c_str(), &found) != 0)
        return {};
    return {found.st_ino, found.st_size, found.st_mtim.tv_sec * nanoseconds + found.st_mtim.tv_nsec};
}

std::unique_ptr<Database> openAs(const std::string& path, Database::Mode mode)
{
    auto db = std::make_unique<Database>(path, mode);
    // Opening alone looks at nothing.
    db->queryInt("SELECT count(*) FROM sqlite_master");
    return db;
}

} // namespace

StoreState stateOfStore(const std::string& path)
{
    return {stateOfFile(path), stateOfFile(path + "-wal")};
}

bool mayOnlyRead(const std::string& path)
{
    const std::string folder = path.substr(0, path.rfind('/'));
    struct stat found = {};
    return ::access(path.c_str(), W_OK) != 0 || ::access(folder.c_str(), W_OK) != 0 ||
           (::stat(folder.c_str(), &found) == 0 && found.st_uid != ::geteuid());
}

OpenedForReading openForReading(const std::string& path)
{
    struct stat found = {};
    if (::lstat(path.c_str(), &found) != 0 || !S_ISREG(found.st_mode))
        throw SqlFailure(SQLITE_CANTOPEN, path + " is not a plain file");
    if (fileExists(path + "-shm")) {
        try {
            return {openAs(path, Database::Mode::ReadOnly), true};
        } catch (const SqlFailure& failure) {
            // An index that a crash left behind cannot be made anew without room.
            if (failure.isDamage())
                throw;
        }
    }
    const bool log = stateOfFile(path + "-wal").size > 0;
    return {openAs(path, log ? Database::Mode::ReadAlone : Database::Mode::ReadUnchanging), false};
}

} // namespace orva
