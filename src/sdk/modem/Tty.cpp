#include "modem/Tty.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "base/Failure.h"

namespace orva
{

namespace
{

constexpr Milliseconds longestWrite(5000);

Failure openFailure(const std::string& path, int error)
{
    const std::string what = "modem port " + path + ": " + std::strerror(error);
    switch (error) {
    case EBUSY:
        return Failure(ORVA_E_BUSY, what);
    case EACCES:
    case EPERM:
        return Failure(ORVA_E_STORE, what);
    default:
        return Failure(ORVA_E_ABSENT, what);
    }
}

PortGone gone()
{
    return PortGone("the modem has gone");
}

} // namespace

Tty::Tty(const std::string& path, int waker) : m_waker(waker)
{
    m_file = ::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (m_file < 0)
        throw openFailure(path, errno);
    try {
        if (::isatty(m_file) == 0)
            throw Failure(ORVA_E_ABSENT, "modem port " + path + ": no tty");
        // The kernel lets root in all the same; who holds it shows by a lock that programs of this kind respect.
        if (::flock(m_file, LOCK_EX | LOCK_NB) != 0 || ::ioctl(m_file, TIOCEXCL) != 0)
            throw openFailure(path, EBUSY);
        prepare();
    } catch (...) {
        ::close(m_file);
        throw;
    }
}

Tty::~Tty()
{
    ::ioctl(m_file, TIOCNXCL);
    ::close(m_file);
}

void Tty::prepare()
{
    termios line = {};
    if (::tcgetattr(m_file, &line) != 0)
        throw gone();
    ::cfmakeraw(&line);
    line.c_cflag |= CLOCAL | CREAD;
    line.c_cflag &= ~static_cast<tcflag_t>(HUPCL);
    line.c_cc[VMIN] = 0;
    line.c_cc[VTIME] = 0;
    ::cfsetispeed(&line, B115200);
    ::cfsetospeed(&line, B115200);
    if (::tcsetattr(m_file, TCSANOW, &line) != 0)
        throw gone();
    ::tcflush(m_file, TCIFLUSH);
}

bool Tty::wait(short events, Milliseconds atMost)
{
    pollfd waited[2] = {{m_file, events, 0}, {m_waker, POLLIN, 0}};
    const int count = ::poll(waited, m_waker >= 0 ? 2 : 1, static_cast<int>(std::max<long long>(0, atMost.count())));
    if (count < 0 && errno != EINTR)
        throw gone();
    if (m_waker >= 0 && (waited[1].revents & POLLIN) != 0)
        throw PortGone("the modem is being left");
    if ((waited[0].revents & (POLLERR | POLLNVAL)) != 0 || (waited[0].revents & (POLLHUP | POLLIN)) == POLLHUP)
        throw gone();
    return count > 0 && (waited[0].revents & events) != 0;
}

void Tty::write(std::string_view bytes)
{
    while (!bytes.empty()) {
        if (!wait(POLLOUT, longestWrite))
            throw PortGone("the modem takes no command");
        const ssize_t written = ::write(m_file, bytes.data(), bytes.size());
        if (written < 0 && errno != EAGAIN && errno != EINTR)
            throw gone();
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(0, written)));
    }
}

std::string Tty::read(Milliseconds atMost)
{
    if (!wait(POLLIN, atMost))
        return {};
    char bytes[4096];
    const ssize_t count = ::read(m_file, bytes, sizeof bytes);
    if (count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR))
        throw gone();
    return count > 0 ? std::string(bytes, static_cast<std::size_t>(count)) : std::string();
}

} // namespace orva
