#include "TestRows.h"
#include "fakecore/FakeCore.h"
#include "logic/ItemData.h"
#include "widgets/DiscardedCells.h"
#include "widgets/QuietModel.h"

class RowsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FakeCore::reset(); }

    void cellsTellWhoseTheyAre()
    {
        TestRows rows;
        rows.add(11, {"Anna", "1\n2"}, PB_MEM_ME);
        QCOMPARE(TableRows::text(&rows, 0, 1), QString("1 2"));
        QCOMPARE(TableRows::text(&rows, 0, 2), QString("")); // shorter than the field list
        QVERIFY(TableRows::text(&rows, 5, 0).isNull());
        for (int column = 0; column < 3; ++column) {
            const TableRowData* data = tableRowData(rows.item(0, column));
            QVERIFY(data != nullptr);
            QCOMPARE(data->iRecordID, 11);
            QCOMPARE(data->iGroupID, 7);
            QCOMPARE(data->enType, PB_MEM_ME);
            QVERIFY(!(rows.item(0, column)->flags() & Qt::ItemIsEditable));
        }
    }

    void parenthesesAreCorrectedOnRequest()
    {
        FakeCore::setParenthesisCorrection([](QString& text) { text += '!'; });
        TestRows rows;
        rows.setRowCount(1);
        AddrBookRecord record;
        record.lstValues << "Anna";
        const TableRows::Content content = {PB_MEM_LOCAL, 0, 1, true};
        QVERIFY(TableRows::fill(&rows, 0, content, record));
        QCOMPARE(rows.names(), QStringList("Anna!"));
    }

    void columnsGrowWithTheFields()
    {
        TestRows rows;
        rows.setColumnCount(1);
        rows.add(1, {"Anna", "1", "2"});
        QCOMPARE(rows.columnCount(), 3);
        QCOMPARE(TableRows::text(&rows, 0, 2), QString("2"));
    }

    void lastRangeComesFirst()
    {
        TestRows rows;
        for (int id = 0; id < 6; ++id)
            rows.add(id, {QString::number(id)});
        rows.select(0, 1);
        rows.select(4, 5);
        QCOMPARE(TableRows::selected(&rows), (QList<int>{4, 5, 0, 1}));
        QCOMPARE(TableRows::selected(nullptr), QList<int>());
    }

    void recordIsFoundInItsOwnMemory()
    {
        TestRows rows;
        rows.add(3, {"card"}, PB_MEM_SIM);
        rows.add(3, {"local"});
        QCOMPARE(TableRows::ofRecord(&rows, PB_MEM_LOCAL, 3), rows.item(1, 0));
        QVERIFY(TableRows::ofRecord(&rows, PB_MEM_LOCAL, 4) == nullptr);
        QVERIFY(TableRows::ofRecord(nullptr, PB_MEM_LOCAL, 3) == nullptr);
        QVERIFY(TableRows::belongsTo(rows.item(0, 0), PB_MEM_SIM));
        QVERIFY(!TableRows::belongsTo(rows.item(0, 0), PB_MEM_LOCAL));
        QVERIFY(!TableRows::belongsTo(nullptr, PB_MEM_LOCAL));
    }

    void currentRowLeavesTheSelection()
    {
        TestRows rows;
        rows.add(1, {"Anna"});
        rows.add(2, {"Bert"});
        rows.select(0, 0);
        TableRows::makeCurrent(&rows, rows.item(1, 0));
        QCOMPARE(rows.currentRow(), 1);
        QCOMPARE(TableRows::selected(&rows), QList<int>{0});
        TableRows::makeCurrent(nullptr, rows.item(0, 0));
        TableRows::makeCurrent(&rows, nullptr);
        QCOMPARE(rows.currentRow(), 1);
    }

    void narrowingKeepsRowsWithTheText()
    {
        TestRows rows;
        rows.add(1, {"Anna", "123"});
        rows.add(2, {"Bert", "456"});
        rows.add(3, {"Carla", "4123"});
        rows.add(4, {"Dora", "789"});
        TableRows::narrow(&rows, "123");
        QCOMPARE(rows.names(), QStringList({"Anna", "Carla"}));
        TableRows::narrow(&rows, "CAR"); // whatever the case
        QCOMPARE(rows.names(), QStringList("Carla"));
        TableRows::narrow(&rows, "nobody");
        QCOMPARE(rows.rowCount(), 0);
        TableRows::narrow(nullptr, "x");
    }

    void narrowingKeepsTheOrderAndItsMark()
    {
        TestRows rows;
        for (int id = 0; id < 60; ++id)
            rows.add(id, {QString::number(99 - id), id % 3 == 0 ? "three" : "one"});
        rows.setSortingEnabled(true);
        rows.sortItems(0, Qt::DescendingOrder);
        QSignalSpy sorted(rows.horizontalHeader(), SIGNAL(sortIndicatorChanged(int, Qt::SortOrder)));
        TableRows::narrow(&rows, "three");
        QStringList expected;
        for (int id = 0; id < 60; id += 3)
            expected << QString::number(99 - id);
        QCOMPARE(rows.names(), expected);
        QCOMPARE(TableRows::text(&rows, 19, 1), QString("three"));
        QCOMPARE(sorted.count(), 0);
        QCOMPARE(rows.horizontalHeader()->sortIndicatorSection(), 0);
        QCOMPARE(rows.horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
        QVERIFY(rows.isSortingEnabled());
        QVERIFY(!rows.horizontalHeader()->signalsBlocked());
    }

    void narrowingDoesNotSortAnew()
    {
        TestRows rows;
        for (int id = 0; id < 6; ++id)
            rows.add(id, {QString::number(id), id % 2 == 0 ? "two" : "one"});
        rows.setSortingEnabled(true);
        rows.sortItems(0, Qt::AscendingOrder);
        {
            const QuietModel quiet(&rows);
            rows.item(2, 0)->setText("9");
        }
        TableRows::narrow(&rows, "two");
        QCOMPARE(rows.names(), QStringList({"0", "9", "4"}));
    }

    void selectedRowsFollowTheirContacts()
    {
        TestRows rows;
        for (int id = 0; id < 6; ++id)
            rows.add(id, {QString::number(id), id % 2 == 0 ? "two" : "one"});
        rows.select(2, 3);
        QVERIFY(!rows.currentIndex().isValid());
        TableRows::narrow(&rows, "two");
        QCOMPARE(rows.names(), QStringList({"0", "2", "4"}));
        QCOMPARE(TableRows::selected(&rows), QList<int>{1});
    }

    void currentRowWithoutASelectionFollowsItsContact()
    {
        TestRows rows;
        for (int id = 0; id < 6; ++id)
            rows.add(id, {QString::number(id), id % 2 == 0 ? "two" : "one"});
        TableRows::makeCurrent(&rows, rows.item(2, 0));
        TableRows::narrow(&rows, "two");
        QCOMPARE(rows.names(), QStringList({"0", "2", "4"}));
        QCOMPARE(rows.currentRow(), 1);
        QVERIFY(TableRows::selected(&rows).isEmpty());
    }

    void cellsOfRowsThatWentAreFreedWhileNothingElseIsToDo()
    {
        TestRows rows;
        for (int id = 0; id < 4000; ++id)
            rows.add(id, {QString::number(id), id == 7 ? "two" : "one"});
        TableRows::narrow(&rows, "two");
        const DiscardedCells& discarded = DiscardedCells::Of(&rows);
        QCOMPARE(discarded.Count(), 3 * 3999);
        QCoreApplication::processEvents();
        QVERIFY(discarded.Count() > 0);
        QTRY_COMPARE(discarded.Count(), 0);
        QCOMPARE(rows.names(), QStringList("7"));
        TableRows::narrow(&rows, "nobody");
        QCOMPARE(discarded.Count(), 3);
        QTRY_COMPARE(discarded.Count(), 0);
    }

    void clearingFreesCellsOfRowsThatWentBefore()
    {
        TestRows rows;
        for (int id = 0; id < 6; ++id)
            rows.add(id, {QString::number(id)});
        TableRows::narrow(&rows, "3");
        QCOMPARE(DiscardedCells::Of(&rows).Count(), 15);
        TableRows::clear(&rows);
        QCOMPARE(DiscardedCells::Of(&rows).Count(), 0);
    }

    void narrowingLeavesHeaderAndSelectionOneModel()
    {
        TestRows rows;
        rows.add(1, {"Anna"});
        rows.add(2, {"Bert"});
        TableRows::narrow(&rows, "Bert");
        QCOMPARE(rows.verticalHeader()->model(), rows.model());
        QCOMPARE(rows.verticalHeader()->selectionModel(), rows.selectionModel());
        QCOMPARE(rows.verticalHeader()->count(), 1);
    }

    void clearedTableHasNoCells()
    {
        TestRows rows;
        rows.setHorizontalHeaderLabels({"a", "b", "c"});
        rows.add(1, {"Anna"});
        TableRows::clear(&rows);
        QVERIFY(rows.item(0, 0) == nullptr);
        QVERIFY(rows.horizontalHeaderItem(0) == nullptr);
        TableRows::clear(nullptr);
    }
};

QTEST_MAIN(RowsTest)
#include "tst_rows.moc"
