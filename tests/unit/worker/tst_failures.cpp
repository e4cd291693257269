#include "WorkerTest.h"

// Every operation of the worker with each of its SDK calls failing once, and once giving null: it ends, leaves nothing
// behind, and hands over one result a record.
class TestFailures : public WorkerTest
{
    Q_OBJECT

    struct Outcome {
        int contacts = 0;
        int results = 0;
        int good = 0;
        int lines = 0;
    };

    static void populate()
    {
        FakeSdk::reset();
        for (int i = 0; i < 3; ++i) {
            FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
            FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        }
        FakeSdk::addGroup("Friends");
        FakeSdk::addGroup("Work");
        for (int id : {1, 2, 3})
            FakeSdk::join(1, id);
    }

    static bool isBatch(int operation) { return operation < 9; }

    Outcome run(int operation, int memory, int group, int failing, long code)
    {
        AddrBookLogic::Destroy();
        populate();
        AddrBookLogic::Instance();
        AddrBookGroup friends;
        friends.iGroupID = 1;
        QList<AddrBookRecord> local = records(3);
        const auto op = _ADDRBOOK_OPERATION_TYPE(operation);
        const auto mem = _ORVA_EN_PHONEBOOK_MEMORY(memory);
        AddrBookThread worker;
        const Receiver receiver(&worker);
        if (op == ADDRBOOK_OP_READ)
            setRead(worker, mem, group);
        else if (op == ADDRBOOK_OP_TREE_NODES)
            worker.SetSCOperation(op, mem, nullptr);
        else if (op == ADDRBOOK_OP_TREE_GROUPS)
            worker.SetSCGroupOperation(op, mem, {&friends}, local, 0);
        else if (op == ADDRBOOK_OP_MOVE)
            worker.SetOperation(op, PB_MEM_SIM, mem, local, group);
        else
            worker.SetOperation(op, mem, local, group);
        if (failing > 0)
            FakeSdk::failCall(failing, code);
        m_ended = runToEnd(worker);
        Outcome outcome;
        outcome.contacts = receiver.contacts.size();
        outcome.results = receiver.results.size();
        outcome.lines = receiver.lines.size();
        for (const Receiver::Result& result : receiver.results)
            outcome.good += result.ok ? 1 : 0;
        return outcome;
    }

    bool m_ended = false;

private slots:
    void eachCallFailingOnce_data()
    {
        QTest::addColumn<int>("operation");
        QTest::addColumn<int>("memory");
        QTest::addColumn<int>("group");
        QTest::newRow("read a memory") << int(ADDRBOOK_OP_READ) << int(PB_MEM_SIM) << 0;
        QTest::newRow("read a group") << int(ADDRBOOK_OP_READ) << int(PB_MEM_LOCAL) << 1;
        QTest::newRow("read local") << int(ADDRBOOK_OP_READ_LOCAL) << int(PB_MEM_LOCAL) << 0;
        QTest::newRow("tree nodes") << int(ADDRBOOK_OP_TREE_NODES) << int(PB_MEM_SIM) << 0;
        QTest::newRow("tree groups") << int(ADDRBOOK_OP_TREE_GROUPS) << int(PB_MEM_LOCAL) << 0;
        QTest::newRow("add") << int(ADDRBOOK_OP_ADD) << int(PB_MEM_LOCAL) << 1;
        QTest::newRow("delete") << int(ADDRBOOK_OP_DELETE) << int(PB_MEM_LOCAL) << 0;
        QTest::newRow("remove") << int(ADDRBOOK_OP_REMOVE_FROM_GROUP) << int(PB_MEM_LOCAL) << 1;
        QTest::newRow("move") << int(ADDRBOOK_OP_MOVE) << int(PB_MEM_LOCAL) << 1;
    }

    void eachCallFailingOnce()
    {
        QFETCH(int, operation);
        QFETCH(int, memory);
        QFETCH(int, group);
        const Outcome whole = run(operation, memory, group, 0, 0);
        const int calls = FakeSdk::totalCalls();
        QVERIFY(m_ended && calls > 0);
        if (isBatch(operation))
            QCOMPARE(whole.good, 3);
        for (long code : {long(ORVA_E_STORE), 0L}) {
            for (int k = 1; k <= calls; ++k) {
                const Outcome outcome = run(operation, memory, group, k, code);
                const QByteArray failed = FakeSdk::failedCall();
                const QByteArray where =
                    QString("call %1, %2, code %3").arg(k).arg(QString(failed)).arg(code).toLatin1();
                QVERIFY2(m_ended && !failed.isEmpty(), where);
                QVERIFY2(FakeSdk::leaks().isEmpty(), where + ": " + FakeSdk::leaks().toLatin1());
                QVERIFY2(outcome.contacts <= whole.contacts, where);
                QVERIFY2(outcome.lines <= whole.lines, where);
                if (isBatch(operation)) {
                    // A failed record never ends a batch; one call spoils one record, unless it is of no consequence.
                    QVERIFY2(outcome.results == 3, where);
                    const bool isHarmless = code == 0 || failed.endsWith("Release") || failed.endsWith("Transaction") ||
                                            (operation == ADDRBOOK_OP_MOVE && failed == "AddAddrToGroup");
                    if (isHarmless)
                        QVERIFY2(outcome.good >= 2, where);
                    else
                        QVERIFY2(outcome.good == 2, where);
                }
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestFailures)
#include "tst_failures.moc"
