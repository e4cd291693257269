#include <QtTest>

#include "HostDriver.h"
#include "PbCtl.h"

namespace
{

const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const HARDWARE = "linkhand_StatusArea_hardware";
const QStringList UTE = {"Ute", "+491711", "", "", "", ""};
const QStringList IVO_WITH_PAUSE = {"Ivo", "0302", "", "", "", "0302p44"};

} // namespace

// What the real program starts a user's own phonebook with, and what becomes of contacts on a simulated card then.
class TestDesktopOwnProfile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aModemIsTakenIfThereIsOne();
    void whatTheUserHasChosenIsKept();
    void aChosenFolderStaysSimulated();
    void contactsOfTheSimulatedCardGoToThePc();
    void contactsThatAreNotWantedStayWhereTheyAre();
    void whoCancelsKeepsTheSimulatedCard();
    void thePanelOffersItToo();

private:
    QString data() const { return m_pFolder->filePath("linkhand"); }
    QByteArray kept() const;
    bool fillCard();
    bool start(const QString& strDataDir = QString());
    bool press(int iButton);
    bool showsCard() { return m_pHost->Cell(TREE, "SIM card").iColumn >= 0; }

    QScopedPointer<QTemporaryDir> m_pFolder;
    QScopedPointer<HostDriver> m_pHost;
};

void TestDesktopOwnProfile::init()
{
    m_pFolder.reset(new QTemporaryDir);
    m_pHost.reset(new HostDriver);
    m_pHost->SetEnvironment("LINKHAND_DATA_DIR", QString());
    m_pHost->SetEnvironment("LINKHAND_MODEM", QString());
    m_pHost->SetEnvironment("XDG_DATA_HOME", m_pFolder->path());
    m_pHost->SetEnvironment("XDG_CONFIG_HOME", m_pFolder->filePath("config"));
    m_pHost->SetEnvironment("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + m_pFolder->filePath("nobody"));
}

void TestDesktopOwnProfile::cleanup()
{
    QVERIFY2(m_pHost->Quit() >= 0, qPrintable(m_pHost->Log()));
    // Where no device is, radio and network cannot be told of.
    static const QRegularExpression absent("ORVA_(DevSrv_GetRFSwitch|NetSrv_GetSrvStatus) returned (1007$|error)");
    QStringList lstErrors = m_pHost->ErrorLines();
    foreach (const QString& strLine, lstErrors.filter(absent))
        lstErrors.removeAll(strLine);
    QVERIFY2(lstErrors.isEmpty(), qPrintable(lstErrors.join('\n')));
}

QByteArray TestDesktopOwnProfile::kept() const
{
    QFile file(data() + "/hardware");
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

// One contact on the card that the PC has, one that it has not, and one with a pause in the device.
bool TestDesktopOwnProfile::fillCard()
{
    PbCtl store(data());
    return store.Import("local", "Name,Mobile\nOda,0301\n") &&
           store.Import("card", "Name,Number\nOda,0301\nUte,+491711\n") &&
           store.Import("device", "Name,Number\nIvo,0302p44\n");
}

bool TestDesktopOwnProfile::start(const QString& strDataDir)
{
    return m_pHost->Launch(strDataDir) &&
           HostDriver::WaitUntil([this] { return m_pHost->Exists("modal") || m_pHost->Exists(HARDWARE); });
}

bool TestDesktopOwnProfile::press(int iButton)
{
    return m_pHost->WaitForModal() && m_pHost->Click(QString("modal/QPushButton[%1]").arg(iButton));
}

void TestDesktopOwnProfile::aModemIsTakenIfThereIsOne()
{
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->WaitForMainWindow());
    QTRY_VERIFY(m_pHost->Text(HARDWARE).startsWith("Modem, automatic"));
    QVERIFY(m_pHost->WaitUntil([this] { return m_pHost->Cell(TREE, "Computer").iColumn >= 0; }));
    QVERIFY(!showsCard());
    QCOMPARE(kept(), QByteArray("auto"));
}

void TestDesktopOwnProfile::whatTheUserHasChosenIsKept()
{
    QVERIFY(PbCtl(data()).Run({"modem", "--use", "simulated"}));
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->WaitForMainWindow());
    QTRY_COMPARE(m_pHost->Text(HARDWARE), QString("Simulated"));
    QTRY_VERIFY(showsCard());
    QCOMPARE(kept(), QByteArray("simulated"));
}

void TestDesktopOwnProfile::aChosenFolderStaysSimulated()
{
    QVERIFY2(start(m_pFolder->filePath("elsewhere")), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->WaitForMainWindow());
    QTRY_COMPARE(m_pHost->Text(HARDWARE), QString("Simulated"));
    QVERIFY(!QFile::exists(m_pFolder->filePath("elsewhere/hardware")));
}

void TestDesktopOwnProfile::contactsOfTheSimulatedCardGoToThePc()
{
    QVERIFY(fillCard());
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->WaitFor("modal/QPushButton"));
    QVERIFY(m_pHost->Text("modal/qt_msgbox_label").contains(": 2."));
    QCOMPARE(kept(), QByteArray());
    QVERIFY(press(0));
    QVERIFY(m_pHost->WaitForMainWindow());
    QCOMPARE(kept(), QByteArray("auto"));
    QTRY_COMPARE(m_pHost->Rows("AddrBookUIPlugin_ContactTable"), 3);
    const QList<QStringList> listPc = PbCtl(data()).Contacts("local");
    QCOMPARE(listPc.size(), 3);
    QVERIFY(listPc.contains(UTE) && listPc.contains(IVO_WITH_PAUSE));
    QVERIFY(m_pHost->Quit() >= 0);

    // What the simulated card holds is still there, and by now on the PC: nothing is asked any more.
    QVERIFY(PbCtl(data()).Run({"modem", "--use", "simulated"}));
    QCOMPARE(PbCtl(data()).Used("card"), 2);
    QVERIFY(m_pHost->Launch(QString(), {"--hardware", "auto"}));
    QVERIFY(m_pHost->WaitForMainWindow());
    QVERIFY(!m_pHost->Exists("modal"));
    QCOMPARE(kept(), QByteArray("auto"));
    QCOMPARE(PbCtl(data()).Used("local"), 3);
}

void TestDesktopOwnProfile::contactsThatAreNotWantedStayWhereTheyAre()
{
    QVERIFY(fillCard());
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->WaitFor("modal/QPushButton"));
    QVERIFY(press(1));
    QVERIFY(m_pHost->WaitForMainWindow());
    QCOMPARE(kept(), QByteArray("auto"));
    QCOMPARE(PbCtl(data()).Used("local"), 1);
    QVERIFY(PbCtl(data()).Run({"modem", "--use", "simulated"}));
    QCOMPARE(PbCtl(data()).Used("card"), 2);
}

void TestDesktopOwnProfile::whoCancelsKeepsTheSimulatedCard()
{
    QVERIFY(fillCard());
    for (int i = 0; i < 2; ++i) {
        QVERIFY2(start(), qPrintable(m_pHost->Log()));
        QVERIFY(m_pHost->WaitFor("modal/QPushButton"));
        QVERIFY(m_pHost->WaitForModal());
        m_pHost->Key("Escape");
        QVERIFY(m_pHost->WaitForMainWindow());
        QTRY_VERIFY(showsCard());
        QCOMPARE(kept(), QByteArray());
        QVERIFY(i == 1 || m_pHost->Quit() >= 0);
    }
    QCOMPARE(PbCtl(data()).Used("local"), 1);
}

void TestDesktopOwnProfile::thePanelOffersItToo()
{
    QVERIFY(fillCard());
    QVERIFY2(start(data() + "/../linkhand/."), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->WaitFor("modal/QPushButton")); // the own folder by another name
    QVERIFY(m_pHost->WaitForModal());
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitForMainWindow());
    QVERIFY(m_pHost->Click("linkhand_NavBar_device"));
    QVERIFY(m_pHost->WaitFor("linkhand_HardwarePanel_choice"));
    // Refused by the user, then not.
    for (const char* pszKey : {"Escape", "Return"}) {
        QVERIFY(m_pHost->Click("linkhand_HardwarePanel_choice/QLineEdit"));
        m_pHost->Key("ctrl+a");
        m_pHost->Type("/dev/nobody");
        m_pHost->Key("Return");
        QVERIFY(m_pHost->WaitFor("modal/QPushButton"));
        QVERIFY(m_pHost->WaitForModal());
        m_pHost->Key(pszKey);
        QVERIFY(m_pHost->WaitGone("modal"));
        QCOMPARE(kept(), QByteArray(*pszKey == 'E' ? "" : "/dev/nobody"));
        QVERIFY(m_pHost->WaitForMainWindow());
    }
    QCOMPARE(PbCtl(data()).Used("local"), 3);
    QVERIFY(m_pHost->Text("linkhand_HardwarePanel_note").contains("next start"));
}

QTEST_GUILESS_MAIN(TestDesktopOwnProfile)
#include "test_desktop_own_profile.moc"
