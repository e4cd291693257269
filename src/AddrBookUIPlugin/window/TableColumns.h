#ifndef ADDRBOOKUIPLUGIN_TABLECOLUMNS_H
#define ADDRBOOKUIPLUGIN_TABLECOLUMNS_H

#include <QList>

class QTableWidget;

// What a table hands on to the next one: how wide its columns are, and by which it is sorted.
namespace TableColumns
{

// While a table fills, its indicator stands one column off: that is nobody's choice, and the sort stays as it was.
void save(const QTableWidget& table, QList<int>& lstWidths, int& iSortSection, Qt::SortOrder& enSortOrder);
void restore(QTableWidget& table, const QList<int>& lstWidths, int iSortSection, Qt::SortOrder enSortOrder);

} // namespace TableColumns

#endif // ADDRBOOKUIPLUGIN_TABLECOLUMNS_H
