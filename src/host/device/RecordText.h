#ifndef LINKHAND_HOST_RECORDTEXT_H
#define LINKHAND_HOST_RECORDTEXT_H

#include <QString>

#include "linkhand/QtCompat.h"
#include "orva/orva_sdk.h"

namespace RecordText
{

// A value of the record that a set stands on; empty where there is none. One set, one thread.
inline QString Of(void* pSet, const char* pszKey)
{
    unsigned short* pText = nullptr;
    QString strText;
    if (ORVA_PBSrv_AddrRecordSet_GetValue(pSet, pszKey, &pText) == ORVA_OK && pText != nullptr) {
        strText = QtCompat::fromUtf16(pText);
    }
    delete[] pText;
    return strText;
}

} // namespace RecordText

#endif // LINKHAND_HOST_RECORDTEXT_H
