#ifndef TESTS_SDK_CORE_CHILD_H
#define TESTS_SDK_CORE_CHILD_H

// A second process that runs this same test program with other arguments, and whose output is read.

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <string>
#include <vector>

class Child
{
public:
    explicit Child(const std::vector<std::string>& arguments)
    {
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) != 0)
            return;
        std::vector<char*> argv{const_cast<char*>("/proc/self/exe")};
        for (const std::string& argument : arguments)
            argv.push_back(const_cast<char*>(argument.c_str()));
        argv.push_back(nullptr);
        m_pid = ::fork();
        if (m_pid == 0) {
            ::dup2(ends[1], STDOUT_FILENO);
            ::execv("/proc/self/exe", argv.data());
            ::_exit(127);
        }
        ::close(ends[1]);
        m_output = ends[0];
    }
    ~Child()
    {
        if (m_pid > 0) {
            kill();
            wait();
        }
        if (m_output >= 0)
            ::close(m_output);
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    void kill() { ::kill(m_pid, SIGKILL); }

    // The exit status, or the signal's number below 0.
    int wait()
    {
        int status = 0;
        while (::waitpid(m_pid, &status, 0) < 0 && errno == EINTR) {
        }
        m_pid = -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

    // Takes what the child writes for a time, so that it never waits for its reader.
    void readFor(std::chrono::microseconds time)
    {
        const auto until = std::chrono::steady_clock::now() + time;
        for (;;) {
            const auto left =
                std::chrono::duration_cast<std::chrono::microseconds>(until - std::chrono::steady_clock::now());
            if (left.count() <= 0)
                return;
            pollfd ready{m_output, POLLIN, 0};
            timespec wait{left.count() / 1000000, (left.count() % 1000000) * 1000};
            if (::ppoll(&ready, 1, &wait, nullptr) <= 0 || !readSome())
                return;
        }
    }

    // Takes the rest, to the child's end.
    const std::string& readAll()
    {
        while (readSome()) {
        }
        return m_text;
    }

    // Reads until the child has written a line; false if it ends before.
    bool readLine(std::string& line)
    {
        for (;;) {
            const std::size_t end = m_text.find('\n', m_taken);
            if (end != std::string::npos) {
                line = m_text.substr(m_taken, end - m_taken);
                m_taken = end + 1;
                return true;
            }
            if (!readSome())
                return false;
        }
    }

    const std::string& text() const { return m_text; }

private:
    bool readSome()
    {
        char buffer[4096];
        ssize_t got = 0;
        do
            got = ::read(m_output, buffer, sizeof buffer);
        while (got < 0 && errno == EINTR);
        if (got <= 0)
            return false;
        m_text.append(buffer, static_cast<std::size_t>(got));
        return true;
    }

    pid_t m_pid = -1;
    int m_output = -1;
    std::string m_text;
    std::size_t m_taken = 0;
};

// What a child says to its parent: one write a line, so that a kill never cuts one.
inline void say(const std::string& line)
{
    const std::string text = line + "\n";
    if (::write(STDOUT_FILENO, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
        ::_exit(3);
}

#endif // TESTS_SDK_CORE_CHILD_H
