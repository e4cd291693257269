// What the table carries from one node to the next, which row counts, and where a drag of it starts.

#include <QHeaderView>

#include "logic/ItemData.h"
#include "logic/Log.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"

void AddrBookDlg::saveColumnState()
{
    ADDRBOOK_LOG("state saved");
    const QHeaderView* pHeader = m_ptableContacts->horizontalHeader();
    m_listColumnWidths.clear();
    for (int iColumn = 0; iColumn < m_ptableContacts->columnCount(); ++iColumn)
        m_listColumnWidths.append(m_ptableContacts->columnWidth(iColumn));
    // While a table fills, its indicator stands one column off: that is nobody's choice.
    if (m_ptableContacts->isSortingEnabled()) {
        if (pHeader->isSortIndicatorShown())
            m_iSortSection = pHeader->sortIndicatorSection();
        m_enSortOrder = pHeader->sortIndicatorOrder();
    }
    // A switch of node during the read that follows must not save the half-built table's defaults.
    m_bStateSavePending = false;
}

void AddrBookDlg::restoreColumnState(int iSortSection)
{
    ADDRBOOK_LOG("state restored");
    if (m_ptableContacts == nullptr)
        return;
    const int iCount = qMin(m_ptableContacts->columnCount(), m_listColumnWidths.size());
    for (int iColumn = 0; iColumn < iCount; ++iColumn)
        m_ptableContacts->setColumnWidth(iColumn, m_listColumnWidths.at(iColumn));
    m_ptableContacts->horizontalHeader()->setSortIndicator(iSortSection, m_enSortOrder);
}

// The table on screen keeps its rows, out of sight, until the next switch.
void AddrBookDlg::retireTable()
{
    const bool bFocus = tableHoldsFocus();
    if (bFocus)
        m_ptableContacts->clearFocus(); // or Qt would hand it to some neighbour on the way
    clearTable(m_ptableContactsOld);
    delete m_ptableContactsOld;
    m_ptableContactsOld = m_ptableContacts;
    m_ptableContacts = nullptr;
    m_ptableContactsOld->setParent(nullptr);
    createNewTable();
    if (bFocus && m_ptableContacts != nullptr)
        m_ptableContacts->setFocus(Qt::OtherFocusReason);
}

// True if the keys go to the table, or will once the box in front closes, or did before a tool button took them.
bool AddrBookDlg::tableHoldsFocus() const
{
    const QWidget* pFocus = window()->focusWidget();
    if (m_ptableContacts == nullptr || pFocus == nullptr)
        return false;
    return pFocus == m_ptableContacts || (m_bFocusFromTable && pFocus == m_pwidgetToolBar);
}

// The row that is acted on: what follows looks at the current one. The selection stays as the user made it.
void AddrBookDlg::makeCurrent(QTableWidgetItem* pItem)
{
    if (m_ptableContacts != nullptr && pItem != nullptr)
        m_ptableContacts->setCurrentItem(pItem, QItemSelectionModel::NoUpdate);
}

// The first cell of a contact's row; null if the table has none for it.
QTableWidgetItem* AddrBookDlg::rowOfRecord(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordId) const
{
    for (int iRow = 0; m_ptableContacts != nullptr && iRow < m_ptableContacts->rowCount(); ++iRow) {
        QTableWidgetItem* pItem = m_ptableContacts->item(iRow, 0);
        const TableRowData* pData = tableRowData(pItem);
        if (pData != nullptr && pData->enType == enMemory && pData->iRecordID == iRecordId)
            return pItem;
    }
    return nullptr;
}

void AddrBookDlg::OnTableItemClicked()
{
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = 0;
    getGroupId(enMemory, iGroupId);
    // A row left over from a memory whose node has gone is no contact of the node that became current.
    const TableRowData* pRow =
        m_ptableContacts != nullptr ? tableRowData(m_ptableContacts->item(m_ptableContacts->currentRow(), 0)) : nullptr;
    if (pRow != nullptr && pRow->enType != enMemory) {
        enMemory = pRow->enType;
        iGroupId = pRow->iGroupID;
    }
    if (m_ptreePhonebook != nullptr) {
        m_ptreePhonebook->m_enDragMemory = enMemory;
        m_ptreePhonebook->m_iDragGroupId = iGroupId;
    }
    m_enDragSourceMemory = enMemory;
}

void AddrBookDlg::OnHeaderClicked(int iLogicalIndex)
{
    if (m_ptreePhonebook == nullptr || m_ptableContacts == nullptr)
        return;
    QTreeWidgetItem* pCurrent = m_ptreePhonebook->currentItem();
    if (pCurrent == nullptr)
        return;
    TreeNodeData* pData = treeNodeData(pCurrent);
    if (pData != nullptr) {
        pData->bSorted = true;
        pData->iSortColumn = iLogicalIndex;
        pData->enSortOrder = m_ptableContacts->horizontalHeader()->sortIndicatorOrder();
    }
    m_ptableContacts->activateWindow();
    m_ptableContacts->repaint();
}

void AddrBookDlg::OnDragTargetChanged(QWidget* pwidgetTarget)
{
    if (m_ptreePhonebook != nullptr && pwidgetTarget != m_ptableContacts)
        m_ptreePhonebook->setCurrentItem(m_ptreePhonebook->m_pitemPrevious);
}

int AddrBookDlg::tableSelectionStatus() const
{
    if (m_ptableContacts == nullptr)
        return ADDRBOOK_ENABLE_TABLE_NONE;
    const QList<QTableWidgetSelectionRange> lstRanges = m_ptableContacts->selectedRanges();
    if (lstRanges.isEmpty())
        return ADDRBOOK_ENABLE_TABLE_NONE;
    if (lstRanges.size() == 1 && lstRanges.at(0).rowCount() == 1)
        return ADDRBOOK_ENABLE_TABLE_SINGLE;
    return ADDRBOOK_ENABLE_TABLE_MULTIPLE;
}
