#include "support/modem/ControlSocket.h"

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <poll.h>
#include <stdexcept>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace modemsim
{

namespace
{

int socketAt(const std::string& name, sockaddr_un& address, socklen_t& length)
{
    address = {};
    address.sun_family = AF_UNIX;
    if (name.size() + 1 > sizeof address.sun_path)
        throw std::runtime_error("too long: " + name);
    std::memcpy(address.sun_path + 1, name.data(), name.size());
    length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        throw std::runtime_error(name + ": " + std::strerror(errno));
    return fd;
}

void sendAll(int fd, const std::string& text)
{
    for (size_t at = 0; at < text.size();) {
        const ssize_t count = ::send(fd, text.data() + at, text.size() - at, MSG_NOSIGNAL);
        if (count <= 0)
            return;
        at += static_cast<size_t>(count);
    }
}

// One line, without its end; false when the other side has gone or the stop has come.
bool readLine(int fd, int stop, std::string& pending, std::string& line)
{
    while (pending.find('\n') == std::string::npos) {
        pollfd watched[] = {{fd, POLLIN, 0}, {stop, POLLIN, 0}};
        char buffer[1024];
        if (::poll(watched, stop < 0 ? 1 : 2, -1) <= 0 || (stop >= 0 && watched[1].revents != 0))
            return false;
        const ssize_t count = ::read(fd, buffer, sizeof buffer);
        if (count <= 0)
            return false;
        pending.append(buffer, static_cast<size_t>(count));
    }
    line = pending.substr(0, pending.find('\n'));
    pending.erase(0, line.size() + 1);
    return true;
}

} // namespace

ControlSocket::ControlSocket(const std::string& name, const Control& control)
    : m_control(control), m_stop(::eventfd(0, EFD_CLOEXEC))
{
    sockaddr_un address;
    socklen_t length = 0;
    m_listener = socketAt(name, address, length);
    if (::bind(m_listener, reinterpret_cast<sockaddr*>(&address), length) != 0 || ::listen(m_listener, 4) != 0)
        throw std::runtime_error(name + ": " + std::strerror(errno));
    m_thread = std::thread([this] { run(); });
}

ControlSocket::~ControlSocket()
{
    const uint64_t one = 1;
    if (::write(m_stop, &one, sizeof one) == sizeof one)
        m_thread.join();
    ::close(m_listener);
    ::close(m_stop);
}

void ControlSocket::run()
{
    while (true) {
        pollfd watched[] = {{m_listener, POLLIN, 0}, {m_stop, POLLIN, 0}};
        if (::poll(watched, 2, -1) <= 0 || watched[1].revents != 0)
            return;
        const int client = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        std::string pending;
        std::string line;
        while (client >= 0 && readLine(client, m_stop, pending, line))
            sendAll(client, m_control.obey(line));
        ::close(client);
    }
}

std::string ControlSocket::tell(const std::string& name, const std::string& order)
{
    sockaddr_un address;
    socklen_t length = 0;
    const int fd = socketAt(name, address, length);
    if (::connect(fd, reinterpret_cast<sockaddr*>(&address), length) != 0) {
        ::close(fd);
        throw std::runtime_error(name + ": " + std::strerror(errno));
    }
    sendAll(fd, order + "\n");
    std::string answer;
    std::string pending;
    std::string line;
    while (readLine(fd, -1, pending, line) && line != ".")
        answer += line + '\n';
    ::close(fd);
    return answer;
}

} // namespace modemsim
