#include "WorkerTest.h"

class TestTree : public WorkerTest
{
    Q_OBJECT

    // Two groups that share Anna; Carla is in none.
    QList<AddrBookGroup*> m_groups;
    QList<AddrBookRecord> m_local;

    void populate()
    {
        for (const char* name : {"Anna", "Bruno", "Carla"})
            FakeSdk::addRecord(PB_MEM_LOCAL, contact(name));
        FakeSdk::addGroup("Friends");
        FakeSdk::addGroup("Work");
        FakeSdk::join(1, 1);
        FakeSdk::join(1, 2);
        FakeSdk::join(2, 1);
        AddrBookLogic::Instance()->GetGroups(m_groups, PB_MEM_LOCAL);
        AddrBookLogic::Instance()->GetRecordInGroup(m_local, PB_MEM_LOCAL, 0);
        FakeSdk::clearCalls();
    }

    QList<int> remaining(AddrBookThread& worker)
    {
        QList<AddrBookRecord> list;
        worker.GetLocalRecords(list);
        QList<int> ids;
        for (const AddrBookRecord& one : list)
            ids << one.iID;
        return ids;
    }

private slots:
    void cleanup()
    {
        qDeleteAll(m_groups);
        m_groups.clear();
        m_local.clear();
        WorkerTest::staticMetaObject.method(WorkerTest::staticMetaObject.indexOfSlot("cleanup()"))
            .invoke(this, Qt::DirectConnection);
    }

    void theContactsOfAMemoryComeWithTheirNode()
    {
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        FakeSdk::addRecord(PB_MEM_SIM, {"Bruno", "1"});
        QTreeWidgetItem node;
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetSCOperation(ADDRBOOK_OP_TREE_NODES, PB_MEM_SIM, &node);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.lines, QStringList({"node 0 1 0", "node 0 2 1"}));
        QCOMPARE(receiver.nodes, QList<qlonglong>({pointerToCarrier(&node), pointerToCarrier(&node)}));
    }

    void aContactInTwoGroupsAppearsUnderBoth()
    {
        populate();
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_GROUPS, PB_MEM_LOCAL, m_groups, m_local, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.lines,
                 QStringList({"group 4 1 Friends", "member 4 1 1", "member 4 1 2", "group 4 2 Work", "member 4 2 1"}));
        QCOMPARE(remaining(worker), QList<int>({3}));
        QCOMPARE(m_local.size(), 3);
    }

    void theFirstGroupAloneTakesItsMembersOffTheList()
    {
        populate();
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_GROUPS, PB_MEM_LOCAL, m_groups.mid(0, 1), m_local, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(remaining(worker), QList<int>({3}));
    }

    void aStopEndsTheWalkOverTheListEarly()
    {
        populate();
        AddrBookThread worker;
        const Receiver receiver(&worker);
        FakeSdk::onCall("GetAddrRecord", 1, [&worker] { worker.StopOperation(); });
        worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_GROUPS, PB_MEM_LOCAL, m_groups, m_local, 0);
        QVERIFY(runToEnd(worker));
        // The group in hand is completed, with the list as it was; the next one is not begun.
        QCOMPARE(receiver.lines, QStringList({"group 4 1 Friends", "member 4 1 1", "member 4 1 2"}));
        QCOMPARE(remaining(worker), QList<int>({1, 2, 3}));
    }

    void theRemainingContactsComeByTheirIndex()
    {
        populate();
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_CONTACTS, PB_MEM_LOCAL, {}, m_local, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.lines, QStringList({"contact 0", "contact 1", "contact 2"}));
        QCOMPARE(FakeSdk::totalCalls(), 0);
    }

    void aStoppedWorkerSignalsNothing()
    {
        populate();
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_CONTACTS, PB_MEM_LOCAL, {}, m_local, 0);
        worker.StopOperation();
        QVERIFY(runToEnd(worker));
        worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_GROUPS, PB_MEM_LOCAL, m_groups, m_local, 0);
        worker.StopOperation();
        QVERIFY(runToEnd(worker));
        worker.SetSCOperation(ADDRBOOK_OP_TREE_NODES, PB_MEM_SIM, nullptr);
        worker.StopOperation();
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.lines, QStringList());
    }

    void whileShuttingDownNoTreeSignalIsSent()
    {
        populate();
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        FakeSdk::onCall("GetAddrRecList", 1, [] { FakeCore::setShuttingDown(true); });
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetSCOperation(ADDRBOOK_OP_TREE_NODES, PB_MEM_SIM, nullptr);
        QVERIFY(runToEnd(worker));
        FakeCore::setShuttingDown(false);
        FakeSdk::onCall("GetGroupList", 1, [] { FakeCore::setShuttingDown(true); });
        worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_GROUPS, PB_MEM_LOCAL, m_groups, m_local, 0);
        QVERIFY(runToEnd(worker));
        worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_CONTACTS, PB_MEM_LOCAL, {}, m_local, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.lines, QStringList());
    }

    void aGroupThatCannotBeReadStandsWithoutMembers()
    {
        populate();
        FakeSdk::fail("GetGroupList");
        AddrBookThread worker;
        const Receiver receiver(&worker);
        worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_GROUPS, PB_MEM_LOCAL, m_groups, m_local, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.lines, QStringList({"group 4 1 Friends", "group 4 2 Work", "member 4 2 1"}));
        QCOMPARE(remaining(worker), QList<int>({2, 3}));
    }

    void recordsThatNobodyTakesAreNotLost()
    {
        populate();
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        AddrBookThread worker;
        worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_GROUPS, PB_MEM_LOCAL, m_groups, m_local, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(remaining(worker), QList<int>({3}));
        worker.SetSCOperation(ADDRBOOK_OP_TREE_NODES, PB_MEM_SIM, nullptr);
        QVERIFY(runToEnd(worker));
    }
};

QTEST_GUILESS_MAIN(TestTree)
#include "tst_tree.moc"
