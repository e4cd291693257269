#include <algorithm>
#include <memory>
#include <new>

#include "linkhand/SdkText.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/SdkCall.h"
#include "logic/SdkHandle.h"
#include "logic/SdkTransaction.h"

// Files, other contacts applications, and how full a memory is.

namespace
{

// A list as the SDK takes it; null if there is no room.
std::unique_ptr<int[]> toArray(const QList<int>& lstNumbers, int iSize)
{
    std::unique_ptr<int[]> piNumbers(new (std::nothrow) int[static_cast<size_t>(qMax(iSize, 1))]);
    if (piNumbers != nullptr) {
        std::fill_n(piNumbers.get(), iSize, -1);
        std::copy(lstNumbers.constBegin(), lstNumbers.constEnd(), piNumbers.get());
    }
    return piNumbers;
}

} // namespace

int AddrBookLogic::importRecords(const QString& strSource, const QList<int>& lstFieldMap,
                                 QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, bool bIsFile)
{
    // The SDK reads an entry for each field of the memory: a shorter map is filled up with -1, for no column.
    QList<AddrBookField> lstFields;
    GetAllFields(lstFields, enMemory);
    const std::unique_ptr<int[]> piMap = toArray(lstFieldMap, qMax(lstFieldMap.size(), lstFields.size()));
    if (piMap == nullptr)
        return ADDRBOOK_OK;

    const SdkTransaction transaction(enMemory);
    SdkRecordSet set;
    long lResult = 0;
    if (bIsFile)
        SDK_CALL(lResult, ORVA_PBSrv_ImportFromFile, (sdkText(strSource), piMap.get(), enMemory, &set.out()));
    else
        SDK_CALL(lResult, ORVA_PBSrv_ImportFromOutlook, (sdkText(strSource), piMap.get(), enMemory, &set.out()));
    if (lResult != 0 || set.isNull()) {
        ADDRBOOK_WARN("nothing to import, %li", lResult);
        return ADDRBOOK_FAILED;
    }
    return getRecordsFromRecList(enMemory, set.get(), lstRecords) == ADDRBOOK_OK ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}

int AddrBookLogic::ImportFromFile(QString strPath, const QList<int>& lstFieldMap, QList<AddrBookRecord>& lstRecords,
                                  _ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    ADDRBOOK_LOG_CALLED();
    return importRecords(strPath, lstFieldMap, lstRecords, enMemory, true);
}

int AddrBookLogic::ImportFromOutlook(QString strSource, const QList<int>& lstFieldMap,
                                     QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    ADDRBOOK_LOG_CALLED();
    return importRecords(strSource, lstFieldMap, lstRecords, enMemory, false);
}

int AddrBookLogic::ExportToFile(QString strPath, const QList<int>& lstRecordIDs, _ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    ADDRBOOK_LOG_CALLED();
    const std::unique_ptr<int[]> piIds = toArray(lstRecordIDs, lstRecordIDs.size());
    if (piIds == nullptr)
        return ADDRBOOK_OK;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_ExportToFile, (sdkText(strPath), piIds.get(), lstRecordIDs.size(), enMemory));
    return lResult == 0 ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}

int AddrBookLogic::GetAddrCapacity(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int& iCapacity, int& iSize)
{
    ADDRBOOK_LOG_CALLED();
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_GetCapacity, (enMemory, &iCapacity));
    if (lResult != 0)
        return ADDRBOOK_FAILED;
    if (iCapacity < 1) {
        ADDRBOOK_WARN("capacity is less than 0 in GetAddrCapacity");
        return ADDRBOOK_MISMATCH;
    }
    SDK_CALL(lResult, ORVA_PBSrv_GetSize, (enMemory, &iSize));
    if (lResult != 0)
        return ADDRBOOK_FAILED;
    setRecordCount(enMemory, iCapacity);
    return ADDRBOOK_OK;
}

bool AddrBookLogic::IsOutlookInstalled(QString strName)
{
    ADDRBOOK_LOG_CALLED();
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_IsOutlookInstalled, (QtCompat::toAscii(strName).constData()));
    return lResult == 0;
}
