// export.

#include <algorithm>
#include <cstdio>
#include <map>
#include <utility>

#include "CardFiles.h"
#include "Commands.h"
#include "Groups.h"
#include "Sdk.h"
#include "Spool.h"
#include "base/Failure.h"
#include "csv/Writer.h"

namespace pbctl
{

namespace
{

// Writes contacts of the PC's phonebook as the library does, with their groups in a last column.
void exportWithGroups(const std::string& file, std::vector<int> ids)
{
    const std::vector<Field> fields = fieldsOf(ORVA_MEMORY_LOCAL);
    std::map<int, std::vector<std::string>> groups = pathsByRecord();
    std::sort(ids.begin(), ids.end());
    try {
        orva::Writer writer(file);
        for (const Field& field : fields)
            writer.column(std::string_view(field.key));
        writer.column(std::string_view("Groups"));
        writer.endRow();
        forEachRecord(ORVA_MEMORY_LOCAL, fields, [&](int id, const std::vector<std::u16string>& values) {
            if (!std::binary_search(ids.begin(), ids.end(), id))
                return;
            for (const std::u16string& value : values)
                writer.column(value);
            writer.column(std::string_view(joinGroups(groups[id])));
            writer.endRow();
        });
        writer.commit();
    } catch (const orva::Failure& failure) {
        throw SdkError("writing " + file, failure.code());
    }
}

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
    if (cards)
        exportCards(file, ids);
    else if (memory == ORVA_MEMORY_LOCAL)
        exportWithGroups(file, std::move(ids));
    else
        check(ORVA_PBSrv_ExportToFile(units(toSdk(file)), ids.data(), static_cast<int>(ids.size()), memory),
              "writing " + file);
    if (spool.isStandard())
        spool.send();
    std::fprintf(spool.isStandard() ? stderr : stdout, "%zu contacts written to %s\n", count, spool.name().c_str());
    tellDamage(memory);
    return done;
}

} // namespace pbctl
