// What is kept with a record beside its fields.

#include <algorithm>

#include "api/Boundary.h"
#include "api/Handles.h"
#include "api/Library.h"
#include "orva/orva_care.h"
#include "store/Store.h"

using namespace orva;

long ORVA_Care_SetKept(void* record, const char* lines, int octets)
{
    return guarded(__func__, [&] {
        auto& held = fromHandle<RecordHandle>(record);
        if (held.memory != ORVA_MEMORY_LOCAL)
            throw Failure(ORVA_E_UNSUPPORTED, "this memory keeps nothing beside its fields");
        if (octets < 0)
            throw Failure(ORVA_E_ARGUMENT, "a length below 0");
        if (octets > ORVA_KEPT_MAX)
            throw Failure(ORVA_E_TOO_LONG, "more than can be kept with a record");
        if (octets > 0)
            require(lines);
        held.kept = octets > 0 ? std::string(lines, static_cast<std::size_t>(octets)) : std::string();
        return ORVA_OK;
    });
}

long ORVA_Care_GetKept(void* record, char** lines, int* octets)
{
    return guarded(__func__, [&] {
        const auto& held = fromHandle<RecordHandle>(record);
        require(lines);
        require(octets);
        std::string kept;
        if (held.kept)
            kept = *held.kept;
        else if (held.memory == ORVA_MEMORY_LOCAL && held.id != 0)
            kept = held.fromBin ? groupStore(held.memory).binKept(held.id) : groupStore(held.memory).kept(held.id);
        *lines = new char[kept.size() + 1];
        std::copy_n(kept.c_str(), kept.size() + 1, *lines);
        *octets = static_cast<int>(kept.size());
        return ORVA_OK;
    });
}
