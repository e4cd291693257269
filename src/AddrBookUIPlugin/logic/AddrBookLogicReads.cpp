#include <memory>
#include <new>

#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/RecordReader.h"
#include "logic/SdkCall.h"
#include "logic/SdkHandle.h"
#include "logic/SdkTransaction.h"

// Reading contacts: one, all of a memory or a group, and those of a set that an import made.

int AddrBookLogic::GetRecord(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordID, QList<QString>& lstValues)
{
    ADDRBOOK_LOG_CALLED();
    QList<AddrBookField> lstFields;
    GetAllFields(lstFields, enMemory);
    if (lstFields.isEmpty())
        return ADDRBOOK_FAILED;

    SdkRecord record;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_GetAddrRecord, (iRecordID, enMemory, &record.out()));
    if (lResult != 0 || record.isNull()) {
        ADDRBOOK_WARN("no record %d", iRecordID);
        return ADDRBOOK_FAILED;
    }
    return RecordReader(lstFields).readRecord(record.get(), lstValues) ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}

int AddrBookLogic::GetRecordInGroup(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupID,
                                    const StopTest& isToEnd)
{
    ADDRBOOK_LOG_CALLED();
    QList<AddrBookField> lstFields;
    GetAllFields(lstFields, enMemory);
    if (iGroupID != 0) {
        const int iResult = getRecordInRoot(lstRecords, enMemory, iGroupID, lstFields, isToEnd);
        if (iResult == ADDRBOOK_OK)
            return ADDRBOOK_OK;
        ADDRBOOK_WARN("getRecordInRoot returned %d", iResult);
        return ADDRBOOK_FAILED;
    }

    SdkRecordSet set;
    long lResult = 0;
    {
        const SdkTransaction transaction(enMemory);
        SDK_CALL(lResult, ORVA_PBSrv_GetAddrRecList, (enMemory, &set.out()));
    }
    if (lResult != 0)
        return ADDRBOOK_FAILED;
    return set.isNull() ? int(ADDRBOOK_OK) : readAllRecords(lstRecords, enMemory, set.get(), lstFields, isToEnd);
}

int AddrBookLogic::readAllRecords(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                                  void* hAddrRecordSet, const QList<AddrBookField>& lstFields, const StopTest& isToEnd)
{
    const RecordReader reader(lstFields);
    lstRecords.clear();
    SdkTransaction transaction(enMemory);
    if (!moveToFirstRecord(hAddrRecordSet))
        return ADDRBOOK_FAILED;
    do {
        const std::unique_ptr<AddrBookRecord> pRecord(new (std::nothrow) AddrBookRecord);
        if (pRecord == nullptr)
            return ADDRBOOK_OUT_OF_MEMORY;
        if (!reader.readSetRecord(hAddrRecordSet, *pRecord))
            return ADDRBOOK_FAILED;
        lstRecords.append(*pRecord);
        if (isToEnd && isToEnd())
            return ADDRBOOK_OK; // not a complete read: its figure is not kept
    } while (moveToNextRecord(hAddrRecordSet));
    transaction.end();
    setRecordCount(enMemory, lstRecords.size());
    return ADDRBOOK_OK;
}

int AddrBookLogic::getRecordInRoot(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupID,
                                   QList<AddrBookField> lstFields, const StopTest& isToEnd)
{
    ADDRBOOK_LOG_CALLED();
    if (isDeviceMemory(enMemory)) {
        ADDRBOOK_WARN("groups not supported for sim - enType passed to GetRecordInRoot is SIM");
        return ADDRBOOK_FAILED;
    }
    lstRecords.clear();
    SdkGroupSet set;
    long lResult = 0;
    {
        const SdkTransaction transaction(enMemory);
        SDK_CALL(lResult, ORVA_PBSrv_GetGroupList, (enMemory, &set.out()));
    }
    if (lResult != 0 || set.isNull())
        return ADDRBOOK_FAILED;
    return readGroupMembers(lstRecords, enMemory, set.get(), iGroupID, lstFields, isToEnd);
}

int AddrBookLogic::readGroupMembers(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                                    void* hAddrGroupSet, int iGroupID, const QList<AddrBookField>& lstFields,
                                    const StopTest& isToEnd)
{
    int iCount = 0;
    int* piIds = nullptr; // stays the set's
    long lResult = 0;
    {
        const SdkTransaction transaction(enMemory);
        SDK_CALL(lResult, ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID, (hAddrGroupSet, iGroupID, &iCount, &piIds));
    }
    if (lResult != 0)
        return ADDRBOOK_FAILED;
    return readMembers(lstRecords, enMemory, piIds, piIds != nullptr ? iCount : 0, lstFields, isToEnd);
}

int AddrBookLogic::readMembers(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, const int* piIds,
                               int iCount, const QList<AddrBookField>& lstFields, const StopTest& isToEnd)
{
    const RecordReader reader(lstFields);
    const SdkTransaction transaction(enMemory);
    for (int i = 0; i < iCount; ++i) {
        const std::unique_ptr<AddrBookRecord> pRecord(new (std::nothrow) AddrBookRecord);
        if (pRecord == nullptr)
            return ADDRBOOK_OUT_OF_MEMORY;
        // A reference to a contact that has gone keeps identifier 0 and no values, and so shows up.
        pRecord->iID = 0;
        SdkRecord record;
        long lResult = 0;
        SDK_CALL(lResult, ORVA_PBSrv_GetAddrRecord, (piIds[i], enMemory, &record.out()));
        if (lResult != 0)
            return ADDRBOOK_FAILED;
        if (!record.isNull()) {
            pRecord->iID = piIds[i];
            if (!reader.readRecord(record.get(), pRecord->lstValues))
                return ADDRBOOK_FAILED;
        }
        lstRecords.append(*pRecord);
        if (isToEnd && isToEnd())
            break;
    }
    return ADDRBOOK_OK;
}

int AddrBookLogic::getRecordsFromRecList(_ORVA_EN_PHONEBOOK_MEMORY enMemory, void* hAddrRecordSet,
                                         QList<AddrBookRecord>& lstRecords)
{
    ADDRBOOK_LOG_CALLED();
    lstRecords.clear();
    if (hAddrRecordSet == nullptr) {
        qWarning("failure exit in getRecordsFromRecList - hAddrRecordSet is NULL");
        return ADDRBOOK_FAILED;
    }
    QList<AddrBookField> lstFields;
    if (GetAllFields(lstFields, enMemory) != ADDRBOOK_OK)
        return ADDRBOOK_FAILED;

    const SdkTransaction transaction(enMemory);
    if (!moveToFirstRecord(hAddrRecordSet))
        return ADDRBOOK_FAILED;
    const RecordReader reader(lstFields);
    int iResult = ADDRBOOK_OK;
    do {
        iResult = appendImportedRecord(enMemory, hAddrRecordSet, lstFields, reader, lstRecords);
    } while (iResult == ADDRBOOK_OK && moveToNextRecord(hAddrRecordSet));
    return iResult;
}

// An imported name is cut to what the card or the device can encode.
int AddrBookLogic::appendImportedRecord(_ORVA_EN_PHONEBOOK_MEMORY enMemory, void* hAddrRecordSet,
                                        const QList<AddrBookField>& lstFields, const RecordReader& reader,
                                        QList<AddrBookRecord>& lstRecords)
{
    const std::unique_ptr<AddrBookRecord> pRecord(new (std::nothrow) AddrBookRecord);
    if (pRecord == nullptr)
        return ADDRBOOK_OUT_OF_MEMORY;
    if (!readSetId(hAddrRecordSet, pRecord->iID))
        return ADDRBOOK_FAILED;
    for (int i = 0; i < lstFields.size(); ++i) {
        QString strValue;
        if (!reader.readSetValue(hAddrRecordSet, i, strValue))
            return ADDRBOOK_FAILED;
        const AddrBookField& field = lstFields[i];
        if (isDeviceMemory(enMemory) && field.strName.compare(QLatin1String("Name"), Qt::CaseInsensitive) == 0) {
            const QString strWhole = strValue;
            GetFieldString(strValue, strWhole, field.iMaxLength, enMemory);
        }
        pRecord->lstValues.append(strValue);
    }
    lstRecords.append(*pRecord);
    return ADDRBOOK_OK;
}

int AddrBookLogic::GetAddrRecordCount(_ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    ADDRBOOK_LOG_CALLED();
    int iCount = -1;
    SdkRecordSet set;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_GetAddrRecList, (enMemory, &set.out()));
    if (lResult == 0 && !set.isNull()) {
        SDK_CALL(lResult, ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount, (set.get(), &iCount));
        if (lResult != 0)
            iCount = -1;
    }
    return iCount;
}
