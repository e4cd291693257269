#ifndef SDK_BASE_PROGRAM_H
#define SDK_BASE_PROGRAM_H

#include <functional>
#include <string>
#include <vector>

namespace orva
{

struct ProgramResult {
    int code = 127;     // the exit code; 127 if it cannot be run, or was killed
    bool ran = false;   // false if there is no such program
    std::string output; // what it said last, of both outputs
};

// Asked several times a second: false ends what is under way.
using GoOn = std::function<bool()>;

// Runs a program of PATH and waits for it, with `input` to read. Where it is not to go on it is asked to end.
ProgramResult runProgram(const std::vector<std::string>& words, const GoOn& goOn = GoOn(),
                         const std::string& input = std::string());

} // namespace orva

#endif // SDK_BASE_PROGRAM_H
