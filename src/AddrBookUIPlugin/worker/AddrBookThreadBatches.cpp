#include <QCoreApplication>
#include <QMutexLocker>

#include <memory>
#include <new>
#include <utility>

#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/PointerCarrier.h"
#include "logic/QueuedEmit.h"
#include "logic/SdkTransaction.h"
#include "worker/AddrBookThread.h"

// The changing operations: one record a round, one result a record, and a wait for the user interface in between.

namespace
{

const int COMMIT_EVERY = 200;
const unsigned long PAUSE_US = 500;
const unsigned long SHUTDOWN_CHECK_MS = 50;

// Ends the transaction of the batch. The store tells its host of what it could not keep; here it is a line in the log.
void commitBatch(SdkTransaction& transaction, int iRecords)
{
    const long lResult = transaction.end();
    if (lResult != 0 && iRecords > 0)
        ADDRBOOK_WARN("the last %d record(s) of memory %d may be lost: %li", iRecords, transaction.memory(), lResult);
}

} // namespace

void AddrBookThread::runBatch(BatchStep pStep, bool bLockFirst)
{
    const QMutexLocker lockerFirst(bLockFirst ? &m_mutex : nullptr);
    SdkTransaction transaction(m_enMemory);
    const QMutexLocker lockerThen(bLockFirst ? nullptr : &m_mutex);
    int iOpen = 0; // records since the last commit
    for (int i = 0; i < m_listRecords.size(); ++i) {
        if (i % COMMIT_EVERY == 0) {
            commitBatch(transaction, iOpen);
            transaction.begin();
            iOpen = 0;
        }
        if (isToEnd() || QCoreApplication::closingDown()) {
            m_listRecords.clear();
            break;
        }
        ++iOpen;
        if (!(this->*pStep)(m_listRecords.at(i)))
            break;
        waitForSlot();
        usleep(PAUSE_US);
    }
    commitBatch(transaction, iOpen);
}

// Without a time limit, since a slot may hold a message box open; but when the application goes down no slot runs any
// more, and the worker has to find out by itself. The flag catches an answer that falls between the end of one timed
// wait and the begin of the next: QWaitCondition wakes only who waits.
void AddrBookThread::waitForSlot()
{
    m_bSlotFinished = false;
    while (!m_bSlotFinished) {
        m_condition.wait(&m_mutex, SHUTDOWN_CHECK_MS);
        if (CommonUtils::IsShuttingDown())
            return;
    }
}

void AddrBookThread::delThreadFun(_ADDRBOOK_OPERATION_TYPE enOperation)
{
    if (AddrBookLogic::Instance() != nullptr)
        runBatch(enOperation == ADDRBOOK_OP_DELETE ? &AddrBookThread::delStep : &AddrBookThread::removeFromGroupStep,
                 true);
}

bool AddrBookThread::delStep(const AddrBookRecord& record)
{
    const int iResult = AddrBookLogic::Instance()->DelRecord(m_enMemory, record.iID);
    if (iResult == ADDRBOOK_OK && !CommonUtils::IsShuttingDown())
        QUEUED_EMIT(deleteSelectDialogContact, m_enMemory, record.iID);
    QUEUED_EMIT(delResult, iResult == ADDRBOOK_OK, record.iID);
    return true;
}

bool AddrBookThread::removeFromGroupStep(const AddrBookRecord& record)
{
    const int iResult = AddrBookLogic::Instance()->RemoveAddrFromGroup(PB_MEM_LOCAL, record.iID, m_iGroupId);
    // Sent whether or not the removal succeeded.
    if (!CommonUtils::IsShuttingDown())
        QUEUED_EMIT(removeContactFromGroup, PB_MEM_LOCAL, record.iID, m_iGroupId);
    QUEUED_EMIT(delResult, iResult == ADDRBOOK_OK, record.iID);
    return true;
}

void AddrBookThread::addThreadFun()
{
    if (AddrBookLogic::Instance() != nullptr)
        runBatch(&AddrBookThread::addStep, false);
}

// Stores the record and makes the copy that carries its new identifier to the window; null where none can be had.
std::unique_ptr<AddrBookRecord> AddrBookThread::storeRecord(_ORVA_EN_PHONEBOOK_MEMORY enMemory,
                                                            const AddrBookRecord& record, bool& bOk)
{
    int iNewId = -1;
    const int iResult = AddrBookLogic::Instance()->AddRecord(enMemory, record.lstValues, iNewId);
    bOk = iNewId >= 1 && iResult == ADDRBOOK_OK;
    std::unique_ptr<AddrBookRecord> pCopy(new (std::nothrow) AddrBookRecord(record));
    if (pCopy != nullptr)
        pCopy->iID = iNewId;
    return pCopy;
}

// Tells the number picker of a record that was stored, and then the window, by addResult or moveResult.
void AddrBookThread::reportStored(StoredSignal pSignal, _ORVA_EN_PHONEBOOK_MEMORY enMemory, bool bOk,
                                  std::unique_ptr<AddrBookRecord> pCopy)
{
    if (bOk && !CommonUtils::IsShuttingDown())
        QUEUED_EMIT(addSelectDialogContact, enMemory, pCopy->iID, m_iGroupId);
    const std::lock_guard<std::mutex> locker(m_mutexHandOver);
    const int iReceivers = pSignal == &AddrBookThread::moveResult ? SIGNAL_RECEIVERS(moveResult, bool, qlonglong)
                                                                  : SIGNAL_RECEIVERS(addResult, bool, qlonglong);
    if (!CommonUtils::IsShuttingDown() && iReceivers > 0)
        AddrBookSignals::queuedEmit(this, pSignal, bOk, pointerToCarrier(pCopy.release()));
}

bool AddrBookThread::addStep(const AddrBookRecord& record)
{
    bool bOk = false;
    std::unique_ptr<AddrBookRecord> pCopy = storeRecord(m_enMemory, record, bOk);
    if (pCopy == nullptr)
        return false;
    // The record stays where its group refuses it, though it is reported as failed.
    if (bOk && m_enMemory == PB_MEM_LOCAL)
        bOk = AddrBookLogic::Instance()->AddAddrToGroup(PB_MEM_LOCAL, pCopy->iID, m_iGroupId) == ADDRBOOK_OK;
    reportStored(&AddrBookThread::addResult, m_enMemory, bOk, std::move(pCopy));
    return true;
}

void AddrBookThread::moveThreadFun()
{
    // The bracket is on the memory of the worker's previous operation, which need not be the target.
    if (AddrBookLogic::Instance() != nullptr)
        runBatch(&AddrBookThread::moveStep, false);
}

bool AddrBookThread::moveStep(const AddrBookRecord& record)
{
    AddrBookLogic* const pLogic = AddrBookLogic::Instance();
    bool bOk = false;
    std::unique_ptr<AddrBookRecord> pCopy = storeRecord(m_enTargetMemory, record, bOk);
    if (pCopy == nullptr)
        return false;
    if (bOk) {
        if (m_enTargetMemory == PB_MEM_LOCAL)
            pLogic->AddAddrToGroup(PB_MEM_LOCAL, pCopy->iID, m_iGroupId); // a failure goes unnoticed
        bOk = pLogic->DelRecord(m_enSourceMemory, record.iID) == ADDRBOOK_OK;
    }
    reportStored(&AddrBookThread::moveResult, m_enTargetMemory, bOk, std::move(pCopy));
    return true;
}
