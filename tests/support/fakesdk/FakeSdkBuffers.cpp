#include "fakesdk/FakeSdkState.h"

#include <new>
#include <unordered_set>

// Text buffers are freed by the callers with array delete, so the array delete of this program tells which are alive.
// The sanitizers keep their own operators: there the leak checker does this, and a lock here would hide races.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define FAKESDK_COUNTS_BUFFERS 0
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define FAKESDK_COUNTS_BUFFERS 0
#endif
#endif
#ifndef FAKESDK_COUNTS_BUFFERS
#define FAKESDK_COUNTS_BUFFERS 1
#endif

namespace
{

std::mutex& bufferMutex()
{
    static std::mutex* const instance = new std::mutex;
    return *instance;
}

std::unordered_set<const void*>& buffers()
{
    static auto* const instance = new std::unordered_set<const void*>;
    return *instance;
}

} // namespace

namespace fakesdk
{

unsigned short* makeText(const QString& value)
{
    const size_t size = static_cast<size_t>(value.size()) + 1;
    unsigned short* buffer = new unsigned short[size];
    const ushort* const from = value.utf16();
    for (size_t i = 0; i < size; ++i)
        buffer[i] = from[i];
#if FAKESDK_COUNTS_BUFFERS
    std::lock_guard<std::mutex> lock(bufferMutex());
    buffers().insert(buffer);
#endif
    return buffer;
}

int buffersAlive()
{
    std::lock_guard<std::mutex> lock(bufferMutex());
    return static_cast<int>(buffers().size());
}

void forgetBuffers()
{
    std::lock_guard<std::mutex> lock(bufferMutex());
    buffers().clear();
}

} // namespace fakesdk

#if FAKESDK_COUNTS_BUFFERS
void operator delete[](void* pointer) noexcept
{
    if (pointer != nullptr) {
        std::lock_guard<std::mutex> lock(bufferMutex());
        buffers().erase(pointer);
    }
    ::operator delete(pointer);
}

void operator delete[](void* pointer, std::size_t) noexcept
{
    ::operator delete[](pointer);
}
#endif
