#ifndef ADDRBOOKUIPLUGIN_MEMORYLIST_H
#define ADDRBOOKUIPLUGIN_MEMORYLIST_H

#include <QList>
#include <QVector>

#include "logic/SdkCall.h"
#include "orva/orva_sdk.h"

// The device-side memories in the SDK's order. False if even their number is not known.
inline bool readMemoryList(QList<int>& lstMemories, const char* pszFile = SDK_CALLER_FILE,
                           const char* pszFunction = SDK_CALLER_FUNCTION)
{
    const SdkCaller caller(pszFile, pszFunction);
    unsigned short usCount = 0;
    long lResult = 0;
    SDK_CALL_AT(caller, lResult, 0, ORVA_PBSrv_PBGetMemoryListType, (nullptr, &usCount));
    if (lResult != 0)
        return false;
    if (usCount == 0)
        return true;
    // What the second call says of the count must not lead out of the buffer.
    QVector<short> lstTypes(usCount, -1);
    SDK_CALL_AT(caller, lResult, 0, ORVA_PBSrv_PBGetMemoryListType, (lstTypes.data(), &usCount));
    foreach (short iType, lstTypes) {
        if (iType != -1)
            lstMemories.append(iType);
    }
    return true;
}

#endif // ADDRBOOKUIPLUGIN_MEMORYLIST_H
