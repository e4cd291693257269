#include "base/DataFolder.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <mutex>
#include <vector>

#include "base/Failure.h"

namespace orva
{

namespace
{

struct Chosen {
    std::mutex mutex;
    std::string folder;
};

// Never destroyed: threads may outlast the library's own end.
Chosen& chosen()
{
    static auto* const folder = new Chosen;
    return *folder;
}

std::string homeFolder()
{
    const char* home = std::getenv("HOME");
    if (home != nullptr && *home == '/')
        return home;
    std::vector<char> buffer(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found != nullptr)
        return found->pw_dir;
    throw Failure(ORVA_E_STORE, "no home folder");
}

std::string folderOfEnvironment()
{
    const char* const own = std::getenv("LINKHAND_DATA_DIR");
    if (own != nullptr && *own != '\0')
        return own;
    const char* const data = std::getenv("XDG_DATA_HOME");
    if (data != nullptr && *data == '/')
        return std::string(data) + "/linkhand";
    return homeFolder() + "/.local/share/linkhand";
}

} // namespace

std::string dataFolder()
{
    {
        const std::lock_guard<std::mutex> lock(chosen().mutex);
        if (!chosen().folder.empty())
            return chosen().folder;
    }
    return folderOfEnvironment();
}

std::string logFolder()
{
    return dataFolder() + "/log";
}

void chooseDataFolder(const std::string& folder)
{
    const std::lock_guard<std::mutex> lock(chosen().mutex);
    chosen().folder = folder;
}

} // namespace orva
