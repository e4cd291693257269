#include "EditSupport.h"

// The checks at OK in their order, and how the contact reaches the phonebook.
class EditSaveTest : public DialogTest
{
    Q_OBJECT

private slots:
    // ---- Addresses -----------------------------------------------------------------------------------------------

    void address_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("box");
        QTest::newRow("an at sign alone") << "@"
                                          << "";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("usual") << "ada@example.org"
                               << "";
        QTest::newRow("no at sign") << "ada"
                                    << "IDS_ILLEGAL_EMAIL";
        QTest::newRow("accent, no at sign") << QString::fromUtf8("ad\xc3\xa1") << "IDS_ILLEGAL_CHARACTER_EMAIL";
        QTest::newRow("accent") << QString::fromUtf8("ad\xc3\xa1@x") << "IDS_ILLEGAL_CHARACTER_EMAIL";
    }
    void address()
    {
        QFETCH(QString, address);
        QFETCH(QString, box);
        EditForm form(4);
        form.setText(0, "Ada");
        form.setText(4, address);
        QCOMPARE(form.save(), box.isEmpty() ? 0 : 1);
        QCOMPARE(FakeCore::messageTexts(), box.isEmpty() ? QStringList() : QStringList(box));
        if (box.isEmpty())
            return;
        const FakeCore::Message message = FakeCore::messages().at(0);
        QCOMPARE(message.icon, QMessageBox::Critical);
        QCOMPARE(message.caption, QString("IDS_ERROR_CAPTION"));
        QCOMPARE(message.buttons, QStringList("IDS_OK"));
        QCOMPARE(message.windowFlags, Qt::WindowFlags(Qt::WindowCloseButtonHint));
        QVERIFY(message.flag);
        QVERIFY(message.modal);
        QVERIFY(message.parent == form.access.window());
        QCOMPARE(FakeSdk::count("GetAddrRecList"), 0);
    }

    void theFirstBadAddressEndsTheCheck()
    {
        QList<FakeSdk::Field> fields = FakeSdk::localFields();
        fields << editField("email2", 80, "Email", "ID_STR_EMAIL2");
        FakeSdk::setFields(4, fields);
        EditForm form(4);
        form.setText(4, "no sign");
        form.setText(6, "neither");
        form.access.ok()->click();
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_ILLEGAL_EMAIL"));
    }

    void addressesOfADeviceAreNotLookedAtByTheForm()
    {
        FakeSdk::setFields(1, FakeSdk::wideDeviceFields());
        EditForm form(1);
        form.setText(0, "Ada");
        form.setText(3, "no sign");
        // The store refuses it.
        QCOMPARE(form.save(), 1);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_UNSUCCESS"));
        QCOMPARE(FakeSdk::count("GetAddrRecList"), 1);
    }

    // ---- Lengths and characters ----------------------------------------------------------------------------------

    void valueCheck_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("include");
        QTest::addColumn<QString>("exclude");
        QTest::addColumn<int>("max");
        QTest::addColumn<bool>("passes");
        QTest::newRow("too long") << "abcd"
                                  << "null"
                                  << "null" << 3 << false;
        QTest::newRow("long enough") << "abc"
                                     << "null"
                                     << "null" << 3 << true;
        QTest::newRow("refused") << "abc"
                                 << "null"
                                 << "cx" << 9 << false;
        QTest::newRow("not refused") << "abc"
                                     << "null"
                                     << "Cx" << 9 << true;
        QTest::newRow("not accepted") << "12a"
                                      << "123"
                                      << "null" << 9 << false;
        QTest::newRow("accepted") << "121"
                                  << "123"
                                  << "null" << 9 << true;
        QTest::newRow("case counts") << "A"
                                     << "a"
                                     << "null" << 9 << false;
        QTest::newRow("accepted but refused") << "3"
                                              << "123"
                                              << "3" << 9 << false;
        QTest::newRow("both and good") << "2"
                                       << "123"
                                       << "3" << 9 << true;
        QTest::newRow("plus stays in the set") << "1+1"
                                               << "1+"
                                               << "null" << 9 << true;
        QTest::newRow("no allowance for a plus") << "+1"
                                                 << "1"
                                                 << "null" << 9 << false;
        QTest::newRow("empty") << ""
                               << "1"
                               << "1" << 0 << true;
    }
    void valueCheck()
    {
        QFETCH(QString, text);
        QFETCH(QString, include);
        QFETCH(QString, exclude);
        QFETCH(int, max);
        EditForm form(4);
        QTEST(form.access.passes(text, include, exclude, max), "passes");
    }

    void aLeadingPlusThatTheSetLacksIsRefusedAtOk()
    {
        QList<FakeSdk::Field> fields = FakeSdk::localFields();
        fields[2].accepted = "0123456789";
        FakeSdk::setFields(4, fields);
        EditForm form(4);
        form.dialog.setRegEx();
        QTest::keyClicks(form.input(2), "+12");
        QCOMPARE(form.text(2), QString("+12"));
        QCOMPARE(form.save(), 1);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_UNSUCCESS"));
        QVERIFY(form.dialog.GetNewRecordInfo().lstValues.isEmpty());
        QCOMPARE(FakeSdk::count("GetAddrRecList"), 0);
    }

    void aRefusedOkLeavesTheInputs()
    {
        EditForm form(4);
        form.setText(0, "Ada");
        form.setText(1, "not a number");
        form.access.ok()->click();
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_UNSUCCESS"));
        QCOMPARE(form.text(0), QString("Ada"));
        QCOMPARE(form.text(1), QString("not a number"));
        QVERIFY(form.access.ok()->isEnabled());
        QCOMPARE(form.access.window()->m_iResult, -1);
    }

    // ---- Saving --------------------------------------------------------------------------------------------------

    void aNewContactIsStoredAndJoinsItsGroup()
    {
        const int group = FakeSdk::addGroup("Friends");
        EditForm form(4, ADDRBOOK_OP_ADD, group);
        form.dialog.setRegEx();
        const QStringList values = {"Ada", "+123", "45", "67", "a@b", "remark"};
        for (int i = 0; i < values.size(); ++i)
            form.setText(i, values.at(i));
        QCOMPARE(form.save(), 0);
        const AddrBookRecord record = form.dialog.GetNewRecordInfo();
        QVERIFY(record.iID >= 1);
        QCOMPARE(FakeSdk::record(4, record.iID), values);
        QCOMPARE(QStringList(record.lstValues), values);
        QCOMPARE(FakeSdk::members(group), QList<int>{record.iID});
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void aContactOfTheDeviceJoinsNoGroup()
    {
        for (const int memory : {0, 1}) {
            EditForm form(memory, ADDRBOOK_OP_ADD, 5);
            form.setText(0, "Ada");
            form.setText(1, "123");
            QCOMPARE(form.save(), 0);
            QCOMPARE(FakeSdk::record(memory, FakeSdk::recordIds(memory).at(0)), (QStringList{"Ada", "123"}));
        }
        QCOMPARE(FakeSdk::count("AddAddrToGroup"), 0);
    }

    void aContactThatCannotJoinItsGroupStaysStored()
    {
        EditForm form(4, ADDRBOOK_OP_ADD, 99);
        form.setText(0, "Ada");
        QCOMPARE(form.save(), 1);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_UNSUCCESS"));
        QCOMPARE(FakeSdk::recordIds(4).size(), 1);
        QCOMPARE(form.access.record().iID, FakeSdk::recordIds(4).at(0));
    }

    void editingReplacesTheStoredContact()
    {
        const int id = FakeSdk::addRecord(4, {"Ada", "1", "2", "3", "a@b", "old"});
        EditForm form(4, ADDRBOOK_OP_EDIT, 7);
        form.load(4, id);
        form.dialog.setRegEx();
        form.setText(0, "Ada L");
        form.setText(5, "");
        QCOMPARE(form.save(), 0);
        QCOMPARE(FakeSdk::record(4, id), (QStringList{"Ada L", "1", "2", "3", "a@b", ""}));
        QCOMPARE(form.dialog.GetNewRecordInfo().iID, id);
        QCOMPARE(FakeSdk::count("AddAddrToGroup"), 0);
    }

    void anEditOfAContactThatHasGoneFails()
    {
        const int id = FakeSdk::addRecord(4, {"Ada"});
        EditForm form(4, ADDRBOOK_OP_EDIT);
        form.load(4, id);
        FakeSdk::removeRecord(4, id);
        form.setText(0, "Ada L");
        QCOMPARE(form.save(), 1);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_UNSUCCESS"));
    }

    void aFullMemorySaysSo()
    {
        FakeSdk::setCapacity(0, 0);
        EditForm form(0);
        form.setText(0, "Ada");
        QCOMPARE(form.save(), 1);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_UNSUCCESS"));
    }

    void anyOtherOperationSavesNothingAndEnds()
    {
        EditForm form(4, ADDRBOOK_OP_NONE);
        form.setText(0, "Ada");
        QCOMPARE(form.save(), 0);
        QVERIFY(FakeSdk::recordIds(4).isEmpty());
    }

    void theDevicePulledOutBeforeOkFailsTheSave()
    {
        EditForm form(1);
        form.setText(0, "Ada");
        FakeSdk::failAlways("AddAddrRec", ORVA_E_ABSENT);
        FakeSdk::failAlways("GetAddrRecList", ORVA_E_ABSENT);
        QCOMPARE(form.save(), 1);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_UNSUCCESS"));
    }

    void theNumberOfAnotherPlugInIsSaved()
    {
        EditForm form(4);
        QList<QString> values;
        form.dialog.ConstructSaveContact(values, "0770900");
        AddrBookRecord record;
        record.iID = 0;
        record.lstValues = values;
        form.dialog.SetEditCotactDetails(record);
        form.dialog.setRegEx();
        form.dialog.SetOKButtonTrue();
        QCOMPARE(form.save(), 0);
        QCOMPARE(FakeSdk::record(4, FakeSdk::recordIds(4).at(0)).at(1), QString("0770900"));
    }
};

QTEST_MAIN(EditSaveTest)
#include "EditSaveTest.moc"
