#include "fakesdk/FakeSdkState.h"

using fakesdk::find;
using fakesdk::Handle;
using fakesdk::Kind;
using fakesdk::make;
using fakesdk::makeText;
using fakesdk::release;
using fakesdk::state;

long ORVA_PBSrv_CreateAddrRecord(int memory, void** record)
{
    FAKE_ENTER("CreateAddrRecord", memory);
    if (!state().isPresent(memory))
        return ORVA_E_ABSENT;
    *record = order.null ? nullptr : make(Kind::Record, memory);
    return ORVA_OK;
}

long ORVA_PBSrv_AddrRecord_SetValue(void* record, const char* key, const unsigned short* value)
{
    FAKE_ENTER("AddrRecord_SetValue", key, value);
    Handle* handle = find(record, Kind::Record, "AddrRecord_SetValue");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    if (!state().memories[handle->memory].knows(key) || value == nullptr)
        return ORVA_E_ARGUMENT;
    handle->values[QByteArray(key).toLower()] = QtCompat::fromUtf16(value);
    return ORVA_OK;
}

long ORVA_PBSrv_AddrRecord_GetValue(void* record, const char* key, unsigned short** value)
{
    FAKE_ENTER("AddrRecord_GetValue", key);
    Handle* handle = find(record, Kind::Record, "AddrRecord_GetValue");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    if (!state().memories[handle->memory].knows(key))
        return ORVA_E_ARGUMENT;
    *value = order.null ? nullptr : makeText(handle->values.value(QByteArray(key).toLower()));
    return ORVA_OK;
}

long ORVA_PBSrv_AddrRecord_Release(void* record)
{
    const fakesdk::Order order = fakesdk::enterCall("AddrRecord_Release");
    std::lock_guard<std::mutex> lock(fakesdk::mutex());
    const long code = release(record, Kind::Record, "AddrRecord_Release");
    return order.code != 0 ? order.code : code;
}

long ORVA_PBSrv_AddAddrRec(void* record, int* id)
{
    FAKE_ENTER("AddAddrRec");
    Handle* handle = find(record, Kind::Record, "AddAddrRec");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    if (!state().isPresent(handle->memory))
        return ORVA_E_ABSENT;
    fakesdk::Memory& memory = state().memories[handle->memory];
    if (static_cast<int>(memory.records.size()) >= memory.capacity)
        return ORVA_E_FULL;
    if (order.null) {
        *id = 0;
        return ORVA_OK;
    }
    memory.records[memory.nextId] = handle->values;
    *id = memory.nextId++;
    return ORVA_OK;
}

long ORVA_PBSrv_UpdateAddrRec(void* record, int id)
{
    FAKE_ENTER("UpdateAddrRec", id);
    Handle* handle = find(record, Kind::Record, "UpdateAddrRec");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    fakesdk::Memory& memory = state().memories[handle->memory];
    const auto found = memory.records.find(id);
    if (found == memory.records.end())
        return ORVA_E_NOT_FOUND;
    found->second = handle->values;
    return ORVA_OK;
}

long ORVA_PBSrv_DelAddrRec(int id, int memory)
{
    FAKE_ENTER("DelAddrRec", id, memory);
    if (!state().isPresent(memory))
        return ORVA_E_ABSENT;
    if (state().memories[memory].records.erase(id) == 0)
        return ORVA_E_NOT_FOUND;
    if (memory == ORVA_MEMORY_LOCAL)
        for (auto& entry : state().groups)
            entry.second.members.removeAll(id);
    return ORVA_OK;
}

long ORVA_PBSrv_GetAddrRecord(int id, int memory, void** record)
{
    FAKE_ENTER("GetAddrRecord", id, memory);
    *record = nullptr;
    if (!state().isPresent(memory))
        return ORVA_E_ABSENT;
    const auto& records = state().memories[memory].records;
    const auto found = records.find(id);
    if (found == records.end())
        return state().missingGivesNull ? ORVA_OK : ORVA_E_NOT_FOUND;
    if (!order.null) {
        Handle* handle = make(Kind::Record, memory);
        handle->values = found->second;
        *record = handle;
    }
    return ORVA_OK;
}

long ORVA_PBSrv_GetAddrRecList(int memory, void** set)
{
    FAKE_ENTER("GetAddrRecList", memory);
    *set = nullptr;
    if (!state().isPresent(memory))
        return ORVA_E_ABSENT;
    const auto& records = state().memories[memory].records;
    if (records.empty() || order.null)
        return ORVA_OK;
    Handle* handle = make(Kind::RecordSet, memory);
    handle->ids.reserve(records.size());
    for (const auto& entry : records)
        handle->ids.push_back(entry.first);
    *set = handle;
    return ORVA_OK;
}

long ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(void* set, int* count)
{
    FAKE_ENTER("AddrRecordSet_GetAddrRecordCount");
    Handle* handle = find(set, Kind::RecordSet, "AddrRecordSet_GetAddrRecordCount");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    *count = order.null ? 0 : static_cast<int>(handle->fromFile ? handle->rows.size() : handle->ids.size());
    return ORVA_OK;
}

// Passes over records that have been deleted since the set was made.
static bool settle(Handle* handle)
{
    if (handle->fromFile)
        return handle->position < handle->rows.size();
    const auto& records = state().memories[handle->memory].records;
    while (handle->position < handle->ids.size() && records.count(handle->ids[handle->position]) == 0)
        ++handle->position;
    return handle->position < handle->ids.size();
}

long ORVA_PBSrv_AddrRecordSet_MoveFirst(void* set)
{
    FAKE_ENTER("AddrRecordSet_MoveFirst");
    Handle* handle = find(set, Kind::RecordSet, "AddrRecordSet_MoveFirst");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    handle->position = 0;
    return settle(handle) ? ORVA_OK : ORVA_E_END;
}

long ORVA_PBSrv_AddrRecordSet_MoveNext(void* set)
{
    FAKE_ENTER("AddrRecordSet_MoveNext");
    Handle* handle = find(set, Kind::RecordSet, "AddrRecordSet_MoveNext");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    ++handle->position;
    return settle(handle) ? ORVA_OK : ORVA_E_END;
}

long ORVA_PBSrv_AddrRecordSet_GetID(void* set, int* id)
{
    FAKE_ENTER("AddrRecordSet_GetID");
    Handle* handle = find(set, Kind::RecordSet, "AddrRecordSet_GetID");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    if (!settle(handle))
        return ORVA_E_END;
    *id = handle->fromFile ? 0 : handle->ids[handle->position];
    return ORVA_OK;
}

long ORVA_PBSrv_AddrRecordSet_GetValue(void* set, const char* key, unsigned short** value)
{
    FAKE_ENTER("AddrRecordSet_GetValue", key);
    Handle* handle = find(set, Kind::RecordSet, "AddrRecordSet_GetValue");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    if (!settle(handle))
        return ORVA_E_END;
    if (!state().memories[handle->memory].knows(key))
        return ORVA_E_ARGUMENT;
    const fakesdk::Values& values = handle->fromFile
                                        ? handle->rows[handle->position]
                                        : state().memories[handle->memory].records[handle->ids[handle->position]];
    *value = order.null ? nullptr : makeText(values.value(QByteArray(key).toLower()));
    return ORVA_OK;
}

long ORVA_PBSrv_AddrRecordSet_Release(void* set)
{
    const fakesdk::Order order = fakesdk::enterCall("AddrRecordSet_Release");
    std::lock_guard<std::mutex> lock(fakesdk::mutex());
    const long code = release(set, Kind::RecordSet, "AddrRecordSet_Release");
    return order.code != 0 ? order.code : code;
}
