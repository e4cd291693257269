#include <atomic>

#include "CopyFixture.h"

// A copy between memories from its drop to its final message.
class CopyRunTest : public WindowTest
{
    Q_OBJECT

private:
    // Two contacts of three numbers each, and four of one number each.
    static void fillLocal()
    {
        FakeSdk::addRecord(4, {"Anna", "111", "112", "113"});
        FakeSdk::addRecord(4, {"Bert", "221", "222", "223"});
        for (int i = 1; i <= 4; ++i)
            FakeSdk::addRecord(4, {QString("One %1").arg(i), QString("90%1").arg(i)});
    }
    static QStringList ones() { return {"One 1", "One 2", "One 3", "One 4"}; }

    static QString complete(int total, int success)
    {
        return QString("IDS_COPY_COMPLETE IDS_TOTAL_COUNT%1IDS_SUCCESS_COUNT%2").arg(total).arg(success);
    }

private slots:
    void totalCountsRecordsAndTheFirstStepsCountContacts()
    {
        CopyFixture f;
        fillLocal();
        f.build();
        QList<int> stepsWhileReading;
        QStringList countersWhileReading;
        const auto rows = f.take(f.in().local(), {"Anna", "Bert"});
        QVERIFY(f.hover(*rows, f.in().sim()));
        FakeSdk::onCall("GetAddrRecord", 0, [&] {
            if (QThread::currentThread() != qApp->thread() || WindowFixture::waiting() == nullptr)
                return;
            stepsWhileReading << CopyFixture::steps();
            countersWhileReading << CopyFixture::counter();
        });
        f.release(*rows, f.in().sim());
        QCOMPARE(stepsWhileReading, QList<int>({2, 2}));
        QCOMPARE(countersWhileReading, QStringList({"", ""}));
        QCOMPARE(CopyFixture::steps(), 6);
        QCOMPARE(CopyFixture::counter(), QString("0/6"));
        QCOMPARE(WindowFixture::waiting()->findChildren<QLabel*>().size(), 2);
        QCOMPARE(WindowFixture::waiting()->windowModality(), Qt::WindowModal);
        QCOMPARE(f.in().totalRows(), 6);
        QVERIFY(f.waitDone());
        QCOMPARE(CopyFixture::stored(0),
                 QStringList({"Anna=111", "Anna=112", "Anna=113", "Bert=221", "Bert=222", "Bert=223"}));
        QCOMPARE(FakeCore::messageTexts(), QStringList(complete(6, 6)));
        const FakeCore::Message message = FakeCore::messages().last();
        QCOMPARE(message.icon, QMessageBox::Information);
        QCOMPARE(message.caption, QString("IDS_PROMPT_CAPTION"));
        QCOMPARE(message.buttons, QStringList("IDS_OK"));
        QCOMPARE(message.windowFlags, Qt::WindowFlags(Qt::WindowCloseButtonHint));
        QCOMPARE(f.in().totalRows(), 0);
    }

    void longNameIsCutForTheCardAndKeptForTheDevice()
    {
        CopyFixture f;
        const QString longName = "A name of twenty one";
        FakeSdk::addRecord(4, {longName, "1"});
        FakeSdk::addRecord(0, {longName, "2"});
        QList<FakeSdk::Field> roomy = FakeSdk::cardFields();
        roomy[0].maxLength = 40;
        FakeSdk::setFields(1, roomy);
        f.build();
        QVERIFY(f.drop(f.in().local(), {longName}, f.in().sim()));
        QVERIFY(f.waitDone());
        QCOMPARE(CopyFixture::stored(0).last(), longName.left(14) + "=1");
        QVERIFY(f.drop(f.in().sim(), {longName}, f.in().device()));
        QVERIFY(f.waitDone());
        QCOMPARE(CopyFixture::stored(1).last(), longName + "=2");
    }

    void samePersonTwiceOnTheCardStaysTwoContacts()
    {
        CopyFixture f;
        FakeSdk::addRecord(0, {"Anna", "1"});
        FakeSdk::addRecord(0, {"Anna", "2"});
        f.build();
        f.click(f.in().sim());
        f.table()->selectAll();
        f.window()->OnTableItemClicked();
        f.in().dragSource() = PB_MEM_SIM;
        f.tree()->m_bHandleSelection = false;
        f.tree()->setCurrentItem(f.in().local());
        f.dropList({"1", "0", "2", "0"});
        QVERIFY(f.waitDone());
        QCOMPARE(CopyFixture::all(4),
                 QList<QStringList>({{"Anna", "1", "", "", "", ""}, {"Anna", "2", "", "", "", ""}}));
    }

    void nothingToCopyLeavesTheDialogWithAWorkingCancel()
    {
        CopyFixture f;
        fillLocal();
        FakeSdk::addRecord(4, {"", "", "", "", "a@b", "only what a card lacks"});
        f.build();
        QVERIFY(f.drop(f.in().local(), {""}, f.in().sim()));
        QVERIFY(!f.in().threadBusy());
        QVERIFY(WindowFixture::waiting() != nullptr);
        QTest::qWait(0);
        QVERIFY(WindowFixture::waiting() != nullptr);
        WindowFixture::cancelButton()->click();
        QVERIFY(WindowFixture::waiting() == nullptr);
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(f.tree()->m_listDragData.isEmpty());
        // The next drop is as good as the first.
        QVERIFY(f.drop(f.in().local(), {"One 1"}, f.in().sim()));
        QVERIFY(f.waitDone());
        QCOMPARE(FakeCore::messageTexts(), QStringList(complete(1, 1)));
        QVERIFY(WindowFixture::waiting() == nullptr);
    }

    void targetThatFillsAfterTheHoverLeavesTheDialogWithAWorkingCancel()
    {
        CopyFixture f;
        fillLocal();
        f.build();
        const auto rows = f.take(f.in().local(), {"Anna"});
        QVERIFY(f.hover(*rows, f.in().sim()));
        FakeSdk::setSize(0, 250);
        f.release(*rows, f.in().sim());
        QVERIFY(!f.in().threadBusy());
        QVERIFY(!f.in().newContactEnabled());
        QVERIFY(WindowFixture::waiting() != nullptr);
        WindowFixture::cancelButton()->click();
        QVERIFY(WindowFixture::waiting() == nullptr);
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(CopyFixture::stored(0).isEmpty());
        QCOMPARE(CopyFixture::all(4).size(), 6);
    }

    void targetThatLeavesTheTreeDuringTheDropLeavesTheDialogWithAWorkingCancel()
    {
        CopyFixture f;
        fillLocal();
        f.build();
        const auto rows = f.take(f.in().local(), {"Anna"});
        QVERIFY(f.hover(*rows, f.in().device()));
        QTreeWidgetItem* const node = f.in().device();
        QTreeWidgetItem* const root = f.tree()->invisibleRootItem();
        FakeSdk::onCall("GetAddrRecord", 1, [&f, node, root] {
            const QSignalBlocker quiet(f.tree());
            root->takeChild(root->indexOfChild(node));
        });
        f.release(*rows, node);
        QVERIFY(root->indexOfChild(node) < 0);
        QVERIFY(!f.in().threadBusy());
        QVERIFY(WindowFixture::waiting() != nullptr);
        WindowFixture::cancelButton()->click();
        QVERIFY(WindowFixture::waiting() == nullptr);
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(CopyFixture::stored(1).isEmpty());
        root->addChild(node);
    }

    void fullTargetRefusesTheHover()
    {
        CopyFixture f;
        fillLocal();
        FakeSdk::setSize(0, 250);
        f.build();
        QVERIFY(!f.drop(f.in().local(), {"Anna"}, f.in().sim()));
        QCOMPARE(f.tree()->currentItem(), f.in().local());
    }

    void onePlaceForTwoNumbersTakesTheFirst()
    {
        CopyFixture f;
        const int id = FakeSdk::addRecord(4, {"Gina", "1", "2"});
        FakeSdk::addRecord(0, {"Dora", "666"});
        FakeSdk::setCapacity(0, 2);
        f.build();
        QVERIFY(f.drop(f.in().local(), {"Gina"}, f.in().sim()));
        QVERIFY(f.waitDone());
        QCOMPARE(CopyFixture::stored(0), QStringList({"Dora=666", "Gina=1"}));
        QCOMPARE(FakeSdk::count("AddAddrRec"), 1);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_MOVE_REC_DEV_FULL1"));
        const FakeCore::Message message = FakeCore::messages().last();
        QCOMPARE(message.icon, QMessageBox::Information);
        QCOMPARE(message.caption, QString("IDS_PROMPT_CAPTION"));
        QCOMPARE(message.buttons, QStringList("IDS_OK"));
        QVERIFY(FakeSdk::hasRecord(4, id));
        QVERIFY(WindowFixture::waiting() == nullptr);
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_NONE);
    }

    void lastRecordThatFillsTheTargetEndsWithTheFullMessage()
    {
        CopyFixture f;
        fillLocal();
        FakeSdk::setCapacity(0, 4);
        f.build();
        QVERIFY(f.drop(f.in().local(), ones(), f.in().sim()));
        QVERIFY(f.waitDone());
        QCOMPARE(CopyFixture::stored(0).size(), 4);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_MOVE_REC_DEV_FULL4"));
        QVERIFY(WindowFixture::waiting() == nullptr);
    }

    void capacityIsFollowedWithoutAskingTheStore()
    {
        CopyFixture f;
        fillLocal();
        f.build();
        QVERIFY(f.drop(f.in().local(), ones(), f.in().sim()));
        std::atomic<int> asked{0};
        FakeSdk::onCall("GetCapacity", 0, [&] { ++asked; });
        QVERIFY(QTest::qWaitFor([&f] { return f.in().simUsed() == 4; }, 20000));
        QCOMPARE(asked.load(), 0);
        QVERIFY(f.waitDone());
    }

    void cancelAtEachRecord_data()
    {
        QTest::addColumn<int>("record");
        for (int i = 1; i <= 4; ++i)
            QTest::addRow("record %d", i) << i;
    }
    void cancelAtEachRecord()
    {
        QFETCH(int, record);
        CopyFixture f;
        fillLocal();
        f.build();
        FakeSdk::onCall("AddAddrRec", record, [] {
            QMetaObject::invokeMethod(WindowFixture::cancelButton(), "click", Qt::QueuedConnection);
        });
        QVERIFY(f.drop(f.in().local(), ones(), f.in().sim()));
        QVERIFY(f.waitDone());
        QCOMPARE(CopyFixture::stored(0).size(), record); // what is written stays
        QCOMPARE(CopyFixture::all(4).size(), 6);
        QCOMPARE(FakeCore::messageTexts(), QStringList(complete(4, record)));
        QVERIFY(WindowFixture::waiting() == nullptr);
        QVERIFY(f.in().waitingDialog().isNull());
        QCOMPARE(FakeCore::runningWorkers(), 0);
        QCOMPARE(FakeSdk::openTransactions(0), 0);
    }

    void cancelBeforeTheFirstRecordStopsAfterIt()
    {
        CopyFixture f;
        fillLocal();
        f.build();
        QVERIFY(f.drop(f.in().local(), ones(), f.in().sim()));
        WindowFixture::cancelButton()->click();
        QVERIFY(WindowFixture::waiting() == nullptr);
        QVERIFY(f.waitDone());
        QCOMPARE(CopyFixture::stored(0).size(), 1);
        QCOMPARE(FakeCore::messageTexts(), QStringList(complete(4, 1)));
    }

    void memoryThatGoesDuringTheRunCancelsIt_data()
    {
        QTest::addColumn<QString>("slot");
        QTest::addColumn<bool>("argument");
        QTest::newRow("device detached") << "OnDeviceStatusChanged" << false;
    }
    void memoryThatGoesDuringTheRunCancelsIt()
    {
        QFETCH(QString, slot);
        QFETCH(bool, argument);
        for (const int memory : {0, 1}) {
            for (int record = 1; record <= 4; ++record) {
                CopyFixture f;
                fillLocal();
                f.build();
                QPointer<AddrBookDlg> window = f.window();
                FakeSdk::onCall("AddAddrRec", record, [window, slot, argument] {
                    FakeSdk::setDevicePresent(false);
                    QMetaObject::invokeMethod(window, slot.toLatin1(), Qt::QueuedConnection, Q_ARG(bool, argument));
                });
                QVERIFY(f.drop(f.in().local(), ones(), memory == 0 ? f.in().sim() : f.in().device()));
                QVERIFY(f.waitDone());
                QVERIFY(f.in().sim() == nullptr && f.in().device() == nullptr);
                QCOMPARE(CopyFixture::all(4).size(), 6);
                QCOMPARE(FakeCore::messageTexts(), QStringList(complete(4, record - 1)));
                QVERIFY(WindowFixture::waiting() == nullptr);
                QCOMPARE(f.tree()->currentItem(), f.in().local());
            }
        }
    }

    // The host's notice takes the card's node away; the device's copy goes on.
    void cardThatGoesLeavesACopyToTheDevice()
    {
        CopyFixture f;
        fillLocal();
        f.build();
        QVERIFY(f.drop(f.in().local(), ones(), f.in().device()));
        f.window()->OnSimDisabled(true);
        QVERIFY(f.waitDone());
        QCOMPARE(CopyFixture::stored(1).size(), 4);
        QCOMPARE(FakeCore::messageTexts(), QStringList(complete(4, 4)));
    }

    void cardThatGoesCancelsACopyToIt()
    {
        CopyFixture f;
        fillLocal();
        f.build();
        QVERIFY(f.drop(f.in().local(), ones(), f.in().sim()));
        f.window()->OnSimDisabled(true);
        QVERIFY(WindowFixture::waiting() == nullptr);
        QVERIFY(f.waitDone());
        QCOMPARE(CopyFixture::stored(0).size(), 1);
        QCOMPARE(FakeCore::messageTexts(), QStringList(complete(4, 1)));
    }

    void eachWrittenRecordIsAnnounced()
    {
        CopyFixture f;
        FakeSdk::addRecord(4, {"Anna", "111", "112"});
        f.build();
        FakeCore::clearNotices();
        QVERIFY(f.drop(f.in().local(), {"Anna"}, f.in().sim()));
        QVERIFY(f.waitDone());
        QList<unsigned int> numbers;
        for (const FakeCore::Notice& notice : FakeCore::notices()) {
            if (!notice.isPush)
                continue;
            QCOMPARE(notice.message, 288u);
            QCOMPARE(notice.param1, 0u);
            numbers << notice.param2;
        }
        QCOMPARE(numbers, QList<unsigned int>({111, 112}));
    }

    void onlyPhoneNumbersOfTheTargetAreAnnounced()
    {
        CopyFixture f;
        f.build();
        f.window()->copyContactsForPushNotify(
            {AddrBookRecord{7, {"Anna", "1", "", "3", "5", "6"}}, AddrBookRecord{8, {"Bert", "", "", "", "", ""}}},
            PB_MEM_LOCAL);
        QCOMPARE(f.in().notifyRecords().size(), 2);
        QCOMPARE(f.in().notifyRecords()[0].iID, 7);
        QCOMPARE(f.in().notifyRecords()[0].lstValues, QList<QString>({"1", "3"}));
        QVERIFY(f.in().notifyRecords()[1].lstValues.isEmpty());
        f.window()->copyContactsForPushNotify({AddrBookRecord{9, {"Carl", "4"}}}, PB_MEM_SIM);
        QCOMPARE(f.in().notifyRecords().size(), 1);
    }

    void alertsByOperationAndEnds_data()
    {
        QTest::addColumn<int>("source");
        QTest::addColumn<int>("target");
        QTest::addColumn<int>("operation");
        QTest::addColumn<QString>("text");
        const QString counts = " IDS_TOTAL_COUNT5IDS_SUCCESS_COUNT3";
        QTest::newRow("both ends local") << 4 << 4 << 7 << "";
        QTest::newRow("no memory and local") << 8 << 4 << 7 << "";
        QTest::newRow("copy to the card") << 4 << 0 << 7 << "IDS_COPY_COMPLETE" + counts;
        QTest::newRow("copy from the device") << 1 << 4 << 7 << "IDS_COPY_COMPLETE" + counts;
        QTest::newRow("move") << 4 << 1 << 8 << "IDS_MOVE_COMPLETE" + counts;
        QTest::newRow("any other") << 4 << 1 << 15 << counts;
    }
    void alertsByOperationAndEnds()
    {
        QFETCH(int, source);
        QFETCH(int, target);
        QFETCH(int, operation);
        QFETCH(QString, text);
        CopyFixture f;
        f.build();
        f.in().dragSource() = static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(source);
        f.in().dragTarget() = static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(target);
        f.in().setOperation(static_cast<_ADDRBOOK_OPERATION_TYPE>(operation));
        f.window()->showCopyCompletedAlert(5, 3);
        QCOMPARE(FakeCore::messageTexts(), text.isEmpty() ? QStringList() : QStringList(text));
    }

    // Nobody receives its results, so it stays at its first record; it stops with the window.
    void moveBetweenMemoriesSleepsAfterItsFirstRecord()
    {
        CopyFixture f;
        fillLocal();
        f.build();
        f.in().dragSource() = PB_MEM_LOCAL;
        f.in().dragTarget() = PB_MEM_SIM;
        f.window()->initThreadForMoveorCopy(
            true, {AddrBookRecord{3, {"One 1", "901"}}, AddrBookRecord{4, {"One 2", "902"}}}, 0, ADDRBOOK_OP_MOVE);
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_MOVE);
        QVERIFY(WindowFixture::waiting() != nullptr);
        bool told = false;
        for (const QLabel* label : WindowFixture::waiting()->findChildren<QLabel*>())
            told = told || label->text() == "IDS_MOVE_STATUS";
        QVERIFY(told);
        QVERIFY(QTest::qWaitFor([] { return FakeSdk::count("DelAddrRec") == 1; }, 20000));
        QTest::qWait(60);
        QCOMPARE(FakeSdk::count("AddAddrRec"), 1);
        QVERIFY(f.in().worker().isRunning());
        f.destroy();
        QCOMPARE(FakeCore::runningWorkers(), 0);
    }

    void anyOtherOperationStartsNothing()
    {
        CopyFixture f;
        f.build();
        f.in().dragTarget() = PB_MEM_SIM;
        f.window()->initThreadForMoveorCopy(true, {AddrBookRecord{3, {"One 1", "901"}}}, 0, ADDRBOOK_OP_ADD);
        f.window()->initThreadForMoveorCopy(true, {}, 0, ADDRBOOK_OP_COPY);
        QVERIFY(!f.in().threadBusy());
        QVERIFY(WindowFixture::waiting() == nullptr);
        QCOMPARE(FakeSdk::count("AddAddrRec"), 0);
    }

    void resultWithoutARecordIsNone()
    {
        CopyFixture f;
        f.build();
        f.window()->OnAddResult(true, 0);
        f.window()->OnAddResult(true, pointerToCarrier(new AddrBookRecord{5, {"x"}})); // no dialog: dropped
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(f.in().notifyRecords().isEmpty());
    }

    void applicationThatGoesDownStopsTheRun()
    {
        CopyFixture f;
        fillLocal();
        f.build();
        FakeSdk::onCall("AddAddrRec", 2, [] { FakeCore::setShuttingDown(true); });
        QVERIFY(f.drop(f.in().local(), ones(), f.in().sim()));
        QVERIFY(QTest::qWaitFor([&f] { return !f.in().worker().isRunning(); }, 20000));
        QCOMPARE(CopyFixture::stored(0).size(), 2);
        QCOMPARE(CopyFixture::all(4).size(), 6);
        f.destroy();
        FakeCore::setShuttingDown(false);
    }

    void windowThatGoesDuringTheRunStopsIt()
    {
        CopyFixture f;
        fillLocal();
        f.build();
        QVERIFY(f.drop(f.in().local(), ones(), f.in().sim()));
        f.destroy();
        QCOMPARE(FakeCore::runningWorkers(), 0);
        QVERIFY(CopyFixture::stored(0).size() <= 4);
    }

    // The current node goes while the list waits in the tree.
    void nodeThatGoesDuringADropDropsNothingTwice()
    {
        CopyFixture f;
        fillLocal();
        f.build();
        const auto rows = f.take(f.in().local(), {"One 1"});
        QVERIFY(f.hover(*rows, f.in().sim()));
        bool once = true;
        FakeSdk::onCall("GetAddrRecord", 1, [&] {
            if (once)
                f.window()->OnDeviceStatusChanged(false);
            once = false;
        });
        f.release(*rows, f.in().sim());
        QVERIFY(f.waitDone());
        QVERIFY(!once);
        QCOMPARE(FakeSdk::log().filter("CreateAddrRecord(0)").size(), 1);
        QCOMPARE(FakeCore::messageTexts(), QStringList(complete(1, FakeSdk::recordIds(0).size())));
        QCOMPARE(CopyFixture::all(4).size(), 6);
        QVERIFY(WindowFixture::waiting() == nullptr);
        QVERIFY(f.tree()->m_listDragData.isEmpty());
    }
};

QTEST_MAIN(CopyRunTest)
#include "CopyRunTest.moc"
