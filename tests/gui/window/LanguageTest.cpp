#include "WindowFixture.h"

// The window in another language and in a right-to-left layout.
class LanguageTest : public WindowTest
{
    Q_OBJECT

private slots:
    void languageChangeRewritesHeaderAndPreview()
    {
        FakeCore::reset();
        WindowFixture f;
        WindowFixture::fillStores();
        FakeCore::setText("ID_STR_NAME", "Nom", "fr");
        FakeCore::setText("IDS_LOCAL_PHONEBOOKUI", "Ordinateur", "fr");
        FakeCore::setText("IDS_PMMENU_ADD", "Nouveau", "fr");
        FakeCore::setShortcut("IDS_PMBTN_ADD", QKeySequence("Ctrl+T"), "fr");
        FakeCore::setText("IDS_PMBTN_ADD", "Nouveau contact", "fr");
        f.build();
        f.selectRows({0});
        QVERIFY(f.previewText().startsWith("ID_STR_NAME: Anna"));
        const AddrBookThread* reader = f.in().reader();
        FakeCore::setLanguage("fr");
        f.window()->SetLanguage();
        QCOMPARE(f.table()->horizontalHeaderItem(0)->text(), QString("Nom"));
        QVERIFY(f.previewText().startsWith("Nom: Anna"));
        QCOMPARE(f.in().local()->text(0), QString("Ordinateur(3)"));
        QCOMPARE(f.tableAction("IDS_PMMENU_ADD")->text(), QString("Nouveau"));
        QCOMPARE(f.button(TOOL_NEW)->toolTip(), QString("Nouveau contact  (Ctrl+T)"));
        QCOMPARE(static_cast<const AddrBookThread*>(f.in().reader()), reader);
    }

    void languageChangeEndsAtARowThatCannotBeRead()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeCore::setText("ID_STR_NAME", "Nom", "fr");
        FakeCore::setText("IDS_PMBTN_ADD", "Nouveau contact", "fr");
        f.build();
        f.selectRows({0});
        const QString tip = f.button(TOOL_NEW)->toolTip();
        const QString preview = f.previewText();
        QTableWidgetItem* cell = f.table()->item(0, 0);
        delete tableRowData(cell);
        cell->setData(Qt::UserRole, QVariant());
        FakeCore::setLanguage("fr");
        f.window()->SetLanguage();
        QCOMPARE(f.table()->horizontalHeaderItem(0)->text(), QString("Nom"));
        QCOMPARE(f.previewText(), preview);
        QCOMPARE(f.button(TOOL_NEW)->toolTip(), tip);
        // With nothing selected the preview has its text by then.
        FakeCore::setText("IDS_NORECORDSELECT", "Nichts", "de");
        f.selectRows({});
        QVERIFY(f.in().previewEmpty());
        FakeCore::setLanguage("de");
        f.window()->SetLanguage();
        QCOMPARE(f.previewText(), QString("Nichts"));
    }

    void languageChangeWithNothingSelectedShowsTheNewNoRecordText()
    {
        WindowFixture f;
        FakeCore::setText("IDS_NORECORDSELECT", "Rien", "fr");
        f.build();
        FakeCore::setLanguage("fr");
        f.window()->SetLanguage();
        QCOMPARE(f.previewText(), QString("Rien"));
    }

    void rightToLeftLayoutCorrectsCountsAndCells()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeCore::setParenthesisCorrection([](QString& text) { text.prepend("<"); });
        FakeSdk::setCapacity(1, 0);
        qApp->setLayoutDirection(Qt::RightToLeft);
        f.build();
        qApp->setLayoutDirection(Qt::LeftToRight);
        QVERIFY(f.in().rightToLeft());
        QVERIFY(!f.in().device()->text(0).startsWith("<")); // shows no count
        QCOMPARE(f.in().local()->text(0), QString("<IDS_LOCAL_PHONEBOOKUI(3)"));
        QVERIFY(f.in().sim()->text(0).startsWith("<"));
        QCOMPARE(f.table()->item(0, 0)->text(), QString("<Anna"));
        // A row that the window adds by itself is not corrected.
        AddrBookRecord record{77, {"Zoe", "1", "", "", "", ""}};
        int row = -1;
        f.table()->setSortingEnabled(false);
        f.window()->addContactToTable(PB_MEM_LOCAL, record, 0, row);
        QCOMPARE(f.table()->item(row, 0)->text(), QString("Zoe"));
    }
};

QTEST_MAIN(LanguageTest)
#include "LanguageTest.moc"
