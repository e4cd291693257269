#include "base/Module.h"

#include <dlfcn.h>
#include <unistd.h>

namespace orva
{

namespace
{

// Empty if the loader cannot tell.
std::string ownFolder()
{
    Dl_info own = {};
    if (::dladdr(reinterpret_cast<void*>(&moduleEntry), &own) == 0 || own.dli_fname == nullptr)
        return {};
    const std::string file = own.dli_fname;
    const std::size_t slash = file.rfind('/');
    return slash == std::string::npos ? std::string() : file.substr(0, slash + 1);
}

} // namespace

void* moduleEntry(const char* module, const char* entry, std::string& problem)
{
    const std::string folder = ownFolder();
    if (folder.empty()) {
        problem = "no folder of the library";
        return nullptr;
    }
    std::string path = folder + module;
    if (::access(path.c_str(), F_OK) != 0 && ::access((folder + "lib/" + module).c_str(), F_OK) == 0)
        path = folder + "lib/" + module;
    void* const opened = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (opened == nullptr) {
        const char* const why = ::dlerror();
        problem = why != nullptr ? why : path;
        return nullptr;
    }
    void* const found = ::dlsym(opened, entry);
    if (found == nullptr)
        problem = std::string(module) + " is of another release";
    return found;
}

} // namespace orva
