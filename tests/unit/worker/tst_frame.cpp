#include "WorkerTest.h"

class TestFrame : public WorkerTest
{
    Q_OBJECT

private slots:
    void theHostCountsARunningWorker()
    {
        AddrBookThread worker;
        worker.SetOperation(ADDRBOOK_OP_READ_LOCAL, PB_MEM_LOCAL, {}, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(FakeCore::workerLog(), QStringList({"+AddrBookThread.cpp|run", "-AddrBookThread.cpp|run"}));
    }

    void anyOtherOperationDoesNothing_data()
    {
        QTest::addColumn<int>("operation");
        for (int operation : {3, 4, 5, 6, 10, 15})
            QTest::newRow(qPrintable(QString::number(operation))) << operation;
    }

    void anyOtherOperationDoesNothing()
    {
        QFETCH(int, operation);
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetOperation(_ADDRBOOK_OPERATION_TYPE(operation), PB_MEM_LOCAL, records(2), 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(FakeSdk::totalCalls(), 0);
        QVERIFY(receiver.results.isEmpty() && receiver.contacts.isEmpty() && receiver.lines.isEmpty());
    }

    void wakingAWorkerThatDoesNotWaitHasNoEffect()
    {
        AddrBookThread worker;
        worker.SetSlotExecutionStatus();
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        FakeSdk::onCall("GetAddrRecList", 1, [&worker] { worker.SetSlotExecutionStatus(); });
        const Receiver receiver(&worker);
        setRead(worker, PB_MEM_LOCAL, 0);
        QVERIFY(runToEnd(worker));
        worker.SetSlotExecutionStatus();
        QCOMPARE(receiver.contacts.size(), 1);
    }

    void aSetterClearsTheStopRequest()
    {
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Bruno"));
        AddrBookThread worker;
        const Receiver receiver(&worker);
        setRead(worker, PB_MEM_LOCAL, 0);
        worker.StopOperation();
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.contacts.size(), 1);
        setRead(worker, PB_MEM_LOCAL, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.contacts.size(), 3);
    }

    void aWorkerThatWaitsEndsWithItsObject()
    {
        for (int i = 0; i < 20; ++i) {
            std::unique_ptr<AddrBookThread> worker(new AddrBookThread);
            Receiver receiver(worker.get());
            receiver.answers = false;
            worker->SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(3), 0);
            worker->start(QThread::InheritPriority);
            QTRY_COMPARE(receiver.results.size(), 1);
            worker.reset();
            QCOMPARE(FakeCore::runningWorkers(), 0);
        }
        QCOMPARE(FakeSdk::count("AddAddrRec"), 20);
    }

    void aReaderEndsWithItsObject()
    {
        for (int i = 0; i < 1000; ++i)
            FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        std::unique_ptr<AddrBookThread> worker(new AddrBookThread);
        Receiver receiver(worker.get());
        FakeSdk::setDelay("AddrRecordSet_MoveNext", 1);
        setRead(*worker, PB_MEM_LOCAL, 0);
        worker->start(QThread::InheritPriority);
        QTRY_VERIFY(!receiver.contacts.isEmpty());
        worker.reset();
        QCoreApplication::sendPostedEvents();
        QVERIFY(receiver.contacts.size() < 1000);
        QCOMPARE(FakeSdk::openTransactions(PB_MEM_LOCAL), 0);
    }

    void aNewBatchWaitsForTheEndOfTheOneThatRuns()
    {
        AddrBookThread worker;
        Receiver receiver(&worker);
        receiver.answers = false;
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(5), 0);
        worker.start(QThread::InheritPriority);
        QTRY_COMPARE(receiver.results.size(), 1);
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_SIM, {record({"Card", "1"})}, 0);
        QVERIFY(!worker.isRunning());
        QCOMPARE(FakeSdk::recordIds(PB_MEM_LOCAL).size(), 1);
        receiver.answers = true;
        QVERIFY(runToEnd(worker));
        QCOMPARE(FakeSdk::recordIds(PB_MEM_LOCAL).size(), 1);
        QCOMPARE(FakeSdk::recordIds(PB_MEM_SIM).size(), 1);
    }

    void localRecordsAreAppended()
    {
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Bruno"));
        AddrBookThread worker;
        worker.SetOperation(ADDRBOOK_OP_READ_LOCAL, PB_MEM_SIM, {}, 5);
        QVERIFY(runToEnd(worker));
        QList<AddrBookRecord> list = {record({"before"})};
        worker.GetLocalRecords(list);
        QCOMPARE(list.size(), 3);
        QCOMPARE(list[2].lstValues.first(), QString("Bruno"));
        QCOMPARE(AddrBookLogic::Instance()->recordCount(PB_MEM_LOCAL), 2);
    }
};

QTEST_GUILESS_MAIN(TestFrame)
#include "tst_frame.moc"
