#include "window/AddrBookBatch.h"

#include "dialogs/AddrBookWaitingDlg.h"
#include "worker/AddrBookThread.h"

AddrBookBatch::AddrBookBatch(AddrBookThread& worker)
    : m_worker(worker),
      m_iNumber(0),
      m_iTotal(0),
      m_iProcessed(0),
      m_iSucceeded(0),
      m_bRunning(false),
      m_bCancelled(false)
{
}

void AddrBookBatch::start(const Order& order, AddrBookWaitingDlg* pdlgWaiting)
{
    m_order = order;
    // The worker's copy is the one that counts.
    m_order.lstRecords.clear();
    m_pdlgWaiting = pdlgWaiting;
    ++m_iNumber;
    m_iTotal = order.lstRecords.size();
    m_iProcessed = 0;
    m_iSucceeded = 0;
    m_bCancelled = false;
    m_bRunning = true;
    if (order.enOperation == ADDRBOOK_OP_MOVE)
        m_worker.SetOperation(ADDRBOOK_OP_MOVE, order.enSource, order.enMemory, order.lstRecords, order.iGroupId);
    else
        m_worker.SetOperation(order.enOperation == ADDRBOOK_OP_IMPORT ? ADDRBOOK_OP_ADD : order.enOperation,
                              order.enMemory, order.lstRecords, order.iGroupId);
    m_worker.start(QThread::InheritPriority);
}

void AddrBookBatch::count(bool bSuccess)
{
    ++m_iProcessed;
    m_iSucceeded += bSuccess ? 1 : 0;
    if (!m_pdlgWaiting.isNull())
        m_pdlgWaiting->UpDateProgress(m_iProcessed, m_iTotal);
}

void AddrBookBatch::release()
{
    if (isOrphaned() || isCancelled())
        m_worker.StopOperation();
    m_worker.SetSlotExecutionStatus();
}

void AddrBookBatch::cancel()
{
    if (!m_pdlgWaiting.isNull())
        m_pdlgWaiting->OnCancelClicked();
}

void AddrBookBatch::cancelOn(_ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    if (isRunningOn(enMemory))
        cancel();
}

bool AddrBookBatch::isCancelled()
{
    if (!m_bCancelled && !m_pdlgWaiting.isNull())
        m_bCancelled = m_pdlgWaiting->GetProgressDlgCancelStatus();
    return m_bCancelled;
}

bool AddrBookBatch::isOrphaned()
{
    return m_pdlgWaiting.isNull() && !m_bCancelled;
}

bool AddrBookBatch::needsDialog()
{
    return m_bRunning && m_iProcessed < m_iTotal && isOrphaned();
}

void AddrBookBatch::setDialog(AddrBookWaitingDlg* pdlgWaiting)
{
    m_pdlgWaiting = pdlgWaiting;
}

void AddrBookBatch::stop()
{
    m_worker.EndOperation();
}

void AddrBookBatch::abandon()
{
    stop();
    setTold();
    finish();
}

void AddrBookBatch::finish()
{
    m_bRunning = false;
    m_bCancelled = false;
    m_pdlgWaiting = nullptr;
}
