#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKTHREAD_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKTHREAD_H

#include <QList>
#include <QMutex>
#include <QSet>
#include <QTableWidget>
#include <QThread>
#include <QTreeWidgetItem>
#include <QWaitCondition>

#include <atomic>
#include <memory>
#include <mutex>

#include "logic/AddrBookTypes.h"
#include "logic/LogicUser.h"
#include "logic/SdkHandle.h"

// The worker that reads and changes many records off the user-interface thread. A caller picks an operation with a
// setter, starts the thread, gets one signal a record, and "finished". Signals carry bool, int and pointers as
// qlonglong (see PointerCarrier.h); the slot that receives a heap record owns it.
//
// The changing operations wait after each record's result for SetSlotExecutionStatus; the reading ones do not, but a
// long read lets the event loop that receives it have its turn.
// A receiver that goes away takes what is still on its way to it first, when the worker has ended:
// QCoreApplication::sendPostedEvents(this, QEvent::MetaCall) in its destructor.
//
// The destructor, the setters and the end of AddrBookLogic end a worker that still runs, so that none of what it works
// with goes away under it. One that is started without a logic object does nothing.
class AddrBookThread : public QThread, private LogicUser
{
    Q_OBJECT

public:
    explicit AddrBookThread(QObject* pParent = nullptr);
    ~AddrBookThread() override;

    // Setters, on the user-interface thread. Each clears a stop request.
    void SetOperation(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                      QList<AddrBookRecord> lstRecords, int iGroupId);
    void SetOperation(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enSourceMemory,
                      _ORVA_EN_PHONEBOOK_MEMORY enTargetMemory, QList<AddrBookRecord> lstRecords, int iGroupId);
    void SetReadOperation(QTableWidget* ptable, int iColumnCount);
    void SetSCOperation(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                        QTreeWidgetItem* pitemTreeNode);
    void SetSCGroupOperation(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                             QList<AddrBookGroup*> lstGroups, QList<AddrBookRecord>& lstRecords, int iGroupId);

    // Starts what was set. Without a thread to run on it ends at once, with nothing done: "finished" follows all the
    // same. User-interface thread.
    void start(QThread::Priority enPriority = QThread::InheritPriority);

    // Asks the worker to end after the record in hand; any thread. Neither locks nor wakes.
    void StopOperation();

    // Tells a waiting worker that the slot for its last result has finished; user-interface thread.
    void SetSlotExecutionStatus();

    // Stops, wakes and waits: at most one record later the worker has ended, and all that it signalled, "finished"
    // included, is on its way to the slots. User-interface thread.
    void EndOperation();

    // Disconnects every signal. What was emitted before is on its way to the slots; after it returns no record is
    // handed over any more. A plain disconnect() would lose the record that is just being emitted. User-interface
    // thread.
    void DisconnectSignals();

    // Whether the memory could not be read, or not to its end; after the end of the thread.
    bool HasReadFailed() const { return m_bReadFailed; }

    // Appends the local records read; after the end of the thread.
    void GetLocalRecords(QList<AddrBookRecord>& lstRecords);

signals:
    void delResult(bool bResult, int iRecordId);
    void addResult(bool bResult, qlonglong iPtrAddrBookRecord);
    void addContacts(int enType, qlonglong iData, int iGroupid, int iCurrentRow, int iColumnCount);
    void addSelectDialogContact(int iType, int iID, int iGroupID);
    void deleteSelectDialogContact(int iType, int iRecordId);
    void removeContactFromGroup(int iType, int iRecordId, int iGroupID);
    void signalAddSimOrNvTreeNodes(int iType, qlonglong iPtrAddrBookRecord, qlonglong iPtritemTreeNode,
                                   int iChildIndex);
    void signalAddGroupsToTree(int iType, qlonglong iPtrAddrBookGroup);
    void signalAddContactsToTree(int iIndex);
    void signalAddContactGroups(int iType, qlonglong iPtrAddrBookGroup, qlonglong iPtrAddrBookRecord);
    void moveResult(bool bResult, qlonglong iPtrAddrBookRecord);

protected:
    void run() override;

private slots:
    void OnTurn();

private:
    friend struct AddrBookThreadAccess;
    Q_DISABLE_COPY(AddrBookThread)

    void endWithLogic() override { EndOperation(); }
    bool isToEnd() const;

    // Reads (AddrBookThreadReads.cpp).
    void setNewTableContent();
    int GetRecordInGroup(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId);
    int getRecordsOfSameMemType(const QList<AddrBookField>& lstFields, void* hAddrRecordSet, bool& bError,
                                QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId);
    int getRecordInRoot(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId,
                        const QList<AddrBookField>& lstFields);
    int getRecords(QList<AddrBookRecord>& lstRecords, const QList<AddrBookField>& lstFields, SdkRecord& handle,
                   const int* piIds, bool& bError, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iCount, int iGroupId);
    void handOverContact(const AddrBookRecord& record, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId, int iRow,
                         int iFieldCount);
    void giveTurn();

    // Reads for the select-contacts tree (AddrBookThreadTree.cpp).
    void addTreeNodes();
    void addGroupsToTree();
    void addContactsToTree();
    void handOverGroup(const AddrBookGroup& group);
    void handOverMember(const AddrBookGroup* pGroup, const AddrBookRecord& record);
    void removeLocalRecords(const QSet<int>& setMembers);

    // Batches (AddrBookThreadBatches.cpp). A step processes one record; false ends the batch.
    typedef bool (AddrBookThread::*BatchStep)(const AddrBookRecord& record);
    void runBatch(BatchStep pStep, bool bLockFirst);
    void waitForSlot();
    void delThreadFun(_ADDRBOOK_OPERATION_TYPE enOperation);
    bool delStep(const AddrBookRecord& record);
    bool removeFromGroupStep(const AddrBookRecord& record);
    void addThreadFun();
    bool addStep(const AddrBookRecord& record);
    void moveThreadFun();
    bool moveStep(const AddrBookRecord& record);
    std::unique_ptr<AddrBookRecord> storeRecord(_ORVA_EN_PHONEBOOK_MEMORY enMemory, const AddrBookRecord& record,
                                                bool& bOk);
    typedef void (AddrBookThread::*StoredSignal)(bool, qlonglong);
    void reportStored(StoredSignal pSignal, _ORVA_EN_PHONEBOOK_MEMORY enMemory, bool bOk,
                      std::unique_ptr<AddrBookRecord> pCopy);

    _ADDRBOOK_OPERATION_TYPE m_enOperation;
    QList<AddrBookRecord> m_listRecords;
    _ORVA_EN_PHONEBOOK_MEMORY m_enMemory;
    int m_iGroupId;
    QTableWidget* m_ptable;
    QTreeWidgetItem* m_pitemTreeNode;
    std::atomic<bool> m_bStop;
    std::atomic<bool> m_bReadFailed;
    int m_iColumnCount;
    QList<AddrBookGroup*> m_listGroups;
    QList<AddrBookRecord> m_listLocalRecords;
    int m_iParentGroupId;
    QMutex m_mutex;
    QWaitCondition m_condition;
    std::atomic<bool> m_bSlotFinished; // SetSlotExecutionStatus was called during the present wait; under m_mutex
    std::atomic<bool> m_bTurnTaken;    // the same of OnTurn
    _ORVA_EN_PHONEBOOK_MEMORY m_enSourceMemory;
    _ORVA_EN_PHONEBOOK_MEMORY m_enTargetMemory;

    // Held while a record is handed over, so that DisconnectSignals falls before or behind that and never between.
    std::mutex m_mutexHandOver;
    bool m_bContactsTaken; // addContacts has a receiver; asked once a read, since asking is slow
    int m_iHandedOver;     // records of this read since the receivers' event loop had its turn
    bool m_bGivesTurns;    // the receivers' event loop came when it was waited for
    unsigned m_iTurnMs;    // the longest it is waited for

    // Publishes the lists that run() wrote to whoever saw its end. QThread does so too, but not visibly for the thread
    // sanitizer.
    std::atomic<int> m_iRuns;
};

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKTHREAD_H
