#include "device/ChangedContact.h"

#include "device/ContactNames.h"
#include "linkhand/QtCompat.h"
#include "linkhand/plugin/Codes.h"
#include "orva/orva_care.h"
#include "orva/orva_sdk.h"

// Null where the SDK in use does not have them.
#pragma weak ORVA_Care_GetBin
#pragma weak ORVA_Care_BinRelease
#pragma weak ORVA_Care_GetBinRecord

namespace
{

QString nameOf(void* pRecord)
{
    unsigned short* pusName = nullptr;
    QString strName;
    if (pRecord != nullptr && ORVA_PBSrv_AddrRecord_GetValue(pRecord, "Name", &pusName) == ORVA_OK &&
        pusName != nullptr) {
        strName = QtCompat::fromUtf16(pusName);
    }
    delete[] pusName;
    if (pRecord != nullptr) {
        ORVA_PBSrv_AddrRecord_Release(pRecord);
    }
    return strName;
}

QString nameOfRecord(int iId)
{
    void* pRecord = nullptr;
    return ORVA_PBSrv_GetAddrRecord(iId, ORVA_MEMORY_LOCAL, &pRecord) == ORVA_OK ? nameOf(pRecord) : QString();
}

// Identifiers are never used twice: the highest is the latest.
QString newest()
{
    void* pSet = nullptr;
    int iNewest = 0;
    if (ORVA_PBSrv_GetAddrRecList(ORVA_MEMORY_LOCAL, &pSet) != ORVA_OK || pSet == nullptr) {
        return QString();
    }
    int iCount = 0;
    if (ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(pSet, &iCount) == ORVA_OK && iCount > 0 &&
        ORVA_PBSrv_AddrRecordSet_MoveFirst(pSet) == ORVA_OK) {
        do {
            int iId = 0;
            ORVA_PBSrv_AddrRecordSet_GetID(pSet, &iId);
            iNewest = qMax(iNewest, iId);
        } while (ORVA_PBSrv_AddrRecordSet_MoveNext(pSet) == ORVA_OK);
    }
    ORVA_PBSrv_AddrRecordSet_Release(pSet);
    return nameOfRecord(iNewest);
}

QString newestOfBin(int iReason)
{
    ORVA_BIN_ENTRY* pEntries = nullptr;
    int iCount = 0;
    QString strName;
    if (&ORVA_Care_GetBin == nullptr || ORVA_Care_GetBin(ORVA_MEMORY_LOCAL, &pEntries, &iCount) != ORVA_OK) {
        return strName;
    }
    if (iCount > 0 && pEntries[0].reason == iReason) {
        void* pRecord = nullptr;
        if (iReason == ORVA_BIN_CHANGED) {
            strName = nameOfRecord(pEntries[0].record); // as it is now
        } else if (ORVA_Care_GetBinRecord(ORVA_MEMORY_LOCAL, pEntries[0].id, &pRecord) == ORVA_OK) {
            strName = nameOf(pRecord);
        }
    }
    ORVA_Care_BinRelease(ORVA_MEMORY_LOCAL, &pEntries);
    return strName;
}

} // namespace

QString ChangedContact::Name(unsigned int uiMsg, unsigned int uiMemory, unsigned int uiNumber)
{
    if (uiMemory == ORVA_MEMORY_LOCAL) {
        return uiMsg == PHONEBOOK_CONTACT_ADDED     ? newest()
               : uiMsg == PHONEBOOK_CONTACT_CHANGED ? newestOfBin(ORVA_BIN_CHANGED)
                                                    : newestOfBin(ORVA_BIN_DELETED);
    }
    // Who has gone from a card is not asked for: somebody else may have the number.
    return uiNumber == 0 || uiMsg == PHONEBOOK_CONTACT_DELETED
               ? QString()
               : ContactNames::In(int(uiMemory), QString::number(uiNumber));
}
