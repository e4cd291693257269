#include "CopyFixture.h"

// Each call of a store failing during a drop: it ends, the source is whole, and the numbers told are true.
class CopyFailureTest : public WindowTest
{
    Q_OBJECT

private:
    // As little as the drops need, since each of their calls has its turn.
    static void fillSparsely()
    {
        FakeSdk::join(FakeSdk::addGroup("Friends"), FakeSdk::addRecord(4, {"Anna", "111", "222"}));
        FakeSdk::addRecord(0, {"Dora", "666"});
    }

    static QTreeWidgetItem* node(const CopyFixture& f, const QString& name)
    {
        return name == "SIM" ? f.in().sim() : name == "ME" ? f.in().device() : f.node(name);
    }
    static int memoryOf(const QString& name) { return name == "SIM" ? 0 : name == "ME" ? 1 : 4; }

private slots:
    void recordThatFailsIsPassedOver_data()
    {
        QTest::addColumn<int>("record");
        for (int i = 1; i <= 3; ++i)
            QTest::addRow("record %d", i) << i;
    }
    void recordThatFailsIsPassedOver()
    {
        QFETCH(int, record);
        CopyFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeSdk::fail("AddAddrRec", record);
        QVERIFY(f.drop(f.in().local(), {"Anna"}, f.in().sim()));
        QVERIFY(f.waitDone());
        QStringList expected = {"Dora=666", "Anna=111", "Anna=222", "Anna=333"};
        expected.removeAt(record);
        QCOMPARE(CopyFixture::stored(0), expected);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_COPY_COMPLETE IDS_TOTAL_COUNT3IDS_SUCCESS_COUNT2"));
    }

    void recordThatDoesNotReachItsGroupStaysAndCountsAsFailed()
    {
        CopyFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeSdk::fail("AddAddrToGroup");
        QVERIFY(f.drop(f.in().sim(), {"Dora"}, f.node("Friends")));
        QVERIFY(f.waitDone());
        QCOMPARE(CopyFixture::stored(4).last(), QString("Dora=666"));
        QCOMPARE(FakeSdk::members(1).size(), 2);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_COPY_COMPLETE IDS_TOTAL_COUNT1IDS_SUCCESS_COUNT0"));
    }

    void contactThatIsGoneIsNoPartOfTheTotal()
    {
        CopyFixture f;
        WindowFixture::fillStores();
        f.build();
        const auto rows = f.take(f.in().local(), {"Bert", "Carl"});
        QVERIFY(f.hover(*rows, f.in().sim()));
        FakeSdk::removeRecord(4, 2);
        f.release(*rows, f.in().sim());
        QVERIFY(f.waitDone());
        QCOMPARE(CopyFixture::stored(0), QStringList({"Dora=666", "Carl=555"}));
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_COPY_COMPLETE IDS_TOTAL_COUNT1IDS_SUCCESS_COUNT1"));
    }

    void eachCallFailsOnce_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QStringList>("contacts");
        QTest::addColumn<QString>("target");
        QTest::newRow("PC to card") << "IDS_LOCAL" << QStringList("Anna") << "SIM";
        QTest::newRow("card to group") << "SIM" << QStringList("Dora") << "Friends";
        QTest::newRow("group to root") << "Friends" << QStringList("Anna") << "IDS_LOCAL";
    }
    void eachCallFailsOnce()
    {
        QFETCH(QString, source);
        QFETCH(QStringList, contacts);
        QFETCH(QString, target);
        bool failed = true;
        int k = 1;
        for (; failed && k < 2000; ++k) {
            CopyFixture f;
            fillSparsely();
            f.build();
            const QList<QStringList> before = CopyFixture::all(memoryOf(source));
            const int there = FakeSdk::recordIds(memoryOf(target)).size();
            const auto rows = f.take(node(f, source), contacts);
            QVERIFY(f.hover(*rows, node(f, target)));
            FakeSdk::failCall(k);
            f.release(*rows, node(f, target));
            QVERIFY(f.waitDone());
            const QByteArray name = FakeSdk::failedCall();
            failed = !name.isEmpty();
            FakeSdk::clearFailures();
            // Nothing is lost: the source is what it was, but for what the same memory took.
            QCOMPARE(CopyFixture::all(memoryOf(source)).mid(0, before.size()), before);
            if (WindowFixture::waiting() != nullptr) {
                QVERIFY2(FakeCore::messages().isEmpty(), name.constData());
                WindowFixture::cancelButton()->click();
                QVERIFY(WindowFixture::waiting() == nullptr);
            } else if (memoryOf(source) != memoryOf(target)) {
                QCOMPARE(FakeCore::messages().size(), 1);
                // What is told to have gone in is there.
                const QString told = FakeCore::messageTexts().last();
                const int success = told.mid(told.lastIndexOf("COUNT") + 5).toInt();
                const int added = FakeSdk::recordIds(memoryOf(target)).size() - there;
                QVERIFY2(name == "AddAddrToGroup" ? success <= added : success == added, name.constData());
            }
            QVERIFY(f.tree()->m_listDragData.isEmpty());
            f.destroy();
            QVERIFY2(FakeSdk::leaks().isEmpty(), qPrintable(name + ": " + FakeSdk::leaks()));
            QCOMPARE(FakeCore::runningWorkers(), 0);
        }
        QVERIFY(!failed);
        QVERIFY(k > 20);
    }

    void eachOperationFailingForGoodEndsTheDrop_data() { eachCallFailsOnce_data(); }
    void eachOperationFailingForGoodEndsTheDrop()
    {
        QFETCH(QString, source);
        QFETCH(QStringList, contacts);
        QFETCH(QString, target);
        QStringList names;
        {
            CopyFixture f;
            fillSparsely();
            f.build();
            FakeSdk::clearCalls();
            QVERIFY(f.drop(node(f, source), contacts, node(f, target)));
            QVERIFY(f.waitDone());
            names = FakeSdk::names();
            names.removeDuplicates();
        }
        for (const QString& name : names) {
            CopyFixture f;
            fillSparsely();
            f.build();
            const QList<QStringList> before = CopyFixture::all(memoryOf(source));
            const auto rows = f.take(node(f, source), contacts);
            QVERIFY(f.hover(*rows, node(f, target)));
            FakeSdk::failAlways(name.toLatin1());
            f.release(*rows, node(f, target));
            QVERIFY2(f.waitDone(), qPrintable(name));
            FakeSdk::clearFailures();
            if (WindowFixture::waiting() != nullptr)
                WindowFixture::cancelButton()->click();
            QVERIFY2(WindowFixture::waiting() == nullptr, qPrintable(name));
            QCOMPARE(CopyFixture::all(memoryOf(source)).mid(0, before.size()), before);
            f.destroy();
            QVERIFY2(FakeSdk::leaks().isEmpty(), qPrintable(name + ": " + FakeSdk::leaks()));
        }
    }
};

QTEST_MAIN(CopyFailureTest)
#include "CopyFailureTest.moc"
