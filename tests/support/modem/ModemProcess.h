#ifndef TESTS_SUPPORT_MODEM_MODEMPROCESS_H
#define TESTS_SUPPORT_MODEM_MODEMPROCESS_H

#include "support/modem/Program.h"

namespace modemsim
{

// The simulated modem in a process of its own, as the program modemsim: for tests that stop it, kill it, or must not
// share their threads with it. Link the target modemprocess.
class ModemProcess
{
public:
    // The program's options; one pseudo terminal without any. Throws std::runtime_error if it does not start.
    explicit ModemProcess(const std::vector<std::string>& options = {});

    const std::string& portPath(size_t port) const { return m_ports.at(port); }
    // An order, as modemsim's "help" lists them; its answer, a line each. Throws std::runtime_error if it is refused.
    std::string tell(const std::string& order);
    void kill();   // as if the plug were pulled and the modem lost
    void freeze(); // it goes on no more until it is thawed; its ports stay
    void thaw();

private:
    Child m_child;
    std::vector<std::string> m_ports;
};

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_MODEMPROCESS_H
