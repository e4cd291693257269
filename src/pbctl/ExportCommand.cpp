// export.

#include <algorithm>
#include <cstdio>

#include "Commands.h"
#include "Formats.h"
#include "Groups.h"
#include "Sdk.h"
#include "Spool.h"
#include "orva/orva_care.h"

namespace pbctl
{

namespace
{

constexpr int noneWanted = 0;

// The pattern that a dialog or a shell leaves standing where nobody wrote a name.
void refusePattern(const std::string& file)
{
    const std::size_t slash = file.rfind('/');
    if (file.find('*', slash == std::string::npos ? 0 : slash) != std::string::npos)
        throw UsageError("\"" + file + "\" is a pattern, not the name of a file");
}

} // namespace

int runExport(const Arguments& arguments)
{
    arguments.require(1, 1, {"memory", "group", "format"});
    const int memory = arguments.memory();
    refusePattern(arguments.words()[1]);
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
    const std::size_t count = ids.size();
    std::sort(ids.begin(), ids.end());
    // Without any identifier a list is none.
    const int* const wanted = ids.empty() ? &noneWanted : ids.data();
    check(ORVA_Care_Export(memory, units(toSdk(file)), cards ? ORVA_FORMAT_CARDS : ORVA_FORMAT_ROWS, wanted,
                           static_cast<int>(ids.size()), nullptr),
          "writing " + file);
    if (spool.isStandard())
        spool.send();
    std::fprintf(spool.isStandard() ? stderr : stdout, "%zu contacts written to %s\n", count, spool.name().c_str());
    tellDamage(memory);
    return done;
}

} // namespace pbctl
