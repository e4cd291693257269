#include "dialogs/AddrBookSelectContactsDlg.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScopedPointer>
#include <QToolTip>
#include <QVector>
#include <new>

#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookUICommon.h"
#include "logic/Log.h"
#include "logic/PointerCarrier.h"
#include "logic/SdkText.h"
#include "logic/Texts.h"

namespace
{
const int kTreeWidth = 287;
const int kIndentation = 12; // a number in a group still fits beside its check box
const int kMargin = 14;
const unsigned int kThreadEndSeconds = 5;
} // namespace

AddrBookSelectContactsDlg::AddrBookSelectContactsDlg(QWidget* pParent)
    : QWidget(pParent),
      m_pitemLocalTreeWidgetItem(nullptr),
      m_pitemSimTreeWidgetItem(nullptr),
      m_pitemDeviceTreeWidgetItem(nullptr),
      m_bSimEnabled(false),
      m_bOKClicked(false),
      m_strNumberType(QLatin1String("")),
      m_bMultiSelect(true),
      m_iPendingReads(0),
      m_bHideDualModeCardNode(
          CommonUtils::GetSettings(QLatin1String("DualModeCard"), QLatin1String("HideDoubleModeCardNode")) ==
          QLatin1String("true")),
      m_bClosing(false)
{
}

// The workers go first: they read the groups, and their results in flight must be freed while there is a receiver.
AddrBookSelectContactsDlg::~AddrBookSelectContactsDlg()
{
    m_bClosing = true;
    stopAndDeleteThreads();

    delete m_pcomboNumberType;
    delete m_pbuttonAdd;
    delete m_pbuttonRemove;
    delete m_ptreeContacts;
    qDeleteAll(m_lstDetachedNodes);
    clearTable();

    delete m_plabelTotal;
    delete m_pbuttonOK;
    delete m_pbuttonCancel;
    delete m_ptableSelected;
    delete m_phlayoutButtons;
    delete m_pvlayoutLeft;
    delete m_pvlayoutMiddleButtons;
    delete m_pvlayoutRight;
    delete m_phlayoutMain;
    m_lstLocalRecords.clear();
    qDeleteAll(m_lstGroups);
    m_lstFieldNames.clear();
    for (QHash<_ORVA_EN_PHONEBOOK_MEMORY, GroupHash*>::const_iterator it = m_hashMemories.constBegin();
         it != m_hashMemories.constEnd(); ++it)
        freeGroupHash(it.value());

    delete m_pMainWidget;
    delete m_pExtendDialog;
}

// ---- The window ------------------------------------------------------------------------------------------------

void AddrBookSelectContactsDlg::InitDlg(QWidget*, AddrBookLogic* pLogic, bool bFlag, FIELD_TYPE,
                                        QList<QString> lstNumbers)
{
    ADDRBOOK_LOG_ENTER();
    m_bMultiSelect = bFlag;
    m_pMainWidget = new (std::nothrow) QWidget;
    m_pExtendDialog =
        new (std::nothrow) ExtendDialog(CommonUtils::GetMainWindow(), Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG);
    m_lstPreRecords = lstNumbers;
    if (!m_pMainWidget || !m_pExtendDialog)
        return;

    m_pAddrBookLogic = pLogic;
    if (!createCommonUIElements())
        return;
    m_pExtendDialog->AddMainWidget(m_pMainWidget);
    setObjectNames();
    m_pExtendDialog->setWindowModality(Qt::WindowModal);
    m_pExtendDialog->setFixedSize(m_bMultiSelect ? 315 : 320, m_bMultiSelect ? 438 : 405);
    m_pExtendDialog->ExtendDialog::setWindowTitle(addrBookTr(QLatin1String("IDS_ADDR_NUMDLG_TITLE")));
    if (m_pAddrBookLogic) {
        QList<QString> lstNames;
        m_pAddrBookLogic->GetFieldNames(PB_MEM_LOCAL, lstNames);
        m_lstFieldNames += lstNames;
    }
    layOut();
    checkSimStatus();
    initTree();
    m_ptreeContacts->setSelectionBehavior(QAbstractItemView::SelectItems);
    connectSignals();
    SetInitialPrerecordSet(bFlag, lstNumbers);
    ADDRBOOK_LOG_EXIT();
}

bool AddrBookSelectContactsDlg::createCommonUIElements()
{
    m_ptreeContacts = new (std::nothrow) QTreeWidget(m_pMainWidget);
    m_pbuttonOK = new (std::nothrow) QPushButton(m_pMainWidget);
    m_pbuttonCancel = new (std::nothrow) QPushButton(m_pMainWidget);
    m_pvlayoutLeft = new (std::nothrow) QVBoxLayout;
    m_phlayoutMain = new (std::nothrow) QHBoxLayout(m_pMainWidget);
    m_phlayoutButtons = new (std::nothrow) QHBoxLayout;
    return m_ptreeContacts && m_pbuttonOK && m_pbuttonCancel && m_pvlayoutLeft && m_phlayoutMain && m_phlayoutButtons;
}

void AddrBookSelectContactsDlg::setObjectNames()
{
    m_ptreeContacts->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_treeContacts"));
    m_pbuttonOK->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_buttonOK"));
    m_pbuttonCancel->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_buttonCancel"));
    m_pvlayoutLeft->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_vlayoutLeft"));
    m_phlayoutMain->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_hlayoutMain"));
    m_phlayoutButtons->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_hlayoutButtons"));

    if (!m_pcomboNumberType || !m_pbuttonAdd || !m_pbuttonRemove || !m_plabelTotal || !m_ptableSelected ||
        !m_pvlayoutMiddleButtons || !m_pvlayoutRight)
        return;
    m_pcomboNumberType->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_comboNumberType"));
    m_pbuttonAdd->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_buttonAdd"));
    m_pbuttonRemove->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_buttonRemove"));
    m_plabelTotal->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_labelTotal"));
    m_ptableSelected->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_tableContacts"));
    m_pvlayoutMiddleButtons->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_vlayoutMiddleButtons"));
    m_pvlayoutRight->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_vlayoutRight"));
}

void AddrBookSelectContactsDlg::layOut()
{
    m_pvlayoutLeft->addWidget(m_ptreeContacts);
    m_pvlayoutLeft->addSpacing(m_bMultiSelect ? 7 : 5);
    m_pbuttonOK->setText(addrBookTr(QLatin1String("IDS_BUTTON_OK")));
    m_pbuttonCancel->setText(addrBookTr(QLatin1String("IDS_BUTTON_CANCEL")));
    m_phlayoutButtons->addWidget(m_pbuttonOK);
    m_phlayoutButtons->addWidget(m_pbuttonCancel);
    m_phlayoutButtons->setSpacing(m_bMultiSelect ? 40 : 8);
    m_phlayoutButtons->insertStretch(0, 0);
    m_pvlayoutLeft->addLayout(m_phlayoutButtons);
    m_phlayoutMain->addLayout(m_pvlayoutLeft);
    m_phlayoutMain->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    // The window is exactly as wide as the tree and these margins: one of the frame's own would push the tree out.
    if (QLayout* pFrame = m_pExtendDialog->layout())
        pFrame->setContentsMargins(0, 0, 0, 0);
}

void AddrBookSelectContactsDlg::connectSignals()
{
    connect(m_pbuttonOK, SIGNAL(clicked(bool)), this, SLOT(OnOKButtonClicked()));
    connect(m_pbuttonCancel, SIGNAL(clicked(bool)), this, SLOT(OnCancelButtonClicked()));
    connect(m_ptreeContacts, SIGNAL(itemClicked(QTreeWidgetItem*, int)), this, SLOT(OnTreeClicked(QTreeWidgetItem*)));
    m_ptreeContacts->installEventFilter(this);
    m_ptreeContacts->viewport()->installEventFilter(this);
    if (!m_pAddrBookLogic)
        return;
    connect(m_pAddrBookLogic, SIGNAL(signalSimStatus(bool)), this, SLOT(OnSimStatusChanged(bool)));
    connect(m_pAddrBookLogic, SIGNAL(signalDeviceConnected(bool)), this, SLOT(OnSimStatusChanged(bool)));
    connect(m_pAddrBookLogic, SIGNAL(signalDeviceConnected(bool)), this, SLOT(OnDeviceStatusChanged(bool)));
    connect(m_pAddrBookLogic, SIGNAL(signalAddrBookDeviceReady()), this, SLOT(OnAddrBookDeviceReady()));
    connect(m_pAddrBookLogic, SIGNAL(signalAddrBookSimReady()), this, SLOT(OnAddrBookSimReady()));
}

void AddrBookSelectContactsDlg::Exec()
{
    setParent(CommonUtils::GetMainWindow(), Qt::Dialog);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::Window | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    // Nothing of this object is touched after the run: its parent may have taken it away.
    ExtendDialog* pDialog = m_pExtendDialog;
    if (pDialog == nullptr)
        return;
    CommonUtils::MoveCentre(pDialog);
    pDialog->raise();
    pDialog->exec();
}

void AddrBookSelectContactsDlg::SetLanguage()
{
    ADDRBOOK_LOG_CALLED();
}

QString AddrBookSelectContactsDlg::tr(QString strId)
{
    return addrBookTr(strId);
}

bool AddrBookSelectContactsDlg::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (m_ptreeContacts && pObject == m_ptreeContacts && pEvent->type() == QEvent::KeyPress)
        return tickByKey(*static_cast<QKeyEvent*>(pEvent));
    if (m_ptreeContacts && pObject == m_ptreeContacts->viewport() && pEvent->type() == QEvent::ToolTip)
        return showWholeText(*static_cast<QHelpEvent*>(pEvent));
    return QWidget::eventFilter(pObject, pEvent);
}

bool AddrBookSelectContactsDlg::tickByKey(const QKeyEvent& event)
{
    QTreeWidgetItem* pitem = m_ptreeContacts->currentItem();
    if (!m_bMultiSelect || event.key() != Qt::Key_Space || event.modifiers() != Qt::NoModifier || pitem == nullptr)
        return false;
    pitem->setCheckState(0, pitem->checkState(0) == Qt::Unchecked ? Qt::Checked : Qt::Unchecked);
    OnTreeClicked(pitem);
    return true;
}

// Two numbers that begin alike must be told apart where the column cuts them.
bool AddrBookSelectContactsDlg::showWholeText(const QHelpEvent& event)
{
    const QTreeWidgetItem* pitem = m_ptreeContacts->itemAt(event.pos());
    if (pitem == nullptr)
        QToolTip::hideText();
    else
        QToolTip::showText(event.globalPos(), pitem->text(0), m_ptreeContacts->viewport());
    return true;
}

// ---- The first fill --------------------------------------------------------------------------------------------

void AddrBookSelectContactsDlg::checkSimStatus()
{
    if (m_pAddrBookLogic)
        m_bSimEnabled = m_pAddrBookLogic->IsSimValidForPB();
}

void AddrBookSelectContactsDlg::initTree()
{
    m_ptreeContacts->setHeaderHidden(true);
    m_ptreeContacts->setAccessibleName(addrBookTr(QLatin1String("IDS_ADDR_NUMDLG_TITLE")));
    m_ptreeContacts->setMinimumWidth(kTreeWidth);
    m_ptreeContacts->setIndentation(kIndentation);
    m_ptreeContacts->setExpandsOnDoubleClick(true);
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

void AddrBookSelectContactsDlg::OnInitTreeFinished()
{
    if (m_bClosing)
        return;
    if (m_pMainWidget)
        m_pMainWidget->setCursor(Qt::ArrowCursor);
    AddrBookThread* pthread = qobject_cast<AddrBookThread*>(sender());
    if (pthread == nullptr || !m_pAddrBookLogic)
        return;

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

// The device-side memories in the SDK's order. False if even their number is not known.
bool AddrBookSelectContactsDlg::readMemoryList(QList<int>& lstMemories)
{
    unsigned short usCount = 0;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_PBGetMemoryListType, (nullptr, &usCount));
    if (lResult != 0)
        return false;
    if (usCount == 0)
        return true;

    // What the second call says of the count must not lead out of the buffer.
    QVector<short> vecTypes(usCount, -1);
    SDK_CALL(lResult, ORVA_PBSrv_PBGetMemoryListType, (vecTypes.data(), &usCount));
    for (int i = 0; i < vecTypes.size(); ++i) {
        if (vecTypes.at(i) != -1)
            lstMemories.append(vecTypes.at(i));
    }
    return true;
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

    beginSdkTransaction(enType);
    *ppitem = createNode();
    if (*ppitem != nullptr) {
        m_ptreeContacts->addTopLevelItem(*ppitem);
        setNodeProperties(*ppitem, AddrBookUICommon::GetNodeText(enType), true,
                          qMax(0, m_pAddrBookLogic->GetAddrRecordCount(enType)), QVariant(int(enType)));
    }
    endSdkTransaction(enType);

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

    AddrBookThread* pthread = createThread();
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
    if (m_bClosing || !m_ptreeContacts)
        return;
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
        CommonUtils::WaitForThreadToStop(pthread, kThreadEndSeconds);
    pthread->wait();
    m_lstThreads.removeAll(pthread);
    delete pthread;
}

void AddrBookSelectContactsDlg::stopAndDeleteThreads()
{
    for (int i = 0; i < m_lstThreads.size(); ++i) {
        m_lstThreads.at(i)->StopOperation();
        m_lstThreads.at(i)->SetSlotExecutionStatus();
    }
    for (int i = 0; i < m_lstThreads.size(); ++i)
        m_lstThreads.at(i)->wait();
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
