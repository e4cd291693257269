// check, backup, backups and restore.

#include <cstdio>
#include <vector>

#include "Commands.h"
#include "Sdk.h"
#include "Shown.h"
#include "orva/orva_store.h"

namespace pbctl
{

namespace
{

// Says on `out` that a memory's file was damaged and replaced; false if it was not.
bool printDamage(int memory, bool once, std::FILE* out)
{
    ORVA_STORE_DAMAGE damage = {};
    if (ORVA_Store_GetDamage(memory, once ? 1 : 0, &damage) != ORVA_OK)
        return false;
    const std::string file = takeUtf8(damage.file);
    const std::string what = takeUtf8(damage.what);
    std::fprintf(out,
                 "%sthe file of the %s was damaged (%s) and was replaced on %s; %d contacts and %d groups came "
                 "through; the damaged file is kept as %s\n",
                 once ? "pbctl: " : "", memoryName(memory).c_str(), shown(what).c_str(), shownTime(damage.time).c_str(),
                 damage.records, damage.groups, shown(file).c_str());
    return true;
}

} // namespace

void tellDamage(int memory)
{
    printDamage(memory, true, stderr);
}

int runCheck(const Arguments& arguments)
{
    arguments.require(0, 0, {"memory"});
    const int memory = arguments.memory();
    int findings = 0;
    check(ORVA_Store_Check(memory, &findings), "checking the " + memoryName(memory));
    const bool replaced = printDamage(memory, false, stdout);
    if (findings > 0)
        std::printf("%d findings in the %s; the log says which\n", findings, memoryName(memory).c_str());
    else if (replaced)
        std::printf("the new file is sound; pbctl check says so alone once the damaged one is removed\n");
    else
        std::printf("the %s is sound\n", memoryName(memory).c_str());
    return findings == 0 && !replaced ? done : failed;
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

int runBackups(const Arguments& arguments)
{
    static const char* const reasons[] = {"daily",          "before a migration", "before a restore",
                                          "before a merge", "before an import",   "asked for"};
    arguments.require(0, 0, {"memory"});
    const int memory = arguments.memory();
    ORVA_STORE_BACKUP* found = nullptr;
    int count = 0;
    check(ORVA_Store_GetBackups(memory, &found, &count), "looking for backups");
    const std::vector<ORVA_STORE_BACKUP> backups(found, found + count);
    ORVA_Store_BackupsRelease(memory, &found);
    std::printf("Name\tWhen\tWhy\tContacts\n");
    for (const ORVA_STORE_BACKUP& backup : backups) {
        const std::u16string name(reinterpret_cast<const char16_t*>(backup.name));
        const std::string records = backup.records < 0 ? "unreadable" : std::to_string(backup.records);
        std::printf("%s\t%s\t%s\t%s\n", shown(toUtf8(name)).c_str(), shownTime(backup.time).c_str(),
                    reasons[backup.reason - 1], records.c_str());
    }
    return done;
}

int runRestore(const Arguments& arguments)
{
    const int memory = arguments.memory();
    if (arguments.has("from")) {
        arguments.require(0, 0, {"memory", "from"});
        const std::string name = arguments.value("from");
        check(ORVA_Store_RestoreBackup(memory, units(toSdk(name))), "restoring from " + name);
        std::printf("the %s is as it was in %s\n", memoryName(memory).c_str(), name.c_str());
        return done;
    }
    arguments.require(1, 1, {"memory"});
    const std::string file = arguments.words()[1];
    check(ORVA_Store_Restore(memory, units(toSdk(file))), "restoring from " + file);
    std::printf("the %s is as it was in %s\n", memoryName(memory).c_str(), file.c_str());
    return done;
}

} // namespace pbctl
