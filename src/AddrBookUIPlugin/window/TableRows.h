#ifndef ADDRBOOKUIPLUGIN_TABLEROWS_H
#define ADDRBOOKUIPLUGIN_TABLEROWS_H

#include <QList>
#include <QString>

#include "logic/AddrBookTypes.h"

class QTableWidget;
class QTableWidgetItem;

// The rows of a table of contacts: a row is a contact, its cells are the contact's values in the order of the memory's
// fields, and each cell has a TableRowData behind it that says whose it is. A null table has no rows.
namespace TableRows
{

// The rows selected, as every operation on a selection takes them: the last range first, each from the top down.
QList<int> selected(const QTableWidget* ptable);

// The first cell of a contact's row; null if the table has none for it.
QTableWidgetItem* ofRecord(const QTableWidget* ptable, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordId);

// False for a row that names no contact, and for one left over from a memory whose node has gone: its identifier means
// somebody else in the current one.
bool belongsTo(const QTableWidgetItem* pitem, _ORVA_EN_PHONEBOOK_MEMORY enMemory);

// Makes it the row that is acted on: what follows looks at the current one. The selection stays as the user made it.
void makeCurrent(QTableWidget* ptable, QTableWidgetItem* pitem);

// Null without such a cell.
QString text(const QTableWidget* ptable, int iRow, int iColumn);

// A value as a cell shows it.
QString inOneLine(const QString& strValue);

// Makes the cells of a row that is there. A record that is shorter than the field list, such as that of a group member
// that is gone, gives empty cells. False if memory ran out on the way.
struct Content {
    _ORVA_EN_PHONEBOOK_MEMORY enMemory;
    int iGroupId;
    int iColumns;
    bool bCorrectParentheses;
};
bool fill(QTableWidget* ptable, int iRow, const Content& content, const AddrBookRecord& record);

// Takes out every row without a cell that holds the text, whatever the case of its letters.
void narrow(QTableWidget* ptable, const QString& strText);

// Takes out and frees all cells, their blocks and the header.
void clear(QTableWidget* ptable);

} // namespace TableRows

#endif // ADDRBOOKUIPLUGIN_TABLEROWS_H
