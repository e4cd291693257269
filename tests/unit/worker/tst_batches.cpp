#include <QElapsedTimer>

#include "WorkerTest.h"

class TestBatches : public WorkerTest
{
    Q_OBJECT

    // How many records had been added at each commit.
    static QList<int> addedAtEachCommit()
    {
        QList<int> added;
        int count = 0;
        const QStringList names = FakeSdk::names();
        for (const QString& name : names) {
            count += name == "AddAddrRec" ? 1 : 0;
            if (name == "EndTransaction")
                added << count;
        }
        return added;
    }

private slots:
    void anEmptyBatchBeginsAndEnds_data()
    {
        QTest::addColumn<int>("operation");
        for (int operation : {0, 1, 2, 7, 8})
            QTest::newRow(qPrintable(QString::number(operation))) << operation;
    }

    void anEmptyBatchBeginsAndEnds()
    {
        QFETCH(int, operation);
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(_ADDRBOOK_OPERATION_TYPE(operation), PB_MEM_LOCAL, QList<AddrBookRecord>(), 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(FakeSdk::log(), QStringList({"BeginTransaction(4)", "EndTransaction(4)"}));
        QVERIFY(receiver.results.isEmpty() && receiver.lines.isEmpty());
    }

    void twoHundredRecordsMakeACommit_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QList<int>>("commits");
        QTest::newRow("200") << 200 << QList<int>({0, 200});
        QTest::newRow("201") << 201 << QList<int>({0, 200, 201});
    }

    void twoHundredRecordsMakeACommit()
    {
        QFETCH(int, count);
        QFETCH(QList<int>, commits);
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(count), 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.results.size(), count);
        QCOMPARE(addedAtEachCommit(), commits);
        QCOMPARE(FakeSdk::openTransactions(PB_MEM_LOCAL), 0);
    }

    void theCallsOfABatchOfAdds()
    {
        cacheFields(PB_MEM_SIM);
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(ADDRBOOK_OP_COPY, PB_MEM_SIM, {record({"Anna", "1"}, 9)}, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(FakeSdk::log(),
                 QStringList({"BeginTransaction(0)", "EndTransaction(0)", "BeginTransaction(0)", "CreateAddrRecord(0)",
                              "AddrRecord_SetValue(Name, Anna)", "AddrRecord_SetValue(Number, 1)", "AddAddrRec()",
                              "AddrRecord_Release()", "EndTransaction(0)"}));
        QCOMPARE(receiver.lines, QStringList({"added 0 1 0"}));
    }

    void oneRecordIsInFlightAtATime()
    {
        AddrBookThread worker;
        Receiver receiver(&worker);
        QList<int> added;
        receiver.onResult = [&added](int) { added << FakeSdk::count("AddAddrRec"); };
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(5), 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(added, QList<int>({1, 2, 3, 4, 5}));
    }

    void eachRecordIsFollowedByAPause()
    {
        const int count = 400;
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(ADDRBOOK_OP_DELETE, PB_MEM_LOCAL, records(count), 0);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.results.size(), count);
        QVERIFY(timer.nsecsElapsed() >= count * 500000LL); // room to paint
    }

    void theWorkerWaitsUntilTheSlotHasFinished()
    {
        AddrBookThread worker;
        Receiver receiver(&worker);
        receiver.answers = false;
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(2), 0);
        worker.start(QThread::InheritPriority);
        QTRY_COMPARE(receiver.results.size(), 1);
        // What a long read before had asked for, and gets too late.
        QVERIFY(QMetaObject::invokeMethod(&worker, "OnTurn"));
        // Longer than the interval at which the worker looks for a shutdown.
        QTest::qWait(200);
        QCOMPARE(FakeSdk::count("AddAddrRec"), 1);
        QVERIFY(worker.isRunning());
        worker.SetSlotExecutionStatus();
        QTRY_COMPARE(receiver.results.size(), 2);
        worker.SetSlotExecutionStatus();
        QTRY_VERIFY(worker.isFinished());
    }

    void aCancelAfterTheThirdResultDropsTheRest()
    {
        AddrBookThread worker;
        Receiver receiver(&worker);
        receiver.onResult = [&worker](int count) {
            if (count == 3)
                worker.StopOperation();
        };
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(10), 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.results.size(), 3);
        QCOMPARE(FakeSdk::recordIds(PB_MEM_LOCAL).size(), 3);
        // Started again with the stop request taken back, the worker has no list left.
        worker.SetReadOperation(nullptr, 0);
        FakeSdk::clearCalls();
        QVERIFY(runToEnd(worker));
        QCOMPARE(FakeSdk::count("AddAddrRec"), 0);
        QCOMPARE(receiver.results.size(), 3);
    }

    void anAddJoinsTheGroup_data()
    {
        QTest::addColumn<int>("group");
        QTest::newRow("a group") << 1;
        QTest::newRow("the root, too") << 0;
    }

    void anAddJoinsTheGroup()
    {
        QFETCH(int, group);
        FakeSdk::addGroup("Friends");
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(2), group);
        QVERIFY(runToEnd(worker));
        QCOMPARE(FakeSdk::log().filter("AddAddrToGroup"),
                 QStringList(
                     {QString("AddAddrToGroup(%1, 1, 4)").arg(group), QString("AddAddrToGroup(%1, 2, 4)").arg(group)}));
        QCOMPARE(FakeSdk::members(1), group == 1 ? QList<int>({1, 2}) : QList<int>());
        QCOMPARE(receiver.lines, QStringList({QString("added 4 1 %1").arg(group), QString("added 4 2 %1").arg(group)}));
        QVERIFY(receiver.results[0].ok && receiver.results[1].ok);
        QCOMPARE(receiver.results[1].id, 2);
    }

    void aNameIsStoredCutAndReportedWhole()
    {
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_SIM, {record({"Anna Maria Josefina", "1"})}, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(FakeSdk::record(PB_MEM_SIM, 1).first(), QString("Anna Maria Jos"));
        QCOMPARE(receiver.results.first().values.first(), QString("Anna Maria Josefina"));
        QCOMPARE(FakeSdk::count("AddAddrToGroup"), 0);
    }

    void aFailedAddDoesNotEndTheBatch()
    {
        QList<AddrBookRecord> list = records(3);
        list[1].lstValues[1] = "no number";
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, list, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.results.size(), 3);
        QVERIFY(receiver.results[0].ok && !receiver.results[1].ok && receiver.results[2].ok);
        QCOMPARE(receiver.results[1].id, -1);
        QCOMPARE(receiver.lines, QStringList({"added 4 1 0", "added 4 2 0"}));
    }

    void anIdentifierBelowOneIsAFailure()
    {
        FakeSdk::giveNull("AddAddrRec");
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(1), 0);
        QVERIFY(runToEnd(worker));
        QVERIFY(!receiver.results.first().ok);
        QCOMPARE(receiver.results.first().id, 0);
        QCOMPARE(FakeSdk::count("AddAddrToGroup"), 0);
    }

    void aContactWhoseGroupFailsStaysThoughItIsReportedAsFailed()
    {
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(1), 8);
        QVERIFY(runToEnd(worker));
        QVERIFY(!receiver.results.first().ok);
        QCOMPARE(receiver.results.first().id, 1);
        QVERIFY(FakeSdk::hasRecord(PB_MEM_LOCAL, 1));
        QCOMPARE(receiver.lines, QStringList());
    }

    void aCopyWithoutRoomEndsTheBatchWithoutAResult_data()
    {
        QTest::addColumn<int>("operation");
        QTest::newRow("add") << int(ADDRBOOK_OP_ADD);
        QTest::newRow("move") << int(ADDRBOOK_OP_MOVE);
    }

    void aCopyWithoutRoomEndsTheBatchWithoutAResult()
    {
        QFETCH(int, operation);
        cacheFields(PB_MEM_LOCAL);
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(_ADDRBOOK_OPERATION_TYPE(operation), PB_MEM_SIM, PB_MEM_LOCAL, records(3), 0);
        FailingNew::failNth(1);
        QVERIFY(runToEnd(worker));
        QVERIFY(FailingNew::hasFailed());
        QVERIFY(receiver.results.isEmpty());
        QCOMPARE(FakeSdk::count("AddAddrRec"), 1);
        QCOMPARE(FakeSdk::openTransactions(PB_MEM_LOCAL), 0);
    }

    void aDeletedRecordIsReportedByItsIdentifier()
    {
        for (int i = 0; i < 3; ++i)
            FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        FakeSdk::removeRecord(PB_MEM_LOCAL, 2);
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(ADDRBOOK_OP_DELETE, PB_MEM_LOCAL, records(3), 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.results.size(), 3);
        QVERIFY(receiver.results[0].ok && !receiver.results[1].ok && receiver.results[2].ok);
        QCOMPARE(receiver.results[1].id, 2);
        QCOMPARE(receiver.lines, QStringList({"deleted 4 1", "deleted 4 3"}));
        QCOMPARE(FakeSdk::log(),
                 QStringList({"BeginTransaction(4)", "EndTransaction(4)", "BeginTransaction(4)", "DelAddrRec(1, 4)",
                              "DelAddrRec(2, 4)", "DelAddrRec(3, 4)", "EndTransaction(4)"}));
    }

    void aFailedRemovalFromAGroupIsAnnouncedAllTheSame()
    {
        FakeSdk::addGroup("Friends");
        FakeSdk::join(1, FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna")));
        AddrBookThread worker;
        const Receiver receiver(&worker);
        // The memory is fixed, whatever the batch was set for.
        worker.SetOperation(ADDRBOOK_OP_REMOVE_FROM_GROUP, PB_MEM_SIM, records(2), 1);
        QVERIFY(runToEnd(worker));
        QVERIFY(receiver.results[0].ok && !receiver.results[1].ok);
        QCOMPARE(receiver.results[1].id, 2);
        QCOMPARE(receiver.lines, QStringList({"removed 4 1 1", "removed 4 2 1"}));
        QVERIFY(FakeSdk::hasRecord(PB_MEM_LOCAL, 1));
        QCOMPARE(FakeSdk::log().filter("DelAddrFromGroup"),
                 QStringList({"DelAddrFromGroup(1, 1, 4)", "DelAddrFromGroup(1, 2, 4)"}));
    }

    void aMoveAddsJoinsAndDeletes()
    {
        FakeSdk::addGroup("Friends");
        FakeSdk::addRecord(PB_MEM_ME, {"Anna", "1"});
        AddrBookThread worker;
        const Receiver receiver(&worker);
        // The bracket stays with the memory of the operation before.
        worker.SetOperation(ADDRBOOK_OP_DELETE, PB_MEM_SIM, QList<AddrBookRecord>(), 0);
        worker.SetOperation(ADDRBOOK_OP_MOVE, PB_MEM_ME, PB_MEM_LOCAL, records(1), 1);
        QVERIFY(runToEnd(worker));
        QVERIFY(receiver.results.first().ok);
        QCOMPARE(receiver.lines, QStringList({"added 4 1 1"}));
        QVERIFY(!FakeSdk::hasRecord(PB_MEM_ME, 1));
        QCOMPARE(FakeSdk::members(1), QList<int>({1}));
        const QStringList log = FakeSdk::log();
        QCOMPARE(log.filter("Transaction"),
                 QStringList({"BeginTransaction(0)", "EndTransaction(0)", "BeginTransaction(0)", "EndTransaction(0)"}));
        QVERIFY(log.indexOf("AddAddrToGroup(1, 1, 4)") < log.indexOf("DelAddrRec(1, 1)"));
    }

    void failuresOfAMove()
    {
        FakeSdk::addRecord(PB_MEM_ME, {"Anna", "1"});
        AddrBookThread worker;
        const Receiver receiver(&worker);
        QList<AddrBookRecord> list = records(3);
        list[1].lstValues[1] = "no number";
        FakeSdk::fail("AddAddrToGroup"); // goes unnoticed
        worker.SetOperation(ADDRBOOK_OP_MOVE, PB_MEM_ME, PB_MEM_LOCAL, list, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.results.size(), 3);
        QVERIFY(receiver.results[0].ok);
        QVERIFY(!receiver.results[1].ok);
        QCOMPARE(receiver.results[1].id, -1);
        // The third is not in the device: added here, and reported as failed.
        QVERIFY(!receiver.results[2].ok);
        QCOMPARE(receiver.results[2].id, 2);
        QVERIFY(FakeSdk::hasRecord(PB_MEM_LOCAL, 2));
    }

    void aMoveToACardJoinsNoGroup()
    {
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(ADDRBOOK_OP_MOVE, PB_MEM_LOCAL, PB_MEM_SIM, {record({"Anna", "1"}, 1)}, 1);
        QVERIFY(runToEnd(worker));
        QVERIFY(receiver.results.first().ok);
        QCOMPARE(FakeSdk::count("AddAddrToGroup"), 0);
        QVERIFY(FakeSdk::recordIds(PB_MEM_LOCAL).isEmpty());
    }

    void aMoveWithoutAReceiverWaitsForItsOwner()
    {
        AddrBookThread worker;
        const Receiver receiver(&worker, false);
        worker.SetOperation(ADDRBOOK_OP_MOVE, PB_MEM_ME, PB_MEM_LOCAL, records(3), 0);
        worker.start(QThread::InheritPriority);
        QTRY_COMPARE(FakeSdk::count("DelAddrRec"), 1);
        QTest::qWait(200);
        QVERIFY(worker.isRunning());
        QCOMPARE(FakeSdk::count("AddAddrRec"), 1);
        worker.StopOperation();
        worker.SetSlotExecutionStatus();
        QTRY_VERIFY(worker.isFinished());
        QCOMPARE(FakeSdk::count("AddAddrRec"), 1);
    }

    void aShutdownBeforeARecordDropsTheRest_data()
    {
        QTest::addColumn<int>("operation");
        for (int operation : {0, 1, 2, 8})
            QTest::newRow(qPrintable(QString::number(operation))) << operation;
    }

    void aShutdownBeforeARecordDropsTheRest()
    {
        QFETCH(int, operation);
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        AddrBookThread worker;
        Receiver receiver(&worker);
        receiver.onResult = [](int) { FakeCore::setShuttingDown(true); };
        worker.SetOperation(_ADDRBOOK_OPERATION_TYPE(operation), PB_MEM_LOCAL, records(5), 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.results.size(), 1);
        QCOMPARE(FakeSdk::openTransactions(PB_MEM_LOCAL), 0);
    }

    void aShutdownInsideARecordIsSilentButForDeletes_data()
    {
        QTest::addColumn<int>("operation");
        QTest::addColumn<QByteArray>("call");
        QTest::addColumn<int>("results");
        QTest::newRow("add") << int(ADDRBOOK_OP_ADD) << QByteArray("AddAddrRec") << 0;
        QTest::newRow("move") << int(ADDRBOOK_OP_MOVE) << QByteArray("AddAddrRec") << 0;
        QTest::newRow("delete") << int(ADDRBOOK_OP_DELETE) << QByteArray("DelAddrRec") << 1;
        QTest::newRow("remove") << int(ADDRBOOK_OP_REMOVE_FROM_GROUP) << QByteArray("DelAddrFromGroup") << 1;
    }

    void aShutdownInsideARecordIsSilentButForDeletes()
    {
        QFETCH(int, operation);
        QFETCH(QByteArray, call);
        QFETCH(int, results);
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        FakeSdk::onCall(call, 1, [] { FakeCore::setShuttingDown(true); });
        AddrBookThread worker;
        Receiver receiver(&worker);
        // Nobody wakes the worker: it finds out by itself.
        receiver.answers = false;
        worker.SetOperation(_ADDRBOOK_OPERATION_TYPE(operation), PB_MEM_LOCAL, records(5), 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.results.size(), results);
        QCOMPARE(receiver.lines, QStringList());
        QCOMPARE(FakeSdk::count(call), 1);
    }

    void aWorkerThatWaitsEndsAtAShutdown()
    {
        AddrBookThread worker;
        Receiver receiver(&worker);
        receiver.answers = false;
        receiver.onResult = [](int) { QTimer::singleShot(0, [] { FakeCore::setShuttingDown(true); }); };
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(5), 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.results.size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestBatches)
#include "tst_batches.moc"
