#include "base/Program.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

namespace orva
{

namespace
{

constexpr std::size_t saidLast = 2000;
constexpr int betweenLooks = 100;  // milliseconds
constexpr int looksUntilKill = 50; // after a program was asked to end

// The program's end of a socket stands for its three files: what is written into ours is its input.
pid_t start(const std::vector<std::string>& words, int end)
{
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    for (const int file : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        ::posix_spawn_file_actions_adddup2(&actions, end, file);
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (const std::string& word : words)
        argv.push_back(const_cast<char*>(word.c_str()));
    argv.push_back(nullptr);
    pid_t child = -1;
    const int failed = ::posix_spawnp(&child, argv[0], &actions, nullptr, argv.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    return failed == 0 ? child : -1;
}

// Reads until the program and all that it has started have closed their output; false if it is not to go on.
bool readAll(int end, const GoOn& goOn, std::string& output)
{
    char piece[4096];
    for (;;) {
        pollfd ready = {end, POLLIN, 0};
        const int found = ::poll(&ready, 1, betweenLooks);
        if (goOn && !goOn())
            return false;
        if (found <= 0)
            continue;
        const ssize_t got = ::recv(end, piece, sizeof piece, 0);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return true;
        output.append(piece, static_cast<std::size_t>(got));
        if (output.size() > saidLast)
            output.erase(0, output.size() - saidLast);
    }
}

int waitFor(pid_t child)
{
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 127;
}

void end(pid_t child)
{
    ::kill(child, SIGTERM);
    for (int look = 0; look < looksUntilKill; ++look) {
        int status = 0;
        if (::waitpid(child, &status, WNOHANG) == child)
            return;
        ::poll(nullptr, 0, betweenLooks);
    }
    ::kill(child, SIGKILL);
    waitFor(child);
}

} // namespace

ProgramResult runProgram(const std::vector<std::string>& words, const GoOn& goOn, const std::string& input)
{
    ProgramResult result;
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return result;
    const pid_t child = start(words, ends[1]);
    ::close(ends[1]);
    if (child > 0) {
        result.ran = true;
        // Small, so that it fits whether it is read or not.
        ::send(ends[0], input.data(), input.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        ::shutdown(ends[0], SHUT_WR);
        if (readAll(ends[0], goOn, result.output))
            result.code = waitFor(child);
        else
            end(child);
    }
    ::close(ends[0]);
    return result;
}

} // namespace orva
