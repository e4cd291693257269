#include "api/Boundary.h"
#include "api/Library.h"

using namespace orva;

long ORVA_PBSrv_BeginTransaction(int memory)
{
    return guarded(__func__, [&] {
        memoryFor(memory).begin();
        return ORVA_OK;
    });
}

long ORVA_PBSrv_EndTransaction(int memory)
{
    return guarded(__func__, [&] {
        memoryFor(memory).end();
        return ORVA_OK;
    });
}
