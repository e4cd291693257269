#include "window/TableColumns.h"

#include <QHeaderView>
#include <QTableWidget>

#include "logic/Log.h"

void TableColumns::save(const QTableWidget& table, QList<int>& lstWidths, int& iSortSection, Qt::SortOrder& enSortOrder)
{
    ADDRBOOK_LOG("state saved");
    lstWidths.clear();
    for (int iColumn = 0; iColumn < table.columnCount(); ++iColumn)
        lstWidths.append(table.columnWidth(iColumn));
    if (!table.isSortingEnabled())
        return;
    const QHeaderView* pHeader = table.horizontalHeader();
    if (pHeader->isSortIndicatorShown())
        iSortSection = pHeader->sortIndicatorSection();
    enSortOrder = pHeader->sortIndicatorOrder();
}

void TableColumns::restore(QTableWidget& table, const QList<int>& lstWidths, int iSortSection,
                           Qt::SortOrder enSortOrder)
{
    ADDRBOOK_LOG("state restored");
    const int iCount = qMin(table.columnCount(), lstWidths.size());
    for (int iColumn = 0; iColumn < iCount; ++iColumn)
        table.setColumnWidth(iColumn, lstWidths.at(iColumn));
    table.horizontalHeader()->setSortIndicator(iSortSection, enSortOrder);
}
