#include "FilesFixture.h"

// The records of a file on their way into a memory.
class ImportRunTest : public WindowTest
{
    Q_OBJECT

private:
    static void makePeople()
    {
        FilesFixture::makeFile("/a/file.csv", "Name,Mobile,Number",
                               {{"Pia", "1", "1"}, {"Quin", "2", "2"}, {"Rosa", "3", "3"}, {"Sven", "4", "4"}});
        FilesFixture::choose("/a/file.csv");
    }
    static QString told(int total, int imported)
    {
        return QString("IDS_IMPORT_TOTAL_NUMBER%1IDS_IMPORT_IMPORTED_NUMBER%2").arg(total).arg(imported);
    }

private slots:
    void recordsGoToTheCurrentNode_data()
    {
        QTest::addColumn<QString>("node");
        QTest::addColumn<int>("memory");
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("members");
        QTest::newRow("PC") << "IDS_LOCAL" << 4 << 3 << 2;
        QTest::newRow("group") << "Friends" << 4 << 3 << 6;
        QTest::newRow("card") << "card" << 0 << 1 << 2;
        QTest::newRow("device") << "device" << 1 << 2 << 2;
    }
    void recordsGoToTheCurrentNode()
    {
        QFETCH(QString, node);
        QFETCH(int, memory);
        QFETCH(int, before);
        QFETCH(int, members);
        FilesFixture f;
        WindowFixture::fillStores();
        makePeople();
        f.build();
        f.importTo(node == "card" ? f.in().sim() : node == "device" ? f.in().device() : f.node(node));
        QCOMPARE(FakeSdk::recordIds(memory).size(), before + 4);
        QVERIFY(FilesFixture::stored(memory).last().startsWith("Sven|4"));
        QCOMPARE(FakeSdk::members(1).size(), members);
        QCOMPARE(FakeCore::messageTexts(), QStringList(told(4, 4)));
        const FakeCore::Message message = FakeCore::messages().last();
        QCOMPARE(message.icon, QMessageBox::Information);
        QCOMPARE(message.caption, QString("IDS_PROMPT_CAPTION"));
        QCOMPARE(message.buttons, QStringList("IDS_OK"));
        QVERIFY(WindowFixture::waiting() == nullptr);
        QVERIFY(f.column(0).contains("Sven")); // the table shows them
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_NONE);
    }

    void recordThatFailsIsPassedOver()
    {
        FilesFixture f;
        makePeople();
        f.build();
        FakeSdk::fail("AddAddrRec", 2);
        f.importTo(f.in().local());
        QCOMPARE(FakeCore::messageTexts(), QStringList(told(4, 3)));
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
    }

    void memoryThatFillsStopsTheRun()
    {
        FilesFixture f;
        WindowFixture::fillStores();
        makePeople();
        FakeSdk::setCapacity(0, 3);
        f.build();
        f.importTo(f.in().sim());
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_IMPORT_DEVICEFULL2"));
        QCOMPARE(FilesFixture::stored(0), QStringList({"Dora|666", "Pia|1", "Quin|2"}));
        QCOMPARE(FakeSdk::count("AddAddrRec"), 2);
    }

    // Unlike a copy, an import into a memory that is full by then starts, and each record fails.
    void memoryThatIsFullBeforeTheRunDoesNotStopIt()
    {
        FilesFixture f;
        WindowFixture::fillStores();
        makePeople();
        f.build();
        f.click(f.in().sim());
        FilesFixture::onMap([](const FilesFixture::Map&) {
            FakeSdk::setCapacity(0, 1);
            return true;
        });
        f.import();
        QVERIFY(f.in().threadBusy());
        QVERIFY(f.waitDone());
        QCOMPARE(FakeCore::messageTexts(), QStringList(told(4, 0)));
        QCOMPARE(FilesFixture::stored(0), QStringList("Dora|666"));
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
        FilesFixture f;
        makePeople();
        f.build();
        FakeSdk::onCall("AddAddrRec", record, [] {
            QMetaObject::invokeMethod(WindowFixture::cancelButton(), "click", Qt::QueuedConnection);
        });
        f.importTo(f.in().local());
        QCOMPARE(FakeSdk::recordIds(4).size(), record);
        QCOMPARE(FakeCore::messageTexts(), QStringList(told(4, record)));
        QVERIFY(WindowFixture::waiting() == nullptr);
    }

    void deviceThatGoesCancelsTheRun()
    {
        FilesFixture f;
        makePeople();
        f.build();
        const QPointer<AddrBookDlg> window = f.window();
        FakeSdk::onCall("AddAddrRec", 3, [window] {
            FakeSdk::setDevicePresent(false);
            QMetaObject::invokeMethod(window, "OnDeviceStatusChanged", Qt::QueuedConnection, Q_ARG(bool, false));
        });
        f.click(f.in().device());
        f.import();
        QVERIFY(f.waitDone());
        QCOMPARE(FakeCore::messageTexts(), QStringList(told(4, 2)));
        QVERIFY(f.in().device() == nullptr);
    }

    void eachCallFailsOnce()
    {
        bool failed = true;
        int k = 1;
        for (; failed && k < 2000; ++k) {
            FilesFixture f;
            FakeSdk::addRecord(4, {"Anna", "111"});
            FilesFixture::makeFile("/a/file.csv", "Name,Mobile", {{"Pia", "1"}, {"Quin", "2"}});
            FilesFixture::choose("/a/file.csv");
            f.build();
            const QStringList before = FilesFixture::stored(4);
            FakeSdk::failCall(k);
            f.import();
            QVERIFY(f.waitDone());
            const QByteArray name = FakeSdk::failedCall();
            failed = !name.isEmpty();
            FakeSdk::clearFailures();
            if (WindowFixture::waiting() != nullptr)
                FilesFixture::cancelWaiting();
            const QStringList after = FilesFixture::stored(4);
            QCOMPARE(after.mid(0, before.size()), before);
            const QString text = FakeCore::messageTexts().value(0);
            if (text.startsWith("IDS_IMPORT_TOTAL")) {
                const int imported = text.mid(text.lastIndexOf("NUMBER") + 6).toInt();
                const int added = after.size() - before.size();
                QVERIFY2(name == "AddAddrToGroup" ? imported <= added : imported == added, name.constData());
            }
            f.destroy();
            QVERIFY2(FakeSdk::leaks().isEmpty(), qPrintable(name + ": " + FakeSdk::leaks()));
        }
        QVERIFY(!failed);
        QVERIFY(k > 30);
    }
};

QTEST_MAIN(ImportRunTest)
#include "ImportRunTest.moc"
