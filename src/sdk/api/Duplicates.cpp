// Records that stand for the same person.

#include <algorithm>

#include "api/Boundary.h"
#include "api/Handles.h"
#include "api/Library.h"
#include "base/DataFolder.h"
#include "base/NumberText.h"
#include "care/DuplicateSearch.h"
#include "care/Matcher.h"
#include "care/NumberKey.h"
#include "memories/AllRecords.h"
#include "orva/orva_care.h"

using namespace orva;

namespace
{

struct MatchHandle final : HandleObject {
    static constexpr HandleKind kind = HandleKind::Match;
    MatchHandle(int m, const Profile& profile) : memory(m), matcher(profile, chosenRegion(dataFolder())) {}
    int memory;
    Matcher matcher;
};

std::vector<DuplicateSet> duplicatesOf(Memory& memory)
{
    DuplicateSearch search(*memory.profile(), chosenRegion(dataFolder()));
    forAllRecords(memory, [&search](int id, const Values& values) { search.add(id, values); });
    return search.sets();
}

// The values of a record as they would be stored; what is no number stays and is found nowhere.
Values cleaned(const RecordHandle& record)
{
    Values values = record.values;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const Field& field = record.profile->fields()[i];
        if (!isNumberField(field) || isPlainNumber(values[i], pausesOf(field)))
            continue;
        if (std::optional<NumberText> read = readNumber(values[i], pausesOf(field)))
            values[i] = std::move(read->number);
    }
    return values;
}

} // namespace

long ORVA_Care_GetDuplicates(int memory, ORVA_DUPLICATE** entries, int* count)
{
    return guarded(__func__, [&] {
        require(entries);
        require(count);
        *entries = nullptr;
        *count = 0;
        std::vector<ORVA_DUPLICATE> found;
        int number = 0;
        for (const DuplicateSet& set : duplicatesOf(memoryFor(memory))) {
            ++number;
            for (const int id : set.ids)
                found.push_back({number, set.same ? ORVA_DUPLICATE_SAME : ORVA_DUPLICATE_NUMBER, id});
        }
        if (found.empty())
            return ORVA_OK;
        *entries = new ORVA_DUPLICATE[found.size()];
        std::copy(found.begin(), found.end(), *entries);
        *count = static_cast<int>(found.size());
        return ORVA_OK;
    });
}

long ORVA_Care_DuplicatesRelease(int memory, ORVA_DUPLICATE** entries)
{
    return guarded(__func__, [&] {
        memoryFor(memory);
        require(entries);
        delete[] * entries;
        *entries = nullptr;
        return ORVA_OK;
    });
}

long ORVA_Care_CreateMatch(int memory, void** match)
{
    return guarded(__func__, [&] {
        require(match);
        *match = nullptr;
        Memory& source = memoryFor(memory);
        auto made = std::make_unique<MatchHandle>(memory, *source.profile());
        forAllRecords(source, [&made](int id, const Values& values) { made->matcher.add(id, values); });
        *match = newHandle(std::move(made));
        return ORVA_OK;
    });
}

long ORVA_Care_Match_Find(void* match, void* record, int* id)
{
    return guarded(__func__, [&]() -> long {
        const auto& held = fromHandle<MatchHandle>(match);
        const auto& sought = fromHandle<RecordHandle>(record);
        require(id);
        if (sought.memory != held.memory)
            throw Failure(ORVA_E_ARGUMENT, "the record is of another memory");
        const int found = held.matcher.find(cleaned(sought));
        if (found == 0)
            return ORVA_E_NOT_FOUND;
        *id = found;
        return ORVA_OK;
    });
}

long ORVA_Care_Match_Release(void* match)
{
    return guarded(__func__, [&] {
        releaseHandle<MatchHandle>(match);
        return ORVA_OK;
    });
}
