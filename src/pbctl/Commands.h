#ifndef PBCTL_COMMANDS_H
#define PBCTL_COMMANDS_H

#include "Arguments.h"

namespace pbctl
{

// Exit codes.
constexpr int done = 0;
constexpr int failed = 1;
constexpr int misused = 2;
constexpr int partlyDone = 3; // some contacts did not come in

// One function a command; each gives the exit code, or throws UsageError or SdkError.
int runList(const Arguments& arguments);
int runAdd(const Arguments& arguments);
int runShow(const Arguments& arguments);
int runEdit(const Arguments& arguments);
int runDelete(const Arguments& arguments);
int runDuplicates(const Arguments& arguments);
int runMerge(const Arguments& arguments);
int runFind(const Arguments& arguments);
int runGroup(const Arguments& arguments);
int runGroups(const Arguments& arguments);
int runImport(const Arguments& arguments);
int runExport(const Arguments& arguments);
int runInfo(const Arguments& arguments);
int runBin(const Arguments& arguments);
int runUndelete(const Arguments& arguments);
int runCheck(const Arguments& arguments);
int runBackup(const Arguments& arguments);
int runBackups(const Arguments& arguments);
int runRestore(const Arguments& arguments);
int runRegion(const Arguments& arguments);
int runModem(const Arguments& arguments);
int runSync(const Arguments& arguments);

// Lets a modem read a card or device first. SdkError if that takes too long; what else is in the way tells the command.
void awaitMemory(int memory);

// Says, once for all programs, that the file of a memory was damaged and replaced.
void tellDamage(int memory);

} // namespace pbctl

#endif // PBCTL_COMMANDS_H
