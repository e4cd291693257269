// Groups of the local phonebook: read, new, renamed in place in the tree, deleted.

#include "window/AddrBookDlg.h"

#include <QLineEdit>
#include <QPointer>
#include <QRegExp>

#include <memory>
#include <new>

#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/ItemData.h"
#include "logic/Log.h"
#include "logic/SdkTransaction.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"
#include "window/NodeGuard.h"
#include "window/TreeNodes.h"

namespace
{

// Matches the count behind a group's name when searched from the end of the text.
const QRegExp& countExpression()
{
    static const QRegExp expression(QLatin1String("[(](.)*[)]"), Qt::CaseSensitive);
    return expression;
}

// What is wrong with the name, at once or when whatever is under way is through.
void tell(QObject* pWindow, bool bLater, const char* pTextId)
{
    QMetaObject::invokeMethod(pWindow, "OnGroupNameRefused", bLater ? Qt::QueuedConnection : Qt::DirectConnection,
                              Q_ARG(QString, QLatin1String(pTextId)));
}

// A new group of the store, the caller's; null, with the store's answer, if it was not taken.
AddrBookGroup* storeGroup(AddrBookLogic& logic, const QString& strName, int iParentId, int& iResult)
{
    std::unique_ptr<AddrBookGroup> pGroup(new (std::nothrow) AddrBookGroup);
    if (pGroup == nullptr)
        return nullptr;
    iResult = logic.AddGroup(PB_MEM_LOCAL, strName, iParentId, pGroup->iGroupID);
    if (iResult != ADDRBOOK_OK)
        return nullptr;
    pGroup->iParentID = iParentId;
    pGroup->strName = strName;
    return pGroup.release();
}

} // namespace

void AddrBookDlg::readGroups()
{
    if (m_pAddrBookLogic == nullptr)
        return;
    QList<AddrBookGroup*> lstRead;
    {
        const SdkTransaction transaction(PB_MEM_LOCAL);
        // A set that fails half way makes no nodes at all: half a tree would look whole.
        if (m_pAddrBookLogic->GetGroups(lstRead, PB_MEM_LOCAL) != ADDRBOOK_OK) {
            qDeleteAll(lstRead);
            lstRead.clear();
        }
    }

    const QList<AddrBookGroup*> lstGroups = TreeNodes::distinct(lstRead);
    addGroupsToTree(m_pitemLocalTreeWidgetItem, lstGroups, 0);
    TreeNodes::freeLeftOver(m_ptreePhonebook, lstGroups);
}

void AddrBookDlg::OnGroupsChanged()
{
    ADDRBOOK_LOG_CALLED();
    if (m_pAddrBookLogic == nullptr || m_ptreePhonebook == nullptr || m_pitemLocalTreeWidgetItem == nullptr)
        return;
    QList<AddrBookGroup*> lstRead;
    if (m_pAddrBookLogic->GetGroups(lstRead, PB_MEM_LOCAL) != ADDRBOOK_OK) {
        qDeleteAll(lstRead);
        lstRead.clear();
        if (!m_pAddrBookLogic->HasNoGroups(PB_MEM_LOCAL))
            return;
    }
    const QList<AddrBookGroup*> lstGroups = TreeNodes::distinct(lstRead);
    QHash<int, AddrBookGroup*> hashGroups;
    foreach (AddrBookGroup* pGroup, lstGroups)
        hashGroups.insert(pGroup->iGroupID, pGroup);

    // The node that becomes current where the current one goes has not been clicked.
    const bool bBlocked = m_ptreePhonebook->blockSignals(true);
    const QHash<int, QTreeWidgetItem*> hashNodes = TreeNodes::dropGone(m_pitemLocalTreeWidgetItem, hashGroups);
    QList<AddrBookGroup*> lstNew;
    foreach (AddrBookGroup* pGroup, lstGroups) {
        if (!hashNodes.contains(pGroup->iGroupID))
            lstNew.append(pGroup);
    }
    for (QHash<int, QTreeWidgetItem*>::const_iterator it = hashNodes.constBegin(); it != hashNodes.constEnd(); ++it)
        addGroupsToTree(it.value(), lstNew, it.key());
    if (!isNodePresentInTree(m_pitemCurrentTreeWidgetItem))
        m_pitemCurrentTreeWidgetItem = nullptr;
    m_ptreePhonebook->m_pitemPrevious = m_ptreePhonebook->currentItem();
    m_ptreePhonebook->blockSignals(bBlocked);
    TreeNodes::freeLeftOver(m_ptreePhonebook, lstGroups);
}

void AddrBookDlg::OnNewGroupClicked()
{
    ADDRBOOK_LOG_ENTER();
    if (m_ptreePhonebook == nullptr)
        return;
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = -1;
    getGroupId(enMemory, iGroupId);
    m_iNewGroupParentId = iGroupId;
    m_bNewGroupPending = true;
    QTreeWidgetItem* pitemParent = m_ptreePhonebook->currentItem();
    if (pitemParent == nullptr)
        return;
    const bool bLocalRoot = pitemParent->parent() == nullptr &&
                            pitemParent->text(0).startsWith(tr(QLatin1String("IDS_LOCAL_PHONEBOOKUI"))) &&
                            isNodePresentInTree(pitemParent);
    if (!bLocalRoot) {
        // A group beside the current one: groups never nest through here.
        pitemParent = pitemParent->parent();
        m_iNewGroupParentId = 0;
    }
    if (pitemParent == nullptr)
        return;
    m_strOldGroupName.clear();
    m_pitemGroupParent = pitemParent;
    QTreeWidgetItem* pitem = new (std::nothrow) QTreeWidgetItem(pitemParent);
    if (pitem == nullptr)
        return;
    m_pitemEditedGroup = pitem;
    TreeNodes::setLook(pitem, TreeNodes::FRAME_GROUP, m_bRightToLeft);
    pitem->setFlags(pitem->flags() | Qt::ItemIsEditable);
    m_ptreePhonebook->setCurrentItem(pitem);
    pitemParent->setExpanded(true);
    m_ptreePhonebook->editItem(pitem, 0);
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::OnRenameGroupClicked()
{
    ADDRBOOK_LOG_ENTER();
    if (m_ptreePhonebook == nullptr)
        return;
    QTreeWidgetItem* pitem = m_ptreePhonebook->currentItem();
    if (pitem == nullptr || pitem->text(0).isEmpty())
        return;
    m_strOldGroupName = pitem->text(0);
    QString strName = m_strOldGroupName;
    strName.truncate(countExpression().lastIndexIn(strName));
    pitem->setText(0, QString());
    pitem->setFlags(pitem->flags() | Qt::ItemIsEditable);
    m_ptreePhonebook->editItem(pitem, 0);
    QLineEdit* peditor = qobject_cast<QLineEdit*>(m_ptreePhonebook->itemWidget(pitem, 0));
    if (peditor != nullptr) {
        peditor->setText(strName);
        peditor->setSelection(0, strName.length());
    }
    m_pitemEditedGroup = pitem;
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::OnTreeDoubleClicked(QTreeWidgetItem* pitem)
{
    ADDRBOOK_LOG_CALLED();
    if (pitem != m_pitemLocalTreeWidgetItem && pitem != m_pitemSimTreeWidgetItem &&
        pitem != m_pitemDeviceTreeWidgetItem)
        OnRenameGroupClicked();
}

void AddrBookDlg::OnEditorClosed(QWidget* pwidgetEditor)
{
    ADDRBOOK_LOG_ENTER();
    QLineEdit* peditor = qobject_cast<QLineEdit*>(pwidgetEditor);
    if (peditor == nullptr || m_ptreePhonebook == nullptr || m_pitemEditedGroup == nullptr)
        return;
    const QPointer<AddrBookDlg> pSelf(this);
    const NodeGuard edited(m_pitemEditedGroup);
    QTreeWidgetItem* pitem = m_pitemEditedGroup;
    QString strText = peditor->text();
    QString strWithoutBlanks = strText;
    strWithoutBlanks.remove(QLatin1Char(' '));
    if (strWithoutBlanks.isEmpty()) {
        tell(this, m_bEndingGroupEdit, "IDS_GROUP_NAME_NULL");
        // The node, or the window, may have gone while the box was open.
        if (pSelf.isNull())
            return;
        if (edited.IsGone() || m_pitemEditedGroup != pitem)
            return;
        undoGroupEdit(pitem, true);
        m_pitemEditedGroup = nullptr;
        return;
    }
    if (!saveGroupName(strText, pitem)) {
        if (!pSelf.isNull() && m_pitemEditedGroup == edited.Node())
            m_pitemEditedGroup = nullptr;
        return;
    }
    if (m_bNewGroupPending) {
        SavePBInfoForAgent(QLatin1String("PB01"), QLatin1String("PBisUsing"), QLatin1String("1"));
        m_bNewGroupPending = false;
    }
    m_pitemEditedGroup = nullptr;
    pitem->setText(0, strText);
    setCorrectTreeWidth();
    pitem->setFlags(pitem->flags() & ~Qt::ItemIsEditable);
    ADDRBOOK_LOG_EXIT();
}

bool AddrBookDlg::isUnderEdit(const QTreeWidgetItem* pitem) const
{
    return pitem != nullptr && pitem == m_pitemEditedGroup && m_ptreePhonebook != nullptr &&
           m_ptreePhonebook->itemWidget(m_pitemEditedGroup, 0) != nullptr;
}

// Another node becomes current without the user's doing. The tree alone would drop the editor and leave its text on a
// node that is stored nowhere; so it ends as if the user had ended it.
void AddrBookDlg::endGroupEdit()
{
    if (!isUnderEdit(m_pitemEditedGroup))
        return;
    QTreeWidgetItem* pitem = m_pitemEditedGroup;
    const QPointer<QWidget> peditor = m_ptreePhonebook->itemWidget(pitem, 0);
    m_bEndingGroupEdit = true;
    m_ptreePhonebook->closePersistentEditor(pitem, 0);
    OnEditorClosed(peditor);
    m_bEndingGroupEdit = false;
}

void AddrBookDlg::OnGroupNameRefused(const QString& strTextId)
{
    // What waits for a window that goes is delivered there, and dropped.
    if (m_ptreePhonebook == nullptr)
        return;
    showMessageOk(QMessageBox::Information, this, QLatin1String("IDS_PROMPT_CAPTION"), tr(strTextId));
}

// A new group's node goes and its parent becomes current; a renamed one gets its old text back.
void AddrBookDlg::undoGroupEdit(QTreeWidgetItem* pitem, bool bFitTree)
{
    if (m_strOldGroupName.isEmpty()) {
        QTreeWidgetItem* pitemParent = m_pitemGroupParent;
        removeTreeItem(pitemParent, pitem);
        m_pitemCurrentTreeWidgetItem = pitemParent;
        m_ptreePhonebook->setCurrentItem(pitemParent);
        return;
    }
    pitem->setText(0, m_strOldGroupName);
    if (bFitTree)
        setCorrectTreeWidth();
    else
        setTreeColumnWidth(pitem);
}

bool AddrBookDlg::saveGroupName(QString& strText, QTreeWidgetItem* pitem)
{
    ADDRBOOK_LOG_CALLED();
    if (m_pAddrBookLogic == nullptr)
        return false;
    int iResult = ADDRBOOK_OK;
    if (m_strOldGroupName.isEmpty()) {
        AddrBookGroup* pGroup = storeGroup(*m_pAddrBookLogic, strText, m_iNewGroupParentId, iResult);
        if (pGroup != nullptr) {
            setTreeData(pointerToCarrier(pGroup), 0, false, Qt::AscendingOrder, pitem);
            TreeNodes::setLook(pitem, TreeNodes::FRAME_GROUP, m_bRightToLeft);
            m_ptreePhonebook->setCurrentItem(m_pitemGroupParent);
            strText += QLatin1String("(0)");
            if (m_bRightToLeft)
                CommonUtils::ParanthesisCorrectionForHeAndAr(strText);
            return true;
        }
    } else {
        const QString strName = strText;
        const int iCount = countExpression().lastIndexIn(m_strOldGroupName);
        if (iCount >= 0)
            strText += m_strOldGroupName.mid(iCount);
        _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
        int iGroupId = 0;
        int iParentId = 0;
        getGroupAndParentIds(enMemory, iGroupId, iParentId, m_pitemEditedGroup);
        if (strText != m_strOldGroupName)
            iResult = m_pAddrBookLogic->UpdateGroup(PB_MEM_LOCAL, iGroupId, strName, iParentId);
        if (iResult == ADDRBOOK_OK)
            return true;
    }
    if (iResult != ADDRBOOK_OK)
        refuseGroupName(pitem, iResult);
    return false;
}

// A name that the store did not take. Only one that stands already is told to the user.
void AddrBookDlg::refuseGroupName(QTreeWidgetItem* pitem, int iResult)
{
    const NodeGuard refused(pitem);
    const QPointer<AddrBookDlg> pSelf(this);
    if (iResult == ADDRBOOK_GROUP_EXISTS)
        tell(this, m_bEndingGroupEdit, "IDS_GROUP_NAME_REPEAT");
    if (!pSelf.isNull() && !refused.IsGone() && m_pitemEditedGroup == pitem)
        undoGroupEdit(pitem, false);
}

void AddrBookDlg::CloseEditor()
{
    ADDRBOOK_LOG_ENTER();
    m_bClosingEditor = true;
    if (m_ptreePhonebook != nullptr) {
        QTreeWidgetItem* pitemCurrent = m_ptreePhonebook->currentItem();
        if (pitemCurrent == nullptr)
            return; // the flag stays set: selection changes then leave the tree unpainted
        QTreeWidgetItem* pitemParent = pitemCurrent->parent();
        if (pitemParent != nullptr) {
            const int iChildren = pitemParent->childCount();
            const QPointer<QWidget> peditor = m_ptreePhonebook->itemWidget(pitemCurrent, 0);
            // A group without a name yet has no rows: the table still shows another node's.
            const bool bShown = treeNodeData(pitemCurrent) != nullptr;
            const NodeGuard shown(m_pitemCurrentTreeWidgetItem);
            const NodeGuard current(pitemCurrent);
            const NodeGuard parent(pitemParent);
            m_pitemCurrentTreeWidgetItem = m_pitemLocalTreeWidgetItem;
            m_ptreePhonebook->setCurrentItem(m_pitemLocalTreeWidgetItem);
            const QPointer<AddrBookDlg> pSelf(this);
            OnEditorClosed(peditor);
            // Its box about a name may have outlived the window, or either node.
            if (pSelf.isNull())
                return;
            if (!current.IsGone() && !parent.IsGone() && pitemParent->childCount() == iChildren)
                goBackTo(pitemCurrent, bShown, shown.Node());
        }
    }
    m_bClosingEditor = false;
    ADDRBOOK_LOG_EXIT();
}

// From the local node, which an editor's end passes through, back to the one that was current. If the table shows that
// one's rows they stay, with selection, preview and search; pShown is what the table was for, null to have the next
// click reload it.
void AddrBookDlg::goBackTo(QTreeWidgetItem* pitem, bool bShown, QTreeWidgetItem* pShown)
{
    if (bShown)
        m_pitemCurrentTreeWidgetItem = pitem;
    m_ptreePhonebook->setCurrentItem(pitem);
    if (bShown)
        m_pitemCurrentTreeWidgetItem = pShown;
}

void AddrBookDlg::OnDeleteGroupClicked()
{
    ADDRBOOK_LOG_ENTER();
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = 0;
    const NodeGuard asked(getGroupId(enMemory, iGroupId));
    const QPointer<AddrBookDlg> pSelf(this);
    const int iAnswer = CommonUtils::ShowMessage(QMessageBox::Question, this, tr(QLatin1String("IDS_PROMPT_CAPTION")),
                                                 tr(QLatin1String("IDS_DELETE_GROUP")), QLatin1String("IDS_OK"),
                                                 QLatin1String("IDS_CANCEL"), QLatin1String(""), true,
                                                 Qt::WindowCloseButtonHint, nullptr, QLatin1String(""), true);
    // A node that went while the question was open has nothing left to delete.
    if (pSelf.isNull() || iAnswer != QMessageBox::Ok || m_pitemLocalTreeWidgetItem == nullptr ||
        m_pAddrBookLogic == nullptr || asked.IsGone())
        return;
    m_pAddrBookLogic->DelGroup(enMemory, iGroupId);
    QTreeWidgetItem* pitem = asked.Node();
    QTreeWidgetItem* pitemParent = pitem->parent();
    removeTreeItem(pitemParent, pitem);
    if (pitemParent != nullptr) {
        m_pitemCurrentTreeWidgetItem = nullptr;
        m_ptreePhonebook->setCurrentItem(pitemParent);
        OnTreeItemSelectionChanged();
    }
    setCorrectTreeWidth();
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::removeTreeItem(QTreeWidgetItem* pParent, QTreeWidgetItem* pitem)
{
    ADDRBOOK_LOG_ENTER();
    m_bRemovingTreeItem = true;
    // The selection may change while the node goes.
    if (m_ptableContacts != nullptr)
        QObject::disconnect(m_ptableContacts, nullptr, this, nullptr);
    if (pParent != nullptr && pitem != nullptr && pParent->indexOfChild(pitem) >= 0) {
        const bool bShown = m_pitemCurrentTreeWidgetItem != nullptr;
        forgetTreeItem(pitem);
        const bool bShownGoes = bShown && m_pitemCurrentTreeWidgetItem == nullptr;
        pParent->takeChild(pParent->indexOfChild(pitem));
        // Taking it may have named it once more.
        forgetTreeItem(pitem);
        removeChildNodes(pitem);
        TreeNodes::freeData(pitem);
        delete pitem;
        // The table keeps the rows of the node that went: a click on the one that became current reads its own.
        if (bShownGoes)
            m_pitemCurrentTreeWidgetItem = nullptr;
    }
    connectHandlersForTable();
    m_bRemovingTreeItem = false;
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::forgetTreeItem(const QTreeWidgetItem* pitem)
{
    NodeGuard::Forget(pitem);
    QTreeWidgetItem** const lstNamed[] = {&m_pitemEnteredTreeWidgetItem, &m_pitemCurrentTreeWidgetItem,
                                          &m_pitemSimTreeWidgetItem,     &m_pitemDeviceTreeWidgetItem,
                                          &m_pitemGroupParent,           &m_pitemEditedGroup};
    for (QTreeWidgetItem** ppNamed : lstNamed) {
        if (*ppNamed == pitem)
            *ppNamed = nullptr;
    }
    if (m_ptreePhonebook != nullptr && m_ptreePhonebook->m_pitemPrevious == pitem)
        m_ptreePhonebook->m_pitemPrevious = nullptr;
    for (int i = 0; i < pitem->childCount(); ++i)
        forgetTreeItem(pitem->child(i));
}

void AddrBookDlg::removeChildNodes(QTreeWidgetItem* pitem)
{
    TreeNodes::freeBelow(pitem);
}
