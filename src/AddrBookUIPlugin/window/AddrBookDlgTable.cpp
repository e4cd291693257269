#include <QHeaderView>
#include <QScopedPointer>
#include <QSplitter>
#include <QTextBrowser>

#include <new>

#include "logic/AddrBookLogic.h"
#include "logic/ItemData.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/FormFont.h"
#include "widgets/GridDelegate.h"
#include "widgets/PBTreeWidget.h"
#include "widgets/UITableItem.h"
#include "window/AddrBookDlg.h"
#include "window/TableColumns.h"
#include "window/TableRows.h"

namespace
{
const int ROW_HEIGHT = 16;
const int COLUMN_WIDTH = 100;

} // namespace

void AddrBookDlg::getFieldNames()
{
    if (m_pAddrBookLogic == nullptr)
        return;
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    QTreeWidgetItem* pCurrent = m_ptreePhonebook != nullptr ? m_ptreePhonebook->currentItem() : nullptr;
    if (pCurrent != nullptr && pCurrent == m_pitemSimTreeWidgetItem)
        enMemory = PB_MEM_SIM;
    else if (pCurrent != nullptr && pCurrent == m_pitemDeviceTreeWidgetItem)
        enMemory = PB_MEM_ME;
    m_pAddrBookLogic->GetFieldNames(enMemory, m_listFieldNames);
}

void AddrBookDlg::getColumnCount(_ORVA_EN_PHONEBOOK_MEMORY enType, int& iCount) const
{
    QList<AddrBookField> lstFields;
    if (m_pAddrBookLogic != nullptr)
        m_pAddrBookLogic->GetAllFields(lstFields, enType);
    iCount = lstFields.size();
}

void AddrBookDlg::removeFieldNameAndInfo(QList<QString>& lstNames, QList<QString>& lstInfo, int iIndex) const
{
    lstNames.removeAt(iIndex);
    lstInfo.removeAt(iIndex);
}

void AddrBookDlg::constructTable(_ORVA_EN_PHONEBOOK_MEMORY enType)
{
    int iCount = 0;
    getColumnCount(enType, iCount);
    QList<QString> lstNames;
    if (m_pAddrBookLogic != nullptr)
        m_pAddrBookLogic->GetFieldNames(enType, lstNames);
    if (m_ptableContacts == nullptr)
        return;
    m_ptableContacts->setColumnCount(iCount);
    m_ptableContacts->setSortingEnabled(false);
    m_ptableContacts->setSelectionBehavior(QAbstractItemView::SelectRows);
    for (int iColumn = 0; iColumn < qMin(iCount, lstNames.size()); ++iColumn) {
        constructTableHeader(iColumn, tr(lstNames.at(iColumn)));
        m_ptableContacts->setColumnWidth(iColumn, COLUMN_WIDTH);
    }
    QHeaderView* pHeader = m_ptableContacts->horizontalHeader();
    pHeader->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    pHeader->setTextElideMode(Qt::ElideRight);
    pHeader->setSortIndicatorShown(true);
    // Whole rows are selected: bold captions would say nothing, and be cut.
    pHeader->setHighlightSections(false);
    pHeader->setStretchLastSection(false);
    m_ptableContacts->setTabKeyNavigation(false);
    m_ptableContacts->setColumnCount(iCount);
    m_ptableContacts->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    fitFontToColumns(pHeader);
}

UITableItem* AddrBookDlg::constructTableHeader(int iColumn, const QString& strText)
{
    UITableItem* pitem = new (std::nothrow) UITableItem;
    if (pitem == nullptr)
        return nullptr;
    m_ptableContacts->setHorizontalHeaderItem(iColumn, pitem);
    m_ptableContacts->verticalHeader()->hide();
    pitem->setText(strText);
    return pitem;
}

void AddrBookDlg::createNewTable()
{
    if (m_ptableContacts != nullptr) {
        clearTable(m_ptableContacts);
        delete m_ptableContacts;
        m_ptableContacts = nullptr;
    }
    if (m_psplitterPreview == nullptr)
        return;
    m_ptableContacts = new (std::nothrow) AddrBookTableWidget(m_psplitterPreview);
    if (m_ptableContacts == nullptr)
        return;
    m_ptableContacts->setObjectName(QLatin1String("AddrBookUIPlugin_ContactTable"));
    m_ptableContacts->setAccessibleName(tr(QLatin1String("IDS_CONTACT_LIST")));
    m_psplitterPreview->insertWidget(0, m_ptableContacts);
    m_psplitterPreview->setSizes(m_listPreviewSplitterSizes);
    m_pdelegateGrid = new (std::nothrow) GridDelegate(nullptr);
    if (m_pdelegateGrid != nullptr)
        m_ptableContacts->setItemDelegate(m_pdelegateGrid);
    // The height of all rows, without a call a row: that one would have the header lay itself out each time.
    m_ptableContacts->verticalHeader()->setMinimumSectionSize(ROW_HEIGHT);
    m_ptableContacts->verticalHeader()->setDefaultSectionSize(ROW_HEIGHT);
}

void AddrBookDlg::connectHandlersForTable()
{
    if (m_ptableContacts == nullptr)
        return;
    const AddrBookTableWidget* pTable = m_ptableContacts;
    // A second call, without a disconnect in between, must not double the connections.
    QObject::disconnect(pTable, nullptr, this, nullptr);
    QObject::disconnect(pTable->horizontalHeader(), nullptr, this, nullptr);
    connect(pTable, SIGNAL(itemSelectionChanged()), this, SLOT(OnTableItemSelectionChanged()));
    connect(pTable, SIGNAL(cellClicked(int, int)), this, SLOT(OnTableClicked(int, int)));
    connect(pTable, SIGNAL(emptyAreaRightClicked(bool)), this, SLOT(OnTableEmptyAreaRightClicked()));
    connect(pTable, SIGNAL(mouseDoubleClicked()), this, SLOT(OnButtonClickedEditContact()));
    connect(pTable, SIGNAL(editContact()), this, SLOT(OnButtonClickedEditContact()));
    connect(pTable, SIGNAL(itemClicked(QTableWidgetItem*)), this, SLOT(OnTableItemClicked()));
    connect(pTable->horizontalHeader(), SIGNAL(sectionClicked(int)), this, SLOT(OnHeaderClicked(int)));
    connect(pTable, SIGNAL(newContact()), this, SLOT(OnButtonClickedNewContact()));
    connect(pTable, SIGNAL(deleteContact()), this, SLOT(OnButtonClickedDeleteContact()));
    connect(pTable, SIGNAL(showHideSearchControl()), this, SLOT(OnShowHideSearchBox()));
    connect(pTable, SIGNAL(sendMessage()), this, SLOT(OnButtonClickedSendSMS()));
    // The table has no such signal: Qt warns, and nothing depends on it.
    connect(pTable, SIGNAL(sendMmsMessage()), this, SLOT(OnButtonClickedSendMMS()));
    connect(pTable, SIGNAL(dragTargetChanged(QWidget*)), this, SLOT(OnDragTargetChanged(QWidget*)));
    connect(pTable, SIGNAL(makeCall()), this, SLOT(OnButtonClickedCall()));
    connect(pTable, SIGNAL(importMOE()), this, SLOT(OnBnClickedBtnMOE()));
    connect(pTable, SIGNAL(importMOO()), this, SLOT(OnBnClickedBtnMOO()));
}

void AddrBookDlg::UpdateTableRecords(QTreeWidgetItem* pitem)
{
    ADDRBOOK_LOG_ENTER();
    const TreeNodeData* pData = treeNodeData(pitem);
    if (pData == nullptr || m_bRemovingTreeItem)
        return;
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = 0;
    const AddrBookGroup* pGroup = groupOf(pData);
    if (pGroup != nullptr)
        iGroupId = pGroup->iGroupID;
    else
        enMemory = static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(pData->iMemoryOrGroup);

    if (m_ptableContacts != nullptr) {
        if (m_bStateSavePending) {
            TableColumns::save(*m_ptableContacts, m_listColumnWidths, m_iSortSection, m_enSortOrder);
            // A switch of node during the read that follows must not save the half-built table's defaults.
            m_bStateSavePending = false;
        }
        retireTable();
    }
    constructTable(enMemory);
    startThreadAndUpdateTable(enMemory, iGroupId);

    if (m_ptableContacts != nullptr) {
        int iCount = 0;
        getColumnCount(m_enTableMemory, iCount);
        m_ptableContacts->setColumnCount(iCount);
        m_ptableContacts->setShowGrid(false);
        m_ptableContacts->horizontalHeader()->setStretchLastSection(false);
        m_ptableContacts->setSelectionBehavior(QAbstractItemView::SelectRows);
        m_ptableContacts->setSelectionMode(QAbstractItemView::ExtendedSelection);
        showNoRecord();
        m_ptableContacts->horizontalHeader()->setSortIndicatorShown(true);
    }
    disableSelectionItems();
    if (m_ptableContacts != nullptr)
        m_ptableContacts->setCurrentIndex(QModelIndex());
    if (m_bSortPreserve) {
        // While the table is empty the indicator stands one column to the right; the end of the read sets the true one.
        if (m_ptableContacts != nullptr)
            TableColumns::restore(*m_ptableContacts, m_listColumnWidths, m_iSortSection + 1, m_enSortOrder);
        m_bStateSavePending = true;
    } else if (m_ptableContacts != nullptr) {
        // A fresh header names no order that one would want.
        m_ptableContacts->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    }
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::startThreadAndUpdateTable(_ORVA_EN_PHONEBOOK_MEMORY enType, int iGroupId)
{
    ADDRBOOK_LOG_ENTER();
    m_enTableMemory = enType;
    m_search = TableSearch();
    m_saved.Start();
    if (m_pthreadRead != nullptr) {
        m_pthreadRead->DisconnectSignals();
        m_pthreadRead->StopOperation();
    }
    m_pthreadReadOld = m_pthreadRead;
    m_pthreadRead = new (std::nothrow) AddrBookThread;
    if (m_pthreadReadOld != nullptr) {
        m_pthreadReadOld->EndOperation();
        // Its records are still in the event queue, and tell themselves as stale by a sender that is not the current
        // reader. Its address must therefore not come back as that of a new reader before they have gone; the deferred
        // deletion stands behind them in the same queue.
        m_pthreadReadOld->setParent(this);
        m_pthreadReadOld->deleteLater();
        m_pthreadReadOld = nullptr;
    }
    if (m_pthreadRead == nullptr)
        return;
    connect(m_pthreadRead, SIGNAL(finished()), this, SLOT(OnReadFinished()));
    connect(m_pthreadRead, SIGNAL(addContacts(int, qlonglong, int, int, int)), this,
            SLOT(OnAddContactToTable(int, qlonglong, int, int, int)));
    m_pthreadRead->SetOperation(ADDRBOOK_OP_READ, enType, QList<AddrBookRecord>(), iGroupId);
    int iCount = 0;
    getColumnCount(enType, iCount);
    m_pthreadRead->SetReadOperation(m_ptableContacts, iCount);
    m_pthreadRead->start(QThread::InheritPriority);
    connectHandlersForTable();
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::OnAddContactToTable(int enType, qlonglong iData, int iGroupid, int /*iCurrentRow*/, int iColumnCount)
{
    const QScopedPointer<AddrBookRecord> pRecord(carrierToPointer<AddrBookRecord>(iData));
    if (pRecord.isNull() || m_pthreadRead == nullptr || QObject::sender() != m_pthreadRead ||
        m_ptableContacts == nullptr)
        return;
    const _ORVA_EN_PHONEBOOK_MEMORY enMemory = static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(enType);
    // A contact that was saved meanwhile is shown as it was saved, and once.
    if (m_saved.BringUpToDate(enMemory, *pRecord) &&
        TableRows::ofRecord(m_ptableContacts, enMemory, pRecord->iID) != nullptr)
        return;
    if (!m_search.LetsIn(*pRecord, iColumnCount))
        return;
    const int iRow = m_ptableContacts->rowCount();
    m_ptableContacts->setRowCount(iRow + 1);
    const TableRows::Content content = {enMemory, iGroupid, iColumnCount, m_bRightToLeft};
    if (TableRows::fill(m_ptableContacts, iRow, content, *pRecord))
        m_ptableContacts->setColumnCount(iColumnCount);
}

void AddrBookDlg::OnReadFinished()
{
    if (m_pthreadRead == nullptr || QObject::sender() != m_pthreadRead)
        return;
    ADDRBOOK_LOG_ENTER();
    int iCount = 0;
    getColumnCount(m_enTableMemory, iCount);
    if (m_ptableContacts != nullptr) {
        if (m_bSortPreserve) {
            TableColumns::restore(*m_ptableContacts, m_listColumnWidths, m_iSortSection, m_enSortOrder);
            m_bStateSavePending = true;
        }
        for (int iColumn = 0; iColumn < iCount; ++iColumn) {
            ADDRBOOK_LOG("column number is %d, ColumnWidth is %d", iColumn, m_ptableContacts->columnWidth(iColumn));
            m_ptableContacts->horizontalHeader()->showSection(iColumn);
        }
        m_ptableContacts->setColumnCount(iCount);
    }
    m_enReadMode = ADDRBOOK_OP_NONE;
    m_saved.End();
    // What was typed while the rows came has thinned those that were there.
    if (m_search.EndRead())
        updateTable(m_search.Text());
    if (m_ptableContacts != nullptr)
        m_ptableContacts->setSortingEnabled(true);
    checkMaxCapacity(m_enTableMemory, false);
    showEmptyText();

    if (m_ptableContacts != nullptr) {
        const int iRow = m_ptableContacts->currentRow();
        QTableWidgetItem* pitem = m_ptableContacts->item(iRow, 0);
        TableRowData* pData = tableRowData(pitem);
        if (pitem != nullptr && pData == nullptr)
            return;
        QString strText;
        constructPreview(iRow, iCount, strText, pData);
        if (m_plabelPreview != nullptr)
            m_plabelPreview->setText(strText);
    }
    OnTableItemSelectionChanged();
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::addContactToTable(_ORVA_EN_PHONEBOOK_MEMORY enType, const AddrBookRecord& record, int iGroupId,
                                    int& iRow)
{
    if (m_ptableContacts == nullptr)
        return;
    iRow = m_ptableContacts->rowCount();
    m_ptableContacts->insertRow(iRow);
    int iCount = 0;
    getColumnCount(enType, iCount);
    const TableRows::Content content = {enType, iGroupId, iCount, false};
    if (TableRows::fill(m_ptableContacts, iRow, content, record))
        m_ptableContacts->setColumnCount(iCount);
}

void AddrBookDlg::setTableContent(_ORVA_EN_PHONEBOOK_MEMORY /*enType*/, const AddrBookRecord& record)
{
    if (m_ptableContacts == nullptr)
        return;
    const int iRow = m_ptableContacts->currentRow();
    const int iCount = qMin(m_ptableContacts->columnCount(), record.lstValues.size());
    for (int iColumn = 0; iColumn < iCount; ++iColumn) {
        QTableWidgetItem* pitem = m_ptableContacts->item(iRow, iColumn);
        if (pitem != nullptr)
            pitem->setText(TableRows::inOneLine(record.lstValues.at(iColumn)));
    }
    OnTableClicked(iRow, 0);
}

bool AddrBookDlg::checkStrings(const QString& strText, const QString& strPrefix) const
{
    return strText.length() > strPrefix.length() && strText.startsWith(strPrefix, Qt::CaseInsensitive) &&
           strText.at(strPrefix.length()).isLetterOrNumber();
}

void AddrBookDlg::clearTable(AddrBookTableWidget* pTable)
{
    if (pTable == nullptr)
        return;
    if (m_psplitterPreview != nullptr)
        m_listPreviewSplitterSizes = m_psplitterPreview->sizes();
    TableRows::clear(pTable);
    delete pTable->itemDelegate();
}
