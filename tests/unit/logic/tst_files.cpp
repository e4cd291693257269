#include "LogicTest.h"

class TestFiles : public LogicTest
{
    Q_OBJECT

private slots:
    void aFileIsReadInsideATransaction()
    {
        cacheFields(PB_MEM_SIM);
        FakeSdk::setImport("/a.csv", {{"1", "Anna"}});
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->ImportFromFile("/a.csv", {1, 0}, records, PB_MEM_SIM), 0);
        QCOMPARE(records.size(), 1);
        QCOMPARE(records.first().lstValues, QList<QString>({"Anna", "1"}));
        QStringList names = FakeSdk::names();
        QCOMPARE(names.first(), QString("BeginTransaction"));
        QCOMPARE(names.at(1), QString("ImportFromFile"));
        QCOMPARE(names.mid(names.size() - 2), QStringList({"AddrRecordSet_Release", "EndTransaction"}));
        QCOMPARE(FakeSdk::openTransactions(PB_MEM_SIM), 0);
        QVERIFY(FakeSdk::recordIds(PB_MEM_SIM).isEmpty());
    }

    void anApplicationIsReadInTheSameWay()
    {
        FakeSdk::setImport("Outlook", {{"Anna"}, {"Bruno"}});
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->ImportFromOutlook("Outlook", {0, -1}, records, PB_MEM_SIM), 0);
        QCOMPARE(records.size(), 2);
        QCOMPARE(FakeSdk::count("ImportFromOutlook"), 1);
    }

    void aShortFieldMapIsFilledUp()
    {
        FakeSdk::setImport("/a.csv", {{"Anna"}});
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->ImportFromFile("/a.csv", {0}, records, PB_MEM_LOCAL), 0);
        QCOMPARE(FakeSdk::lastFieldMap(), QList<int>({0, -1, -1, -1, -1, -1}));
        QCOMPARE(logic()->ImportFromFile("/a.csv", {}, records, PB_MEM_SIM), 0);
        QCOMPARE(FakeSdk::lastFieldMap(), QList<int>({-1, -1}));
    }

    void aFileWithoutUsableRowsLeavesTheListUntouched()
    {
        AddrBookRecord mark;
        mark.iID = 99;
        QList<AddrBookRecord> records = {mark};
        QCOMPARE(logic()->ImportFromFile("/none.csv", {0, 1}, records, PB_MEM_SIM), 1);
        FakeSdk::setImport("/a.csv", {{"Anna"}});
        FakeSdk::giveNull("ImportFromFile");
        QCOMPARE(logic()->ImportFromFile("/a.csv", {0, 1}, records, PB_MEM_SIM), 1);
        QCOMPARE(records.size(), 1);
        QCOMPARE(FakeSdk::openTransactions(PB_MEM_SIM), 0);
    }

    void anImportWithoutRoomIsASuccessWithoutRecords()
    {
        cacheFields(PB_MEM_SIM);
        FailingNew::failNth(1);
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->ImportFromFile("/a.csv", {0, 1}, records, PB_MEM_SIM), 0);
        QCOMPARE(FakeSdk::totalCalls(), 0);
        FailingNew::failNth(1);
        QCOMPARE(logic()->ExportToFile("/a.csv", {1}, PB_MEM_SIM), 0);
        QCOMPARE(FakeSdk::totalCalls(), 0);
    }

    void aRecordWithoutRoomFailsTheImport()
    {
        cacheFields(PB_MEM_SIM);
        FakeSdk::setImport("/a.csv", {{"Anna"}, {"Bruno"}});
        FailingNew::failNth(3);
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->ImportFromFile("/a.csv", {0, 1}, records, PB_MEM_SIM), 1);
        QVERIFY(FailingNew::hasFailed());
        QCOMPARE(records.size(), 1);
    }

    void anExportNamesItsRecordsInOrder()
    {
        QCOMPARE(logic()->ExportToFile("/a.csv", {3, 1, 2}, PB_MEM_LOCAL), 0);
        QCOMPARE(FakeSdk::exports().first().path, QString("/a.csv"));
        QCOMPARE(FakeSdk::exports().first().ids, QList<int>({3, 1, 2}));
        QCOMPARE(FakeSdk::exports().first().memory, 4);
        FakeSdk::fail("ExportToFile");
        QCOMPARE(logic()->ExportToFile("/a.csv", {3}, PB_MEM_LOCAL), 1);
    }

    void anExportOfNothingReachesTheSdk()
    {
        QCOMPARE(logic()->ExportToFile("/a.csv", {}, PB_MEM_LOCAL), 0);
        QCOMPARE(FakeSdk::log(), QStringList({"ExportToFile(/a.csv, 0, 4)"}));
    }

    void theCapacityBecomesTheMemorysFigure()
    {
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        int capacity = 0;
        int size = 0;
        QCOMPARE(logic()->GetAddrCapacity(PB_MEM_SIM, capacity, size), 0);
        QCOMPARE(capacity, 250);
        QCOMPARE(size, 1);
        QCOMPARE(logic()->recordCount(PB_MEM_SIM), 250);
        // Whichever ran last: a complete read puts the number of records there.
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_SIM, 0), 0);
        QCOMPARE(logic()->recordCount(PB_MEM_SIM), 1);
    }

    void aMemoryThatIsNotReadyKeepsThePresets()
    {
        FakeSdk::setCapacity(PB_MEM_SIM, 0);
        int capacity = 5;
        int size = -3;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("capacity is less than 0 in GetAddrCapacity$"));
        QCOMPARE(logic()->GetAddrCapacity(PB_MEM_SIM, capacity, size), -1);
        QCOMPARE(capacity, 0);
        QCOMPARE(size, -3);
        FakeSdk::fail("GetCapacity");
        QCOMPARE(logic()->GetAddrCapacity(PB_MEM_SIM, capacity, size), 1);
        FakeSdk::setCapacity(PB_MEM_SIM, 10);
        FakeSdk::fail("GetSize");
        QCOMPARE(logic()->GetAddrCapacity(PB_MEM_SIM, capacity, size), 1);
        QCOMPARE(capacity, 10);
        QCOMPARE(size, -3);
        QCOMPARE(logic()->recordCount(PB_MEM_SIM), 0);
    }

    void anApplicationIsThereOrNot()
    {
        FakeSdk::setOutlookInstalled("Outlook Express", true);
        QVERIFY(logic()->IsOutlookInstalled("Outlook Express"));
        QVERIFY(!logic()->IsOutlookInstalled("Outlook"));
    }
};

QTEST_GUILESS_MAIN(TestFiles)
#include "tst_files.moc"
