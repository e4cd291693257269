#ifndef SDK_API_LIBRARY_H
#define SDK_API_LIBRARY_H

#include <string>

#include "memories/Memory.h"

namespace orva
{

// The memory of a number, opened on first use. Failure(ORVA_E_ARGUMENT) for an unknown number, ORVA_E_ABSENT for a
// card or device that is not there, ORVA_E_STORE for a store that cannot be opened.
Memory& memoryFor(int memory);

// The data folder, without a slash at its end; it exists and is the user's alone.
std::string dataFolder();

} // namespace orva

#endif // SDK_API_LIBRARY_H
