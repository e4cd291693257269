#include <memory>
#include <new>

#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/RecordReader.h"
#include "logic/SdkHandle.h"
#include "logic/SdkText.h"

// Reading contacts: one, all of a memory or a group, and those of a set that an import made.

int AddrBookLogic::GetRecord(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordID, QList<QString>& lstValues)
{
    ADDRBOOK_LOG_CALLED();
    QList<AddrBookField> lstFields;
    GetAllFields(lstFields, enMemory);
    if (lstFields.isEmpty())
        return ADDRBOOK_FAILED;

    void* hAddrRecord = nullptr;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_GetAddrRecord, (iRecordID, enMemory, &hAddrRecord));
    bool bOk = lResult == 0 && hAddrRecord != nullptr;
    if (!bOk)
        ADDRBOOK_WARN("no record %d", iRecordID);
    else
        bOk = RecordReader(lstFields).readRecord(hAddrRecord, lstValues);
    releaseRecord(hAddrRecord);
    return bOk ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}

int AddrBookLogic::GetRecordInGroup(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupID)
{
    ADDRBOOK_LOG_CALLED();
    QList<AddrBookField> lstFields;
    GetAllFields(lstFields, enMemory);
    if (iGroupID != 0) {
        const int iResult = getRecordInRoot(lstRecords, enMemory, iGroupID, lstFields);
        if (iResult == ADDRBOOK_OK)
            return ADDRBOOK_OK;
        ADDRBOOK_WARN("getRecordInRoot returned %d", iResult);
        return ADDRBOOK_FAILED;
    }

    void* hAddrRecordSet = nullptr;
    long lResult = 0;
    beginSdkTransaction(enMemory);
    SDK_CALL(lResult, ORVA_PBSrv_GetAddrRecList, (enMemory, &hAddrRecordSet));
    endSdkTransaction(enMemory);
    int iResult = ADDRBOOK_FAILED;
    if (lResult == 0)
        iResult = hAddrRecordSet == nullptr ? int(ADDRBOOK_OK)
                                            : readAllRecords(lstRecords, enMemory, hAddrRecordSet, lstFields);
    releaseRecordSet(hAddrRecordSet);
    return iResult;
}

int AddrBookLogic::readAllRecords(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                                  void* hAddrRecordSet, const QList<AddrBookField>& lstFields)
{
    const RecordReader reader(lstFields);
    int iResult = ADDRBOOK_OK;
    lstRecords.clear();
    beginSdkTransaction(enMemory);
    if (!moveToFirstRecord(hAddrRecordSet)) {
        endSdkTransaction(enMemory);
        return ADDRBOOK_FAILED;
    }
    do {
        const std::unique_ptr<AddrBookRecord> pRecord(new (std::nothrow) AddrBookRecord);
        if (pRecord == nullptr)
            iResult = ADDRBOOK_OUT_OF_MEMORY;
        else if (!reader.readSetRecord(hAddrRecordSet, *pRecord))
            iResult = ADDRBOOK_FAILED;
        else
            lstRecords.append(*pRecord);
    } while (iResult == ADDRBOOK_OK && moveToNextRecord(hAddrRecordSet));
    endSdkTransaction(enMemory);
    if (iResult == ADDRBOOK_OK)
        setRecordCount(enMemory, lstRecords.size());
    return iResult;
}

int AddrBookLogic::getRecordInRoot(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupID,
                                   QList<AddrBookField> lstFields)
{
    ADDRBOOK_LOG_CALLED();
    if (isDeviceMemory(enMemory)) {
        ADDRBOOK_WARN("groups not supported for sim - enType passed to GetRecordInRoot is SIM");
        return ADDRBOOK_FAILED;
    }
    lstRecords.clear();
    void* hAddrGroupSet = nullptr;
    long lResult = 0;
    beginSdkTransaction(enMemory);
    SDK_CALL(lResult, ORVA_PBSrv_GetGroupList, (enMemory, &hAddrGroupSet));
    endSdkTransaction(enMemory);
    int iResult = ADDRBOOK_FAILED;
    if (lResult == 0 && hAddrGroupSet != nullptr)
        iResult = readGroupMembers(lstRecords, enMemory, hAddrGroupSet, iGroupID, lstFields);
    releaseGroupSet(hAddrGroupSet);
    return iResult;
}

int AddrBookLogic::readGroupMembers(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                                    void* hAddrGroupSet, int iGroupID, const QList<AddrBookField>& lstFields)
{
    int iCount = 0;
    int* piIds = nullptr; // stays the set's
    long lResult = 0;
    beginSdkTransaction(enMemory);
    SDK_CALL(lResult, ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID, (hAddrGroupSet, iGroupID, &iCount, &piIds));
    endSdkTransaction(enMemory);
    if (lResult != 0)
        return ADDRBOOK_FAILED;

    const RecordReader reader(lstFields);
    int iResult = ADDRBOOK_OK;
    beginSdkTransaction(enMemory);
    for (int i = 0; piIds != nullptr && i < iCount && iResult == ADDRBOOK_OK; ++i) {
        const std::unique_ptr<AddrBookRecord> pRecord(new (std::nothrow) AddrBookRecord);
        if (pRecord == nullptr) {
            iResult = ADDRBOOK_OUT_OF_MEMORY;
            break;
        }
        // A reference to a contact that has gone keeps identifier 0 and no values, and so shows up.
        pRecord->iID = 0;
        void* hAddrRecord = nullptr;
        SDK_CALL(lResult, ORVA_PBSrv_GetAddrRecord, (piIds[i], enMemory, &hAddrRecord));
        bool bOk = lResult == 0;
        if (bOk && hAddrRecord != nullptr) {
            pRecord->iID = piIds[i];
            bOk = reader.readRecord(hAddrRecord, pRecord->lstValues);
        }
        if (bOk)
            lstRecords.append(*pRecord);
        else
            iResult = ADDRBOOK_FAILED;
        releaseRecord(hAddrRecord);
    }
    endSdkTransaction(enMemory);
    return iResult;
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

    beginSdkTransaction(enMemory);
    int iResult = moveToFirstRecord(hAddrRecordSet) ? ADDRBOOK_OK : ADDRBOOK_FAILED;
    if (iResult == ADDRBOOK_OK) {
        const RecordReader reader(lstFields);
        do {
            iResult = appendImportedRecord(enMemory, hAddrRecordSet, lstFields, reader, lstRecords);
        } while (iResult == ADDRBOOK_OK && moveToNextRecord(hAddrRecordSet));
    }
    endSdkTransaction(enMemory);
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
    void* hAddrRecordSet = nullptr;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_GetAddrRecList, (enMemory, &hAddrRecordSet));
    if (lResult == 0 && hAddrRecordSet != nullptr) {
        SDK_CALL(lResult, ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount, (hAddrRecordSet, &iCount));
        if (lResult != 0)
            iCount = -1;
    }
    releaseRecordSet(hAddrRecordSet);
    return iCount;
}
