#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKTHREAD_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKTHREAD_H

#include <QList>
#include <QMutex>
#include <QTableWidget>
#include <QThread>
#include <QTreeWidgetItem>
#include <QWaitCondition>

#include <atomic>

#include "logic/AddrBookTypes.h"

// The worker that reads and changes many records off the user-interface thread. A caller picks an operation with a
// setter, starts the thread, gets one signal a record, and "finished". Signals carry bool, int and pointers as
// qlonglong (see PointerCarrier.h); the slot that receives a heap record owns it.
//
// The changing operations wait after each record's result for SetSlotExecutionStatus; the reading ones do not.
// The owner stops the thread and waits for its end before it deletes the object.
class AddrBookThread : public QThread
{
    Q_OBJECT

public:
    explicit AddrBookThread(QObject* pParent = nullptr);
    ~AddrBookThread();

    // Setters, on the user-interface thread while the worker does not run. Each clears a stop request.
    void SetOperation(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                      QList<AddrBookRecord> lstRecords, int iGroupId);
    void SetOperation(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enSourceMemory,
                      _ORVA_EN_PHONEBOOK_MEMORY enTargetMemory, QList<AddrBookRecord> lstRecords, int iGroupId);
    void SetReadOperation(QTableWidget* ptable, int iColumnCount);
    void SetSCOperation(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                        QTreeWidgetItem* pitemTreeNode);
    void SetSCGroupOperation(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                             QList<AddrBookGroup*> lstGroups, QList<AddrBookRecord>& lstRecords, int iGroupId);

    // Asks the worker to end after the record in hand; any thread. Neither locks nor wakes.
    void StopOperation();

    // Tells a waiting worker that the slot for its last result has finished; user-interface thread.
    void SetSlotExecutionStatus();

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

private:
    Q_DISABLE_COPY(AddrBookThread)

    // Reads (AddrBookThreadReads.cpp).
    void setNewTableContent();
    int GetRecordInGroup(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId);
    int getRecordsOfSameMemType(const QList<AddrBookField>& lstFields, void* hAddrRecordSet, bool& bError,
                                QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId);
    int getRecordInRoot(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId,
                        const QList<AddrBookField>& lstFields);
    int getRecords(QList<AddrBookRecord>& lstRecords, const QList<AddrBookField>& lstFields, void*& hAddrRecord,
                   const int* piIds, bool& bError, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iCount, int iGroupId);
    void addTreeNodes();
    void addGroupsToTree();
    void addContactsToTree();

    // Batches (AddrBookThreadBatches.cpp).
    void delThreadFun(_ADDRBOOK_OPERATION_TYPE enOperation);
    void addThreadFun();
    void moveThreadFun();

    _ADDRBOOK_OPERATION_TYPE m_enOperation;
    QList<AddrBookRecord> m_listRecords;
    _ORVA_EN_PHONEBOOK_MEMORY m_enMemory;
    int m_iGroupId;
    QTableWidget* m_ptable;
    QTreeWidgetItem* m_pitemTreeNode;
    std::atomic<bool> m_bStop;
    int m_iColumnCount;
    QList<AddrBookGroup*> m_listGroups;
    QList<AddrBookRecord> m_listLocalRecords;
    int m_iParentGroupId;
    QMutex m_mutex;
    QWaitCondition m_condition;
    _ORVA_EN_PHONEBOOK_MEMORY m_enSourceMemory;
    _ORVA_EN_PHONEBOOK_MEMORY m_enTargetMemory;
};

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKTHREAD_H
