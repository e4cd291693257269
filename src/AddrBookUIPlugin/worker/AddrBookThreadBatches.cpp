#include <QCoreApplication>
#include <QMutexLocker>

#include <memory>
#include <new>

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

const int g_iCommitEvery = 200;
const unsigned long g_ulPauseMicroseconds = 500;
const unsigned long g_ulShutdownCheckMilliseconds = 50;

} // namespace

// Ends the transaction of the batch. The store tells its host of what it could not keep; here it is a line in the log.
void AddrBookThread::commitBatch(int iRecords)
{
    const long iResult = endSdkTransaction(m_enMemory);
    if (iResult != 0 && iRecords > 0)
        ADDRBOOK_WARN("the last %d record(s) of memory %d may be lost: %li", iRecords, m_enMemory, iResult);
}

void AddrBookThread::runBatch(BatchStep pStep, bool bLockFirst)
{
    if (!bLockFirst)
        beginSdkTransaction(m_enMemory);
    const QMutexLocker locker(&m_mutex);
    if (bLockFirst)
        beginSdkTransaction(m_enMemory);
    int iOpen = 0; // records since the last commit
    for (int i = 0; i < m_listRecords.size(); ++i) {
        if (i % g_iCommitEvery == 0) {
            commitBatch(iOpen);
            beginSdkTransaction(m_enMemory);
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
        usleep(g_ulPauseMicroseconds);
    }
    commitBatch(iOpen);
}

// Without a time limit, since a slot may hold a message box open; but when the application goes down no slot runs any
// more, and the worker has to find out by itself. The flag catches an answer that falls between the end of one timed
// wait and the begin of the next: QWaitCondition wakes only who waits.
void AddrBookThread::waitForSlot()
{
    m_bSlotFinished = false;
    while (!m_bSlotFinished) {
        m_condition.wait(&m_mutex, g_ulShutdownCheckMilliseconds);
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

bool AddrBookThread::addStep(const AddrBookRecord& record)
{
    AddrBookLogic* const pLogic = AddrBookLogic::Instance();
    int iNewId = -1;
    int iResult = pLogic->AddRecord(m_enMemory, record.lstValues, iNewId);
    AddrBookRecord* const pCopy = new (std::nothrow) AddrBookRecord(record);
    if (pCopy == nullptr)
        return false;
    pCopy->iID = iNewId;
    bool bOk = iNewId >= 1 && iResult == ADDRBOOK_OK;
    if (bOk && m_enMemory == PB_MEM_LOCAL) {
        iResult = pLogic->AddAddrToGroup(PB_MEM_LOCAL, iNewId, m_iGroupId);
        bOk = iResult == ADDRBOOK_OK; // the record stays, though it is reported as failed
    }
    if (bOk && !CommonUtils::IsShuttingDown())
        QUEUED_EMIT(addSelectDialogContact, m_enMemory, iNewId, m_iGroupId);
    reportAdd(bOk, pCopy);
    return true;
}

void AddrBookThread::reportAdd(bool bResult, AddrBookRecord* pCopy)
{
    std::unique_ptr<AddrBookRecord> pOwned(pCopy);
    const std::lock_guard<std::mutex> locker(m_mutexHandOver);
    if (!CommonUtils::IsShuttingDown() && SIGNAL_RECEIVERS(addResult, bool, qlonglong) > 0)
        QUEUED_EMIT(addResult, bResult, pointerToCarrier(pOwned.release()));
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
    int iNewId = -1;
    int iResult = pLogic->AddRecord(m_enTargetMemory, record.lstValues, iNewId);
    AddrBookRecord* const pCopy = new (std::nothrow) AddrBookRecord(record);
    if (pCopy == nullptr)
        return false;
    pCopy->iID = iNewId;
    bool bOk = iNewId >= 1 && iResult == ADDRBOOK_OK;
    if (bOk) {
        if (m_enTargetMemory == PB_MEM_LOCAL)
            pLogic->AddAddrToGroup(PB_MEM_LOCAL, iNewId, m_iGroupId); // a failure goes unnoticed
        iResult = pLogic->DelRecord(m_enSourceMemory, record.iID);
        bOk = iResult == ADDRBOOK_OK;
    }
    if (bOk && !CommonUtils::IsShuttingDown())
        QUEUED_EMIT(addSelectDialogContact, m_enTargetMemory, iNewId, m_iGroupId);
    reportMove(bOk, pCopy);
    return true;
}

void AddrBookThread::reportMove(bool bResult, AddrBookRecord* pCopy)
{
    std::unique_ptr<AddrBookRecord> pOwned(pCopy);
    const std::lock_guard<std::mutex> locker(m_mutexHandOver);
    if (!CommonUtils::IsShuttingDown() && SIGNAL_RECEIVERS(moveResult, bool, qlonglong) > 0)
        QUEUED_EMIT(moveResult, bResult, pointerToCarrier(pOwned.release()));
}
