#ifndef SDK_API_BOUNDARY_H
#define SDK_API_BOUNDARY_H

#include "base/Failure.h"

namespace orva
{

// Turns the exception in flight into a result code and a line in the log. Call only from a catch block.
long reportException(const char* function) noexcept;

// Runs the body of a C entry point: nothing leaves it but a code. The body returns a code itself (ORVA_OK, or one that
// is no failure, such as the end of a walk) or throws.
template <typename Body>
long guarded(const char* function, Body&& body) noexcept
{
    try {
        return body();
    } catch (...) {
        return reportException(function);
    }
}

// Failure(ORVA_E_ARGUMENT) for a null pointer.
inline void require(const void* pointer)
{
    if (pointer == nullptr)
        throw Failure(ORVA_E_ARGUMENT, "null pointer");
}

} // namespace orva

#endif // SDK_API_BOUNDARY_H
