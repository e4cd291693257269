#include "sync/VdirFolder.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <memory>
#include <string_view>

#include "base/Failure.h"
#include "base/OpenFile.h"
#include "base/Sha256.h"
#include "orva/orva_sync.h"

namespace orva
{

namespace
{

constexpr char markerName[] = ".linkhand-sync";
constexpr char halfName[] = ".linkhand-half-";
constexpr std::size_t longestUidInName = 200;

// How long ago a file must have been written for its times to tell of the next write.
constexpr long long sureAfter = 100 * 1000 * 1000;        // nanoseconds
constexpr long long sureAfterWholeSeconds = 2000000000LL; // where a file system has no parts of seconds

[[noreturn]] void failFile(const char* doing, const std::string& name)
{
    const int error = errno;
    const bool full = error == ENOSPC || error == EDQUOT;
    throw Failure(full                                                  ? ORVA_E_NO_SPACE
                  : error == EROFS || error == EACCES || error == EPERM ? ORVA_E_READ_ONLY
                                                                        : ORVA_E_STORE,
                  std::string(doing) + " " + name + ": " + std::strerror(error));
}

long long nanoseconds(const timespec& time)
{
    return static_cast<long long>(time.tv_sec) * 1000000000LL + time.tv_nsec;
}

bool isCardName(std::string_view name)
{
    const std::string_view end = name.substr(name.size() - std::min<std::size_t>(name.size(), 4));
    return name.size() > 4 && name[0] != '.' && (end == ".vcf" || ::strncasecmp(end.data(), ".vcf", 4) == 0);
}

std::string readAll(int file, std::size_t limit)
{
    std::string content;
    char piece[65536];
    for (;;) {
        const ssize_t got = ::read(file, piece, sizeof piece);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            failFile("reading", "a card");
        if (got == 0 || content.size() > limit)
            return content;
        content.append(piece, static_cast<std::size_t>(got));
    }
}

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

// The names of a folder, on a descriptor of their own.
OpenFolder openNames(int folder)
{
    const int copy = ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    return OpenFolder(copy < 0 ? nullptr : ::fdopendir(copy));
}

// Its times, length and place; nothing for one that was written too lately to tell.
class Look
{
public:
    Look(const struct stat& state, long long now)
    {
        const long long changed = nanoseconds(state.st_ctim);
        const long long sure = state.st_ctim.tv_nsec == 0 ? sureAfterWholeSeconds : sureAfter;
        m_sure = std::max(nanoseconds(state.st_mtim), changed) + sure < now;
        m_numbers[0] = nanoseconds(state.st_mtim);
        m_numbers[1] = changed;
        m_numbers[2] = static_cast<long long>(state.st_size);
        m_numbers[3] = static_cast<long long>(state.st_ino);
    }
    std::string_view octets() const
    {
        return std::string_view(reinterpret_cast<const char*>(m_numbers), m_sure ? sizeof m_numbers : 0);
    }

private:
    long long m_numbers[4] = {};
    bool m_sure = false;
};

// Why a file is none to read.
int obstacleOf(const struct stat& state)
{
    if (S_ISLNK(state.st_mode))
        return ORVA_SYNC_REASON_LINK;
    if (!S_ISREG(state.st_mode))
        return ORVA_SYNC_REASON_NO_FILE;
    return static_cast<std::size_t>(state.st_size) > largestCardFile ? ORVA_SYNC_REASON_LARGE : ORVA_SYNC_REASON_NONE;
}

VdirEntry entryOf(std::string_view name, const struct stat& state, long long now)
{
    return {std::string(name), std::string(Look(state, now).octets()), static_cast<long long>(state.st_mtim.tv_sec),
            obstacleOf(state)};
}

// Files between the look at them and the question who is known of them. Asked in between the calls of the system, each
// answer would have to come from far away in memory.
class Listing
{
public:
    Listing(const VdirFolder::Known& known, std::vector<VdirEntry>& entries) : m_known(known), m_entries(entries) {}

    void add(std::string_view name, const struct stat& state, long long now)
    {
        m_files.push_back(
            {name.size(), Look(state, now), static_cast<long long>(state.st_mtim.tv_sec), obstacleOf(state)});
        m_names.append(name);
        if (m_files.size() == together)
            flush();
    }

    void flush()
    {
        std::string_view names = m_names;
        m_listed.clear();
        for (const File& file : m_files) {
            const bool card = file.left == ORVA_SYNC_REASON_NONE;
            m_listed.push_back({names.substr(0, file.name), card ? file.look.octets() : std::string_view()});
            names.remove_prefix(file.name);
        }
        if (m_known)
            m_known(m_listed);
        for (std::size_t i = 0; i < m_files.size(); ++i) {
            const File& file = m_files[i];
            if (!m_listed[i].known)
                m_entries.push_back(
                    {std::string(m_listed[i].name), std::string(file.look.octets()), file.changed, file.left});
        }
        m_files.clear();
        m_names.clear();
    }

private:
    static constexpr std::size_t together = 128;
    struct File {
        std::size_t name; // its length
        Look look;
        long long changed;
        int left;
    };
    const VdirFolder::Known& m_known;
    std::vector<VdirEntry>& m_entries;
    std::vector<File> m_files;
    std::string m_names;
    std::vector<VdirFolder::Listed> m_listed;
};

long long nowInNanoseconds()
{
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    return nanoseconds(now);
}

} // namespace

VdirFolder::VdirFolder(const std::string& path)
{
    m_folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (m_folder < 0 && errno == ENOENT)
        throw Failure(ORVA_E_NOT_FOUND, "no folder " + path);
    if (m_folder < 0)
        failFile("opening the folder", path);
}

VdirFolder::~VdirFolder()
{
    if (m_marker >= 0)
        ::close(m_marker);
    ::close(m_folder);
}

std::vector<VdirEntry> VdirFolder::list(const Known& known) const
{
    const OpenFolder folder = openNames(m_folder);
    if (!folder)
        failFile("reading", "the folder");
    std::vector<VdirEntry> entries;
    Listing listing(known, entries);
    const long long now = nowInNanoseconds();
    errno = 0;
    while (const dirent* const found = ::readdir(folder.get())) {
        struct stat state = {};
        const std::string_view name = found->d_name;
        if (m_marker >= 0 && name.compare(0, sizeof halfName - 1, halfName) == 0) {
            ::unlinkat(m_folder, found->d_name, 0);
            errno = 0;
        }
        if (!isCardName(name))
            continue;
        // One that nothing can be told of is there all the same.
        if (::fstatat(m_folder, found->d_name, &state, AT_SYMLINK_NOFOLLOW) == 0)
            listing.add(name, state, now);
        else if (errno != ENOENT)
            failFile("looking at", std::string(name));
        errno = 0;
    }
    // Half a list would look like deletions.
    if (errno != 0)
        failFile("reading", "the folder");
    listing.flush();
    return entries;
}

std::optional<VdirEntry> VdirFolder::entry(const std::string& name) const
{
    struct stat state = {};
    if (::fstatat(m_folder, name.c_str(), &state, AT_SYMLINK_NOFOLLOW) != 0)
        return std::nullopt;
    return entryOf(name, state, nowInNanoseconds());
}

std::optional<std::string> VdirFolder::read(const std::string& name) const
{
    const OpenFile file(::openat(m_folder, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat state = {};
    if (file.get() < 0 || ::fstat(file.get(), &state) != 0 || !S_ISREG(state.st_mode))
        return std::nullopt;
    std::string octets = readAll(file.get(), largestCardFile);
    if (octets.size() > largestCardFile)
        return std::nullopt;
    return octets;
}

void VdirFolder::write(const std::string& name, const std::string& octets) const
{
    const std::string half = halfName + std::to_string(::getpid()) + ".tmp";
    {
        const OpenFile file(
            ::openat(m_folder, half.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (file.get() < 0)
            failFile("making", half);
        for (std::size_t done = 0; done < octets.size();) {
            const ssize_t written = ::write(file.get(), octets.data() + done, octets.size() - done);
            if (written < 0 && errno == EINTR)
                continue;
            if (written < 0)
                failFile("writing", half);
            done += static_cast<std::size_t>(written);
        }
        if (::fdatasync(file.get()) != 0)
            failFile("writing", half);
    }
    if (::renameat(m_folder, half.c_str(), m_folder, name.c_str()) != 0)
        failFile("replacing", name);
}

void VdirFolder::remove(const std::string& name) const
{
    if (::unlinkat(m_folder, name.c_str(), 0) != 0 && errno != ENOENT)
        failFile("removing", name);
}

bool VdirFolder::has(const std::string& name) const
{
    struct stat state = {};
    return ::fstatat(m_folder, name.c_str(), &state, AT_SYMLINK_NOFOLLOW) == 0;
}

void VdirFolder::sync() const
{
    ::fsync(m_folder);
}

std::string VdirFolder::marker() const
{
    const std::optional<std::string> octets = read(markerName);
    if (!octets || octets->size() < 64)
        return {};
    const std::string identifier = octets->substr(0, 64);
    return identifier.find_first_not_of("0123456789abcdef") == std::string::npos ? identifier : std::string();
}

void VdirFolder::writeMarker(const std::string& identifier)
{
    // In one write, without a rename: whoever waits for its lock holds this file.
    if (m_marker < 0 || ::pwrite(m_marker, (identifier + "\n").data(), identifier.size() + 1, 0) < 0)
        failFile("writing", markerName);
    ::fsync(m_marker);
    sync();
}

bool VdirFolder::lockMarker()
{
    if (m_marker < 0)
        m_marker = ::openat(m_folder, markerName, O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (m_marker < 0)
        failFile("making", markerName);
    return ::flock(m_marker, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

std::string vdirName(const std::string& uid)
{
    const bool safe = !uid.empty() && uid.size() <= longestUidInName && uid[0] != '.' &&
                      std::all_of(uid.begin(), uid.end(), [](char c) {
                          return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                                 c == '-' || c == '_' || c == '.' || c == '@';
                      });
    return (safe ? uid : sha256Of(uid)) + ".vcf";
}

} // namespace orva
