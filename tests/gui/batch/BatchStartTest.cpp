#include "../contacts/BatchFlows.h"
#include "BatchFixture.h"
#include "window/AddrBookBatch.h"

// How a batch begins.
class BatchStartTest : public WindowTest
{
    Q_OBJECT

private:
    static bool newIsOn(const WindowFixture& f) { return f.in().newContactEnabled(); }

private slots:
    void threadThatCannotBeStartedEndsTheBatchAtOnce_data()
    {
        QTest::addColumn<BatchFlow::Kind>("kind");
        for (const auto& flow : BatchFlow::all())
            QTest::newRow(flow.first) << flow.second;
    }
    void threadThatCannotBeStartedEndsTheBatchAtOnce()
    {
        QFETCH(BatchFlow::Kind, kind);
        WindowFixture f;
        const BatchFlow flow(kind, 3);
        flow.prepare(f);
        // Less than any system's least.
        f.in().worker().setStackSize(1);
        flow.start(f);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(flow.done(), 0);
        QStringList alerts = FakeCore::messageTexts();
        alerts.removeAll("IDS_FLEXIT_UI_DELETE_ITEM");
        QCOMPARE(alerts, flow.alert(0).isEmpty() ? QStringList() : QStringList(flow.alert(0)));
        // The next one finds its thread.
        f.in().worker().setStackSize(0);
        f.window()->addImportedRecords(PB_MEM_ME, Contacts::records(PB_MEM_ME, "New", 2), 0);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(FakeSdk::recordIds(1).size(), 2);
    }

    // Not even told of when the next batch comes.
    void batchBehindOneThatCouldNotBeStartedRuns()
    {
        WindowFixture f;
        f.build();
        f.in().worker().setStackSize(1);
        f.window()->addImportedRecords(PB_MEM_ME, Contacts::records(PB_MEM_ME, "First", 2), 0);
        f.in().worker().setStackSize(0);
        f.window()->addImportedRecords(PB_MEM_ME, Contacts::records(PB_MEM_ME, "Second", 3), 0);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(FakeSdk::recordIds(1).size(), 3);
        QCOMPARE(FakeCore::messageTexts(), QStringList({BatchFixture::imported(2, 0), BatchFixture::imported(3, 3)}));
    }

    // More on the card than there should be: nothing is free before the third has gone.
    void deleteBeginsWithTheStoresFigures()
    {
        WindowFixture f;
        Contacts::fill(0, "Name", 52);
        FakeSdk::setCapacity(0, 50);
        f.build();
        f.click(f.in().sim());
        f.selectRows({0, 1, 2, 3});
        QVERIFY(!newIsOn(f));
        QList<bool> on;
        for (int nth = 1; nth <= 4; ++nth)
            Contacts::atRecord("DelAddrRec", nth, [&] { on << newIsOn(f); });
        f.window()->OnButtonClickedDeleteContact();
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(on, QList<bool>({false, false, false, true}));
        QCOMPARE(f.in().simUsed(), 48);
    }

    void batchKnowsItselfByItsNumberAndCountsItsOwn()
    {
        FakeSdk::reset();
        AddrBookLogic::Instance();
        {
            AddrBookThread worker;
            AddrBookBatch batch(worker);
            QVERIFY(!batch.isRunning());
            AddrBookBatch::Order order;
            order.enOperation = ADDRBOOK_OP_IMPORT;
            order.enMemory = PB_MEM_SIM;
            order.lstRecords = Contacts::records(PB_MEM_SIM, "New", 2);
            batch.start(order, nullptr);
            QCOMPARE(batch.number(), 1);
            QVERIFY(batch.isRunningOn(PB_MEM_SIM));
            QVERIFY(!batch.isRunningOn(PB_MEM_LOCAL));
            QVERIFY(batch.isOrphaned());
            batch.count(true);
            batch.count(false);
            QCOMPARE(batch.total(), 2);
            QCOMPARE(batch.processed(), 2);
            QCOMPARE(batch.succeeded(), 1);
            // A cancel of its dialog is taken in once, and frees the dialog.
            batch.setDialog(AddrBookWaitingDlg::GetWaitingDlgInstance(nullptr));
            QVERIFY(!batch.isOrphaned());
            QVERIFY(!batch.isCancelled());
            batch.cancel();
            QVERIFY(batch.isCancelled());
            AddrBookWaitingDlg* next = AddrBookWaitingDlg::GetWaitingDlgInstance(nullptr);
            next->ShowAnimation("another", 3);
            QVERIFY(batch.isCancelled());
            QVERIFY(!batch.isOrphaned());
            AddrBookWaitingDlg::Destroy();
            batch.stop();
            QVERIFY(!worker.isRunning());
            batch.finish();
            QVERIFY(!batch.isRunning());
            QCOMPARE(batch.succeeded(), 1);
        }
        AddrBookLogic::Destroy();
    }
};

QTEST_MAIN(BatchStartTest)
#include "BatchStartTest.moc"
