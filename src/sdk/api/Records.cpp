// Single records.

#include <atomic>

#include "api/Boundary.h"
#include "api/Handles.h"
#include "api/Library.h"
#include "api/OwnDeletes.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "events/EventHub.h"
#include "memories/LocalMemory.h"
#include "orva/orva_store.h"

using namespace orva;

namespace
{

std::size_t fieldIndex(const RecordHandle& record, const char* key, int hint = 0)
{
    require(key);
    const int field = record.profile->indexOf(key, hint);
    if (field < 0)
        throw Failure(ORVA_E_ARGUMENT, "no such field");
    return static_cast<std::size_t>(field);
}

// A record that was released, kept for the next one: who stores many makes and releases one after the other, and their
// texts need no room of their own each.
std::atomic<RecordHandle*> spareRecord{nullptr};
constexpr std::size_t spareUnits = 4096; // of text; one with more room is not kept

std::unique_ptr<RecordHandle> takeSpare()
{
    std::unique_ptr<RecordHandle> spare(spareRecord.exchange(nullptr));
    return spare != nullptr ? std::move(spare) : std::make_unique<RecordHandle>();
}

void keepSpare(std::unique_ptr<RecordHandle> record)
{
    std::size_t units = 0;
    for (std::u16string& value : record->values) {
        units += value.capacity();
        value.clear();
    }
    if (units > spareUnits)
        return;
    record->profile.reset();
    record->kept.reset();
    record->id = record->hint = 0;
    record->fromBin = false;
    RecordHandle* none = nullptr;
    if (spareRecord.compare_exchange_strong(none, record.get()))
        record.release();
}

std::unique_ptr<RecordHandle> makeRecord(int memory)
{
    auto record = takeSpare();
    record->memory = memory;
    record->profile = memoryFor(memory).profile();
    return record;
}

// Takes out of the numbers what is there for the eye, before anybody counts their characters.
void cleanNumbers(RecordHandle& record)
{
    for (const std::size_t i : record.profile->numbers()) {
        std::u16string& value = record.values[i];
        if (isPlainNumber(value, Pauses::No))
            continue;
        const Field& field = record.profile->fields()[i];
        const Pauses pauses = pausesOf(field);
        if (isPlainNumber(value, pauses))
            continue;
        std::optional<NumberText> read = readNumber(value, pauses);
        if (!read || !read->extension.empty())
            throw Failure(ORVA_E_NUMBER, "a value of the field " + field.key + " is no telephone number");
        value = std::move(read->number);
    }
}

bool wentElsewhere(int id, int memory) noexcept
{
    try {
        return memory == ORVA_MEMORY_LOCAL && id >= 1 && !ownDeletes().has(id) &&
               localMemory().store().foreignChanges() > 0;
    } catch (...) {
        return false; // what is the matter with the store, others tell
    }
}

// Runs what needs a record; tells everybody if that went by the hand of another process.
template <typename Body>
void onRecord(int id, int memory, Body&& body)
{
    try {
        body(memoryFor(memory));
    } catch (const Failure& failure) {
        if (failure.code() == ORVA_E_NOT_FOUND && wentElsewhere(id, memory))
            events().post(ORVA_EVENT_RECORD_GONE);
        throw;
    }
}

} // namespace

long ORVA_PBSrv_CreateAddrRecord(int memory, void** record)
{
    return guarded(__func__, [&] {
        require(record);
        auto made = makeRecord(memory);
        made->values.resize(made->profile->fields().size());
        *record = newHandle(std::move(made));
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrRecord_SetValue(void* record, const char* key, const unsigned short* value)
{
    return guarded(__func__, [&] {
        auto& held = fromHandle<RecordHandle>(record);
        const std::size_t field = fieldIndex(held, key, held.hint);
        held.hint = static_cast<int>(field) + 1;
        fromApi(value, held.values[field]);
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrRecord_GetValue(void* record, const char* key, unsigned short** value)
{
    return guarded(__func__, [&] {
        const auto& held = fromHandle<RecordHandle>(record);
        const std::size_t field = fieldIndex(held, key);
        require(value);
        *value = toApi(held.values[field]);
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrRecord_Release(void* record)
{
    return guarded(__func__, [&] {
        keepSpare(takeHandle<RecordHandle>(record));
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddAddrRec(void* record, int* id)
{
    return guarded(__func__, [&] {
        auto& held = fromHandle<RecordHandle>(record);
        require(id);
        cleanNumbers(held);
        *id = held.kept ? localMemory().add(held.values, &*held.kept) : memoryFor(held.memory).add(held.values);
        return ORVA_OK;
    });
}

long ORVA_PBSrv_UpdateAddrRec(void* record, int id)
{
    return guarded(__func__, [&] {
        auto& held = fromHandle<RecordHandle>(record);
        cleanNumbers(held);
        onRecord(id, held.memory, [&](Memory& memory) {
            if (held.kept)
                localMemory().update(id, held.values, &*held.kept);
            else
                memory.update(id, held.values);
        });
        return ORVA_OK;
    });
}

long ORVA_PBSrv_DelAddrRec(int id, int memory)
{
    return guarded(__func__, [&] {
        onRecord(id, memory, [id](Memory& from) { from.erase(id); });
        if (memory == ORVA_MEMORY_LOCAL)
            ownDeletes().add(id);
        return ORVA_OK;
    });
}

long ORVA_PBSrv_GetAddrRecord(int id, int memory, void** record)
{
    return guarded(__func__, [&] {
        require(record);
        *record = nullptr;
        auto made = makeRecord(memory);
        onRecord(id, memory, [&](Memory& from) { made->values = from.readOne(id); });
        made->id = id;
        made->values.resize(made->profile->fields().size());
        *record = newHandle(std::move(made));
        return ORVA_OK;
    });
}
