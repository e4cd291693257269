#include "support/modem/Program.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

extern char** environ;

namespace modemsim
{

using Clock = std::chrono::steady_clock;

namespace
{

std::vector<std::string> merged(const Environment& environment)
{
    std::vector<std::string> all;
    for (char** at = environ; *at != nullptr; ++at) {
        const std::string variable = *at;
        if (environment.count(variable.substr(0, variable.find('='))) == 0)
            all.push_back(variable);
    }
    for (const auto& [name, value] : environment) {
        if (!value.empty())
            all.push_back(name + '=' + value);
    }
    return all;
}

std::vector<char*> pointers(std::vector<std::string>& texts)
{
    std::vector<char*> all;
    for (std::string& text : texts)
        all.push_back(text.data());
    all.push_back(nullptr);
    return all;
}

int shellStatus(int status)
{
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

int millisecondsUntil(Clock::time_point end)
{
    return static_cast<int>(std::max<long>(0, std::chrono::duration_cast<Milliseconds>(end - Clock::now()).count()));
}

} // namespace

Child::Child(const std::vector<std::string>& command, const Environment& environment, const std::string& outputFile)
{
    // Everything that allocates comes before the fork: other threads may hold the allocator then.
    std::vector<std::string> arguments = command;
    std::vector<std::string> variables = merged(environment);
    const std::vector<char*> argv = pointers(arguments);
    const std::vector<char*> envp = pointers(variables);
    int in[2];
    int out[2];
    if (::pipe2(in, O_CLOEXEC) != 0 || ::pipe2(out, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    const bool inherited = outputFile == "-";
    int file = -1;
    if (!inherited && !outputFile.empty())
        file = ::open(outputFile.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    m_pid = ::fork();
    if (m_pid == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (!inherited) {
            ::dup2(in[0], 0);
            ::dup2(file >= 0 ? file : out[1], 1);
            ::dup2(file >= 0 ? file : out[1], 2);
        }
        ::signal(SIGPIPE, SIG_DFL);
        sigset_t none;
        ::sigemptyset(&none);
        ::sigprocmask(SIG_SETMASK, &none, nullptr);
        ::execvpe(argv[0], argv.data(), envp.data());
        ::_exit(127);
    }
    ::close(in[0]);
    ::close(out[1]);
    if (file >= 0)
        ::close(file);
    m_in = in[1];
    m_out = out[0];
}

Child::~Child()
{
    end(SIGKILL);
    closeInput();
    ::close(m_out);
}

bool Child::running()
{
    return m_pid > 0 && wait(Milliseconds(0)) < 0;
}

void Child::write(const std::string& text) const
{
    for (size_t at = 0; at < text.size();) {
        const ssize_t count = ::write(m_in, text.data() + at, text.size() - at);
        if (count <= 0)
            return;
        at += static_cast<size_t>(count);
    }
}

void Child::closeInput()
{
    if (m_in >= 0)
        ::close(m_in);
    m_in = -1;
}

bool Child::readLine(std::string& line, Milliseconds time)
{
    const Clock::time_point end = Clock::now() + time;
    while (true) {
        const size_t mark = m_pending.find('\n');
        if (mark != std::string::npos) {
            line = m_pending.substr(0, mark);
            m_pending.erase(0, mark + 1);
            return true;
        }
        pollfd watched = {m_out, POLLIN, 0};
        if (::poll(&watched, 1, millisecondsUntil(end)) <= 0)
            return false;
        char buffer[4096];
        const ssize_t count = ::read(m_out, buffer, sizeof buffer);
        if (count <= 0)
            return false;
        m_pending.append(buffer, static_cast<size_t>(count));
    }
}

// Children end by themselves at an unknown moment, and other libraries may want their SIGCHLD: a short pause between
// two looks is what is left.
int Child::wait(Milliseconds time)
{
    const Clock::time_point end = Clock::now() + time;
    while (m_pid > 0) {
        int status = 0;
        if (::waitpid(m_pid, &status, WNOHANG) == m_pid) {
            m_pid = -1;
            m_status = shellStatus(status);
            break;
        }
        if (Clock::now() >= end)
            return -1;
        std::this_thread::sleep_for(Milliseconds(5));
    }
    return m_status;
}

void Child::end(int signal, Milliseconds time)
{
    if (m_pid <= 0)
        return;
    ::kill(m_pid, signal);
    if (wait(time) < 0 && m_pid > 0) {
        ::kill(m_pid, SIGKILL);
        wait(Milliseconds(60000));
    }
}

Outcome runProgram(const std::vector<std::string>& command, const Environment& environment, const std::string& input,
                   Milliseconds time)
{
    const Clock::time_point end = Clock::now() + time;
    Outcome outcome;
    Child child(command, environment);
    child.write(input);
    child.closeInput();
    for (std::string line; child.readLine(line, Milliseconds(millisecondsUntil(end)));)
        outcome.output += line + '\n';
    outcome.status = child.wait(Milliseconds(millisecondsUntil(end)));
    return outcome;
}

} // namespace modemsim
