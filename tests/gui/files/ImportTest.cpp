#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QStandardPaths>

#include "FilesFixture.h"

// From the menu entry to the records of a file: the file dialog, the titles, the field map.
class ImportTest : public WindowTest
{
    Q_OBJECT

private slots:
    void fileDialogOpensOnTheCsvFilesOfTheDesktop()
    {
        FilesFixture f;
        f.build();
        f.import();
        QCOMPARE(FilesFixture::asked().size(), 1);
        QCOMPARE(FilesFixture::asked()[0].title, QString("Open"));
        QCOMPARE(FilesFixture::asked()[0].start,
                 QStandardPaths::writableLocation(QStandardPaths::DesktopLocation) + "/*.csv");
        QCOMPARE(FilesFixture::asked()[0].filter, QString("Excel Files (*.csv)"));
    }

    void cancelledFileDialogEndsInSilence()
    {
        FilesFixture f;
        f.build();
        f.import();
        QCOMPARE(FakeSdk::log().filter("GetFileFieldDescription"), QStringList("GetFileFieldDescription(, false)"));
        QCOMPARE(FilesFixture::mapsSeen(), 0);
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(WindowFixture::waiting() == nullptr);
    }

    void fullMemoryAsksNothing()
    {
        FilesFixture f;
        WindowFixture::fillStores();
        FakeSdk::setCapacity(4, 3);
        f.build();
        f.window()->checkMaxCapacity(PB_MEM_LOCAL, true);
        QVERIFY(!f.in().newContactEnabled());
        f.window()->OnClickImport();
        QVERIFY(FilesFixture::asked().isEmpty());
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void fileWithoutTitlesEndsInSilence_data()
    {
        QTest::addColumn<QString>("failing");
        QTest::addColumn<int>("nth");
        QTest::newRow("no such file") << "" << 0;
        QTest::newRow("first call fails") << "GetFileFieldDescription" << 1;
        QTest::newRow("second call fails") << "GetFileFieldDescription" << 2;
    }
    void fileWithoutTitlesEndsInSilence()
    {
        QFETCH(QString, failing);
        QFETCH(int, nth);
        FilesFixture f;
        if (!failing.isEmpty()) {
            FilesFixture::makeFile("/a/file.csv", "Name", {});
            FakeSdk::fail(failing.toLatin1(), nth);
        }
        f.build();
        FilesFixture::choose("/a/file.csv");
        f.import();
        QCOMPARE(FilesFixture::mapsSeen(), 0);
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(WindowFixture::waiting() == nullptr);
    }

    // A first answer other than "the buffer is too small" is no file for this, even 0.
    void firstAnswerMustAskForABuffer()
    {
        FilesFixture f;
        FilesFixture::makeFile("/a/file.csv", "Name,Number", {});
        f.build();
        QList<QString> titles = {"left over"};
        FakeSdk::fail("GetFileFieldDescription", 1, 3);
        f.window()->getFileFieldDescription("/a/file.csv", titles);
        QVERIFY(titles.isEmpty());
        f.window()->getFileFieldDescription("/a/file.csv", titles);
        QCOMPARE(titles, QList<QString>({"Name", "Number"}));
    }

    void titlesAreSplitAtCommas_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("titles");
        QTest::newRow("one") << QByteArray("Name") << QStringList("Name");
        QTest::newRow("three") << QByteArray("a,b,c") << QStringList({"a", "b", "c"});
        QTest::newRow("trailing comma") << QByteArray("a,b,") << QStringList({"a", "b", ""});
        QTest::newRow("empty between") << QByteArray(",a,,b") << QStringList({"", "a", "", "b"});
        QTest::newRow("quotes are not understood") << QByteArray("\"a,b\",c") << QStringList({"\"a", "b\"", "c"});
        QTest::newRow("blanks stay") << QByteArray(" a , b ") << QStringList({" a ", " b "});
        QTest::newRow("local eight-bit text") << QByteArray("Stra\xc3\x9f"
                                                            "e")
                                              << QStringList(QString::fromUtf8("Straße"));
        QTest::newRow("up to the first zero byte") << QByteArray("a,b\0c,d", 7) << QStringList({"a", "b"});
        QTest::newRow("nothing: one empty title") << QByteArray("") << QStringList("");
    }
    void titlesAreSplitAtCommas()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, titles);
        FilesFixture f;
        FilesFixture::makeFile("/a/file.csv", text, {});
        f.build();
        QList<QString> read;
        f.window()->getFileFieldDescription("/a/file.csv", read);
        QCOMPARE(QStringList(read), titles);
    }

    void fileThatChangesBetweenTheCallsGivesNoTitles()
    {
        FilesFixture f;
        FilesFixture::makeFile("/a/file.csv", "a,b", {});
        f.build();
        FakeSdk::onCall("GetFileFieldDescription", 2,
                        [] { FakeSdk::setFileTitles("/a/file.csv", "a,b,and many more titles than before"); });
        QList<QString> titles;
        f.window()->getFileFieldDescription("/a/file.csv", titles);
        QVERIFY(titles.isEmpty());
    }

    void fieldMapIsSetUpForTheFile()
    {
        FilesFixture f;
        FilesFixture::makeFile("/some/folder/people.csv", "name,ID_STR_MOBILE_PHONE,Town,", {});
        f.build();
        FilesFixture::choose("/some/folder/people.csv");
        FilesFixture::onMap([](const FilesFixture::Map& map) {
            QStringList labels;
            for (const QLabel* label : map.dialog->findChildren<QLabel*>())
                labels << label->text();
            if (!labels.contains("people.csv") || !labels.contains("IDS_LOCAL_PHONEBOOKUI"))
                qWarning() << "captions" << labels;
            FakeCore::setSetting("test", "captions",
                                 labels.contains("people.csv") && labels.contains("IDS_LOCAL_PHONEBOOKUI") ? "right"
                                                                                                           : "wrong");
            FakeCore::setSetting("test", "titles", map.titles().join(";"));
            FakeCore::setSetting("test", "mapped", map.mapped().join(";"));
            FakeCore::setSetting("test", "heights",
                                 QString("%1 %2").arg(map.source->rowHeight(10)).arg(map.memory->rowHeight(10)));
            FakeCore::setSetting("test", "last", map.source->item(3, 0)->flags() & Qt::ItemIsEnabled ? "on" : "off");
            return false;
        });
        f.import();
        QCOMPARE(FilesFixture::mapsSeen(), 1);
        const auto seen = [](const char* key) { return CommonUtils::GetSettings("test", key); };
        QCOMPARE(seen("captions"), QString("right"));
        QCOMPARE(seen("titles"), QString("name;ID_STR_MOBILE_PHONE;Town;;;;;;;;"));
        QCOMPARE(seen("mapped"), QString("name;ID_STR_MOBILE_PHONE; ; ; ; ;;;;;"));
        QCOMPARE(seen("heights"), QString("15 15"));
        QCOMPARE(seen("last"), QString("off")); // the empty title of the trailing comma
    }

    void cancelledFieldMapEndsInSilence()
    {
        FilesFixture f;
        FilesFixture::makeFile("/a/file.csv", "Name", {{"Anna"}});
        f.build();
        FilesFixture::choose("/a/file.csv");
        FilesFixture::onMap([](const FilesFixture::Map&) { return false; });
        f.import();
        QCOMPARE(FilesFixture::mapsSeen(), 1);
        QCOMPARE(FakeSdk::count("ImportFromFile"), 0);
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(WindowFixture::waiting() == nullptr);
    }

    void mapsGoToTheStoreAsPositions_data()
    {
        QTest::addColumn<QByteArray>("titles");
        QTest::addColumn<QStringList>("mapped"); // what the user sets, row by row; "-" leaves a row
        QTest::addColumn<QList<int>>("positions");
        QTest::newRow("by itself") << QByteArray("Name,Mobile,Town") << QStringList()
                                   << QList<int>({0, 1, -1, -1, -1, -1});
        QTest::newRow("nothing mapped") << QByteArray("x,y") << QStringList() << QList<int>({-1, -1, -1, -1, -1, -1});
        QTest::newRow("by the user") << QByteArray("x,y,z") << QStringList({"z", "x", "-", "y"})
                                     << QList<int>({2, 0, -1, 1, -1, -1});
        QTest::newRow("one column twice")
            << QByteArray("x,y") << QStringList({"y", "y"}) << QList<int>({1, 1, -1, -1, -1, -1});
        QTest::newRow("a title that stands twice means the later column")
            << QByteArray("Name,x,Name") << QStringList({"-", "Name"}) << QList<int>({2, 2, -1, -1, -1, -1});
        // It adds no entry, so that the others move up; the store gets as many entries as there are fields.
        QTest::newRow("a text that is no title")
            << QByteArray("x,y") << QStringList({"?", "y"}) << QList<int>({1, -1, -1, -1, -1, -1});
        QTest::newRow("compared exactly")
            << QByteArray("Name,name") << QStringList({"Name", "name"}) << QList<int>({0, 1, -1, -1, -1, -1});
    }
    void mapsGoToTheStoreAsPositions()
    {
        QFETCH(QByteArray, titles);
        QFETCH(QStringList, mapped);
        QFETCH(QList<int>, positions);
        FilesFixture f;
        FilesFixture::makeFile("/a/file.csv", titles, {});
        f.build();
        FilesFixture::choose("/a/file.csv");
        FilesFixture::onMap([&mapped](const FilesFixture::Map& map) {
            for (int row = 0; row < mapped.size(); ++row) {
                if (mapped[row] != "-")
                    map.setMapped(row, mapped[row]);
            }
            return true;
        });
        f.import();
        QCOMPARE(FakeSdk::lastFieldMap(), positions);
    }

    void failingImportIsTold_data()
    {
        QTest::addColumn<bool>("null");
        QTest::newRow("the store cannot read the file") << false;
        QTest::newRow("the store gives no records") << true;
    }
    void failingImportIsTold()
    {
        QFETCH(bool, null);
        FilesFixture f;
        FilesFixture::makeFile("/a/file.csv", "Name", {{"Anna"}});
        f.build();
        if (null)
            FakeSdk::giveNull("ImportFromFile");
        else
            FakeSdk::fail("ImportFromFile");
        FilesFixture::choose("/a/file.csv");
        f.import();
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_SMS_IMPORTFAILURE_COUNT"));
        const FakeCore::Message message = FakeCore::messages().last();
        QCOMPARE(message.icon, QMessageBox::Information);
        QCOMPARE(message.caption, QString("IDS_ERROR_CAPTION"));
        QCOMPARE(message.buttons, QStringList("IDS_OK"));
        QVERIFY(WindowFixture::waiting() == nullptr);
        QVERIFY(!f.in().threadBusy());
        QCOMPARE(FakeSdk::openTransactions(4), 0);
        QVERIFY(FilesFixture::stored(4).isEmpty());
    }

    void fileThatVanishesUnderTheFieldMapIsAFailingImport()
    {
        FilesFixture f;
        FakeSdk::setFileTitles("/a/file.csv", "Name"); // titles, and nothing to import
        f.build();
        FilesFixture::choose("/a/file.csv");
        f.import();
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_SMS_IMPORTFAILURE_COUNT"));
    }

    void fileThatShrinksUnderTheFieldMapLeavesWhatIsLeft()
    {
        FilesFixture f;
        FilesFixture::makeFile("/a/file.csv", "Name,Mobile", {{"Anna", "1"}, {"Bert", "2"}});
        f.build();
        FilesFixture::choose("/a/file.csv");
        FilesFixture::onMap([](const FilesFixture::Map&) {
            FilesFixture::makeFile("/a/file.csv", "Name", {{"Carl"}});
            return true;
        });
        f.import();
        QVERIFY(f.waitDone());
        QCOMPARE(FilesFixture::stored(4), QStringList("Carl|||||"));
    }

    void fileWithTitlesAloneIsAFailingImport()
    {
        FilesFixture f;
        FilesFixture::makeFile("/a/file.csv", "Name", {});
        f.build();
        FilesFixture::choose("/a/file.csv");
        f.import();
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_SMS_IMPORTFAILURE_COUNT"));
        QVERIFY(WindowFixture::waiting() == nullptr);
    }

    void emptyListLeavesTheDialogWithAWorkingCancel()
    {
        FilesFixture f;
        f.build();
        AddrBookWaitingDlg::GetWaitingDlgInstance(f.window())->ShowAnimation("IDS_IMPORT_STATUS", 1);
        f.window()->addImportedRecords(PB_MEM_LOCAL, {}, 0);
        QVERIFY(!f.in().threadBusy());
        FilesFixture::cancelWaiting();
        QVERIFY(FakeCore::messages().isEmpty());
        FilesFixture::makeFile("/a/file.csv", "Name", {{"Anna"}});
        FilesFixture::choose("/a/file.csv");
        f.import();
        QVERIFY(f.waitDone());
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_IMPORT_TOTAL_NUMBER1IDS_IMPORT_IMPORTED_NUMBER1"));
        QVERIFY(WindowFixture::waiting() == nullptr);
    }

    void nodeThatLeavesTheTreeWhileTheFileIsReadLeavesTheDialogWithAWorkingCancel()
    {
        FilesFixture f;
        FilesFixture::makeFile("/a/file.csv", "Name", {{"Anna"}});
        f.build();
        f.click(f.in().device());
        FilesFixture::choose("/a/file.csv");
        QTreeWidgetItem* const node = f.in().device();
        QTreeWidgetItem* const root = f.tree()->invisibleRootItem();
        FakeSdk::onCall("ImportFromFile", 1, [&f, node, root] {
            const QSignalBlocker quiet(f.tree());
            root->takeChild(root->indexOfChild(node));
        });
        f.import();
        QVERIFY(!f.in().threadBusy());
        QCOMPARE(FakeSdk::count("ImportFromFile"), 1);
        QCOMPARE(FakeSdk::count("AddAddrRec"), 0);
        FilesFixture::cancelWaiting();
        QVERIFY(FakeCore::messages().isEmpty());
        root->addChild(node);
    }

    void dialogIsBlankWhileTheFileIsRead()
    {
        FilesFixture f;
        FilesFixture::makeFile("/a/file.csv", "Name", {{"Anna"}});
        f.build();
        FilesFixture::choose("/a/file.csv");
        QStringList texts;
        int steps = -1;
        FakeSdk::onCall("ImportFromFile", 1, [&] {
            for (const QLabel* label : WindowFixture::waiting()->findChildren<QLabel*>())
                texts << label->text();
            steps = WindowFixture::waiting()->findChild<QProgressBar*>()->maximum();
        });
        f.import();
        texts.sort();
        QCOMPARE(texts, QStringList({"", "IDS_IMPORT_STATUS"}));
        QCOMPARE(steps, 1);
        QVERIFY(f.waitDone());
    }

    void windowThatGoesUnderTheFieldMapLeaksNothing()
    {
        FilesFixture f;
        FilesFixture::makeFile("/a/file.csv", "Name", {{"Anna"}});
        f.build();
        FilesFixture::choose("/a/file.csv");
        FilesFixture::onMap([&f](const FilesFixture::Map&) {
            f.destroy();
            return true;
        });
        f.import();
        QCOMPARE(FakeSdk::count("ImportFromFile"), 0);
    }
};

QTEST_MAIN(ImportTest)
#include "ImportTest.moc"
