#include <QHeaderView>
#include <QStandardItemModel>

#include "logic/ItemData.h"
#include "logic/Log.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"
#include "window/QuietModel.h"

namespace
{
// Keeps a table's vertical header from following each of thousands of removals, which it does by a walk over all rows;
// at the end it takes the rows that are left, all at once.
class DetachedHeader
{
public:
    explicit DetachedHeader(QTableWidget* ptable) : m_ptable(ptable) { m_ptable->verticalHeader()->setModel(&m_empty); }
    ~DetachedHeader()
    {
        // A header makes itself a selection with each model; the one that it shared with the table stays the table's.
        QHeaderView* pHeader = m_ptable->verticalHeader();
        delete pHeader->selectionModel();
        pHeader->setModel(m_ptable->model());
        const QItemSelectionModel* pOwn = pHeader->selectionModel();
        pHeader->setSelectionModel(m_ptable->selectionModel());
        delete pOwn;
    }

private:
    Q_DISABLE_COPY(DetachedHeader)
    QTableWidget* m_ptable;
    QStandardItemModel m_empty;
};
} // namespace

void AddrBookDlg::OnShowHideSearchBox()
{
    m_bSearchBoxShown = !m_bSearchBoxShown;
    if (m_bSearchBoxShown)
        showSearchBox();
    else
        hideSearchBox();
}

void AddrBookDlg::showSearchBox()
{
    ToolBarLogic::ShowHideSearchBox(m_pwidgetToolBar, m_phlayoutToolBar, m_plineeditSearch, true);
}

void AddrBookDlg::hideSearchBox()
{
    ToolBarLogic::ShowHideSearchBox(m_pwidgetToolBar, m_phlayoutToolBar, m_plineeditSearch, false);
    if (m_plineeditSearch != nullptr && !m_plineeditSearch->text().isEmpty())
        OnTextEdited(QLatin1String(""));
}

void AddrBookDlg::OnTextEdited(const QString& strEditedText)
{
    ADDRBOOK_LOG_ENTER();
    const bool bNarrows = !strEditedText.isEmpty() && strEditedText.contains(m_strSearchText, Qt::CaseSensitive);
    if (bNarrows) {
        m_search.Narrow(strEditedText);
        updateTable(strEditedText);
    } else if (m_ptreePhonebook != nullptr) {
        reloadForSearch(m_ptreePhonebook->currentItem(), strEditedText);
    }
    m_strSearchText = strEditedText;
    if (bNarrows)
        showEmptyText();
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::reloadForSearch(QTreeWidgetItem* pItem, const QString& strText)
{
    const AddrBookThread* pBefore = m_pthreadRead;
    m_pitemCurrentTreeWidgetItem = nullptr;
    m_enReadMode = ADDRBOOK_OP_SEARCH;
    UpdateTableRecords(pItem);
    // Behind the start of the reader: its first row is taken only by the event loop. A node without records of its own,
    // such as a group that has no name yet, starts none.
    if (m_pthreadRead != pBefore)
        m_search = TableSearch::Reloading(strText);
    else
        m_enReadMode = ADDRBOOK_OP_NONE;
}

// What an empty table says depends on why it is empty.
void AddrBookDlg::showEmptyText()
{
    if (m_ptableContacts == nullptr)
        return;
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = 0;
    getGroupId(enMemory, iGroupId);
    const char* szId = iGroupId > 0 ? "IDS_EMPTY_GROUP" : "IDS_EMPTY_MEMORY";
    if (m_bSearchBoxShown && !m_search.Text().isEmpty())
        szId = "IDS_EMPTY_SEARCH";
    m_ptableContacts->SetEmptyText(tr(QLatin1String(szId)));
}

// Rows go in runs and from the end, so that none is moved more often than it must.
void AddrBookDlg::updateTable(const QString& strText)
{
    if (m_ptableContacts == nullptr)
        return;
    const DetachedHeader detached(m_ptableContacts);
    int iLast = m_ptableContacts->rowCount() - 1;
    while (iLast >= 0) {
        if (rowMatches(iLast, strText)) {
            --iLast;
            continue;
        }
        int iFirst = iLast;
        while (iFirst > 0 && !rowMatches(iFirst - 1, strText))
            --iFirst;
        removeRows(iFirst, iLast);
        iLast = iFirst - 1;
    }
}

bool AddrBookDlg::rowMatches(int iRow, const QString& strText) const
{
    const int iColumns = m_ptableContacts->columnCount();
    for (int iColumn = 0; iColumn < iColumns; ++iColumn) {
        const QTableWidgetItem* pItem = m_ptableContacts->item(iRow, iColumn);
        if (pItem != nullptr && pItem->text().contains(strText, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

void AddrBookDlg::removeRows(int iFirst, int iLast)
{
    {
        // Emptied first: the selection follows while the rows go, and looks at what is behind them.
        const QuietModel quiet(m_ptableContacts->model());
        const int iColumns = m_ptableContacts->columnCount();
        for (int iRow = iFirst; iRow <= iLast; ++iRow) {
            for (int iColumn = 0; iColumn < iColumns; ++iColumn) {
                delete tableRowData(m_ptableContacts->item(iRow, iColumn));
                delete m_ptableContacts->takeItem(iRow, iColumn);
            }
        }
    }
    m_ptableContacts->model()->removeRows(iFirst, iLast - iFirst + 1);
}
