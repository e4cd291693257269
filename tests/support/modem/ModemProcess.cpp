#include "support/modem/ModemProcess.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <sys/wait.h>

namespace modemsim
{

static std::vector<std::string> command(const std::vector<std::string>& options)
{
    std::vector<std::string> all = {MODEMSIM_PROGRAM};
    all.insert(all.end(), options.begin(), options.end());
    return all;
}

ModemProcess::ModemProcess(const std::vector<std::string>& options) : m_child(command(options))
{
    for (std::string line; m_child.readLine(line) && line != ".";)
        m_ports.push_back(line.substr(line.rfind(' ') + 1));
    if (m_ports.empty())
        throw std::runtime_error("modemsim does not start");
}

std::string ModemProcess::tell(const std::string& order)
{
    m_child.write(order + '\n');
    std::string answer;
    for (std::string line; m_child.readLine(line);) {
        if (line == ".") {
            if (answer.compare(0, 2, "? ") == 0)
                throw std::runtime_error(answer);
            return answer;
        }
        answer += line + '\n';
    }
    throw std::runtime_error("modemsim does not answer: " + order);
}

void ModemProcess::kill()
{
    m_child.end(SIGKILL);
}

void ModemProcess::freeze()
{
    ::kill(m_child.pid(), SIGSTOP);
    // The signal is on its way; until it has come the process goes on answering.
    int status = 0;
    while (::waitpid(m_child.pid(), &status, WUNTRACED) == -1 && errno == EINTR) {
    }
}

void ModemProcess::thaw()
{
    ::kill(m_child.pid(), SIGCONT);
}

} // namespace modemsim
