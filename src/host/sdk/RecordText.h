#ifndef LINKHAND_HOST_RECORDTEXT_H
#define LINKHAND_HOST_RECORDTEXT_H

#include <QString>

#include "linkhand/SdkText.h"
#include "orva/orva_sdk.h"

namespace RecordText
{

// A value of the record that a set stands on; empty where there is none. One set, one thread.
inline QString Of(void* pSet, const char* pszKey)
{
    SdkText text;
    return ORVA_PBSrv_AddrRecordSet_GetValue(pSet, pszKey, text.out()) == ORVA_OK ? text.toString() : QString();
}

} // namespace RecordText

#endif // LINKHAND_HOST_RECORDTEXT_H
