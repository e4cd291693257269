#include "Groups.h"

#include <algorithm>

#include "Arguments.h"
#include "Sdk.h"
#include "vcard/GroupNames.h"

namespace pbctl
{

namespace
{

constexpr int memory = ORVA_MEMORY_LOCAL;
constexpr long noGroups = -1; // of AddrGroupSet_MoveFirst
constexpr std::size_t longestName = 1024;

Group readGroup(void* set)
{
    Group group;
    unsigned short* name = nullptr;
    check(ORVA_PBSrv_AddrGroupSet_GetID(set, &group.id), "reading a group");
    check(ORVA_PBSrv_AddrGroupSet_GetParentID(set, &group.parent), "reading a group");
    check(ORVA_PBSrv_AddrGroupSet_GetName(set, &name), "reading a group");
    group.name = takeUtf8(name);
    int count = 0;
    int* ids = nullptr;
    check(ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID(set, group.id, &count, &ids), "reading a group");
    group.members.assign(ids, ids + count);
    return group;
}

} // namespace

Groups::Groups()
{
    Handle set(ORVA_PBSrv_AddrGroupSet_Release);
    check(ORVA_PBSrv_GetGroupList(memory, set.out()), "reading the groups");
    long more = ORVA_PBSrv_AddrGroupSet_MoveFirst(set.get());
    for (; more == ORVA_OK; more = ORVA_PBSrv_AddrGroupSet_MoveNext(set.get()))
        m_groups.push_back(readGroup(set.get()));
    if (more != noGroups)
        checkEnd(more, "reading the groups");
    for (Group& group : m_groups) {
        group.path = group.name;
        // A parent has a smaller identifier than its child, so this ends whatever the store holds.
        for (const Group* child = &group; child->parent != 0;) {
            const auto parent = std::find_if(m_groups.begin(), m_groups.end(), [child](const Group& other) {
                return other.id == child->parent && other.id < child->id;
            });
            if (parent == m_groups.end())
                break;
            group.path.insert(0, parent->name + "/");
            child = &*parent;
        }
        m_ids.emplace(group.path, group.id);
    }
}

const Group& Groups::at(const std::string& path) const
{
    const auto found = std::find_if(m_groups.begin(), m_groups.end(), [&](const Group& g) { return g.path == path; });
    if (found == m_groups.end())
        throw UsageError("there is no group \"" + path + "\"");
    return *found;
}

int Groups::provide(const std::string& path)
{
    const auto known = m_ids.find(path);
    if (known != m_ids.end())
        return known->second;
    requireGroupPath(path);
    const std::size_t slash = path.rfind('/');
    const int parent = slash == std::string::npos ? 0 : provide(path.substr(0, slash));
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    Handle group(ORVA_PBSrv_AddrGroup_Release);
    int id = 0;
    check(ORVA_PBSrv_CreateAddrGroup(memory, group.out()), "making the group " + path);
    check(ORVA_PBSrv_AddrGroup_SetName(group.get(), units(toSdk(name))), "making the group " + path);
    check(ORVA_PBSrv_AddrGroup_SetParentID(group.get(), parent), "making the group " + path);
    check(ORVA_PBSrv_AddGroup(group.get(), &id), "making the group " + path);
    m_ids.emplace(path, id);
    m_made.push_back(id);
    return id;
}

void Groups::removeMade()
{
    for (; !m_made.empty(); m_made.pop_back())
        ORVA_PBSrv_DelGroup(m_made.back(), memory);
}

void requireGroupPath(const std::string& path)
{
    for (std::size_t begin = 0;;) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        if (orva::trimmedName(path.substr(begin, end - begin)).empty())
            throw UsageError("\"" + path + "\" is no group: a level has no name");
        if (toSdk(path.substr(begin, end - begin)).size() > longestName)
            throw SdkError("making the group " + path, ORVA_E_TOO_LONG);
        if (end == path.size())
            return;
        begin = end + 1;
    }
}

void join(Groups& groups, int record, const std::vector<std::string>& paths)
{
    for (const std::string& path : paths)
        check(ORVA_PBSrv_AddAddrToGroup(groups.provide(path), record, memory), "filling the group " + path);
}

} // namespace pbctl
