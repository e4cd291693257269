#ifndef TESTS_SUPPORT_MODEM_ENDPOINT_H
#define TESTS_SUPPORT_MODEM_ENDPOINT_H

#include "support/modem/Plan.h"

#include <memory>
#include <poll.h>

namespace modemsim
{

// The modem's end of one port: bytes in and out, and whether a client has it open.
class Endpoint
{
public:
    virtual ~Endpoint() = default;
    static std::unique_ptr<Endpoint> make(const PortPlan& plan);

    virtual void open() = 0; // throws std::runtime_error
    virtual void close() = 0;
    virtual bool isOpen() const = 0;
    virtual std::string address() const = 0;
    virtual bool hasClient() const = 0;
    virtual void watch(std::vector<pollfd>& into, bool forWriting) const = 0;
    // Looks for clients and reads what there is. True if a client has gone or changed: what waits for it is lost.
    virtual bool receive(std::string& bytes) = 0;
    // How many bytes were taken; 0 if there is no room now.
    virtual size_t send(const char* bytes, size_t count) = 0;
};

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_ENDPOINT_H
