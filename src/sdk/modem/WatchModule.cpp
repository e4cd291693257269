// The module is a library of its own, so that nobody who names no modem needs what it stands on.

#include <dlfcn.h>

#include "modem/ModemWatch.h"

namespace orva
{

namespace
{

constexpr char moduleName[] = "libsdk-modem.so";

// Beside the library that this is part of; nothing elsewhere is trusted.
std::string modulePath()
{
    Dl_info own = {};
    if (::dladdr(reinterpret_cast<void*>(&openModemWatch), &own) == 0 || own.dli_fname == nullptr)
        return {};
    const std::string file = own.dli_fname;
    const std::size_t slash = file.rfind('/');
    return slash == std::string::npos ? std::string() : file.substr(0, slash + 1) + moduleName;
}

} // namespace

std::unique_ptr<ModemWatch> openModemWatch(WatchKind kind, std::string& problem)
{
    const std::string path = modulePath();
    // Never closed again: D-Bus keeps its own things of each thread.
    void* const module = path.empty() ? nullptr : ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (module == nullptr) {
        const char* const why = path.empty() ? nullptr : ::dlerror();
        problem = std::string("modems cannot be found: ") + (why != nullptr ? why : "no folder of the library");
        return nullptr;
    }
    const auto entry = reinterpret_cast<ModemWatchEntry>(::dlsym(module, modemWatchEntry));
    if (entry == nullptr) {
        problem = std::string("modems cannot be found: ") + moduleName + " is of another release";
        return nullptr;
    }
    return std::unique_ptr<ModemWatch>(entry(kind));
}

} // namespace orva
