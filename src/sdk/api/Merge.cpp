// Several records that become one.

#include <algorithm>
#include <unordered_set>

#include "api/Boundary.h"
#include "api/Handles.h"
#include "api/Library.h"
#include "base/Text.h"
#include "care/Merger.h"
#include "orva/orva_care.h"
#include "orva/orva_store.h"
#include "store/Store.h"

using namespace orva;

namespace
{

using Sets = std::vector<std::vector<int>>;

void requireSound(const Sets& sets)
{
    std::unordered_set<int> seen;
    for (const std::vector<int>& ids : sets) {
        if (ids.size() < 2)
            throw Failure(ORVA_E_ARGUMENT, "a merge of fewer than two records");
        for (const int id : ids)
            if (!seen.insert(id).second)
                throw Failure(ORVA_E_ARGUMENT, "a record is named twice");
    }
}

Content mergedBy(const Merger& merger, const std::vector<Content>& contents)
{
    Content merged = merger.merged(contents);
    if (merged.kept.size() > ORVA_KEPT_MAX)
        throw Failure(ORVA_E_TOO_LONG, "more than can be kept with a record");
    return merged;
}

} // namespace

long ORVA_Care_PreviewMerge(int memory, const int* records, int count, void** record, unsigned short** groups)
{
    return guarded(__func__, [&] {
        require(records);
        require(record);
        require(groups);
        *record = nullptr;
        Store& store = groupStore(memory);
        const std::vector<int> ids(records, records + std::max(count, 0));
        requireSound({ids});
        auto made = std::make_unique<RecordHandle>();
        made->memory = memory;
        made->profile = memoryFor(memory).profile();
        made->id = ids.front();
        Content merged = mergedBy(Merger(*made->profile), store.contents(ids));
        made->values = std::move(merged.values);
        made->kept = std::move(merged.kept);
        std::u16string text;
        std::unordered_set<std::u16string> known;
        for (const std::u16string& path : store.groupPaths(ids))
            if (known.insert(path).second)
                text += (text.empty() ? u"" : u"\n") + path;
        std::unique_ptr<unsigned short[]> paths(toApi(text));
        *record = newHandle(std::move(made));
        *groups = paths.release();
        return ORVA_OK;
    });
}

long ORVA_Care_Merge(int memory, const ORVA_DUPLICATE* entries, int count)
{
    return guarded(__func__, [&] {
        if (count > 0)
            require(entries);
        Store& store = groupStore(memory);
        Sets sets;
        for (int i = 0; i < count; ++i) {
            if (i == 0 || entries[i].set != entries[i - 1].set)
                sets.emplace_back();
            sets.back().push_back(entries[i].record);
        }
        requireSound(sets);
        if (sets.empty())
            return ORVA_OK;
        const Merger merger(*memoryFor(memory).profile());
        store.keepBackup(ORVA_BACKUP_MERGE);
        store.merge(sets, [&merger](const std::vector<Content>& contents) { return mergedBy(merger, contents); });
        return ORVA_OK;
    });
}
