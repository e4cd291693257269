#ifndef TESTS_UNIT_WINDOW_TESTROWS_H
#define TESTS_UNIT_WINDOW_TESTROWS_H

#include <QHeaderView>
#include <QTableWidget>
#include <QtTest>

#include "window/TableRows.h"

// A table of three columns that fills itself as the window does, and frees what is behind its cells.
class TestRows : public QTableWidget
{
public:
    TestRows() : QTableWidget(0, 3) { setSelectionBehavior(QAbstractItemView::SelectRows); }
    ~TestRows() override { TableRows::clear(this); }

    void add(int id, const QStringList& values, _ORVA_EN_PHONEBOOK_MEMORY memory = PB_MEM_LOCAL)
    {
        AddrBookRecord record;
        record.iID = id;
        record.lstValues = values;
        const TableRows::Content content = {memory, 7, 3, false};
        setRowCount(rowCount() + 1);
        QVERIFY(TableRows::fill(this, rowCount() - 1, content, record));
    }

    void select(int first, int last)
    {
        setRangeSelected(QTableWidgetSelectionRange(first, 0, last, columnCount() - 1), true);
    }

    QStringList names() const
    {
        QStringList texts;
        for (int row = 0; row < rowCount(); ++row)
            texts << TableRows::text(this, row, 0);
        return texts;
    }
};

#endif // TESTS_UNIT_WINDOW_TESTROWS_H
