#ifndef SDK_API_HANDLES_H
#define SDK_API_HANDLES_H

#include <cstdint>
#include <forward_list>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "memories/RecordSet.h"

namespace orva
{

struct StoredGroup;

enum class HandleKind : std::uint8_t {
    None = 0,
    Record,
    RecordSet,
    Group,
    GroupSet,
    Match,
    SyncResult,
    SyncHold,
    Import
};

// What a handle stands for. The void* that clients hold is a number, not an address: a stale, foreign or invented one
// is found out without touching freed memory.
class HandleObject
{
public:
    virtual ~HandleObject() = default;
};

struct RecordHandle final : HandleObject {
    static constexpr HandleKind kind = HandleKind::Record;
    int memory = 0;
    std::shared_ptr<const Profile> profile;
    Values values; // as many as the profile has fields
    int id = 0;    // of the record or entry of the bin that it is a copy of; 0 for none
    bool fromBin = false;
    int hint = 0;                    // field set next, most likely
    std::optional<std::string> kept; // what was set
};

struct RecordSetHandle final : HandleObject {
    static constexpr HandleKind kind = HandleKind::RecordSet;
    explicit RecordSetHandle(std::unique_ptr<RecordSet> s) : set(std::move(s)) {}
    std::unique_ptr<RecordSet> set;
};

struct GroupHandle final : HandleObject {
    static constexpr HandleKind kind = HandleKind::Group;
    int memory = 0;
    int parent = 0;
    std::u16string name;
};

struct GroupSetHandle final : HandleObject {
    static constexpr HandleKind kind = HandleKind::GroupSet;
    int memory = 0;
    std::shared_ptr<const std::vector<StoredGroup>> groups;
    std::size_t next = 0; // behind the current group; 0 in front of the first
    // What GetAddrInGroupByID handed out, by group; clients may still read any of it.
    std::unordered_map<int, std::forward_list<std::vector<int>>> members;
};

// Gives a new handle to an object.
void* registerHandle(HandleKind kind, std::unique_ptr<HandleObject> object);

// The object behind a handle: Failure(ORVA_E_ARGUMENT) for null, Failure(ORVA_E_HANDLE) for one of another kind or
// one that is released.
HandleObject& findHandle(HandleKind kind, void* handle);
std::unique_ptr<HandleObject> takeHandle(HandleKind kind, void* handle);

// Frees every handle that is still out.
void dropAllHandles();

template <typename T>
void* newHandle(std::unique_ptr<T> object)
{
    return registerHandle(T::kind, std::move(object));
}

template <typename T>
T& fromHandle(void* handle)
{
    return static_cast<T&>(findHandle(T::kind, handle));
}

template <typename T>
std::unique_ptr<T> takeHandle(void* handle)
{
    return std::unique_ptr<T>(static_cast<T*>(takeHandle(T::kind, handle).release()));
}

template <typename T>
void releaseHandle(void* handle)
{
    takeHandle(T::kind, handle).reset();
}

} // namespace orva

#endif // SDK_API_HANDLES_H
