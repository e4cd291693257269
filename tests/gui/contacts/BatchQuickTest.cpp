#include "BatchFlows.h"

// A batch started in the moment in which the one before has been cancelled and still has a record in hand.
class BatchQuickTest : public WindowTest
{
    Q_OBJECT

private slots:
    void secondBatchWaitsForTheCancelledOne_data()
    {
        QTest::addColumn<BatchFlow::Kind>("first");
        QTest::addColumn<int>("at");
        for (const auto& flow : BatchFlow::all()) {
            for (int at : {1, 3, 5})
                QTest::newRow(qPrintable(QString("%1, at %2").arg(flow.first).arg(at))) << flow.second << at;
        }
    }
    void secondBatchWaitsForTheCancelledOne()
    {
        QFETCH(BatchFlow::Kind, first);
        QFETCH(int, at);
        const BatchFlow flow(first, 5);
        WindowFixture f;
        flow.prepare(f);
        bool started = false;
        // Whatever the first batch was, the second one adds four records to the PC.
        Contacts::atRecord(flow.call(), at, [&] {
            Contacts::cancelButton()->click();
            f.window()->addImportedRecords(PB_MEM_LOCAL, Contacts::records(PB_MEM_LOCAL, "Second", 4), 0);
            QVERIFY(f.in().threadBusy());
            QVERIFY(Contacts::waitingWindow() != nullptr && Contacts::waitingWindow()->isVisible());
            started = true;
        });
        const int local = FakeSdk::recordIds(4).size();
        flow.start(f);
        QTRY_VERIFY(started);
        QVERIFY(Contacts::waitBatch(f));
        if (first != BatchFlow::DeleteLocal)
            QCOMPARE(flow.done(), at);
        int expected = local + 4;
        if (first == BatchFlow::DeleteLocal)
            expected -= at;
        else if (first == BatchFlow::ImportGroup)
            expected += at;
        QCOMPARE(FakeSdk::recordIds(4).size(), expected);
        // Each batch has told its own end.
        QStringList alerts = FakeCore::messageTexts();
        alerts.removeAll("IDS_FLEXIT_UI_DELETE_ITEM");
        QStringList told;
        if (!flow.alert(at).isEmpty())
            told << flow.alert(at);
        told << "IDS_IMPORT_TOTAL_NUMBER4IDS_IMPORT_IMPORTED_NUMBER4";
        QCOMPARE(alerts, told);
    }

    // Again and again, to meet the moment in which the thread is about to end.
    void endOfTheFirstNeverReachesTheSecond()
    {
        WindowFixture f;
        Contacts::fill(4, "Name", 4);
        f.build();
        FakeSdk::setRecording(false);
        for (int round = 0; round < 150; ++round) {
            FakeCore::clearMessages();
            const int before = FakeSdk::recordIds(4).size();
            f.window()->addImportedRecords(PB_MEM_LOCAL, Contacts::records(PB_MEM_LOCAL, "First", 2), 0);
            // The last result has been told when the second batch comes, or not.
            const int told = round % 3;
            QVERIFY(QTest::qWaitFor([&] { return FakeSdk::recordIds(4).size() >= before + told; }, 10000));
            if (round % 2 == 0)
                QTest::qSleep(1);
            f.window()->addImportedRecords(PB_MEM_LOCAL, Contacts::records(PB_MEM_LOCAL, "Second", 2), 0);
            QVERIFY(Contacts::waitBatch(f));
            const QStringList alerts = FakeCore::messageTexts();
            QVERIFY2(alerts.size() == 2, qPrintable(alerts.join("; ")));
            QCOMPARE(alerts.last(), QString("IDS_IMPORT_TOTAL_NUMBER2IDS_IMPORT_IMPORTED_NUMBER2"));
            const int added = FakeSdk::recordIds(4).size() - before;
            QVERIFY2(added >= 2 && added <= 4, qPrintable(QString::number(added)));
            for (int id : FakeSdk::recordIds(4))
                if (id > 4)
                    FakeSdk::removeRecord(4, id);
        }
    }

    void secondDeleteKeepsItsOwnSelection()
    {
        for (int round = 0; round < 20; ++round) {
            WindowFixture f;
            Contacts::fill(4, "Name", 9);
            f.build();
            Contacts::selectRange(f, 0, 3);
            bool started = false;
            Contacts::atRecord("DelAddrRec", 2, [&] {
                Contacts::cancelButton()->click();
                Contacts::selectRange(f, 6, 7);
                f.window()->OnButtonClickedDeleteContact();
                started = true;
            });
            f.window()->OnButtonClickedDeleteContact();
            QTRY_VERIFY(started);
            QVERIFY(Contacts::waitBatch(f));
            QCOMPARE(FakeSdk::recordIds(4), QList<int>({3, 4, 5, 6, 9}));
            QCOMPARE(f.column(0), QStringList({"Name 3", "Name 4", "Name 5", "Name 6", "Name 9"}));
        }
    }

    void secondBatchKeepsItsMemoryWhenTheEndOfTheFirstMovesTheTree()
    {
        WindowFixture f;
        Contacts::fill(0, "Card", 3);
        Contacts::fill(1, "Device", 3);
        f.build();
        f.click(f.in().device());
        bool started = false;
        // The import's end shows its message; meanwhile the tree goes to another memory.
        FakeCore::onMessage([&f](const FakeCore::Message& message) {
            if (message.text.startsWith("IDS_IMPORT_TOTAL"))
                f.window()->OnTreeClicked(f.in().sim());
        });
        Contacts::atRecord("AddAddrRec", 1, [&] {
            Contacts::cancelButton()->click();
            f.selectRows({0, 1});
            f.window()->OnButtonClickedDeleteContact();
            started = true;
        });
        f.window()->addImportedRecords(PB_MEM_ME, Contacts::records(PB_MEM_ME, "New", 4), 0);
        QTRY_VERIFY(started);
        QVERIFY(Contacts::waitBatch(f));
        FakeCore::onMessage(nullptr);
        QCOMPARE(FakeSdk::recordIds(0).size(), 3);
        QCOMPARE(FakeSdk::recordIds(1), QList<int>({3, 4}));
    }

    void windowThatGoesWhileTheFirstTellsItsEndIsNotTouchedAgain()
    {
        WindowFixture f;
        Contacts::fill(4, "Name", 3);
        f.build();
        bool started = false;
        FakeCore::onMessage([&f](const FakeCore::Message& message) {
            if (message.text.startsWith("IDS_IMPORT_TOTAL"))
                f.destroy();
        });
        Contacts::atRecord("AddAddrRec", 1, [&] {
            Contacts::cancelButton()->click();
            f.selectRows({0, 1});
            f.window()->OnButtonClickedDeleteContact();
            started = true;
        });
        f.window()->addImportedRecords(PB_MEM_LOCAL, Contacts::records(PB_MEM_LOCAL, "New", 4), 0);
        QTRY_VERIFY(started);
        FakeCore::onMessage(nullptr);
        QVERIFY(f.window() == nullptr);
        QCOMPARE(FakeSdk::recordIds(4).size(), 4);
    }
};

QTEST_MAIN(BatchQuickTest)
#include "BatchQuickTest.moc"
