#include <QHeaderView>
#include <QPixmap>
#include <QSplitter>
#include <QTreeWidgetItemIterator>
#include <QVector>

#include "logic/AddrBookLogic.h"
#include "logic/AddrBookUICommon.h"
#include "logic/ItemData.h"
#include "logic/Log.h"
#include "logic/SdkCall.h"
#include "logic/SdkTransaction.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/GridDelegate.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"
#include "window/PluginIds.h"

namespace
{
// The strip of tree pictures, and the frames that are used of it. The one behind the memory's is its selected picture.
const char* const s_szTreeImages = "/plugins/AddrBookUIPlugin/addr_tre_images";
const int s_iFrameSize = 16;
const int s_iFrameMemory = 0;
const int s_iFrameMemorySelected = 1;
const int s_iFrameGroup = 6;

QPixmap frameOf(const QPixmap& strip, int iFrame)
{
    return strip.copy(iFrame * s_iFrameSize, 0, s_iFrameSize, s_iFrameSize);
}

// "(n)" or "(n/m)"; a count that is not known shows as 0.
QString countText(int iCount)
{
    return QString::fromLatin1("(%1)").arg(qMax(iCount, 0));
}

QString countText(int iUsed, int iTotal)
{
    return QString::fromLatin1("(%1/%2)").arg(qMax(iUsed, 0)).arg(iTotal);
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
    connectTree(pDelegate);
}

void AddrBookDlg::connectTree(const QObject* pDelegate)
{
    connect(m_ptreePhonebook, SIGNAL(itemClicked(QTreeWidgetItem*, int)), this, SLOT(OnTreeClicked(QTreeWidgetItem*)));
    connect(pDelegate, SIGNAL(closeEditor(QWidget*)), this, SLOT(OnEditorClosed(QWidget*)));
    connect(m_ptreePhonebook, SIGNAL(itemEntered(QTreeWidgetItem*, int)), this,
            SLOT(OnTreeItemEntered(QTreeWidgetItem*)));
    connect(m_ptreePhonebook, SIGNAL(itemSelectionChanged()), this, SLOT(OnTreeItemSelectionChanged()));
    connect(m_ptreePhonebook, SIGNAL(itemDoubleClicked(QTreeWidgetItem*, int)), this,
            SLOT(OnTreeDoubleClicked(QTreeWidgetItem*)));
    connect(m_ptreePhonebook, SIGNAL(newContact()), this, SLOT(OnButtonClickedNewContact()));
    connect(m_ptreePhonebook, SIGNAL(deleteGroup()), this, SLOT(OnDeleteGroupClicked()));
    connect(m_ptreePhonebook, SIGNAL(newGroup()), this, SLOT(OnNewGroupClicked()));
    connect(m_ptreePhonebook, SIGNAL(renameGroup()), this, SLOT(OnRenameGroupClicked()));
    connect(m_ptreePhonebook, SIGNAL(sendMessage()), this, SLOT(OnButtonClickedSendGroupSMS()));
    connect(m_ptreePhonebook, SIGNAL(sendMmsMessage()), this, SLOT(OnButtonClickedSendGroupMMS()));
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
    setNodeLook(m_pitemLocalTreeWidgetItem, s_iFrameMemory);
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
        QTreeWidgetItem* pItem = new (std::nothrow) QTreeWidgetItem(pParent);
        if (pItem == nullptr)
            return;
        setNodeCaption(pItem, pGroup->strName + QString::fromLatin1("(%1)").arg(pGroup->iSize));
        setTreeData(pointerToCarrier(pGroup), 0, false, Qt::AscendingOrder, pItem);
        setNodeLook(pItem, s_iFrameGroup);
        addGroupsToTree(pItem, lstGroups, pGroup->iGroupID);
    }
}

void AddrBookDlg::addTreeNode(QTreeWidgetItem** ppItem, _ORVA_EN_PHONEBOOK_MEMORY enType)
{
    if (m_ptreePhonebook == nullptr)
        return;
    *ppItem = new (std::nothrow) QTreeWidgetItem(m_ptreePhonebook);
    if (*ppItem == nullptr)
        return;
    setNodeText(*ppItem, enType, true);
    (*ppItem)->setExpanded(true);
    setTreeData(enType, 0, false, Qt::AscendingOrder, *ppItem);
    setNodeLook(*ppItem, s_iFrameMemory);
}

void AddrBookDlg::updateDeviceAndSimNode(bool bCheckSim)
{
    ADDRBOOK_LOG_ENTER();
    if (m_ptreePhonebook == nullptr)
        return;
    unsigned short usCount = 0;
    long iResult = 0;
    SDK_CALL(iResult, ORVA_PBSrv_PBGetMemoryListType, (nullptr, &usCount));
    if (iResult != 0 || usCount == 0)
        return;
    QVector<short> lstTypes(usCount, -1);
    SDK_CALL(iResult, ORVA_PBSrv_PBGetMemoryListType, (lstTypes.data(), &usCount));
    foreach (short iType, lstTypes) {
        if (iType == PB_MEM_SIM || iType == PB_MEM_ME)
            addListedNode(static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(iType), bCheckSim);
    }
    ADDRBOOK_LOG_EXIT();
}

// One memory that the SDK names, unless the tree has it.
void AddrBookDlg::addListedNode(_ORVA_EN_PHONEBOOK_MEMORY enType, bool bCheckSim)
{
    const bool bSim = enType == PB_MEM_SIM;
    QTreeWidgetItem*& pItem = bSim ? m_pitemSimTreeWidgetItem : m_pitemDeviceTreeWidgetItem;
    if (isNodePresentInTree(pItem))
        return;
    if (bSim && bCheckSim && !(m_pAddrBookLogic != nullptr && m_pAddrBookLogic->IsSimValidForPB()))
        return;
    if (!bSim)
        ADDRBOOK_LOG("NV node added");
    broadcastMsg(bSim ? ADDRBOOK_MSG_SIM_NODE : ADDRBOOK_MSG_DEVICE_NODE, 1, 0);
    if (pItem == nullptr)
        addTreeNode(&pItem, enType);
    if (pItem == nullptr)
        return;
    long iResult = 0;
    SDK_CALL(iResult, ORVA_DevSrv_GetMultiModeCardStatus, (m_ucMultiModeCard, nullptr, nullptr, nullptr));
    pItem->setHidden(m_ucMultiModeCard[0] == 1 && m_bHideDoubleModeCardNode);
}

bool AddrBookDlg::setNodeText(QTreeWidgetItem* pItem, _ORVA_EN_PHONEBOOK_MEMORY enType, bool bShowCount)
{
    QString strText = AddrBookUICommon::GetNodeText(enType);
    if (m_pAddrBookLogic == nullptr)
        return false;
    int iTotal = 0;
    int iUsed = 0;
    m_pAddrBookLogic->GetAddrCapacity(enType, iTotal, iUsed);
    // Both 0 is how a memory that is still initialising looks.
    if (bShowCount && !(iTotal == 0 && iUsed == 0)) {
        strText += countText(iUsed, iTotal);
        if (m_bRightToLeft)
            CommonUtils::ParanthesisCorrectionForHeAndAr(strText);
    }
    if (pItem != nullptr) {
        pItem->setText(0, strText);
        setTreeColumnWidth(pItem);
    }
    return true;
}

void AddrBookDlg::setLocalText()
{
    if (m_pAddrBookLogic == nullptr)
        return;
    const QString strText =
        tr(QLatin1String("IDS_LOCAL_PHONEBOOKUI")) + countText(m_pAddrBookLogic->GetAddrRecordCount(PB_MEM_LOCAL));
    setNodeCaption(m_pitemLocalTreeWidgetItem, strText);
}

void AddrBookDlg::updateGroupInfoInTree(QTreeWidgetItem* pItem, AddrBookGroup* pGroup, _ORVA_EN_PHONEBOOK_MEMORY enType,
                                        qlonglong iNodeValue)
{
    if (pItem == nullptr || pGroup == nullptr)
        return;
    pGroup->iSize = qMax(pGroup->iSize, 0);
    QString strCount = countText(pGroup->iSize);
    if (iNodeValue == PB_MEM_SIM || iNodeValue == PB_MEM_ME) {
        if (m_pAddrBookLogic == nullptr)
            return;
        int iTotal = 0;
        int iUsed = 0;
        m_pAddrBookLogic->GetAddrCapacity(enType, iTotal, iUsed);
        strCount = countText(pGroup->iSize, iTotal);
    }
    setNodeCaption(pItem, pGroup->strName + strCount);
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
    for (QTreeWidgetItemIterator it(m_ptreePhonebook); *it != nullptr; ++it) {
        TreeNodeData* pData = treeNodeData(*it);
        if (pData != nullptr)
            repaintNode(*it, pData);
    }
    m_ptreePhonebook->repaint();
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::repaintNode(QTreeWidgetItem* pItem, TreeNodeData* pData)
{
    if (m_pAddrBookLogic == nullptr)
        return;
    QIcon icon;
    AddrBookGroup* pGroup = groupOf(pData);
    if (pGroup != nullptr) {
        {
            const SdkTransaction transaction(PB_MEM_LOCAL);
            m_pAddrBookLogic->GetGroupInfo(PB_MEM_LOCAL, *pGroup);
        }
        getImageIconFromFile(QLatin1String(s_szTreeImages), s_iFrameGroup, icon);
        // Any change of the node would write its text over what is being typed.
        if (!isUnderEdit(pItem))
            pItem->setIcon(0, icon);
        updateGroupInfoInTree(pItem, pGroup, PB_MEM_LOCAL, pData->iMemoryOrGroup);
        return;
    }
    const _ORVA_EN_PHONEBOOK_MEMORY enMemory = static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(pData->iMemoryOrGroup);
    AddrBookGroup group;
    group.strName =
        enMemory == PB_MEM_LOCAL ? tr(QLatin1String("IDS_LOCAL_PHONEBOOKUI")) : AddrBookUICommon::GetNodeText(enMemory);
    group.iSize = m_pAddrBookLogic->GetAddrRecordCount(enMemory);
    getImageIconFromFile(QLatin1String(s_szTreeImages), s_iFrameMemory, icon);
    pItem->setIcon(0, icon);
    updateGroupInfoInTree(pItem, &group, enMemory, pData->iMemoryOrGroup);
}

void AddrBookDlg::updateNodes()
{
    if (m_pitemSimTreeWidgetItem != nullptr)
        setNodeText(m_pitemSimTreeWidgetItem, PB_MEM_SIM, true);
    if (m_pitemDeviceTreeWidgetItem != nullptr)
        setNodeText(m_pitemDeviceTreeWidgetItem, PB_MEM_ME, true);
}

bool AddrBookDlg::isNodePresentInTree(QTreeWidgetItem* pItem) const
{
    return m_ptreePhonebook != nullptr && pItem != nullptr &&
           m_ptreePhonebook->invisibleRootItem()->indexOfChild(pItem) >= 0;
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
                                                   QTreeWidgetItem* pItem) const
{
    if (m_ptreePhonebook == nullptr)
        return nullptr;
    QTreeWidgetItem* pNode = pItem != nullptr ? pItem : m_ptreePhonebook->currentItem();
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

void AddrBookDlg::setTreeData(qlonglong iData, int iColumn, bool bSorted, Qt::SortOrder enOrder, QTreeWidgetItem* pItem)
{
    TreeNodeData* pData = new (std::nothrow) TreeNodeData;
    if (pData == nullptr)
        return;
    pData->iMemoryOrGroup = iData;
    pData->iSortColumn = iColumn;
    pData->bSorted = bSorted;
    pData->enSortOrder = enOrder;
    pItem->setData(0, Qt::UserRole, pointerToCarrier(pData));
}

void AddrBookDlg::setNodeLook(QTreeWidgetItem* pItem, int iFrame)
{
    QIcon icon;
    getImageIconFromFile(QLatin1String(s_szTreeImages), iFrame, icon);
    pItem->setIcon(0, icon);
    pItem->setSizeHint(0, QSize(25, 20));
}

void AddrBookDlg::getImageIconFromFile(const QString& strPath, int iFrame, QIcon& icon) const
{
    const QString strFile = CommonUtils::GetPluginLibraryPath() + strPath;
    if (strFile.isEmpty())
        return;
    const QPixmap strip(strFile);
    // In a right-to-left layout the selected picture of a memory turns; the normal one stays as it is drawn.
    icon.addPixmap(frameOf(strip, iFrame), QIcon::Normal, QIcon::Off);
    if (iFrame != s_iFrameMemory) {
        icon.addPixmap(frameOf(strip, iFrame), QIcon::Selected, QIcon::Off);
        return;
    }
    QPixmap selected = frameOf(strip, s_iFrameMemorySelected);
    if (m_bRightToLeft)
        selected = QPixmap::fromImage(selected.toImage().mirrored(true, false));
    icon.addPixmap(selected, QIcon::Selected, QIcon::Off);
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
    for (QTreeWidgetItemIterator it(m_ptreePhonebook); *it != nullptr; ++it) {
        const TreeNodeData* pData = treeNodeData(*it);
        delete groupOf(pData);
        delete pData;
    }
    delete m_ptreePhonebook->itemDelegate();
}
