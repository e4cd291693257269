// Records that stand for the same person.

#include <algorithm>

#include "api/Boundary.h"
#include "api/Library.h"
#include "care/Matcher.h"
#include "orva/orva_care.h"

using namespace orva;

namespace
{

std::vector<DuplicateSet> duplicatesOf(Memory& memory)
{
    const std::shared_ptr<const Profile> profile = memory.profile();
    Matcher matcher(*profile);
    RowBlock rows;
    const int last = memory.extent().last;
    for (int first = 1; first <= last;) {
        memory.read(first, last, memory.preferredRows(), rows);
        if (rows.empty())
            break;
        for (std::size_t row = 0; row < rows.rows(); ++row) {
            Values values;
            for (int field = 0; field < rows.fields(); ++field)
                values.emplace_back(rows.value(row, field));
            matcher.add(rows.id(row), values);
        }
        if (rows.id(rows.rows() - 1) == last)
            break;
        first = rows.id(rows.rows() - 1) + 1;
    }
    return matcher.duplicates();
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
