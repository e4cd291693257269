#include "fakesdk/FakeSdkState.h"

using fakesdk::find;
using fakesdk::Handle;
using fakesdk::Kind;
using fakesdk::make;
using fakesdk::makeText;
using fakesdk::release;
using fakesdk::state;

long ORVA_PBSrv_GetGroupList(int memory, void** set)
{
    FAKE_ENTER("GetGroupList", memory);
    *set = nullptr;
    if (memory != ORVA_MEMORY_LOCAL)
        return ORVA_E_UNSUPPORTED;
    if (order.null)
        return ORVA_OK;
    Handle* handle = make(Kind::GroupSet, memory);
    for (const auto& entry : state().groups)
        handle->groups.push_back(entry.second);
    *set = handle;
    return ORVA_OK;
}

long ORVA_PBSrv_AddrGroupSet_MoveFirst(void* set)
{
    FAKE_ENTER("AddrGroupSet_MoveFirst");
    Handle* handle = find(set, Kind::GroupSet, "AddrGroupSet_MoveFirst");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    handle->position = 0;
    return handle->groups.empty() ? -1 : ORVA_OK;
}

long ORVA_PBSrv_AddrGroupSet_MoveNext(void* set)
{
    FAKE_ENTER("AddrGroupSet_MoveNext");
    Handle* handle = find(set, Kind::GroupSet, "AddrGroupSet_MoveNext");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    ++handle->position;
    return handle->position < handle->groups.size() ? ORVA_OK : ORVA_E_END;
}

// The group at the set's position, null behind the end.
static const FakeSdk::Group* current(void* set, const char* name)
{
    Handle* handle = find(set, Kind::GroupSet, name);
    if (handle == nullptr || handle->position >= handle->groups.size())
        return nullptr;
    return &handle->groups[handle->position];
}

long ORVA_PBSrv_AddrGroupSet_GetID(void* set, int* id)
{
    FAKE_ENTER("AddrGroupSet_GetID");
    const FakeSdk::Group* group = current(set, "AddrGroupSet_GetID");
    if (group == nullptr)
        return ORVA_E_END;
    *id = group->id;
    return ORVA_OK;
}

long ORVA_PBSrv_AddrGroupSet_GetParentID(void* set, int* parent)
{
    FAKE_ENTER("AddrGroupSet_GetParentID");
    const FakeSdk::Group* group = current(set, "AddrGroupSet_GetParentID");
    if (group == nullptr)
        return ORVA_E_END;
    *parent = group->parent;
    return ORVA_OK;
}

long ORVA_PBSrv_AddrGroupSet_GetName(void* set, unsigned short** name)
{
    FAKE_ENTER("AddrGroupSet_GetName");
    const FakeSdk::Group* group = current(set, "AddrGroupSet_GetName");
    if (group == nullptr)
        return ORVA_E_END;
    *name = order.null ? nullptr : makeText(group->name);
    return ORVA_OK;
}

long ORVA_PBSrv_AddrGroupSet_GetGroupSize(void* set, int* size)
{
    FAKE_ENTER("AddrGroupSet_GetGroupSize");
    const FakeSdk::Group* group = current(set, "AddrGroupSet_GetGroupSize");
    if (group == nullptr)
        return ORVA_E_END;
    *size = order.null ? 0 : group->members.size();
    return ORVA_OK;
}

long ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID(void* set, int group, int* count, int** ids)
{
    FAKE_ENTER("AddrGroupSet_GetAddrInGroupByID", group);
    Handle* handle = find(set, Kind::GroupSet, "AddrGroupSet_GetAddrInGroupByID");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    const auto found = state().groups.find(group);
    if (found == state().groups.end())
        return ORVA_E_NOT_FOUND;
    handle->members.assign(found->second.members.begin(), found->second.members.end());
    if (order.null)
        handle->members.clear();
    *count = static_cast<int>(handle->members.size());
    *ids = handle->members.empty() ? nullptr : handle->members.data();
    return ORVA_OK;
}

long ORVA_PBSrv_AddrGroupSet_Release(void* set)
{
    const fakesdk::Order order = fakesdk::enterCall("AddrGroupSet_Release");
    std::lock_guard<std::mutex> lock(fakesdk::mutex());
    const long code = release(set, Kind::GroupSet, "AddrGroupSet_Release");
    return order.code != 0 ? order.code : code;
}

long ORVA_PBSrv_CreateAddrGroup(int memory, void** group)
{
    FAKE_ENTER("CreateAddrGroup", memory);
    if (memory != ORVA_MEMORY_LOCAL)
        return ORVA_E_UNSUPPORTED;
    *group = order.null ? nullptr : make(Kind::Group, memory);
    return ORVA_OK;
}

long ORVA_PBSrv_AddrGroup_SetName(void* group, const unsigned short* name)
{
    FAKE_ENTER("AddrGroup_SetName", name);
    Handle* handle = find(group, Kind::Group, "AddrGroup_SetName");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    handle->name = QtCompat::fromUtf16(name);
    return ORVA_OK;
}

long ORVA_PBSrv_AddrGroup_SetParentID(void* group, int parent)
{
    FAKE_ENTER("AddrGroup_SetParentID", parent);
    Handle* handle = find(group, Kind::Group, "AddrGroup_SetParentID");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    handle->parent = parent;
    return ORVA_OK;
}

long ORVA_PBSrv_AddrGroup_Release(void* group)
{
    const fakesdk::Order order = fakesdk::enterCall("AddrGroup_Release");
    std::lock_guard<std::mutex> lock(fakesdk::mutex());
    const long code = release(group, Kind::Group, "AddrGroup_Release");
    return order.code != 0 ? order.code : code;
}

long ORVA_PBSrv_AddGroup(void* group, int* id)
{
    FAKE_ENTER("AddGroup");
    Handle* handle = find(group, Kind::Group, "AddGroup");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    if (handle->parent != 0 && state().groups.count(handle->parent) == 0)
        return ORVA_E_NOT_FOUND;
    *id = state().nextGroup++;
    state().groups[*id] = FakeSdk::Group{*id, handle->parent, handle->name, QList<int>()};
    return ORVA_OK;
}

long ORVA_PBSrv_UpdateGroup(void* group, int id)
{
    FAKE_ENTER("UpdateGroup", id);
    Handle* handle = find(group, Kind::Group, "UpdateGroup");
    if (handle == nullptr)
        return ORVA_E_HANDLE;
    const auto found = state().groups.find(id);
    if (found == state().groups.end())
        return ORVA_E_NOT_FOUND;
    found->second.name = handle->name;
    return ORVA_OK;
}

static void eraseGroup(int id)
{
    state().groups.erase(id);
    QList<int> children;
    for (const auto& entry : state().groups)
        if (entry.second.parent == id)
            children << entry.first;
    for (int child : children)
        eraseGroup(child);
}

long ORVA_PBSrv_DelGroup(int id, int memory)
{
    FAKE_ENTER("DelGroup", id, memory);
    if (memory != ORVA_MEMORY_LOCAL)
        return ORVA_E_UNSUPPORTED;
    if (state().groups.count(id) == 0)
        return ORVA_E_NOT_FOUND;
    eraseGroup(id);
    return ORVA_OK;
}

long ORVA_PBSrv_AddAddrToGroup(int group, int record, int memory)
{
    FAKE_ENTER("AddAddrToGroup", group, record, memory);
    if (memory != ORVA_MEMORY_LOCAL)
        return ORVA_E_UNSUPPORTED;
    if (group == 0)
        return ORVA_OK;
    const auto found = state().groups.find(group);
    if (found == state().groups.end() || state().memories[memory].records.count(record) == 0)
        return ORVA_E_NOT_FOUND;
    if (!found->second.members.contains(record))
        found->second.members << record;
    return ORVA_OK;
}

long ORVA_PBSrv_DelAddrFromGroup(int group, int record, int memory)
{
    FAKE_ENTER("DelAddrFromGroup", group, record, memory);
    if (memory != ORVA_MEMORY_LOCAL)
        return ORVA_E_UNSUPPORTED;
    const auto found = state().groups.find(group);
    if (found == state().groups.end() || found->second.members.removeAll(record) == 0)
        return ORVA_E_NOT_FOUND;
    return ORVA_OK;
}
