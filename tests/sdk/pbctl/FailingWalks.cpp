// pbctl with a library whose walks break off: linked in front of libsdk.so.1, these take its calls and hand them on
// until the one that PBCTL_FAILS names: "records", "groups" or "first groups", a colon and the number of the call,
// counted from 1.

#include <dlfcn.h>

#include <cstdlib>
#include <cstring>

#include "orva/orva_care.h"
#include "orva/orva_sdk.h"

namespace
{

// The number that the plan has for a walk; 0 for none.
int planned(const char* walk)
{
    const char* const plan = std::getenv("PBCTL_FAILS");
    const std::size_t length = std::strlen(walk);
    if (plan == nullptr || std::strncmp(plan, walk, length) != 0 || plan[length] != ':')
        return 0;
    return std::atoi(plan + length + 1);
}

bool fails(const char* walk)
{
    static int calls = 0;
    return planned(walk) > 0 && ++calls == planned(walk);
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

// Breaks off behind as many contacts of a source.
ORVA_API long ORVA_Care_Import_Step(void* import, int most)
{
    auto* const real = reinterpret_cast<long (*)(void*, int)>(::dlsym(RTLD_NEXT, __func__));
    const int contacts = planned("records");
    if (contacts == 0)
        return real(import, most);
    real(import, contacts);
    return ORVA_E_STORE;
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
