#ifndef TESTS_SDK_FILES_SDKFILES_H
#define TESTS_SDK_FILES_SDKFILES_H

// Files and the library's C functions, as the tests of import and export need them.

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "PlainFiles.h"
#include "base/Unicode.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"
#include "support/Check.h"

namespace files
{

inline std::u16string utf16(std::string_view text)
{
    std::u16string out;
    orva::appendUtf16(text, out);
    return out;
}

inline std::string utf8(std::u16string_view text)
{
    std::string out;
    orva::appendUtf8(text, out);
    return out;
}

inline const unsigned short* api(const std::u16string& text)
{
    return reinterpret_cast<const unsigned short*>(text.c_str());
}

inline std::u16string take(unsigned short* text)
{
    std::u16string out;
    for (const unsigned short* at = text; at != nullptr && *at != 0; ++at)
        out.push_back(static_cast<char16_t>(*at));
    delete[] text;
    return out;
}

inline std::vector<std::string> keysOf(int memory)
{
    ORVA_PROFILE_ENTRY* entries = nullptr;
    int count = 0;
    REQUIRE(ORVA_PBSrv_GetProfile(memory, &entries, &count) == ORVA_OK);
    std::vector<std::string> keys;
    for (int i = 0; i < count; ++i)
        keys.emplace_back(entries[i].key);
    ORVA_PBSrv_ProfileRelease(memory, &entries);
    return keys;
}

struct Record {
    int id = 0;
    std::vector<std::string> values;
};

// The records of a set, which is released.
inline std::vector<Record> takeSet(void* set, int memory)
{
    std::vector<Record> records;
    if (set == nullptr)
        return records;
    const std::vector<std::string> keys = keysOf(memory);
    for (long code = ORVA_PBSrv_AddrRecordSet_MoveFirst(set); code == ORVA_OK;
         code = ORVA_PBSrv_AddrRecordSet_MoveNext(set)) {
        Record& record = records.emplace_back();
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetID(set, &record.id), ORVA_OK);
        for (const std::string& key : keys) {
            unsigned short* value = nullptr;
            CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetValue(set, key.c_str(), &value), ORVA_OK);
            record.values.push_back(utf8(take(value)));
        }
    }
    ORVA_PBSrv_AddrRecordSet_Release(set);
    return records;
}

inline std::vector<Record> stored(int memory)
{
    void* set = nullptr;
    CHECK_EQ(ORVA_PBSrv_GetAddrRecList(memory, &set), ORVA_OK);
    return takeSet(set, memory);
}

inline std::vector<Record> import(const std::string& path, std::vector<int> map, int memory, long expected = ORVA_OK)
{
    void* set = nullptr;
    CHECK_EQ(ORVA_PBSrv_ImportFromFile(api(utf16(path)), map.data(), memory, &set), expected);
    CHECK_EQ(set != nullptr, expected == ORVA_OK);
    return takeSet(set, memory);
}

inline int add(int memory, const std::vector<std::string>& values)
{
    const std::vector<std::string> keys = keysOf(memory);
    void* record = nullptr;
    REQUIRE(ORVA_PBSrv_CreateAddrRecord(memory, &record) == ORVA_OK);
    for (std::size_t i = 0; i < values.size(); ++i)
        CHECK_EQ(ORVA_PBSrv_AddrRecord_SetValue(record, keys[i].c_str(), api(utf16(values[i]))), ORVA_OK);
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddAddrRec(record, &id), ORVA_OK);
    ORVA_PBSrv_AddrRecord_Release(record);
    return id;
}

inline long exportTo(const std::string& path, std::vector<int> ids, int memory)
{
    return ORVA_PBSrv_ExportToFile(api(utf16(path)), ids.data(), static_cast<int>(ids.size()), memory);
}

// The titles of a file in two calls, or the code of the first.
inline std::string titles(const std::string& path, long expected = 2)
{
    int length = 0;
    CHECK_EQ(ORVA_PBSrv_GetFileFieldDescription(api(utf16(path)), nullptr, &length), expected);
    if (expected != 2) {
        CHECK_EQ(length, 0);
        return {};
    }
    std::string text(static_cast<std::size_t>(length), '\0');
    CHECK_EQ(ORVA_PBSrv_GetFileFieldDescription(api(utf16(path)), text.data(), &length), ORVA_OK);
    CHECK_EQ(text.back(), '\0');
    return text.c_str();
}

// A store of its own for each test.
struct FreshStore {
    FreshStore()
    {
        static int count = 0;
        const std::string folder = inHome("store" + std::to_string(++count));
        CHECK_EQ(ORVA_Sim_Reset(folder.c_str()), ORVA_OK);
    }
    ~FreshStore() { CHECK_EQ(ORVA_Sim_Reset(nullptr), ORVA_OK); }
    FreshStore(const FreshStore&) = delete;
    FreshStore& operator=(const FreshStore&) = delete;
};

// What the library's log holds.
inline std::string log()
{
    unsigned short* folder = nullptr;
    CHECK_EQ(ORVA_GetLogDirectory(&folder), ORVA_OK);
    return read(utf8(take(folder)) + "sdk.log");
}

} // namespace files

#endif // TESTS_SDK_FILES_SDKFILES_H
