// Store: several records that become one.

#include "orva/orva_care.h"
#include "store/GroupPaths.h"
#include "store/Store.h"

namespace orva
{

Content Store::readContent(int id)
{
    Query query(*m_db, m_selectOne.back().c_str());
    if (!query.bind(1, id).step())
        throw Failure(ORVA_E_NOT_FOUND, "no such record");
    Content content;
    for (std::size_t field = 0; field < m_columns.size(); ++field)
        content.values.emplace_back(query.text(static_cast<int>(field) + 1));
    content.kept = readKept(id);
    return content;
}

std::vector<Content> Store::contents(const std::vector<int>& ids)
{
    return reading([&] {
        std::vector<Content> all;
        all.reserve(ids.size());
        for (const int id : ids)
            all.push_back(readContent(id));
        return all;
    });
}

std::vector<std::u16string> Store::groupPaths(const std::vector<int>& ids)
{
    return reading([&] {
        std::vector<std::u16string> paths;
        for (const int id : ids) {
            Query query(*m_db, groupPathsSql);
            query.bind(1, id);
            while (query.step())
                paths.emplace_back(query.text(0));
        }
        return paths;
    });
}

void Store::mergeSet(const std::vector<int>& ids, const MergedOf& mergedOf)
{
    std::vector<Content> all;
    all.reserve(ids.size());
    for (const int id : ids)
        all.push_back(readContent(id));
    const int first = ids.front();
    const Content merged = mergedOf(all);
    storeContent(first, merged.values, merged.kept);
    for (std::size_t i = 1; i < ids.size(); ++i) {
        Query(*m_db, "INSERT OR IGNORE INTO memberships (grp, record) "
                     "SELECT grp, ? FROM memberships WHERE record = ? ORDER BY id")
            .bind(1, first)
            .bind(2, ids[i])
            .step();
        eraseRecord(ids[i]);
    }
}

void Store::merge(const std::vector<std::vector<int>>& sets, const MergedOf& mergedOf)
{
    writing([&] {
        wholly([&] {
            for (const std::vector<int>& ids : sets)
                mergeSet(ids, mergedOf);
            return 0;
        });
        // Of each of them it has to be told if the transaction is lost.
        for (const std::vector<int>& ids : sets)
            if (gathers())
                m_gathered.insert(m_gathered.end(), ids.begin(), ids.end());
        return 0;
    });
}

} // namespace orva
