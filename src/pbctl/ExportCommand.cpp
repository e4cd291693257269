// export.

#include <cstdio>

#include "CardFiles.h"
#include "Commands.h"
#include "Groups.h"
#include "Sdk.h"
#include "Spool.h"

namespace pbctl
{

int runExport(const Arguments& arguments)
{
    arguments.require(1, 1, {"memory", "group", "format"});
    const int memory = arguments.memory();
    const Spool spool(arguments.words()[1], Spool::Way::Out);
    const std::string& file = spool.path();
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
    if (spool.isStandard())
        spool.send();
    std::fprintf(spool.isStandard() ? stderr : stdout, "%zu contacts written to %s\n", ids.size(),
                 spool.name().c_str());
    tellDamage(memory);
    return done;
}

} // namespace pbctl
