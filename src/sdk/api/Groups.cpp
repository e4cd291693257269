// Groups of the PC's phonebook.

#include "api/Boundary.h"
#include "api/Handles.h"
#include "api/Library.h"
#include "base/Text.h"
#include "store/Store.h"

using namespace orva;

namespace
{

// Longest name of a group, in UTF-16 units; what a window shows is far below.
constexpr std::size_t longestGroupName = 1024;

constexpr long emptyGroupSet = -1;

const StoredGroup& currentGroup(void* handle)
{
    const auto& set = fromHandle<GroupSetHandle>(handle);
    if (set.next == 0 || set.next > set.groups->size())
        throw Failure(ORVA_E_END, "no current group");
    return (*set.groups)[set.next - 1];
}

} // namespace

// ---- Sets

long ORVA_PBSrv_GetGroupList(int memory, void** set)
{
    return guarded(__func__, [&] {
        require(set);
        *set = nullptr;
        auto made = std::make_unique<GroupSetHandle>();
        made->memory = memory;
        made->groups = groupStore(memory).groups();
        *set = newHandle(std::move(made));
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrGroupSet_MoveFirst(void* set)
{
    return guarded(__func__, [&]() -> long {
        auto& held = fromHandle<GroupSetHandle>(set);
        if (held.groups->empty())
            return emptyGroupSet;
        held.next = 1;
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrGroupSet_MoveNext(void* set)
{
    return guarded(__func__, [&] {
        auto& held = fromHandle<GroupSetHandle>(set);
        if (held.next <= held.groups->size())
            ++held.next;
        return held.next <= held.groups->size() ? ORVA_OK : ORVA_E_END;
    });
}

long ORVA_PBSrv_AddrGroupSet_GetID(void* set, int* id)
{
    return guarded(__func__, [&] {
        const StoredGroup& group = currentGroup(set);
        require(id);
        *id = group.id;
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrGroupSet_GetParentID(void* set, int* parent)
{
    return guarded(__func__, [&] {
        const StoredGroup& group = currentGroup(set);
        require(parent);
        *parent = group.parent;
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrGroupSet_GetName(void* set, unsigned short** name)
{
    return guarded(__func__, [&] {
        const StoredGroup& group = currentGroup(set);
        require(name);
        *name = toApi(group.name);
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrGroupSet_GetGroupSize(void* set, int* size)
{
    return guarded(__func__, [&] {
        const StoredGroup& group = currentGroup(set);
        require(size);
        *size = group.size;
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID(void* set, int group, int* count, int** ids)
{
    return guarded(__func__, [&] {
        auto& held = fromHandle<GroupSetHandle>(set);
        require(count);
        require(ids);
        std::vector<int> now = groupStore(held.memory).members(group);
        std::forward_list<std::vector<int>>& given = held.members[group];
        if (given.empty() || given.front() != now)
            given.push_front(std::move(now));
        std::vector<int>& members = given.front();
        *count = static_cast<int>(members.size());
        *ids = members.empty() ? nullptr : members.data();
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrGroupSet_Release(void* set)
{
    return guarded(__func__, [&] {
        releaseHandle<GroupSetHandle>(set);
        return ORVA_OK;
    });
}

// ---- Single groups

long ORVA_PBSrv_CreateAddrGroup(int memory, void** group)
{
    return guarded(__func__, [&] {
        require(group);
        groupStore(memory);
        auto made = std::make_unique<GroupHandle>();
        made->memory = memory;
        *group = newHandle(std::move(made));
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrGroup_SetName(void* group, const unsigned short* name)
{
    return guarded(__func__, [&] {
        auto& held = fromHandle<GroupHandle>(group);
        std::u16string text = fromApi(name);
        if (text.size() > longestGroupName)
            throw Failure(ORVA_E_TOO_LONG, "the name of a group is too long");
        held.name = std::move(text);
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrGroup_SetParentID(void* group, int parent)
{
    return guarded(__func__, [&] {
        auto& held = fromHandle<GroupHandle>(group);
        if (parent < 0)
            throw Failure(ORVA_E_ARGUMENT, "negative identifier");
        held.parent = parent;
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddrGroup_Release(void* group)
{
    return guarded(__func__, [&] {
        releaseHandle<GroupHandle>(group);
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddGroup(void* group, int* id)
{
    return guarded(__func__, [&] {
        const auto& held = fromHandle<GroupHandle>(group);
        require(id);
        *id = groupStore(held.memory).addGroup(held.name, held.parent);
        return ORVA_OK;
    });
}

long ORVA_PBSrv_UpdateGroup(void* group, int id)
{
    return guarded(__func__, [&] {
        const auto& held = fromHandle<GroupHandle>(group);
        groupStore(held.memory).renameGroup(id, held.name);
        return ORVA_OK;
    });
}

long ORVA_PBSrv_DelGroup(int id, int memory)
{
    return guarded(__func__, [&] {
        groupStore(memory).eraseGroup(id);
        return ORVA_OK;
    });
}

long ORVA_PBSrv_AddAddrToGroup(int group, int record, int memory)
{
    return guarded(__func__, [&] {
        Store& store = groupStore(memory);
        if (group != 0)
            store.join(group, record);
        return ORVA_OK;
    });
}

long ORVA_PBSrv_DelAddrFromGroup(int group, int record, int memory)
{
    return guarded(__func__, [&] {
        groupStore(memory).leave(group, record);
        return ORVA_OK;
    });
}
