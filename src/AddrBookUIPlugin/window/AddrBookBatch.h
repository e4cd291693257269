#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKBATCH_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKBATCH_H

#include <QList>
#include <QPointer>

#include "logic/AddrBookTypes.h"

class AddrBookThread;
class AddrBookWaitingDlg;

// A run of the window's worker that changes many records. It carries what its results and its end are told by: the
// window's members of the same meaning belong to whatever the user does next, which may be while the last record of a
// cancelled batch is still on its way. User-interface thread only.
class AddrBookBatch
{
public:
    // What is to be done, as the user knows it: an import's worker adds.
    struct Order {
        _ADDRBOOK_OPERATION_TYPE enOperation = ADDRBOOK_OP_NONE;
        _ORVA_EN_PHONEBOOK_MEMORY enSource = PB_MEM_LOCAL; // of a copy or move
        _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL; // worked on
        int iGroupId = 0;
        QList<AddrBookRecord> lstRecords;
        QList<AddrBookRecord> lstNotify; // what a delete announces
    };

    explicit AddrBookBatch(AddrBookThread& worker);

    // Hands the order to the worker. One that still runs has to be ended, and told, first.
    void start(const Order& order, AddrBookWaitingDlg* pdlgWaiting);

    // True from the start to finish(), which is later than the worker's own end.
    bool isRunning() const { return m_bRunning; }
    bool isRunningOn(_ORVA_EN_PHONEBOOK_MEMORY enMemory) const { return m_bRunning && m_order.enMemory == enMemory; }

    // Tells one batch from the next.
    int number() const { return m_iNumber; }

    _ADDRBOOK_OPERATION_TYPE operation() const { return m_order.enOperation; }
    _ORVA_EN_PHONEBOOK_MEMORY source() const { return m_order.enSource; }
    _ORVA_EN_PHONEBOOK_MEMORY memory() const { return m_order.enMemory; }
    QList<AddrBookRecord>& notifyRecords() { return m_order.lstNotify; }
    int total() const { return m_iTotal; }
    int processed() const { return m_iProcessed; }
    int succeeded() const { return m_iSucceeded; }

    // Counts a result and shows it.
    void count(bool bSuccess);

    // Nothing is left to tell: its message has been shown.
    void setTold() { m_order.enOperation = ADDRBOOK_OP_NONE; }

    // Lets the worker go on to the next record, or to its end if the user has cancelled.
    void release();

    // The same as the user's Cancel: of any batch, and of one on a memory that has just gone.
    void cancel();
    void cancelOn(_ORVA_EN_PHONEBOOK_MEMORY enMemory);

    // Whether the user has cancelled. The waiting dialog is gone then, free for whatever comes next.
    bool isCancelled();

    // True for one whose waiting dialog has gone though nobody cancelled: nobody could any more.
    bool isOrphaned();

    // Shows its progress again in a dialog that something else had used.
    bool needsDialog();
    void setDialog(AddrBookWaitingDlg* pdlgWaiting);

    // Ends the worker, at most the record in hand. Results and "finished" are on their way to the slots then.
    void stop();

    // Ends the worker with nothing left to tell, and nobody to wait for its end.
    void abandon();

    // The end has arrived; what is to be told of it stays readable until the next start.
    void finish();

private:
    AddrBookThread& m_worker;
    Order m_order;
    QPointer<AddrBookWaitingDlg> m_pdlgWaiting;
    int m_iNumber;
    int m_iTotal;
    int m_iProcessed;
    int m_iSucceeded;
    bool m_bRunning;
    bool m_bCancelled;
};

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKBATCH_H
