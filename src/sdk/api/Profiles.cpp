// What a memory is: fields, sizes, and which memories there are.

#include <cstddef>
#include <mutex>
#include <unordered_map>
#include <vector>

#include "api/Boundary.h"
#include "api/Library.h"
#include "devices/Hardware.h"

using namespace orva;

namespace
{

// Clients built elsewhere walk the array by this size and read it at these places.
static_assert(sizeof(void*) != 4 || sizeof(ORVA_PROFILE_ENTRY) == 28);
static_assert(sizeof(void*) != 8 || sizeof(ORVA_PROFILE_ENTRY) == 56);
static_assert(offsetof(ORVA_PROFILE_ENTRY, key) == 0 && offsetof(ORVA_PROFILE_ENTRY, max_length) == sizeof(void*) &&
              offsetof(ORVA_PROFILE_ENTRY, accepted) == 2 * sizeof(void*) &&
              offsetof(ORVA_PROFILE_ENTRY, refused) == 3 * sizeof(void*) &&
              offsetof(ORVA_PROFILE_ENTRY, kind) == 4 * sizeof(void*) &&
              offsetof(ORVA_PROFILE_ENTRY, flag) == 5 * sizeof(void*) &&
              offsetof(ORVA_PROFILE_ENTRY, label_id) == 6 * sizeof(void*));

// The array that a client holds, with the texts behind it.
struct GivenProfile {
    std::shared_ptr<const Profile> profile;
    std::vector<std::vector<char>> texts;
    std::vector<ORVA_PROFILE_ENTRY> entries;
};

struct GivenProfiles {
    std::mutex mutex;
    std::unordered_map<const void*, std::unique_ptr<GivenProfile>> all;
};

// As long-lived as handles are.
GivenProfiles& given()
{
    static auto* const profiles = new GivenProfiles;
    return *profiles;
}

char* textIn(GivenProfile& made, const std::string& text)
{
    made.texts.emplace_back(text.c_str(), text.c_str() + text.size() + 1);
    return made.texts.back().data();
}

} // namespace

long ORVA_PBSrv_GetProfile(int memory, ORVA_PROFILE_ENTRY** entries, int* count)
{
    return guarded(__func__, [&] {
        require(entries);
        require(count);
        *entries = nullptr;
        auto made = std::make_unique<GivenProfile>();
        made->profile = memoryFor(memory).profile();
        for (const Field& field : made->profile->fields()) {
            ORVA_PROFILE_ENTRY entry{};
            entry.key = textIn(*made, field.key);
            entry.max_length = field.maxLength;
            entry.accepted = textIn(*made, field.accepted);
            entry.refused = textIn(*made, field.refused);
            entry.kind = textIn(*made, field.kind);
            entry.flag = field.flag ? 1 : 0;
            entry.label_id = textIn(*made, field.labelId);
            made->entries.push_back(entry);
        }
        ORVA_PROFILE_ENTRY* const array = made->entries.data();
        const int size = made->profile->size();
        const std::lock_guard<std::mutex> lock(given().mutex);
        given().all.emplace(array, std::move(made));
        *entries = array;
        *count = size;
        return ORVA_OK;
    });
}

long ORVA_PBSrv_ProfileRelease(int memory, ORVA_PROFILE_ENTRY** entries)
{
    return guarded(__func__, [&] {
        memoryFor(memory);
        require(entries);
        require(*entries);
        const std::lock_guard<std::mutex> lock(given().mutex);
        if (given().all.erase(*entries) == 0)
            throw Failure(ORVA_E_HANDLE, "not an array of ORVA_PBSrv_GetProfile");
        *entries = nullptr;
        return ORVA_OK;
    });
}

long ORVA_PBSrv_GetCapacity(int memory, int* capacity)
{
    return guarded(__func__, [&] {
        require(capacity);
        *capacity = memoryFor(memory).capacity();
        return ORVA_OK;
    });
}

long ORVA_PBSrv_GetSize(int memory, int* size)
{
    return guarded(__func__, [&] {
        require(size);
        *size = memoryFor(memory).size();
        return ORVA_OK;
    });
}

long ORVA_PBSrv_PBGetMemoryListType(short* types, unsigned short* count)
{
    return guarded(__func__, [&] {
        require(count);
        const std::vector<int> there = hardware().memories();
        if (types == nullptr) {
            *count = static_cast<unsigned short>(there.size());
            return ORVA_OK;
        }
        for (std::size_t i = 0; i < there.size() && i < *count; ++i)
            types[i] = static_cast<short>(there[i]);
        return ORVA_OK;
    });
}
