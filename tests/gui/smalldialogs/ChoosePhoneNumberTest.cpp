#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

#include "QtReleases.h"
#include "dialogs/ChoosePhoneNumber.h"
#include "fakecore/FakeCore.h"
#include "widgets/GridDelegate.h"

// The requests to close that a window gets.
struct CloseCounter : QObject {
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Close ? 1 : 0;
        return false;
    }
    int count = 0;
};

// The dialog that asks which number of a contact to call.
class ChoosePhoneNumberTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FakeCore::reset();
        window = std::make_unique<QWidget>();
        window->show();
        chooser = std::make_unique<ChoosePhoneNumber>();
    }
    void cleanup()
    {
        chooser.reset();
        window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(FakeCore::dialogs().size(), 0);
    }

    void numbersAndLabelsStandSideBySide();
    void theWindowHasItsShape();
    void theTableHasItsShape();
    void theRowsOfAContactFitWithoutAScrollBar();
    void okWithNothingElseDoneCallsTheFirstNumber();
    void okCallsTheSelectedNumber();
    void returnCallsTheSelectedNumber();
    void theWindowIsClosedBeforeTheCall();
    void cancelCallsNothing();
    void aRejectedWindowCallsNothing_data();
    void aRejectedWindowCallsNothing();
    void aFailedCallIsTold();
    void aSecondShowStartsOnTheFirstRowAgain();
    void aShowOverAnOpenWindowReplacesIt();
    void textsFollowTheLanguageOfTheShow();
    void moreNumbersThanLabels();
    void withoutNumbersOkCallsNothing();
    void theWindowDeletesItself();
    void theObjectMayGoWhileTheWindowIsOpen();
    void theParentMayGoWhileTheWindowIsOpen();
    void okOrCancelBeforeTheFirstShowDoesNothing();

private:
    void show() { chooser->ShowPhoneNumDlg(window.get(), {"111", "222", "333"}, {"Mobile", "Business", "Home"}); }
    ExtendDialog* dialog() const { return FakeCore::dialogs().isEmpty() ? nullptr : FakeCore::dialogs().last(); }
    QTableWidget* table() const { return dialog()->findChild<QTableWidget*>("ChoosePhoneNumber_TableWidget"); }
    QPushButton* button(const QString& name) const
    {
        return dialog()->findChild<QPushButton*>("ChoosePhoneNumber_button" + name);
    }
    static QStringList calledNumbers()
    {
        QStringList numbers;
        for (const FakeCore::MadeCall& call : FakeCore::madeCalls())
            numbers << call.number;
        return numbers;
    }

    std::unique_ptr<QWidget> window;
    std::unique_ptr<ChoosePhoneNumber> chooser;
};

void ChoosePhoneNumberTest::numbersAndLabelsStandSideBySide()
{
    show();
    QCOMPARE(table()->rowCount(), 3);
    QCOMPARE(table()->columnCount(), 2);
    const QStringList numbers = {"111", "222", "333"};
    const QStringList labels = {"Mobile", "Business", "Home"};
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(table()->item(row, 0)->text(), labels.at(row));
        QCOMPARE(table()->item(row, 1)->text(), numbers.at(row));
        QCOMPARE(table()->item(row, 0)->textAlignment(), int(Qt::AlignLeft | Qt::AlignBottom));
        QCOMPARE(table()->item(row, 1)->textAlignment(), int(Qt::AlignLeft | Qt::AlignBottom));
        QCOMPARE(table()->rowHeight(row), 14);
    }
    QCOMPARE(table()->horizontalHeaderItem(0)->text(), QString("IDS_PHONE_TYPE"));
    QCOMPARE(table()->horizontalHeaderItem(1)->text(), QString("IDS_PHONE_VALUE"));
    QCOMPARE(table()->horizontalHeaderItem(0)->textAlignment(), int(Qt::AlignLeft | Qt::AlignBottom));
    QCOMPARE(table()->horizontalHeaderItem(1)->textAlignment(), int(Qt::AlignLeft | Qt::AlignBottom));
}

void ChoosePhoneNumberTest::theWindowHasItsShape()
{
    show();
    QVERIFY(dialog()->isVisible()); // and the call has returned
    QCOMPARE(dialog()->objectName(), QString("ChoosePhoneNumbere_ExtendedDlg"));
    QCOMPARE(dialog()->parentWidget(), window.get());
    QCOMPARE(dialog()->windowTitle(), QString("IDS_ADDR_NUMDLG_TITLE"));
    QCOMPARE(dialog()->minimumSize(), QSize(305, 225));
    QCOMPARE(dialog()->maximumSize(), QSize(305, 225));
    QCOMPARE(dialog()->windowModality(), Qt::WindowModal);
    QVERIFY(dialog()->testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(dialog()->windowFlags() & Qt::WindowCloseButtonHint);
    QWidget* content = FakeCore::content(dialog());
    QVERIFY(content);
    QCOMPARE(content->objectName(), QString("ChoosePhoneNumber_WidgetMain"));
    QCOMPARE(button("Ok")->text(), QString("IDS_BUTTON_OK"));
    QCOMPARE(button("Cancel")->text(), QString("IDS_BUTTON_CANCEL"));
    QCOMPARE(button("Cancel")->focusPolicy(), Qt::NoFocus);
    QCOMPARE(dialog()->focusWidget(), static_cast<QWidget*>(button("Ok")));
    QCOMPARE(FakeCore::log().count("MoveCentre"), 1);

    auto* main = qobject_cast<QVBoxLayout*>(content->layout());
    QVERIFY(main);
    QCOMPARE(main->objectName(), QString("ChoosePhoneNumber_layoutMain"));
    QCOMPARE(main->itemAt(0)->widget(), static_cast<QWidget*>(table()));
    QWidget* row = main->itemAt(1)->widget();
    QCOMPARE(row->objectName(), QString("ChoosePhoneNumber_widgetButton"));
    auto* buttons = qobject_cast<QHBoxLayout*>(row->layout());
    QVERIFY(buttons);
    QCOMPARE(buttons->objectName(), QString("ChoosePhoneNumber_layoutButton"));
    QCOMPARE(buttons->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(buttons->alignment(), Qt::AlignRight);
    QCOMPARE(buttons->itemAt(0)->widget(), static_cast<QWidget*>(button("Ok")));
    QCOMPARE(buttons->itemAt(1)->widget(), static_cast<QWidget*>(button("Cancel")));
}

void ChoosePhoneNumberTest::theTableHasItsShape()
{
    show();
    QCOMPARE(table()->columnWidth(0), 140);
    QCOMPARE(table()->columnWidth(1), 140);
    QCOMPARE(table()->horizontalHeader()->minimumHeight(), 20);
    QCOMPARE(table()->horizontalHeader()->textElideMode(), Qt::ElideRight);
    QVERIFY(table()->verticalHeader()->isHidden());
    QCOMPARE(table()->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(table()->editTriggers(), QAbstractItemView::EditTriggers(QAbstractItemView::NoEditTriggers));
    QCOMPARE(table()->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(table()->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table()->horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
    QVERIFY(!table()->tabKeyNavigation());
    QVERIFY(qobject_cast<GridDelegate*>(table()->itemDelegate()));
}

void ChoosePhoneNumberTest::theRowsOfAContactFitWithoutAScrollBar()
{
    show();
    dialog()->layout()->setContentsMargins(6, 6, 6, 6); // the host's frame
    QVERIFY(QTest::qWaitForWindowExposed(dialog()));
    const QRect last = table()->visualItemRect(table()->item(2, 1));
    QVERIFY(last.isValid());
    QVERIFY(last.bottom() < table()->viewport()->height());
    QVERIFY(!table()->horizontalScrollBar()->isVisible());
    QVERIFY(QFontMetrics(table()->font()).height() <= 14);
}

void ChoosePhoneNumberTest::okWithNothingElseDoneCallsTheFirstNumber()
{
    show();
    QCOMPARE(table()->currentRow(), 0);
    QTest::mouseClick(button("Ok"), Qt::LeftButton);
    QCOMPARE(calledNumbers(), QStringList("111"));
    QCOMPARE(FakeCore::madeCalls().at(0).type, 0);
    QCOMPARE(FakeCore::messages().size(), 0);
}

void ChoosePhoneNumberTest::okCallsTheSelectedNumber()
{
    show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog()));
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table()->visualItemRect(table()->item(2, 0)).center());
    QTest::mouseClick(button("Ok"), Qt::LeftButton);
    QCOMPARE(calledNumbers(), QStringList("333"));
}

void ChoosePhoneNumberTest::returnCallsTheSelectedNumber()
{
    show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog()));
    table()->setCurrentCell(1, 0);
    QTest::keyClick(button("Ok"), Qt::Key_Return);
    QCOMPARE(calledNumbers(), QStringList("222"));
}

void ChoosePhoneNumberTest::theWindowIsClosedBeforeTheCall()
{
    show();
    QPointer<ExtendDialog> open = dialog();
    FakeCore::setMakeCallResult(false);
    bool wasHidden = false;
    bool tableWasThere = false;
    FakeCore::onMessage([&](const FakeCore::Message&) {
        wasHidden = !open.isNull() && open->isHidden();
        tableWasThere = !open.isNull() && open->findChild<QTableWidget*>() != nullptr;
    });
    button("Ok")->click();
    QVERIFY(wasHidden);
    QVERIFY(tableWasThere); // until the event loop deletes it
}

void ChoosePhoneNumberTest::cancelCallsNothing()
{
    show();
    QPointer<ExtendDialog> open = dialog();
    QTest::mouseClick(button("Cancel"), Qt::LeftButton);
    QVERIFY(open.isNull() || open->isHidden());
    QVERIFY(FakeCore::madeCalls().isEmpty());
}

void ChoosePhoneNumberTest::aRejectedWindowCallsNothing_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("rejected") << "reject";
    QTest::newRow("Escape") << "escape";
    QTest::newRow("close button") << "close";
}

void ChoosePhoneNumberTest::aRejectedWindowCallsNothing()
{
    QFETCH(QString, way);
    show();
    QPointer<ExtendDialog> open = dialog();
    CloseCounter closes;
    open->installEventFilter(&closes);
    if (way == "reject")
        open->reject();
    else if (way == "escape")
        QTest::keyClick(open.data(), Qt::Key_Escape);
    else
        open->close();
    QVERIFY(open.isNull() || open->isHidden());
    QCOMPARE(closes.count >= 1, way == "close" || QtReleases::closeOfARejectedDialogIsSeen);
    QTRY_VERIFY(open.isNull()); // not only hidden
    QVERIFY(FakeCore::madeCalls().isEmpty());
    show(); // and the next contact gets its window
    QVERIFY(dialog()->isVisible());
}

void ChoosePhoneNumberTest::aFailedCallIsTold()
{
    show();
    FakeCore::setMakeCallResult(false);
    button("Ok")->click();
    QCOMPARE(calledNumbers(), QStringList("111"));
    QCOMPARE(FakeCore::messages().size(), 1);
    const FakeCore::Message message = FakeCore::messages().first();
    QCOMPARE(message.icon, QMessageBox::Information);
    QVERIFY(message.parent == nullptr);
    QCOMPARE(message.caption, QString("IDS_PROMPT_CAPTION"));
    QCOMPARE(message.text, QString("IDS_STR_MAKECALLFAILED"));
    QCOMPARE(message.buttons, QStringList("IDS_OK"));
    QCOMPARE(message.flag, false);
    QCOMPARE(message.windowFlags, Qt::WindowFlags(Qt::WindowCloseButtonHint));
    QCOMPARE(message.extra, QString());
    QCOMPARE(message.modal, true);
}

void ChoosePhoneNumberTest::aSecondShowStartsOnTheFirstRowAgain()
{
    show();
    QPointer<ExtendDialog> first = dialog();
    table()->setCurrentCell(2, 0);
    button("Cancel")->click();
    QTRY_VERIFY(first.isNull());
    show();
    QCOMPARE(FakeCore::dialogs().size(), 1);
    QCOMPARE(table()->rowCount(), 3);
    QCOMPARE(table()->item(2, 1)->text(), QString("333"));
    QCOMPARE(table()->currentRow(), 0);
    button("Ok")->click();
    QCOMPARE(calledNumbers(), QStringList("111"));
}

void ChoosePhoneNumberTest::aShowOverAnOpenWindowReplacesIt()
{
    show();
    QPointer<ExtendDialog> first = dialog();
    chooser->ShowPhoneNumDlg(window.get(), {"444", "555"}, {"Mobile", "Home"});
    QTRY_VERIFY(first.isNull());
    QVERIFY(dialog()->isVisible());
    button("Ok")->click();
    QCOMPARE(calledNumbers(), QStringList("444"));
}

void ChoosePhoneNumberTest::textsFollowTheLanguageOfTheShow()
{
    FakeCore::setText("IDS_PHONE_TYPE", "Art", "de");
    FakeCore::setText("IDS_BUTTON_CANCEL", "Abbrechen", "de");
    show();
    FakeCore::setLanguage("de");
    chooser->changeLang();
    QCOMPARE(table()->horizontalHeaderItem(0)->text(), QString("Art"));
    QCOMPARE(button("Cancel")->text(), QString("Abbrechen"));
}

void ChoosePhoneNumberTest::moreNumbersThanLabels()
{
    chooser->ShowPhoneNumDlg(window.get(), {"111", "222"}, {"Mobile"});
    QCOMPARE(table()->rowCount(), 2);
    QCOMPARE(table()->item(1, 0)->text(), QString());
    QCOMPARE(table()->item(1, 1)->text(), QString("222"));
}

void ChoosePhoneNumberTest::withoutNumbersOkCallsNothing()
{
    chooser->ShowPhoneNumDlg(window.get(), {}, {});
    QCOMPARE(table()->rowCount(), 0);
    button("Ok")->click();
    QVERIFY(FakeCore::madeCalls().isEmpty());
    QCOMPARE(FakeCore::messages().size(), 0);
}

void ChoosePhoneNumberTest::theWindowDeletesItself()
{
    show();
    QPointer<ExtendDialog> open = dialog();
    QPointer<QWidget> content = FakeCore::content(dialog());
    button("Ok")->click();
    QTRY_VERIFY(open.isNull());
    QVERIFY(content.isNull());
    chooser->onOkButtonClicked(); // there is no table to read
    QCOMPARE(calledNumbers(), QStringList("111"));
}

void ChoosePhoneNumberTest::theObjectMayGoWhileTheWindowIsOpen()
{
    show();
    QPointer<ExtendDialog> open = dialog();
    chooser.reset();
    QVERIFY(open.isNull());
}

void ChoosePhoneNumberTest::theParentMayGoWhileTheWindowIsOpen()
{
    show();
    window.reset();
    QCOMPARE(FakeCore::dialogs().size(), 0);
    chooser->onCancelButtonClicked();
    chooser->onOkButtonClicked();
    chooser->changeLang();
    QVERIFY(FakeCore::madeCalls().isEmpty());
}

void ChoosePhoneNumberTest::okOrCancelBeforeTheFirstShowDoesNothing()
{
    chooser->onCancelButtonClicked();
    chooser->onOkButtonClicked();
    chooser->changeLang();
    QVERIFY(FakeCore::madeCalls().isEmpty());
}

QTEST_MAIN(ChoosePhoneNumberTest)
#include "ChoosePhoneNumberTest.moc"
