#include "BatchFixture.h"

// A batch that comes while the cancelled one before still has a record in hand: each ends and is told by itself.
class BatchNextTest : public WindowTest
{
    Q_OBJECT

private slots:
    void dropWhileACancelledRunEndsHasItsOwnMessage()
    {
        BatchFixture f;
        FakeSdk::addRecord(0, {"Dora", "1"});
        FakeSdk::addRecord(0, {"Emma", "2"});
        f.build();
        f.held = std::make_unique<Held>("AddAddrRec", 1);
        QVERIFY(f.drop(f.in().sim(), {"Dora", "Emma"}, f.in().local()));
        QVERIFY(f.held->wait());
        WindowFixture::cancelButton()->click();
        QVERIFY(f.in().threadBusy());
        const auto rows = f.take(f.in().sim(), {"Emma"});
        QVERIFY(f.hover(*rows, f.in().local()));
        f.held->letGo();
        f.release(*rows, f.in().local());
        QVERIFY(f.waitDone());
        QCOMPARE(FakeCore::messageTexts(), QStringList({BatchFixture::copied(2, 1), BatchFixture::copied(1, 1)}));
        QCOMPARE(CopyFixture::stored(4), QStringList({"Dora=1", "Emma=2"}));
    }

    void importWhileACancelledRunEndsHasItsOwnMessage()
    {
        BatchFixture f;
        f.build();
        f.cancelledImport(4);
        FakeSdk::setFileTitles("/a/file.csv", "Name,Mobile");
        FakeSdk::setImport("/a/file.csv", {{"Pia", "1"}, {"Quin", "2"}});
        FileUser::choose("/a/file.csv");
        // Once the field map is through, and with it the last event before the next batch.
        Held* const held = f.held.get();
        FakeSdk::onCall("ImportFromFile", 1, [held] { held->letGo(); });
        {
            const FileUser::MapWatcher watcher;
            f.window()->OnClickImport();
        }
        QVERIFY(f.waitDone());
        QCOMPARE(FakeCore::messageTexts(), QStringList({BatchFixture::imported(4, 1), BatchFixture::imported(2, 2)}));
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
    }

    // The message about the full memory is open, and its worker waits.
    void batchThatComesUnderTheMessageOfAFullMemoryIsNotTouchedByIt()
    {
        BatchFixture f;
        FakeSdk::setCapacity(0, 1);
        f.build();
        bool next = false;
        FakeCore::onMessage([&](const FakeCore::Message& message) {
            if (message.text != "IDS_IMPORT_DEVICEFULL1" || next)
                return;
            next = true;
            f.window()->addImportedRecords(PB_MEM_ME, Contacts::records(PB_MEM_ME, "Next", 3), 0);
        });
        f.window()->addImportedRecords(PB_MEM_SIM, Contacts::records(PB_MEM_SIM, "New", 3), 0);
        QVERIFY(QTest::qWaitFor([&next] { return next; }, 20000));
        QVERIFY(f.waitDone());
        FakeCore::onMessage(nullptr);
        QCOMPARE(FakeSdk::recordIds(0).size(), 1);
        QCOMPARE(FakeSdk::recordIds(1).size(), 3);
        QCOMPARE(FakeCore::messageTexts(), QStringList({"IDS_IMPORT_DEVICEFULL1", BatchFixture::imported(3, 3)}));
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_NONE);
    }

    // A sibling's import comes while the end of the one before is being told.
    void batchThatComesUnderTheFinalMessageKeepsItsWaitingDialog()
    {
        BatchFixture f;
        f.build();
        bool next = false;
        FakeCore::onMessage([&](const FakeCore::Message&) {
            if (next)
                return;
            next = true;
            f.held = std::make_unique<Held>("AddAddrRec", 1);
            f.window()->addImportedRecords(PB_MEM_ME, Contacts::records(PB_MEM_ME, "Next", 3), 0);
            QVERIFY(f.held->wait());
        });
        f.window()->addImportedRecords(PB_MEM_SIM, Contacts::records(PB_MEM_SIM, "New", 1), 0);
        QVERIFY(QTest::qWaitFor([&] { return next && f.in().batch().number() == 2; }, 20000));
        QTRY_VERIFY(!f.in().waitingDialog().isNull());
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_IMPORT);
        QCOMPARE(f.in().totalRows(), 3);
        f.letEnd();
        FakeCore::onMessage(nullptr);
        QCOMPARE(FakeSdk::recordIds(1).size(), 3);
        QCOMPARE(FakeCore::messageTexts(), QStringList({BatchFixture::imported(1, 1), BatchFixture::imported(3, 3)}));
    }
};

QTEST_MAIN(BatchNextTest)
#include "BatchNextTest.moc"
