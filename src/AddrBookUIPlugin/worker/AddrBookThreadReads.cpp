#include <QCoreApplication>
#include <QMutexLocker>

#include <memory>
#include <new>

#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/PointerCarrier.h"
#include "logic/QueuedEmit.h"
#include "logic/RecordReader.h"
#include "logic/SdkCall.h"
#include "logic/SdkHandle.h"
#include "logic/SdkTransaction.h"
#include "worker/AddrBookThread.h"

// Reading a memory or a group, each record being signalled as soon as it is there.

namespace
{

// The window takes so many in some 20 ms.
const int TURN_RECORDS = 5000;

} // namespace

void AddrBookThread::setNewTableContent()
{
    if (AddrBookLogic::Instance() == nullptr || m_ptable == nullptr)
        return;
    // The table gets its rows through addContacts alone.
    QList<AddrBookRecord> lstRecords;
    const SdkTransaction transaction(m_enMemory);
    GetRecordInGroup(lstRecords, m_enMemory, m_iGroupId);
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
        m_bContactsTaken = SIGNAL_RECEIVERS(addContacts, int, qlonglong, int, int, int) > 0;
    }
    m_iHandedOver = 0;
    m_bGivesTurns = true;
    QList<AddrBookField> lstFields;
    pLogic->GetAllFields(lstFields, enMemory);
    if (iGroupId != 0) {
        const long lResult = getRecordInRoot(lstRecords, enMemory, iGroupId, lstFields);
        if (lResult == ADDRBOOK_OK)
            return ADDRBOOK_OK;
        ADDRBOOK_WARN("getRecordInRoot returned %li", lResult);
        return ADDRBOOK_FAILED;
    }

    SdkRecordSet set;
    long lResult = 0;
    {
        const SdkTransaction transaction(enMemory);
        SDK_CALL(lResult, ORVA_PBSrv_GetAddrRecList, (enMemory, &set.out()));
    }
    m_bReadFailed = lResult != 0;
    if (lResult != 0 || set.isNull())
        return lResult == 0 ? ADDRBOOK_OK : ADDRBOOK_FAILED;

    lstRecords.clear();
    SdkTransaction transaction(enMemory);
    if (!moveToFirstRecord(set.get())) {
        // A second begin in place of the end; kept, since an SDK has to cope with it anyway.
        transaction.leaveOpen();
        return ADDRBOOK_FAILED;
    }
    bool bError = false;
    const int iResult = getRecordsOfSameMemType(lstFields, set.get(), bError, lstRecords, enMemory, iGroupId);
    transaction.end();
    if (iResult != ADDRBOOK_OK || bError)
        return ADDRBOOK_FAILED;
    pLogic->setRecordCount(enMemory, lstRecords.size());
    return ADDRBOOK_OK;
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
            m_bReadFailed = true;
            return ADDRBOOK_FAILED;
        }
        lstRecords.append(record);
        handOverContact(record, enMemory, iGroupId, iIndex, lstFields.size());
        ++iIndex;
        if (isToEnd())
            return ADDRBOOK_FAILED;
    } while (moveToNextRecord(hAddrRecordSet));
    return ADDRBOOK_OK;
}

void AddrBookThread::handOverContact(const AddrBookRecord& record, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId,
                                     int iRow, int iFieldCount)
{
    if (m_bGivesTurns && m_iHandedOver == TURN_RECORDS)
        giveTurn();
    const std::lock_guard<std::mutex> locker(m_mutexHandOver);
    if (!m_bContactsTaken || CommonUtils::IsShuttingDown())
        return;
    ++m_iHandedOver;
    AddrBookRecord* const pCopy = new (std::nothrow) AddrBookRecord(record);
    if (pCopy != nullptr)
        QUEUED_EMIT(addContacts, enMemory, pointerToCarrier(pCopy), iGroupId, iRow, iFieldCount);
}

// What arrives while Qt delivers is delivered with it: a worker that keeps ahead would keep keys and paint events
// waiting until all is read. A loop that does not come may be waiting for this very transaction: it is not waited for
// again.
void AddrBookThread::giveTurn()
{
    m_iHandedOver = 0;
    const QMutexLocker locker(&m_mutex);
    m_bTurnTaken = false;
    {
        const QueuedEmitScope scope;
        QMetaObject::invokeMethod(this, "OnTurn", Qt::QueuedConnection); // behind the records signalled so far
    }
    m_condition.wait(&m_mutex, m_iTurnMs);
    m_bGivesTurns = m_bTurnTaken;
}

// Apart from what a batch waits for: this may come when the read has long ended.
void AddrBookThread::OnTurn()
{
    const QMutexLocker locker(&m_mutex);
    m_bTurnTaken = true;
    m_condition.wakeAll();
}

int AddrBookThread::getRecordInRoot(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId,
                                    const QList<AddrBookField>& lstFields)
{
    if (isDeviceMemory(enMemory))
        return ADDRBOOK_FAILED;
    lstRecords.clear();
    SdkGroupSet set;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_GetGroupList, (enMemory, &set.out()));
    m_bReadFailed = lResult != 0;
    if (set.isNull() || lResult != 0)
        return ADDRBOOK_FAILED;

    int iCount = 0;
    int* piIds = nullptr; // stays the set's
    {
        const SdkTransaction transaction(enMemory);
        SDK_CALL(lResult, ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID, (set.get(), iGroupId, &iCount, &piIds));
    }
    if (lResult != 0)
        return ADDRBOOK_FAILED;
    bool bError = false;
    SdkRecord handle;
    const int iResult =
        getRecords(lstRecords, lstFields, handle, piIds, bError, enMemory, piIds != nullptr ? iCount : 0, iGroupId);
    if (iResult == ADDRBOOK_OUT_OF_MEMORY)
        return iResult;
    return bError ? ADDRBOOK_FAILED : ADDRBOOK_OK; // a stop counts as success
}

int AddrBookThread::getRecords(QList<AddrBookRecord>& lstRecords, const QList<AddrBookField>& lstFields,
                               SdkRecord& handle, const int* piIds, bool& bError, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                               int iCount, int iGroupId)
{
    const RecordReader reader(lstFields);
    const SdkTransaction transaction(enMemory);
    for (int i = 0; i < iCount; ++i) {
        if (QCoreApplication::closingDown() || CommonUtils::IsShuttingDown())
            break;
        long lResult = 0;
        SDK_CALL(lResult, ORVA_PBSrv_GetAddrRecord, (piIds[i], enMemory, &handle.out()));
        // A reference to a contact that has gone stays a record with identifier 0 and no values.
        AddrBookRecord record;
        record.iID = 0;
        bError = lResult != 0;
        if (!bError && !handle.isNull()) {
            record.iID = piIds[i];
            bError = !reader.readRecord(handle.get(), record.lstValues);
        }
        if (bError)
            return ADDRBOOK_FAILED;
        lstRecords.append(record);
        handOverContact(record, enMemory, iGroupId, i, lstFields.size());
        if (m_bStop)
            return ADDRBOOK_FAILED;
        handle.release();
    }
    return ADDRBOOK_OK;
}
