#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTextBrowser>
#include <QTimer>
#include <QtTest>

#include "PhonebookSetup.h"
#include "linkhand/core/CommonUtils.h"
#include "orva/orva_care.h"
#include "window/WelcomeNote.h"

// The page of preferences, the program's keys, and what it says about itself.
class TestHostPreferences : public PhonebookSetup
{
    Q_OBJECT

private slots:
    void init() { start(); }
    void cleanup() { stop(); }
    void everySettingHasItsPlace_data();
    void everySettingHasItsPlace();
    void wordsOfTheCardAreKept();
    void theCountryIsKeptByTheSdk();
    void listsInOtherLettersAreMeasuredWhenSeen();
    void aLanguageIsChosenThereToo();
    void theStartPageIsKept();
    void theWelcomeNoteComesBack();
    void backupsAreShownOnTheCarePage();
    void everyPartIsReachedByTabAndHasAName();
    void theHardwarePanelsAgree();
    void theHardwareBoxIsAsWideAsWhatIsInIt();
    void theKeysOfTheProgramAreListed();
    void theProgramSaysWhatItIs();

private:
    template <class Widget>
    Widget* part(const char* pszRole)
    {
        return m_pWindow->findChild<Widget*>(QLatin1String("linkhand_Preferences_") + QLatin1String(pszRole));
    }
    static void choose(QComboBox* pBox, const QString& strData)
    {
        pBox->setCurrentIndex(pBox->findData(strData));
        QMetaObject::invokeMethod(pBox, "activated", Q_ARG(int, pBox->currentIndex()));
    }
    // Looks at the dialog that the function opens, and closes it.
    template <class Look>
    void under(const char* pszDialog, const std::function<void()>& open, const Look& look)
    {
        bool bSeen = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, [&] {
            QWidget* pDialog = QApplication::activeModalWidget();
            if (pDialog != nullptr && pDialog->objectName() == pszDialog) {
                timer.stop();
                bSeen = true;
                look(pDialog);
                QTest::keyClick(pDialog, Qt::Key_Escape);
            }
        });
        timer.start(5);
        open();
        QVERIFY(bSeen);
    }
};

void TestHostPreferences::everySettingHasItsPlace_data()
{
    QTest::addColumn<QString>("role");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("on");
    QTest::addColumn<QString>("off");
    QTest::addColumn<bool>("first");
    QTest::newRow("columns") << "columns"
                             << "addrbook/sortpreserve"
                             << "1"
                             << "0" << true;
    QTest::newRow("name units") << "nameUnits"
                                << "customize/pbnamecode"
                                << "all"
                                << "" << false;
    QTest::newRow("dual mode") << "dualMode"
                               << "DualModeCard/HideDoubleModeCardNode"
                               << "true"
                               << "false" << false;
    QTest::newRow("calls") << "calls"
                           << "callui/callvoice"
                           << "1"
                           << "0" << true;
    QTest::newRow("backup") << "backup"
                            << "host/dailybackup"
                            << "true"
                            << "false" << true;
    QTest::newRow("welcome") << "welcome"
                             << "host/welcomedismissed"
                             << "false"
                             << "true" << true;
}

void TestHostPreferences::everySettingHasItsPlace()
{
    QFETCH(QString, role);
    QFETCH(QString, key);
    QFETCH(QString, on);
    QFETCH(QString, off);
    QFETCH(bool, first);
    m_pWindow->ShowPage("Preferences");
    QCheckBox* pBox = part<QCheckBox>(qPrintable(role));
    QVERIFY(pBox != nullptr);
    QCOMPARE(pBox->isChecked(), first);
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(pBox, Qt::Key_Space);
        const bool bOn = pBox->isChecked();
        QCOMPARE(bOn, i == 0 ? !first : first);
        // As those read it whose setting it is.
        QCOMPARE(CommonUtils::GetSettings(key.section('/', 0, 0), key.section('/', 1)), bOn ? on : off);
    }
    stop();
    start();
    QCOMPARE(part<QCheckBox>(qPrintable(role))->isChecked(), first);
}

void TestHostPreferences::wordsOfTheCardAreKept()
{
    m_pWindow->ShowPage("Preferences");
    QLineEdit* pWord = part<QLineEdit>("simType");
    QCOMPARE(pWord->text(), QString("SIM"));
    pWord->setFocus();
    pWord->setText(QString::fromUtf8("Münz, A")); // no keyboard of the test's has all of its letters
    QTest::keyClick(pWord, Qt::Key_Return);
    QCOMPARE(CommonUtils::GetSettings("customize", "simtype"), QString::fromUtf8("Münz, A"));
    m_pWindow->ShowPage("Messages");
    m_pWindow->ShowPage("Preferences");
    QCOMPARE(pWord->text(), QString::fromUtf8("Münz, A"));
    m_pSettings->SetValue("customize/simtype", "SIM");
}

void TestHostPreferences::theCountryIsKeptByTheSdk()
{
    m_pWindow->ShowPage("Preferences");
    QComboBox* pCountry = part<QComboBox>("country");
    QVERIFY(pCountry->count() > 150);
    choose(pCountry, "AT");
    char szRegion[3] = "";
    QCOMPARE(ORVA_Care_GetRegion(szRegion), long(ORVA_OK));
    QCOMPARE(QString(szRegion), QString("AT"));
    stop();
    start();
    QCOMPARE(part<QComboBox>("country")->currentText(), QString::fromUtf8("AT  Österreich"));
    choose(part<QComboBox>("country"), "none");
    QCOMPARE(ORVA_Care_GetRegion(szRegion), long(ORVA_OK));
    QCOMPARE(QString(szRegion), QString());
    choose(part<QComboBox>("country"), "");
}

void TestHostPreferences::listsInOtherLettersAreMeasuredWhenSeen()
{
    const LanguageEntry german = {"de", "Deutsch"};
    m_pWindow->SetLanguages(QList<LanguageEntry>() << german, "de");
    for (const char* pszRole : {"country", "language"}) {
        QCOMPARE(part<QComboBox>(pszRole)->sizeHint(), QSize(0, 0));
    }
    m_pWindow->ShowPage("Preferences");
    for (const char* pszRole : {"country", "language"}) {
        QComboBox* pBox = part<QComboBox>(pszRole);
        int iWidest = 0;
        for (int i = 0; i < pBox->count(); ++i) {
            iWidest = qMax(iWidest, pBox->fontMetrics().boundingRect(pBox->itemText(i)).width());
        }
        QTRY_VERIFY(pBox->width() > iWidest);
    }
}

void TestHostPreferences::aLanguageIsChosenThereToo()
{
    const LanguageEntry english = {"en", "English"};
    const LanguageEntry german = {"de", "Deutsch"};
    m_pWindow->SetLanguages(QList<LanguageEntry>() << english << german, "de");
    QComboBox* pLanguage = part<QComboBox>("language");
    QCOMPARE(pLanguage->currentText(), QString("Deutsch"));
    QSignalSpy chosen(m_pWindow.data(), SIGNAL(languageChosen(QString)));
    choose(pLanguage, "en");
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.first().first().toString(), QString("en"));
}

void TestHostPreferences::theStartPageIsKept()
{
    QComboBox* pStart = part<QComboBox>("startPage");
    QCOMPARE(pStart->currentData().toString(), QString()); // the last one
    choose(pStart, "Messages");
    QCOMPARE(m_pSettings->StartPage(), QString("Messages"));
    stop();
    start();
    QCOMPARE(part<QComboBox>("startPage")->currentText(), QString("Messages"));
    choose(part<QComboBox>("startPage"), "");
    QCOMPARE(m_pSettings->StartPage(), QString());
}

void TestHostPreferences::theWelcomeNoteComesBack()
{
    m_pWindow->Welcome().SetDismissed(true);
    m_pSettings->SetWelcomeDismissed(true);
    m_pWindow->ShowPage("Preferences");
    QTest::keyClick(part<QCheckBox>("welcome"), Qt::Key_Space);
    QVERIFY(!m_pSettings->WelcomeDismissed());
    m_pWindow->ShowPage(LINKHAND_ADDRBOOK_NAME);
    QVERIFY(m_pWindow->Welcome().isVisible());
}

void TestHostPreferences::backupsAreShownOnTheCarePage()
{
    m_pWindow->ShowPage("Preferences");
    part<QPushButton>("backups")->click();
    QCOMPARE(m_pWindow->CurrentPage(), QString("Care"));
    QVERIFY(m_pWindow->findChild<QWidget*>("linkhand_Care_backups")->isVisible());
}

void TestHostPreferences::everyPartIsReachedByTabAndHasAName()
{
    QTest::keyClick(m_pWindow.data(), Qt::Key_Comma, Qt::ControlModifier);
    QCOMPARE(m_pWindow->CurrentPage(), QString("Preferences"));
    QWidget* pPage = m_pWindow->Page("Preferences");
    QScrollArea* pScroll = part<QScrollArea>("scroll");
    QSet<QWidget*> seen;
    for (int i = 0; i < 60; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QWidget* pFocus = QApplication::focusWidget();
        seen.insert(pFocus);
        // What has the keys is on the screen.
        if (pScroll->widget()->isAncestorOf(pFocus)) {
            const QPoint centre = pFocus->mapTo(pScroll->viewport(), pFocus->rect().center());
            QVERIFY2(pScroll->viewport()->rect().contains(centre), qPrintable(pFocus->objectName()));
        }
    }
    int iParts = 0;
    foreach (QWidget* pPart, pPage->findChildren<QWidget*>()) {
        const bool bControl = qobject_cast<QCheckBox*>(pPart) != nullptr ||
                              qobject_cast<QComboBox*>(pPart) != nullptr ||
                              qobject_cast<QPushButton*>(pPart) != nullptr;
        if (bControl && pPart->isVisible() && pPart->isEnabled()) {
            QVERIFY2(seen.contains(pPart), qPrintable(pPart->objectName()));
            ++iParts;
        }
    }
    QVERIFY(iParts >= 12);
    foreach (QLabel* pLabel, pPage->findChildren<QLabel*>()) {
        QVERIFY2(!pLabel->text().startsWith("IDS_"), qPrintable(pLabel->text()));
    }
}

void TestHostPreferences::theHardwarePanelsAgree()
{
    QComboBox* pHere = part<QComboBox>("hardware_choice");
    QComboBox* pThere = m_pWindow->findChild<QComboBox*>("linkhand_HardwarePanel_choice");
    QVERIFY(pHere != nullptr && pThere != nullptr && pHere != pThere);
    pHere->setCurrentIndex(1);
    QMetaObject::invokeMethod(pHere, "activated", Q_ARG(int, 1));
    QCOMPARE(pThere->currentIndex(), 1);
    pThere->setCurrentIndex(0);
    QMetaObject::invokeMethod(pThere, "activated", Q_ARG(int, 0));
    QCOMPARE(pHere->currentIndex(), 0);
}

void TestHostPreferences::theHardwareBoxIsAsWideAsWhatIsInIt()
{
    m_pWindow->ShowPage("Preferences");
    m_pWindow->resize(1120, 740);
    const QComboBox* pBox = part<QComboBox>("hardware_choice");
    QTRY_COMPARE(pBox->width(), qMax(pBox->sizeHint().width(), pBox->minimumWidth()));
    QVERIFY(pBox->width() < 400);
    const QPoint left(0, 0);
    QCOMPARE(pBox->mapTo(m_pWindow.data(), left).x(),
             part<QLabel>("hardware_title")->mapTo(m_pWindow.data(), left).x());
    // Beside the simulated device it is as wide as the panel.
    m_pWindow->SetDevicePanelShown(true);
    const QComboBox* pThere = m_pWindow->findChild<QComboBox*>("linkhand_HardwarePanel_choice");
    const QComboBox* pNeighbour = m_pWindow->findChild<QComboBox*>("linkhand_DevicePanel_pin");
    QTRY_VERIFY(pThere->isVisible());
    QTRY_COMPARE(pThere->width(), pNeighbour->width());
}

void TestHostPreferences::theKeysOfTheProgramAreListed()
{
    under(
        "linkhand_Help", [this] { QTest::keyClick(m_pWindow.data(), Qt::Key_F1); },
        [](QWidget* pDialog) {
            const QString strKeys = pDialog->findChild<QTextBrowser*>("linkhand_Help_keys")->toPlainText();
            for (const char* pszKey : {"F1", "Alt+1", "Alt+2", "Ctrl+N", "Ctrl+E", "Ctrl+F", "Ctrl+Shift+N", "F2",
                                       "Del", "Ctrl+T", "Ctrl+M", "Ctrl+Q", "Esc", "Shift+F10"}) {
                QVERIFY2(strKeys.contains(pszKey), pszKey);
            }
            QVERIFY2(!strKeys.contains("IDS_"), qPrintable(strKeys));
        });
}

void TestHostPreferences::theProgramSaysWhatItIs()
{
    m_pWindow->ShowPage("Preferences");
    QCoreApplication::setApplicationVersion("1.2.3");
    under(
        "linkhand_About", [this] { part<QPushButton>("about")->click(); },
        [](QWidget* pDialog) {
            const QString strText = pDialog->findChild<QLabel*>("linkhand_About_text")->text();
            QVERIFY(strText.contains("1.2.3"));
            QVERIFY(strText.contains(qVersion()));
            QVERIFY(!strText.contains("IDS_"));
        });
}

QTEST_MAIN(TestHostPreferences)
#include "test_host_preferences.moc"
