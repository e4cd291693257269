#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

#include "WindowSetup.h"
#include "linkhand/QtCompat.h"
#include "orva/orva_sdk.h"
#include "window/NavBar.h"
#include "window/ProblemsDialog.h"
#include "window/StatusArea.h"
#include "window/StyleSheet.h"
#include "window/WelcomeNote.h"

// The parts around the pages: side bar, device panel, status area, welcome.
class TestHostPages : public WindowSetup
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void eachPluginHasOneButtonWithItsKey();
    void aNewTextKeepsTheKeyOfAPage();
    void oneLanguageIsNoChoice();
    void thePanelKeepsItsChoicesWhenTheLanguageChanges();
    void theOtherSystemModeHasTheOtherCard();
    void withoutADeviceThereIsNeitherCardNorNetwork();
    void theSideBarHasItsWordsBackInAWiderWindow();
    void thePanelHasRoomForItsScrollBar();
    void thePanelIsAsWideAsItsLongestWord();
    void aPastNoticeKeepsItsOwnDirectionAndItsAmpersand();
    void aPhonebookThatCannotBeReadIsNotCalledEmpty();
    void marksInAProblemAreText();
    void aFontLooksInItsFamiliesInTurn();
    void columnsEndWhereTheTextEnds();
};

void TestHostPages::init()
{
    begin();
}

void TestHostPages::cleanup()
{
    QApplication::setLayoutDirection(Qt::LeftToRight);
    end();
}

void TestHostPages::eachPluginHasOneButtonWithItsKey()
{
    build(QStringList() << "AddrBookStandIn"
                        << "StandInPlugin");
    QStringList lstKeys;
    foreach (const QAbstractButton* pButton, m_pWindow->findChildren<QAbstractButton*>()) {
        if (!pButton->shortcut().isEmpty() && pButton->objectName().startsWith("linkhand_NavBar_")) {
            lstKeys << pButton->shortcut().toString() + pButton->objectName().mid(15);
        }
    }
    lstKeys.sort();
    QCOMPARE(lstKeys, QStringList() << "Alt+1_AddrBookUIPlugin"
                                    << "Alt+2_Messages"
                                    << "Alt+3_StandInPlugin"
                                    << "Alt+4_Care");
}

void TestHostPages::aNewTextKeepsTheKeyOfAPage()
{
    build(QStringList());
    QAbstractButton* pMessages = find<QAbstractButton>("linkhand_NavBar_Messages");
    m_pWindow->Retranslate();
    QCOMPARE(pMessages->shortcut(), QKeySequence("Alt+2"));
    QVERIFY(pMessages->toolTip().endsWith("(Alt+2)"));
    QApplication::setActiveWindow(m_pWindow.data());
    QVERIFY(QTest::qWaitForWindowActive(m_pWindow.data()));
    m_pWindow->ShowPage("AddrBookUIPlugin");
    QVERIFY(!pMessages->isChecked());
    QTest::keyClick(m_pWindow.data(), Qt::Key_2, Qt::AltModifier);
    QTRY_VERIFY(pMessages->isChecked());
}

void TestHostPages::oneLanguageIsNoChoice()
{
    build(QStringList());
    LanguageEntry english;
    english.strCode = "en";
    english.strName = "English";
    LanguageEntry german;
    german.strCode = "de";
    german.strName = "Deutsch";
    QWidget* pButton = find<QWidget>("linkhand_NavBar_language");
    m_pWindow->SetLanguages(QList<LanguageEntry>() << english, "en");
    QVERIFY(!pButton->isVisible());
    m_pWindow->SetLanguages(QList<LanguageEntry>() << english << german, "en");
    QVERIFY(pButton->isVisible());
}

void TestHostPages::thePanelKeepsItsChoicesWhenTheLanguageChanges()
{
    build(QStringList());
    QComboBox* pSpeed = find<QComboBox>("linkhand_DevicePanel_speed");
    pSpeed->setCurrentIndex(2);
    m_pWindow->Retranslate();
    QCOMPARE(pSpeed->currentIndex(), 2);
    QCOMPARE(pSpeed->count(), 3);
    // The status of a card that is out is nobody's, so that what was chosen last stays.
    QComboBox* pPin = find<QComboBox>("linkhand_DevicePanel_pin");
    SimulatedHardware::SetPinStatus(3);
    QTRY_COMPARE(pPin->currentIndex(), 3);
    SimulatedHardware::SetCard(false);
    QTRY_VERIFY(!pPin->isEnabled());
    m_pWindow->Retranslate();
    QCOMPARE(pPin->currentIndex(), 3);
}

void TestHostPages::theOtherSystemModeHasTheOtherCard()
{
    build(QStringList());
    QComboBox* pMode = find<QComboBox>("linkhand_DevicePanel_mode");
    pMode->setCurrentIndex(1);
    emit pMode->activated(1);
    int iType = 0;
    QCOMPARE(ORVA_DevSrv_GetProductType(&iType), long(ORVA_OK));
    QCOMPARE(iType, 1);
    QCOMPARE(ORVA_DevSrv_GetSimType(&iType), long(ORVA_OK));
    QCOMPARE(iType, 3);
    emit pMode->activated(0);
    QCOMPARE(ORVA_DevSrv_GetProductType(&iType), long(ORVA_OK));
    QCOMPARE(iType, 2);
    QCOMPARE(ORVA_DevSrv_GetSimType(&iType), long(ORVA_OK));
    QCOMPARE(iType, 1);
}

void TestHostPages::withoutADeviceThereIsNeitherCardNorNetwork()
{
    build(QStringList());
    QLabel* pCard = find<QLabel>("linkhand_StatusArea_card");
    QLabel* pNetwork = find<QLabel>("linkhand_StatusArea_network");
    QTRY_VERIFY(pCard->isVisible() && pNetwork->isVisible());
    SimulatedHardware::SetDevice(false);
    QTRY_VERIFY(!pCard->isVisible());
    QVERIFY(!pNetwork->isVisible());
    SimulatedHardware::SetDevice(true);
    QTRY_VERIFY(pCard->isVisible());
    QVERIFY(pNetwork->isVisible());
}

void TestHostPages::theSideBarHasItsWordsBackInAWiderWindow()
{
    build(QStringList("AddrBookStandIn"));
    NavBar* pBar = find<NavBar>("linkhand_NavBar");
    const NavButton* pButton = find<NavButton>("linkhand_NavBar_AddrBookUIPlugin");
    pBar->SetPageText(0, QStringLiteral("A longer word"));
    const int iWidth = 4 * pButton->SizeIn(NavButton::CLOSE).width();
    m_pWindow->setMinimumSize(100, 100);
    m_pWindow->resize(iWidth - 1, 740);
    QTRY_VERIFY(pButton->IsPicture());
    m_pWindow->resize(iWidth, 740);
    QTRY_VERIFY(!pButton->IsPicture());
}

void TestHostPages::thePanelHasRoomForItsScrollBar()
{
    build(QStringList());
    m_pWindow->SetDevicePanelShown(true);
    const QScrollArea* pView = find<QWidget>("linkhand_DevicePanel")->findChild<QScrollArea*>();
    m_pWindow->setMinimumSize(100, 100);
    m_pWindow->resize(1120, 300);
    QTRY_VERIFY(pView->verticalScrollBar()->isVisible());
    QTRY_VERIFY(!pView->horizontalScrollBar()->isVisible());
    const int iWidth = pView->width();
    m_pWindow->resize(1120, 1200);
    QTRY_VERIFY(!pView->verticalScrollBar()->isVisible());
    QTRY_VERIFY(pView->width() < iWidth);
}

void TestHostPages::thePanelIsAsWideAsItsLongestWord()
{
    build(QStringList());
    m_pWindow->SetDevicePanelShown(true);
    QCheckBox* pNetwork = find<QCheckBox>("linkhand_DevicePanel_network");
    pNetwork->setText(QStringLiteral("A word of another language that is longer by far"));
    m_pWindow->resize(1120, 1000);
    QTRY_VERIFY(find<QWidget>("linkhand_DevicePanel")->width() > pNetwork->sizeHint().width());
    QTRY_VERIFY(pNetwork->width() >= pNetwork->sizeHint().width());
}

void TestHostPages::aPastNoticeKeepsItsOwnDirectionAndItsAmpersand()
{
    build(QStringList());
    m_pWindow->Status().ShowNotice("Contact added: +49170 & more");
    QStringList lstEntries;
    QTimer looker;
    connect(&looker, &QTimer::timeout, this, [&]() {
        QMenu* pMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (pMenu == nullptr) {
            return;
        }
        foreach (const QAction* pAction, pMenu->actions()) {
            lstEntries << pAction->text();
        }
        pMenu->close();
    });
    looker.start(5);
    QTest::mouseClick(find<QToolButton>("linkhand_StatusArea_notice"), Qt::LeftButton);
    looker.stop();
    QCOMPARE(lstEntries.size(), 1);
    // Behind the time and its two blanks.
    QCOMPARE(lstEntries.first().mid(8), QString("  ") + QChar(0x2068) + "Contact added: +49170 && more");
}

void TestHostPages::aPhonebookThatCannotBeReadIsNotCalledEmpty()
{
    build(QStringList("AddrBookStandIn"));
    m_pWindow->ShowPage("AddrBookUIPlugin");
    QWidget* pNote = find<QWidget>("linkhand_WelcomeNote");
    m_pWindow->Welcome().SetDismissed(false);
    QVERIFY(pNote->isVisible());
    // A folder where the store's file should be.
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath("local.db"));
    QCOMPARE(ORVA_Sim_Reset(QFile::encodeName(folder.path()).constData()), long(ORVA_OK));
    int iSize = 0;
    QVERIFY(ORVA_PBSrv_GetSize(ORVA_MEMORY_LOCAL, &iSize) != ORVA_OK);
    QTRY_VERIFY(!pNote->isVisible());
    QCOMPARE(ORVA_Sim_Reset(nullptr), long(ORVA_OK));
}

void TestHostPages::marksInAProblemAreText()
{
    const QString strName = "<b>a</b> &amp; \"b\".so";
    const ProblemsDialog dialog(ProblemList() << Problem(strName, "IDS_HOST_PROBLEM_DAMAGED"), nullptr);
    const QTextBrowser* pList = dialog.findChild<QTextBrowser*>("linkhand_Problems_list");
    QVERIFY(pList != nullptr);
    QCOMPARE(pList->toPlainText().section('\n', 0, 0), strName);
}

// One that is not there is passed over.
void TestHostPages::aFontLooksInItsFamiliesInTurn()
{
    QFont font;
    QtCompat::setFamilies(font, QStringList() << "No Such Family"
                                              << "DejaVu Sans Mono");
    QCOMPARE(QFontInfo(font).family(), QString("DejaVu Sans Mono"));
}

void TestHostPages::columnsEndWhereTheTextEnds()
{
    const QPalette palette(QColor(240, 240, 240));
    QVERIFY(StyleSheet::Build(palette, QFont()).contains("border-right: 1px"));
    QVERIFY(!StyleSheet::Build(palette, QFont()).contains("border-left"));
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QVERIFY(StyleSheet::Build(palette, QFont()).contains("border-left: 1px"));
    QVERIFY(!StyleSheet::Build(palette, QFont()).contains("border-right"));
}

QTEST_MAIN(TestHostPages)
#include "test_host_pages.moc"
