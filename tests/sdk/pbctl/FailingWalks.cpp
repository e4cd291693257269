// pbctl with a library whose walks break off: linked in front of libsdk.so.1, these take its calls and hand them on
// until the one that PBCTL_FAILS names: "records", "groups" or "first groups", a colon and the number of the call,
// counted from 1.

#include <dlfcn.h>

#include <cstdlib>
#include <cstring>

#include "orva/orva_sdk.h"

namespace
{

bool fails(const char* walk)
{
    static int calls = 0;
    const char* const plan = std::getenv("PBCTL_FAILS");
    const std::size_t length = std::strlen(walk);
    if (plan == nullptr || std::strncmp(plan, walk, length) != 0 || plan[length] != ':')
        return false;
    return ++calls == std::atoi(plan + length + 1);
}

long handOn(const char* name, void* set)
{
    auto* const real = reinterpret_cast<long (*)(void*)>(::dlsym(RTLD_NEXT, name));
    return real(set);
}

} // namespace

extern "C" {

ORVA_API long ORVA_PBSrv_AddrRecordSet_MoveNext(void* set)
{
    return fails("records") ? ORVA_E_STORE : handOn(__func__, set);
}

ORVA_API long ORVA_PBSrv_AddrGroupSet_MoveFirst(void* set)
{
    return fails("first groups") ? ORVA_E_STORE : handOn(__func__, set);
}

ORVA_API long ORVA_PBSrv_AddrGroupSet_MoveNext(void* set)
{
    return fails("groups") ? ORVA_E_ABSENT : handOn(__func__, set);
}
}
