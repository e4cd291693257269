#ifndef SDK_BASE_MODULE_H
#define SDK_BASE_MODULE_H

#include <string>

namespace orva
{

// A function of a module of this library, which is opened at the first call and never closed: what it stands on may
// keep things of each thread. The module lies beside the library or in the folder "lib" beside the program; nothing
// elsewhere is trusted. Null, and why, if there is none, or it is of another release. Any thread.
void* moduleEntry(const char* module, const char* entry, std::string& problem);

} // namespace orva

#endif // SDK_BASE_MODULE_H
