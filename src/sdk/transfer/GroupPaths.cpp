#include "transfer/GroupPaths.h"

#include <algorithm>

#include "base/Failure.h"
#include "base/Text.h"
#include "store/Store.h"
#include "vcard/GroupNames.h"

namespace orva
{

namespace
{

constexpr std::size_t longestName = 1024;

// In the order of their identifiers, of which a parent's is the smaller one.
template <typename Visit>
void forEachPath(Store& store, Visit&& visit)
{
    std::unordered_map<int, std::string> paths;
    const std::shared_ptr<const std::vector<StoredGroup>> groups = store.groups();
    for (const StoredGroup& group : *groups) {
        const auto parent = paths.find(group.parent);
        const std::string path = (parent == paths.end() ? "" : parent->second + "/") + toUtf8(group.name);
        paths.emplace(group.id, path);
        visit(path, group.id);
    }
}

} // namespace

void GroupPaths::join(const std::string& path, int record)
{
    try {
        m_store.join(provide(path), record);
        return;
    } catch (const Failure& failure) {
        if (failure.code() != ORVA_E_NOT_FOUND)
            throw;
    }
    // The group, or one above it, went meanwhile.
    m_read = false;
    m_store.join(provide(path), record);
}

void GroupPaths::require(const std::string& path)
{
    for (std::size_t begin = 0;;) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string name = path.substr(begin, end - begin);
        if (trimmedName(name).empty())
            throw Failure(ORVA_E_ARGUMENT, "a level of a group's path has no name");
        if (fromUtf8(name).size() > longestName)
            throw Failure(ORVA_E_TOO_LONG, "the name of a group is too long");
        if (end == path.size())
            return;
        begin = end + 1;
    }
}

std::map<int, std::vector<std::string>> GroupPaths::byRecord(Store& store)
{
    std::map<int, std::vector<std::string>> byRecord;
    forEachPath(store, [&](const std::string& path, int group) {
        for (const int member : store.members(group))
            byRecord[member].push_back(path);
    });
    return byRecord;
}

int GroupPaths::provide(const std::string& path)
{
    if (!m_read)
        read();
    const auto known = m_ids.find(path);
    if (known != m_ids.end())
        return known->second;
    const std::size_t slash = path.rfind('/');
    const int parent = slash == std::string::npos ? 0 : provide(path.substr(0, slash));
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    const int id = m_store.addGroup(fromUtf8(name), parent);
    m_ids.emplace(path, id);
    return id;
}

void GroupPaths::read()
{
    m_ids.clear();
    forEachPath(m_store, [this](const std::string& path, int group) { m_ids.emplace(path, group); });
    m_read = true;
}

} // namespace orva
