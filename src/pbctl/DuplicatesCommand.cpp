// duplicates.

#include <cstdio>
#include <vector>

#include "Commands.h"
#include "Sdk.h"
#include "Shown.h"
#include "orva/orva_care.h"

namespace pbctl
{

int runDuplicates(const Arguments& arguments)
{
    arguments.require(0, 0, {"memory"});
    const int memory = arguments.memory();
    ORVA_DUPLICATE* entries = nullptr;
    int count = 0;
    check(ORVA_Care_GetDuplicates(memory, &entries, &count), "looking for duplicates");
    const std::vector<ORVA_DUPLICATE> all(entries, entries + count);
    ORVA_Care_DuplicatesRelease(memory, &entries);
    const std::vector<Field> fields = fieldsOf(memory);
    std::printf("Set\tWhat\tID");
    for (const Field& field : fields)
        std::printf("\t%s", field.key.c_str());
    std::printf("\n");
    for (const ORVA_DUPLICATE& entry : all) {
        const Contact contact = readContact(memory, fields, entry.record);
        std::printf("%d\t%s\t%d", entry.set, entry.kind == ORVA_DUPLICATE_SAME ? "same" : "number", entry.record);
        for (const std::u16string& value : contact.values)
            std::printf("\t%s", shown(toUtf8(value)).c_str());
        std::printf("\n");
    }
    return done;
}

} // namespace pbctl
