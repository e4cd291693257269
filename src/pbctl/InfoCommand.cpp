// info.

#include <cstdio>

#include "Commands.h"
#include "Groups.h"
#include "Sdk.h"
#include "Shown.h"

namespace pbctl
{

namespace
{

// False for a memory that cannot be read, other than one that is not there.
bool printMemory(int memory)
{
    std::printf("%s\n", memoryName(memory).c_str());
    int size = 0;
    int capacity = 0;
    long code = ORVA_PBSrv_GetSize(memory, &size);
    if (code == ORVA_OK)
        code = ORVA_PBSrv_GetCapacity(memory, &capacity);
    if (code != ORVA_OK) {
        std::printf("  %s\n", explain(code).c_str());
        return code == ORVA_E_ABSENT;
    }
    std::printf("  contacts  %d of %d\n", size, capacity);
    if (memory == ORVA_MEMORY_LOCAL)
        std::printf("  groups    %zu\n", Groups().all().size());
    std::printf("  fields   ");
    for (const Field& field : fieldsOf(memory))
        std::printf(" %s (%d)", field.key.c_str(), field.maxLength);
    std::printf("\n");
    return true;
}

// The same as an object of JSON.
bool printMemoryJson(int memory)
{
    int size = 0;
    int capacity = 0;
    long code = ORVA_PBSrv_GetSize(memory, &size);
    if (code == ORVA_OK)
        code = ORVA_PBSrv_GetCapacity(memory, &capacity);
    const char* const name = memory == ORVA_MEMORY_CARD ? "card" : memory == ORVA_MEMORY_DEVICE ? "device" : "local";
    std::printf("{\"memory\": \"%s\"", name);
    if (code != ORVA_OK) {
        std::printf(", \"problem\": %s}", quoted(explain(code)).c_str());
        return code == ORVA_E_ABSENT;
    }
    std::printf(", \"contacts\": %d, \"capacity\": %d", size, capacity);
    if (memory == ORVA_MEMORY_LOCAL)
        std::printf(", \"groups\": %zu", Groups().all().size());
    std::printf(", \"fields\": {");
    const char* between = "";
    for (const Field& field : fieldsOf(memory)) {
        std::printf("%s%s: %d", between, quoted(field.key).c_str(), field.maxLength);
        between = ", ";
    }
    std::printf("}}");
    return true;
}

int infoJson(const Arguments& arguments)
{
    std::vector<int> memories = {ORVA_MEMORY_LOCAL, ORVA_MEMORY_CARD, ORVA_MEMORY_DEVICE};
    if (arguments.has("memory"))
        memories = {arguments.memory()};
    bool readable = true;
    const char* between = "[";
    for (const int memory : memories) {
        awaitMemory(memory);
        std::printf("%s", between);
        readable = printMemoryJson(memory) && readable;
        tellDamage(memory);
        between = ",\n";
    }
    std::printf("]\n");
    return readable ? done : failed;
}

} // namespace

int runInfo(const Arguments& arguments)
{
    arguments.require(0, 0, {"memory", "json"});
    if (arguments.has("json"))
        return infoJson(arguments);
    if (arguments.has("memory")) {
        const bool printed = printMemory(arguments.memory());
        tellDamage(arguments.memory());
        return printed ? done : failed;
    }
    bool readable = true;
    for (const int memory : {ORVA_MEMORY_LOCAL, ORVA_MEMORY_CARD, ORVA_MEMORY_DEVICE}) {
        awaitMemory(memory);
        readable = printMemory(memory) && readable;
        tellDamage(memory);
    }
    std::printf("import from\n");
    const char* const applications[][2] = {{"evolution", "Outlook"}, {"thunderbird", "Outlook Express"}};
    for (const auto& application : applications)
        std::printf("  %-12s%s\n", application[0],
                    ORVA_PBSrv_IsOutlookInstalled(application[1]) == ORVA_OK ? "yes" : "not here");
    unsigned short* folder = nullptr;
    check(ORVA_GetLogDirectory(&folder), "asking for the log folder");
    std::printf("log files\n  %s\n", takeUtf8(folder).c_str());
    return readable ? done : failed;
}

} // namespace pbctl
