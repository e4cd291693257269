#include "worker/AddrBookThread.h"

#include <QMutexLocker>

#include "linkhand/core/CommonUtils.h"
#include "logic/Log.h"
#include "logic/QueuedEmit.h"

namespace
{
const unsigned TURN_MS = 50;
}

AddrBookThread::AddrBookThread(QObject* pParent)
    : QThread(pParent),
      m_enOperation(ADDRBOOK_OP_NONE),
      m_enMemory(PB_MEM_LOCAL),
      m_iGroupId(0),
      m_ptable(nullptr),
      m_pitemTreeNode(nullptr),
      m_bStop(false),
      m_bReadFailed(false),
      m_iColumnCount(0),
      m_iParentGroupId(0),
      m_bSlotFinished(false),
      m_bTurnTaken(false),
      m_enSourceMemory(PB_MEM_LOCAL),
      m_enTargetMemory(PB_MEM_LOCAL),
      m_bContactsTaken(false),
      m_iHandedOver(0),
      m_bGivesTurns(false),
      m_iTurnMs(TURN_MS),
      m_iRuns(0)
{
    ADDRBOOK_LOG_CALLED();
}

AddrBookThread::~AddrBookThread()
{
    ADDRBOOK_LOG_CALLED();
    EndOperation();
}

void AddrBookThread::start(QThread::Priority enPriority)
{
    QThread::start(enPriority);
    if (isRunning() || isFinished())
        return;
    ADDRBOOK_WARN("no thread for operation %d", m_enOperation);
    // Not emitted here: its slots must find what the caller sets behind the start.
    QMetaObject::invokeMethod(this, "finished", Qt::QueuedConnection);
}

void AddrBookThread::EndOperation()
{
    StopOperation();
    // Not isRunning(), which turns false a moment before "finished" is sent. A wake-up reaches only a worker that waits
    // for its slot already, hence one a round.
    while (!wait(1))
        SetSlotExecutionStatus();
    (void)m_iRuns.load(std::memory_order_acquire);
}

void AddrBookThread::SetOperation(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                                  QList<AddrBookRecord> lstRecords, int iGroupId)
{
    EndOperation();
    m_enOperation = enOperation;
    m_enMemory = enMemory;
    m_iGroupId = iGroupId;
    m_bStop = false;
    m_listRecords = lstRecords;
}

void AddrBookThread::SetOperation(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enSourceMemory,
                                  _ORVA_EN_PHONEBOOK_MEMORY enTargetMemory, QList<AddrBookRecord> lstRecords,
                                  int iGroupId)
{
    EndOperation();
    m_enOperation = enOperation;
    m_enSourceMemory = enSourceMemory;
    m_enTargetMemory = enTargetMemory;
    m_iGroupId = iGroupId;
    m_bStop = false;
    m_listRecords = lstRecords;
}

void AddrBookThread::SetReadOperation(QTableWidget* ptable, int iColumnCount)
{
    EndOperation();
    m_ptable = ptable;
    m_iColumnCount = iColumnCount;
    m_bStop = false;
}

void AddrBookThread::SetSCOperation(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                                    QTreeWidgetItem* pitemTreeNode)
{
    EndOperation();
    m_enOperation = enOperation;
    m_enMemory = enMemory;
    m_pitemTreeNode = pitemTreeNode;
    m_bStop = false;
}

void AddrBookThread::SetSCGroupOperation(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                                         QList<AddrBookGroup*> lstGroups, QList<AddrBookRecord>& lstRecords,
                                         int iGroupId)
{
    EndOperation();
    m_enOperation = enOperation;
    m_enMemory = enMemory;
    m_listGroups = lstGroups;
    m_listLocalRecords = lstRecords;
    m_iParentGroupId = iGroupId;
    m_bStop = false;
}

void AddrBookThread::StopOperation()
{
    m_bStop = true;
}

void AddrBookThread::SetSlotExecutionStatus()
{
    const QMutexLocker locker(&m_mutex);
    m_bSlotFinished = true;
    m_condition.wakeAll();
}

void AddrBookThread::DisconnectSignals()
{
    const std::lock_guard<std::mutex> locker(m_mutexHandOver);
    m_bContactsTaken = false;
    disconnect();
}

void AddrBookThread::GetLocalRecords(QList<AddrBookRecord>& lstRecords)
{
    (void)m_iRuns.load(std::memory_order_acquire);
    lstRecords += m_listLocalRecords;
}

bool AddrBookThread::isToEnd() const
{
    return m_bStop || CommonUtils::IsShuttingDown();
}

void AddrBookThread::run()
{
    const QString strFile = QLatin1String(ADDRBOOK_FILE);
    const QString strFunction = QLatin1String("run");
    CommonUtils::ThreadCountInc(strFile, strFunction);
    ADDRBOOK_LOG("operation %d", m_enOperation);
    switch (m_enOperation) {
    case ADDRBOOK_OP_DELETE:
    case ADDRBOOK_OP_REMOVE_FROM_GROUP:
        delThreadFun(m_enOperation);
        break;
    case ADDRBOOK_OP_ADD:
    case ADDRBOOK_OP_COPY:
        addThreadFun();
        break;
    case ADDRBOOK_OP_MOVE:
        moveThreadFun();
        break;
    case ADDRBOOK_OP_READ:
        setNewTableContent();
        break;
    case ADDRBOOK_OP_TREE_NODES:
        addTreeNodes();
        break;
    case ADDRBOOK_OP_TREE_GROUPS:
        addGroupsToTree();
        break;
    case ADDRBOOK_OP_TREE_CONTACTS:
        addContactsToTree();
        break;
    case ADDRBOOK_OP_READ_LOCAL:
        GetRecordInGroup(m_listLocalRecords, PB_MEM_LOCAL, 0);
        break;
    default:
        break;
    }
    m_iRuns.fetch_add(1, std::memory_order_release);
    CommonUtils::ThreadCountDec(strFile, strFunction);
    QUEUED_EMIT_FINISHED();
}
