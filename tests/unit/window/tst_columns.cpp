#include "TestRows.h"
#include "window/TableColumns.h"

class ColumnsTest : public QObject
{
    Q_OBJECT

private slots:
    void nextTableLooksLikeTheOneBefore()
    {
        TestRows before;
        before.setSortingEnabled(true);
        before.setColumnWidth(0, 211);
        before.setColumnWidth(2, 77);
        before.horizontalHeader()->setSortIndicator(2, Qt::DescendingOrder);
        QList<int> widths;
        int section = 0;
        Qt::SortOrder order = Qt::AscendingOrder;
        TableColumns::save(before, widths, section, order);
        QCOMPARE(widths.size(), 3);
        TestRows after;
        TableColumns::restore(after, widths, section, order);
        QCOMPARE(after.columnWidth(0), 211);
        QCOMPARE(after.columnWidth(2), 77);
        QCOMPARE(after.horizontalHeader()->sortIndicatorSection(), 2);
        QCOMPARE(after.horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    }

    void tableThatStillFillsHasNoSortOfItsOwn()
    {
        TestRows filling;
        filling.horizontalHeader()->setSortIndicator(1, Qt::DescendingOrder);
        filling.setColumnWidth(1, 55);
        QList<int> widths;
        int section = 0;
        Qt::SortOrder order = Qt::AscendingOrder;
        TableColumns::save(filling, widths, section, order);
        QCOMPARE(widths.value(1), 55);
        QCOMPARE(section, 0);
        QCOMPARE(order, Qt::AscendingOrder);
    }

    void widthsBeyondTheLastColumnAreLeftOut()
    {
        TestRows table;
        TableColumns::restore(table, QList<int>{41, 42, 43, 44, 45}, 0, Qt::AscendingOrder);
        QCOMPARE(table.columnCount(), 3);
        QCOMPARE(table.columnWidth(2), 43);
    }
};

QTEST_MAIN(ColumnsTest)
#include "tst_columns.moc"
