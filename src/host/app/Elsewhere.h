#ifndef LINKHAND_HOST_ELSEWHERE_H
#define LINKHAND_HOST_ELSEWHERE_H

struct CommandLine;
class SingleInstance;

namespace Elsewhere
{

// Hands what there is to open to the program that runs with this data folder. True, and the exit code, if there is one:
// 0, or 3 with the reason on the error channel and, unless only a command line asks for such a thing, in a box. What
// only takes a picture stands by itself.
bool IsTaken(const CommandLine& line, SingleInstance& instance, int& iExitCode);

} // namespace Elsewhere

#endif // LINKHAND_HOST_ELSEWHERE_H
