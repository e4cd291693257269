#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

#include "dialogs/AddrBookWaitingDlg.h"
#include "fakecore/FakeCore.h"

namespace
{
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QObject* watched) { watched->installEventFilter(this); }
    int paints = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

class OpenedDialog : public ABWaitingDlg
{
public:
    OpenedDialog() : ABWaitingDlg(nullptr) {}
    using ABWaitingDlg::closeEvent;
};
} // namespace

// The progress dialog of the long operations.
class WaitingDlgTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FakeCore::reset();
        FakeCore::setText("IDS_BUTTON_CANCEL", "Cancel");
        window = std::make_unique<QWidget>();
        window->resize(600, 400);
        window->show();
        controller = AddrBookWaitingDlg::GetWaitingDlgInstance(window.get());
        QVERIFY(controller);
    }
    void cleanup()
    {
        AddrBookWaitingDlg::Destroy();
        window.reset();
    }

    void thereIsOneControllerWhichIsNeverShown();
    void theDialogHasItsFixedShape();
    void theRowsStandInTheirOrder();
    void openingShowsTextCounterAndEmptyBar();
    void aDialogOpenedAgainKeepsItsPlaceAndStartsAnew();
    void oneStepAndOneResultCloseIt();
    void theBarRunsOneStepBehindAndJumpsAtTheLast();
    void aResultBelowTheTotalDoesNotCloseIt();
    void stepsCountedTooLowCloseItEarly();
    void resultsAfterTheEndDoNoHarm();
    void theCounterCanBeBlanked();
    void theCounterShowsAtOnce();
    void cancelIsOffAtTheLastStepAndOnAgainAtTheNextOpening();
    void closeRequestsAreRefusedWhileItIsInUse();
    void escapeDoesNotCloseIt();
    void onceClosedACloseRequestIsAccepted();
    void aNullCloseEventDoesNothing();
    void cancelClosesItAndIsToldOnce();
    void cancelIsReachedByTheKeyboard_data();
    void cancelIsReachedByTheKeyboard();
    void withoutACancelNothingIsDeleted();
    void anOpeningForgetsACancel();
    void aMemoryThatGoesAwayCancels();
    void destroyWithoutAnObjectDoesNothing();
    void afterDestroyThereIsANewDialogWithTheNewParent();
    void aLaterCallIgnoresTheParent();
    void aTextOfAnyLengthLeavesTheSizeAsItIs_data();
    void aTextOfAnyLengthLeavesTheSizeAsItIs();
    void aDialogInUseKeepsItsLanguage();
    void aDialogThatWentWithItsWindowIsNotTouched();
    void closingLeavesTheObject();

private:
    ABWaitingDlg* dialog() const
    {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* found = qobject_cast<ABWaitingDlg*>(widget))
                return found;
        }
        return nullptr;
    }
    QLabel* status() const { return dialog()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly).value(0); }
    QLabel* count() const { return dialog()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly).value(1); }
    QProgressBar* bar() const { return dialog()->findChild<QProgressBar*>(); }
    QPushButton* cancel() const { return dialog()->findChild<QPushButton*>(); }

    std::unique_ptr<QWidget> window;
    QPointer<AddrBookWaitingDlg> controller;
};

void WaitingDlgTest::thereIsOneControllerWhichIsNeverShown()
{
    QCOMPARE(AddrBookWaitingDlg::GetWaitingDlgInstance(nullptr), controller.data());
    controller->ShowAnimation("Deleting", 3);
    QVERIFY(controller->isHidden());
    QVERIFY(dialog()->isVisible());
}

void WaitingDlgTest::theDialogHasItsFixedShape()
{
    QVERIFY(dialog()->isHidden());
    QCOMPARE(dialog()->parentWidget(), window.get());
    QCOMPARE(dialog()->size(), QSize(410, 160));
    QCOMPARE(dialog()->minimumSize(), QSize(410, 160));
    QCOMPARE(dialog()->maximumSize(), QSize(410, 160));
    const Qt::WindowFlags flags = Qt::CustomizeWindowHint | Qt::Dialog | Qt::FramelessWindowHint;
    QCOMPARE(dialog()->windowFlags() & flags, flags);
    QVERIFY(!(dialog()->windowFlags() & (Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint)));
    auto* frame = dialog()->findChild<QFrame*>("AddrBook_WaitingDialogFrame");
    QVERIFY(frame);
    QCOMPARE(frame->geometry(), QRect(0, 0, 410, 160));
    QCOMPARE(dialog()->children().indexOf(frame) < dialog()->children().indexOf(cancel()), true);
}

void WaitingDlgTest::theRowsStandInTheirOrder()
{
    auto* layout = qobject_cast<QVBoxLayout*>(dialog()->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 10));
    QCOMPARE(layout->count(), 4);
    const QList<QWidget*> parts = {status(), count(), bar(), cancel()};
    const Qt::Alignment centre = Qt::AlignHCenter | Qt::AlignVCenter;
    for (int row = 0; row < 4; ++row) {
        auto* line = qobject_cast<QHBoxLayout*>(layout->itemAt(row)->layout());
        QVERIFY(line);
        QCOMPARE(line->count(), 1);
        QCOMPARE(line->itemAt(0)->widget(), parts.at(row));
        QCOMPARE(line->alignment(), row == 0 ? Qt::Alignment() : centre);
    }
    QCOMPARE(status()->alignment(), centre);
    QCOMPARE(count()->alignment(), centre);
    QCOMPARE(count()->size(), QSize(220, 20));
    QCOMPARE(count()->minimumSize(), count()->maximumSize());
    QCOMPARE(bar()->minimumSize(), QSize(340, 23));
    QCOMPARE(bar()->maximumSize(), QSize(340, 23));
    QCOMPARE(bar()->alignment(), Qt::AlignLeft);
    QVERIFY(!bar()->isTextVisible());
    QCOMPARE(cancel()->text(), QString("Cancel"));
    QCOMPARE(cancel()->minimumHeight(), cancel()->maximumHeight());
    QCOMPARE(cancel()->maximumHeight(), cancel()->sizeHint().height());
}

void WaitingDlgTest::openingShowsTextCounterAndEmptyBar()
{
    FakeCore::clearLog();
    controller->ShowAnimation("Deleting", 7);
    QVERIFY(dialog()->isVisible());
    QVERIFY(dialog()->m_bBlockClose);
    QCOMPARE(dialog()->windowModality(), Qt::WindowModal);
    QCOMPARE(status()->text(), QString("Deleting"));
    QCOMPARE(count()->text(), QString("0/7"));
    QCOMPARE(bar()->minimum(), 0);
    QCOMPARE(bar()->maximum(), 7);
    QCOMPARE(bar()->value(), 0);
    QVERIFY(cancel()->isEnabled());
    QCOMPARE(FakeCore::log().count("MoveCentre"), 1);
}

void WaitingDlgTest::aDialogOpenedAgainKeepsItsPlaceAndStartsAnew()
{
    controller->ShowAnimation("Copying", 4);
    controller->UpDateProgress(1, 4);
    controller->UpDateProgress(2, 4);
    QCOMPARE(bar()->value(), 1);
    FakeCore::clearLog();
    controller->ShowAnimation("Copying records", 9);
    QCOMPARE(FakeCore::log().count("MoveCentre"), 0);
    QCOMPARE(bar()->value(), 0);
    QCOMPARE(bar()->maximum(), 9);
    QCOMPARE(count()->text(), QString("0/9"));
    QCOMPARE(status()->text(), QString("Copying records"));
    controller->UpDateProgress(1, 9);
    QCOMPARE(bar()->value(), 0);
    controller->CloseWaitingDialog();
    FakeCore::clearLog();
    controller->ShowAnimation("Copying", 2);
    QCOMPARE(FakeCore::log().count("MoveCentre"), 1);
}

void WaitingDlgTest::oneStepAndOneResultCloseIt()
{
    controller->ShowAnimation("Deleting", 1);
    controller->UpDateProgress(1, 1);
    QVERIFY(dialog()->isHidden());
    QVERIFY(!dialog()->m_bBlockClose);
    QCOMPARE(status()->text(), QString());
    QVERIFY(controller); // the window destroys it
}

void WaitingDlgTest::theBarRunsOneStepBehindAndJumpsAtTheLast()
{
    controller->ShowAnimation("Deleting", 4);
    QList<int> values;
    for (int i = 1; i <= 3; ++i) {
        controller->UpDateProgress(i, 4);
        values << bar()->value();
        QCOMPARE(count()->text(), QString("%1/4").arg(i));
        QVERIFY(dialog()->isVisible());
    }
    QCOMPARE(values, (QList<int>{0, 1, 2}));
    controller->UpDateProgress(4, 4);
    QCOMPARE(bar()->value(), 4);
    QVERIFY(dialog()->isHidden());
}

void WaitingDlgTest::aResultBelowTheTotalDoesNotCloseIt()
{
    controller->ShowAnimation("Deleting", 100);
    for (int i = 1; i < 100; ++i) {
        controller->UpDateProgress(i, 100);
        QVERIFY(dialog()->isVisible());
    }
}

void WaitingDlgTest::stepsCountedTooLowCloseItEarly()
{
    controller->ShowAnimation("Copying", 2);
    controller->UpDateProgress(1, 10);
    controller->UpDateProgress(2, 10);
    QVERIFY(dialog()->isVisible());
    controller->UpDateProgress(3, 10); // the bar has come to 2 by itself
    QVERIFY(dialog()->isHidden());
}

void WaitingDlgTest::resultsAfterTheEndDoNoHarm()
{
    controller->ShowAnimation("Copying", 2);
    controller->UpDateProgress(2, 2);
    controller->UpDateProgress(3, 10);
    controller->UpDateProgress(10, 10);
    QVERIFY(dialog()->isHidden());
}

void WaitingDlgTest::theCounterCanBeBlanked()
{
    controller->ShowAnimation("Importing", 1);
    controller->UpDateLabel(0, 0);
    QCOMPARE(count()->text(), QString());
    controller->UpDateLabel(12345, 67890);
    QCOMPARE(count()->text(), QString("12345/67890"));
    controller->UpDateLabel(5, 0);
    QCOMPARE(count()->text(), QString());
}

void WaitingDlgTest::theCounterShowsAtOnce()
{
    controller->ShowAnimation("Importing", 10);
    QVERIFY(QTest::qWaitForWindowExposed(dialog()));
    PaintCounter dialogPaints(dialog());
    PaintCounter labelPaints(count());
    controller->UpDateProgress(1, 10); // with no event loop in between
    QCOMPARE(dialogPaints.paints, 1);
    QCOMPARE(labelPaints.paints, 1);
}

void WaitingDlgTest::cancelIsOffAtTheLastStepAndOnAgainAtTheNextOpening()
{
    controller->ShowAnimation("Deleting", 2);
    controller->UpDateProgress(1, 2);
    QVERIFY(cancel()->isEnabled());
    controller->UpDateProgress(2, 2);
    QVERIFY(!cancel()->isEnabled());
    controller->ShowAnimation("Deleting", 2);
    QVERIFY(cancel()->isEnabled());
}

void WaitingDlgTest::closeRequestsAreRefusedWhileItIsInUse()
{
    controller->ShowAnimation("Deleting", 3);
    QVERIFY(!dialog()->close());
    QCloseEvent event;
    QApplication::sendEvent(dialog(), &event); // what a window manager's request becomes
    QVERIFY(!event.isAccepted());
    QVERIFY(dialog()->isVisible());
    controller->UpDateProgress(1, 3);
    QVERIFY(!dialog()->close());
    QVERIFY(!controller->GetProgressDlgCancelStatus());
}

void WaitingDlgTest::escapeDoesNotCloseIt()
{
    controller->ShowAnimation("Deleting", 3);
    QTest::keyClick(dialog(), Qt::Key_Escape);
    dialog()->reject();
    QVERIFY(dialog()->isVisible());
    QVERIFY(!controller->GetProgressDlgCancelStatus());
    controller->CloseWaitingDialog();
    dialog()->show();
    dialog()->reject(); // not even then
    QVERIFY(dialog()->isVisible());
}

void WaitingDlgTest::onceClosedACloseRequestIsAccepted()
{
    controller->ShowAnimation("Deleting", 3);
    controller->CloseWaitingDialog();
    QVERIFY(dialog()->isHidden());
    QCloseEvent event;
    event.ignore();
    QApplication::sendEvent(dialog(), &event);
    QVERIFY(event.isAccepted());
}

void WaitingDlgTest::aNullCloseEventDoesNothing()
{
    OpenedDialog opened;
    opened.closeEvent(nullptr);
    QCloseEvent event;
    opened.m_bBlockClose = true;
    opened.closeEvent(&event);
    QVERIFY(!event.isAccepted());
    opened.m_bBlockClose = false;
    opened.closeEvent(&event);
    QVERIFY(event.isAccepted());
}

void WaitingDlgTest::cancelClosesItAndIsToldOnce()
{
    controller->ShowAnimation("Deleting", 3);
    controller->UpDateProgress(1, 3);
    QTest::mouseClick(cancel(), Qt::LeftButton);
    QVERIFY(dialog()->isHidden());
    QVERIFY(controller); // nothing else happens at that moment
    controller->UpDateProgress(2, 3);
    QVERIFY(controller->GetProgressDlgCancelStatus());
    QVERIFY(controller.isNull());
    QVERIFY(!dialog());
}

void WaitingDlgTest::cancelIsReachedByTheKeyboard_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("space") << int(Qt::Key_Space);
    QTest::newRow("return") << int(Qt::Key_Return);
}

void WaitingDlgTest::cancelIsReachedByTheKeyboard()
{
    QFETCH(int, key);
    for (int round = 0; round < 2; ++round) { // the last step takes the focus away with the button
        controller->ShowAnimation("Deleting", 3);
        controller->UpDateProgress(3, 3);
    }
    controller->ShowAnimation("Deleting", 3);
    QVERIFY(QTest::qWaitForWindowExposed(dialog()));
    QCOMPARE(dialog()->focusWidget(), static_cast<QWidget*>(cancel()));
    QTest::keyClick(dialog()->windowHandle(), static_cast<Qt::Key>(key));
    QTRY_VERIFY(dialog()->isHidden());
    QVERIFY(controller->GetProgressDlgCancelStatus());
}

void WaitingDlgTest::withoutACancelNothingIsDeleted()
{
    QVERIFY(!controller->GetProgressDlgCancelStatus());
    controller->ShowAnimation("Deleting", 3);
    QVERIFY(!controller->GetProgressDlgCancelStatus());
    QVERIFY(controller);
    QVERIFY(dialog()->isVisible());
}

void WaitingDlgTest::anOpeningForgetsACancel()
{
    controller->ShowAnimation("Copying", 3);
    controller->OnCancelClicked();
    controller->ShowAnimation("Copying", 8);
    QVERIFY(dialog()->isVisible());
    QVERIFY(!controller->GetProgressDlgCancelStatus());
}

void WaitingDlgTest::aMemoryThatGoesAwayCancels()
{
    controller->ShowAnimation("Copying", 3);
    QVERIFY(QMetaObject::invokeMethod(controller, "OnCancelClicked"));
    QVERIFY(dialog()->isHidden());
    QVERIFY(controller->GetProgressDlgCancelStatus());
}

void WaitingDlgTest::destroyWithoutAnObjectDoesNothing()
{
    AddrBookWaitingDlg::Destroy();
    QVERIFY(controller.isNull());
    AddrBookWaitingDlg::Destroy();
}

void WaitingDlgTest::afterDestroyThereIsANewDialogWithTheNewParent()
{
    controller->ShowAnimation("Copying", 3);
    AddrBookWaitingDlg::Destroy();
    QVERIFY(!dialog());
    QWidget other;
    AddrBookWaitingDlg* next = AddrBookWaitingDlg::GetWaitingDlgInstance(&other);
    QCOMPARE(dialog()->parentWidget(), &other);
    QVERIFY(dialog()->isHidden());
    QVERIFY(!next->GetProgressDlgCancelStatus());
    AddrBookWaitingDlg::Destroy();
}

void WaitingDlgTest::aLaterCallIgnoresTheParent()
{
    QWidget other;
    AddrBookWaitingDlg::GetWaitingDlgInstance(&other);
    QCOMPARE(dialog()->parentWidget(), window.get());
}

void WaitingDlgTest::aTextOfAnyLengthLeavesTheSizeAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QString();
    QTest::newRow("one long word") << QString(5000, 'W');
    QTest::newRow("many words") << QString("being deleted ").repeated(500);
    QTest::newRow("many lines") << QString("line\n").repeated(500);
}

void WaitingDlgTest::aTextOfAnyLengthLeavesTheSizeAsItIs()
{
    QFETCH(QString, text);
    controller->ShowAnimation(text, 3);
    QVERIFY(QTest::qWaitForWindowExposed(dialog()));
    QCOMPARE(status()->text(), text);
    QCOMPARE(dialog()->size(), QSize(410, 160));
    // Nothing that the user needs is pushed out.
    QVERIFY(dialog()->rect().contains(cancel()->geometry()));
    QVERIFY(dialog()->rect().contains(bar()->geometry()));
    QCOMPARE(bar()->size(), QSize(340, 23));
    QVERIFY(!cancel()->geometry().intersects(bar()->geometry()));
}

void WaitingDlgTest::aDialogInUseKeepsItsLanguage()
{
    controller->ShowAnimation("Deleting", 3);
    FakeCore::setText("IDS_BUTTON_CANCEL", "Abbrechen", "de");
    FakeCore::setLanguage("de");
    controller->SetLanguage();
    QCOMPARE(cancel()->text(), QString("Cancel"));
    QCOMPARE(status()->text(), QString("Deleting"));
}

void WaitingDlgTest::aDialogThatWentWithItsWindowIsNotTouched()
{
    controller->ShowAnimation("Deleting", 3);
    window.reset();
    QVERIFY(!dialog());
    controller->UpDateProgress(1, 3);
    controller->UpDateLabel(2, 3);
    controller->ShowAnimation("Deleting", 3);
    controller->CloseWaitingDialog();
    controller->OnCancelClicked();
    QVERIFY(controller->GetProgressDlgCancelStatus());
}

void WaitingDlgTest::closingLeavesTheObject()
{
    controller->ShowAnimation("Importing", 1);
    controller->CloseWaitingDialog();
    QVERIFY(controller);
    QVERIFY(dialog()->isHidden());
    QVERIFY(!controller->GetProgressDlgCancelStatus());
}

QTEST_MAIN(WaitingDlgTest)
#include "WaitingDlgTest.moc"
