#include "api/Handles.h"

#include <array>
#include <atomic>
#include <mutex>

namespace orva
{

namespace
{

/*
 * A handle is a number: the index of a slot, and the slot's round, which grows each time it is given out. Slots live in
 * pages that are never freed, so that any number can be looked up, without a lock, whatever it is.
 */
constexpr unsigned indexBits = 20;
constexpr unsigned pageBits = 10;
constexpr std::uintptr_t indexMask = (std::uintptr_t{1} << indexBits) - 1;
constexpr std::uintptr_t pageMask = (std::uintptr_t{1} << pageBits) - 1;
constexpr std::size_t pageCount = std::size_t{1} << (indexBits - pageBits);

struct Slot {
    std::atomic<std::uintptr_t> handle{0}; // the number that is good for it now, 0 while it is free
    std::atomic<HandleKind> kind{HandleKind::None};
    std::unique_ptr<HandleObject> object;
    std::uintptr_t round = 0;
};

using Page = std::array<Slot, std::size_t{1} << pageBits>;

struct Table {
    std::mutex mutex;
    std::array<std::atomic<Page*>, pageCount> pages{};
    std::vector<std::uintptr_t> free;
    std::uintptr_t used = 1; // index 0 is never given out, so that no handle is null

    Slot* slot(std::uintptr_t index)
    {
        Page* const page = pages[index >> pageBits].load(std::memory_order_acquire);
        return page == nullptr ? nullptr : &(*page)[index & pageMask];
    }
};

// Lives as long as the process: a client may release its last handle from a destructor of its own.
Table& table()
{
    static auto* const all = new Table;
    return *all;
}

Slot& find(HandleKind kind, void* handle)
{
    if (handle == nullptr)
        throw Failure(ORVA_E_ARGUMENT, "null handle");
    const auto number = reinterpret_cast<std::uintptr_t>(handle);
    Slot* const slot = table().slot(number & indexMask);
    if (slot == nullptr || slot->handle.load(std::memory_order_acquire) != number ||
        slot->kind.load(std::memory_order_relaxed) != kind)
        throw Failure(ORVA_E_HANDLE, "not a handle of this kind");
    return *slot;
}

} // namespace

void* registerHandle(HandleKind kind, std::unique_ptr<HandleObject> object)
{
    Table& all = table();
    const std::lock_guard<std::mutex> lock(all.mutex);
    std::uintptr_t index = all.used;
    if (!all.free.empty()) {
        index = all.free.back();
        all.free.pop_back();
    } else {
        if (index > indexMask)
            throw Failure(ORVA_E_NO_MEMORY, "too many handles");
        // Room for giving the slot back is made now: a release must not fail.
        all.free.reserve(index + 1);
        std::atomic<Page*>& page = all.pages[index >> pageBits];
        if (page.load(std::memory_order_relaxed) == nullptr)
            page.store(new Page, std::memory_order_release);
        ++all.used;
    }
    Slot& slot = *all.slot(index);
    ++slot.round;
    slot.object = std::move(object);
    slot.kind.store(kind, std::memory_order_relaxed);
    const std::uintptr_t number = (slot.round << indexBits) | index;
    slot.handle.store(number, std::memory_order_release);
    return reinterpret_cast<void*>(number);
}

HandleObject& findHandle(HandleKind kind, void* handle)
{
    return *find(kind, handle).object;
}

std::unique_ptr<HandleObject> takeHandle(HandleKind kind, void* handle)
{
    Table& all = table();
    const std::lock_guard<std::mutex> lock(all.mutex);
    Slot& slot = find(kind, handle);
    slot.handle.store(0, std::memory_order_release);
    slot.kind.store(HandleKind::None, std::memory_order_relaxed);
    all.free.push_back(reinterpret_cast<std::uintptr_t>(handle) & indexMask);
    return std::move(slot.object);
}

void dropAllHandles()
{
    Table& all = table();
    const std::lock_guard<std::mutex> lock(all.mutex);
    for (std::uintptr_t index = 1; index < all.used; ++index) {
        Slot& slot = *all.slot(index);
        if (slot.handle.exchange(0) == 0)
            continue;
        slot.object.reset();
        all.free.push_back(index);
    }
}

} // namespace orva
