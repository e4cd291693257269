#include <QStandardPaths>

#include "FilesFixture.h"
#include "window/FileDialogs.h"

// Contacts of the table on their way to a file.
class ExportTest : public WindowTest
{
    Q_OBJECT

private:
    static QStringList exportedNames(int memory)
    {
        QStringList names;
        const QList<FakeSdk::Export> exports = FakeSdk::exports();
        for (int id : exports.last().ids)
            names << FakeSdk::record(memory, id).value(0);
        return names;
    }

private slots:
    void fileDialogOffersTheCsvFilesOfTheDesktop()
    {
        FilesFixture f;
        f.build();
        f.tableAction("IDS_EXPORT_PHONEBOOK")->trigger();
        QCOMPARE(FilesFixture::asked().size(), 1);
        QCOMPARE(FilesFixture::asked()[0].title, QString("Save As"));
        QCOMPARE(FilesFixture::asked()[0].start,
                 QStandardPaths::writableLocation(QStandardPaths::DesktopLocation) + "/*.csv");
        QCOMPARE(FilesFixture::asked()[0].filter, QString("Excel Files (*.csv)"));
        // Cancelled.
        QVERIFY(FakeSdk::exports().isEmpty());
        QVERIFY(FakeCore::messages().isEmpty());
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_EXPORT_ALL);
        f.tableAction("IDS_EXPORT_PHONEBOOKSEL")->setEnabled(true);
        f.tableAction("IDS_EXPORT_PHONEBOOKSEL")->trigger();
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_EXPORT_SELECTED);
        QCOMPARE(FilesFixture::asked().size(), 2);
    }

    void fileNames_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("written");
        QTest::newRow("no extension") << "report"
                                      << "report.csv";
        QTest::newRow("three letters") << "report.txt"
                                       << "report.txt";
        QTest::newRow("its own") << "report.csv"
                                 << "report.csv";
        QTest::newRow("four letters") << "x.abcd"
                                      << "x.abcd.csv";
        QTest::newRow("shorter than four characters") << "a.b"
                                                      << "a.b";
        QTest::newRow("one letter") << "report.c"
                                    << "report.c.csv";
        QTest::newRow("a dot at the end") << "report."
                                          << "report..csv";
        QTest::newRow("only an extension") << ".csv"
                                           << ".csv";
        QTest::newRow("nothing") << ""
                                 << ".csv";
        QTest::newRow("a dot in the folder") << "/home/a.b/report"
                                             << "/home/a.b/report.csv";
        QTest::newRow("four characters without a dot") << "abcd"
                                                       << "abcd.csv";
        QTest::newRow("four characters with a dot inside") << "ab.c"
                                                           << "ab.c.csv";
    }
    void fileNames()
    {
        QFETCH(QString, chosen);
        QFETCH(QString, written);
        FilesFixture f;
        WindowFixture::fillStores();
        f.build();
        f.in().setOperation(ADDRBOOK_OP_EXPORT_ALL);
        f.window()->OnFileSelected(chosen);
        QCOMPARE(FakeSdk::exports().size(), 1);
        QCOMPARE(FakeSdk::exports().last().path, written);
    }

    void allRowsAreExportedInTheirOrder()
    {
        FilesFixture f;
        WindowFixture::fillStores();
        f.build();
        f.table()->sortItems(0, Qt::DescendingOrder);
        FilesFixture::choose("/a/all.csv");
        f.tableAction("IDS_EXPORT_PHONEBOOK")->trigger();
        QCOMPARE(FakeSdk::exports().size(), 1);
        QCOMPARE(FakeSdk::exports().last().memory, 4);
        QCOMPARE(FakeSdk::exports().last().path, QString("/a/all.csv"));
        QCOMPARE(exportedNames(4), QStringList({"Carl", "Bert", "Anna"}));
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_SMS_EXPORTSUCCESS_COUNT"));
        const FakeCore::Message message = FakeCore::messages().last();
        QCOMPARE(message.icon, QMessageBox::Information);
        QCOMPARE(message.caption, QString("IDS_PROMPT_CAPTION"));
        QCOMPARE(message.buttons, QStringList("IDS_OK"));
    }

    void selectedBlocksAreExportedFromTheLowerOne()
    {
        FilesFixture f;
        for (const char* name : {"A", "B", "C", "D", "E", "F"})
            FakeSdk::addRecord(4, {name, "1"});
        f.build();
        f.table()->clearSelection();
        f.table()->setRangeSelected(QTableWidgetSelectionRange(0, 0, 1, f.table()->columnCount() - 1), true);
        f.table()->setRangeSelected(QTableWidgetSelectionRange(3, 0, 4, f.table()->columnCount() - 1), true);
        FilesFixture::choose("/a/some.csv");
        f.tableAction("IDS_EXPORT_PHONEBOOKSEL")->trigger();
        QCOMPARE(exportedNames(4), QStringList({"D", "E", "A", "B"}));
    }

    void searchResultIsExportedAndNotTheMemory()
    {
        FilesFixture f;
        WindowFixture::fillStores();
        f.build();
        f.in().updateTable("ert");
        QCOMPARE(f.column(0), QStringList("Bert"));
        FilesFixture::choose("/a/found.csv");
        f.tableAction("IDS_EXPORT_PHONEBOOK")->trigger();
        QCOMPARE(exportedNames(4), QStringList("Bert"));
    }

    void memoryIsThatOfTheCurrentNode()
    {
        FilesFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().device());
        FilesFixture::choose("/a/device.csv");
        f.tableAction("IDS_EXPORT_PHONEBOOK")->trigger();
        QCOMPARE(FakeSdk::exports().last().memory, 1);
        QCOMPARE(exportedNames(1), QStringList({"Emil", "Frida"}));
        f.click(f.node("Friends"));
        f.tableAction("IDS_EXPORT_PHONEBOOK")->trigger();
        QCOMPARE(FakeSdk::exports().last().memory, 4);
        QCOMPARE(exportedNames(4), QStringList({"Anna", "Bert"}));
    }

    void folderThatCannotBeWrittenIsTold()
    {
        FilesFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeSdk::fail("ExportToFile");
        FilesFixture::choose("/no/such/folder/all.csv");
        f.tableAction("IDS_EXPORT_PHONEBOOK")->trigger();
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_SMS_EXPORTFAILURE_COUNT"));
        QCOMPARE(FakeCore::messages().last().caption, QString("IDS_ERROR_CAPTION"));
        QCOMPARE(FakeCore::messages().last().icon, QMessageBox::Information);
    }

    void emptyTableIsExportedAsAnEmptyList()
    {
        FilesFixture f;
        f.build();
        FilesFixture::choose("/a/none.csv");
        f.tableAction("IDS_EXPORT_PHONEBOOK")->trigger();
        QCOMPARE(FakeSdk::exports().size(), 1);
        QVERIFY(FakeSdk::exports().last().ids.isEmpty());
    }

    void otherOperationWritesNoFile()
    {
        FilesFixture f;
        WindowFixture::fillStores();
        f.build();
        f.in().setOperation(ADDRBOOK_OP_NONE);
        QVERIFY(f.window()->saveToFile("/a/none.csv"));
        QVERIFY(FakeSdk::exports().isEmpty());
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void answerIsAlwaysYes()
    {
        FilesFixture f;
        f.build();
        f.in().setOperation(ADDRBOOK_OP_EXPORT_ALL);
        FakeSdk::fail("ExportToFile");
        QVERIFY(f.window()->saveToFile("/a/all.csv"));
        QVERIFY(f.window()->saveToFile("/a/all.csv"));
        QCOMPARE(FakeSdk::count("ExportToFile"), 2);
    }

    void eachContactIsAskedForOnceMore()
    {
        FilesFixture f;
        WindowFixture::fillStores();
        f.build();
        FilesFixture::choose("/a/all.csv");
        FakeSdk::clearCalls();
        f.tableAction("IDS_EXPORT_PHONEBOOK")->trigger();
        QCOMPARE(FakeSdk::count("GetAddrRecord"), 3);
        QCOMPARE(FakeSdk::exports().last().ids, QList<int>({1, 2, 3}));
    }

    void contactThatIsGoneIsStillNamed()
    {
        FilesFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeSdk::removeRecord(4, 2);
        FilesFixture::choose("/a/all.csv");
        f.tableAction("IDS_EXPORT_PHONEBOOK")->trigger();
        QCOMPARE(FakeSdk::exports().last().ids, QList<int>({1, 2, 3}));
    }

    void eachCallFailsOnce()
    {
        bool failed = true;
        for (int k = 1; failed && k < 500; ++k) {
            FilesFixture f;
            WindowFixture::fillStores();
            f.build();
            FakeSdk::failCall(k);
            FilesFixture::choose("/a/all.csv");
            f.tableAction("IDS_EXPORT_PHONEBOOK")->trigger();
            const QByteArray name = FakeSdk::failedCall();
            failed = !name.isEmpty();
            FakeSdk::clearFailures();
            QCOMPARE(FakeCore::messageTexts(), QStringList(name == "ExportToFile" ? "IDS_SMS_EXPORTFAILURE_COUNT"
                                                                                  : "IDS_SMS_EXPORTSUCCESS_COUNT"));
            if (name != "ExportToFile")
                QCOMPARE(FakeSdk::exports().last().ids, QList<int>({1, 2, 3}));
            f.destroy();
            QVERIFY2(FakeSdk::leaks().isEmpty(), name.constData());
        }
        QVERIFY(!failed);
    }

    // A null answer is a cancel; an empty one is a name that gets its extension.
    void emptyAnswerIsNoCancel_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("exports");
        QTest::newRow("null") << QString() << 0;
        QTest::newRow("empty") << QString("") << 1;
    }
    void emptyAnswerIsNoCancel()
    {
        QFETCH(QString, answer);
        QFETCH(int, exports);
        FilesFixture f;
        f.build();
        FilesFixture::choose(answer);
        f.window()->OnClickExportAllContacts();
        QCOMPARE(FakeSdk::exports().size(), exports);
        if (exports > 0)
            QCOMPARE(FakeSdk::exports().last().path, QString(".csv"));
    }

    void windowThatGoesUnderTheFileDialogExportsNothing()
    {
        static FilesFixture* s_fixture = nullptr;
        FilesFixture f;
        f.build();
        s_fixture = &f;
        FileDialogs::setChoosers(nullptr, [](QWidget*, const QString&, const QString&, const QString&) {
            s_fixture->destroy();
            return QString("/a/all.csv");
        });
        f.window()->OnClickExportAllContacts();
        QVERIFY(FakeSdk::exports().isEmpty());
    }
};

QTEST_MAIN(ExportTest)
#include "ExportTest.moc"
