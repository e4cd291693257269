#include "BatchFlows.h"

// What may happen while a batch has its first, a middle or its last record in hand: the batch goes on, or ends with
// that record, nothing hangs, and what the screen says is what the store holds.
class BatchEventsTest : public WindowTest
{
    Q_OBJECT

private:
    enum Event { DeviceOut, Language, Hide, Close, Cancel, CloseButton, ShutDown };
    static const int s_n = 7;

    static void happen(WindowFixture& f, Event event, bool& refused)
    {
        switch (event) {
        case DeviceOut:
            FakeSdk::setDevicePresent(false);
            f.window()->OnDeviceStatusChanged(false);
            break;
        case Language:
            FakeCore::setLanguage("de");
            f.window()->SetLanguage();
            break;
        case Hide:
            f.window()->hide();
            break;
        case Close:
            f.destroy();
            break;
        case Cancel:
            Contacts::cancelButton()->click();
            break;
        case CloseButton: {
            ABWaitingDlg* window = Contacts::waitingWindow();
            refused = !window->close();
            QTest::keyClick(window, Qt::Key_Escape);
            refused = refused && window->isVisible();
            break;
        }
        case ShutDown:
            break; // set on the worker's thread
        }
    }

    // The event comes with that record: it is in the queue in front of the record's result.
    static void arrange(WindowFixture& f, const BatchFlow& flow, int at, Event event, bool& happened, bool& refused)
    {
        FakeSdk::onCall(flow.call(), at, [&f, &happened, &refused, event] {
            if (event == ShutDown)
                FakeCore::setShuttingDown(true);
            QMetaObject::invokeMethod(
                qApp,
                [&f, &happened, &refused, event] {
                    happen(f, event, refused);
                    happened = true;
                },
                Qt::QueuedConnection);
        });
    }

    static void checkIdle(const WindowFixture& f)
    {
        QVERIFY(!f.in().worker().isRunning());
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_NONE);
        QVERIFY(f.in().waitingDialog().isNull());
    }

    // The alert, the tree and the table say what the store holds.
    static void checkCounts(const WindowFixture& f, const BatchFlow& flow, int done, bool gone)
    {
        QStringList alerts = FakeCore::messageTexts();
        alerts.removeAll("IDS_FLEXIT_UI_DELETE_ITEM");
        QCOMPARE(alerts, flow.alert(done).isEmpty() ? QStringList() : QStringList(flow.alert(done)));
        if (gone) {
            QVERIFY(f.in().sim() == nullptr);
            QCOMPARE(f.table()->rowCount(), FakeSdk::recordIds(4).size());
            return;
        }
        QCOMPARE(f.table()->rowCount(), flow.stored());
        QTreeWidgetItem* node = f.tree()->currentItem();
        QVERIFY2(node->text(0).contains(QString("(%1").arg(flow.stored())), qPrintable(node->text(0)));
    }

    // The next batch finds everything as it should be.
    static void checkNextBatch(WindowFixture& f)
    {
        f.window()->show();
        f.click(f.in().local());
        const int left = FakeSdk::recordIds(4).size();
        f.selectRows({});
        if (left > 0)
            f.selectRows({0});
        f.window()->OnButtonClickedDeleteContact();
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(FakeSdk::recordIds(4).size(), qMax(left - 1, 0));
    }

private slots:
    void event_data()
    {
        QTest::addColumn<BatchFlow::Kind>("kind");
        QTest::addColumn<int>("event");
        QTest::addColumn<int>("at");
        const char* events[] = {"device pulled out", "language changed",     "window hidden", "window deleted",
                                "Cancel pressed",    "close button pressed", "shutting down"};
        for (const auto& flow : BatchFlow::all()) {
            for (int event = DeviceOut; event <= ShutDown; ++event) {
                for (int at : {1, 4, s_n})
                    QTest::newRow(qPrintable(QString("%1, %2 at record %3").arg(flow.first, events[event]).arg(at)))
                        << flow.second << event << at;
            }
        }
    }
    void event()
    {
        QFETCH(BatchFlow::Kind, kind);
        QFETCH(int, event);
        QFETCH(int, at);
        const BatchFlow flow(kind, s_n);
        WindowFixture f;
        flow.prepare(f);
        bool happened = false;
        bool refused = false;
        arrange(f, flow, at, Event(event), happened, refused);
        flow.start(f);
        QVERIFY(f.in().threadBusy());
        QTRY_VERIFY_WITH_TIMEOUT(happened, 20000);

        if (event == Close) {
            QVERIFY(f.window() == nullptr);
            QCOMPARE(FakeCore::runningWorkers(), 0);
            QCOMPARE(flow.done(), at);
            return;
        }
        QVERIFY(Contacts::waitBatch(f));
        checkIdle(f);
        const int done = flow.done();
        const bool gone = event == DeviceOut && flow.isOnCard();
        if (gone) {
            // The record in hand may still have met the card.
            QVERIFY2(done == at || done == at - 1, qPrintable(QString::number(done)));
        } else {
            QCOMPARE(done, event == Cancel || event == ShutDown ? at : s_n);
        }
        if (event == CloseButton)
            QVERIFY(refused);

        if (event == ShutDown) {
            FakeCore::setShuttingDown(false);
            return;
        }
        checkCounts(f, flow, done, gone);
        checkNextBatch(f);
    }
};

QTEST_MAIN(BatchEventsTest)
#include "BatchEventsTest.moc"
