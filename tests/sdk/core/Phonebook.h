#ifndef TESTS_SDK_CORE_PHONEBOOK_H
#define TESTS_SDK_CORE_PHONEBOOK_H

// The C functions in the words of a test. Each test gets an empty data folder with useFreshFolder().

#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"
#include "support/Check.h"

namespace phonebook
{

constexpr int card = ORVA_MEMORY_CARD;
constexpr int device = ORVA_MEMORY_DEVICE;
constexpr int local = ORVA_MEMORY_LOCAL;

using Text = std::u16string;
using Fields = std::vector<std::pair<std::string, Text>>;

inline const unsigned short* api(const Text& text)
{
    return reinterpret_cast<const unsigned short*>(text.c_str());
}

// Takes a buffer of the library.
inline Text take(unsigned short* buffer)
{
    if (buffer == nullptr)
        return u"(null)";
    Text text;
    for (const unsigned short* unit = buffer; *unit != 0; ++unit)
        text += static_cast<char16_t>(*unit);
    delete[] buffer;
    return text;
}

inline std::string folder()
{
    return std::getenv("LINKHAND_DATA_DIR");
}

// Closes the library and opens it on an empty folder of its own.
inline std::string useFreshFolder()
{
    static int number = 0;
    const std::string fresh = folder() + "/" + std::to_string(::getpid()) + "-" + std::to_string(++number);
    std::filesystem::create_directories(folder());
    CHECK_EQ(ORVA_Sim_Reset(fresh.c_str()), ORVA_OK);
    return fresh;
}

inline long newRecord(int memory, const Fields& fields, void** record)
{
    const long created = ORVA_PBSrv_CreateAddrRecord(memory, record);
    if (created != ORVA_OK)
        return created;
    for (const auto& field : fields) {
        const long set = ORVA_PBSrv_AddrRecord_SetValue(*record, field.first.c_str(), api(field.second));
        if (set != ORVA_OK) {
            ORVA_PBSrv_AddrRecord_Release(*record);
            return set;
        }
    }
    return ORVA_OK;
}

// The identifier of a new record, or the failure's code below 0.
inline long tryAdd(int memory, const Fields& fields)
{
    void* record = nullptr;
    const long made = newRecord(memory, fields, &record);
    if (made != ORVA_OK)
        return -made;
    int id = 0;
    const long added = ORVA_PBSrv_AddAddrRec(record, &id);
    ORVA_PBSrv_AddrRecord_Release(record);
    return added == ORVA_OK ? id : -added;
}

inline int add(int memory, const Fields& fields)
{
    const long id = tryAdd(memory, fields);
    CHECK(id > 0);
    return static_cast<int>(id);
}

inline long update(int memory, int id, const Fields& fields)
{
    void* record = nullptr;
    const long made = newRecord(memory, fields, &record);
    if (made != ORVA_OK)
        return made;
    const long updated = ORVA_PBSrv_UpdateAddrRec(record, id);
    ORVA_PBSrv_AddrRecord_Release(record);
    return updated;
}

inline Text valueOf(int memory, int id, const char* key)
{
    void* record = nullptr;
    if (ORVA_PBSrv_GetAddrRecord(id, memory, &record) != ORVA_OK)
        return u"(none)";
    unsigned short* value = nullptr;
    const long got = ORVA_PBSrv_AddrRecord_GetValue(record, key, &value);
    ORVA_PBSrv_AddrRecord_Release(record);
    return got == ORVA_OK ? take(value) : Text(u"(failed)");
}

inline int sizeOf(int memory)
{
    int size = -1;
    return ORVA_PBSrv_GetSize(memory, &size) == ORVA_OK ? size : -1;
}

inline Text setValue(void* set, const char* key)
{
    unsigned short* value = nullptr;
    return ORVA_PBSrv_AddrRecordSet_GetValue(set, key, &value) == ORVA_OK ? take(value) : Text(u"(failed)");
}

// Walks a memory; the identifiers in the order in which they come.
inline std::vector<int> idsOf(int memory)
{
    std::vector<int> ids;
    void* set = nullptr;
    if (ORVA_PBSrv_GetAddrRecList(memory, &set) != ORVA_OK || set == nullptr)
        return ids;
    for (long moved = ORVA_PBSrv_AddrRecordSet_MoveFirst(set); moved == ORVA_OK;
         moved = ORVA_PBSrv_AddrRecordSet_MoveNext(set)) {
        int id = 0;
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetID(set, &id), ORVA_OK);
        ids.push_back(id);
    }
    ORVA_PBSrv_AddrRecordSet_Release(set);
    return ids;
}

inline long tryAddGroup(const Text& name, int parent = 0)
{
    void* group = nullptr;
    const long created = ORVA_PBSrv_CreateAddrGroup(local, &group);
    if (created != ORVA_OK)
        return -created;
    ORVA_PBSrv_AddrGroup_SetName(group, api(name));
    ORVA_PBSrv_AddrGroup_SetParentID(group, parent);
    int id = 0;
    const long added = ORVA_PBSrv_AddGroup(group, &id);
    ORVA_PBSrv_AddrGroup_Release(group);
    return added == ORVA_OK ? id : -added;
}

inline int addGroup(const Text& name, int parent = 0)
{
    const long id = tryAddGroup(name, parent);
    CHECK(id > 0);
    return static_cast<int>(id);
}

inline std::vector<int> membersOf(int group)
{
    std::vector<int> members;
    void* set = nullptr;
    if (ORVA_PBSrv_GetGroupList(local, &set) != ORVA_OK)
        return {-1};
    int count = 0;
    int* ids = nullptr;
    const long got = ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID(set, group, &count, &ids);
    members = got == ORVA_OK ? std::vector<int>(ids, ids + count) : std::vector<int>{-1};
    ORVA_PBSrv_AddrGroupSet_Release(set);
    return members;
}

inline std::vector<int> groupIds()
{
    std::vector<int> ids;
    void* set = nullptr;
    if (ORVA_PBSrv_GetGroupList(local, &set) != ORVA_OK)
        return {-1};
    for (long moved = ORVA_PBSrv_AddrGroupSet_MoveFirst(set); moved == ORVA_OK;
         moved = ORVA_PBSrv_AddrGroupSet_MoveNext(set)) {
        int id = 0;
        ORVA_PBSrv_AddrGroupSet_GetID(set, &id);
        ids.push_back(id);
    }
    ORVA_PBSrv_AddrGroupSet_Release(set);
    return ids;
}

// Waits for a condition, at most 20 seconds.
inline bool waitFor(const std::function<bool()>& condition)
{
    const auto giveUp = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > giveUp)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

} // namespace phonebook

#endif // TESTS_SDK_CORE_PHONEBOOK_H
