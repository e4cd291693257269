#include <QTimer>

#include "FilesFixture.h"

// Contacts from the desktop's contact applications.
class OutlookTest : public WindowTest
{
    Q_OBJECT

private:
    // Nothing in the window turns the entries on; the menu's builder may.
    static void turnOn(const FilesFixture& f)
    {
        for (const char* id : {"IDS_PMMENU_IMPORT_FROM_MOO", "IDS_PMMENU_IMPORT_FROM_MOE"})
            f.tableAction(id)->setEnabled(true);
    }

    // A slot runs, and the user presses OK at the field map.
    static void run(FilesFixture& f, const char* slot)
    {
        bool seen = false;
        QTimer timer;
        timer.setInterval(0);
        connect(&timer, &QTimer::timeout, [&seen] {
            for (ExtendDialog* dialog : FakeCore::dialogs()) {
                auto* button = dialog->findChild<QAbstractButton*>("AddrUIplugin_FieldMapokbtn");
                if (dialog->isVisible() && button != nullptr && !seen) {
                    seen = true;
                    button->click();
                }
            }
        });
        timer.start();
        QMetaObject::invokeMethod(f.window(), slot);
    }

private slots:
    void recordsOfAnApplicationAreImported_data()
    {
        QTest::addColumn<QByteArray>("slot");
        QTest::addColumn<QString>("source");
        QTest::newRow("mail client") << QByteArray("OnBnClickedBtnMOO") << "Outlook";
        QTest::newRow("its smaller sibling") << QByteArray("OnBnClickedBtnMOE") << "Outlook Express";
    }
    void recordsOfAnApplicationAreImported()
    {
        QFETCH(QByteArray, slot);
        QFETCH(QString, source);
        FilesFixture f;
        f.build();
        turnOn(f);
        FakeSdk::setOutlookInstalled(source.toLatin1(), true);
        FakeSdk::setImport(source, {{"Anna", "1", "2", "3", "a@b.org", "5"}});
        run(f, slot);
        QVERIFY(f.waitDone());
        // Every field is mapped to itself.
        QCOMPARE(FakeSdk::lastFieldMap(), QList<int>({0, 1, 2, 3, 4, 5}));
        QCOMPARE(FilesFixture::stored(4), QStringList("Anna|1|2|3|a@b.org|5"));
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_IMPORT_TOTAL_NUMBER1IDS_IMPORT_IMPORTED_NUMBER1"));
        QCOMPARE(f.in().outlookUsable(), source == "Outlook");
        // The answer about each application rules its own button.
        f.window()->SetImportBtnState(PB_MEM_LOCAL);
        QCOMPARE(f.button(TOOL_IMPORT_MOO)->isEnabled(), source == "Outlook");
        QCOMPARE(f.button(TOOL_IMPORT_MOE)->isEnabled(), source != "Outlook");
    }

    void applicationThatIsNotThereTurnsItsItemOff()
    {
        FilesFixture f;
        f.build();
        turnOn(f);
        f.in().outlookUsable() = true;
        f.window()->enableItem(TOOL_IMPORT_MOO);
        f.window()->OnBnClickedBtnMOO();
        QVERIFY(!f.in().outlookUsable());
        QVERIFY(!f.button(TOOL_IMPORT_MOO)->isEnabled());
        QCOMPARE(FakeSdk::count("ImportFromOutlook"), 0);
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void itemAndKeysObeyTheMenuEntry()
    {
        FilesFixture f;
        WindowFixture::fillStores();
        f.build();
        turnOn(f);
        FakeSdk::setOutlookInstalled("Outlook", true);
        f.window()->enableOutlookMenu(false, TOOL_IMPORT_MOO);
        QVERIFY(!f.tableAction("IDS_PMMENU_IMPORT_FROM_MOO")->isEnabled());
        QVERIFY(f.tableAction("IDS_PMMENU_IMPORT_FROM_MOE")->isEnabled());
        FakeSdk::clearCalls();
        f.window()->OnBnClickedBtnMOO();
        QTest::keyClick(f.table(), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(FakeSdk::count("IsOutlookInstalled"), 0);
        QTest::keyClick(f.table(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(FakeSdk::log().filter("IsOutlookInstalled"), QStringList("IsOutlookInstalled(Outlook Express)"));
    }

    void eachButtonOfTheBarAsksForItsApplication()
    {
        FilesFixture f;
        f.build();
        turnOn(f);
        for (const int id : {TOOL_IMPORT_MOO, TOOL_IMPORT_MOE}) {
            f.window()->enableItem(id);
            FakeSdk::clearCalls();
            f.button(id)->click();
            QCOMPARE(FakeSdk::log().filter("IsOutlookInstalled"),
                     QStringList(id == TOOL_IMPORT_MOO ? "IsOutlookInstalled(Outlook)"
                                                       : "IsOutlookInstalled(Outlook Express)"));
        }
    }

    void memoryWithoutFieldsAsksNothing()
    {
        FilesFixture f;
        FakeSdk::setFields(4, {});
        f.build();
        FakeSdk::setOutlookInstalled("Outlook", true);
        f.window()->ImportOutlookRecords("Outlook");
        QVERIFY(FakeCore::dialogs().isEmpty());
        QCOMPARE(FakeSdk::count("ImportFromOutlook"), 0);
        QVERIFY(FakeCore::messages().isEmpty());
    }

    // The end of a read counts as a change of the selection, and nothing turns them on again.
    void readOrSelectionTurnsTheImportOffForGood_data()
    {
        QTest::addColumn<bool>("read");
        QTest::newRow("read") << true;
        QTest::newRow("selection") << false;
    }
    void readOrSelectionTurnsTheImportOffForGood()
    {
        QFETCH(bool, read);
        FilesFixture f;
        WindowFixture::fillStores();
        f.build();
        turnOn(f);
        if (read)
            f.click(f.in().sim());
        else
            f.selectRows({0});
        for (const char* id : {"IDS_PMMENU_IMPORT_FROM_MOO", "IDS_PMMENU_IMPORT_FROM_MOE"})
            QVERIFY(!f.tableAction(id)->isEnabled());
        for (const int id : {TOOL_IMPORT_MOO, TOOL_IMPORT_MOE})
            QVERIFY(!f.button(id)->isEnabled());
        f.click(f.in().local());
        f.selectRows({});
        FakeSdk::setOutlookInstalled("Outlook", true);
        f.window()->OnBnClickedBtnMOO();
        QCOMPARE(FakeSdk::count("IsOutlookInstalled"), 0);
    }

    void itemsNeedRoomInThePhonebookOfThePc()
    {
        FilesFixture f;
        WindowFixture::fillStores();
        f.build();
        f.in().outlookUsable() = true;
        f.window()->SetImportBtnState(PB_MEM_LOCAL);
        QVERIFY(f.button(TOOL_IMPORT_MOO)->isEnabled());
        QVERIFY(!f.button(TOOL_IMPORT_MOE)->isEnabled());
        f.window()->SetImportBtnState(PB_MEM_SIM);
        QVERIFY(!f.button(TOOL_IMPORT_MOO)->isEnabled());
        FakeSdk::setCapacity(4, 3);
        f.window()->SetImportBtnState(PB_MEM_LOCAL);
        QVERIFY(!f.button(TOOL_IMPORT_MOO)->isEnabled());
    }

    void memoryThatIsFullAsksNothing()
    {
        FilesFixture f;
        WindowFixture::fillStores();
        FakeSdk::setCapacity(4, 3);
        f.build();
        f.window()->checkMaxCapacity(PB_MEM_LOCAL, true);
        FakeSdk::setOutlookInstalled("Outlook", true);
        const int profiles = FakeSdk::count("GetProfile");
        f.window()->ImportOutlookRecords("Outlook");
        QCOMPARE(FakeSdk::count("GetProfile"), profiles);
        QVERIFY(FakeCore::dialogs().isEmpty());
    }

    void failingImportIsTold()
    {
        FilesFixture f;
        f.build();
        turnOn(f);
        FakeSdk::setOutlookInstalled("Outlook", true); // nothing to import
        run(f, "OnBnClickedBtnMOO");
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_SMS_IMPORTFAILURE_COUNT"));
        QCOMPARE(FakeCore::messages().last().caption, QString("IDS_ERROR_CAPTION"));
        QVERIFY(WindowFixture::waiting() == nullptr);
    }

    void cancelledOrEmptyFieldMapEndsInSilence_data()
    {
        QTest::addColumn<bool>("ok");
        QTest::newRow("cancelled") << false;
        QTest::newRow("no text is a title") << true;
    }
    void cancelledOrEmptyFieldMapEndsInSilence()
    {
        QFETCH(bool, ok);
        FilesFixture f;
        f.build();
        turnOn(f);
        FakeSdk::setOutlookInstalled("Outlook", true);
        FilesFixture::onMap([ok](const FilesFixture::Map& map) {
            for (int row = 0; row < 6; ++row)
                map.setMapped(row, "no such title");
            return ok;
        });
        f.importFrom("OnBnClickedBtnMOO");
        QCOMPARE(FilesFixture::mapsSeen(), 1);
        QCOMPARE(FakeSdk::count("ImportFromOutlook"), 0);
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(WindowFixture::waiting() == nullptr);
    }

    // The application's own names of its fields are not shown.
    void fieldMapShowsThePhonebooksLabelsWithEveryFieldMapped()
    {
        FilesFixture f;
        FakeCore::setText("ID_STR_NAME", "Full name");
        f.build();
        f.click(f.in().sim());
        turnOn(f);
        FakeSdk::setOutlookInstalled("Outlook", true);
        FakeSdk::setImport("Outlook", {{"Anna", "1"}});
        QStringList titles;
        QStringList mapped;
        FilesFixture::onMap([&](const FilesFixture::Map& map) {
            titles = map.titles();
            mapped = map.mapped();
            return false;
        });
        f.importFrom("OnBnClickedBtnMOO");
        QCOMPARE(titles.mid(0, 3), QStringList({"Full name", "ID_STR_MOBILE_PHONE", ""}));
        QCOMPARE(mapped.mid(0, 3), QStringList({"Full name", "ID_STR_MOBILE_PHONE", ""}));
    }

    void recordsGoToTheCurrentMemory()
    {
        FilesFixture f;
        f.build();
        f.click(f.in().sim());
        turnOn(f);
        FakeSdk::setOutlookInstalled("Outlook", true);
        FakeSdk::setImport("Outlook", {{"Anna", "1"}});
        run(f, "OnBnClickedBtnMOO");
        QVERIFY(f.waitDone());
        QCOMPARE(FakeSdk::lastFieldMap(), QList<int>({0, 1}));
        QCOMPARE(FilesFixture::stored(0), QStringList("Anna|1"));
    }
};

QTEST_MAIN(OutlookTest)
#include "OutlookTest.moc"
