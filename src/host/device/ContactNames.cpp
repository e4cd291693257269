#include "device/ContactNames.h"

#include "device/NumberMatch.h"
#include "orva/orva_sdk.h"
#include "sdk/OwnedHandle.h"
#include "sdk/RecordText.h"

QString ContactNames::In(int iMemory, const QString& strNumber)
{
    const QString strDigits = NumberMatch::Digits(strNumber);
    const QString strKey = NumberMatch::Key(strNumber);
    OwnedRecordSet set;
    if (strDigits.isEmpty() || ORVA_PBSrv_GetAddrRecList(iMemory, set.Out()) != ORVA_OK || set.IsNull()) {
        return QString();
    }
    for (long nCode = ORVA_PBSrv_AddrRecordSet_MoveFirst(set.Get()); nCode == ORVA_OK;
         nCode = ORVA_PBSrv_AddrRecordSet_MoveNext(set.Get())) {
        const QString strOther = RecordText::Of(set.Get(), "Number");
        const QString strOtherDigits = NumberMatch::Digits(strOther);
        // The end tells most numbers apart at once; a key takes longer.
        const bool bAlike = NumberMatch::End(strDigits) == NumberMatch::End(strOtherDigits) &&
                            NumberMatch::IsSame(strDigits, strKey, strOtherDigits, NumberMatch::Key(strOther));
        QString strName = bAlike ? RecordText::Of(set.Get(), "Name") : QString();
        if (!strName.isEmpty()) {
            return strName;
        }
    }
    return QString();
}
