// list, add and groups.

#include <algorithm>
#include <cstdio>
#include <optional>

#include "Commands.h"
#include "FieldWord.h"
#include "Groups.h"
#include "Numbers.h"
#include "Records.h"
#include "Sdk.h"
#include "Shown.h"

namespace pbctl
{

int runList(const Arguments& arguments)
{
    arguments.require(0, 0, {"memory", "group", "json"});
    const int memory = arguments.memory();
    const std::vector<Field> fields = fieldsOf(memory);
    std::vector<int> wanted;
    const bool all = !arguments.has("group");
    if (!all) {
        if (memory != ORVA_MEMORY_LOCAL)
            throw UsageError("only the PC's phonebook has groups");
        wanted = Groups().at(arguments.value("group")).members;
        std::sort(wanted.begin(), wanted.end());
    }
    RecordPrinter printer(fields, arguments.has("json"));
    forEachRecord(memory, fields, [&](int id, const std::vector<std::u16string>& values) {
        if (all || std::binary_search(wanted.begin(), wanted.end(), id))
            printer.print(id, values);
    });
    printer.finish();
    tellDamage(memory);
    return done;
}

namespace
{

// Stores a contact in its groups: all of that, or nothing.
int addWithGroups(int memory, const std::vector<Field>& fields, const std::vector<std::u16string>& values,
                  const std::vector<std::string>& paths)
{
    for (const std::string& path : paths)
        requireGroupPath(path);
    std::optional<Groups> groups;
    if (!paths.empty())
        groups.emplace();
    int id = 0;
    try {
        // The groups first: their names may be refused.
        for (const std::string& path : paths)
            groups->provide(path);
        long failure = ORVA_OK;
        id = addRecord(memory, fields, values, &failure);
        check(failure, "adding the contact");
        if (groups)
            join(*groups, id, paths);
    } catch (...) {
        if (id != 0)
            ORVA_PBSrv_DelAddrRec(id, memory);
        if (groups)
            groups->removeMade();
        throw;
    }
    return id;
}

} // namespace

int runAdd(const Arguments& arguments)
{
    arguments.require(1, 100, {"memory", "group"});
    const int memory = arguments.memory();
    const std::vector<Field> fields = fieldsOf(memory);
    std::vector<std::u16string> values(fields.size());
    for (auto given = arguments.words().begin() + 1; given != arguments.words().end(); ++given) {
        const std::string word = textIn(*given);
        const FieldWord assigned(word, fields);
        if (!assigned.hasField())
            refuseWord(word, fields);
        values[assigned.field] = toSdk(assigned.value);
    }
    if (arguments.has("group") && memory != ORVA_MEMORY_LOCAL)
        throw UsageError("only the PC's phonebook has groups");
    const std::vector<std::size_t> refused = cleanNumbers(memory, fields, values);
    if (!refused.empty())
        throw SdkError("adding the contact: " + fields[refused.front()].key, ORVA_E_NUMBER);
    requireEmails(fields, values);
    std::printf("%d\n", addWithGroups(memory, fields, values, arguments.values("group")));
    return done;
}

int runGroups(const Arguments& arguments)
{
    arguments.require(0, 0, {"memory"});
    if (arguments.memory() != ORVA_MEMORY_LOCAL)
        throw UsageError("only the PC's phonebook has groups");
    const Groups groups;
    std::vector<const Group*> sorted;
    for (const Group& group : groups.all())
        sorted.push_back(&group);
    std::sort(sorted.begin(), sorted.end(), [](const Group* a, const Group* b) { return a->path < b->path; });
    std::printf("ID\tContacts\tGroup\n");
    for (const Group* group : sorted)
        std::printf("%d\t%zu\t%s\n", group->id, group->members.size(), shown(group->path).c_str());
    return done;
}

} // namespace pbctl
