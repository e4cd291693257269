#include "dialogs/AddrBookSelectContactsDlg.h"

#include <QHeaderView>
#include <QStringList>
#include <QTableWidgetSelectionRange>
#include <algorithm>

#include "logic/Texts.h"
#include "widgets/UITableItem.h"

// The table of chosen numbers beside the tree, with its buttons and labels.

namespace
{
const int COLUMNS = 3;
const int ROW_HEIGHT = 14;

void setCells(QTableWidget* ptable, int iRow, const QString& strName, const QString& strType, const QString& strValue)
{
    const QString astrTexts[COLUMNS] = {strName, strType, strValue};
    for (int i = 0; i < COLUMNS; ++i) {
        if (QTableWidgetItem* pitem = ptable->item(iRow, i))
            pitem->setText(astrTexts[i]);
    }
}
} // namespace

void AddrBookSelectContactsDlg::createTable()
{
    if (!m_ptableSelected)
        return;
    m_ptableSelected->setColumnCount(COLUMNS);
    m_ptableSelected->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_ptableSelected->setSortingEnabled(true);
    m_ptableSelected->setMaximumWidth(212);
    m_ptableSelected->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_ptableSelected->verticalHeader()->hide();
    m_ptableSelected->verticalHeader()->setMinimumSectionSize(ROW_HEIGHT);
    constructTableHeader(0, addrBookTr(QLatin1String("IDS_NAME")));
    constructTableHeader(1, addrBookTr(QLatin1String("IDS_PHONE_TYPE")));
    constructTableHeader(2, addrBookTr(QLatin1String("IDS_PHONE_VALUE")));
    // Three times the first column: the others keep the default width.
    m_ptableSelected->setColumnWidth(0, 70);
    m_ptableSelected->setColumnWidth(0, 70);
    m_ptableSelected->setColumnWidth(0, 70);
    m_ptableSelected->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_ptableSelected->setTextElideMode(Qt::ElideRight);
    m_ptableSelected->horizontalHeader()->setStretchLastSection(false);
    connect(m_ptableSelected->horizontalHeader(), SIGNAL(sectionClicked(int)), this, SLOT(OnHeaderClicked(int)));
    delete m_pdelegateTable;
    m_pdelegateTable = new SCDelegate(nullptr);
    m_ptableSelected->setItemDelegate(m_pdelegateTable);
    fillInitalRows();
}

void AddrBookSelectContactsDlg::constructTableHeader(int iColumn, const QString& strText)
{
    if (m_ptableSelected)
        m_ptableSelected->setHorizontalHeaderItem(iColumn, new UITableItem(strText));
}

void AddrBookSelectContactsDlg::fillInitalRows()
{
    if (m_ptableSelected)
        m_ptableSelected->setRowCount(0);
}

void AddrBookSelectContactsDlg::createRow(int iRow, int iColumn, QString strText)
{
    if (!m_ptableSelected)
        return;
    UITableItem* pitem = new UITableItem(strText);
    pitem->setFlags(pitem->flags() & ~(Qt::ItemIsSelectable | Qt::ItemIsEditable));
    pitem->setTextAlignment(Qt::AlignLeft | Qt::AlignBottom);
    m_ptableSelected->setItem(iRow, iColumn, pitem);
    m_ptableSelected->setRowHeight(iRow, ROW_HEIGHT);
}

// While the cells are set the table must not sort, or the row would move away under them.
void AddrBookSelectContactsDlg::setCellText(QString strName, QString strType, QString strValue, bool bSort)
{
    if (!m_ptableSelected)
        return;
    const bool bSorting = m_ptableSelected->isSortingEnabled();
    m_ptableSelected->setSortingEnabled(false);
    const int iRow = m_ptableSelected->rowCount();
    m_ptableSelected->setRowCount(iRow + 1);
    for (int i = 0; i < COLUMNS; ++i)
        createRow(iRow, i, QLatin1String(""));
    setCells(m_ptableSelected, iRow, strName, strType, strValue);
    for (int i = 0; i < COLUMNS; ++i) {
        if (QTableWidgetItem* pitem = m_ptableSelected->item(iRow, i))
            pitem->setFlags(pitem->flags() | Qt::ItemIsSelectable);
    }
    m_ptableSelected->setSortingEnabled(bSort || bSorting);
}

bool AddrBookSelectContactsDlg::setPreRecordInTree(QTreeWidgetItem* pitem, QString strNumber, bool bAdd, int iRow)
{
    if (!m_ptableSelected || pitem == nullptr)
        return false;
    for (int i = 0; i < pitem->childCount(); ++i) {
        if (setPreRecordInTree(pitem->child(i), strNumber, bAdd, iRow))
            return true;
    }
    LeafNodeData* pData = pitem->childCount() == 0 ? leafData(pitem) : nullptr;
    if (pData == nullptr || pData->strValue != strNumber)
        return false;

    setContactsTree(pitem);
    if (bAdd)
        setCellText(pData->strName.isEmpty() ? strNumber : pData->strName, pData->strFieldName, strNumber, true);
    else
        setContactsTable(pData, iRow);
    return true;
}

bool AddrBookSelectContactsDlg::setTreeCheckState(QTreeWidgetItem* pitem, QString strNumber)
{
    if (!m_ptreeContacts || pitem == nullptr)
        return false;
    for (int i = 0; i < pitem->childCount(); ++i) {
        if (setTreeCheckState(pitem->child(i), strNumber))
            return true;
    }
    const LeafNodeData* pData = pitem->childCount() == 0 ? leafData(pitem) : nullptr;
    if (pData == nullptr || pData->strValue != strNumber)
        return false;
    setContactsTree(pitem);
    return true;
}

void AddrBookSelectContactsDlg::setContactsTable(LeafNodeData* pLeafNodeData, int iRow)
{
    if (!m_ptableSelected || pLeafNodeData == nullptr)
        return;
    setCells(m_ptableSelected, iRow,
             pLeafNodeData->strName.isEmpty() ? pLeafNodeData->strValue : pLeafNodeData->strName,
             pLeafNodeData->strFieldName, pLeafNodeData->strValue);
}

// Walks the tree; which of its nodes are to go over was never settled, and none does.
void AddrBookSelectContactsDlg::addCheckedToTable(QTreeWidgetItem* pitem)
{
    if (!m_ptableSelected || pitem == nullptr)
        return;
    for (int i = 0; i < pitem->childCount(); ++i)
        addCheckedToTable(pitem->child(i));
}

bool AddrBookSelectContactsDlg::isNumberAlreadyInTable(QString strNumber)
{
    if (!m_ptableSelected)
        return false;
    for (int i = 0; i < m_ptableSelected->rowCount(); ++i) {
        const QTableWidgetItem* pitem = m_ptableSelected->item(i, 2);
        if (pitem != nullptr && pitem->text() == strNumber)
            return true;
    }
    return false;
}

bool AddrBookSelectContactsDlg::isNumberAlreadyInPreList(QString strNumber)
{
    return m_lstPreRecords.contains(strNumber);
}

void AddrBookSelectContactsDlg::setLabelText()
{
    if (!m_plabelTotal || !m_ptableSelected)
        return;
    const QStringList lstPieces = addrBookTr(QLatin1String("IDS_STR_STATINFORMATION")).split(QLatin1String("%d"));
    const int iColumns = qMax(1, m_ptableSelected->columnCount());
    m_plabelTotal->setText(lstPieces.value(0) + QString::number(m_ptableSelected->rowCount()) + lstPieces.value(1) +
                           QString::number(m_ptableSelected->selectedItems().size() / iColumns));
}

void AddrBookSelectContactsDlg::fillComboBox()
{
    if (!m_pcomboNumberType || !m_pAddrBookLogic)
        return;
    QList<AddrBookField> lstFields;
    m_pAddrBookLogic->GetAllFields(lstFields, PB_MEM_LOCAL);
    for (int i = 0; i < lstFields.size(); ++i) {
        const QString& strType = lstFields.at(i).strType;
        if (strType == QLatin1String("Mobile") || strType == QLatin1String("Number"))
            m_pcomboNumberType->addItem(addrBookTr(m_lstFieldNames.value(i)));
    }
    m_strNumberType = m_pcomboNumberType->itemText(0);
}

void AddrBookSelectContactsDlg::clearTreeandTable()
{
    if (!m_ptableSelected || !m_ptreeContacts)
        return;
    for (int iRow = 0; iRow < m_ptableSelected->rowCount(); ++iRow) {
        for (int iColumn = 0; iColumn < m_ptableSelected->columnCount(); ++iColumn)
            delete m_ptableSelected->takeItem(iRow, iColumn);
    }
    uncheckAllChilds(m_ptreeContacts->invisibleRootItem());
}

void AddrBookSelectContactsDlg::clearTable()
{
    if (m_ptableSelected) {
        for (int i = 0; i < m_ptableSelected->columnCount(); ++i)
            delete m_ptableSelected->takeHorizontalHeaderItem(i);
    }
    delete m_pdelegateTable;
}

void AddrBookSelectContactsDlg::OnAddButtonClicked()
{
    if (!m_ptableSelected || !m_ptreeContacts)
        return;
    addCheckedToTable(m_ptreeContacts->invisibleRootItem());
    setLabelText();
    m_ptableSelected->repaint();
}

void AddrBookSelectContactsDlg::OnRemoveButtonClicked()
{
    if (!m_ptableSelected)
        return;
    QList<int> lstRows;
    const QList<QTableWidgetSelectionRange> lstRanges = m_ptableSelected->selectedRanges();
    for (int i = 0; i < lstRanges.size(); ++i) {
        for (int iRow = lstRanges.at(i).topRow(); iRow <= lstRanges.at(i).bottomRow(); ++iRow)
            lstRows.append(iRow);
    }
    std::sort(lstRows.begin(), lstRows.end());
    lstRows.erase(std::unique(lstRows.begin(), lstRows.end()), lstRows.end());
    for (int i = lstRows.size() - 1; i >= 0; --i) {
        const QTableWidgetItem* pitem = m_ptableSelected->item(lstRows.at(i), 0);
        if (pitem != nullptr && (pitem->flags() & Qt::ItemIsSelectable) != 0)
            m_ptableSelected->removeRow(lstRows.at(i));
    }
    setLabelText();
    m_ptableSelected->repaint();
}

void AddrBookSelectContactsDlg::OnComboBoxIndexChanged(QString strText)
{
    if (m_pcomboNumberType)
        m_strNumberType = strText;
}

void AddrBookSelectContactsDlg::OnTableItemSelectionChanged()
{
    setLabelText();
}

void AddrBookSelectContactsDlg::OnHeaderClicked(int)
{
    if (m_ptableSelected)
        m_ptableSelected->repaint();
}
