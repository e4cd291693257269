#include <QDragLeaveEvent>

#include "BatchFixture.h"

// A cancelled batch whose end comes while contacts hover over the tree: the node that is lit is not the one that the
// table shows.
class BatchHoverTest : public WindowTest
{
    Q_OBJECT

private:
    // Two card contacts on their way, over the node named, when the cancelled import's end arrives.
    static std::unique_ptr<QMimeData> hoverOverTheEnd(BatchFixture& f, const QString& target)
    {
        FakeSdk::addRecord(0, {"Dora", "1"});
        FakeSdk::addRecord(0, {"Emma", "2"});
        FakeSdk::join(FakeSdk::addGroup("Work"), FakeSdk::addRecord(4, {"Old", "7"}));
        f.build();
        f.cancelledImport(3);
        std::unique_ptr<QMimeData> rows = f.take(f.in().sim(), {"Emma"});
        if (!f.hover(*rows, f.node(target)))
            return nullptr;
        f.letEnd();
        return rows;
    }

private slots:
    void tableStaysWithTheNodeThatTheRowsComeFrom_data()
    {
        targets();
        QTest::newRow("over the device") << "IDS_NV";
    }
    void tableStaysWithTheNodeThatTheRowsComeFrom()
    {
        QFETCH(QString, target);
        BatchFixture f;
        const std::unique_ptr<QMimeData> rows = hoverOverTheEnd(f, target);
        QVERIFY(rows != nullptr);
        QCOMPARE(FakeCore::messageTexts(), QStringList{BatchFixture::imported(3, 1)});
        QCOMPARE(f.in().current(), f.in().sim());
        QCOMPARE(f.column(0), QStringList({"Dora", "Emma"}));
        QCOMPARE(f.in().dragSource(), PB_MEM_SIM);
        // Nothing is dropped: the next click still shows another node.
        QDragLeaveEvent leave;
        QApplication::sendEvent(f.tree()->viewport(), &leave);
        f.click(f.in().local());
        QCOMPARE(f.table()->rowCount(), 2);
    }

    void rowsAreDroppedAsTheContactsOfTheirMemory_data() { targets(); }
    void rowsAreDroppedAsTheContactsOfTheirMemory()
    {
        QFETCH(QString, target);
        BatchFixture f;
        const std::unique_ptr<QMimeData> rows = hoverOverTheEnd(f, target);
        QVERIFY(rows != nullptr);
        QVERIFY(f.hover(*rows, f.node(target)));
        f.release(*rows, f.node(target));
        QVERIFY(f.waitDone());
        QCOMPARE(CopyFixture::stored(4), QStringList({"Old=7", "New 1=1001", "Emma=2"}));
        const QList<int> members = FakeSdk::members(1);
        QCOMPARE(members, target == "Work" ? QList<int>({1, 3}) : QList<int>{1});
        QCOMPARE(FakeCore::messageTexts(), QStringList({BatchFixture::imported(3, 1), BatchFixture::copied(1, 1)}));
    }

    // A drop behind the first drag's end, and an end with no drag at all, reload the current node.
    void endWithoutAHoverReloadsTheCurrentNode()
    {
        BatchFixture f;
        FakeSdk::addRecord(0, {"Dora", "1"});
        f.build();
        f.cancelledImport(3);
        const std::unique_ptr<QMimeData> rows = f.take(f.in().sim(), {"Dora"});
        QVERIFY(f.hover(*rows, f.in().local()));
        QDragLeaveEvent leave;
        QApplication::sendEvent(f.tree()->viewport(), &leave);
        f.tree()->setCurrentItem(f.in().local());
        f.letEnd();
        QCOMPARE(f.in().current(), f.in().local());
        QCOMPARE(f.column(0), QStringList{"New 1"});
        QCOMPARE(f.in().dragSource(), PB_MEM_LOCAL);
    }

private:
    static void targets()
    {
        QTest::addColumn<QString>("target");
        QTest::newRow("over the PC") << "IDS_LOCAL_PHONEBOOKUI";
        QTest::newRow("over a group") << "Work";
    }
};

QTEST_MAIN(BatchHoverTest)
#include "BatchHoverTest.moc"
