#include "store/Backups.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <memory>

#include "base/Files.h"
#include "base/Log.h"
#include "orva/orva_store.h"
#include "store/Schema.h"

namespace orva
{

namespace
{

constexpr const char* reasons[] = {"daily", "migration", "restore", "merge", "import", "asked"}; // from 1 on
constexpr char ending[] = ".db";
constexpr char halfEnding[] = ".part";

// What is left of a backup that was broken off is removed after this time.
constexpr std::time_t halfStays = 24 * 60 * 60;

std::vector<std::string> namesIn(const std::string& folder)
{
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR*)> opened(::opendir(folder.c_str()), &::closedir);
    while (const dirent* const entry = opened ? ::readdir(opened.get()) : nullptr)
        names.emplace_back(entry->d_name);
    return names;
}

// Takes a text off the beginning of another.
bool takeOff(std::string& text, const std::string& beginning)
{
    if (text.compare(0, beginning.size(), beginning) != 0)
        return false;
    text.erase(0, beginning.size());
    return true;
}

bool takeOffEnd(std::string& text, const std::string& end)
{
    if (text.size() < end.size() || text.compare(text.size() - end.size(), end.size(), end) != 0)
        return false;
    text.resize(text.size() - end.size());
    return true;
}

// Reads "TIME-REASON" or "TIME-REASON-NUMBER".
bool readName(std::string name, BackupFile& file)
{
    std::tm parts{};
    const char* const behind = ::strptime(name.c_str(), "%Y%m%dT%H%M%SZ-", &parts);
    if (behind == nullptr)
        return false;
    file.time = static_cast<long long>(::timegm(&parts));
    name.erase(0, static_cast<std::size_t>(behind - name.c_str()));
    for (std::size_t i = 0; i < std::size(reasons); ++i) {
        if (!takeOff(name, reasons[i]))
            continue;
        file.reason = static_cast<int>(i) + 1;
        file.number = takeOff(name, "-") ? std::atoi(name.c_str()) : name.empty() ? 1 : 0;
        return file.number > 0;
    }
    return false;
}

} // namespace

int BackupFile::records() const
{
    try {
        Database db(path, Database::Mode::ReadOnly);
        return db.queryInt("SELECT count(*) FROM records");
    } catch (const Failure&) {
        return -1;
    }
}

Backups::Backups(const std::string& folder, std::string store)
    : m_folder(folder + "/backups"), m_store(std::move(store))
{
}

std::vector<BackupFile> Backups::list() const
{
    std::vector<BackupFile> files;
    if (!fileExists(m_folder))
        return files;
    const std::string folder = preparePrivateFolder(m_folder); // without the links that SQLite does not take
    for (const std::string& entry : namesIn(folder)) {
        BackupFile file;
        file.name = entry;
        file.path.append(folder).append("/").append(entry);
        if (!takeOffEnd(file.name, ending))
            continue;
        std::string rest = file.name;
        if (takeOff(rest, m_store + "-") && readName(rest, file))
            files.push_back(std::move(file));
    }
    std::sort(files.begin(), files.end(), [](const BackupFile& a, const BackupFile& b) {
        return a.time != b.time ? a.time > b.time : a.number > b.number;
    });
    return files;
}

std::string Backups::make(Database& db, int reason)
{
    const std::string folder = preparePrivateFolder(m_folder);
    removeHalves();
    const std::string stamp = timeStamp();
    const std::string base = folder + "/" + m_store + "-" + stamp + "-" + reasons[reason - 1];
    int number = 1;
    for (const BackupFile& file : list())
        if (file.name.find(stamp) != std::string::npos)
            number = std::max(number, file.number + 1);
    for (;; ++number) {
        std::string path = base + (number > 1 ? "-" + std::to_string(number) : std::string()) + ending;
        const std::string half = path + halfEnding;
        // Whoever makes the half has the name; another process may have come to its end with it meanwhile.
        if (fileExists(path) || !preparePrivateFile(half))
            continue;
        if (fileExists(path)) {
            ::unlink(half.c_str());
            continue;
        }
        fillBackup(db, half);
        if (::rename(half.c_str(), path.c_str()) != 0) {
            ::unlink(half.c_str());
            throw Failure(ORVA_E_STORE, path + " cannot be named so");
        }
        syncFolder(folder);
        return path;
    }
}

void Backups::rotate(int records, const std::vector<std::string>& spared) const
{
    const std::vector<BackupFile> files = list();
    if (files.size() <= ORVA_BACKUPS_KEPT)
        return;
    const auto large = std::find_if(files.begin(), files.end(),
                                    [records](const BackupFile& file) { return file.records() > 2LL * records; });
    for (auto file = files.begin() + ORVA_BACKUPS_KEPT; file != files.end(); ++file) {
        if (file == large || std::find(spared.begin(), spared.end(), file->path) != spared.end())
            continue;
        if (::unlink(file->path.c_str()) == 0)
            logFormat("%s: removed, being older than the last %d", file->path.c_str(), ORVA_BACKUPS_KEPT);
    }
}

void Backups::removeHalves() const
{
    for (const std::string& entry : namesIn(m_folder)) {
        const std::string path = m_folder + "/" + entry;
        struct stat state = {};
        // With what SQLite had beside it.
        if (entry.find(std::string(ending) + halfEnding) != std::string::npos && ::lstat(path.c_str(), &state) == 0 &&
            state.st_mtime < std::time(nullptr) - halfStays)
            ::unlink(path.c_str());
    }
}

} // namespace orva
