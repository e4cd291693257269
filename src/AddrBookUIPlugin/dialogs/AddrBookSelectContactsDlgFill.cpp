#include "dialogs/AddrBookSelectContactsDlg.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QScopedPointer>
#include <QVector>
#include <new>
#include <utility>

#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookUICommon.h"
#include "logic/MemoryList.h"
#include "logic/PointerCarrier.h"
#include "logic/SdkCall.h"
#include "logic/SdkTransaction.h"
#include "logic/Texts.h"

// How the tree is filled: the workers, in their order, and what they bring.

namespace
{
const int TREE_WIDTH = 287;
const int INDENTATION = 12; // a number in a group still fits beside its check box
const unsigned int THREAD_END_SECONDS = 5;
} // namespace

void AddrBookSelectContactsDlg::checkSimStatus()
{
    if (m_pAddrBookLogic)
        m_bSimEnabled = m_pAddrBookLogic->IsSimValidForPB();
}

void AddrBookSelectContactsDlg::initTree()
{
    m_ptreeContacts->setHeaderHidden(true);
    m_ptreeContacts->setAccessibleName(addrBookTr(QLatin1String("IDS_ADDR_NUMDLG_TITLE")));
    m_ptreeContacts->setMinimumWidth(TREE_WIDTH);
    m_ptreeContacts->setIndentation(INDENTATION);
    m_ptreeContacts->setExpandsOnDoubleClick(true);
    connect(m_ptreeContacts, SIGNAL(destroyed()), this, SLOT(OnTreeDestroyed()));
    m_pitemLocalTreeWidgetItem = createNode();
    if (m_pitemLocalTreeWidgetItem != nullptr)
        m_ptreeContacts->addTopLevelItem(m_pitemLocalTreeWidgetItem);

    AddrBookThread* pthread = createThread();
    if (pthread == nullptr)
        return;
    connect(pthread, SIGNAL(finished()), this, SLOT(OnInitTreeFinished()));
    pthread->SetSCOperation(ADDRBOOK_OP_READ_LOCAL, PB_MEM_LOCAL, nullptr);
    pthread->start(QThread::InheritPriority);
    m_pMainWidget->setCursor(Qt::WaitCursor);
}

// The nodes went with the tree, and nothing may find them any more. Those out of the tree are still this object's.
void AddrBookSelectContactsDlg::OnTreeDestroyed()
{
    m_pitemLocalTreeWidgetItem = nullptr;
    m_pitemSimTreeWidgetItem = nullptr;
    m_pitemDeviceTreeWidgetItem = nullptr;
    for (GroupHash* phashGroups : std::as_const(m_hashMemories))
        freeGroupHash(phashGroups);
    m_hashMemories.clear();
}

void AddrBookSelectContactsDlg::OnInitTreeFinished()
{
    if (m_bClosing)
        return;
    if (m_pMainWidget)
        m_pMainWidget->setCursor(Qt::ArrowCursor);
    AddrBookThread* pthread = qobject_cast<AddrBookThread*>(sender());
    if (pthread == nullptr)
        return;
    if (!m_pAddrBookLogic || !m_ptreeContacts) {
        deleteThread(pthread);
        return;
    }

    QList<AddrBookRecord> lstRecords;
    pthread->GetLocalRecords(lstRecords);
    enterMemory(m_pitemLocalTreeWidgetItem, PB_MEM_LOCAL);
    setNodeProperties(m_pitemLocalTreeWidgetItem, addrBookTr(QLatin1String("IDS_LOCAL_PHONEBOOKUI")), true,
                      qMax(0, m_pAddrBookLogic->GetAddrRecordCount(PB_MEM_LOCAL)), QVariant(int(PB_MEM_LOCAL)));
    updateDeviceAndSimNodes();
    m_pAddrBookLogic->GetGroups(m_lstGroups, PB_MEM_LOCAL);
    addGroupsToTree(PB_MEM_LOCAL, m_lstGroups, lstRecords, 0);
    deleteThread(pthread);
}

// True on a card of two modes whose host wants its memories left out.
bool AddrBookSelectContactsDlg::isDeviceSideHidden() const
{
    unsigned char aucStatus[2] = {0, 0};
    long lResult = 0;
    SDK_CALL(lResult, ORVA_DevSrv_GetMultiModeCardStatus, (aucStatus, nullptr, nullptr, nullptr));
    return aucStatus[0] != 0 && m_bHideDualModeCardNode;
}

void AddrBookSelectContactsDlg::updateDeviceAndSimNodes()
{
    QList<int> lstMemories;
    if (isDeviceSideHidden() || !readMemoryList(lstMemories))
        return;
    for (int i = 0; i < lstMemories.size(); ++i) {
        if (lstMemories.at(i) == PB_MEM_SIM) {
            checkSimStatus();
            if (m_bSimEnabled)
                addDeviceNode(&m_pitemSimTreeWidgetItem, PB_MEM_SIM);
        } else if (lstMemories.at(i) == PB_MEM_ME) {
            addDeviceNode(&m_pitemDeviceTreeWidgetItem, PB_MEM_ME);
        }
    }
}

void AddrBookSelectContactsDlg::addDeviceNode(QTreeWidgetItem** ppitem, _ORVA_EN_PHONEBOOK_MEMORY enType)
{
    if (!m_ptreeContacts || !m_pAddrBookLogic || isNodePresentInTree(*ppitem))
        return;
    addTreeNode(ppitem, enType);
    enterMemory(*ppitem, enType);
}

void AddrBookSelectContactsDlg::addTreeNode(QTreeWidgetItem** ppitem, _ORVA_EN_PHONEBOOK_MEMORY enType)
{
    if (!m_pAddrBookLogic)
        return;

    {
        const SdkTransaction transaction(enType);
        *ppitem = createNode();
        if (*ppitem != nullptr) {
            m_ptreeContacts->addTopLevelItem(*ppitem);
            setNodeProperties(*ppitem, AddrBookUICommon::GetNodeText(enType), true,
                              qMax(0, m_pAddrBookLogic->GetAddrRecordCount(enType)), QVariant(int(enType)));
        }
    }

    AddrBookThread* pthread = createThread();
    if (pthread == nullptr)
        return;
    (enType == PB_MEM_SIM ? m_pthreadSim : m_pthreadDevice) = pthread;
    connect(pthread, SIGNAL(signalAddSimOrNvTreeNodes(int, qlonglong, qlonglong, int)), this,
            SLOT(OnAddContactToTree(int, qlonglong, qlonglong, int)));
    connect(pthread, SIGNAL(finished()), this, SLOT(OnReadFinished()));
    pthread->SetSCOperation(ADDRBOOK_OP_TREE_NODES, enType, *ppitem);
    pthread->start(QThread::InheritPriority);
    ++m_iPendingReads;
}

void AddrBookSelectContactsDlg::addGroupsToTree(_ORVA_EN_PHONEBOOK_MEMORY enType, QList<AddrBookGroup*> lstGroups,
                                                QList<AddrBookRecord>& lstRecords, int iParent)
{
    AddrBookThread* pthread = createThread();
    if (pthread == nullptr)
        return;
    m_pthreadGroups = pthread;
    connect(pthread, SIGNAL(signalAddGroupsToTree(int, qlonglong)), this, SLOT(OnAddGroupsToTree(int, qlonglong)));
    connect(pthread, SIGNAL(signalAddContactGroups(int, qlonglong, qlonglong)), this,
            SLOT(OnAddGroupContacts(int, qlonglong, qlonglong)));
    connect(pthread, SIGNAL(finished()), this, SLOT(OnGroupReadFinished()));
    pthread->SetSCGroupOperation(ADDRBOOK_OP_TREE_GROUPS, enType, lstGroups, lstRecords, iParent);
    pthread->start(QThread::InheritPriority);
    ++m_iPendingReads;
}

void AddrBookSelectContactsDlg::OnAddGroupsToTree(int iType, qlonglong iPtrAddrBookGroup)
{
    const QScopedPointer<AddrBookGroup> pGroup(carrierToPointer<AddrBookGroup>(iPtrAddrBookGroup));
    if (m_bClosing || pGroup.isNull())
        return;
    QTreeWidgetItem* pitem = nullptr;
    OnAddGroup(static_cast<ADDRBOOK_TYPE>(iType), pGroup->iGroupID, pGroup->iParentID, pGroup->strName, &pitem);
    signalBack();
}

// The group is the worker's; only the record is freed here.
void AddrBookSelectContactsDlg::OnAddGroupContacts(int iType, qlonglong iPtrAddrBookGroup, qlonglong iPtrAddrBookRecord)
{
    const QScopedPointer<AddrBookRecord> pRecord(carrierToPointer<AddrBookRecord>(iPtrAddrBookRecord));
    const AddrBookGroup* pGroup = carrierToPointer<AddrBookGroup>(iPtrAddrBookGroup);
    if (m_bClosing || pRecord.isNull() || pGroup == nullptr)
        return;

    const _ORVA_EN_PHONEBOOK_MEMORY enType = static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(iType);
    QTreeWidgetItem* pitemGroup = findNode(enType, pGroup->iGroupID);
    QTreeWidgetItem* pitem = AddRecordNodes(*pRecord, enType);
    if (pitemGroup != nullptr && pitem != nullptr)
        pitemGroup->addChild(pitem);
    else
        delete pitem;
    signalBack();
}

void AddrBookSelectContactsDlg::OnGroupReadFinished()
{
    if (m_bClosing)
        return;
    if (AddrBookThread* pthread = qobject_cast<AddrBookThread*>(sender())) {
        pthread->GetLocalRecords(m_lstLocalRecords);
        m_pthreadGroups = nullptr;
        deleteThread(pthread);
    }

    AddrBookThread* pthread = m_pAddrBookLogic && m_ptreeContacts ? createThread() : nullptr;
    if (pthread == nullptr)
        return;
    m_pthreadContacts = pthread;
    connect(pthread, SIGNAL(signalAddContactsToTree(int)), this, SLOT(OnAddContactsToTree(int)));
    connect(pthread, SIGNAL(finished()), this, SLOT(OnContactsReadFinished()));
    pthread->SetSCGroupOperation(ADDRBOOK_OP_TREE_CONTACTS, PB_MEM_LOCAL, QList<AddrBookGroup*>(), m_lstLocalRecords,
                                 0);
    pthread->start(QThread::InheritPriority);
}

// Inserted at their index, these contacts come to stand before the groups.
void AddrBookSelectContactsDlg::OnAddContactsToTree(int iIndex)
{
    if (m_bClosing || iIndex < 0 || iIndex >= m_lstLocalRecords.size())
        return;
    SC_Hash_Group_Node* pEntry = groupEntry(PB_MEM_LOCAL, 0);
    if (pEntry == nullptr || pEntry->phashContacts == nullptr)
        return;

    const AddrBookRecord& record = m_lstLocalRecords.at(iIndex);
    QTreeWidgetItem* pitem = AddRecordNodes(record, PB_MEM_LOCAL);
    if (pitem != nullptr) {
        pEntry->phashContacts->insert(record.iID, pitem);
        m_pitemLocalTreeWidgetItem->insertChild(qMin(iIndex, m_pitemLocalTreeWidgetItem->childCount()), pitem);
    }
    signalBack();
}

// True while the node stands in the tree for its memory. One that was taken out is never given an address again.
bool AddrBookSelectContactsDlg::isCurrentMemoryNode(const QTreeWidgetItem* pitem, _ORVA_EN_PHONEBOOK_MEMORY enType)
{
    QTreeWidgetItem* pitemMemory = enType == PB_MEM_SIM ? m_pitemSimTreeWidgetItem : m_pitemDeviceTreeWidgetItem;
    return pitem == pitemMemory && isNodePresentInTree(pitemMemory);
}

void AddrBookSelectContactsDlg::OnAddContactToTree(int iType, qlonglong iPtrAddrBookRecord, qlonglong iPtrItemTreeNode,
                                                   int iChildIndex)
{
    const QScopedPointer<AddrBookRecord> pRecord(carrierToPointer<AddrBookRecord>(iPtrAddrBookRecord));
    const _ORVA_EN_PHONEBOOK_MEMORY enType = static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(iType);
    QTreeWidgetItem* pitemParent = carrierToPointer<QTreeWidgetItem>(iPtrItemTreeNode);
    if (m_bClosing || pRecord.isNull() || !isCurrentMemoryNode(pitemParent, enType))
        return;
    SC_Hash_Group_Node* pEntry = groupEntry(enType, 0);
    if (pEntry == nullptr || pEntry->phashContacts == nullptr)
        return;

    QTreeWidgetItem* pitem = AddRecordNodes(*pRecord, enType);
    if (pitem != nullptr) {
        pEntry->phashContacts->insert(pRecord->iID, pitem);
        pitemParent->insertChild(qMin(qMax(0, iChildIndex), pitemParent->childCount()), pitem);
    }
    signalBack();
}

void AddrBookSelectContactsDlg::OnReadFinished()
{
    if (m_bClosing)
        return;
    applyPreRecordsWhenFilled();
    AddrBookThread* pthread = qobject_cast<AddrBookThread*>(sender());
    if (pthread == m_pthreadDevice)
        m_pthreadDevice = nullptr;
    if (pthread == m_pthreadSim)
        m_pthreadSim = nullptr;
    deleteThread(pthread);
}

void AddrBookSelectContactsDlg::OnContactsReadFinished()
{
    if (m_bClosing)
        return;
    if (m_ptreeContacts)
        m_ptreeContacts->header()->setSortIndicator(0, Qt::AscendingOrder);
    m_pthreadContacts = nullptr;
    deleteThread(qobject_cast<AddrBookThread*>(sender()));
    applyPreRecordsWhenFilled();
}

// One fill has ended; with the last one the caller's numbers can be found.
void AddrBookSelectContactsDlg::applyPreRecordsWhenFilled()
{
    --m_iPendingReads;
    if (m_iPendingReads == 0)
        SetPrerecordSet(m_bMultiSelect, m_lstPreRecords);
}

// ---- Workers ---------------------------------------------------------------------------------------------------

AddrBookThread* AddrBookSelectContactsDlg::createThread()
{
    AddrBookThread* pthread = new (std::nothrow) AddrBookThread;
    if (pthread != nullptr)
        m_lstThreads.append(pthread);
    return pthread;
}

// "finished" comes a moment before the thread has really ended.
void AddrBookSelectContactsDlg::deleteThread(AddrBookThread* pthread)
{
    if (pthread == nullptr)
        return;
    if (pthread->isRunning())
        CommonUtils::WaitForThreadToStop(pthread, THREAD_END_SECONDS);
    pthread->EndOperation();
    m_lstThreads.removeAll(pthread);
    delete pthread;
}

void AddrBookSelectContactsDlg::stopAndDeleteThreads()
{
    // All are asked first: each may be with a slow card's record.
    for (int i = 0; i < m_lstThreads.size(); ++i)
        m_lstThreads.at(i)->StopOperation();
    for (int i = 0; i < m_lstThreads.size(); ++i)
        m_lstThreads.at(i)->EndOperation();
    // Their results still queued carry heap objects, which the slots free.
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    qDeleteAll(m_lstThreads);
    m_lstThreads.clear();
}

void AddrBookSelectContactsDlg::signalBack()
{
    if (AddrBookThread* pthread = qobject_cast<AddrBookThread*>(sender()))
        pthread->SetSlotExecutionStatus();
}
