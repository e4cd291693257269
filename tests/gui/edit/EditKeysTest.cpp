#include "EditSupport.h"

#include <QSignalSpy>
#include <QWindow>

// Which keys reach an input.
class EditKeysTest : public DialogTest
{
    Q_OBJECT

    static bool takes(QLineEdit* edit, const QString& text)
    {
        edit->clear();
        QTest::keyClicks(edit, text);
        return edit->text() == text;
    }

    // The printable characters that the card's number field lets through.
    static void cardWithMobileKey(const char* accepted)
    {
        FakeSdk::setFields(0, {editField("Name", 14, "Name", "ID_STR_NAME"),
                               editField("Mobile", 20, "Mobile", "ID_STR_MOBILE_PHONE", accepted)});
        // The filter looks at the PC's fields as they are known.
        QList<AddrBookField> fields;
        AddrBookLogic::Instance()->GetAllFields(fields, PB_MEM_LOCAL);
    }

private slots:
    void onACardACharacterMustPassTheLocalSetAndTheCardsRule()
    {
        cardWithMobileKey("0123abc");
        EditForm form(0);
        form.dialog.setRegEx();
        QLineEdit* edit = form.access.mobile();
        QVERIFY(takes(edit, "0123"));
        QVERIFY(!takes(edit, "9")); // the card refuses it
        QVERIFY(!takes(edit, "a")); // the PC refuses it
    }

    void aLonePlusNeedsThePlusInTheLocalSet()
    {
        EditForm form(4);
        QVERIFY(takes(form.access.mobile(), "+"));

        QList<FakeSdk::Field> fields = FakeSdk::localFields();
        fields[1].accepted = "0123456789";
        FakeSdk::setFields(4, fields);
        AddrBookLogic::Destroy();
        EditForm plain(4);
        QVERIFY(!takes(plain.access.mobile(), "+"));
        QVERIFY(takes(plain.access.mobile(), "5"));
    }

    void withoutKnownLocalFieldsNoPrintableKeyPasses()
    {
        FakeSdk::setFields(0, {editField("Mobile", 20, "Mobile", "ID_STR_MOBILE_PHONE")});
        FakeSdk::failAlways("GetProfile");
        NewContactLineEdit edit(nullptr);
        edit.m_bNumberKeysOnly = true;
        QVERIFY(!takes(&edit, "1"));
    }

    void aPlainInputTakesAnything()
    {
        EditForm form(4);
        QVERIFY(takes(form.access.name(), "Ada 1+*nNfF"));
    }

    void theMobileInputDropsLettersAndBlanks()
    {
        EditForm form(4);
        form.access.mobile()->clear();
        QTest::keyClicks(form.access.mobile(), "0a7 7b-0nF");
        QCOMPARE(form.access.mobile()->text(), QString("0770"));
    }

    void aKeyWithoutANumberCarriesComposedText()
    {
        EditForm form(4);
        QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, "x");
        QApplication::sendEvent(form.access.mobile(), &event);
        QCOMPARE(form.access.mobile()->text(), QString("x"));
    }

    void keysWithoutAPrintableTextPass()
    {
        EditForm form(4);
        form.access.mobile()->setText("123");
        QTest::keyClick(form.access.mobile(), Qt::Key_Backspace);
        QCOMPARE(form.access.mobile()->text(), QString("12"));
        QKeyEvent selectAll(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier, "\x01");
        QApplication::sendEvent(form.access.mobile(), &selectAll);
        QCOMPARE(form.access.mobile()->selectedText(), QString("12"));
        QTest::keyClick(form.access.mobile(), Qt::Key_Home);
        QCOMPARE(form.access.mobile()->cursorPosition(), 0);
    }

    void upAndDownMoveTheCaretByOne()
    {
        EditForm form(4);
        for (QLineEdit* edit :
             {static_cast<QLineEdit*>(form.access.name()), static_cast<QLineEdit*>(form.access.mobile())}) {
            edit->setText("123");
            QTest::keyClick(edit, Qt::Key_Up);
            QCOMPARE(edit->cursorPosition(), 2);
            QTest::keyClick(edit, Qt::Key_Up);
            QCOMPARE(edit->cursorPosition(), 1);
            QTest::keyClick(edit, Qt::Key_Down);
            QCOMPARE(edit->cursorPosition(), 2);
            QTest::keyClick(edit, Qt::Key_Up, Qt::ShiftModifier);
            QCOMPARE(edit->selectedText(), QString("2"));
        }
    }

    // Through the window system, since the input asks the application which modifiers are down.
    void controlNAndControlFRaiseSignalsThatNobodyHears()
    {
        EditForm form(4);
        QSignalSpy spyNew(form.access.name(), SIGNAL(newContact()));
        QSignalSpy spySearch(form.access.name(), SIGNAL(showHideSearchControl()));
        form.run([&] {
            QVERIFY(QTest::qWaitForWindowActive(form.access.window()));
            QTest::keyClick(form.access.window()->windowHandle(), Qt::Key_N, Qt::ControlModifier);
            QTRY_COMPARE(spyNew.count(), 1);
            QTest::keyClick(form.access.window()->windowHandle(), Qt::Key_F, Qt::ControlModifier);
            QTRY_COMPARE(spySearch.count(), 1);
            form.access.window()->reject();
        });
        QCOMPARE(spyNew.count(), 1);
        QCOMPARE(spySearch.count(), 1);
        QCOMPARE(form.access.name()->text(), QString());
        QVERIFY(!form.access.ok()->isEnabled());
    }

    void nAndFWithoutControlAreLetters()
    {
        EditForm form(4);
        QSignalSpy spy(form.access.name(), SIGNAL(newContact()));
        QTest::keyClicks(form.access.name(), "nf");
        QCOMPARE(form.access.name()->text(), QString("nf"));
        QCOMPARE(spy.count(), 0);
    }

    void whileShuttingDownNoKeyDoesAnything()
    {
        EditForm form(4);
        FakeCore::setShuttingDown(true);
        QTest::keyClicks(form.access.name(), "Ada");
        QCOMPARE(form.access.name()->text(), QString());
        FakeCore::setShuttingDown(false);
        QTest::keyClicks(form.access.name(), "Ada");
        QCOMPARE(form.access.name()->text(), QString("Ada"));
    }
};

QTEST_MAIN(EditKeysTest)
#include "EditKeysTest.moc"
