#include <QCoreApplication>

#include <memory>
#include <new>

#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/PointerCarrier.h"
#include "logic/QueuedEmit.h"
#include "logic/RecordReader.h"
#include "logic/SdkHandle.h"
#include "logic/SdkText.h"
#include "worker/AddrBookThread.h"

// Reading a memory or a group, each record being signalled as soon as it is there.

void AddrBookThread::setNewTableContent()
{
    if (AddrBookLogic::Instance() == nullptr || m_ptable == nullptr)
        return;
    // The table gets its rows through addContacts alone.
    QList<AddrBookRecord> lstRecords;
    beginSdkTransaction(m_enMemory);
    GetRecordInGroup(lstRecords, m_enMemory, m_iGroupId);
    endSdkTransaction(m_enMemory);
}

int AddrBookThread::GetRecordInGroup(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                                     int iGroupId)
{
    AddrBookLogic* const pLogic = AddrBookLogic::Instance();
    if (pLogic == nullptr)
        return ADDRBOOK_FAILED;
    {
        // A read for its list alone has no receiver, and no copies are made for it.
        const std::lock_guard<std::mutex> locker(m_mutexHandOver);
        m_bContactsTaken = receivers(SIGNAL(addContacts(int, qlonglong, int, int, int))) > 0;
    }
    QList<AddrBookField> lstFields;
    pLogic->GetAllFields(lstFields, enMemory);
    if (iGroupId != 0) {
        const long lResult = getRecordInRoot(lstRecords, enMemory, iGroupId, lstFields);
        if (lResult == ADDRBOOK_OK)
            return ADDRBOOK_OK;
        ADDRBOOK_WARN("getRecordInRoot returned %li", lResult);
        return ADDRBOOK_FAILED;
    }

    void* hAddrRecordSet = nullptr;
    long lResult = 0;
    beginSdkTransaction(enMemory);
    SDK_CALL(lResult, ORVA_PBSrv_GetAddrRecList, (enMemory, &hAddrRecordSet));
    endSdkTransaction(enMemory);
    if (lResult != 0 || hAddrRecordSet == nullptr) {
        releaseRecordSet(hAddrRecordSet);
        return lResult == 0 ? ADDRBOOK_OK : ADDRBOOK_FAILED;
    }

    int iResult = ADDRBOOK_FAILED;
    lstRecords.clear();
    beginSdkTransaction(enMemory);
    if (!moveToFirstRecord(hAddrRecordSet)) {
        // A second begin in place of the end; kept, since an SDK has to cope with it anyway.
        beginSdkTransaction(enMemory);
    } else {
        bool bError = false;
        iResult = getRecordsOfSameMemType(lstFields, hAddrRecordSet, bError, lstRecords, enMemory, iGroupId);
        endSdkTransaction(enMemory);
        if (iResult != ADDRBOOK_OK || bError)
            iResult = ADDRBOOK_FAILED;
        else
            pLogic->setRecordCount(enMemory, lstRecords.size());
    }
    releaseRecordSet(hAddrRecordSet);
    return iResult;
}

int AddrBookThread::getRecordsOfSameMemType(const QList<AddrBookField>& lstFields, void* hAddrRecordSet, bool& bError,
                                            QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                                            int iGroupId)
{
    const RecordReader reader(lstFields);
    int iIndex = 0;
    do {
        if (QCoreApplication::closingDown())
            return ADDRBOOK_OK;
        AddrBookRecord record;
        if (!reader.readSetRecord(hAddrRecordSet, record)) {
            bError = true;
            return ADDRBOOK_FAILED;
        }
        lstRecords.append(record);
        handOverContact(record, enMemory, iGroupId, iIndex, lstFields.size());
        ++iIndex;
        if (m_bStop)
            return ADDRBOOK_FAILED;
    } while (moveToNextRecord(hAddrRecordSet));
    return ADDRBOOK_OK;
}

void AddrBookThread::handOverContact(const AddrBookRecord& record, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId,
                                     int iRow, int iFieldCount)
{
    const std::lock_guard<std::mutex> locker(m_mutexHandOver);
    if (!m_bContactsTaken || CommonUtils::IsShuttingDown())
        return;
    AddrBookRecord* const pCopy = new (std::nothrow) AddrBookRecord(record);
    if (pCopy != nullptr)
        QUEUED_EMIT(addContacts(enMemory, pointerToCarrier(pCopy), iGroupId, iRow, iFieldCount));
}

int AddrBookThread::getRecordInRoot(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId,
                                    const QList<AddrBookField>& lstFields)
{
    if (isDeviceMemory(enMemory))
        return ADDRBOOK_FAILED;
    lstRecords.clear();
    void* hAddrGroupSet = nullptr;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_GetGroupList, (enMemory, &hAddrGroupSet));
    if (hAddrGroupSet == nullptr)
        return ADDRBOOK_FAILED;

    int iCount = 0;
    int* piIds = nullptr; // stays the set's
    if (lResult == 0) {
        beginSdkTransaction(enMemory);
        SDK_CALL(lResult, ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID, (hAddrGroupSet, iGroupId, &iCount, &piIds));
        endSdkTransaction(enMemory);
    }
    int iResult = ADDRBOOK_FAILED;
    if (lResult == 0) {
        bool bError = false;
        void* hAddrRecord = nullptr;
        iResult = getRecords(lstRecords, lstFields, hAddrRecord, piIds, bError, enMemory, piIds != nullptr ? iCount : 0,
                             iGroupId);
        releaseRecord(hAddrRecord);
        if (iResult != ADDRBOOK_OUT_OF_MEMORY)
            iResult = bError ? ADDRBOOK_FAILED : ADDRBOOK_OK; // a stop counts as success
    }
    releaseGroupSet(hAddrGroupSet);
    return iResult;
}

int AddrBookThread::getRecords(QList<AddrBookRecord>& lstRecords, const QList<AddrBookField>& lstFields,
                               void*& hAddrRecord, const int* piIds, bool& bError, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                               int iCount, int iGroupId)
{
    const RecordReader reader(lstFields);
    int iResult = ADDRBOOK_OK;
    beginSdkTransaction(enMemory);
    for (int i = 0; i < iCount; ++i) {
        if (QCoreApplication::closingDown() || CommonUtils::IsShuttingDown())
            break;
        long lResult = 0;
        SDK_CALL(lResult, ORVA_PBSrv_GetAddrRecord, (piIds[i], enMemory, &hAddrRecord));
        // A reference to a contact that has gone stays a record with identifier 0 and no values.
        AddrBookRecord record;
        record.iID = 0;
        bError = lResult != 0;
        if (!bError && hAddrRecord != nullptr) {
            record.iID = piIds[i];
            bError = !reader.readRecord(hAddrRecord, record.lstValues);
        }
        if (bError) {
            iResult = ADDRBOOK_FAILED;
            break;
        }
        lstRecords.append(record);
        handOverContact(record, enMemory, iGroupId, i, lstFields.size());
        if (m_bStop) {
            iResult = ADDRBOOK_FAILED;
            break;
        }
        releaseRecord(hAddrRecord);
    }
    endSdkTransaction(enMemory);
    return iResult;
}
