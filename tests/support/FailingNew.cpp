#include "FailingNew.h"

#include <atomic>
#include <new>

namespace
{

std::atomic<int> g_countdown(0);
std::atomic<bool> g_hasFailed(false);

bool isDue()
{
    if (g_countdown.load() <= 0 || g_countdown.fetch_sub(1) != 1)
        return false;
    g_hasFailed = true;
    return true;
}

} // namespace

void FailingNew::failNth(int nth)
{
    g_hasFailed = false;
    g_countdown = nth;
}

bool FailingNew::hasFailed()
{
    return g_hasFailed;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    try {
        return isDue() ? nullptr : ::operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    try {
        return isDue() ? nullptr : ::operator new[](size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
