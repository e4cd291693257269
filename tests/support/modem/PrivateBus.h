#ifndef TESTS_SUPPORT_MODEM_PRIVATEBUS_H
#define TESTS_SUPPORT_MODEM_PRIVATEBUS_H

#include "support/modem/Program.h"

#include <memory>

namespace modemsim
{

// A D-Bus of a test's own, in a folder of its own that goes with it. It starts nothing by itself: what is on it, the
// test has put there.
class PrivateBus
{
public:
    // Throws std::runtime_error.
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    const std::string& folder() const { return m_folder; }
    pid_t daemon() const { return m_daemon->pid(); }
    // Variables under which a program takes it for both the session and the system bus.
    Environment environment() const;

private:
    std::string m_folder;
    std::string m_address;
    std::unique_ptr<Child> m_daemon;
};

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_PRIVATEBUS_H
