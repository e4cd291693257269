#include <ctime>

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

    // Members are struck in one pass a group; the list left over is that of striking them one by one, also for
    // records that stand in it twice, for members that are not in it, and for groups that share contacts.
    void strikingGivesWhatStrikingOneByOneGives()
    {
        for (unsigned int seed = 1; seed <= 20; ++seed) {
            FakeSdk::reset();
            FakeSdk::setMissingRecordGivesNull(true);
            AddrBookLogic::Destroy();
            qDeleteAll(m_groups);
            m_groups.clear();
            m_local.clear();
            unsigned int number = seed * 7919;
            const auto next = [&number](unsigned int below) {
                number = number * 1103515245 + 12345;
                return static_cast<int>(number / 65536 % below);
            };
            for (int i = 0; i < 40; ++i)
                FakeSdk::addRecord(PB_MEM_LOCAL, contact(QString::number(i)));
            for (int group = 1; group <= 6; ++group) {
                FakeSdk::addGroup(QString("Group %1").arg(group));
                for (int i = next(15); i > 0; --i)
                    FakeSdk::join(group, 1 + next(44)); // the last four are no records
            }
            for (int i = 0; i < 60; ++i)
                m_local << record(contact("x"), next(45)); // 0 is nobody

            QList<int> expected;
            for (const AddrBookRecord& one : std::as_const(m_local))
                expected << one.iID;
            for (const FakeSdk::Group& group : FakeSdk::groups()) {
                for (const int member : group.members) {
                    // A reference to nobody gives a member with the identifier 0.
                    const int id = FakeSdk::hasRecord(PB_MEM_LOCAL, member) ? member : 0;
                    expected.removeAll(id);
                }
            }
            AddrBookLogic::Instance()->GetGroups(m_groups, PB_MEM_LOCAL);
            AddrBookThread worker;
            const Receiver receiver(&worker);
            worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_GROUPS, PB_MEM_LOCAL, m_groups, m_local, 0);
            QVERIFY(runToEnd(worker));
            QCOMPARE(remaining(worker), expected);
            QVERIFY(!expected.isEmpty() && expected.size() < m_local.size());
        }
    }

    // Processor time, so that other programs do not count: four times the contacts, all in one group, are to cost about
    // four times as much, where striking them one by one costs sixteen times.
    void strikingDoesNotCostTheSquareOfTheMembers()
    {
        const auto secondsFor = [this](int count) {
            FakeSdk::reset();
            FakeSdk::setRecording(false);
            AddrBookLogic::Destroy();
            qDeleteAll(m_groups);
            m_groups.clear();
            m_local.clear();
            FakeSdk::addGroup("All");
            for (int id = 1; id <= count; ++id) {
                FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
                FakeSdk::join(1, id);
                m_local.prepend(record(contact("Anna"), id)); // each is found at the far end
            }
            AddrBookLogic::Instance()->GetGroups(m_groups, PB_MEM_LOCAL);
            double best = 1e9;
            for (int round = 0; round < 3; ++round) {
                AddrBookThread worker; // without receivers: nothing is copied
                worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_GROUPS, PB_MEM_LOCAL, m_groups, m_local, 0);
                const std::clock_t before = std::clock();
                if (!runToEnd(worker) || !remaining(worker).isEmpty())
                    qFatal("the worker does not strike");
                best = qMin(best, double(std::clock() - before) / CLOCKS_PER_SEC);
            }
            return best;
        };
        const double few = secondsFor(10000);
        const double many = secondsFor(40000);
        QVERIFY2(many < 8 * few, qPrintable(QString("%1 s against %2 s").arg(many).arg(few)));
    }

    void aStopEndsTheWalkOverTheListEarly()
    {
        populate();
        AddrBookThread worker;
        const Receiver receiver(&worker);
        FakeSdk::onCall("GetAddrRecord", 1, [&worker] { worker.StopOperation(); });
        worker.SetSCGroupOperation(ADDRBOOK_OP_TREE_GROUPS, PB_MEM_LOCAL, m_groups, m_local, 0);
        QVERIFY(runToEnd(worker));
        // The group in hand comes with what was read of it, and with the list as it was; the next one is not begun.
        QCOMPARE(receiver.lines, QStringList({"group 4 1 Friends", "member 4 1 1"}));
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
