#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

#include <csignal>

#include "HostDriver.h"
#include "Profile.h"

namespace
{

const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const PREVIEW = "AddrBookUIPlugin_labelPreview";
const char* const PANEL = "linkhand_DevicePanel";
const int QUIT_LIMIT_MS = 2000;
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
const int SLOWDOWN = 5; // the sanitizers' own time
#else
const int SLOWDOWN = 1;
#endif

// A copy of the built program whose plug-ins may be changed.
class InstalledCopy
{
public:
    InstalledCopy()
    {
        const QString strBuild = QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR"));
        QFile::copy(strBuild + "/linkhand-test", Program());
        QFile::link(strBuild + "/lib", m_folder.filePath("lib"));
        QFile::link(strBuild + "/languages", m_folder.filePath("languages"));
        QDir().mkpath(m_folder.filePath("plugins"));
        QFile::link(strBuild + "/plugins/AddrBookUIPlugin", m_folder.filePath("plugins/AddrBookUIPlugin"));
        foreach (const QString& strName, QDir(strBuild + "/plugins").entryList(QStringList("lib*.so"), QDir::Files)) {
            QFile::copy(strBuild + "/plugins/" + strName, File("plugins/" + strName));
        }
    }

    QString Program() const { return m_folder.filePath("linkhand"); }
    QString File(const QString& strName) const { return m_folder.filePath(strName); }

private:
    QTemporaryDir m_folder;
};

} // namespace

// The real program on a display, used with real mouse and keys.
class TestDesktopHost : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theProfileIsShownAtTheStart();
    void aClickOnTheCardNodeShowsItsContacts();
    void aRowClickedIsShownInThePreview();
    void detachingTheDeviceTakesItsNodesAway();
    void removingTheCardTakesItsNodeAway();
    void anotherLanguageTurnsTheWindow();
    void aMessageLiesInTheOutboxAlsoAfterARestart();
    void aPluginThatWasRefusedIsNamed();
    void aDataFolderThatCannotBeMadeIsSaid();
    void aDamagedPhonebookIsSaidAndKept();
    void theWindowComesBackWhereItWas();
    void aScreenshotIsWrittenOnceContactsAreShown();
    void closingWithTheMouseEndsTheProgram();
    void aTerminationSignalEndsTheProgramCleanly();
    void quittingWhileABigMemoryIsReadIsQuick();
    void quittingWhileASlowCardIsReadIsQuick();

private:
    bool start(const QStringList& lstArguments = QStringList());
    bool openPanel();
    QString nodeText(const QString& strBegin) { return m_pHost->Cell(TREE, strBegin).strText; }

    QScopedPointer<Profile> m_pProfile;
    QScopedPointer<HostDriver> m_pHost;
    bool m_bErrorsExpected = false;
};

void TestDesktopHost::init()
{
    m_bErrorsExpected = false;
    m_pProfile.reset(new Profile);
    m_pHost.reset(new HostDriver);
    QVERIFY(m_pProfile->Add(4, "Anna", "+49170", 40));
    QVERIFY(m_pProfile->Add(0, "Card", "0171", 12));
    QVERIFY(m_pProfile->Add(1, "Device", "0172", 7));
    QVERIFY(m_pProfile->AddGroup("Friends", 0, QList<int>() << 1 << 2 << 3) != 0);
}

void TestDesktopHost::cleanup()
{
    if (m_pHost->Running()) {
        if (QTest::currentTestFailed()) {
            m_pHost->Screenshot(QStringLiteral("%1.png").arg(QTest::currentTestFunction()));
        }
        QVERIFY2(m_pHost->Quit() >= 0, qPrintable(m_pHost->Log()));
    }
    if (!m_bErrorsExpected) {
        QVERIFY2(m_pHost->ErrorLines().isEmpty(), qPrintable(m_pHost->ErrorLines().join('\n')));
    }
    m_pHost.reset();
}

bool TestDesktopHost::start(const QStringList& lstArguments)
{
    m_pProfile->Close();
    return m_pHost->Start(m_pProfile->Path(), lstArguments);
}

bool TestDesktopHost::openPanel()
{
    return m_pHost->Click("linkhand_NavBar_device") && m_pHost->WaitFor(PANEL);
}

void TestDesktopHost::theProfileIsShownAtTheStart()
{
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 40);
    QCOMPARE(nodeText("Computer"), QStringLiteral("Computer(40)"));
    QCOMPARE(nodeText("SIM"), QStringLiteral("SIM card(12/250)"));
    QCOMPARE(nodeText("Device"), QStringLiteral("Device(7/500)"));
    QVERIFY(m_pHost->Exists(PREVIEW));
    QVERIFY(m_pHost->Cell(TABLE, "Anna 0001", 0).iColumn == 0);
    QCOMPARE(m_pHost->Text("linkhand_StatusArea_network"), QStringLiteral("Online"));
    QVERIFY(!m_pHost->Exists("linkhand_StatusArea_problems"));
}

void TestDesktopHost::aClickOnTheCardNodeShowsItsContacts()
{
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 40);
    QVERIFY(m_pHost->ClickCell(TREE, "SIM"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 12);
    QVERIFY(m_pHost->Cell(TABLE, "Card 0001", 0).iColumn == 0);
    QVERIFY(m_pHost->ClickCell(TREE, "Computer"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 40);
}

void TestDesktopHost::aRowClickedIsShownInThePreview()
{
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 40);
    QVERIFY(m_pHost->ClickCell(TABLE, "Anna 0003"));
    QTRY_VERIFY(m_pHost->Text(PREVIEW).contains("Anna 0003"));
    QVERIFY(m_pHost->Text(PREVIEW).contains("+491700003"));
    QVERIFY(m_pHost->Cell(TABLE, "Anna 0003").bSelected);
}

void TestDesktopHost::detachingTheDeviceTakesItsNodesAway()
{
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 40);
    QVERIFY(m_pHost->ClickCell(TREE, "SIM"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 12);
    QVERIFY(openPanel());
    QVERIFY(m_pHost->Click("linkhand_DevicePanel_device"));
    QTRY_VERIFY(nodeText("SIM").isEmpty() && nodeText("Device").isEmpty());
    QTRY_COMPARE(m_pHost->Rows(TABLE), 40);
    QTRY_COMPARE(m_pHost->Text("linkhand_StatusArea_device"), QStringLiteral("No device"));
    QVERIFY(m_pHost->Click("linkhand_DevicePanel_device"));
    QTRY_COMPARE(nodeText("SIM"), QStringLiteral("SIM card(12/250)"));
    QTRY_COMPARE(nodeText("Device"), QStringLiteral("Device(7/500)"));
    QTRY_COMPARE(m_pHost->Text("linkhand_StatusArea_notice"), QString::fromUtf8("The device’s phonebook is there"));
}

void TestDesktopHost::removingTheCardTakesItsNodeAway()
{
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QTRY_VERIFY(!nodeText("SIM").isEmpty());
    QVERIFY(openPanel());
    QVERIFY(m_pHost->Click("linkhand_DevicePanel_card"));
    QTRY_VERIFY(nodeText("SIM").isEmpty());
    QVERIFY(!nodeText("Device").isEmpty());
    QVERIFY(m_pHost->Click("linkhand_DevicePanel_card"));
    QTRY_COMPARE(nodeText("SIM"), QStringLiteral("SIM card(12/250)"));
}

void TestDesktopHost::anotherLanguageTurnsTheWindow()
{
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 40);
    const QRect before = m_pHost->Widget("linkhand_NavBar").rect;
    const QString strArabic = QString::fromUtf8("العربية");
    QVERIFY(m_pHost->Click("linkhand_NavBar_language"));
    QVERIFY(m_pHost->ClickAction(strArabic));
    QTRY_VERIFY(m_pHost->Widget("linkhand_NavBar").rect.left() > before.right());
    QCOMPARE(m_pHost->Text("linkhand_NavBar_AddrBookUIPlugin"), QString::fromUtf8("دليل الهاتف"));
    QCOMPARE(m_pHost->Rows(TABLE), 40);
    // The plug-in has heard of it.
    QTRY_COMPARE(m_pHost->Headers(TABLE).value(0).strText, QString::fromUtf8("الاسم"));
    QVERIFY(m_pHost->Quit() >= 0);
    // It stays chosen.
    QVERIFY2(m_pHost->Start(m_pProfile->Path()), qPrintable(m_pHost->Log()));
    QCOMPARE(m_pHost->Text("linkhand_NavBar_AddrBookUIPlugin"), QString::fromUtf8("دليل الهاتف"));
    QVERIFY(m_pHost->Click("linkhand_NavBar_language"));
    QVERIFY(m_pHost->WaitUntil([this] { return !m_pHost->Actions().isEmpty(); }));
    QVERIFY(m_pHost->Action(strArabic).bChecked);
    QVERIFY(m_pHost->ClickAction("English"));
    QTRY_COMPARE(m_pHost->Text("linkhand_NavBar_AddrBookUIPlugin"), QStringLiteral("Phonebook"));
}

void TestDesktopHost::aMessageLiesInTheOutboxAlsoAfterARestart()
{
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    m_pHost->Key("alt+2");
    QVERIFY(m_pHost->Click("linkhand_Messages_newSms"));
    QVERIFY(m_pHost->WaitFor("SMSUIPlugin_editor"));
    QVERIFY(m_pHost->WaitUntil([this] { return m_pHost->Widget("SMSUIPlugin_lineeditTo").bFocused; }));
    m_pHost->Type("0170123; 0170456");
    QVERIFY(m_pHost->Click("SMSUIPlugin_texteditText"));
    m_pHost->Type("See you at eight");
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonSend"));
    QVERIFY(m_pHost->WaitGone("SMSUIPlugin_editor"));
    QTRY_COMPARE(m_pHost->Rows("linkhand_Messages_list"), 1);
    QVERIFY(m_pHost->Text("linkhand_Messages_preview").contains("See you at eight"));
    QVERIFY(m_pHost->Quit() >= 0);
    QVERIFY2(m_pHost->Start(m_pProfile->Path()), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->Click("linkhand_NavBar_Messages"));
    QTRY_COMPARE(m_pHost->Rows("linkhand_Messages_list"), 1);
    QCOMPARE(m_pHost->Cell("linkhand_Messages_list", "0170123").strText, QStringLiteral("0170123; 0170456"));
}

void TestDesktopHost::aPluginThatWasRefusedIsNamed()
{
    const InstalledCopy copy;
    QFile broken(copy.File("plugins/libBroken.so"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("not a library");
    broken.close();
    QVERIFY(QFile::setPermissions(copy.File("plugins/libMMSUIPlugin.so"),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::WriteOther));
    m_pHost->SetProgram(copy.Program());
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 40);
    QCOMPARE(m_pHost->Text("linkhand_StatusArea_problems"), QStringLiteral("Problems: 2"));
    QVERIFY(m_pHost->Click("linkhand_StatusArea_problems"));
    QVERIFY(m_pHost->WaitFor("linkhand_Problems_list"));
    const QString strList = m_pHost->Text("linkhand_Problems_list");
    QVERIFY2(strList.contains("Broken") && strList.contains("not a shared library"), qPrintable(strList));
    QVERIFY2(strList.contains("MMSUIPlugin") && strList.contains("Others may write"), qPrintable(strList));
    QVERIFY(m_pHost->Click("linkhand_Problems_close"));
    QVERIFY(m_pHost->WaitGone("linkhand_Problems_list"));
}

void TestDesktopHost::aDataFolderThatCannotBeMadeIsSaid()
{
    m_bErrorsExpected = true;
    const QTemporaryDir folder;
    QFile file(folder.filePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY2(m_pHost->Start(folder.filePath("file/below")), qPrintable(m_pHost->Log()));
    for (int iBoxes = 0; iBoxes < 5 && m_pHost->WaitUntil([this] { return m_pHost->Exists("modal"); }, 2000);
         ++iBoxes) {
        const QString strText = m_pHost->Text("modal");
        QVERIFY2(strText.contains("file/below"), qPrintable(strText));
        QVERIFY(m_pHost->WaitForModal());
        m_pHost->Key("Return");
        QVERIFY(m_pHost->WaitUntil([&] { return m_pHost->Text("modal") != strText; }));
    }
    QVERIFY(m_pHost->Exists("linkhand_StatusArea_problems"));
    QVERIFY(m_pHost->Exists(TREE));
    // The program would make the folder once more when it ends.
    QVERIFY2(m_pHost->Quit() >= 0, qPrintable(m_pHost->Log()));
}

void TestDesktopHost::aDamagedPhonebookIsSaidAndKept()
{
    m_bErrorsExpected = true;
    m_pProfile->Close();
    QFile store(m_pProfile->Path() + "/local.db");
    QVERIFY(store.open(QIODevice::ReadWrite));
    QVERIFY(store.resize(0));
    QCOMPARE(store.write(QByteArray(20000, 'x')), qint64(20000));
    store.close();
    QFile::remove(m_pProfile->Path() + "/local.db-wal");
    QVERIFY2(m_pHost->Start(m_pProfile->Path()), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->WaitForModal());
    QVERIFY2(m_pHost->Text("modal").contains("local.db.damaged-"), qPrintable(m_pHost->Text("modal")));
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitGone("modal"));
    QCOMPARE(
        QDir(m_pProfile->Path()).entryList(QStringList("local.db.damaged-*")).filter(QRegularExpression("Z$")).size(),
        1);
    QTRY_COMPARE(nodeText("Computer"), QStringLiteral("Computer(0)"));
    // Told once.
    QVERIFY(m_pHost->Quit() >= 0);
    QVERIFY2(m_pHost->Start(m_pProfile->Path()), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(nodeText("Computer"), QStringLiteral("Computer(0)"));
    QVERIFY(!m_pHost->Exists("modal"));
    QVERIFY(!m_pHost->Exists("linkhand_StatusArea_problems"));
}

void TestDesktopHost::theWindowComesBackWhereItWas()
{
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 40);
    QVERIFY(openPanel());
    QCOMPARE(QProcess::execute("xdotool", QStringList() << "getactivewindow"
                                                        << "windowsize"
                                                        << "--sync"
                                                        << "900"
                                                        << "600"),
             0);
    QTRY_COMPARE(m_pHost->Widget("linkhand_MainWindow").rect.size(), QSize(900, 600));
    QVERIFY(m_pHost->Quit() >= 0);
    QVERIFY2(m_pHost->Start(m_pProfile->Path()), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Widget("linkhand_MainWindow").rect.size(), QSize(900, 600));
    QVERIFY(m_pHost->Exists(PANEL));
}

void TestDesktopHost::aScreenshotIsWrittenOnceContactsAreShown()
{
    m_pProfile->Close();
    const QTemporaryDir folder;
    const QString strFile = folder.filePath("window.png");
    QVERIFY(m_pHost->Launch(m_pProfile->Path(), QStringList() << "--screenshot" << strFile));
    QCOMPARE(m_pHost->WaitForExit(), 0);
    QFile file(strFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.read(8), QByteArray("\x89PNG\r\n\x1a\n", 8));
    QVERIFY(file.size() > 5000);
    QVERIFY(m_pHost->Launch(m_pProfile->Path(), QStringList() << "--screenshot" << folder.filePath("no/where.png")));
    QCOMPARE(m_pHost->WaitForExit(), 1);
    QCOMPARE(m_pHost->ErrorLines(), QStringList("linkhand: cannot write " + folder.filePath("no/where.png")));
    m_bErrorsExpected = true;
}

void TestDesktopHost::closingWithTheMouseEndsTheProgram()
{
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 40);
    m_pHost->CloseActiveWindow();
    QCOMPARE(m_pHost->WaitForExit(), 0);
}

void TestDesktopHost::aTerminationSignalEndsTheProgramCleanly()
{
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 40);
    QCOMPARE(kill(pid_t(m_pHost->Pid()), SIGTERM), 0);
    QCOMPARE(m_pHost->WaitForExit(), 0);
}

void TestDesktopHost::quittingWhileABigMemoryIsReadIsQuick()
{
    QVERIFY(m_pProfile->Add(4, "Many", "0", 50000));
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QTRY_VERIFY(m_pHost->Exists(TABLE));
    // The first fill is under way; a click on another node and back starts one more.
    const QPoint computer = m_pHost->Cell(TREE, "Computer").rect.center();
    const QPoint card = m_pHost->Cell(TREE, "SIM").rect.center();
    m_pHost->ClickAt(card);
    m_pHost->ClickAt(computer);
    const int iTime = m_pHost->Quit();
    QVERIFY2(iTime >= 0, qPrintable(m_pHost->Log()));
    QVERIFY2(iTime < QUIT_LIMIT_MS * SLOWDOWN, qPrintable(QString::number(iTime)));
}

void TestDesktopHost::quittingWhileASlowCardIsReadIsQuick()
{
    QVERIFY(m_pProfile->Add(0, "More", "0173", 150));
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 40);
    QVERIFY(openPanel());
    // 100 ms a contact: the card takes 16 seconds.
    QVERIFY(m_pHost->Click("linkhand_DevicePanel_speed"));
    QVERIFY(m_pHost->ClickCell("popup/QAbstractItemView", "100 ms"));
    QTRY_COMPARE(m_pHost->Text("linkhand_DevicePanel_speed"), QStringLiteral("100 ms a contact"));
    QVERIFY(m_pHost->ClickCell(TREE, "SIM"));
    QTRY_VERIFY(m_pHost->Rows(TABLE) > 0 && m_pHost->Rows(TABLE) < 40);
    const int iTime = m_pHost->Quit();
    QVERIFY2(iTime >= 0, qPrintable(m_pHost->Log()));
    QVERIFY2(iTime < QUIT_LIMIT_MS * SLOWDOWN, qPrintable(QString::number(iTime)));
}

QTEST_GUILESS_MAIN(TestDesktopHost)
#include "test_desktop_host.moc"
