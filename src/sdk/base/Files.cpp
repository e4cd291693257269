#include "base/Files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>

#include "base/Failure.h"
#include "base/OpenFile.h"

namespace orva
{

namespace
{

[[noreturn]] void failFile(const char* doing, const std::string& path)
{
    const int error = errno;
    const bool full = error == ENOSPC || error == EDQUOT;
    throw Failure(error == ENOMEM ? ORVA_E_NO_MEMORY
                  : full          ? ORVA_E_NO_SPACE
                                  : ORVA_E_STORE,
                  std::string(doing) + " " + path + ": " + std::strerror(error));
}

std::string parentOf(const std::string& path)
{
    const std::size_t slash = path.find_last_of('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

// One folder; false if that above it is missing. Whatever the umask, it is open to its owner.
bool makeFolder(const std::string& path)
{
    if (::mkdir(path.c_str(), 0700) == 0)
        return ::chmod(path.c_str(), 0700) == 0;
    if (errno == EEXIST)
        return true;
    if (errno != ENOENT || path == "/" || path == ".")
        failFile("making the folder", path);
    return false;
}

void makeFolders(const std::string& path)
{
    if (makeFolder(path))
        return;
    makeFolders(parentOf(path));
    if (!makeFolder(path))
        failFile("making the folder", path);
}

void writeAll(int file, const std::string& content, const std::string& path)
{
    std::size_t done = 0;
    while (done < content.size()) {
        const ssize_t written = ::write(file, content.data() + done, content.size() - done);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            failFile("writing", path);
        done += static_cast<std::size_t>(written);
    }
}

} // namespace

std::string preparePrivateFolder(const std::string& path)
{
    std::string plain = path;
    while (plain.size() > 1 && plain.back() == '/')
        plain.pop_back();
    makeFolders(plain);
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(plain.c_str(), nullptr), &std::free);
    if (!resolved)
        failFile("finding the folder", plain);
    std::string real = resolved.get();
    // Through a descriptor, so that what is checked is what is changed.
    const OpenFile folder(::open(real.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat state = {};
    if (!folder.isOpen() || ::fstat(folder.get(), &state) != 0)
        failFile("opening the folder", real);
    if (state.st_uid != ::geteuid())
        throw Failure(ORVA_E_STORE, "the folder " + real + " belongs to another user");
    if ((state.st_mode & 0077) != 0 && ::fchmod(folder.get(), state.st_mode & 0700) != 0)
        failFile("protecting the folder", real);
    return real;
}

bool preparePrivateFile(const std::string& path)
{
    const OpenFile created(::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (created.isOpen()) {
        // A umask may have taken the user's own rights off.
        if (::fchmod(created.get(), 0600) != 0)
            failFile("protecting", path);
        return true;
    }
    if (errno != EEXIST)
        failFile("making", path);
    struct stat state = {};
    if (::lstat(path.c_str(), &state) != 0)
        failFile("looking at", path);
    if (!S_ISREG(state.st_mode))
        throw Failure(ORVA_E_STORE, path + " is not a plain file");
    if ((state.st_mode & 0077) != 0) {
        const OpenFile file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
        if (file.isOpen())
            ::fchmod(file.get(), state.st_mode & 0700);
    }
    return false;
}

void replacePrivateFile(const std::string& path, const std::string& content)
{
    std::string name = path + ".XXXXXX";
    const OpenFile file(::mkostemp(name.data(), O_CLOEXEC));
    if (!file.isOpen())
        failFile("making", name);
    try {
        if (::fchmod(file.get(), 0600) != 0)
            failFile("protecting", name);
        writeAll(file.get(), content, name);
        if (::fdatasync(file.get()) != 0)
            failFile("writing", name);
        if (::rename(name.c_str(), path.c_str()) != 0)
            failFile("replacing", path);
    } catch (...) {
        ::unlink(name.c_str());
        throw;
    }
}

std::string readSmallFile(const std::string& path, std::size_t limit)
{
    const OpenFile file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK));
    struct stat state = {};
    if (!file.isOpen() || ::fstat(file.get(), &state) != 0 || !S_ISREG(state.st_mode))
        return {};
    std::string content(limit + 1, '\0');
    std::size_t done = 0;
    while (done < content.size()) {
        const ssize_t got = ::read(file.get(), &content[done], content.size() - done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        done += static_cast<std::size_t>(got);
    }
    if (done > limit)
        return {};
    content.resize(done);
    return content;
}

bool fileExists(const std::string& path)
{
    struct stat state = {};
    return ::lstat(path.c_str(), &state) == 0;
}

std::string timeStamp()
{
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    ::gmtime_r(&now, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%Y%m%dT%H%M%SZ", &parts);
    return text;
}

std::string asideName(const std::string& path, const std::string& word)
{
    const std::string base = path + "." + word + "-" + timeStamp();
    std::string name = base;
    for (int number = 2; fileExists(name); ++number)
        name = base + "-" + std::to_string(number);
    return name;
}

std::string resolvedFolder(const std::string& path)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr), &std::free);
    return resolved ? resolved.get() : path;
}

std::string resolveFolderOf(const std::string& path)
{
    const std::string folder = parentOf(path);
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(folder.c_str(), nullptr), &std::free);
    if (!resolved)
        throw Failure(ORVA_E_NOT_FOUND, "no folder " + folder);
    const std::size_t slash = path.find_last_of('/');
    return std::string(resolved.get()) + "/" + (slash == std::string::npos ? path : path.substr(slash + 1));
}

void syncFolder(const std::string& folder)
{
    const OpenFile file(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (file.isOpen())
        ::fsync(file.get());
}

FileLock::FileLock(const std::string& path) : m_file(-1)
{
    m_file = ::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (m_file >= 0)
        ::fchmod(m_file, 0600);
}

FileLock::~FileLock()
{
    if (m_file >= 0)
        ::close(m_file);
}

bool FileLock::tryLock()
{
    if (m_file < 0)
        return true;
    // A file system without such locks does without the fairness they are for.
    return ::flock(m_file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

void FileLock::lock()
{
    while (m_file >= 0 && ::flock(m_file, LOCK_EX) != 0 && errno == EINTR) {
    }
}

void FileLock::unlock()
{
    if (m_file >= 0)
        ::flock(m_file, LOCK_UN);
}

} // namespace orva
