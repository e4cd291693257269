#include "fakesdk/FakeSdkState.h"

#include <cstring>

using fakesdk::Handle;
using fakesdk::state;

// ---- Field list, sizes, coding, transactions -----------------------------------------------------------------------

// The entries and their texts in one block, so that one release frees all.
static ORVA_PROFILE_ENTRY* makeProfile(const QList<FakeSdk::Field>& fields)
{
    const size_t count = static_cast<size_t>(fields.size());
    size_t bytes = 0;
    for (const FakeSdk::Field& f : fields)
        bytes += static_cast<size_t>(f.key.size() + f.accepted.size() + f.refused.size() + f.kind.size() +
                                     f.labelId.size() + 5);
    const size_t extra = bytes / sizeof(ORVA_PROFILE_ENTRY) + 1;
    ORVA_PROFILE_ENTRY* entries = new ORVA_PROFILE_ENTRY[count + extra];
    char* next = reinterpret_cast<char*>(entries + count);
    const auto store = [&next](const QByteArray& value) {
        char* const place = next;
        std::memcpy(place, value.constData(), static_cast<size_t>(value.size()) + 1);
        next += value.size() + 1;
        return place;
    };
    for (int i = 0; i < fields.size(); ++i) {
        const FakeSdk::Field& f = fields[i];
        entries[i] = ORVA_PROFILE_ENTRY{store(f.key),     f.maxLength,   store(f.accepted),
                                        store(f.refused), store(f.kind), static_cast<unsigned char>(f.flag ? 1 : 0),
                                        store(f.labelId)};
    }
    return entries;
}

long ORVA_PBSrv_GetProfile(int memory, ORVA_PROFILE_ENTRY** entries, int* count)
{
    FAKE_ENTER("GetProfile", memory);
    if (!state().isPresent(memory))
        return ORVA_E_ABSENT;
    *entries = nullptr;
    *count = 0;
    if (order.null)
        return ORVA_OK;
    const QList<FakeSdk::Field> fields = state().memories[memory].fields;
    *entries = makeProfile(fields);
    *count = fields.size();
    state().profiles.insert(*entries);
    return ORVA_OK;
}

long ORVA_PBSrv_ProfileRelease(int memory, ORVA_PROFILE_ENTRY** entries)
{
    const fakesdk::Order order = fakesdk::enterCall("ProfileRelease", memory);
    std::lock_guard<std::mutex> lock(fakesdk::mutex());
    if (!state().profiles.remove(*entries)) {
        state().misuse << "ProfileRelease with a wrong array";
        return ORVA_E_HANDLE;
    }
    delete[] * entries;
    *entries = nullptr;
    return order.code;
}

long ORVA_PBSrv_GetCapacity(int memory, int* capacity)
{
    FAKE_ENTER("GetCapacity", memory);
    if (!state().isPresent(memory))
        return ORVA_E_ABSENT;
    *capacity = order.null ? 0 : state().memories[memory].capacity;
    return ORVA_OK;
}

long ORVA_PBSrv_GetSize(int memory, int* size)
{
    FAKE_ENTER("GetSize", memory);
    if (!state().isPresent(memory))
        return ORVA_E_ABSENT;
    const fakesdk::Memory& m = state().memories[memory];
    *size = order.null ? 0 : (m.size >= 0 ? m.size : static_cast<int>(m.records.size()));
    return ORVA_OK;
}

long ORVA_PBSrv_PBGetMemoryListType(short* types, unsigned short* count)
{
    FAKE_ENTER("PBGetMemoryListType", types != nullptr);
    const QList<int> memories = order.null ? QList<int>() : state().presentMemories();
    if (types == nullptr) {
        *count = static_cast<unsigned short>(memories.size());
        return ORVA_OK;
    }
    for (int i = 0; i < memories.size() && i < *count; ++i)
        types[i] = static_cast<short>(memories[i]);
    return ORVA_OK;
}

long ORVA_PBSrv_PBContentCodingJudge(const unsigned short* text, short length, bool not_uim, bool customised,
                                     short* result)
{
    FAKE_ENTER("PBContentCodingJudge", text, length, not_uim, customised);
    *result = static_cast<short>(state().coding(QtCompat::fromUtf16(text, length), not_uim, customised));
    return ORVA_OK;
}

long ORVA_PBSrv_BeginTransaction(int memory)
{
    FAKE_ENTER("BeginTransaction", memory);
    ++state().memories[memory].openTransactions;
    return ORVA_OK;
}

long ORVA_PBSrv_EndTransaction(int memory)
{
    const fakesdk::Order order = fakesdk::enterCall("EndTransaction", memory);
    std::lock_guard<std::mutex> lock(fakesdk::mutex());
    --state().memories[memory].openTransactions;
    return order.code;
}

// ---- Files -------------------------------------------------------------------------------------------------------

long ORVA_PBSrv_IsOutlookInstalled(const char* name)
{
    FAKE_ENTER("IsOutlookInstalled", name);
    return state().outlooks.contains(name) ? ORVA_OK : ORVA_E_NOT_FOUND;
}

long ORVA_PBSrv_GetFileFieldDescription(const unsigned short* path, char* buffer, int* length)
{
    FAKE_ENTER("GetFileFieldDescription", path, buffer != nullptr);
    const auto found = state().titles.constFind(QtCompat::fromUtf16(path));
    if (found == state().titles.constEnd())
        return ORVA_E_NOT_FOUND;
    if (buffer == nullptr) {
        *length = order.null ? 0 : found->size() + 1;
        return state().titleLengthCode;
    }
    if (*length < found->size() + 1)
        return ORVA_E_ARGUMENT;
    if (!order.null)
        std::memcpy(buffer, found->constData(), static_cast<size_t>(found->size()) + 1);
    return ORVA_OK;
}

// Under the lock.
static long import(const QString& source, const int* map, int memory, void** set, bool isNull)
{
    *set = nullptr;
    const QList<FakeSdk::Field>& fields = state().memories[memory].fields;
    state().lastFieldMap.clear();
    for (int i = 0; i < fields.size(); ++i)
        state().lastFieldMap << map[i];
    const auto found = state().imports.constFind(source);
    if (found == state().imports.constEnd())
        return ORVA_E_FORMAT;
    if (isNull)
        return ORVA_OK;
    Handle* handle = fakesdk::make(fakesdk::Kind::RecordSet, memory);
    handle->fromFile = true;
    for (const QStringList& row : *found) {
        fakesdk::Values values;
        for (int i = 0; i < fields.size(); ++i)
            if (map[i] >= 0 && map[i] < row.size())
                values[fields[i].key.toLower()] = row[map[i]];
        handle->rows.push_back(values);
    }
    *set = handle;
    return ORVA_OK;
}

long ORVA_PBSrv_ImportFromFile(const unsigned short* path, int* map, int memory, void** set)
{
    FAKE_ENTER("ImportFromFile", path, memory);
    return import(QtCompat::fromUtf16(path), map, memory, set, order.null);
}

long ORVA_PBSrv_ImportFromOutlook(const unsigned short* name, int* map, int memory, void** set)
{
    FAKE_ENTER("ImportFromOutlook", name, memory);
    return import(QtCompat::fromUtf16(name), map, memory, set, order.null);
}

long ORVA_PBSrv_ExportToFile(const unsigned short* path, int* ids, int count, int memory)
{
    FAKE_ENTER("ExportToFile", path, count, memory);
    QList<int> list;
    for (int i = 0; i < count; ++i)
        list << ids[i];
    state().exports << FakeSdk::Export{QtCompat::fromUtf16(path), list, memory};
    return ORVA_OK;
}

// ---- Device and network --------------------------------------------------------------------------------------------

#define FAKE_WORD(name, member)                                                                                        \
    long ORVA_##name(int* value)                                                                                       \
    {                                                                                                                  \
        FAKE_ENTER(#name);                                                                                             \
        *value = order.null ? 0 : state().member;                                                                      \
        return ORVA_OK;                                                                                                \
    }

FAKE_WORD(DevSrv_GetDevStatus, devStatus)
FAKE_WORD(DevSrv_GetProductType, productType)
FAKE_WORD(DevSrv_GetSimType, cardType)

// Written also by a call that fails: whoever takes it without a look at the code takes a wrong one.
long ORVA_NetSrv_GetSrvStatus(int* status)
{
    const fakesdk::Order order = fakesdk::enterCall("NetSrv_GetSrvStatus");
    const std::lock_guard<std::mutex> lock(fakesdk::mutex());
    *status = order.null ? 0 : state().netStatus;
    return order.code;
}

long ORVA_DevSrv_GetPinStatus(int slot, int* status, unsigned char* pin1, unsigned char* pin2, unsigned char* puk)
{
    FAKE_ENTER("DevSrv_GetPinStatus", slot);
    *status = order.null ? 0 : state().pinStatus;
    for (unsigned char* byte : {pin1, pin2, puk})
        if (byte != nullptr)
            *byte = 0;
    return ORVA_OK;
}

long ORVA_DevSrv_GetRFSwitch(int* states)
{
    FAKE_ENTER("DevSrv_GetRFSwitch");
    states[0] = order.null ? 0 : state().radio[0];
    states[1] = order.null ? 0 : state().radio[1];
    return ORVA_OK;
}

long ORVA_DevSrv_GetMultiModeCardStatus(unsigned char* status, void* reserved1, void* reserved2, void* reserved3)
{
    FAKE_ENTER("DevSrv_GetMultiModeCardStatus");
    if (reserved1 != nullptr || reserved2 != nullptr || reserved3 != nullptr)
        return ORVA_E_ARGUMENT;
    status[0] = order.null ? 0 : state().multiMode[0];
    status[1] = order.null ? 0 : state().multiMode[1];
    return ORVA_OK;
}

long ORVA_GetLogDirectory(unsigned short** path)
{
    FAKE_ENTER("GetLogDirectory");
    *path = order.null ? nullptr : fakesdk::makeText(state().logDirectory);
    return ORVA_OK;
}
