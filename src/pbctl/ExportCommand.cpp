// export.

#include <cstdio>

#include "CardFiles.h"
#include "Commands.h"
#include "Groups.h"
#include "Sdk.h"

namespace pbctl
{

int runExport(const Arguments& arguments)
{
    arguments.require(1, 1, {"memory", "group", "format"});
    const int memory = arguments.memory();
    const std::string file = arguments.words()[1];
    const bool cards = isCardFile(arguments, file);
    if (cards && memory != ORVA_MEMORY_LOCAL)
        throw UsageError("vCards are made of the PC's phonebook only");
    std::vector<int> ids;
    if (arguments.has("group")) {
        if (memory != ORVA_MEMORY_LOCAL)
            throw UsageError("only the PC's phonebook has groups");
        ids = Groups().at(arguments.value("group")).members;
    } else {
        forEachRecord(memory, {}, [&ids](int id, const std::vector<std::u16string>&) { ids.push_back(id); });
    }
    if (cards)
        exportCards(file, ids);
    else
        check(ORVA_PBSrv_ExportToFile(units(toSdk(file)), ids.data(), static_cast<int>(ids.size()), memory),
              "writing " + file);
    std::printf("%zu contacts written to %s\n", ids.size(), file.c_str());
    return done;
}

} // namespace pbctl
