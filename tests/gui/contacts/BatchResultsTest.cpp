#include <QLabel>
#include <QProgressBar>
#include <QRegularExpression>

#include "BatchFlows.h"

// What the window makes of each result and of the end of a batch.
class BatchResultsTest : public WindowTest
{
    Q_OBJECT

private:
    static AddrBookRecord record(int id, const QList<QString>& values)
    {
        AddrBookRecord record;
        record.iID = id;
        record.lstValues = values;
        return record;
    }

private slots:
    // ---- Progress and cancel ---------------------------------------------------------------------------------------

    void cancelAtTheThirdResultHandlesExactlyThree()
    {
        WindowFixture f;
        const BatchFlow flow(BatchFlow::DeleteLocal, 10);
        flow.prepare(f);
        FakeCore::clearNotices();
        Contacts::atRecord("DelAddrRec", 3, [] { Contacts::cancelButton()->click(); });
        flow.start(f);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(FakeSdk::count("DelAddrRec"), 3);
        QCOMPARE(Contacts::pushes().size(), 3);
        QCOMPARE(f.table()->rowCount(), 7);
        // The rest of the list is gone: a new start finds nothing to do.
        f.in().worker().start();
        QVERIFY(f.in().worker().wait(10000));
        QCOMPARE(FakeSdk::count("DelAddrRec"), 3);
        QCoreApplication::processEvents();
    }

    void cancelClosesTheProgressWindowAtOnceAndForgetsItAtTheResult()
    {
        WindowFixture f;
        const BatchFlow flow(BatchFlow::DeleteLocal, 3);
        flow.prepare(f);
        bool hidden = false;
        bool kept = false;
        Contacts::atRecord("DelAddrRec", 1, [&] {
            Contacts::cancelButton()->click();
            hidden = !Contacts::waitingWindow()->isVisible();
            kept = !f.in().waitingDialog().isNull();
        });
        flow.start(f);
        QTRY_VERIFY(hidden);
        QVERIFY(kept);
        QTRY_VERIFY(f.in().waitingDialog().isNull());
        QVERIFY(Contacts::waitBatch(f));
    }

    void lastResultClosesTheProgressWindowAndCannotBeCancelled()
    {
        WindowFixture f;
        const BatchFlow flow(BatchFlow::DeleteCard, 1);
        flow.prepare(f);
        flow.start(f);
        const QPointer<AddrBookWaitingDlg> dialog = f.in().waitingDialog();
        QVERIFY(!dialog.isNull());
        QVERIFY(Contacts::waitingWindow()->isVisible());
        bool visible = true;
        bool enabled = true;
        // At the one result's notification the progress has been told already.
        FakeSdk::onCall("GetGroupList", 1, [&] {
            visible = Contacts::waitingWindow()->isVisible();
            enabled = Contacts::cancelButton()->isEnabled();
        });
        QVERIFY(Contacts::waitBatch(f));
        QVERIFY(!visible);
        QVERIFY(!enabled);
        QVERIFY(dialog.isNull());
    }

    void counterRunsAStepAheadOfTheBar()
    {
        WindowFixture f;
        const BatchFlow flow(BatchFlow::ImportCard, 3);
        flow.prepare(f);
        QStringList seen;
        for (int nth = 1; nth <= 3; ++nth) {
            Contacts::atRecord("AddAddrRec", nth, [&] {
                for (QLabel* label : Contacts::waitingWindow()->findChildren<QLabel*>()) {
                    if (label->text().contains('/'))
                        seen << QString("%1 %2")
                                    .arg(label->text())
                                    .arg(Contacts::waitingWindow()->findChild<QProgressBar*>()->value());
                }
            });
        }
        flow.start(f);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(seen, QStringList({"0/3 0", "1/3 0", "2/3 1"}));
    }

    void resultWithoutAWaitingDialogEndsTheBatch_data()
    {
        QTest::addColumn<BatchFlow::Kind>("kind");
        QTest::addColumn<int>("at");
        for (const auto& flow : BatchFlow::all()) {
            for (int at : {1, 3, 5})
                QTest::newRow(qPrintable(QString("%1, at %2").arg(flow.first).arg(at))) << flow.second << at;
        }
    }
    void resultWithoutAWaitingDialogEndsTheBatch()
    {
        QFETCH(BatchFlow::Kind, kind);
        QFETCH(int, at);
        WindowFixture f;
        const BatchFlow flow(kind, 5);
        flow.prepare(f);
        FakeCore::clearNotices();
        Contacts::atRecord(flow.call(), at, [] { AddrBookWaitingDlg::Destroy(); });
        flow.start(f);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(flow.done(), at);
        QCOMPARE(f.table()->rowCount(), flow.stored());
        if (flow.adds())
            QCOMPARE(FakeCore::messageTexts(), QStringList(flow.alert(at - 1)));
    }

    void emptyResultIsPassedOver()
    {
        WindowFixture f;
        f.build();
        f.window()->OnAddResult(true, 0);
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(Contacts::pushes().isEmpty());
    }

    // ---- Records ---------------------------------------------------------------------------------------------------

    void recordThatHasGoneIsTriedAndTheNextOneToo()
    {
        WindowFixture f;
        const BatchFlow flow(BatchFlow::DeleteLocal, 4);
        flow.prepare(f);
        FakeCore::clearNotices();
        FakeSdk::removeRecord(4, 2);
        flow.start(f);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(FakeSdk::count("DelAddrRec"), 4);
        QVERIFY(FakeSdk::recordIds(4).isEmpty());
        QStringList pushes = Contacts::pushes();
        pushes.sort();
        QCOMPARE(pushes, QStringList({"290 4 1001", "290 4 1003", "290 4 1004"}));
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_FLEXIT_UI_DELETE_ITEM"));
    }

    void recordThatCannotBeDeletedIsShownAgainWithoutAWord()
    {
        WindowFixture f;
        const BatchFlow flow(BatchFlow::DeleteCard, 3);
        flow.prepare(f);
        FakeSdk::fail("DelAddrRec", 2);
        flow.start(f);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(f.table()->rowCount(), 1);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_FLEXIT_UI_DELETE_ITEM"));
    }

    void removalThatFailsIsToldToThePickerAllTheSame()
    {
        WindowFixture f;
        const BatchFlow flow(BatchFlow::RemoveFromGroup, 3);
        flow.prepare(f);
        QSignalSpy removed(&f.in().worker(), SIGNAL(removeContactFromGroup(int, int, int)));
        QSignalSpy results(&f.in().worker(), SIGNAL(delResult(bool, int)));
        FakeSdk::fail("DelAddrFromGroup", 2);
        flow.start(f);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(removed.count(), 3);
        QCOMPARE(results.count(), 3);
        QVERIFY(!results.at(1).first().toBool());
        QCOMPARE(f.table()->rowCount(), 1);
    }

    void importJoinsEachRecordToItsGroupAlsoToNone_data()
    {
        QTest::addColumn<bool>("group");
        QTest::newRow("a group") << true;
        QTest::newRow("no group") << false;
    }
    void importJoinsEachRecordToItsGroupAlsoToNone()
    {
        QFETCH(bool, group);
        WindowFixture f;
        const int friends = FakeSdk::addGroup("Friends");
        f.build();
        FakeSdk::clearCalls();
        f.window()->addImportedRecords(PB_MEM_LOCAL, Contacts::records(PB_MEM_LOCAL, "New", 3), group ? friends : 0);
        QVERIFY(Contacts::waitBatch(f));
        const QStringList log = FakeSdk::log().filter("AddAddrToGroup");
        const int id = group ? friends : 0;
        QCOMPARE(log,
                 QStringList({QString("AddAddrToGroup(%1, 1, 4)").arg(id), QString("AddAddrToGroup(%1, 2, 4)").arg(id),
                              QString("AddAddrToGroup(%1, 3, 4)").arg(id)}));
        const QStringList worker = FakeSdk::names().filter(QRegularExpression("^(AddAddrRec|AddAddrToGroup)$"));
        QCOMPARE(worker.mid(0, 2), QStringList({"AddAddrRec", "AddAddrToGroup"}));
    }

    void nothingToImportStartsNothing()
    {
        WindowFixture f;
        f.build();
        f.window()->addImportedRecords(PB_MEM_LOCAL, QList<AddrBookRecord>(), 0);
        QVERIFY(!f.in().threadBusy());
        QVERIFY(Contacts::waitingWindow() == nullptr);
    }

    void batchCommitsEvery200Records()
    {
        WindowFixture f;
        f.build();
        QList<int> commitsAt;
        FakeSdk::onCall("EndTransaction", 0, [&] {
            if (QThread::currentThread() != qApp->thread())
                commitsAt << FakeSdk::recordIds(0).size();
        });
        f.window()->addImportedRecords(PB_MEM_SIM, Contacts::records(PB_MEM_SIM, "New", 201), 0);
        QVERIFY(QTest::qWaitFor([&f] { return !f.in().threadBusy(); }, 60000));
        // At the opening, behind the 200th, and at the close.
        QCOMPARE(commitsAt.mid(0, 3), QList<int>({0, 200, 201}));
        QVERIFY(f.waitRead());
    }

    void nameTooLongForTheCardIsCutInTheStoreAndNotInTheResult()
    {
        WindowFixture f;
        f.build();
        const QString name = "A name that is far too long for a card";
        // Connected directly, in the worker's thread, in front of the window's queued slot.
        QString told;
        const auto look = QObject::connect(
            &f.in().worker(), &AddrBookThread::addResult, &f.in().worker(),
            [&told](bool, qlonglong pointer) { told = carrierToPointer<AddrBookRecord>(pointer)->lstValues.first(); },
            Qt::DirectConnection);
        f.window()->addImportedRecords(PB_MEM_SIM, {record(0, {name, "1"})}, 0);
        QVERIFY(Contacts::waitBatch(f));
        QObject::disconnect(look);
        QCOMPARE(FakeSdk::record(0, 1).first(), name.left(14));
        QCOMPARE(told, name);
    }

    // ---- Announcements ---------------------------------------------------------------------------------------------

    void addedRecordsAreAnnouncedUnderTheirNewIdentifier()
    {
        WindowFixture f;
        f.build();
        FakeCore::clearNotices();
        f.window()->addImportedRecords(
            PB_MEM_LOCAL,
            {record(99, {"Anna", "111", "222", "", "x@y", "z"}), record(98, {"Bert", "", "", "", "", ""})}, 0);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(Contacts::pushes(), QStringList({"288 4 111", "288 4 222"}));
        QVERIFY(f.in().notifyRecords().isEmpty());
    }

    void failedRecordsAreNotAnnounced()
    {
        WindowFixture f;
        f.build();
        FakeCore::clearNotices();
        FakeSdk::fail("AddAddrRec", 1);
        f.window()->addImportedRecords(PB_MEM_SIM, Contacts::records(PB_MEM_SIM, "New", 2), 0);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(Contacts::pushes(), QStringList("288 0 1002"));
    }

    void announcementsKeepTheNumbersAlone()
    {
        WindowFixture f;
        f.build();
        QList<AddrBookRecord> records;
        records << record(7, {"Anna", "111", "", "333", "a@b", "666"});
        records << record(8, {"Bert"});
        records << record(9, {});
        f.window()->copyContactsForPushNotify(records, PB_MEM_LOCAL);
        QCOMPARE(f.in().notifyRecords().size(), 3);
        QCOMPARE(f.in().notifyRecords().at(0).iID, 7);
        QCOMPARE(f.in().notifyRecords().at(0).lstValues, QList<QString>({"111", "333"}));
        QVERIFY(f.in().notifyRecords().at(1).lstValues.isEmpty());
        QCOMPARE(f.in().notifyRecords().at(2).iID, 9);
        // Each call begins anew, and a card has one number.
        f.window()->copyContactsForPushNotify({record(1, {"Dora", "666", "777"})}, PB_MEM_SIM);
        QCOMPARE(f.in().notifyRecords().size(), 1);
        QCOMPARE(f.in().notifyRecords().at(0).lstValues, QList<QString>({"666"}));
    }

    // ---- A full memory ---------------------------------------------------------------------------------------------

    void fullMemoryStopsTheBatchWithItsOwnMessage_data()
    {
        QTest::addColumn<BatchFlow::Kind>("kind");
        QTest::addColumn<int>("places");
        QTest::addColumn<QString>("text");
        QTest::newRow("import") << BatchFlow::ImportCard << 2 << "IDS_IMPORT_DEVICEFULL2";
        QTest::newRow("copy") << BatchFlow::CopyCard << 1 << "IDS_MOVE_REC_DEV_FULL1";
        QTest::newRow("import that just fits") << BatchFlow::ImportCard << 3 << "IDS_IMPORT_DEVICEFULL3";
        QTest::newRow("copy that just fits") << BatchFlow::CopyCard << 3 << "IDS_MOVE_REC_DEV_FULL3";
    }
    void fullMemoryStopsTheBatchWithItsOwnMessage()
    {
        QFETCH(BatchFlow::Kind, kind);
        QFETCH(int, places);
        QFETCH(QString, text);
        WindowFixture f;
        const BatchFlow flow(kind, 3);
        flow.prepare(f);
        FakeSdk::setCapacity(0, 2 + places);
        bool closed = false;
        FakeCore::onMessage([&](const FakeCore::Message&) { closed = !Contacts::waitingWindow()->isVisible(); });
        flow.start(f);
        QVERIFY(Contacts::waitBatch(f));
        FakeCore::onMessage(nullptr);
        QVERIFY(closed);
        QCOMPARE(flow.done(), places);
        QCOMPARE(FakeSdk::count("AddAddrRec"), places);
        // No other message follows.
        QCOMPARE(FakeCore::messages().size(), 1);
        const FakeCore::Message message = FakeCore::messages().first();
        QCOMPARE(message.text, text);
        QCOMPARE(message.icon, QMessageBox::Information);
        QCOMPARE(message.caption, QString("IDS_PROMPT_CAPTION"));
        QCOMPARE(message.buttons, QStringList("IDS_OK"));
        QVERIFY(!f.in().newContactEnabled());
    }

    void windowThatGoesDuringAMessageIsNotTouchedAgain_data()
    {
        QTest::addColumn<BatchFlow::Kind>("kind");
        QTest::addColumn<int>("capacity");
        QTest::newRow("full memory, import") << BatchFlow::ImportCard << 3;
        QTest::newRow("full memory, copy") << BatchFlow::CopyCard << 3;
        QTest::newRow("end of an import") << BatchFlow::ImportCard << 100;
        QTest::newRow("end of a copy") << BatchFlow::CopyCard << 100;
    }
    void windowThatGoesDuringAMessageIsNotTouchedAgain()
    {
        QFETCH(BatchFlow::Kind, kind);
        QFETCH(int, capacity);
        WindowFixture f;
        const BatchFlow flow(kind, 3);
        flow.prepare(f);
        FakeSdk::setCapacity(0, capacity);
        FakeCore::onMessage([&f](const FakeCore::Message&) { f.destroy(); });
        flow.start(f);
        QTRY_VERIFY(f.window() == nullptr);
        FakeCore::onMessage(nullptr);
        QCOMPARE(flow.done(), capacity == 3 ? 1 : 3);
    }

    void shutdownDuringTheFullMemorysMessageEndsTheWorker()
    {
        WindowFixture f;
        const BatchFlow flow(BatchFlow::ImportCard, 3);
        flow.prepare(f);
        FakeSdk::setCapacity(0, 3);
        bool ended = false;
        FakeCore::onMessage([&](const FakeCore::Message&) {
            FakeCore::setShuttingDown(true);
            ended = f.in().worker().wait(10000);
        });
        flow.start(f);
        QVERIFY(Contacts::waitBatch(f));
        FakeCore::onMessage(nullptr);
        QVERIFY(ended);
        QCOMPARE(flow.done(), 1);
        FakeCore::setShuttingDown(false);
    }

    // ---- The end ---------------------------------------------------------------------------------------------------

    void endOfACopyNamesTotalAndSuccess()
    {
        WindowFixture f;
        const BatchFlow flow(BatchFlow::CopyCard, 4);
        flow.prepare(f);
        FakeSdk::fail("AddAddrRec", 2);
        flow.start(f);
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_COPY);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(FakeCore::messages().size(), 1);
        const FakeCore::Message message = FakeCore::messages().first();
        QCOMPARE(message.text, QString("IDS_COPY_COMPLETE IDS_TOTAL_COUNT4IDS_SUCCESS_COUNT3"));
        QCOMPARE(message.icon, QMessageBox::Information);
        QCOMPARE(message.caption, QString("IDS_PROMPT_CAPTION"));
        QCOMPARE(message.buttons, QStringList("IDS_OK"));
        QCOMPARE(message.windowFlags, Qt::WindowFlags(Qt::WindowCloseButtonHint));
        QCOMPARE(message.parent, static_cast<QWidget*>(f.window()));
    }

    void endOfACopyInsideThePcHasNoMessage_data()
    {
        QTest::addColumn<int>("source");
        QTest::addColumn<int>("target");
        QTest::addColumn<bool>("told");
        QTest::newRow("PC to PC") << 4 << 4 << false;
        QTest::newRow("card to PC") << 0 << 4 << true;
        QTest::newRow("device to PC") << 1 << 4 << true;
        QTest::newRow("PC to card") << 4 << 0 << true;
        QTest::newRow("no memory to PC") << 8 << 4 << false;
        QTest::newRow("card to device") << 0 << 1 << true;
    }
    void endOfACopyInsideThePcHasNoMessage()
    {
        QFETCH(int, source);
        QFETCH(int, target);
        QFETCH(bool, told);
        WindowFixture f;
        f.build();
        f.in().dragSource() = _ORVA_EN_PHONEBOOK_MEMORY(source);
        f.in().dropMemory() = _ORVA_EN_PHONEBOOK_MEMORY(target);
        f.window()->showCopyCompletedAlert(5, 3);
        // Without an operation the message has no beginning.
        QCOMPARE(FakeCore::messageTexts(), told ? QStringList(" IDS_TOTAL_COUNT5IDS_SUCCESS_COUNT3") : QStringList());
    }

    void endTakesMemoryGroupAndDragSourceFromTheTree()
    {
        WindowFixture f;
        const int friends = FakeSdk::addGroup("Friends");
        f.build();
        f.click(f.node("Friends"));
        f.in().dragSource() = PB_MEM_ME;
        f.window()->addImportedRecords(PB_MEM_SIM, Contacts::records(PB_MEM_SIM, "New", 2), 0);
        QCOMPARE(f.in().memory(), PB_MEM_SIM);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(f.in().memory(), PB_MEM_LOCAL);
        QCOMPARE(f.in().group(), friends);
        QCOMPARE(f.in().dragSource(), PB_MEM_LOCAL);
        QVERIFY(f.in().sim()->text(0).contains("(2/"));
    }

    void endWithoutACurrentNodeReloadsNothingAndKnowsNoSource()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        AddrBookTableWidget* table = f.table();
        f.window()->addImportedRecords(PB_MEM_LOCAL, Contacts::records(PB_MEM_LOCAL, "New", 1), 0);
        {
            const QSignalBlocker quiet(f.tree());
            f.tree()->setCurrentItem(nullptr);
        }
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(f.table(), table);
        QCOMPARE(f.in().dragSource(), PB_MEM_NONE);
        QCOMPARE(FakeSdk::recordIds(4).size(), 4);
    }

    void moveResultHasNoReceiver()
    {
        WindowFixture f;
        f.build();
        QCOMPARE(f.window()->metaObject()->indexOfSlot("OnMoveResult(bool,qlonglong)"), -1);
        QCOMPARE(f.window()->metaObject()->indexOfSlot("OnMoveResult(bool,int)"), -1);
    }
};

QTEST_MAIN(BatchResultsTest)
#include "BatchResultsTest.moc"
