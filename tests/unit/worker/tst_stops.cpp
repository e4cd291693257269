#include <QSemaphore>

#include "WorkerTest.h"

// A worker that is asked to end, or whose logic goes, while a slow memory gives its records one by one.
class TestStops : public WorkerTest
{
    Q_OBJECT

    enum Operation { LocalRead, TableRead, GroupRead, Card, Device, Groups, Contacts };

    QList<AddrBookGroup*> m_groups;
    QList<AddrBookRecord> m_local;

    static const char* recordCall(int operation)
    {
        return operation == Groups || operation == GroupRead ? "GetAddrRecord" : "AddrRecordSet_GetID";
    }

    void set(AddrBookThread& worker, int operation)
    {
        switch (operation) {
        case LocalRead:
            worker.SetSCOperation(ADDRBOOK_OP_READ_LOCAL, PB_MEM_LOCAL, nullptr);
            break;
        case TableRead:
            setRead(worker, PB_MEM_SIM, 0);
            break;
        case GroupRead:
            setRead(worker, PB_MEM_LOCAL, 1);
            break;
        case Card:
            worker.SetSCOperation(ADDRBOOK_OP_TREE_NODES, PB_MEM_SIM, nullptr);
            break;
        case Device:
            worker.SetSCOperation(ADDRBOOK_OP_TREE_NODES, PB_MEM_ME, nullptr);
            break;
        case Groups:
            worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_GROUPS, PB_MEM_LOCAL, m_groups, m_local, 0);
            break;
        default:
            worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_CONTACTS, PB_MEM_LOCAL, {}, m_local, 0);
            break;
        }
    }

    static void operations()
    {
        QTest::addColumn<int>("operation");
        QTest::newRow("local read") << int(LocalRead);
        QTest::newRow("table") << int(TableRead);
        QTest::newRow("table of a group") << int(GroupRead);
        QTest::newRow("card") << int(Card);
        QTest::newRow("device") << int(Device);
        QTest::newRow("groups") << int(Groups);
    }

    void populate()
    {
        FakeSdk::addGroup("All");
        for (int id = 1; id <= 50; ++id) {
            FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
            FakeSdk::join(1, id);
            FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
            FakeSdk::addRecord(PB_MEM_ME, {"Anna", "1"});
        }
        AddrBookLogic::Instance()->GetGroups(m_groups, PB_MEM_LOCAL);
        AddrBookLogic::Instance()->GetRecordInGroup(m_local, PB_MEM_LOCAL, 0);
        FakeSdk::clearCalls();
    }

    // A worker that stands inside the third record until it is let go.
    struct Held {
        QSemaphore entered;
        QSemaphore proceed;
        void hold(const char* call)
        {
            FakeSdk::onCall(call, 3, [this] {
                entered.release();
                proceed.acquire();
            });
        }
        bool waitEntered() { return entered.tryAcquire(1, 20000); }
    };

private slots:
    void cleanup()
    {
        qDeleteAll(m_groups);
        m_groups.clear();
        m_local.clear();
        WorkerTest::staticMetaObject.method(WorkerTest::staticMetaObject.indexOfSlot("cleanup()"))
            .invoke(this, Qt::DirectConnection);
    }

    void aStopEndsAReadBehindTheRecordInHand_data() { operations(); }
    void aStopEndsAReadBehindTheRecordInHand()
    {
        QFETCH(int, operation);
        populate();
        Held held;
        AddrBookThread worker;
        held.hold(recordCall(operation));
        set(worker, operation);
        worker.start(QThread::InheritPriority);
        QVERIFY(held.waitEntered());
        worker.StopOperation();
        held.proceed.release();
        QVERIFY(worker.wait(20000));
        QCOMPARE(FakeSdk::count(recordCall(operation)), 3);
        for (const int memory : {0, 1, 4})
            QCOMPARE(FakeSdk::openTransactions(memory), 0);
    }

    void aShutdownEndsAReadBehindTheRecordInHand_data() { operations(); }
    void aShutdownEndsAReadBehindTheRecordInHand()
    {
        QFETCH(int, operation);
        populate();
        Held held;
        AddrBookThread worker;
        held.hold(recordCall(operation));
        set(worker, operation);
        worker.start(QThread::InheritPriority);
        QVERIFY(held.waitEntered());
        FakeCore::setShuttingDown(true);
        held.proceed.release();
        QVERIFY(worker.wait(20000));
        FakeCore::setShuttingDown(false);
        QCOMPARE(FakeSdk::count(recordCall(operation)), 3);
    }

    void everyWorkerEndsBeforeTheLogicGoes_data()
    {
        operations();
        QTest::newRow("batch") << -1;
    }
    void everyWorkerEndsBeforeTheLogicGoes()
    {
        QFETCH(int, operation);
        populate();
        AddrBookThread worker;
        Receiver receiver(&worker);
        if (operation == -1)
            worker.SetOperation(ADDRBOOK_OP_DELETE, PB_MEM_LOCAL, records(50), 0); // nobody answers: it waits
        else
            set(worker, operation);
        const char* const call = operation == -1 ? "DelAddrRec" : recordCall(operation);
        FakeSdk::setDelay(call, 20);
        worker.start(QThread::InheritPriority);
        while (FakeSdk::count(call) < 1)
            QThread::yieldCurrentThread();
        AddrBookLogic::Destroy();
        QVERIFY(!worker.isRunning());
        QVERIFY(FakeSdk::count(call) <= 3);
    }

    void aWorkerMakesNoLogicOfItsOwn_data()
    {
        operations();
        for (const int operation :
             {ADDRBOOK_OP_DELETE, ADDRBOOK_OP_REMOVE_FROM_GROUP, ADDRBOOK_OP_ADD, ADDRBOOK_OP_MOVE})
            QTest::addRow("batch %d", operation) << 100 + operation;
    }
    void aWorkerMakesNoLogicOfItsOwn()
    {
        QFETCH(int, operation);
        populate();
        AddrBookLogic::Destroy();
        AddrBookThread worker;
        if (operation >= 100)
            worker.SetOperation(static_cast<_ADDRBOOK_OPERATION_TYPE>(operation - 100), PB_MEM_LOCAL, records(3), 0);
        else
            set(worker, operation);
        worker.start(QThread::InheritPriority);
        QVERIFY(worker.wait(20000));
        QCOMPARE(FakeSdk::totalCalls(), 0);
    }
};

QTEST_GUILESS_MAIN(TestStops)
#include "tst_stops.moc"
