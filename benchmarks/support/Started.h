#ifndef BENCHMARKS_SUPPORT_STARTED_H
#define BENCHMARKS_SUPPORT_STARTED_H

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "benchmarks/support/Bench.h"

// Programs that a benchmark starts, and the pipe at which it waits for what they say of themselves.
namespace bench
{

[[noreturn]] inline void fail(const std::string& what)
{
    std::fprintf(stderr, "failed: %s\n", what.c_str());
    std::exit(2);
}

// The folder of the build that this program is of.
inline std::filesystem::path buildFolder()
{
    return std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path();
}

// A pipe with a name. A program writes a line to it when it has come so far.
class Marks
{
public:
    explicit Marks(const std::string& path) : m_path(path)
    {
        if (mkfifo(path.c_str(), 0600) != 0)
            fail("mkfifo");
        m_pipe = open(path.c_str(), O_RDWR | O_CLOEXEC);
    }
    ~Marks() { close(m_pipe); }
    Marks(const Marks&) = delete;
    Marks& operator=(const Marks&) = delete;

    const std::string& path() const { return m_path; }

    void wait(const std::string& mark)
    {
        while (m_read.find(mark + "\n") == std::string::npos) {
            const int patienceMs = 60000;
            pollfd readable = {m_pipe, POLLIN, 0};
            char text[64];
            const ssize_t count = poll(&readable, 1, patienceMs) == 1 ? read(m_pipe, text, sizeof text) : 0;
            if (count <= 0)
                fail("a started program does not say \"" + mark + "\"");
            m_read.append(text, static_cast<std::size_t>(count));
        }
        m_read.clear();
    }

private:
    std::string m_path;
    std::string m_read;
    int m_pipe = -1;
};

// A running program; ended with its object.
class Started
{
public:
    explicit Started(const std::vector<std::string>& command) : m_name(command.front())
    {
        std::vector<char*> arguments;
        for (const std::string& argument : command)
            arguments.push_back(const_cast<char*>(argument.c_str()));
        arguments.push_back(nullptr);
        m_child = fork();
        if (m_child < 0)
            fail("fork");
        if (m_child == 0) {
            execv(arguments.front(), arguments.data());
            _exit(127);
        }
    }
    ~Started()
    {
        int status = 0;
        kill(m_child, SIGTERM);
        if (waitpid(m_child, &status, 0) != m_child || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
            fail(m_name + " did not end well");
    }
    Started(const Started&) = delete;
    Started& operator=(const Started&) = delete;

    // Seconds on a processor so far, of all its threads.
    double processor() const
    {
        clockid_t clock = 0;
        if (clock_getcpuclockid(m_child, &clock) != 0)
            fail("the clock of " + m_name);
        return seconds(clock);
    }

    // What it holds in memory in MB: pages that others share count by their part.
    double proportionalSize() const
    {
        const std::string path = "/proc/" + std::to_string(m_child) + "/smaps_rollup";
        std::FILE* const file = std::fopen(path.c_str(), "r");
        char line[256];
        long kilobytes = 0;
        while (file != nullptr && kilobytes == 0 && std::fgets(line, sizeof line, file) != nullptr)
            std::sscanf(line, "Pss: %ld kB", &kilobytes);
        if (file == nullptr || kilobytes == 0)
            fail("cannot read " + path);
        std::fclose(file);
        return static_cast<double>(kilobytes) / 1024;
    }

private:
    std::string m_name;
    pid_t m_child = -1;
};

} // namespace bench

#endif // BENCHMARKS_SUPPORT_STARTED_H
