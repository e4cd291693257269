#include "base/Log.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>
#include <ctime>
#include <mutex>

#include "base/DataFolder.h"
#include "base/Files.h"

namespace orva
{

namespace
{

constexpr off_t largestLog = 1024 * 1024;

// One line at a time, also when the log itself is in trouble.
std::mutex& logMutex()
{
    static auto* const mutex = new std::mutex;
    return *mutex;
}

std::string now()
{
    timespec time{};
    ::clock_gettime(CLOCK_REALTIME, &time);
    std::tm parts{};
    ::localtime_r(&time.tv_sec, &parts);
    char text[64];
    const std::size_t length = std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &parts);
    std::snprintf(text + length, sizeof text - length, ".%03ld", time.tv_nsec / 1000000);
    return text;
}

bool append(const std::string& path, const std::string& line)
{
    const int file = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (file < 0)
        return false;
    struct stat state = {};
    if (::fstat(file, &state) == 0) {
        if ((state.st_mode & 0777) != 0600)
            ::fchmod(file, 0600);
        if (state.st_size > largestLog)
            ::rename(path.c_str(), (path + ".1").c_str());
    }
    const bool written = ::write(file, line.data(), line.size()) == static_cast<ssize_t>(line.size());
    ::close(file);
    return written;
}

} // namespace

void logLine(const std::string& text) noexcept
{
    try {
        // One line is one line, whatever a path in it holds.
        std::string line = now() + " " + std::to_string(::getpid()) + " ";
        for (const char character : text)
            line += static_cast<unsigned char>(character) < ' ' ? ' ' : character;
        line += '\n';
        const std::lock_guard<std::mutex> lock(logMutex());
        bool written = false;
        try {
            written = append(preparePrivateFolder(logFolder()) + "/sdk.log", line);
        } catch (const std::exception&) {
            written = false;
        }
        if (!written)
            std::fputs(("libsdk: " + line).c_str(), stderr);
    } catch (...) {
        // A line less is better than a failure more.
        return;
    }
}

void logFormat(const char* format, ...) noexcept
{
    char text[1024];
    std::va_list arguments;
    va_start(arguments, format);
    // The analyzer loses sight of va_start.
    std::vsnprintf(text, sizeof text, format, arguments); // NOLINT(clang-analyzer-valist.Uninitialized)
    va_end(arguments);
    try {
        logLine(text);
    } catch (...) {
        return;
    }
}

} // namespace orva
