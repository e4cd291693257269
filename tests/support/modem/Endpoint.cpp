#include "support/modem/Endpoint.h"

#include <arpa/inet.h>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <stdexcept>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <termios.h>
#include <unistd.h>

namespace modemsim
{

namespace
{

[[noreturn]] void fail(const std::string& what)
{
    throw std::runtime_error(what + ": " + std::strerror(errno));
}

void closeAndForget(int& fd)
{
    if (fd >= 0)
        ::close(fd);
    fd = -1;
}

void readAll(int fd, std::string& bytes)
{
    char buffer[4096];
    for (ssize_t count = 0; (count = ::read(fd, buffer, sizeof buffer)) > 0;)
        bytes.append(buffer, static_cast<size_t>(count));
}

// A pseudo terminal that behaves as a serial port does: who opens it finds the line discipline that the system starts
// with, and what one user has set (exclusive use too) is gone with the last close. The terminal outlives its users only
// because one end is held here; so it has to be put in order when a user leaves, which inotify tells.
class Terminal : public Endpoint
{
public:
    explicit Terminal(std::string link) : m_link(std::move(link)) {}
    ~Terminal() override { Terminal::close(); }

    void open() override
    {
        m_master = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
        char name[64];
        if (m_master < 0 || ::grantpt(m_master) != 0 || ::unlockpt(m_master) != 0 ||
            ::ptsname_r(m_master, name, sizeof name) != 0)
            fail("no pseudo terminal");
        m_name = name;
        m_held = ::open(name, O_RDWR | O_NOCTTY | O_CLOEXEC);
        m_watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
        if (m_held < 0 || ::tcgetattr(m_held, &m_settings) != 0 ||
            ::inotify_add_watch(m_watch, name, IN_OPEN | IN_CLOSE) < 0)
            fail(m_name);
        m_clients = 0;
        if (!m_link.empty()) {
            ::unlink(m_link.c_str());
            if (::symlink(name, m_link.c_str()) != 0)
                fail(m_link);
        }
    }

    void close() override
    {
        if (m_master >= 0 && !m_link.empty())
            ::unlink(m_link.c_str());
        closeAndForget(m_watch);
        closeAndForget(m_held);
        closeAndForget(m_master);
        m_name.clear();
    }

    bool isOpen() const override { return m_master >= 0; }
    std::string address() const override { return m_name; }
    bool hasClient() const override { return m_master >= 0 && m_clients > 0; }

    void watch(std::vector<pollfd>& into, bool forWriting) const override
    {
        into.push_back({m_watch, POLLIN, 0});
        into.push_back({m_master, static_cast<short>(POLLIN | (forWriting ? POLLOUT : 0)), 0});
    }

    bool receive(std::string& bytes) override
    {
        const bool left = lookForUsers();
        readAll(m_master, bytes);
        if (!bytes.empty() && m_clients == 0 && !left)
            m_clients = 1;
        return left;
    }

    size_t send(const char* bytes, size_t count) override
    {
        const ssize_t sent = ::write(m_master, bytes, count);
        return sent > 0 ? static_cast<size_t>(sent) : 0;
    }

private:
    bool lookForUsers()
    {
        bool left = false;
        alignas(inotify_event) char buffer[1024];
        for (ssize_t count = 0; (count = ::read(m_watch, buffer, sizeof buffer)) > 0;) {
            for (ssize_t at = 0; at < count;) {
                inotify_event event;
                std::memcpy(&event, buffer + at, sizeof event);
                at += static_cast<ssize_t>(sizeof event + event.len);
                if ((event.mask & IN_OPEN) != 0)
                    ++m_clients;
                else if ((event.mask & IN_CLOSE) != 0 && --m_clients <= 0)
                    left = true;
            }
        }
        m_clients = std::max(m_clients, 0);
        if (left && m_clients == 0) {
            ::tcflush(m_held, TCIFLUSH);
            ::tcsetattr(m_held, TCSANOW, &m_settings);
        }
        if (left)
            ::ioctl(m_held, TIOCNXCL);
        return left;
    }

    std::string m_link;
    std::string m_name;
    int m_master = -1;
    int m_held = -1;
    int m_watch = -1;
    int m_clients = 0;
    termios m_settings = {};
};

// A listening socket with one client; a new client takes the place of the one before.
class Listener : public Endpoint
{
public:
    explicit Listener(const PortPlan& plan) : m_plan(plan) {}
    ~Listener() override { Listener::close(); }

    void open() override
    {
        const bool tcp = m_plan.kind == PortPlan::Tcp;
        m_listener = ::socket(tcp ? AF_INET : AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        if (m_listener < 0 || (tcp ? bindTcp() : bindAbstract()) != 0 || ::listen(m_listener, 4) != 0)
            fail(m_plan.name);
    }

    void close() override
    {
        closeAndForget(m_client);
        closeAndForget(m_listener);
    }

    bool isOpen() const override { return m_listener >= 0; }
    std::string address() const override { return m_plan.name; }
    bool hasClient() const override { return m_client >= 0; }

    void watch(std::vector<pollfd>& into, bool forWriting) const override
    {
        into.push_back({m_listener, POLLIN, 0});
        if (m_client >= 0)
            into.push_back({m_client, static_cast<short>(POLLIN | (forWriting ? POLLOUT : 0)), 0});
    }

    bool receive(std::string& bytes) override
    {
        bool changed = false;
        if (m_client >= 0) {
            readAll(m_client, bytes);
            pollfd state = {m_client, POLLIN | POLLRDHUP, 0};
            if (::poll(&state, 1, 0) > 0 && (state.revents & (POLLHUP | POLLRDHUP | POLLERR)) != 0) {
                closeAndForget(m_client);
                changed = true;
            }
        }
        const int fresh = ::accept4(m_listener, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
        if (fresh >= 0) {
            closeAndForget(m_client);
            m_client = fresh;
            changed = true;
        }
        return changed;
    }

    size_t send(const char* bytes, size_t count) override
    {
        const ssize_t sent = ::send(m_client, bytes, count, MSG_NOSIGNAL);
        return sent > 0 ? static_cast<size_t>(sent) : 0;
    }

private:
    int bindTcp()
    {
        const int on = 1;
        ::setsockopt(m_listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(static_cast<uint16_t>(std::atoi(m_plan.name.c_str())));
        socklen_t length = sizeof address;
        if (::bind(m_listener, reinterpret_cast<sockaddr*>(&address), length) != 0)
            return -1;
        if (::getsockname(m_listener, reinterpret_cast<sockaddr*>(&address), &length) == 0)
            m_plan.name = std::to_string(ntohs(address.sin_port));
        return 0;
    }

    int bindAbstract()
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        if (m_plan.name.size() + 1 > sizeof address.sun_path) {
            errno = ENAMETOOLONG;
            return -1;
        }
        std::memcpy(address.sun_path + 1, m_plan.name.data(), m_plan.name.size());
        const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + m_plan.name.size());
        return ::bind(m_listener, reinterpret_cast<sockaddr*>(&address), length);
    }

    PortPlan m_plan;
    int m_listener = -1;
    int m_client = -1;
};

} // namespace

std::unique_ptr<Endpoint> Endpoint::make(const PortPlan& plan)
{
    if (plan.kind == PortPlan::Pty)
        return std::make_unique<Terminal>(plan.name);
    return std::make_unique<Listener>(plan);
}

} // namespace modemsim
