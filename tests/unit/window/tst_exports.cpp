#include "TestRows.h"
#include "fakecore/FakeCore.h"
#include "fakesdk/FakeSdk.h"
#include "logic/AddrBookLogic.h"
#include "window/ExportChoice.h"

class ExportsTest : public QObject
{
    Q_OBJECT

private:
    static ExportChoice choose(TestRows* rows, _ADDRBOOK_OPERATION_TYPE operation, int group = 0)
    {
        return ExportChoice::of(rows, operation, PB_MEM_LOCAL, group);
    }
    static void fill(TestRows& rows, int count)
    {
        for (int id = 1; id <= count; ++id)
            rows.add(id, {QString::number(id)});
    }

private slots:
    void init()
    {
        FakeCore::reset();
        FakeSdk::reset();
    }

    void takesRowsSelectedOrAll()
    {
        TestRows rows;
        fill(rows, 4);
        rows.select(1, 1);
        rows.select(3, 3);
        QCOMPARE(choose(&rows, ADDRBOOK_OP_EXPORT_SELECTED).lstIds, (QList<int>{4, 2}));
        QCOMPARE(choose(&rows, ADDRBOOK_OP_EXPORT_ALL).lstIds, (QList<int>{1, 2, 3, 4}));
        QCOMPARE(choose(&rows, ADDRBOOK_OP_DELETE).lstIds, QList<int>());
        QCOMPARE(choose(nullptr, ADDRBOOK_OP_EXPORT_ALL).lstIds, QList<int>());
    }

    void rowsLeftOverStayTheirMemorys()
    {
        TestRows rows;
        rows.add(5, {"card"}, PB_MEM_SIM);
        QCOMPARE(choose(&rows, ADDRBOOK_OP_EXPORT_ALL).enMemory, PB_MEM_SIM);
    }

    void selectionOutlivesItsTable()
    {
        TestRows before;
        fill(before, 2);
        before.select(0, 0);
        const ExportChoice asked = choose(&before, ADDRBOOK_OP_EXPORT_SELECTED);
        TestRows after;
        fill(after, 2);
        QCOMPARE(asked.followedBy(choose(&after, ADDRBOOK_OP_EXPORT_SELECTED)).lstIds, QList<int>{1});
        // In the table that it was made in it may still change.
        before.select(1, 1);
        QCOMPARE(asked.followedBy(choose(&before, ADDRBOOK_OP_EXPORT_SELECTED)).lstIds, (QList<int>{2, 1}));
    }

    void allMeansTheReloadedTableOnceItIsComplete()
    {
        TestRows before;
        fill(before, 1);
        const ExportChoice asked = choose(&before, ADDRBOOK_OP_EXPORT_ALL);
        TestRows after;
        fill(after, 3);
        QCOMPARE(asked.followedBy(choose(&after, ADDRBOOK_OP_EXPORT_ALL)).lstIds.size(), 1);
        after.setSortingEnabled(true);
        QCOMPARE(asked.followedBy(choose(&after, ADDRBOOK_OP_EXPORT_ALL)).lstIds.size(), 3);
        QCOMPARE(asked.followedBy(choose(&after, ADDRBOOK_OP_EXPORT_ALL, 9)).lstIds.size(), 1); // another node's
    }

    void nothingIsWrittenUnasked()
    {
        TestRows rows;
        fill(rows, 1);
        choose(&rows, ADDRBOOK_OP_DELETE).writeTo("x.csv", nullptr, nullptr);
        choose(nullptr, ADDRBOOK_OP_EXPORT_ALL).writeTo("x.csv", nullptr, nullptr);
        QCOMPARE(FakeCore::messages().size(), 0);
        choose(&rows, ADDRBOOK_OP_EXPORT_ALL).writeTo("x.csv", nullptr, nullptr);
        QCOMPARE(FakeCore::messages().size(), 1); // nobody to write it
    }
};

QTEST_MAIN(ExportsTest)
#include "tst_exports.moc"
