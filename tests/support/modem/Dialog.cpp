#include "support/modem/Dialog.h"

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace modemsim
{

using Clock = std::chrono::steady_clock;

Dialog::Dialog(const std::string& terminal) : m_fd(::open(terminal.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
{
    termios settings = {};
    if (m_fd >= 0 && ::tcgetattr(m_fd, &settings) == 0) {
        ::cfmakeraw(&settings);
        ::tcsetattr(m_fd, TCSANOW, &settings);
    }
}

Dialog::~Dialog()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

void Dialog::write(const std::string& bytes) const
{
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::write(m_fd, bytes.data() + done, bytes.size() - done);
        if (count < 0 && errno != EAGAIN)
            return;
        done += count > 0 ? static_cast<size_t>(count) : 0;
    }
}

// Waits for further bytes; false at the end of the time or of the terminal.
bool Dialog::more(Clock::time_point end)
{
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
    pollfd watched = {m_fd, POLLIN, 0};
    if (m_gone || left <= 0 || ::poll(&watched, 1, static_cast<int>(left)) <= 0)
        return false;
    char buffer[4096];
    const ssize_t count = ::read(m_fd, buffer, sizeof buffer);
    if (count <= 0) {
        m_gone = count == 0 || errno != EAGAIN;
        return !m_gone;
    }
    m_pending.append(buffer, static_cast<size_t>(count));
    return true;
}

static bool isFinal(const std::string& line)
{
    for (const char* text : {"OK", "ERROR", "+CME ERROR:", "+CMS ERROR:", "NO CARRIER", "BUSY", "NO ANSWER"}) {
        if (line.compare(0, std::string(text).size(), text) == 0)
            return true;
    }
    return false;
}

std::vector<std::string> Dialog::say(const std::string& command, std::chrono::milliseconds time)
{
    const Clock::time_point end = Clock::now() + time;
    write(command + "\r");
    std::vector<std::string> lines;
    while (true) {
        size_t mark = 0;
        while ((mark = m_pending.find_first_of("\r\n")) != std::string::npos) {
            const std::string line = m_pending.substr(0, mark);
            m_pending.erase(0, mark + 1);
            if (line.empty() || line == command)
                continue;
            lines.push_back(line);
            if (isFinal(line))
                return lines;
        }
        if (!more(end))
            return lines;
    }
}

std::string Dialog::heard(const std::string& command, std::chrono::milliseconds time)
{
    std::string all;
    for (const std::string& line : say(command, time))
        all += (all.empty() ? "" : "|") + line;
    return all;
}

static bool holdsFinal(const std::string& text)
{
    for (size_t begin = 0, end = 0; (end = text.find_first_of("\r\n", begin)) != std::string::npos; begin = end + 1) {
        if (isFinal(text.substr(begin, end - begin)))
            return true;
    }
    return false;
}

std::string Dialog::raw(const std::string& command, std::chrono::milliseconds time)
{
    const Clock::time_point end = Clock::now() + time;
    write(command + "\r");
    while (!holdsFinal(m_pending) && more(end)) {
    }
    std::string all;
    all.swap(m_pending);
    return all;
}

std::string Dialog::readUntil(const std::string& text, std::chrono::milliseconds time)
{
    const Clock::time_point end = Clock::now() + time;
    while (m_pending.find(text) == std::string::npos && more(end)) {
    }
    std::string all;
    all.swap(m_pending);
    // The line feed of the result before may come late.
    return all.compare(0, 1, "\n") == 0 ? all.substr(1) : all;
}

bool Dialog::gone(std::chrono::milliseconds time)
{
    const Clock::time_point end = Clock::now() + time;
    while (!m_gone && more(end)) {
    }
    return m_gone;
}

} // namespace modemsim
