#include "BatchFlows.h"

// Each SDK call failing, and each giving nothing, at each record of each batch: the batch goes on, nothing hangs or
// leaks, and the counts say what happened.
class BatchFailureTest : public WindowTest
{
    Q_OBJECT

private:
    static const int s_n = 3;

    static void addFlows()
    {
        QTest::addColumn<BatchFlow::Kind>("kind");
        for (const auto& flow : BatchFlow::all())
            QTest::newRow(flow.first) << flow.second;
    }

    // Runs the flow with the kth call failing. False if it has fewer calls.
    static bool run(const BatchFlow& flow, int k, long code)
    {
        WindowFixture f;
        flow.prepare(f);
        FakeSdk::clearCalls();
        FakeSdk::failCall(k, code);
        flow.start(f);
        if (!Contacts::waitBatch(f))
            qFatal("call %d: the batch does not end", k);
        const QByteArray name = FakeSdk::failedCall();
        FakeSdk::clearFailures();
        const auto verify = [&](bool ok, const char* what) {
            if (!ok)
                qFatal("%s: %s (call %d)", name.constData(), what, k);
        };
        verify(!f.in().worker().isRunning(), "worker runs");
        verify(f.in().waitingDialog().isNull(), "waiting dialog is left");
        verify(f.in().operation() == ADDRBOOK_OP_NONE, "operation is left");
        // One failing call costs one record at most.
        const int done = flow.done();
        verify(done >= s_n - 1, "more than one record lost");
        QStringList alerts = FakeCore::messageTexts();
        alerts.removeAll("IDS_FLEXIT_UI_DELETE_ITEM");
        if (flow.adds()) {
            verify(alerts.size() == 1, "no alert");
            verify(alerts.first() == flow.alert(s_n) || alerts.first() == flow.alert(s_n - 1), "wrong count");
            verify(alerts.first() == flow.alert(done), "count does not tell the store");
        } else {
            verify(alerts.isEmpty(), "alert");
        }
        // Everything works again at once.
        QTreeWidgetItem* node = f.tree()->currentItem();
        f.in().current() = nullptr;
        f.window()->OnTreeClicked(node);
        verify(f.waitRead(), "no read");
        verify(f.table()->rowCount() == flow.stored(), "table does not tell the store");
        f.destroy();
        verify(FakeSdk::leaks().isEmpty(), qPrintable(FakeSdk::leaks()));
        verify(FakeCore::runningWorkers() == 0, "worker left");
        return !name.isEmpty();
    }

private slots:
    void eachCallFailsOnce_data() { addFlows(); }
    void eachCallFailsOnce()
    {
        QFETCH(BatchFlow::Kind, kind);
        int k = 1;
        while (run(BatchFlow(kind, s_n), k, ORVA_E_STORE) && k < 2000)
            ++k;
        QVERIFY2(k > 20 && k < 2000, qPrintable(QString::number(k)));
    }

    void eachCallOfTheWorkerFailsAtEachRecord_data()
    {
        QTest::addColumn<BatchFlow::Kind>("kind");
        QTest::addColumn<QByteArray>("name");
        const QList<QPair<BatchFlow::Kind, QList<QByteArray>>> calls = {
            {BatchFlow::DeleteCard, {"DelAddrRec", "BeginTransaction", "EndTransaction"}},
            {BatchFlow::RemoveFromGroup, {"DelAddrFromGroup"}},
            {BatchFlow::ImportGroup, {"CreateAddrRecord", "AddrRecord_SetValue", "AddAddrRec", "AddAddrToGroup"}},
            {BatchFlow::CopyCard, {"CreateAddrRecord", "AddrRecord_SetValue", "AddAddrRec", "AddrRecord_Release"}}};
        for (const auto& flow : calls) {
            for (const QByteArray& name : flow.second)
                QTest::newRow(qPrintable(QString("%1 %2").arg(flow.first).arg(QString(name)))) << flow.first << name;
        }
    }
    void eachCallOfTheWorkerFailsAtEachRecord()
    {
        QFETCH(BatchFlow::Kind, kind);
        QFETCH(QByteArray, name);
        for (int at = 1; at <= s_n; ++at) {
            WindowFixture f;
            const BatchFlow flow(kind, s_n);
            flow.prepare(f);
            FakeSdk::fail(name, at);
            flow.start(f);
            QVERIFY(Contacts::waitBatch(f));
            QCOMPARE(FakeSdk::failedCall(), name);
            const bool costs = name != "BeginTransaction" && name != "EndTransaction" && name != "AddrRecord_Release";
            QCOMPARE(flow.done(), costs ? s_n - 1 : s_n);
        }
    }

    void allFailingTheBatchStillEnds_data() { addFlows(); }
    void allFailingTheBatchStillEnds()
    {
        QFETCH(BatchFlow::Kind, kind);
        WindowFixture f;
        const BatchFlow flow(kind, s_n);
        flow.prepare(f);
        FakeSdk::failAlways(flow.call());
        flow.start(f);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(flow.done(), 0);
        QCOMPARE(FakeSdk::count(flow.call()) >= s_n, true);
        if (flow.adds())
            QCOMPARE(FakeCore::messageTexts().last(), flow.alert(0));
        QCOMPARE(f.table()->rowCount(), flow.stored());
    }

    void contactWhoseGroupFailsStaysInTheMemoryAndCountsAsFailed()
    {
        WindowFixture f;
        const BatchFlow flow(BatchFlow::ImportGroup, s_n);
        flow.prepare(f);
        FakeSdk::fail("AddAddrToGroup", 2);
        flow.start(f);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(FakeSdk::recordIds(4).size(), 5);
        QCOMPARE(flow.done(), 2);
        QCOMPARE(FakeCore::messageTexts(), QStringList(flow.alert(2)));
    }
};

QTEST_MAIN(BatchFailureTest)
#include "BatchFailureTest.moc"
