// Sets of records, whether stored or just imported.

#include "api/Boundary.h"
#include "api/Handles.h"
#include "api/Library.h"
#include "base/Text.h"

using namespace orva;

namespace
{

RecordSet& setOf(void* handle)
{
    return *fromHandle<RecordSetHandle>(handle).set;
}

} // namespace

long ORVA_PBSrv_GetAddrRecList(int memory, void** set)
{
    return guarded(__func__, [&] {
        require(set);
        *set = nullptr;
        Memory& place = memoryFor(memory);
        const Extent extent = place.extent();
        if (extent.count == 0)
            return ORVA_OK;
        *set = newHandle(std::make_unique<RecordSetHandle>(std::make_unique<StoredRecordSet>(place, extent)));
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(void* set, int* count)
{
    return guarded(__func__, [&] {
        const RecordSet& records = setOf(set);
        require(count);
        *count = records.count();
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrRecordSet_MoveFirst(void* set)
{
    return guarded(__func__, [&] { return setOf(set).moveFirst() ? ORVA_OK : ORVA_E_END; });
}

long ORVA_PBSrv_AddrRecordSet_MoveNext(void* set)
{
    return guarded(__func__, [&] { return setOf(set).moveNext() ? ORVA_OK : ORVA_E_END; });
}

long ORVA_PBSrv_AddrRecordSet_GetID(void* set, int* id)
{
    return guarded(__func__, [&] {
        const RecordSet& records = setOf(set);
        require(id);
        *id = records.id();
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrRecordSet_GetValue(void* set, const char* key, unsigned short** value)
{
    return guarded(__func__, [&] {
        RecordSet& records = setOf(set);
        require(key);
        require(value);
        *value = toApi(records.value(key));
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrRecordSet_Release(void* set)
{
    return guarded(__func__, [&] {
        releaseHandle<RecordSetHandle>(set);
        return ORVA_OK;
    });
}
