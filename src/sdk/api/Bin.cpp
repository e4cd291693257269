// The bin of the PC's phonebook.

#include "api/Boundary.h"
#include "api/Handles.h"
#include "api/Library.h"
#include "base/Text.h"
#include "orva/orva_care.h"
#include "store/Store.h"

using namespace orva;

long ORVA_Care_GetBin(int memory, ORVA_BIN_ENTRY** entries, int* count)
{
    return guarded(__func__, [&] {
        require(entries);
        require(count);
        *entries = nullptr;
        *count = 0;
        const std::vector<BinEntry> found = groupStore(memory).bin();
        if (found.empty())
            return ORVA_OK;
        *entries = new ORVA_BIN_ENTRY[found.size()];
        for (const BinEntry& entry : found)
            (*entries)[(*count)++] = {entry.id, entry.record, entry.reason, entry.time};
        return ORVA_OK;
    });
}

long ORVA_Care_BinRelease(int memory, ORVA_BIN_ENTRY** entries)
{
    return guarded(__func__, [&] {
        groupStore(memory);
        require(entries);
        delete[] * entries;
        *entries = nullptr;
        return ORVA_OK;
    });
}

long ORVA_Care_GetBinRecord(int memory, int entry, void** record)
{
    return guarded(__func__, [&] {
        require(record);
        *record = nullptr;
        Store& store = groupStore(memory);
        auto made = std::make_unique<RecordHandle>();
        made->memory = memory;
        made->profile = memoryFor(memory).profile();
        made->id = entry;
        made->fromBin = true;
        made->values = store.readBin(entry, made->profile->size());
        *record = newHandle(std::move(made));
        return ORVA_OK;
    });
}

long ORVA_Care_GetBinGroups(int memory, int entry, unsigned short** paths)
{
    return guarded(__func__, [&] {
        require(paths);
        std::u16string text;
        for (const std::u16string& path : groupStore(memory).binGroups(entry))
            text += (text.empty() ? u"" : u"\n") + path;
        *paths = toApi(text);
        return ORVA_OK;
    });
}

long ORVA_Care_Undelete(int memory, int entry, int* id)
{
    return guarded(__func__, [&] {
        require(id);
        Store& store = groupStore(memory);
        *id = store.undelete(entry, memoryFor(memory).capacity());
        return ORVA_OK;
    });
}

long ORVA_Care_EmptyBin(int memory, int entry)
{
    return guarded(__func__, [&] {
        if (entry < 0)
            throw Failure(ORVA_E_ARGUMENT, "no such entry of the bin");
        groupStore(memory).emptyBin(entry);
        return ORVA_OK;
    });
}
