#include <memory>

#include "LogicTest.h"
#include "MessageLog.h"

// What the lines about SDK calls say, and which of them are warnings.
class TestLogLines : public LogicTest
{
    Q_OBJECT

    std::unique_ptr<MessageLog> m_log;

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=true"); }
    void init()
    {
        FakeSdk::reset();
        FakeCore::reset();
        logic();
        m_log = std::make_unique<MessageLog>();
    }
    void cleanup()
    {
        m_log.reset();
        AddrBookLogic::Destroy();
        QCOMPARE(FakeSdk::leaks(), QString());
    }

    void aSetWithoutGroupsIsNoFailure()
    {
        QList<AddrBookGroup*> groups;
        QCOMPARE(logic()->GetGroups(groups, PB_MEM_LOCAL), 1);
        QCOMPARE(logic()->IsGroupAlreadyExists(PB_MEM_LOCAL, "A", 0), 0);
        QCOMPARE(MessageLog::warnings(), QStringList());
        QCOMPARE(MessageLog::lines().filter("ORVA_PBSrv_AddrGroupSet_MoveFirst returned -1").size(), 2);
    }

    void aSetThatDoesNotMoveIsWarnedAbout()
    {
        FakeSdk::addGroup("A");
        FakeSdk::failAlways("AddrGroupSet_MoveFirst", 7);
        QList<AddrBookGroup*> groups;
        QCOMPARE(logic()->GetGroups(groups, PB_MEM_LOCAL), 1);
        QCOMPARE(logic()->IsGroupAlreadyExists(PB_MEM_LOCAL, "B", 0), 0); // goes on to the walk
        const QStringList found = MessageLog::warnings().filter("ORVA_PBSrv_AddrGroupSet_MoveFirst returned 7");
        QCOMPARE(found.size(), 2);
        QVERIFY2(found.at(0).contains("AddrBookLogicGroups.cpp: GetGroups: "), qPrintable(found.at(0)));
        QVERIFY2(found.at(1).contains("AddrBookLogicGroups.cpp: IsGroupAlreadyExists: "), qPrintable(found.at(1)));
    }

    void theEndOfAWalkIsNoWarning()
    {
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        FakeSdk::addGroup("A");
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_LOCAL, 0), 0);
        QList<AddrBookGroup*> groups;
        QCOMPARE(logic()->GetGroups(groups, PB_MEM_LOCAL), 0);
        qDeleteAll(groups);
        QCOMPARE(MessageLog::warnings(), QStringList());
    }

    void transactionsReleasesAndWalksNameTheirCaller()
    {
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        FakeSdk::addGroup("A");
        FakeSdk::join(1, 1);
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_LOCAL, 0), 0);
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_LOCAL, 1), 0);
        QList<QString> values;
        QCOMPARE(logic()->GetRecord(PB_MEM_LOCAL, 1, values), 0);
        int id = 0;
        QCOMPARE(logic()->AddGroup(PB_MEM_LOCAL, "B", 0, id), 0);
        QCOMPARE(logic()->AddRecord(PB_MEM_LOCAL, contact("Bruno"), id), 0);
        const QStringList found = MessageLog::lines().filter("ORVA_");
        QVERIFY(found.size() > 100);
        for (const QString& line : found) {
            QVERIFY2(!line.contains(".h: "), qPrintable(line));
            QVERIFY2(!line.contains('/'), qPrintable(line));
        }
        for (const char* name : {"Transaction", "_Release", "MoveFirst", "MoveNext"})
            QVERIFY2(!found.filter(name).isEmpty(), name);
        QVERIFY(
            !found.filter("AddrBookLogicReads.cpp: GetRecordInGroup: Calling ORVA_PBSrv_BeginTransaction").isEmpty());
        QVERIFY(!found.filter("AddrBookLogicReads.cpp: GetRecord: Calling ORVA_PBSrv_AddrRecord_Release").isEmpty());
    }

    void aFailedReleaseOrTransactionIsAWarning()
    {
        FakeSdk::failAlways("EndTransaction", 9);
        FakeSdk::failAlways("AddrRecordSet_Release", 8);
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->GetRecordInGroup(records, PB_MEM_LOCAL, 0), 0);
        QVERIFY(!MessageLog::warnings().filter("GetRecordInGroup: ORVA_PBSrv_EndTransaction returned 9").isEmpty());
        QVERIFY(
            !MessageLog::warnings().filter("GetRecordInGroup: ORVA_PBSrv_AddrRecordSet_Release returned 8").isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestLogLines)
#include "tst_loglines.moc"
