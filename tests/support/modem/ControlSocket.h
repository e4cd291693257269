#ifndef TESTS_SUPPORT_MODEM_CONTROLSOCKET_H
#define TESTS_SUPPORT_MODEM_CONTROLSOCKET_H

#include "support/modem/Control.h"

#include <thread>

namespace modemsim
{

// Takes orders at an abstract socket, on a thread of its own, one client after the other.
class ControlSocket
{
public:
    // Throws std::runtime_error if the name is taken.
    ControlSocket(const std::string& name, const Control& control);
    ~ControlSocket();
    ControlSocket(const ControlSocket&) = delete;
    ControlSocket& operator=(const ControlSocket&) = delete;

    // Sends one order to such a socket of any process; the answer without its closing line. Throws if nobody is there.
    static std::string tell(const std::string& name, const std::string& order);

private:
    void run();

    const Control& m_control;
    int m_listener;
    int m_stop;
    std::thread m_thread;
};

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_CONTROLSOCKET_H
