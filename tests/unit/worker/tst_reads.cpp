#include "WorkerTest.h"

struct AddrBookThreadAccess {
    static void setPatience(AddrBookThread& worker, unsigned ms) { worker.m_iTurnMs = ms; }
};

class TestReads : public WorkerTest
{
    Q_OBJECT

    // Two turns and more.
    static void addMany()
    {
        for (int i = 0; i < 11000; ++i)
            FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
    }

    // Nobody takes anything meanwhile.
    static void startAndFillAQueue(AddrBookThread& worker)
    {
        worker.start(QThread::InheritPriority);
        while (FakeSdk::count("AddrRecordSet_GetID") <= 5000)
            QThread::msleep(1);
    }

    static QStringList oneSetRecord()
    {
        return {"AddrRecordSet_GetID()", "AddrRecordSet_GetValue(Name)", "AddrRecordSet_GetValue(Number)",
                "AddrRecordSet_MoveNext()"};
    }

private slots:
    void eachContactIsSignalledOnce()
    {
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        FakeSdk::addRecord(PB_MEM_SIM, {"Bruno", "2"});
        cacheFields(PB_MEM_SIM);
        AddrBookThread worker;
        const Receiver receiver(&worker);
        setRead(worker, PB_MEM_SIM, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.contacts.size(), 2);
        const Receiver::Contact second = receiver.contacts[1];
        QCOMPARE(second.type, int(PB_MEM_SIM));
        QCOMPARE(second.id, 2);
        QCOMPARE(second.values, QList<QString>({"Bruno", "2"}));
        QCOMPARE(second.group, 0);
        QCOMPARE(second.row, 1);
        QCOMPARE(second.columns, 2);
        QCOMPARE(AddrBookLogic::Instance()->recordCount(PB_MEM_SIM), 2);
        QCOMPARE(FakeSdk::log(),
                 QStringList({"BeginTransaction(0)", "BeginTransaction(0)", "GetAddrRecList(0)", "EndTransaction(0)",
                              "BeginTransaction(0)", "AddrRecordSet_MoveFirst()"}) +
                     oneSetRecord() + oneSetRecord() +
                     QStringList({"EndTransaction(0)", "AddrRecordSet_Release()", "EndTransaction(0)"}));
        for (const FakeSdk::Call& call : FakeSdk::calls())
            QCOMPARE(call.thread, static_cast<const void*>(&worker));
    }

    void aLongReadWaitsForTheEventLoopThatTakesIt()
    {
        addMany();
        AddrBookThread worker;
        AddrBookThreadAccess::setPatience(worker, 60000);
        Receiver receiver(&worker);
        int readWhenTaken = 0;
        receiver.onContact = [&readWhenTaken](int count) {
            if (count == 5000)
                readWhenTaken = FakeSdk::count("AddrRecordSet_GetID");
        };
        setRead(worker, PB_MEM_SIM, 0);
        startAndFillAQueue(worker);
        QTRY_COMPARE(receiver.contacts.size(), 11000);
        QCOMPARE(readWhenTaken, 5001); // and the last of them waits to be handed over
    }

    void aLongReadEndsWhereItWaits()
    {
        addMany();
        AddrBookThread worker;
        AddrBookThreadAccess::setPatience(worker, 60000);
        const Receiver receiver(&worker);
        setRead(worker, PB_MEM_SIM, 0);
        startAndFillAQueue(worker);
        worker.EndOperation();
        QCOMPARE(FakeSdk::count("AddrRecordSet_GetID"), 5001);
        QCOMPARE(FakeSdk::openTransactions(PB_MEM_SIM), 0);
    }

    void aLongReadWaitsOnceForALoopThatDoesNotCome()
    {
        addMany();
        AddrBookThread worker;
        AddrBookThreadAccess::setPatience(worker, 1);
        const Receiver receiver(&worker);
        // In the second block, when the first wait is over.
        FakeSdk::onCall("AddrRecordSet_MoveNext", 7000,
                        [&worker] { AddrBookThreadAccess::setPatience(worker, 3600000); });
        setRead(worker, PB_MEM_SIM, 0);
        startAndFillAQueue(worker);
        QVERIFY(worker.wait(60000));
        QCOMPARE(FakeSdk::count("AddrRecordSet_GetID"), 11000);
    }

    void aMemoryWithoutASetEndsTheReadAtOnce()
    {
        AddrBookThread worker;
        const Receiver receiver(&worker);
        setRead(worker, PB_MEM_LOCAL, 0);
        QVERIFY(runToEnd(worker));
        QVERIFY(receiver.contacts.isEmpty());
        QCOMPARE(FakeSdk::count("AddrRecordSet_MoveFirst"), 0);
        QCOMPARE(FakeSdk::openTransactions(PB_MEM_LOCAL), 0);
    }

    void withoutATableNothingIsRead()
    {
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        AddrBookThread worker;
        worker.SetOperation(ADDRBOOK_OP_READ, PB_MEM_SIM, {}, 0);
        worker.SetReadOperation(nullptr, 2);
        QVERIFY(runToEnd(worker));
        QCOMPARE(FakeSdk::totalCalls(), 0);
    }

    void aStopLeavesTheRowsThatCameBefore()
    {
        for (int i = 0; i < 10; ++i)
            FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        AddrBookLogic::Instance()->setRecordCount(PB_MEM_SIM, 41);
        AddrBookThread worker;
        const Receiver receiver(&worker);
        FakeSdk::onCall("AddrRecordSet_MoveNext", 3, [&worker] { worker.StopOperation(); });
        setRead(worker, PB_MEM_SIM, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.contacts.size(), 4);
        QCOMPARE(FakeSdk::openTransactions(PB_MEM_SIM), 0);
        QCOMPARE(AddrBookLogic::Instance()->recordCount(PB_MEM_SIM), 41);
    }

    void aGroupOfACardEndsAtOnceWithNothing()
    {
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        cacheFields(PB_MEM_SIM);
        AddrBookThread worker;
        const Receiver receiver(&worker);
        setRead(worker, PB_MEM_SIM, 3);
        QVERIFY(runToEnd(worker));
        QVERIFY(receiver.contacts.isEmpty());
        QCOMPARE(FakeSdk::log(), QStringList({"BeginTransaction(0)", "EndTransaction(0)"}));
    }

    void theMembersOfAGroupAreSignalledWithTheGroup()
    {
        const int anna = FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        const int bruno = FakeSdk::addRecord(PB_MEM_LOCAL, contact("Bruno"));
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, bruno);
        FakeSdk::join(group, anna);
        cacheFields(PB_MEM_LOCAL);
        AddrBookThread worker;
        const Receiver receiver(&worker);
        setRead(worker, PB_MEM_LOCAL, group);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.contacts.size(), 2);
        QCOMPARE(receiver.contacts[0].id, bruno);
        QCOMPARE(receiver.contacts[1].group, group);
        QCOMPARE(receiver.contacts[1].row, 1);
        QCOMPARE(receiver.contacts[1].columns, 6);
        QCOMPARE(AddrBookLogic::Instance()->recordCount(PB_MEM_LOCAL), 0);
        QStringList log = FakeSdk::log();
        log = log.filter(QRegularExpression("^(?!AddrRecord_GetValue)"));
        QCOMPARE(log, QStringList({"BeginTransaction(4)", "GetGroupList(4)", "BeginTransaction(4)",
                                   "AddrGroupSet_GetAddrInGroupByID(1)", "EndTransaction(4)", "BeginTransaction(4)",
                                   "GetAddrRecord(2, 4)", "AddrRecord_Release()", "GetAddrRecord(1, 4)",
                                   "AddrRecord_Release()", "EndTransaction(4)", "AddrGroupSet_Release()",
                                   "EndTransaction(4)"}));
    }

    void aVanishedMemberIsSignalledWithoutValues()
    {
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, 77);
        FakeSdk::join(group, FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna")));
        FakeSdk::setMissingRecordGivesNull(true);
        AddrBookThread worker;
        const Receiver receiver(&worker);
        setRead(worker, PB_MEM_LOCAL, group);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.contacts.size(), 2);
        QCOMPARE(receiver.contacts[0].id, 0);
        QVERIFY(receiver.contacts[0].values.isEmpty());
        QCOMPARE(receiver.contacts[0].columns, 6);
        QCOMPARE(receiver.contacts[1].id, 1);
    }

    void aStopInAGroupReleasesTheRecordInHand()
    {
        const int group = FakeSdk::addGroup("Friends");
        for (int i = 0; i < 5; ++i)
            FakeSdk::join(group, FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna")));
        AddrBookThread worker;
        const Receiver receiver(&worker);
        FakeSdk::onCall("GetAddrRecord", 2, [&worker] { worker.StopOperation(); });
        setRead(worker, PB_MEM_LOCAL, group);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.contacts.size(), 2);
        QCOMPARE(FakeSdk::openTransactions(PB_MEM_LOCAL), 0);
    }

    void aFailingFirstMoveBeginsInPlaceOfTheEnd()
    {
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        cacheFields(PB_MEM_SIM);
        FakeSdk::fail("AddrRecordSet_MoveFirst");
        AddrBookThread worker;
        const Receiver receiver(&worker);
        setRead(worker, PB_MEM_SIM, 0);
        QVERIFY(runToEnd(worker));
        QVERIFY(receiver.contacts.isEmpty());
        QCOMPARE(FakeSdk::names().mid(4), QStringList({"BeginTransaction", "AddrRecordSet_MoveFirst",
                                                       "BeginTransaction", "AddrRecordSet_Release", "EndTransaction"}));
        QCOMPARE(FakeSdk::openTransactions(PB_MEM_SIM), 2);
    }

    void whileShuttingDownNoContactIsSignalled()
    {
        const int group = FakeSdk::addGroup("Friends");
        for (int i = 0; i < 3; ++i)
            FakeSdk::join(group, FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna")));
        AddrBookThread worker;
        const Receiver receiver(&worker);
        FakeSdk::onCall("AddrRecordSet_GetID", 2, [] { FakeCore::setShuttingDown(true); });
        setRead(worker, PB_MEM_LOCAL, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.contacts.size(), 1);
        setRead(worker, PB_MEM_LOCAL, group);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.contacts.size(), 1);
        QCOMPARE(FakeSdk::count("GetAddrRecord"), 0);
    }

    void afterDisconnectSignalsNoRecordIsHandedOver()
    {
        for (int i = 0; i < 200; ++i)
            FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        std::unique_ptr<AddrBookThread> worker(new AddrBookThread);
        Receiver receiver(worker.get());
        FakeSdk::setDelay("AddrRecordSet_MoveNext", 1);
        setRead(*worker, PB_MEM_SIM, 0);
        worker->start(QThread::InheritPriority);
        QTRY_VERIFY(receiver.contacts.size() > 2);
        worker->DisconnectSignals();
        QCoreApplication::sendPostedEvents();
        const int handed = receiver.contacts.size();
        const int read = FakeSdk::count("AddrRecordSet_GetID");
        QTRY_VERIFY(FakeSdk::count("AddrRecordSet_GetID") > read + 2);
        worker->StopOperation();
        while (worker->isRunning())
            QThread::yieldCurrentThread();
        worker.reset();
        QCoreApplication::sendPostedEvents();
        QCOMPARE(receiver.contacts.size(), handed);
    }

    void aCopyWithoutRoomIsNotSignalled()
    {
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        FakeSdk::addRecord(PB_MEM_SIM, {"Bruno", "1"});
        cacheFields(PB_MEM_SIM);
        AddrBookThread worker;
        const Receiver receiver(&worker);
        setRead(worker, PB_MEM_SIM, 0);
        FailingNew::failNth(1);
        QVERIFY(runToEnd(worker));
        QVERIFY(FailingNew::hasFailed());
        QCOMPARE(receiver.contacts.size(), 1);
        QCOMPARE(receiver.contacts.first().row, 1);
    }

    void aLargeMemoryIsReadInOrder()
    {
        const int count = 20000;
        for (int i = 0; i < count; ++i)
            FakeSdk::addRecord(PB_MEM_LOCAL, contact(QString::number(i)));
        FakeSdk::setRecording(false);
        AddrBookThread worker;
        const Receiver receiver(&worker);
        setRead(worker, PB_MEM_LOCAL, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.contacts.size(), count);
        for (int i = 0; i < count; ++i) {
            QCOMPARE(receiver.contacts[i].row, i);
            QCOMPARE(receiver.contacts[i].values.first(), QString::number(i));
        }
    }
};

QTEST_GUILESS_MAIN(TestReads)
#include "tst_reads.moc"
