#ifndef SDK_SYNC_SERVERADDRESS_H
#define SDK_SYNC_SERVERADDRESS_H

#include <string>

#include "base/Program.h"

namespace orva
{

// Where a server is, by the URL of an address book.
struct ServerAddress {
    std::string host;
    std::string port;
    bool secure = false;

    // Takes a URL apart; false for one that is none of ours.
    bool read(const std::string& url);

    bool isLoopback() const;

    // Whether somebody answers there.
    bool isReachable(const GoOn& goOn) const;
};

} // namespace orva

#endif // SDK_SYNC_SERVERADDRESS_H
