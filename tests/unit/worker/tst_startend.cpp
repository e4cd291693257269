#include <QRegularExpression>

#include <thread>

#include "MessageLog.h"
#include "WorkerTest.h"

// How an operation begins and ends: locks, stop requests, a thread that cannot be had, commits that fail.
class TestStartEnd : public WorkerTest
{
    Q_OBJECT

private slots:
    // ---- Locks -----------------------------------------------------------------------------------------------------

    void deleteLocksBeforeItBegins_data()
    {
        QTest::addColumn<int>("operation");
        QTest::addColumn<bool>("locked");
        QTest::newRow("delete") << int(ADDRBOOK_OP_DELETE) << true;
        QTest::newRow("remove") << int(ADDRBOOK_OP_REMOVE_FROM_GROUP) << true;
        QTest::newRow("add") << int(ADDRBOOK_OP_ADD) << false;
        QTest::newRow("move") << int(ADDRBOOK_OP_MOVE) << false;
    }

    void deleteLocksBeforeItBegins()
    {
        QFETCH(int, operation);
        QFETCH(bool, locked);
        AddrBookThread worker;
        Receiver receiver(&worker);
        std::atomic<bool> asked{false};
        std::atomic<bool> got{false};
        std::thread other;
        bool gotAtBegin = false;
        // SetSlotExecutionStatus needs the worker's lock.
        FakeSdk::onCall("BeginTransaction", 1, [&] {
            other = std::thread([&] {
                asked = true;
                worker.SetSlotExecutionStatus();
                got = true;
            });
            // One that is not locked out gets it whenever that may be; one that is needs a moment to show otherwise.
            for (int i = 0; locked ? i < 50 || !asked : !got; ++i)
                QThread::msleep(1);
            gotAtBegin = got;
        });
        worker.SetOperation(_ADDRBOOK_OPERATION_TYPE(operation), PB_MEM_LOCAL, records(1), 0);
        const bool ended = runToEnd(worker);
        other.join();
        QVERIFY(ended);
        QCOMPARE(gotAtBegin, !locked);
    }

    // ---- Stop requests ---------------------------------------------------------------------------------------------

    void everySetterTakesAStopBack_data()
    {
        QTest::addColumn<int>("setter");
        QTest::newRow("an operation on one memory") << 0;
        QTest::newRow("a move") << 1;
        QTest::newRow("a node of the tree") << 2;
        QTest::newRow("the groups") << 3;
        QTest::newRow("a read") << 4;
    }

    void everySetterTakesAStopBack()
    {
        QFETCH(int, setter);
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Bert"));
        FakeSdk::addGroup("Friends");
        AddrBookThread worker;
        Receiver receiver(&worker);
        AddrBookGroup group;
        group.iGroupID = 1;
        group.iParentID = 0;
        group.iSize = 0;
        QList<AddrBookRecord> none;
        QTreeWidgetItem* const node = nullptr;
        if (setter == 4)
            worker.SetOperation(ADDRBOOK_OP_READ, PB_MEM_LOCAL, none, 0);
        worker.StopOperation();
        switch (setter) {
        case 0:
            worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(2), 0);
            break;
        case 1:
            worker.SetOperation(ADDRBOOK_OP_MOVE, PB_MEM_SIM, PB_MEM_LOCAL, records(1), 0);
            break;
        case 2:
            worker.SetSCOperation(ADDRBOOK_OP_TREE_NODES, PB_MEM_SIM, node);
            break;
        case 3:
            worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_GROUPS, PB_MEM_LOCAL, {&group}, none, 0);
            break;
        default:
            worker.SetReadOperation(table(), 6);
            break;
        }
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.results.size() + receiver.lines.filter(QRegularExpression("^(node|group)")).size() +
                     receiver.contacts.size(),
                 setter == 0 ? 2 : 1);
    }

    void endOperationEndsAWorkerThatWaitsForItsSlot()
    {
        AddrBookThread worker;
        Receiver receiver(&worker);
        receiver.answers = false;
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(5), 0);
        worker.start(QThread::InheritPriority);
        QTRY_COMPARE(receiver.results.size(), 1);
        QSignalSpy finished(&worker, SIGNAL(finished()));
        worker.EndOperation();
        QVERIFY(worker.isFinished());
        QCOMPARE(FakeSdk::count("AddAddrRec"), 1);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(finished.count(), 1);
    }

    // ---- Threads ---------------------------------------------------------------------------------------------------

    void operationWithoutAThreadEndsWithNothingDone()
    {
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(2), 0);
        // Less than any system's least.
        worker.setStackSize(1);
        QSignalSpy finished(&worker, SIGNAL(finished()));
        worker.start(QThread::InheritPriority);
        // Not before the caller has left its start behind.
        QCOMPARE(finished.count(), 0);
        QTRY_COMPARE(finished.count(), 1);
        QVERIFY(!worker.isRunning());
        QCOMPARE(FakeSdk::count("AddAddrRec"), 0);
        worker.setStackSize(0);
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(2), 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(FakeSdk::count("AddAddrRec"), 2);
        QCOMPARE(finished.count(), 2);
    }

    // ---- Records ---------------------------------------------------------------------------------------------------

    void moveWithoutANewIdentifierKeepsItsSource()
    {
        const int anna = FakeSdk::addRecord(PB_MEM_ME, {"Anna", "1"});
        FakeSdk::giveNull("AddAddrRec");
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(ADDRBOOK_OP_MOVE, PB_MEM_ME, PB_MEM_SIM, {record({"Anna", "1"}, anna)}, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.results.size(), 1);
        QVERIFY(!receiver.results.first().ok);
        QCOMPARE(FakeSdk::count("DelAddrRec"), 0);
        QVERIFY(FakeSdk::hasRecord(PB_MEM_ME, anna));
    }

    // The batch goes on: what is lost is told to the host by the store.
    void commitThatFailsIsAWarningWithTheNumberOfRecords_data()
    {
        QTest::addColumn<int>("commit");
        QTest::addColumn<int>("records");
        QTest::newRow("the empty one at the begin") << 1 << 0;
        QTest::newRow("behind two hundred") << 2 << 200;
        QTest::newRow("at the end") << 3 << 5;
    }

    void commitThatFailsIsAWarningWithTheNumberOfRecords()
    {
        QFETCH(int, commit);
        QFETCH(int, records);
        cacheFields(PB_MEM_SIM);
        FakeSdk::fail("EndTransaction", commit, ORVA_E_STORE);
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(ADDRBOOK_OP_DELETE, PB_MEM_SIM, WorkerTest::records(205), 0);
        QLoggingCategory::setFilterRules("default.debug=false");
        const MessageLog log;
        const bool ended = runToEnd(worker);
        QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false");
        QVERIFY(ended);
        QCOMPARE(receiver.results.size(), 205);
        const QStringList lost = MessageLog::warnings().filter("may be lost");
        QCOMPARE(lost.size(), records > 0 ? 1 : 0);
        if (records > 0)
            QVERIFY2(lost.first().contains(QString("the last %1 record(s) of memory 0").arg(records)),
                     qPrintable(lost.first()));
    }
};

QTEST_GUILESS_MAIN(TestStartEnd)
#include "tst_startend.moc"
