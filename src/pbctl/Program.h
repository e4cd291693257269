#ifndef PBCTL_PROGRAM_H
#define PBCTL_PROGRAM_H

#include <string>
#include <vector>

namespace pbctl
{

namespace Program
{

struct Result {
    int code = 127;     // the exit code; 127 if it cannot be run, or was killed
    std::string output; // what it said last, of both outputs
};

} // namespace Program

// Runs a program of PATH with nothing to read, and waits for it.
Program::Result runProgram(const std::vector<std::string>& words);

} // namespace pbctl

#endif // PBCTL_PROGRAM_H
