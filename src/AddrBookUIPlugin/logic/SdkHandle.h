#ifndef ADDRBOOKUIPLUGIN_SDKHANDLE_H
#define ADDRBOOKUIPLUGIN_SDKHANDLE_H

#include "logic/Log.h"
#include "orva/orva_sdk.h"

// Releases of the SDK's handles: a null one is let be, a released one becomes null. A failed release is only logged.

#define ADDRBOOK_SDK_RELEASE(name, function)                                                                           \
    inline void name(void*& hHandle)                                                                                   \
    {                                                                                                                  \
        if (hHandle == nullptr)                                                                                        \
            return;                                                                                                    \
        long lResult = 0;                                                                                              \
        SDK_CALL(lResult, function, (hHandle));                                                                        \
        hHandle = nullptr;                                                                                             \
    }

ADDRBOOK_SDK_RELEASE(releaseRecord, ORVA_PBSrv_AddrRecord_Release)
ADDRBOOK_SDK_RELEASE(releaseRecordSet, ORVA_PBSrv_AddrRecordSet_Release)
ADDRBOOK_SDK_RELEASE(releaseGroup, ORVA_PBSrv_AddrGroup_Release)
ADDRBOOK_SDK_RELEASE(releaseGroupSet, ORVA_PBSrv_AddrGroupSet_Release)

#undef ADDRBOOK_SDK_RELEASE

// True while the walk over a record set has a further record.
inline bool moveToNextRecord(void* hAddrRecordSet)
{
    long lResult = 0;
    SDK_WALK(lResult, ORVA_PBSrv_AddrRecordSet_MoveNext, (hAddrRecordSet));
    return lResult == 0;
}

inline bool moveToFirstRecord(void* hAddrRecordSet)
{
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_AddrRecordSet_MoveFirst, (hAddrRecordSet));
    return lResult == 0;
}

#endif // ADDRBOOKUIPLUGIN_SDKHANDLE_H
