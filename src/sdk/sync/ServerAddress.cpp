#include "sync/ServerAddress.h"

#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>

namespace orva
{

namespace
{

constexpr int reachWithin = 100;  // looks
constexpr int betweenLooks = 100; // milliseconds

bool connects(const addrinfo& one, const GoOn& goOn)
{
    const int end = ::socket(one.ai_family, one.ai_socktype | SOCK_NONBLOCK | SOCK_CLOEXEC, one.ai_protocol);
    if (end < 0)
        return false;
    bool connected = ::connect(end, one.ai_addr, one.ai_addrlen) == 0;
    if (!connected && errno == EINPROGRESS) {
        pollfd ready = {end, POLLOUT, 0};
        int found = 0;
        for (int look = 0; found <= 0 && look < reachWithin && (!goOn || goOn()); ++look)
            found = ::poll(&ready, 1, betweenLooks);
        int error = 0;
        socklen_t size = sizeof error;
        connected = found > 0 && ::getsockopt(end, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0;
    }
    ::close(end);
    return connected;
}

} // namespace

bool ServerAddress::read(const std::string& url)
{
    const std::size_t scheme = url.find("://");
    const std::string name = url.substr(0, scheme);
    if (scheme == std::string::npos || (name != "https" && name != "http"))
        return false;
    const bool odd =
        std::any_of(url.begin(), url.end(), [](char c) { return c <= ' ' || c >= 0x7F || c == '"' || c == '\\'; });
    std::string authority = url.substr(scheme + 3, url.find_first_of("/?#", scheme + 3) - scheme - 3);
    if (odd || authority.empty() || authority.find('@') != std::string::npos)
        return false;
    secure = name == "https";
    port = secure ? "443" : "80";
    const std::size_t bracket = authority.find(']');
    const std::size_t colon = authority.find(':', bracket == std::string::npos ? 0 : bracket);
    if (colon != std::string::npos) {
        port = authority.substr(colon + 1);
        authority.erase(colon);
    }
    if (authority.size() > 2 && authority.front() == '[' && authority.back() == ']')
        authority = authority.substr(1, authority.size() - 2);
    host = authority;
    return !host.empty() && !port.empty() && port.find_first_not_of("0123456789") == std::string::npos;
}

bool ServerAddress::isLoopback() const
{
    if (host == "localhost" || host == "::1")
        return true;
    return host.rfind("127.", 0) == 0 && host.find_first_not_of("0123456789.") == std::string::npos;
}

bool ServerAddress::isReachable(const GoOn& goOn) const
{
    addrinfo wanted = {};
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (::getaddrinfo(host.c_str(), port.c_str(), &wanted, &found) != 0)
        return false;
    const std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)> owner(found, &::freeaddrinfo);
    for (const addrinfo* one = found; one != nullptr; one = one->ai_next)
        if (connects(*one, goOn))
            return true;
    return false;
}

} // namespace orva
