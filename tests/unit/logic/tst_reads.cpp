#include "LogicTest.h"

namespace
{

AddrBookRecord mark()
{
    AddrBookRecord record;
    record.iID = 99;
    return record;
}

} // namespace

class TestReads : public LogicTest
{
    Q_OBJECT

private slots:
    void oneContactIsAppendedToTheList()
    {
        const int id = FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        cacheFields(PB_MEM_SIM);
        QList<QString> values = {"before"};
        QCOMPARE(logic()->GetRecord(PB_MEM_SIM, id, values), 0);
        QCOMPARE(values, QList<QString>({"before", "Anna", "1"}));
        QCOMPARE(FakeSdk::log(), QStringList({"GetAddrRecord(1, 0)", "AddrRecord_GetValue(Name)",
                                              "AddrRecord_GetValue(Number)", "AddrRecord_Release()"}));
    }

    void aContactThatHasGoneIsAFailure()
    {
        QList<QString> values;
        QCOMPARE(logic()->GetRecord(PB_MEM_SIM, 5, values), 1);
        FakeSdk::setMissingRecordGivesNull(true);
        QCOMPARE(logic()->GetRecord(PB_MEM_SIM, 5, values), 1);
        QVERIFY(values.isEmpty());
    }

    void aContactWithoutFieldsIsAFailure()
    {
        QList<QString> values;
        FakeSdk::fail("GetProfile");
        QCOMPARE(logic()->GetRecord(PB_MEM_SIM, 1, values), 1);
        QCOMPARE(FakeSdk::count("GetAddrRecord"), 0);
    }

    void whatWasReadBeforeAFailureStays()
    {
        const int id = FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        FakeSdk::fail("AddrRecord_GetValue", 2);
        QList<QString> values;
        QCOMPARE(logic()->GetRecord(PB_MEM_SIM, id, values), 1);
        QCOMPARE(values, QList<QString>({"Anna"}));
    }

    void aNullTextIsANullString()
    {
        const int id = FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        FakeSdk::giveNull("AddrRecord_GetValue", 1);
        QList<QString> values;
        QCOMPARE(logic()->GetRecord(PB_MEM_SIM, id, values), 0);
        QVERIFY(values[0].isNull());
        QCOMPARE(values[1], QString("1"));
    }

    void aWholeMemoryIsReadInOneWalk()
    {
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        FakeSdk::addRecord(PB_MEM_SIM, {"Bruno", "2"});
        cacheFields(PB_MEM_SIM);
        QList<AddrBookRecord> records = {mark()};
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_SIM, 0), 0);
        QCOMPARE(records.size(), 2);
        QCOMPARE(records[1].iID, 2);
        QCOMPARE(records[1].lstValues, QList<QString>({"Bruno", "2"}));
        QCOMPARE(logic()->recordCount(PB_MEM_SIM), 2);
        const QString get = "AddrRecordSet_GetValue";
        QCOMPARE(FakeSdk::log(),
                 QStringList({"BeginTransaction(0)", "GetAddrRecList(0)", "EndTransaction(0)", "BeginTransaction(0)",
                              "AddrRecordSet_MoveFirst()", "AddrRecordSet_GetID()", get + "(Name)", get + "(Number)",
                              "AddrRecordSet_MoveNext()", "AddrRecordSet_GetID()", get + "(Name)", get + "(Number)",
                              "AddrRecordSet_MoveNext()", "EndTransaction(0)", "AddrRecordSet_Release()"}));
    }

    void anEmptyMemoryLeavesTheListUntouched()
    {
        QList<AddrBookRecord> records = {mark()};
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_LOCAL, 0), 0);
        QCOMPARE(records.size(), 1);
        QCOMPARE(records.first().iID, 99);
    }

    void theContactsBeforeAFailureStayInTheList()
    {
        for (int i = 0; i < 3; ++i)
            FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        logic()->setRecordCount(PB_MEM_SIM, 41);
        FakeSdk::fail("AddrRecordSet_GetValue", 4);
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_SIM, 0), 1);
        QCOMPARE(records.size(), 1);
        QCOMPARE(logic()->recordCount(PB_MEM_SIM), 41);
    }

    void aRecordWithoutRoomIsOutOfMemory()
    {
        const int id = FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Bruno"));
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, id);
        cacheFields(PB_MEM_LOCAL);
        QList<AddrBookRecord> records;
        FailingNew::failNth(2);
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_LOCAL, 0), 13);
        QCOMPARE(FakeSdk::openTransactions(PB_MEM_LOCAL), 0);
        QList<AddrBookField> fields;
        logic()->GetAllFields(fields, PB_MEM_LOCAL);
        FailingNew::failNth(1);
        QCOMPARE(logic()->getRecordInRoot(records, PB_MEM_LOCAL, group, fields), 13);
        // Read as a group's, it is a plain failure.
        FailingNew::failNth(1);
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_LOCAL, group), 1);
        QCOMPARE(FakeSdk::openTransactions(PB_MEM_LOCAL), 0);
    }

    void aGroupOfACardIsAFailure()
    {
        QList<AddrBookRecord> records = {mark()};
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("groups not supported for sim - enType passed to "
                                                              "GetRecordInRoot is SIM$"));
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_SIM, 5), 1);
        QCOMPARE(records.size(), 1);
        QCOMPARE(FakeSdk::count("GetGroupList"), 0);
    }

    void theMembersOfAGroupComeInTheirOrder()
    {
        const int anna = FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        const int bruno = FakeSdk::addRecord(PB_MEM_LOCAL, contact("Bruno"));
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Carla"));
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, bruno);
        FakeSdk::join(group, anna);
        QList<AddrBookRecord> records = {mark()};
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_LOCAL, group), 0);
        QCOMPARE(records.size(), 2);
        QCOMPARE(records[0].iID, bruno);
        QCOMPARE(records[1].lstValues.first(), QString("Anna"));
        QCOMPARE(logic()->recordCount(PB_MEM_LOCAL), 0);
        QStringList names = FakeSdk::names();
        names.removeAll("AddrRecord_GetValue");
        QCOMPARE(names, QStringList({"GetProfile", "ProfileRelease", "BeginTransaction", "GetGroupList",
                                     "EndTransaction", "BeginTransaction", "AddrGroupSet_GetAddrInGroupByID",
                                     "EndTransaction", "BeginTransaction", "GetAddrRecord", "AddrRecord_Release",
                                     "GetAddrRecord", "AddrRecord_Release", "EndTransaction", "AddrGroupSet_Release"}));
    }

    void aMemberThatHasGoneShowsUpWithoutValues()
    {
        const int anna = FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, 77);
        FakeSdk::join(group, anna);
        FakeSdk::setMissingRecordGivesNull(true);
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_LOCAL, group), 0);
        QCOMPARE(records.size(), 2);
        QCOMPARE(records[0].iID, 0);
        QVERIFY(records[0].lstValues.isEmpty());
        QCOMPARE(records[1].iID, anna);
        // Where the SDK answers with a code instead, the walk ends.
        FakeSdk::setMissingRecordGivesNull(false);
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_LOCAL, group), 1);
        QVERIFY(records.isEmpty());
    }

    void aNullGroupListIsAFailure()
    {
        FakeSdk::giveNull("GetGroupList");
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_LOCAL, 3), 1);
    }

    void anImportForACardCutsNamesToWhatItCanEncode()
    {
        FakeSdk::setImport("/a.csv", {{QString::fromUtf8("Łukasz Wiśniewski"), "12345678901234567890123"}});
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->ImportFromFile("/a.csv", {0, 1}, records, PB_MEM_SIM), 0);
        // Six characters count 13; the number is left alone.
        QCOMPARE(records.first().lstValues[0], QString::fromUtf8("Łukasz"));
        QCOMPARE(records.first().lstValues[1], QString("12345678901234567890123"));
    }

    void anImportForThePcLeavesNamesAlone()
    {
        const QString name(100, 'x');
        FakeSdk::setImport("/a.csv", {{name}});
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->ImportFromFile("/a.csv", {0}, records, PB_MEM_LOCAL), 0);
        QCOMPARE(records.first().lstValues[0], name);
        QCOMPARE(FakeSdk::count("PBContentCodingJudge"), 0);
    }

    void aNullSetHasNoRecords()
    {
        QList<AddrBookRecord> records = {mark()};
        QTest::ignoreMessage(QtWarningMsg, "failure exit in getRecordsFromRecList - hAddrRecordSet is NULL");
        QCOMPARE(logic()->getRecordsFromRecList(PB_MEM_LOCAL, nullptr, records), 1);
        QVERIFY(records.isEmpty());
    }

    void theCountIsTheSetsOrMinusOne()
    {
        QCOMPARE(logic()->GetAddrRecordCount(PB_MEM_SIM), -1);
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        FakeSdk::clearCalls();
        QCOMPARE(logic()->GetAddrRecordCount(PB_MEM_SIM), 1);
        QCOMPARE(FakeSdk::log(),
                 QStringList({"GetAddrRecList(0)", "AddrRecordSet_GetAddrRecordCount()", "AddrRecordSet_Release()"}));
        FakeSdk::fail("AddrRecordSet_GetAddrRecordCount");
        QCOMPARE(logic()->GetAddrRecordCount(PB_MEM_SIM), -1);
        FakeSdk::fail("GetAddrRecList");
        QCOMPARE(logic()->GetAddrRecordCount(PB_MEM_SIM), -1);
    }
};

QTEST_GUILESS_MAIN(TestReads)
#include "tst_reads.moc"
