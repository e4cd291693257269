// bin and undelete.

#include <algorithm>
#include <cstdio>
#include <vector>

#include "Commands.h"
#include "Sdk.h"
#include "Shown.h"
#include "orva/orva_care.h"

namespace pbctl
{

namespace
{

constexpr int memory = ORVA_MEMORY_LOCAL;

std::vector<ORVA_BIN_ENTRY> entriesOfBin()
{
    ORVA_BIN_ENTRY* entries = nullptr;
    int count = 0;
    check(ORVA_Care_GetBin(memory, &entries, &count), "reading the bin");
    std::vector<ORVA_BIN_ENTRY> all(entries, entries + count);
    ORVA_Care_BinRelease(memory, &entries);
    return all;
}

void printEntry(const ORVA_BIN_ENTRY& entry, const std::vector<Field>& fields)
{
    Handle record(ORVA_PBSrv_AddrRecord_Release);
    const long code = ORVA_Care_GetBinRecord(memory, entry.id, record.out());
    if (code == ORVA_E_NOT_FOUND)
        return; // brought back meanwhile
    check(code, "reading the bin");
    unsigned short* text = nullptr;
    check(ORVA_Care_GetBinGroups(memory, entry.id, &text), "reading the bin");
    std::string groups = takeUtf8(text);
    std::replace(groups.begin(), groups.end(), '\n', ';');
    std::printf("%d\t%s\t%s\t%d", entry.id, shownTime(entry.time).c_str(),
                entry.reason == ORVA_BIN_DELETED ? "deleted" : "changed", entry.record);
    for (const Field& field : fields) {
        check(ORVA_PBSrv_AddrRecord_GetValue(record.get(), field.key.c_str(), &text), "reading the bin");
        std::printf("\t%s", shown(takeUtf8(text)).c_str());
    }
    std::printf("\t%s\n", shown(groups).c_str());
}

} // namespace

int runBin(const Arguments& arguments)
{
    arguments.require(0, 0, {"empty"});
    if (arguments.has("empty")) {
        const std::size_t count = entriesOfBin().size();
        check(ORVA_Care_EmptyBin(memory, 0), "emptying the bin");
        std::printf("%zu entries removed for good\n", count);
        return done;
    }
    const std::vector<Field> fields = fieldsOf(memory);
    std::printf("Entry\tWhen\tWhat\tID");
    for (const Field& field : fields)
        std::printf("\t%s", field.key.c_str());
    std::printf("\tGroups\n");
    for (const ORVA_BIN_ENTRY& entry : entriesOfBin())
        printEntry(entry, fields);
    return done;
}

int runUndelete(const Arguments& arguments)
{
    arguments.require(1, 1000000, {});
    const std::vector<std::string> words(arguments.words().begin() + 1, arguments.words().end());
    std::vector<int> entries;
    entries.reserve(words.size());
    for (const std::string& word : words)
        entries.push_back(identifierIn(word));
    Transaction transaction(memory);
    int result = done;
    for (const int entry : entries) {
        int id = 0;
        const long code = ORVA_Care_Undelete(memory, entry, &id);
        if (code == ORVA_E_NOT_FOUND) {
            std::fprintf(stderr, "pbctl: the bin has no entry %d\n", entry);
            result = failed;
            continue;
        }
        check(code, "bringing back entry " + std::to_string(entry));
        transaction.wrote();
        std::printf("%d\n", id);
    }
    transaction.commit();
    return result;
}

} // namespace pbctl
