#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

#include "WindowSetup.h"
#include "loader/PluginHandle.h"
#include "orva/orva_sdk.h"
#include "shared/HostLink.h"
#include "window/NavButton.h"
#include "window/StatusArea.h"
#include "window/StyleSheet.h"
#include "window/WelcomeNote.h"

// The main window with stand-in plug-ins and the simulated device.
class TestHostWindow : public WindowSetup
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void eachPluginWithAWindowHasAPage();
    void aPageIsShownFittedAndHidden();
    void aMissingPhonebookIsSaidOnItsPage();
    void aFailedWindowIsSaidOnItsPage();
    void theKeysFollowToAChosenPage();
    void theKeysStayInTheSideBarThatIsWalkedAlong();
    void theMessagesPageShowsTheOutbox();
    void deletingAMessageAsksFirst();
    void theSideBarLeavesItsWordsOutInANarrowWindow();
    void thePanelSwitchesTheDevice();
    void thePanelFollowsTheDevice();
    void theStatusAreaShowsTheState();
    void problemsAreCountedAndNamed();
    void noticesAreKeptUpToALimit();
    void aNoticeKeepsItsAmpersand();
    void choosingALanguageIsSignalled();
    void closingIsSignalled();
    void anEmptyPhonebookExplainsItself();
    void theWelcomeCanBePutAway();
    void theWelcomeLeavesThePhonebookItsPlace();
    void theStyleFollowsThePalette();
    void linksCanBeReadOnAnyBackground_data();
    void linksCanBeReadOnAnyBackground();
};

void TestHostWindow::init()
{
    begin();
}

void TestHostWindow::cleanup()
{
    end();
    qApp->setProperty("standin.showFails", QVariant());
}

void TestHostWindow::eachPluginWithAWindowHasAPage()
{
    build(QStringList() << "AddrBookStandIn"
                        << "StandInPlugin");
    QVERIFY(m_pWindow->Page("AddrBookUIPlugin") != nullptr);
    QVERIFY(m_pWindow->Page("Messages") != nullptr);
    QVERIFY(m_pWindow->Page("StandInPlugin") != nullptr);
    QVERIFY(m_pWindow->Page("Nobody") == nullptr);
    QCOMPARE(find<QAbstractButton>("linkhand_NavBar_StandInPlugin")->text(), QStringLiteral("StandInPlugin"));
}

void TestHostWindow::aPageIsShownFittedAndHidden()
{
    build(QStringList("AddrBookStandIn"));
    m_pWindow->ShowPage("AddrBookUIPlugin");
    QWidget* pPage = m_pWindow->Page("AddrBookUIPlugin");
    QWidget* pContent = find<QWidget>("AddrBookUIPlugin_MainWidget");
    QVERIFY(pContent != nullptr);
    QCOMPARE(pContent->parentWidget(), pPage);
    QVERIFY(pContent->isVisible());
    m_pWindow->resize(m_pWindow->width() + 80, m_pWindow->height() + 30);
    QTRY_COMPARE(pContent->size(), pPage->size());
    QVERIFY(StandInFolder::TakeCalls().last().startsWith("AddrBookUIPlugin: FitSize"));
    QTest::mouseClick(find<QAbstractButton>("linkhand_NavBar_Messages"), Qt::LeftButton);
    QCOMPARE(StandInFolder::TakeCalls(), QStringList("AddrBookUIPlugin: Hide"));
    QVERIFY(!pContent->isVisible());
    QTest::mouseClick(find<QAbstractButton>("linkhand_NavBar_AddrBookUIPlugin"), Qt::LeftButton);
    QVERIFY(pContent->isVisible());
    QTest::mouseClick(find<QAbstractButton>("linkhand_NavBar_AddrBookUIPlugin"), Qt::LeftButton);
    QCOMPARE(StandInFolder::TakeCalls().size(), 1);
}

void TestHostWindow::aMissingPhonebookIsSaidOnItsPage()
{
    build(QStringList());
    m_pWindow->ShowPage("AddrBookUIPlugin");
    QLabel* pFailure = m_pWindow->Page("AddrBookUIPlugin")->findChild<QLabel*>("linkhand_Page_failure");
    QVERIFY(pFailure->isVisible());
    QVERIFY(!pFailure->text().isEmpty());
}

void TestHostWindow::aFailedWindowIsSaidOnItsPage()
{
    build(QStringList("AddrBookStandIn"));
    qApp->setProperty("standin.showFails", true);
    m_pWindow->ShowPage("AddrBookUIPlugin");
    QLabel* pFailure = m_pWindow->Page("AddrBookUIPlugin")->findChild<QLabel*>("linkhand_Page_failure");
    QVERIFY(pFailure->isVisible());
    m_pWindow->ShowPage("Messages");
    qApp->setProperty("standin.showFails", false);
    m_pWindow->ShowPage("AddrBookUIPlugin");
    QVERIFY(!pFailure->isVisible());
}

void TestHostWindow::theKeysFollowToAChosenPage()
{
    build(QStringList("AddrBookStandIn"));
    m_pWindow->ShowPage("AddrBookUIPlugin");
    QWidget* pContent = find<QWidget>("AddrBookUIPlugin_MainWidget");
    pContent->setFocusPolicy(Qt::StrongFocus);
    pContent->setFocus();
    QCOMPARE(m_pWindow->focusWidget(), pContent);
    m_pWindow->ShowPage("Messages");
    QVERIFY(m_pWindow->focusWidget() != nullptr);
    QVERIFY2(m_pWindow->Page("Messages")->isAncestorOf(m_pWindow->focusWidget()),
             qPrintable(m_pWindow->focusWidget()->objectName()));
}

void TestHostWindow::theKeysStayInTheSideBarThatIsWalkedAlong()
{
    build(QStringList("AddrBookStandIn"));
    m_pWindow->ShowPage("AddrBookUIPlugin");
    QAbstractButton* pButton = find<QAbstractButton>("linkhand_NavBar_Messages");
    pButton->setFocus();
    QTest::keyClick(pButton, Qt::Key_Space);
    QVERIFY(m_pWindow->Page("Messages")->isVisible());
    QCOMPARE(m_pWindow->focusWidget(), pButton);
}

// Also while only the width of the window changes, which leaves the side bar as large as it was.
void TestHostWindow::theSideBarLeavesItsWordsOutInANarrowWindow()
{
    build(QStringList("AddrBookStandIn"));
    int iWords = 0;
    foreach (const NavButton* pButton, m_pWindow->findChildren<NavButton*>()) {
        iWords = qMax(iWords, pButton->SizeIn(NavButton::CLOSE).width());
    }
    const int iFits = 4 * iWords;
    m_pWindow->setMinimumSize(1, 1);
    m_pWindow->resize(iFits, 900);
    QTRY_COMPARE(m_pWindow->size(), QSize(iFits, 900));
    const NavButton* pButton = find<NavButton>("linkhand_NavBar_Messages");
    QTRY_VERIFY(!pButton->IsPicture());
    // A layout that is still due would look at the width as well.
    QCoreApplication::processEvents();
    m_pWindow->resize(iFits - 1, 900);
    QTRY_VERIFY(pButton->IsPicture());
    QCOMPARE(m_pWindow->size(), QSize(iFits - 1, 900));
    QCoreApplication::processEvents();
    m_pWindow->resize(iFits, 900);
    QTRY_VERIFY(!pButton->IsPicture());
}

void TestHostWindow::theMessagesPageShowsTheOutbox()
{
    OutgoingMessage message;
    message.lstNumbers << "123"
                       << "456";
    message.strText = "first line\n<second>";
    QVERIFY(m_pOutbox->Add(message));
    build(QStringList());
    m_pWindow->ShowPage("Messages");
    QTreeWidget* pList = find<QTreeWidget>("linkhand_Messages_list");
    QCOMPARE(pList->topLevelItemCount(), 1);
    message.iKind = HOST_MESSAGE_MMS;
    message.strSubject = "Subject";
    QVERIFY(m_pOutbox->Add(message));
    QCOMPARE(pList->topLevelItemCount(), 2);
    QCOMPARE(pList->topLevelItem(0)->text(2), QStringLiteral("Subject"));
    QCOMPARE(pList->topLevelItem(1)->text(1), QStringLiteral("123; 456"));
    QCOMPARE(pList->topLevelItem(1)->text(2), QStringLiteral("first line"));
    // The one that was selected stays so.
    QVERIFY(pList->topLevelItem(1)->isSelected());
    QVERIFY(find<QTextEdit>("linkhand_Messages_preview")->toPlainText().contains("<second>"));
    QVERIFY2(!find<QPushButton>("linkhand_Messages_newSms")->isEnabled(), "no SMS plug-in is there");
}

void TestHostWindow::deletingAMessageAsksFirst()
{
    OutgoingMessage message;
    message.lstNumbers << "123";
    QVERIFY(m_pOutbox->Add(message));
    build(QStringList());
    m_pWindow->ShowPage("Messages");
    Services answers(m_pFolder->Path(), QString());
    answers.SetAnswers(QList<int>() << QMessageBox::Cancel << QMessageBox::Ok);
    answers.Publish();
    QPushButton* pDelete = find<QPushButton>("linkhand_Messages_delete");
    QTest::mouseClick(pDelete, Qt::LeftButton);
    QCOMPARE(m_pOutbox->Messages().size(), 1);
    QTest::mouseClick(pDelete, Qt::LeftButton);
    QCOMPARE(m_pOutbox->Messages().size(), 0);
    QVERIFY(!pDelete->isEnabled());
    m_pServices->Publish();
}

void TestHostWindow::thePanelSwitchesTheDevice()
{
    build(QStringList());
    m_pWindow->SetDevicePanelShown(true);
    QVERIFY(m_pWindow->DevicePanelShown());
    QVERIFY(m_pWatcher->State().bAttached);
    find<QCheckBox>("linkhand_DevicePanel_network")->click();
    QVERIFY(!DeviceState::Read().bRegistered);
    find<QCheckBox>("linkhand_DevicePanel_radio")->click();
    QVERIFY(!DeviceState::Read().bRadioOn);
    find<QCheckBox>("linkhand_DevicePanel_card")->click();
    QVERIFY(!DeviceState::Read().bCardReady);
    find<QCheckBox>("linkhand_DevicePanel_device")->click();
    QVERIFY(!DeviceState::Read().bAttached);
    foreach (const char* pszName, (QList<const char*>() << "device"
                                                        << "card"
                                                        << "radio"
                                                        << "network")) {
        find<QCheckBox>(QByteArray("linkhand_DevicePanel_") + pszName)->click();
    }
    QVERIFY(DeviceState::Read().Online());
    QVERIFY(DeviceState::Read().bCardReady);
    QComboBox* pPin = find<QComboBox>("linkhand_DevicePanel_pin");
    QVERIFY(pPin->isEnabled());
    pPin->setCurrentIndex(2);
    emit pPin->activated(2);
    QVERIFY(!DeviceState::Read().bCardReady);
    m_pWindow->SetDevicePanelShown(false);
    QVERIFY(!m_pWindow->DevicePanelShown());
}

void TestHostWindow::thePanelFollowsTheDevice()
{
    build(QStringList());
    QCheckBox* pDevice = find<QCheckBox>("linkhand_DevicePanel_device");
    QVERIFY(pDevice->isChecked());
    SimulatedHardware::SetDevice(false);
    QTRY_VERIFY(!pDevice->isChecked());
}

void TestHostWindow::theStatusAreaShowsTheState()
{
    build(QStringList());
    QLabel* pCard = find<QLabel>("linkhand_StatusArea_card");
    QTRY_COMPARE(pCard->text(), QStringLiteral("Card ready"));
    SimulatedHardware::SetPinStatus(2);
    QTRY_COMPARE(pCard->text(), QStringLiteral("Card locked"));
    SimulatedHardware::SetCard(false);
    QTRY_COMPARE(pCard->text(), QStringLiteral("No card"));
    SimulatedHardware::SetDevice(false);
    QTRY_COMPARE(find<QLabel>("linkhand_StatusArea_device")->text(), QStringLiteral("No device"));
    QVERIFY(!pCard->isVisible());
}

void TestHostWindow::problemsAreCountedAndNamed()
{
    build(QStringList());
    QToolButton* pProblems = find<QToolButton>("linkhand_StatusArea_problems");
    QVERIFY(!pProblems->isVisible());
    m_pWindow->Status().SetProblems(ProblemList() << Problem("BadPlugin", "Built for %1.", "4.6.2"));
    QVERIFY(pProblems->isVisible());
    QCOMPARE(pProblems->toolTip(), QStringLiteral("BadPlugin: Built for 4.6.2."));
}

void TestHostWindow::noticesAreKeptUpToALimit()
{
    StatusArea& status = m_pWindow->Status();
    for (int i = 0; i < 250; ++i) {
        status.ShowNotice(QString::number(i));
    }
    QCOMPARE(status.Notices().size(), 100);
    QVERIFY(status.Notices().first().endsWith("249"));
    QVERIFY(status.Notices().last().endsWith("150"));
    QCOMPARE(find<QToolButton>("linkhand_StatusArea_notice")->text(), QStringLiteral("249"));
}

void TestHostWindow::aNoticeKeepsItsAmpersand()
{
    m_pWindow->Status().ShowNotice("Marks & Sons, R&D");
    // In the text of a button one ampersand is written as two.
    QCOMPARE(find<QToolButton>("linkhand_StatusArea_notice")->text(), QStringLiteral("Marks && Sons, R&&D"));
    QVERIFY(m_pWindow->Status().Notices().first().endsWith("Marks & Sons, R&D"));
}

void TestHostWindow::choosingALanguageIsSignalled()
{
    LanguageEntry english;
    english.strCode = "en";
    english.strName = "English";
    LanguageEntry german;
    german.strCode = "de";
    german.strName = "Deutsch";
    m_pWindow->SetLanguages(QList<LanguageEntry>() << german << english, "en");
    QSignalSpy spy(m_pWindow.data(), SIGNAL(languageChosen(QString)));
    QMenu* pMenu = find<QMenu>("linkhand_NavBar_languageMenu");
    QCOMPARE(pMenu->actions().size(), 2);
    QVERIFY(!pMenu->actions().at(0)->isChecked());
    QVERIFY(pMenu->actions().at(1)->isChecked());
    pMenu->actions().at(0)->trigger();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toString(), QStringLiteral("de"));
}

void TestHostWindow::closingIsSignalled()
{
    build(QStringList());
    const QSignalSpy spy(m_pWindow.data(), SIGNAL(closing()));
    m_pWindow->close();
    QCOMPARE(spy.count(), 1);
}

void TestHostWindow::anEmptyPhonebookExplainsItself()
{
    build(QStringList("AddrBookStandIn"));
    QFrame* pNote = find<QFrame>("linkhand_WelcomeNote");
    m_pWindow->ShowPage("AddrBookUIPlugin");
    QVERIFY2(!pNote->isVisible(), "it was put away in an earlier run");
    m_pWindow->Welcome().SetDismissed(false);
    QVERIFY(pNote->isVisible());
    const QString strText = find<QLabel>("linkhand_WelcomeNote_text")->text();
    QVERIFY(strText.contains("new contact") && strText.contains("import"));
    m_pWindow->ShowPage("Messages");
    QVERIFY(!pNote->isVisible());
    m_pWindow->ShowPage("AddrBookUIPlugin");
    QVERIFY(pNote->isVisible());

    void* pRecord = nullptr;
    int iId = 0;
    QCOMPARE(ORVA_PBSrv_CreateAddrRecord(ORVA_MEMORY_LOCAL, &pRecord), long(ORVA_OK));
    QCOMPARE(ORVA_PBSrv_AddAddrRec(pRecord, &iId), long(ORVA_OK));
    ORVA_PBSrv_AddrRecord_Release(pRecord);
    QTRY_VERIFY(!pNote->isVisible());
    QCOMPARE(ORVA_PBSrv_DelAddrRec(iId, ORVA_MEMORY_LOCAL), long(ORVA_OK));
}

void TestHostWindow::theWelcomeCanBePutAway()
{
    build(QStringList("AddrBookStandIn"));
    m_pWindow->ShowPage("AddrBookUIPlugin");
    m_pWindow->Welcome().SetDismissed(false);
    QFrame* pNote = find<QFrame>("linkhand_WelcomeNote");
    QVERIFY(pNote->isVisible());
    QSignalSpy dismissed(&m_pWindow->Welcome(), SIGNAL(dismissed()));
    QTest::mouseClick(find<QToolButton>("linkhand_WelcomeNote_dismiss"), Qt::LeftButton);
    QCOMPARE(dismissed.count(), 1);
    QVERIFY(!pNote->isVisible());
    m_pWindow->ShowPage("Messages");
    m_pWindow->ShowPage("AddrBookUIPlugin");
    QVERIFY(!pNote->isVisible());
}

void TestHostWindow::theWelcomeLeavesThePhonebookItsPlace()
{
    build(QStringList("AddrBookStandIn"));
    m_pWindow->Welcome().SetDismissed(false);
    m_pWindow->ShowPage("AddrBookUIPlugin");
    QLabel* pText = find<QLabel>("linkhand_WelcomeNote_text");
    QVERIFY(pText != nullptr);
    QFont large = pText->font();
    large.setPointSize(24);
    m_pWindow->Welcome().setFont(large);
    m_pWindow->setMinimumSize(1, 1);
    m_pWindow->resize(1900, 900);
    QTRY_COMPARE(pText->font().pointSize(), 24);
    m_pWindow->resize(640, 340);
    QTRY_VERIFY(pText->font().pointSize() < 24);
    QTRY_VERIFY(pText->isVisible() && pText->height() >= pText->heightForWidth(pText->width()));
    QVERIFY(pText->heightForWidth(pText->width()) <= m_pWindow->height() / 4);
    m_pWindow->resize(1900, 900);
    QTRY_COMPARE(pText->font().pointSize(), 24);
}

void TestHostWindow::theStyleFollowsThePalette()
{
    const QPalette light(QColor(240, 240, 240));
    const QPalette dark(QColor(40, 40, 40));
    QVERIFY(StyleSheet::Build(light, QFont()) != StyleSheet::Build(dark, QFont()));
    QVERIFY(!StyleSheet::Build(light, QFont()).contains('%'));
    m_pWindow->setPalette(dark);
    QCOMPARE(m_pWindow->styleSheet(), StyleSheet::Build(m_pWindow->palette(), QApplication::font()));
}

void TestHostWindow::linksCanBeReadOnAnyBackground_data()
{
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("link");
    QTest::addColumn<bool>("kept");
    QTest::newRow("Qt's blue on white") << QColor(Qt::white) << QColor(0, 0, 255) << true;
    QTest::newRow("Qt's blue on black") << QColor(20, 20, 20) << QColor(0, 0, 255) << false;
    QTest::newRow("light blue on black") << QColor(20, 20, 20) << QColor(120, 180, 255) << true;
    QTest::newRow("light blue on white") << QColor(Qt::white) << QColor(120, 180, 255) << false;
}

void TestHostWindow::linksCanBeReadOnAnyBackground()
{
    QFETCH(QColor, base);
    QFETCH(QColor, link);
    QFETCH(bool, kept);
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Link, link);
    const QPalette legible = StyleSheet::WithLegibleLinks(palette);
    QCOMPARE(legible.color(QPalette::Link) == link, kept);
    QCOMPARE(legible.color(QPalette::Base), base);
    QCOMPARE(StyleSheet::WithLegibleLinks(legible), legible);
}

QTEST_MAIN(TestHostWindow)
#include "test_host_window.moc"
