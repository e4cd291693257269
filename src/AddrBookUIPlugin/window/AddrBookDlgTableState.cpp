// What the table carries from one node to the next, which row counts, and where a drag of it starts.

#include <QHeaderView>

#include "logic/ItemData.h"
#include "logic/Log.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"

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
