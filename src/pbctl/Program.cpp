#include "Program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

namespace pbctl
{

namespace
{

constexpr std::size_t saidLast = 2000;

} // namespace

Program::Result runProgram(const std::vector<std::string>& words)
{
    Program::Result result;
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return result;
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (const std::string& word : words)
        argv.push_back(const_cast<char*>(word.c_str()));
    argv.push_back(nullptr);
    pid_t child = -1;
    const int failed = ::posix_spawnp(&child, argv[0], &actions, nullptr, argv.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
    char piece[4096];
    for (ssize_t got = 0; failed == 0 && (got = ::read(ends[0], piece, sizeof piece)) != 0;) {
        if (got < 0 && errno != EINTR)
            break;
        result.output.append(piece, got > 0 ? static_cast<std::size_t>(got) : 0);
        if (result.output.size() > saidLast)
            result.output.erase(0, result.output.size() - saidLast);
    }
    ::close(ends[0]);
    int status = 0;
    if (failed != 0)
        return result;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    result.code = WIFEXITED(status) ? WEXITSTATUS(status) : 127;
    return result;
}

} // namespace pbctl
