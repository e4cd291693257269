// check, backup and restore.

#include <cstdio>

#include "Commands.h"
#include "Sdk.h"
#include "orva/orva_store.h"

namespace pbctl
{

int runCheck(const Arguments& arguments)
{
    arguments.require(0, 0, {"memory"});
    const int memory = arguments.memory();
    int findings = 0;
    check(ORVA_Store_Check(memory, &findings), "checking the " + memoryName(memory));
    if (findings == 0)
        std::printf("the %s is sound\n", memoryName(memory).c_str());
    else
        std::printf("%d findings in the %s; the log says which\n", findings, memoryName(memory).c_str());
    return findings == 0 ? done : failed;
}

int runBackup(const Arguments& arguments)
{
    arguments.require(1, 1, {"memory"});
    const int memory = arguments.memory();
    const std::string file = arguments.words()[1];
    check(ORVA_Store_Backup(memory, units(toSdk(file))), "writing " + file);
    std::printf("the %s is backed up in %s\n", memoryName(memory).c_str(), file.c_str());
    return done;
}

int runRestore(const Arguments& arguments)
{
    arguments.require(1, 1, {"memory"});
    const int memory = arguments.memory();
    const std::string file = arguments.words()[1];
    check(ORVA_Store_Restore(memory, units(toSdk(file))), "restoring from " + file);
    std::printf("the %s is as it was in %s\n", memoryName(memory).c_str(), file.c_str());
    return done;
}

} // namespace pbctl
