// export.

#include <cstdio>

#include "Commands.h"
#include "Groups.h"
#include "Sdk.h"

namespace pbctl
{

int runExport(const Arguments& arguments)
{
    arguments.require(1, 1, {"memory", "group"});
    const int memory = arguments.memory();
    const std::string file = arguments.words()[1];
    std::vector<int> ids;
    if (arguments.has("group")) {
        if (memory != ORVA_MEMORY_LOCAL)
            throw UsageError("only the PC's phonebook has groups");
        ids = Groups().at(arguments.value("group")).members;
    } else {
        forEachRecord(memory, {}, [&ids](int id, const std::vector<std::u16string>&) { ids.push_back(id); });
    }
    check(ORVA_PBSrv_ExportToFile(units(toSdk(file)), ids.data(), static_cast<int>(ids.size()), memory),
          "writing " + file);
    std::printf("%zu contacts written to %s\n", ids.size(), file.c_str());
    return done;
}

} // namespace pbctl
