// group add, rename, delete and move.

#include <algorithm>
#include <cstdio>

#include "Commands.h"
#include "Groups.h"
#include "Sdk.h"

namespace pbctl
{

namespace
{

constexpr int memory = ORVA_MEMORY_LOCAL;

bool isThere(const Groups& groups, const std::string& path)
{
    return std::any_of(groups.all().begin(), groups.all().end(), [&](const Group& g) { return g.path == path; });
}

std::string parentOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

void requireFree(const Groups& groups, const std::string& path)
{
    requireGroupPath(path);
    if (isThere(groups, path))
        throw UsageError("there is a group \"" + path + "\" already");
}

int addGroup(const std::string& path)
{
    Groups groups;
    requireFree(groups, path);
    std::printf("%d\n", groups.provide(path));
    return done;
}

int renameGroup(const std::string& path, const std::string& name)
{
    const Groups groups;
    const Group& group = groups.at(path);
    if (name.find('/') != std::string::npos)
        throw UsageError("a name without \"/\" is needed; group move takes a group elsewhere");
    const std::string parent = parentOf(path);
    requireFree(groups, parent.empty() ? name : parent + "/" + name);
    Handle renamed(ORVA_PBSrv_AddrGroup_Release);
    check(ORVA_PBSrv_CreateAddrGroup(memory, renamed.out()), "renaming the group " + path);
    check(ORVA_PBSrv_AddrGroup_SetName(renamed.get(), units(toSdk(name))), "renaming the group " + path);
    check(ORVA_PBSrv_UpdateGroup(renamed.get(), group.id), "renaming the group " + path);
    return done;
}

int deleteGroup(const std::string& path)
{
    check(ORVA_PBSrv_DelGroup(Groups().at(path).id, memory), "deleting the group " + path);
    return done;
}

// A group keeps its parent for life, so that the groups are made anew, with their members.
int moveGroup(const std::string& path, const std::string& target)
{
    Groups groups;
    const Group moved = groups.at(path);
    if (!target.empty())
        groups.at(target);
    if ((target + "/").rfind(path + "/", 0) == 0)
        throw UsageError("a group cannot lie in itself");
    const std::string goal = target.empty() ? moved.name : target + "/" + moved.name;
    requireFree(groups, goal);
    Transaction transaction(memory);
    for (const Group& group : std::vector<Group>(groups.all())) {
        if (group.path != path && group.path.rfind(path + "/", 0) != 0)
            continue;
        const std::string place = goal + group.path.substr(path.size());
        const int id = groups.provide(place);
        for (const int member : group.members)
            check(ORVA_PBSrv_AddAddrToGroup(id, member, memory), "filling the group " + place);
    }
    check(ORVA_PBSrv_DelGroup(moved.id, memory), "deleting the group " + path);
    transaction.commit();
    return done;
}

} // namespace

int runGroup(const Arguments& arguments)
{
    arguments.require(2, 3, {});
    const std::string verb = arguments.words()[1];
    const std::string path = textIn(arguments.words()[2]);
    if (arguments.words().size() == 3 && (verb == "add" || verb == "delete"))
        return verb == "add" ? addGroup(path) : deleteGroup(path);
    if (arguments.words().size() == 4 && verb == "rename")
        return renameGroup(path, textIn(arguments.words()[3]));
    if (arguments.words().size() == 4 && verb == "move")
        return moveGroup(path, textIn(arguments.words()[3]));
    throw UsageError("group takes add PATH, delete PATH, rename PATH NAME or move PATH TARGET");
}

} // namespace pbctl
