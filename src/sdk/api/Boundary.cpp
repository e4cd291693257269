#include "api/Boundary.h"

#include <new>

#include "base/Log.h"

namespace orva
{

long reportException(const char* function) noexcept
{
    try {
        throw;
    } catch (const Failure& failure) {
        // A card that is out is a state, not an incident; clients ask all the time.
        if (failure.code() != ORVA_E_ABSENT && failure.code() != ORVA_E_END)
            logFormat("%s: %ld: %s", function, failure.code(), failure.what());
        return failure.code();
    } catch (const std::bad_alloc&) {
        logFormat("%s: out of memory", function);
        return ORVA_E_NO_MEMORY;
    } catch (const std::exception& failure) {
        logFormat("%s: %s", function, failure.what());
        return ORVA_E_INTERNAL;
    } catch (...) {
        logFormat("%s: unknown exception", function);
        return ORVA_E_INTERNAL;
    }
}

} // namespace orva
