#include <QHeaderView>
#include <QIcon>
#include <QSplitter>
#include <QTreeWidgetItemIterator>

#include "linkhand/plugin/Codes.h"
#include "logic/AddrBookLogic.h"
#include "logic/AddrBookUICommon.h"
#include "logic/ItemData.h"
#include "logic/Log.h"
#include "logic/MemoryList.h"
#include "logic/SdkCall.h"
#include "logic/SdkTransaction.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/GridDelegate.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"
#include "window/TreeNodes.h"

namespace
{
void connectTree(const PBTreeWidget* ptree, const QObject* pDelegate, AddrBookDlg* pWindow)
{
    QObject::connect(ptree, SIGNAL(itemClicked(QTreeWidgetItem*, int)), pWindow, SLOT(OnTreeClicked(QTreeWidgetItem*)));
    QObject::connect(pDelegate, SIGNAL(closeEditor(QWidget*)), pWindow, SLOT(OnEditorClosed(QWidget*)));
    QObject::connect(ptree, SIGNAL(itemEntered(QTreeWidgetItem*, int)), pWindow,
                     SLOT(OnTreeItemEntered(QTreeWidgetItem*)));
    QObject::connect(ptree, SIGNAL(itemSelectionChanged()), pWindow, SLOT(OnTreeItemSelectionChanged()));
    QObject::connect(ptree, SIGNAL(itemDoubleClicked(QTreeWidgetItem*, int)), pWindow,
                     SLOT(OnTreeDoubleClicked(QTreeWidgetItem*)));
    QObject::connect(ptree, SIGNAL(newContact()), pWindow, SLOT(OnButtonClickedNewContact()));
    QObject::connect(ptree, SIGNAL(deleteGroup()), pWindow, SLOT(OnDeleteGroupClicked()));
    QObject::connect(ptree, SIGNAL(newGroup()), pWindow, SLOT(OnNewGroupClicked()));
    QObject::connect(ptree, SIGNAL(renameGroup()), pWindow, SLOT(OnRenameGroupClicked()));
    QObject::connect(ptree, SIGNAL(sendMessage()), pWindow, SLOT(OnButtonClickedSendGroupSMS()));
    QObject::connect(ptree, SIGNAL(sendMmsMessage()), pWindow, SLOT(OnButtonClickedSendGroupMMS()));
}
} // namespace

void AddrBookDlg::createTreeWidget()
{
    m_ptreePhonebook = new (std::nothrow) PBTreeWidget(m_psplitterMain);
    if (m_ptreePhonebook == nullptr)
        return;
    TreeDelegate* pDelegate = new (std::nothrow) TreeDelegate(nullptr);
    if (pDelegate == nullptr)
        return;
    m_ptreePhonebook->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_ptreePhonebook->setAcceptDrops(true);
    m_ptreePhonebook->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_ptreePhonebook->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_ptreePhonebook->setItemDelegate(pDelegate);
    m_ptreePhonebook->setObjectName(QLatin1String("AddrBookUIPlugin_TreeWidget"));
    m_ptreePhonebook->setHeaderHidden(true);
    m_ptreePhonebook->setExpandsOnDoubleClick(true);
    m_ptreePhonebook->setRootIsDecorated(false);
    connectTree(m_ptreePhonebook, pDelegate, this);
}

void AddrBookDlg::InitTree()
{
    ADDRBOOK_LOG_ENTER();
    if (m_ptreePhonebook == nullptr)
        return;
    m_pitemLocalTreeWidgetItem = new (std::nothrow) QTreeWidgetItem(m_ptreePhonebook);
    if (m_pitemLocalTreeWidgetItem == nullptr)
        return;
    setArabicLanguage();
    setLocalText();
    m_pitemLocalTreeWidgetItem->setExpanded(true);
    setTreeData(PB_MEM_LOCAL, 0, false, Qt::AscendingOrder, m_pitemLocalTreeWidgetItem);
    TreeNodes::setLook(m_pitemLocalTreeWidgetItem, TreeNodes::FRAME_MEMORY, m_bRightToLeft);
    m_pitemLocalTreeWidgetItem->setSelected(true);

    updateDeviceAndSimNode(true);
    readGroups();
    m_ptreePhonebook->setCurrentItem(m_pitemLocalTreeWidgetItem);

    if (m_ptableContacts != nullptr)
        m_ptableContacts->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    m_ptreePhonebook->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_ptreePhonebook->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    if (m_ptableContacts != nullptr) {
        QHeaderView* pHeader = m_ptableContacts->horizontalHeader();
        pHeader->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        pHeader->setTextElideMode(Qt::ElideRight);
        pHeader->setStretchLastSection(false);
    }
    OnTreeClicked(m_pitemLocalTreeWidgetItem);
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::addGroupsToTree(QTreeWidgetItem* pParent, QList<AddrBookGroup*> lstGroups, int iParentId)
{
    foreach (AddrBookGroup* pGroup, lstGroups) {
        if (pGroup->iParentID != iParentId)
            continue;
        QTreeWidgetItem* pitem = new (std::nothrow) QTreeWidgetItem(pParent);
        if (pitem == nullptr)
            return;
        setNodeCaption(pitem, pGroup->strName + QString::fromLatin1("(%1)").arg(pGroup->iSize));
        setTreeData(pointerToCarrier(pGroup), 0, false, Qt::AscendingOrder, pitem);
        TreeNodes::setLook(pitem, TreeNodes::FRAME_GROUP, m_bRightToLeft);
        addGroupsToTree(pitem, lstGroups, pGroup->iGroupID);
    }
}

void AddrBookDlg::addTreeNode(QTreeWidgetItem** ppitem, _ORVA_EN_PHONEBOOK_MEMORY enType)
{
    if (m_ptreePhonebook == nullptr)
        return;
    *ppitem = new (std::nothrow) QTreeWidgetItem(m_ptreePhonebook);
    if (*ppitem == nullptr)
        return;
    setNodeText(*ppitem, enType, true);
    (*ppitem)->setExpanded(true);
    setTreeData(enType, 0, false, Qt::AscendingOrder, *ppitem);
    TreeNodes::setLook(*ppitem, TreeNodes::FRAME_MEMORY, m_bRightToLeft);
}

void AddrBookDlg::updateDeviceAndSimNode(bool bCheckSim)
{
    ADDRBOOK_LOG_ENTER();
    if (m_ptreePhonebook == nullptr)
        return;
    QList<int> lstMemories;
    readMemoryList(lstMemories);
    foreach (int iType, lstMemories) {
        if (iType == PB_MEM_SIM || iType == PB_MEM_ME)
            addListedNode(static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(iType), bCheckSim);
    }
    ADDRBOOK_LOG_EXIT();
}

// One memory that the SDK names, unless the tree has it.
void AddrBookDlg::addListedNode(_ORVA_EN_PHONEBOOK_MEMORY enType, bool bCheckSim)
{
    const bool bSim = enType == PB_MEM_SIM;
    QTreeWidgetItem*& pitem = bSim ? m_pitemSimTreeWidgetItem : m_pitemDeviceTreeWidgetItem;
    if (isNodePresentInTree(pitem))
        return;
    if (bSim && bCheckSim && !(m_pAddrBookLogic != nullptr && m_pAddrBookLogic->IsSimValidForPB()))
        return;
    if (!bSim)
        ADDRBOOK_LOG("NV node added");
    broadcastMsg(bSim ? PHONEBOOK_CARD_NODE : PHONEBOOK_DEVICE_NODE, 1, 0);
    if (pitem == nullptr)
        addTreeNode(&pitem, enType);
    if (pitem == nullptr)
        return;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_DevSrv_GetMultiModeCardStatus, (m_ucMultiModeCard, nullptr, nullptr, nullptr));
    pitem->setHidden(m_ucMultiModeCard[0] == 1 && m_bHideDoubleModeCardNode);
}

bool AddrBookDlg::setNodeText(QTreeWidgetItem* pitem, _ORVA_EN_PHONEBOOK_MEMORY enType, bool bShowCount)
{
    QString strText = AddrBookUICommon::GetNodeText(enType);
    if (m_pAddrBookLogic == nullptr)
        return false;
    int iTotal = 0;
    int iUsed = 0;
    m_pAddrBookLogic->GetAddrCapacity(enType, iTotal, iUsed);
    // Both 0 is how a memory that is still initialising looks.
    if (bShowCount && !(iTotal == 0 && iUsed == 0)) {
        strText += TreeNodes::countText(iUsed, iTotal);
        if (m_bRightToLeft)
            CommonUtils::ParanthesisCorrectionForHeAndAr(strText);
    }
    if (pitem != nullptr) {
        pitem->setText(0, strText);
        setTreeColumnWidth(pitem);
    }
    return true;
}

void AddrBookDlg::setLocalText()
{
    if (m_pAddrBookLogic == nullptr)
        return;
    const QString strText = tr(QLatin1String("IDS_LOCAL_PHONEBOOKUI")) +
                            TreeNodes::countText(m_pAddrBookLogic->GetAddrRecordCount(PB_MEM_LOCAL));
    setNodeCaption(m_pitemLocalTreeWidgetItem, strText);
}

void AddrBookDlg::updateGroupInfoInTree(QTreeWidgetItem* pitem, AddrBookGroup* pGroup, _ORVA_EN_PHONEBOOK_MEMORY enType,
                                        qlonglong iNodeValue)
{
    if (pitem == nullptr || pGroup == nullptr)
        return;
    pGroup->iSize = qMax(pGroup->iSize, 0);
    QString strCount = TreeNodes::countText(pGroup->iSize);
    if (iNodeValue == PB_MEM_SIM || iNodeValue == PB_MEM_ME) {
        if (m_pAddrBookLogic == nullptr)
            return;
        int iTotal = 0;
        int iUsed = 0;
        m_pAddrBookLogic->GetAddrCapacity(enType, iTotal, iUsed);
        strCount = TreeNodes::countText(pGroup->iSize, iTotal);
    }
    setNodeCaption(pitem, pGroup->strName + strCount);
}

void AddrBookDlg::rePaintTree()
{
    ADDRBOOK_LOG_ENTER();
    if (m_ptreePhonebook == nullptr)
        return;
    setLocalText();
    updateNodes();
    // An editor of the user's stays: he may be typing when a batch ends.
    if (m_ptreePhonebook->currentItem() != nullptr && !isUnderEdit(m_ptreePhonebook->currentItem()))
        m_ptreePhonebook->closePersistentEditor(m_ptreePhonebook->currentItem(), 0);
    // Once for all nodes: each time, the file is looked at anew.
    QIcon iconGroup;
    QIcon iconMemory;
    getImageIconFromFile(TreeNodes::pictures(), TreeNodes::FRAME_GROUP, iconGroup);
    getImageIconFromFile(TreeNodes::pictures(), TreeNodes::FRAME_MEMORY, iconMemory);
    for (QTreeWidgetItemIterator it(m_ptreePhonebook); *it != nullptr; ++it) {
        TreeNodeData* pData = treeNodeData(*it);
        if (pData != nullptr)
            repaintNode(*it, pData, groupOf(pData) != nullptr ? iconGroup : iconMemory);
    }
    m_ptreePhonebook->repaint();
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::repaintNode(QTreeWidgetItem* pitem, TreeNodeData* pData, const QIcon& icon)
{
    if (m_pAddrBookLogic == nullptr)
        return;
    AddrBookGroup* pGroup = groupOf(pData);
    if (pGroup != nullptr) {
        {
            const SdkTransaction transaction(PB_MEM_LOCAL);
            m_pAddrBookLogic->GetGroupInfo(PB_MEM_LOCAL, *pGroup);
        }
        // Any change of the node would write its text over what is being typed.
        if (!isUnderEdit(pitem))
            pitem->setIcon(0, icon);
        updateGroupInfoInTree(pitem, pGroup, PB_MEM_LOCAL, pData->iMemoryOrGroup);
        return;
    }
    const _ORVA_EN_PHONEBOOK_MEMORY enMemory = static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(pData->iMemoryOrGroup);
    AddrBookGroup group;
    group.strName =
        enMemory == PB_MEM_LOCAL ? tr(QLatin1String("IDS_LOCAL_PHONEBOOKUI")) : AddrBookUICommon::GetNodeText(enMemory);
    group.iSize = m_pAddrBookLogic->GetAddrRecordCount(enMemory);
    pitem->setIcon(0, icon);
    updateGroupInfoInTree(pitem, &group, enMemory, pData->iMemoryOrGroup);
}

void AddrBookDlg::updateNodes()
{
    if (m_pitemSimTreeWidgetItem != nullptr)
        setNodeText(m_pitemSimTreeWidgetItem, PB_MEM_SIM, true);
    if (m_pitemDeviceTreeWidgetItem != nullptr)
        setNodeText(m_pitemDeviceTreeWidgetItem, PB_MEM_ME, true);
}

bool AddrBookDlg::isNodePresentInTree(QTreeWidgetItem* pitem) const
{
    return m_ptreePhonebook != nullptr && pitem != nullptr &&
           m_ptreePhonebook->invisibleRootItem()->indexOfChild(pitem) >= 0;
}

// A memory that was never there counts as existing: the test is for a node that has gone from the tree.
bool AddrBookDlg::isSimorDeviceNodeExist() const
{
    if (m_enMemory == PB_MEM_SIM && m_pitemSimTreeWidgetItem != nullptr)
        return isNodePresentInTree(m_pitemSimTreeWidgetItem);
    if (m_enMemory == PB_MEM_ME && m_pitemDeviceTreeWidgetItem != nullptr)
        return isNodePresentInTree(m_pitemDeviceTreeWidgetItem);
    return true;
}

void AddrBookDlg::OnTreeClicked(QTreeWidgetItem* item)
{
    if (item == m_pitemCurrentTreeWidgetItem)
        return;
    if (item != m_pitemEditedGroup)
        endGroupEdit();
    if (item == m_pitemCurrentTreeWidgetItem)
        return;
    m_pitemCurrentTreeWidgetItem = item;
    if (m_ptreePhonebook != nullptr) {
        getGroupId(m_ptreePhonebook->m_enDragMemory, m_ptreePhonebook->m_iDragGroupId);
        m_ptreePhonebook->m_pitemPrevious = item;
    }
    if (m_plineeditSearch != nullptr)
        m_plineeditSearch->setText(QLatin1String(""));
    m_enReadMode = ADDRBOOK_OP_NONE; // a reload for the search that still runs is given up
    UpdateTableRecords(item);
    if (m_ptreePhonebook == nullptr)
        return;
    m_ptreePhonebook->setCurrentItem(item);
    if (item != nullptr)
        item->setSelected(true);
}

void AddrBookDlg::OnTreeItemEntered(QTreeWidgetItem* item)
{
    if (m_ptreePhonebook == nullptr)
        return;
    m_pitemEnteredTreeWidgetItem = item;
    if (m_ptreePhonebook->m_bDropped)
        m_ptreePhonebook->ItemSelectionChanged();
}

void AddrBookDlg::OnTreeItemSelectionChanged()
{
    if (m_ptreePhonebook == nullptr)
        return;
    m_ptreePhonebook->setMouseTracking(false);
    if (m_pitemEnteredTreeWidgetItem != nullptr) {
        QTreeWidgetItem* pEntered = m_pitemEnteredTreeWidgetItem;
        m_ptreePhonebook->setCurrentItem(pEntered);
        m_pitemEnteredTreeWidgetItem = nullptr;
    }
    if (!m_ptreePhonebook->m_listDragData.isEmpty()) {
        finishDrop();
        return;
    }
    if (!m_ptreePhonebook->m_bHandleSelection)
        return;
    OnTreeClicked(m_ptreePhonebook->currentItem());
    if (!m_bClosingEditor)
        m_ptreePhonebook->repaint();
    OnTableEmptyAreaRightClicked();
}

QTreeWidgetItem* AddrBookDlg::getGroupAndParentIds(_ORVA_EN_PHONEBOOK_MEMORY& enType, int& iGroupId, int& iParentId,
                                                   QTreeWidgetItem* pitem) const
{
    if (m_ptreePhonebook == nullptr)
        return nullptr;
    QTreeWidgetItem* pNode = pitem != nullptr ? pitem : m_ptreePhonebook->currentItem();
    const TreeNodeData* pData = treeNodeData(pNode);
    if (pData == nullptr)
        return pNode;
    enType = PB_MEM_LOCAL;
    iGroupId = 0;
    const AddrBookGroup* pGroup = groupOf(pData);
    if (pGroup != nullptr) {
        iGroupId = pGroup->iGroupID;
        iParentId = pGroup->iParentID;
    } else {
        enType = static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(pData->iMemoryOrGroup);
    }
    return pNode;
}

QTreeWidgetItem* AddrBookDlg::getGroupId(_ORVA_EN_PHONEBOOK_MEMORY& enType, int& iGroupId) const
{
    int iParentId = 0;
    return getGroupAndParentIds(enType, iGroupId, iParentId, nullptr);
}

void AddrBookDlg::setTreeData(qlonglong iData, int iColumn, bool bSorted, Qt::SortOrder enOrder, QTreeWidgetItem* pitem)
{
    TreeNodeData* pData = new (std::nothrow) TreeNodeData;
    if (pData == nullptr)
        return;
    pData->iMemoryOrGroup = iData;
    pData->iSortColumn = iColumn;
    pData->bSorted = bSorted;
    pData->enSortOrder = enOrder;
    pitem->setData(0, Qt::UserRole, pointerToCarrier(pData));
}

void AddrBookDlg::getImageIconFromFile(const QString& strPath, int iFrame, QIcon& icon) const
{
    const QString strFile = CommonUtils::GetPluginLibraryPath() + strPath;
    if (strFile.isEmpty())
        return;
    TreeNodes::addPictures(strFile, iFrame, m_bRightToLeft, icon);
}

void AddrBookDlg::SetTreeFocus()
{
    if (m_ptreePhonebook == nullptr)
        return;
    m_ptreePhonebook->activateWindow();
    m_ptreePhonebook->setFocus();
}

void AddrBookDlg::deleteTreeVariantData()
{
    if (m_ptreePhonebook == nullptr)
        return;
    for (QTreeWidgetItemIterator it(m_ptreePhonebook); *it != nullptr; ++it)
        TreeNodes::freeData(*it);
    delete m_ptreePhonebook->itemDelegate();
}
