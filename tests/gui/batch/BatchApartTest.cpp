#include "BatchFixture.h"
#include "window/FileDialogs.h"

// A batch whose record is still in hand, and what the user does meanwhile: neither disturbs the other.
class BatchApartTest : public WindowTest
{
    Q_OBJECT

private:
    static BatchFixture* s_fixture;

    // A user who takes so long to choose that the batch ends.
    static QString chooseSlowly(QWidget*, const QString&, const QString&, const QString&)
    {
        s_fixture->letEnd();
        return "/a/chosen.csv";
    }

    static void importOf(const BatchFixture& f, const QList<QStringList>& rows)
    {
        FakeSdk::setFileTitles("/a/file.csv", "Name,Mobile");
        FakeSdk::setImport("/a/file.csv", rows);
        FileUser::choose("/a/file.csv");
        const FileUser::MapWatcher watcher;
        f.window()->OnClickImport();
    }

private slots:
    // ---- Exports ---------------------------------------------------------------------------------------------------

    void exportTakesWhatWasOnTheScreenThoughABatchEndsUnderItsDialog_data()
    {
        QTest::addColumn<bool>("selected");
        QTest::addColumn<QList<int>>("ids");
        QTest::newRow("the rows selected") << true << QList<int>({2, 3});
        QTest::newRow("all, with the one that came meanwhile") << false << QList<int>({5, 1, 2, 3, 4});
    }
    void exportTakesWhatWasOnTheScreenThoughABatchEndsUnderItsDialog()
    {
        QFETCH(bool, selected);
        QFETCH(QList<int>, ids);
        BatchFixture f;
        s_fixture = &f;
        BatchFixture::fillLocal();
        f.build();
        f.cancelledImport(3);
        f.selectRows({1, 2});
        FileDialogs::setChoosers(nullptr, chooseSlowly);
        if (selected)
            f.window()->OnClickExportSelectedContacts();
        else
            f.window()->OnClickExportAllContacts();
        QCOMPARE(FakeSdk::exports().size(), 1);
        QList<int> written = FakeSdk::exports().last().ids;
        std::sort(written.begin(), written.end());
        std::sort(ids.begin(), ids.end());
        QCOMPARE(written, ids);
        QCOMPARE(FakeCore::messageTexts(), QStringList({BatchFixture::imported(3, 1), "IDS_SMS_EXPORTSUCCESS_COUNT"}));
        QCOMPARE(f.in().operation(), selected ? ADDRBOOK_OP_EXPORT_SELECTED : ADDRBOOK_OP_EXPORT_ALL);
    }

    // Nobody cancels: the progress window closes with the last result, and the last commit takes its time.
    void exportDuringTheLastCommitOfABatchTakesItsRows()
    {
        BatchFixture f;
        s_fixture = &f;
        BatchFixture::fillLocal();
        f.build();
        std::atomic<bool> isHeld{false};
        FakeSdk::onCall("AddAddrRec", 2, [&f, &isHeld] {
            f.held = std::make_unique<Held>("EndTransaction", 1);
            isHeld = true;
        });
        f.window()->addImportedRecords(PB_MEM_LOCAL, Contacts::records(PB_MEM_LOCAL, "New", 2), 0);
        QVERIFY(QTest::qWaitFor([&isHeld] { return isHeld && WindowFixture::waiting() == nullptr; }, 20000));
        QVERIFY(f.held->wait());
        QVERIFY(f.in().threadBusy());
        FileDialogs::setChoosers(nullptr, chooseSlowly);
        f.window()->OnClickExportAllContacts();
        QCOMPARE(FakeSdk::exports().last().ids.size(), 6);
    }

    // The card has gone: its rows stay on the screen, under another memory's node.
    void rowsLeftOverFromACardAreNotExportedAsAnotherMemorys()
    {
        BatchFixture f;
        WindowFixture::fillStores();
        f.build();
        f.window()->OnSimStatusChanged(true);
        f.click(f.in().sim());
        f.window()->OnSimStatusChanged(false);
        QCOMPARE(f.column(0), QStringList("Dora"));
        FileUser::choose("/a/all.csv");
        f.window()->OnClickExportAllContacts();
        QCOMPARE(FakeSdk::exports().last().memory, 0);
        QCOMPARE(FakeSdk::exports().last().ids, QList<int>({1}));
    }

    // ---- Cancelled stays cancelled ---------------------------------------------------------------------------------

    void cancelledBatchStaysCancelledWhateverComesNext_data()
    {
        QTest::addColumn<int>("next");
        QTest::newRow("a drop that yields nothing") << 0;
        QTest::newRow("an import that fails") << 1;
    }
    void cancelledBatchStaysCancelledWhateverComesNext()
    {
        QFETCH(int, next);
        BatchFixture f;
        BatchFixture::fillLocal();
        FakeSdk::addRecord(4, {"", "", "", "", "a@b", "only what a card lacks"});
        f.build();
        f.cancelledCopy();
        if (next == 0) {
            QVERIFY(f.drop(f.in().local(), {""}, f.in().sim()));
        } else {
            FakeSdk::fail("ImportFromFile");
            importOf(f, {{"Pia", "1"}});
            QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_SMS_IMPORTFAILURE_COUNT"));
            FakeCore::clearMessages();
        }
        f.letEnd();
        // The record in hand, and it is told.
        QCOMPARE(CopyFixture::stored(0), QStringList("One 1=901"));
        QCOMPARE(FakeCore::messageTexts(), QStringList(BatchFixture::copied(4, 1)));
        QVERIFY(WindowFixture::waiting() == nullptr);
    }

    void batchThatNobodyCancelledCanStillBeCancelledBehindAnImportThatFails()
    {
        BatchFixture f;
        BatchFixture::fillLocal();
        f.build();
        f.held = std::make_unique<Held>("AddAddrRec", 2);
        f.window()->addImportedRecords(PB_MEM_LOCAL, Contacts::records(PB_MEM_LOCAL, "New", 3), 0);
        QVERIFY(f.held->wait());
        FakeSdk::fail("ImportFromFile");
        importOf(f, {{"Pia", "1"}});
        FakeCore::clearMessages();
        QVERIFY(WindowFixture::waiting() != nullptr);
        WindowFixture::cancelButton()->click();
        f.letEnd();
        QCOMPARE(FakeCore::messageTexts(), QStringList(BatchFixture::imported(3, 2)));
    }

    // ---- The end ---------------------------------------------------------------------------------------------------

    void programThatGoesDownIsToldNothing_data()
    {
        QTest::addColumn<bool>("full");
        QTest::newRow("end of a copy") << false;
        QTest::newRow("memory that is full") << true;
    }
    void programThatGoesDownIsToldNothing()
    {
        QFETCH(bool, full);
        BatchFixture f;
        BatchFixture::fillLocal();
        if (full)
            FakeSdk::setCapacity(0, 1);
        f.build();
        f.held = std::make_unique<Held>("AddAddrRec", 1);
        QVERIFY(f.drop(f.in().local(), BatchFixture::ones(), f.in().sim()));
        QVERIFY(f.held->wait());
        if (!full)
            FakeCore::setShuttingDown(true);
        else
            QObject::connect(
                &f.in().worker(), &AddrBookThread::addResult, &f.in().worker(),
                [](bool, qlonglong) { FakeCore::setShuttingDown(true); }, Qt::DirectConnection);
        f.held->letGo();
        const bool done = f.waitDone();
        FakeCore::setShuttingDown(false);
        QVERIFY(done);
        QCOMPARE(CopyFixture::stored(0).size(), 1);
        QCOMPARE(FakeCore::messageTexts(), QStringList());
    }
};

BatchFixture* BatchApartTest::s_fixture = nullptr;

QTEST_MAIN(BatchApartTest)
#include "BatchApartTest.moc"
