#ifndef ADDRBOOKUIPLUGIN_SDKTEXT_H
#define ADDRBOOKUIPLUGIN_SDKTEXT_H

#include <QString>

#include "logic/Log.h"
#include "orva/orva_sdk.h"

// Turns a text buffer of the SDK into a QString and frees it; a null buffer gives a null string.
inline QString takeSdkText(unsigned short*& pBuffer)
{
    if (pBuffer == nullptr)
        return QString();
    QString strText = QString::fromUtf16(pBuffer, -1);
    delete[] pBuffer;
    pBuffer = nullptr;
    return strText;
}

// A text as the SDK takes it, for the length of one call.
inline const unsigned short* sdkText(const QString& strText)
{
    return strText.utf16();
}

inline void beginSdkTransaction(int iMemory)
{
    long iResult = 0;
    SDK_CALL(iResult, ORVA_PBSrv_BeginTransaction, (iMemory));
}

inline void endSdkTransaction(int iMemory)
{
    long iResult = 0;
    SDK_CALL(iResult, ORVA_PBSrv_EndTransaction, (iMemory));
}

#endif // ADDRBOOKUIPLUGIN_SDKTEXT_H
