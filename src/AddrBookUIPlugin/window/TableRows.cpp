#include "window/TableRows.h"

#include <QBitArray>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableWidget>
#include <QVector>

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

#include "linkhand/core/CommonUtils.h"
#include "logic/CaselessText.h"
#include "logic/ItemData.h"
#include "widgets/DiscardedCells.h"
#include "widgets/QuietModel.h"
#include "widgets/UITableItem.h"

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

// A cell that is set where the table is sorted by its column would be moved to its place in the order.
class UnsortedHeader
{
public:
    explicit UnsortedHeader(QTableWidget* ptable)
        : m_pHeader(ptable->horizontalHeader()),
          m_bBefore(m_pHeader->blockSignals(true)),
          m_iSection(m_pHeader->sortIndicatorSection())
    {
        m_pHeader->setSortIndicator(-1, m_pHeader->sortIndicatorOrder());
    }
    ~UnsortedHeader()
    {
        m_pHeader->setSortIndicator(m_iSection, m_pHeader->sortIndicatorOrder());
        m_pHeader->blockSignals(m_bBefore);
    }

private:
    Q_DISABLE_COPY(UnsortedHeader)
    QHeaderView* m_pHeader;
    bool m_bBefore;
    int m_iSection;
};

void empty(QTableWidget* ptable, int iRow)
{
    const int iColumns = ptable->columnCount();
    for (int iColumn = 0; iColumn < iColumns; ++iColumn) {
        const QTableWidgetItem* pitem = ptable->takeItem(iRow, iColumn);
        delete tableRowData(pitem);
        delete pitem;
    }
}

void remove(QTableWidget* ptable, int iFirst, int iLast)
{
    {
        // Emptied first: the selection follows while the rows go, and looks at what is behind them.
        const QuietModel quiet(ptable);
        for (int iRow = iFirst; iRow <= iLast; ++iRow)
            empty(ptable, iRow);
    }
    ptable->model()->removeRows(iFirst, iLast - iFirst + 1);
}

// A table's cells, row by row in the order in which they lie in memory. Looked at in that order, those of a large table
// are there before they are asked for; freed in that order, their blocks join up again. In the order of a sorted table
// either takes longer than the whole fill took.
class AgedRows
{
public:
    explicit AgedRows(const QTableWidget* ptable) : m_iColumns(ptable->columnCount())
    {
        m_lstCells.reserve(ptable->rowCount() * m_iColumns);
        m_lstOrder.reserve(ptable->rowCount());
        for (int iRow = 0; m_iColumns > 0 && iRow < ptable->rowCount(); ++iRow) {
            for (int iColumn = 0; iColumn < m_iColumns; ++iColumn)
                m_lstCells.append(ptable->item(iRow, iColumn));
            m_lstOrder.append(std::make_pair(m_lstCells.at(iRow * m_iColumns), iRow));
        }
        std::sort(m_lstOrder.begin(), m_lstOrder.end());
    }

    int count() const { return int(m_lstOrder.size()); }

    // Its number in the table.
    int row(int i) const { return m_lstOrder.at(i).second; }

    bool holds(int i, const CaselessText& text) const
    {
        const QTableWidgetItem* const* ppCells = cells(i);
        return std::any_of(ppCells, ppCells + m_iColumns, [&text](const QTableWidgetItem* pitem) {
            return pitem != nullptr && UITableItem::Holds(pitem, text);
        });
    }

    // For somebody who goes through rows that lie far apart: those that come next are fetched meanwhile, first their
    // cells and then, through these, their texts.
    void announce(int i) const
    {
        const int CELLS_AHEAD = 8;
        const int TEXTS_AHEAD = 4;
        if (i + CELLS_AHEAD >= count())
            return;
        std::for_each(cells(i + CELLS_AHEAD), cells(i + CELLS_AHEAD) + m_iColumns, UITableItem::Announce);
        std::for_each(cells(i + TEXTS_AHEAD), cells(i + TEXTS_AHEAD) + m_iColumns, UITableItem::AnnounceText);
    }

private:
    const QTableWidgetItem* const* cells(int i) const { return m_lstCells.constData() + row(i) * m_iColumns; }

    int m_iColumns;
    QVector<const QTableWidgetItem*> m_lstCells; // as the table has them
    QVector<std::pair<const QTableWidgetItem*, int>> m_lstOrder;
};

void discard(QTableWidget* ptable, int iRow, DiscardedCells& discarded)
{
    const int iColumns = ptable->columnCount();
    for (int iColumn = 0; iColumn < iColumns; ++iColumn)
        discarded.Take(ptable->takeItem(iRow, iColumn));
}

// The rows without a cell that holds the text. Where nothing is selected, so that nobody looks at a row on the way,
// they are emptied at once.
QBitArray rowsWithout(QTableWidget* ptable, const QString& strText)
{
    const bool bAtOnce = !ptable->selectionModel()->hasSelection();
    const QuietModel quiet(ptable);
    QBitArray goes(ptable->rowCount());
    const CaselessText text(strText);
    const AgedRows rows(ptable);
    DiscardedCells& discarded = DiscardedCells::Of(ptable);
    for (int i = 0; i < rows.count(); ++i) {
        rows.announce(i);
        if (rows.holds(i, text))
            continue;
        const int iRow = rows.row(i);
        goes.setBit(iRow);
        if (bAtOnce)
            discard(ptable, iRow, discarded);
    }
    return goes;
}

// So that the selection and the current cell follow their rows; from the end, so that none is moved more often than it
// must.
void removeInRuns(QTableWidget* ptable, const QBitArray& goes)
{
    for (int iLast = goes.size() - 1; iLast >= 0; --iLast) {
        if (!goes.testBit(iLast))
            continue;
        int iFirst = iLast;
        while (iFirst > 0 && goes.testBit(iFirst - 1))
            --iFirst;
        remove(ptable, iFirst, iLast);
        iLast = iFirst;
    }
}

// Each removal moves all rows behind it: where nobody follows a row, those that stay move up once, and the rest goes
// all at once.
void closeUp(QTableWidget* ptable, const QBitArray& goes)
{
    int iTo = 0;
    {
        const QuietModel quiet(ptable);
        const UnsortedHeader unsorted(ptable);
        for (int iRow = 0; iRow < goes.size(); ++iRow) {
            if (goes.testBit(iRow))
                continue;
            for (int iColumn = 0; iTo < iRow && iColumn < ptable->columnCount(); ++iColumn)
                ptable->setItem(iTo, iColumn, ptable->takeItem(iRow, iColumn));
            ++iTo;
        }
    }
    if (iTo < goes.size())
        ptable->model()->removeRows(iTo, goes.size() - iTo);
}
} // namespace

QList<int> TableRows::selected(const QTableWidget* ptable)
{
    QList<int> lstRows;
    if (ptable == nullptr)
        return lstRows;
    const QList<QTableWidgetSelectionRange> lstRanges = ptable->selectedRanges();
    for (int i = lstRanges.size() - 1; i >= 0; --i) {
        for (int iRow = lstRanges.at(i).topRow(); iRow <= lstRanges.at(i).bottomRow(); ++iRow)
            lstRows.append(iRow);
    }
    return lstRows;
}

QTableWidgetItem* TableRows::ofRecord(const QTableWidget* ptable, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordId)
{
    for (int iRow = 0; ptable != nullptr && iRow < ptable->rowCount(); ++iRow) {
        QTableWidgetItem* pitem = ptable->item(iRow, 0);
        if (belongsTo(pitem, enMemory) && tableRowData(pitem)->iRecordID == iRecordId)
            return pitem;
    }
    return nullptr;
}

bool TableRows::belongsTo(const QTableWidgetItem* pitem, _ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    const TableRowData* pData = tableRowData(pitem);
    return pData != nullptr && pData->enType == enMemory;
}

void TableRows::makeCurrent(QTableWidget* ptable, QTableWidgetItem* pitem)
{
    if (ptable != nullptr && pitem != nullptr)
        ptable->setCurrentItem(pitem, QItemSelectionModel::NoUpdate);
}

QString TableRows::text(const QTableWidget* ptable, int iRow, int iColumn)
{
    const QTableWidgetItem* pitem = ptable != nullptr ? ptable->item(iRow, iColumn) : nullptr;
    return pitem != nullptr ? pitem->text() : QString();
}

QString TableRows::inOneLine(const QString& strValue)
{
    QString strText = strValue;
    strText.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return strText;
}

bool TableRows::fill(QTableWidget* ptable, int iRow, const Content& content, const AddrBookRecord& record)
{
    // A cell beyond the last column would be nobody's.
    if (ptable->columnCount() < content.iColumns)
        ptable->setColumnCount(content.iColumns);
    const QuietModel quiet(ptable);
    for (int iColumn = 0; iColumn < content.iColumns; ++iColumn) {
        QString strText = iColumn < record.lstValues.size() ? inOneLine(record.lstValues.at(iColumn)) : QString();
        if (content.bCorrectParentheses)
            CommonUtils::ParanthesisCorrectionForHeAndAr(strText);
        std::unique_ptr<TableRowData> pData(new (std::nothrow) TableRowData);
        UITableItem* pitem = pData == nullptr ? nullptr
                                              : new (std::nothrow) UITableItem(strText, Qt::AlignLeft | Qt::AlignBottom,
                                                                               pointerToCarrier(pData.get()));
        if (pitem == nullptr)
            return false;
        pitem->setFlags(pitem->flags() & ~Qt::ItemIsEditable);
        TableRowData* pRow = pData.release(); // the cell's from here on
        pRow->enType = content.enMemory;
        pRow->iRecordID = record.iID;
        pRow->iGroupID = content.iGroupId;
        ptable->setItem(iRow, iColumn, pitem);
    }
    return true;
}

void TableRows::narrow(QTableWidget* ptable, const QString& strText)
{
    if (ptable == nullptr)
        return;
    const bool bFollowed = ptable->selectionModel()->hasSelection() || ptable->currentIndex().isValid();
    const QBitArray goes = rowsWithout(ptable, strText);
    const DetachedHeader detached(ptable);
    if (bFollowed)
        removeInRuns(ptable, goes);
    else
        closeUp(ptable, goes);
}

void TableRows::clear(QTableWidget* ptable)
{
    if (ptable == nullptr)
        return;
    DiscardedCells::Of(ptable).FreeAll();
    const QuietModel quiet(ptable);
    const AgedRows rows(ptable);
    for (int i = 0; i < rows.count(); ++i) {
        rows.announce(i);
        empty(ptable, rows.row(i));
    }
    for (int iColumn = 0; iColumn < ptable->columnCount(); ++iColumn)
        delete ptable->takeHorizontalHeaderItem(iColumn);
}
