#include "EditSupport.h"

#include <QCloseEvent>

// The window around the form: how it looks, how it opens and how it ends.
class EditWindowTest : public DialogTest
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        QApplication::setLayoutDirection(Qt::LeftToRight);
        DialogTest::cleanup();
    }

    void namesAndFlags()
    {
        EditForm form(4);
        AddrBookNewContactExtendDialog* window = form.access.window();
        QCOMPARE(window->windowModality(), Qt::WindowModal);
        for (const Qt::WindowType flag :
             {Qt::CustomizeWindowHint, Qt::Window, Qt::WindowTitleHint, Qt::WindowCloseButtonHint})
            QVERIFY(window->windowFlags().testFlag(flag));
        QVERIFY(!window->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
        QVERIFY(!window->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
        QCOMPARE(form.access.content()->objectName(), QString("AddrBookUIPlugin_New_Edit_Dlg"));
        QCOMPARE(FakeCore::content(window), form.access.content());
        QCOMPARE(form.access.ok()->objectName(), QString("AddrBookUIPlugin_New_Edit_Dlg_OK_Button"));
        QCOMPARE(form.access.cancel()->objectName(), form.access.ok()->objectName());
        QVERIFY(FakeCore::log().contains("MoveCentre"));
        QCOMPARE(form.access.buttonRow()->alignment(), Qt::AlignRight);
        QVERIFY(form.access.buttonRow()->itemAt(0)->widget() == form.access.ok());
        QVERIFY(form.access.buttonRow()->itemAt(1)->widget() == form.access.cancel());
        QCOMPARE(form.access.record().iID, -1);
        form.dialog.SetWindowTitle("New contact");
        QCOMPARE(window->windowTitle(), QString("New contact"));
        QVERIFY(!form.dialog.isVisible());
    }

    void theWindowBelongsToTheParentGiven()
    {
        QWidget parent;
        AddrBookEditDlg dialog;
        AddrBookEditDlgAccess access(dialog);
        dialog.InitDialog(&parent, 0, PB_MEM_LOCAL, ADDRBOOK_OP_ADD);
        QVERIFY(access.window()->parentWidget() == &parent);
    }

    void tabGoesDownTheFormAndThenToTheButtons()
    {
        EditForm form(4);
        form.run([&] {
            QVERIFY(form.access.window()->focusWidget() == form.input(0));
            for (int i = 1; i < 6; ++i) {
                QTest::keyClick(form.access.window()->focusWidget(), Qt::Key_Tab);
                QVERIFY(form.access.window()->focusWidget() == form.input(i));
            }
            // OK is off in an empty form.
            QTest::keyClick(form.access.window()->focusWidget(), Qt::Key_Tab);
            QVERIFY(form.access.window()->focusWidget() == form.access.cancel());
            QTest::keyClick(form.access.window()->focusWidget(), Qt::Key_Tab);
            QVERIFY(form.access.window()->focusWidget() == form.input(0));
            form.setText(0, "Ada");
            QTest::keyClick(form.access.remarks(), Qt::Key_Tab);
            form.access.remarks()->setFocus();
            QTest::keyClick(form.access.remarks(), Qt::Key_Tab);
            QVERIFY(form.access.window()->focusWidget() == form.access.ok());
            form.access.window()->reject();
        });
    }

    void theFormOpensInItsFirstInput()
    {
        EditForm form(0);
        form.run([&] { QVERIFY(form.access.window()->focusWidget() == form.access.name()); });
    }

    void aFormNeverBuiltGivesMinusOne()
    {
        AddrBookEditDlg dialog;
        QCOMPARE(dialog.Exec(), -1);
        dialog.SetWindowTitle("none");
        dialog.setRegEx();
        dialog.SetOKButtonTrue();
        dialog.OnTextChanged();
        dialog.OnTextChangedInAnyField("x");
        QCOMPARE(dialog.OnNameTextChanged("x"), false);
        dialog.OnButtonClickedCancel();
    }

    void savedGivesNought()
    {
        EditForm form(4);
        form.setText(0, "Ada");
        QCOMPARE(form.save(), 0);
        QCOMPARE(form.dialog.GetNewRecordInfo().lstValues.at(0), QString("Ada"));
    }

    void cancelGivesOneAndSavesNothing()
    {
        EditForm form(4);
        form.setText(0, "Ada");
        QCOMPARE(form.run([&] { form.access.cancel()->click(); }), 1);
        QVERIFY(FakeSdk::recordIds(4).isEmpty());
        QVERIFY(!form.access.window()->isVisible());
    }

    void closingTheWindowGivesTwoAndSavesNothing()
    {
        EditForm form(4);
        form.setText(0, "Ada");
        QCOMPARE(form.run([&] { form.access.window()->close(); }), 2);
        QVERIFY(FakeSdk::recordIds(4).isEmpty());
    }

    void escapeGivesMinusOneAndSavesNothing()
    {
        EditForm form(4);
        form.setText(0, "Ada");
        QCOMPARE(form.run([&] { QTest::keyClick(form.access.window(), Qt::Key_Escape); }), -1);
        QVERIFY(FakeSdk::recordIds(4).isEmpty());
    }

    void returnPressesOk()
    {
        EditForm form(4);
        form.setText(0, "Ada");
        QCOMPARE(form.run([&] { QTest::keyClick(form.access.name(), Qt::Key_Return); }), 0);
        QCOMPARE(FakeSdk::recordIds(4).size(), 1);
    }

    void theParentMayGoWhileTheFormIsOpen()
    {
        auto* parent = new QWidget;
        AddrBookEditDlg dialog;
        AddrBookEditDlgAccess access(dialog);
        dialog.InitDialog(parent, 0, PB_MEM_LOCAL, ADDRBOOK_OP_ADD);
        QTimer::singleShot(0, [&] { delete parent; });
        QCOMPARE(dialog.Exec(), -1);
        QVERIFY(access.window() == nullptr);
        QVERIFY(access.content() == nullptr);
        QVERIFY(access.name() == nullptr);
        dialog.OnButtonClickedOK();
        QCOMPARE(FakeSdk::recordIds(4).size(), 0);
    }

    void theParentMayGoWhileAMessageIsShown()
    {
        auto* parent = new QWidget;
        AddrBookEditDlg dialog;
        AddrBookEditDlgAccess access(dialog);
        dialog.InitDialog(parent, 0, PB_MEM_LOCAL, ADDRBOOK_OP_ADD);
        access.name()->setText("Ada");
        access.mobile()->setText("a letter");
        FakeCore::onMessage([&](const FakeCore::Message&) {
            delete parent;
            parent = nullptr;
        });
        QTimer::singleShot(0, access.window(), [&] { access.ok()->click(); });
        QCOMPARE(dialog.Exec(), -1);
        QVERIFY(parent == nullptr);
    }

    void rightToLeftIsToggledByEachLineEdit()
    {
        QApplication::setLayoutDirection(Qt::RightToLeft);
        QWidget probe;
        int changes = 0;
        struct Counter : QObject {
            explicit Counter(int& n) : count(n) {}
            bool eventFilter(QObject*, QEvent* event) override
            {
                count += event->type() == QEvent::ApplicationLayoutDirectionChange ? 1 : 0;
                return false;
            }
            int& count;
        } counter(changes);
        probe.installEventFilter(&counter);
        QWidget parent;
        const NewContactLineEdit edit(&parent);
        QCOMPARE(changes, 2);
        QVERIFY(QApplication::isRightToLeft());
    }

    void leftToRightIsLeftAlone()
    {
        QWidget parent;
        const NewContactLineEdit edit(&parent);
        QVERIFY(QApplication::isLeftToRight());
    }
};

QTEST_MAIN(EditWindowTest)
#include "EditWindowTest.moc"
