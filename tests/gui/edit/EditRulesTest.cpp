#include "EditSupport.h"

#include <QClipboard>
#include <QRegExp>

#include "MessageLog.h"

// Rules of the form that hold in every input and in every flow.
class EditRulesTest : public DialogTest
{
    Q_OBJECT

    static void paste(QWidget* edit, const QString& text)
    {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
    }

private slots:
    // Through the window system, since the input asks the application which modifiers are down.
    void controlNAndControlFRaiseTheirSignalsInEveryLineEdit()
    {
        EditForm form(4);
        const QList<QLineEdit*> edits = form.access.lineEdits();
        QCOMPARE(edits.size(), 5);
        QStringList counts;
        form.run([&] {
            QVERIFY(QTest::qWaitForWindowActive(form.access.window()));
            for (QLineEdit* edit : edits) {
                QSignalSpy spyNew(edit, SIGNAL(newContact()));
                QSignalSpy spySearch(edit, SIGNAL(showHideSearchControl()));
                edit->setFocus();
                QTest::keyClick(form.access.window()->windowHandle(), Qt::Key_N, Qt::ControlModifier);
                QTRY_COMPARE(spyNew.count(), 1);
                QCOMPARE(spySearch.count(), 0);
                QTest::keyClick(form.access.window()->windowHandle(), Qt::Key_F, Qt::ControlModifier);
                QTRY_COMPARE(spySearch.count(), 1);
                QCOMPARE(spyNew.count(), 1);
                counts << edit->text();
            }
            form.access.window()->reject();
        });
        QCOMPARE(counts, QStringList({"", "", "", "", ""}));
    }

    void aFormNeverBuiltAnswersMinusOne()
    {
        AddrBookEditDlg dialog;
        QCOMPARE(dialog.Exec(), -1);
        QCOMPARE(FakeCore::log().filter("MoveCentre"), QStringList());
    }

    // What was typed after a first overshoot is what a second one goes back to.
    void remarksGoBackToTheLastThatFitted()
    {
        EditForm form(4);
        NewContactTextEdit* edit = form.access.remarks();
        paste(edit, QString(190, 'x'));
        paste(edit, QString(20, 'y'));
        QCOMPARE(edit->toPlainText(), QString(190, 'x'));
        QCOMPARE(form.access.prevRemarks(), QString(190, 'x'));
        QTest::keyClicks(edit, "abcdef");
        QCOMPARE(form.access.prevRemarks(), QString(190, 'x') + "abcdef");
        paste(edit, QString(5, 'z'));
        QCOMPARE(edit->toPlainText(), QString(190, 'x') + "abcdef");
        QTest::keyClicks(edit, "ghij");
        QTest::keyClicks(edit, "k");
        QCOMPARE(edit->toPlainText(), QString(190, 'x') + "abcdefghij");
    }

    // The last field of that kind is the mobile number; a repeat in it is found by its place.
    void theLastOfTwoFieldsOfKindMobileIsTheMobile()
    {
        QList<FakeSdk::Field> fields = FakeSdk::localFields();
        fields[3].kind = "Mobile";
        FakeSdk::setFields(4, fields);
        FakeSdk::addRecord(4, {"Ada", "111", "", "333"});
        EditForm form(4);
        QCOMPARE(form.access.mobileIndex(), 3);
        QCOMPARE(form.access.numberIndexes(), QList<int>({2}));
        form.setText(0, "Bob");
        form.setText(1, "111"); // the same first field of that kind does not count
        FakeCore::answer(QMessageBox::Cancel);
        QCOMPARE(form.save(), 0);
        QCOMPARE(FakeCore::messages().size(), 0);

        EditForm second(4);
        second.setText(0, "Cara");
        second.setText(3, "333");
        FakeCore::answer(QMessageBox::Cancel);
        QCOMPARE(second.save(), 1);
        QCOMPARE(FakeCore::messages().size(), 1);
        QCOMPARE(FakeCore::messages().last().text, QString("IDS_STR_REPEARTEDNUMBER"));
    }

    void aMissingOkButtonIsLoggedByFileAndPlace()
    {
        AddrBookEditDlg dialog;
        const MessageLog log;
        dialog.SetOKButtonTrue();
        const QStringList found = MessageLog::lines().filter("Arg is NULL");
        QCOMPARE(found.size(), 1);
        const QRegExp rule("Arg is NULL: [0-9:]+: AddrBookEditDlgInput\\.cpp: SetOKButtonTrue [0-9]+");
        QVERIFY2(rule.exactMatch(found.first()), qPrintable(found.first()));
    }
};

QTEST_MAIN(EditRulesTest)
#include "EditRulesTest.moc"
