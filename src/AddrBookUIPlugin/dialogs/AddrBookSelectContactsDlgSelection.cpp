#include "dialogs/AddrBookSelectContactsDlg.h"

#include <QSet>
#include <algorithm>

#include "linkhand/core/CommonUtils.h"
#include "logic/Log.h"
#include "widgets/MarkNews.h"
#include "widgets/QuietModel.h"

// Check marks and the result. A parent's mark says that something below it is chosen, not that everything is.

// Numbers to be struck from the list, gathered so that the list is gone through once.
struct AddrBookSelectContactsDlg::Strikes {
    QHash<QString, int> hashLeft;   // entries that are still there
    QHash<QString, int> hashStruck; // entries to take out, from the end of the list
};

void AddrBookSelectContactsDlg::OnOKButtonClicked()
{
    m_bOKClicked = true;
    if (m_pExtendDialog)
        m_pExtendDialog->QWidget::close();
}

void AddrBookSelectContactsDlg::OnCancelButtonClicked()
{
    m_bOKClicked = false;
    if (m_pExtendDialog)
        m_pExtendDialog->QWidget::close();
}

bool AddrBookSelectContactsDlg::GetButtonClicked()
{
    return m_bOKClicked;
}

void AddrBookSelectContactsDlg::GetRecords(QList<QString>& lstNumbers)
{
    if (!m_ptreeContacts || !m_bOKClicked)
        return;

    if (m_bMultiSelect) {
        lstNumbers.clear();
        QSet<QString> setSeen;
        for (int i = 0; i < m_lstSelectedNumbers.size(); ++i) {
            const QString& strNumber = m_lstSelectedNumbers.at(i);
            if (!setSeen.contains(strNumber)) {
                setSeen.insert(strNumber);
                lstNumbers.append(strNumber);
            }
        }
        return;
    }

    const LeafNodeData* pData = leafData(m_ptreeContacts->currentItem());
    if (pData != nullptr && (pData->iNodeType == ContactNode || pData->iNodeType == NumberNode))
        lstNumbers.append(pData->strValue);
}

// ---- Clicks ----------------------------------------------------------------------------------------------------

// Also comes for a click on a node's text, where the mark has not changed: a checked node then ticks all below it.
void AddrBookSelectContactsDlg::OnTreeClicked(QTreeWidgetItem* pitemTreeWidget)
{
    if (!m_bMultiSelect || pitemTreeWidget == nullptr || !m_ptreeContacts)
        return;

    const MarkNews news(m_ptreeContacts, pitemTreeWidget);
    const QuietModel quiet(m_ptreeContacts, QuietModel::REPAINT);
    if (pitemTreeWidget->checkState(0) != Qt::Unchecked) {
        for (QTreeWidgetItem* pitem = pitemTreeWidget->parent(); pitem != nullptr; pitem = pitem->parent())
            pitem->setCheckState(0, Qt::Checked);
        checkChildState(pitemTreeWidget);
        pitemTreeWidget->setCheckState(0, Qt::Checked);
    } else {
        removeItemFromContactsList(pitemTreeWidget);
        uncheckAllChilds(pitemTreeWidget);
        uncheckParentState(pitemTreeWidget);
    }
}

bool AddrBookSelectContactsDlg::checkChildState(QTreeWidgetItem* pitem)
{
    bool bResult = false;
    const int iCount = pitem->childCount();
    for (int i = 0; i < iCount; ++i)
        bResult = checkChildState(pitem->child(i)) || bResult;

    if (iCount == 0) {
        bool bOk = false;
        const qlonglong iValue = pitem->data(0, Qt::UserRole).toLongLong(&bOk);
        if (!bOk || iValue == PB_MEM_LOCAL || iValue == PB_MEM_ME)
            return false;
    }
    if (!bResult) {
        pitem->setCheckState(0, Qt::Checked);
        addItemToContactsList(pitem);
    }
    return bResult;
}

void AddrBookSelectContactsDlg::addItemToContactsList(QTreeWidgetItem* pitem)
{
    LeafNodeData* pData = pitem->childCount() == 0 ? leafData(pitem) : nullptr;
    if (pData == nullptr || pData->strValue.isEmpty() || pData->bChecked)
        return;
    pData->bChecked = true;
    m_lstSelectedNumbers.append(pData->strValue);
}

void AddrBookSelectContactsDlg::removeItemFromContactsList(QTreeWidgetItem* pitem)
{
    LeafNodeData* pData = pitem->childCount() == 0 ? leafData(pitem) : nullptr;
    if (pData == nullptr || pData->strValue.isEmpty() || !pData->bChecked)
        return;
    const int iIndex = m_lstSelectedNumbers.lastIndexOf(pData->strValue);
    if (iIndex >= 0) {
        pData->bChecked = false;
        m_lstSelectedNumbers.removeAt(iIndex);
    }
}

// Each number ticked below the node loses its last entry in the list, as if they were struck one by one.
void AddrBookSelectContactsDlg::uncheckAllChilds(QTreeWidgetItem* pitem)
{
    if (pitem == nullptr || pitem->childCount() == 0)
        return;

    Strikes strikes;
    for (int i = 0; i < m_lstSelectedNumbers.size(); ++i)
        ++strikes.hashLeft[m_lstSelectedNumbers.at(i)];
    uncheckSubtree(pitem, strikes);
    if (strikes.hashStruck.isEmpty())
        return;

    QList<QString> lstKept;
    for (int i = m_lstSelectedNumbers.size() - 1; i >= 0; --i) {
        const QHash<QString, int>::iterator it = strikes.hashStruck.find(m_lstSelectedNumbers.at(i));
        if (it != strikes.hashStruck.end() && it.value() > 0)
            --it.value();
        else
            lstKept.append(m_lstSelectedNumbers.at(i));
    }
    std::reverse(lstKept.begin(), lstKept.end());
    m_lstSelectedNumbers = lstKept;
}

void AddrBookSelectContactsDlg::uncheckSubtree(QTreeWidgetItem* pitem, Strikes& strikes)
{
    for (int i = 0; i < pitem->childCount(); ++i) {
        QTreeWidgetItem* pitemChild = pitem->child(i);
        pitemChild->setCheckState(0, Qt::Unchecked);
        if (pitemChild->childCount() > 0) {
            uncheckSubtree(pitemChild, strikes);
            continue;
        }
        LeafNodeData* pData = leafData(pitemChild);
        if (pData == nullptr || pData->strValue.isEmpty() || !pData->bChecked)
            continue;
        const QHash<QString, int>::iterator it = strikes.hashLeft.find(pData->strValue);
        if (it == strikes.hashLeft.end() || it.value() == 0)
            continue;
        --it.value();
        ++strikes.hashStruck[pData->strValue];
        pData->bChecked = false;
    }
}

// Stops at the first ancestor that still has a checked child.
void AddrBookSelectContactsDlg::uncheckParentState(QTreeWidgetItem* pitem)
{
    for (QTreeWidgetItem* pitemParent = pitem->parent(); pitemParent != nullptr; pitemParent = pitemParent->parent()) {
        for (int i = 0; i < pitemParent->childCount(); ++i) {
            if (pitemParent->child(i)->checkState(0) != Qt::Unchecked)
                return;
        }
        pitemParent->setCheckState(0, Qt::Unchecked);
    }
}

void AddrBookSelectContactsDlg::setContactsTree(QTreeWidgetItem* pitem)
{
    if (pitem == nullptr)
        return;
    pitem->setCheckState(0, Qt::Checked);
    OnTreeClicked(pitem);
}

// ---- The caller's numbers --------------------------------------------------------------------------------------

// Before the tree is filled: serves the table beside it alone.
void AddrBookSelectContactsDlg::SetInitialPrerecordSet(bool bFlag, QList<QString> lstNumbers)
{
    m_bMultiSelect = bFlag;
    if (!m_ptreeContacts)
        return;
    for (int i = 0; i < lstNumbers.size(); ++i) {
        const QString& strNumber = lstNumbers.at(i);
        if (strNumber.isEmpty()) {
            setLabelText();
            return;
        }
        if (!setPreRecordInTree(m_ptreeContacts->invisibleRootItem(), strNumber, true, i))
            setCellText(strNumber, QLatin1String(""), strNumber, false);
    }
    if (m_pExtendDialog)
        CommonUtils::MoveCentre(m_pExtendDialog);
    setLabelText();
}

// When the tree is full: ticks one node for each number. A number that the phonebook does not know stays chosen.
void AddrBookSelectContactsDlg::SetPrerecordSet(bool bFlag, QList<QString> lstNumbers)
{
    m_bMultiSelect = bFlag;
    if (!m_ptreeContacts)
        return;

    QMultiMap<QString, QTreeWidgetItem*> mapNodes;
    generateMapByContactsTree(m_ptreeContacts->invisibleRootItem(), mapNodes);
    const QuietModel quiet(m_ptreeContacts, QuietModel::REPAINT);
    QSet<QString> setChosen;
    int iSeen = 0;
    for (int i = 0; i < lstNumbers.size(); ++i) {
        const QString& strNumber = lstNumbers.at(i);
        if (strNumber.isEmpty())
            continue;
        tickPreRecord(mapNodes, strNumber);
        for (; iSeen < m_lstSelectedNumbers.size(); ++iSeen)
            setChosen.insert(m_lstSelectedNumbers.at(iSeen));
        if (!setChosen.contains(strNumber))
            m_lstSelectedNumbers.append(strNumber);
    }
    if (m_pExtendDialog)
        CommonUtils::MoveCentre(m_pExtendDialog);
    setLabelText();
}

// Of several nodes with the number the last in the tree decides; of its siblings with it the first is ticked.
void AddrBookSelectContactsDlg::tickPreRecord(const QMultiMap<QString, QTreeWidgetItem*>& mapNodes,
                                              const QString& strNumber)
{
    const QMultiMap<QString, QTreeWidgetItem*>::const_iterator it = mapNodes.constFind(strNumber);
    if (it == mapNodes.constEnd() || it.value()->parent() == nullptr)
        return;
    const QTreeWidgetItem* pitemParent = it.value()->parent();
    for (int i = 0; i < pitemParent->childCount(); ++i) {
        const LeafNodeData* pData = leafData(pitemParent->child(i));
        if (pData != nullptr && !pData->strValue.isEmpty() && pData->strValue == strNumber) {
            setContactsTree(pitemParent->child(i));
            return;
        }
    }
}

void AddrBookSelectContactsDlg::generateMapByContactsTree(QTreeWidgetItem* pitem,
                                                          QMultiMap<QString, QTreeWidgetItem*>& mapNodes)
{
    for (int i = 0; i < pitem->childCount(); ++i)
        generateMapByContactsTree(pitem->child(i), mapNodes);
    if (pitem->childCount() > 0 || pitem == m_ptreeContacts->invisibleRootItem())
        return;

    bool bOk = false;
    const qlonglong iValue = pitem->data(0, Qt::UserRole).toLongLong(&bOk);
    if (!bOk)
        ADDRBOOK_LOG_LINE("Exit 1: no user data");
    else if (iValue == PB_MEM_LOCAL || iValue == PB_MEM_ME)
        ADDRBOOK_LOG_LINE("Exit 2: PB_MEM_LOCAL or PB_MEM_ME");
    else if (const LeafNodeData* pData = leafData(pitem))
        mapNodes.insert(pData->strValue, pitem);
}
