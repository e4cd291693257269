#include "EditSupport.h"

// How the form is built from a memory's field list, and what validators its inputs get.
class EditFormTest : public DialogTest
{
    Q_OBJECT

private slots:
    void heightGrowsByTheFieldsOfTheLocalMemory()
    {
        FakeSdk::setFields(4, {editField("Name", 10, "Name", "ID_STR_NAME"),
                               editField("Mobile", 10, "Mobile", "ID_STR_MOBILE_PHONE"),
                               editField("email", 10, "Email", "ID_STR_EMAIL")});
        EditForm form(4);
        QCOMPARE(form.access.window()->size(), QSize(410, 116 + 3 * 24));
    }

    void heightOfTheUsualLocalFormIs364()
    {
        EditForm form(4);
        QCOMPARE(form.access.window()->size(), QSize(410, 364));
        QCOMPARE(form.access.window()->minimumSize(), form.access.window()->maximumSize());
    }

    void heightOfADeviceSideFormIsAlways145_data()
    {
        QTest::addColumn<int>("memory");
        QTest::addColumn<bool>("wide");
        QTest::newRow("card") << 0 << false;
        QTest::newRow("device") << 1 << false;
        QTest::newRow("wide device") << 1 << true;
        QTest::newRow("wide card") << 0 << true;
    }
    void heightOfADeviceSideFormIsAlways145()
    {
        QFETCH(int, memory);
        QFETCH(bool, wide);
        if (wide)
            FakeSdk::setFields(memory, FakeSdk::wideDeviceFields());
        EditForm form(memory);
        QCOMPARE(form.access.window()->size(), QSize(410, 145));
    }

    void keyMobileInAnyCaseIsTheMobileRow()
    {
        FakeSdk::setFields(4, {editField("NAME", 10, "Name", "ID_STR_NAME"),
                               editField("MOBILE", 12, "Mobile", "ID_STR_MOBILE_PHONE")});
        EditForm form(4);
        QVERIFY(form.access.name() != nullptr);
        QVERIFY(form.access.mobile() != nullptr);
        QVERIFY(form.access.mobile()->m_bNumberKeysOnly);
        QVERIFY(!form.access.name()->m_bNumberKeysOnly);
        QCOMPARE(form.access.mobile()->maxLength(), 12);
        QVERIFY(form.access.items().isEmpty());
    }

    void keyRemarkInAnotherCaseIsAPlainRow()
    {
        FakeSdk::setFields(
            4, {editField("Name", 10, "Name", "ID_STR_NAME"), editField("Remark", 30, "Remaik", "ID_STR_NOTES")});
        EditForm form(4);
        QVERIFY(form.access.remarks() == nullptr);
        QCOMPARE(form.access.items().size(), 1);
        QCOMPARE(form.access.items().at(0).strType, QString("Remaik"));
        QCOMPARE(form.access.items().at(0).pLineEdit->maxLength(), 30);
        QCOMPARE(form.access.window()->height(), 86 + 24 + 128 + 30);
    }

    void rowsStandInTheOrderOfTheFields()
    {
        EditForm form(4);
        QGridLayout* grid = form.access.grid();
        QCOMPARE(grid->columnMinimumWidth(0), 155);
        const QStringList labels = {"ID_STR_NAME",       "ID_STR_MOBILE_PHONE", "ID_STR_BUSINESS_PHONE",
                                    "ID_STR_HOME_PHONE", "ID_STR_EMAIL",        "ID_STR_NOTES"};
        for (int row = 0; row < labels.size(); ++row) {
            auto* label = qobject_cast<QLabel*>(grid->itemAtPosition(row, 0)->widget());
            QCOMPARE(label->text(), labels.at(row));
            QVERIFY(label->buddy() == form.input(row));
        }
        for (int row = 0; row < 5; ++row)
            QVERIFY(grid->itemAtPosition(row, 1)->widget() == form.input(row));
        QVERIFY(grid->itemAtPosition(5, 1) == nullptr);
        QVERIFY(grid->itemAtPosition(6, 0)->widget() == form.access.remarks());
        QVERIFY(grid->itemAtPosition(6, 1)->widget() == form.access.remarks());
        QCOMPARE(grid->rowCount(), 7);
    }

    void inputsBearTheirFieldAndNoContextMenu()
    {
        EditForm form(4);
        QCOMPARE(form.access.name()->m_field.strName, QString("Name"));
        QCOMPARE(form.access.remarks()->m_field.strName, QString("remark"));
        QCOMPARE(form.access.items().at(1).pLineEdit->m_field.strName, QString("homePhone"));
        for (int i = 0; i < 6; ++i)
            QCOMPARE(form.input(i)->contextMenuPolicy(), Qt::NoContextMenu);
        QVERIFY(form.access.remarks()->tabChangesFocus());
        QVERIFY(!form.access.remarks()->acceptRichText());
        QCOMPARE(form.access.remarksMaxLength(), 200);
    }

    void numberFieldsAreRemembered()
    {
        EditForm form(4);
        QCOMPARE(form.access.mobileIndex(), 1);
        QCOMPARE(form.access.numberIndexes(), (QList<int>{2, 3}));
    }

    void withoutAMobileKindTheIndexStaysBehindTheName()
    {
        EditForm form(0);
        QCOMPARE(form.access.mobileIndex(), 1);
        QCOMPARE(form.access.numberIndexes(), QList<int>{1});
        QVERIFY(form.access.mobile() == nullptr);
    }

    void mobileIndexFollowsTheKind()
    {
        FakeSdk::setFields(4, {editField("Name", 10, "Name", "ID_STR_NAME"),
                               editField("email", 10, "Email", "ID_STR_EMAIL"),
                               editField("Mobile", 10, "Mobile", "ID_STR_MOBILE_PHONE")});
        EditForm form(4);
        QCOMPARE(form.access.mobileIndex(), 2);
    }

    void aMemoryThatDoesNotAnswerGivesAnEmptyForm()
    {
        FakeSdk::failAlways("GetProfile");
        EditForm form(1);
        QVERIFY(form.access.name() == nullptr);
        QVERIFY(form.access.ok() != nullptr);
        QVERIFY(!form.access.ok()->isEnabled());
        form.dialog.setRegEx();
        QCOMPARE(form.run([&] { form.access.cancel()->click(); }), 1);
    }

    // ---- Validators ----------------------------------------------------------------------------------------------

    void patternLeavesOutWhatIsRefused()
    {
        QCOMPARE(AddrBookEditDlgAccess::pattern("0123", "3", 20), QString("[+]{0,1}[012]{0,20}"));
    }

    void pattern_data()
    {
        QTest::addColumn<QString>("include");
        QTest::addColumn<QString>("exclude");
        QTest::addColumn<int>("max");
        QTest::addColumn<QString>("pattern");
        QTest::newRow("nothing fits") << "0123"
                                      << "null" << 0 << "[+]{0,1}[null]{0,0}";
        QTest::newRow("no sets") << "null"
                                 << "null" << 7 << "[+]{0,1}[null]{0,7}";
        QTest::newRow("refused") << "null"
                                 << "ab" << 7 << "[+]{0,1}[^ab]{0,7}";
        QTest::newRow("accepted") << "0123456789+*#"
                                  << "null" << 40 << "[+]{0,1}[0123456789*#]{0,40}";
        QTest::newRow("both") << "0a1A+"
                              << "a" << 3 << "[+]{0,1}[01A]{0,3}";
    }
    void pattern()
    {
        QFETCH(QString, include);
        QFETCH(QString, exclude);
        QFETCH(int, max);
        QTEST(AddrBookEditDlgAccess::pattern(include, exclude, max), "pattern");
    }

    void aMaximumOfNoneTakesAtMostAPlusSign()
    {
        FakeSdk::setFields(4, {editField("Name", 0, "Name", "ID_STR_NAME", "0123")});
        EditForm form(4);
        form.dialog.setRegEx();
        QVERIFY(form.access.nameValidator() != nullptr);
        QCOMPARE(form.access.nameValidator()->regExp().pattern(), QString("[+]{0,1}[null]{0,0}"));
        QString text = "+";
        int position = 0;
        QCOMPARE(form.access.nameValidator()->validate(text, position), QValidator::Acceptable);
        text = "0";
        QCOMPARE(form.access.nameValidator()->validate(text, position), QValidator::Invalid);
    }

    void aMaximumOfNoneWithoutSetsTakesNothingAndHasNoValidator()
    {
        FakeSdk::setFields(4, {editField("Name", 0, "Name", "ID_STR_NAME")});
        EditForm form(4);
        form.dialog.setRegEx();
        QVERIFY(form.access.name()->validator() == nullptr);
        QTest::keyClicks(form.access.name(), "+a1");
        QCOMPARE(form.access.name()->text(), QString());
    }

    void withoutCharacterSetsThePatternIsThrownAway()
    {
        EditForm form(4);
        form.dialog.setRegEx();
        QVERIFY(form.access.nameValidator() == nullptr);
        QVERIFY(form.access.name()->validator() == nullptr);
        QCOMPARE(form.access.name()->maxLength(), 80);
        QVERIFY(form.access.mobileValidator() != nullptr);
        QCOMPARE(form.access.mobile()->validator(), form.access.mobileValidator());
        QVERIFY(form.access.items().at(0).pValidator != nullptr);
        QVERIFY(form.access.items().at(2).pValidator == nullptr);
        QVERIFY(form.access.mobileValidator()->parent() == &form.dialog);
        QCOMPARE(form.access.mobileValidator()->regExp().caseSensitivity(), Qt::CaseSensitive);
    }

    void validatorsSetTwiceAreReplaced()
    {
        EditForm form(4);
        form.dialog.setRegEx();
        form.dialog.setRegEx();
        QCOMPARE(form.dialog.findChildren<QRegExpValidator*>().size(), 3);
    }

    void theUnusedNumberExpression()
    {
        EditForm form(4);
        QString pattern;
        form.dialog.getStringForRegExpr(12, pattern);
        QCOMPARE(pattern, QString("[+]{0,1}[0-9*#]{0,12}"));
    }

    // ---- Filling in ----------------------------------------------------------------------------------------------

    void loadingFillsEveryInputAndLeavesOkOff()
    {
        const QStringList values = {"Ada", "123", "456", "789", "ada@example.org", "two\nlines"};
        const int id = FakeSdk::addRecord(4, values);
        EditForm form(4, ADDRBOOK_OP_EDIT);
        form.load(4, id);
        form.dialog.setRegEx();
        for (int i = 0; i < values.size(); ++i)
            QCOMPARE(form.text(i), values.at(i));
        QVERIFY(!form.access.ok()->isEnabled());
        QCOMPARE(form.access.prevRemarks(), QString("two\nlines"));
        QTest::keyClicks(form.access.name(), "!");
        QVERIFY(form.access.ok()->isEnabled());
    }

    void aNewContactHasOkOffUntilSomethingIsTyped()
    {
        EditForm form(4);
        QVERIFY(!form.access.ok()->isEnabled());
        QTest::keyClicks(form.access.name(), "A");
        QVERIFY(form.access.ok()->isEnabled());
        QTest::keyClick(form.access.name(), Qt::Key_Backspace);
        QVERIFY(!form.access.ok()->isEnabled());
    }

    void keysBehindTheLastPlainFieldGetNoValueAndDoNotEndTheLoop()
    {
        EditForm form(4);
        form.access.fieldNames() = {"ID_STR_NAME", "one", "two", "three", "four", "five", "ID_STR_NOTES"};
        AddrBookRecord record;
        record.iID = 3;
        record.lstValues = QList<QString>{"Ada", "1", "2", "3", "4", "5", "remark"};
        form.dialog.SetEditCotactDetails(record);
        QCOMPARE(form.access.items().at(0).pLineEdit->text(), QString("1"));
        QCOMPARE(form.access.items().at(2).pLineEdit->text(), QString("3"));
        QCOMPARE(form.access.remarks()->toPlainText(), QString("remark"));
        QCOMPARE(form.access.mobile()->text(), QString());
    }

    void aRecordWithTooFewValuesFillsInEmptyTexts()
    {
        EditForm form(4, ADDRBOOK_OP_EDIT);
        AddrBookRecord record;
        record.iID = 3;
        record.lstValues = QList<QString>{"Ada"};
        form.dialog.SetEditCotactDetails(record);
        QCOMPARE(form.access.name()->text(), QString("Ada"));
        QCOMPARE(form.access.remarks()->toPlainText(), QString());
    }

    void aSavedNumberGoesIntoTheMobileField()
    {
        EditForm form(4);
        QList<QString> values{"kept"};
        form.dialog.ConstructSaveContact(values, "0770");
        QCOMPARE(values, (QList<QString>{"kept", "", "0770", "", "", "", ""}));
        values.removeFirst();
        AddrBookRecord record;
        record.iID = 0;
        record.lstValues = values;
        form.dialog.SetEditCotactDetails(record);
        QVERIFY(!form.access.ok()->isEnabled());
        form.dialog.SetOKButtonTrue();
        QVERIFY(form.access.ok()->isEnabled());
        QCOMPARE(form.access.mobile()->text(), QString("0770"));
    }

    void textsComeFromTheLanguageFiles()
    {
        FakeCore::setText("ID_STR_NAME", "Nom");
        FakeCore::setText("IDS_BUTTON_CANCEL", "Annuler");
        EditForm form(4);
        QCOMPARE(form.access.nameLabel()->text(), QString("Nom"));
        QCOMPARE(form.access.cancel()->text(), QString("Annuler"));
        QCOMPARE(form.dialog.tr(QString("ID_STR_NAME")), QString("Nom"));
        form.dialog.SetLanguage();
        QCOMPARE(form.access.ok()->text(), QString("IDS_BUTTON_OK"));
    }
};

QTEST_MAIN(EditFormTest)
#include "EditFormTest.moc"
