// merge.

#include <algorithm>
#include <cstdio>
#include <set>
#include <vector>

#include "Commands.h"
#include "Records.h"
#include "Sdk.h"
#include "orva/orva_care.h"

namespace pbctl
{

namespace
{

constexpr int memory = ORVA_MEMORY_LOCAL;

using Entries = std::vector<ORVA_DUPLICATE>;

Entries samePeople()
{
    ORVA_DUPLICATE* found = nullptr;
    int count = 0;
    check(ORVA_Care_GetDuplicates(memory, &found, &count), "looking for duplicates");
    Entries entries;
    std::copy_if(found, found + count, std::back_inserter(entries),
                 [](const ORVA_DUPLICATE& entry) { return entry.kind == ORVA_DUPLICATE_SAME; });
    ORVA_Care_DuplicatesRelease(memory, &found);
    return entries;
}

Entries namedPeople(const Arguments& arguments)
{
    std::set<int> seen;
    Entries entries;
    const std::vector<Field> fields = fieldsOf(memory);
    for (auto word = arguments.words().begin() + 1; word != arguments.words().end(); ++word) {
        const int id = identifierIn(*word);
        if (!seen.insert(id).second)
            throw UsageError("contact " + *word + " is named twice");
        readContact(memory, fields, id); // or it is not there
        entries.push_back({1, ORVA_DUPLICATE_SAME, id});
    }
    return entries;
}

// Prints what would become of a set.
void preview(const std::vector<int>& ids, const std::vector<Field>& fields)
{
    Handle record(ORVA_PBSrv_AddrRecord_Release);
    unsigned short* text = nullptr;
    check(ORVA_Care_PreviewMerge(memory, ids.data(), static_cast<int>(ids.size()), record.out(), &text), "merging");
    const std::string groups = takeUtf8(text);
    std::vector<std::string> paths;
    for (std::size_t at = 0; at < groups.size();) {
        const std::size_t end = std::min(groups.find('\n', at), groups.size());
        paths.push_back(groups.substr(at, end - at));
        at = end + 1;
    }
    printContact(contactOf(record.get(), fields, ids.front()), fields, paths);
}

// Tells of each set, whose contacts stand one behind the other; how many sets there are.
int tell(const Entries& entries, bool dry)
{
    const std::vector<Field> fields = fieldsOf(memory);
    int sets = 0;
    std::printf("%s", dry ? "" : "ID\tMerged into it\n");
    for (std::size_t begin = 0; begin < entries.size(); ++sets) {
        std::vector<int> ids;
        std::string others;
        std::size_t end = begin;
        for (; end < entries.size() && entries[end].set == entries[begin].set; ++end) {
            ids.push_back(entries[end].record);
            if (end > begin)
                others += (others.empty() ? "" : ",") + std::to_string(entries[end].record);
        }
        if (dry) {
            preview(ids, fields);
            std::printf("Merged\t%s\n\n", others.c_str());
        } else {
            std::printf("%d\t%s\n", ids.front(), others.c_str());
        }
        begin = end;
    }
    return sets;
}

} // namespace

int runMerge(const Arguments& arguments)
{
    const bool all = arguments.has("all");
    arguments.require(all ? 0 : 2, all ? 0 : 1000000, {"all", "dry-run"});
    const bool dry = arguments.has("dry-run");
    const Entries entries = all ? samePeople() : namedPeople(arguments);
    if (!dry)
        check(ORVA_Care_Merge(memory, entries.data(), static_cast<int>(entries.size())), "merging");
    const int sets = tell(entries, dry);
    std::printf("%zu contacts %s %d%s\n", entries.size(), dry ? "would become" : "have become", sets,
                dry || sets == 0 ? "" : "; what they said before is in the bin");
    return done;
}

} // namespace pbctl
