#include <QtTest>

#include "Hand.h"
#include "HostDriver.h"
#include "PbCtl.h"
#include "Profile.h"
#include "support/modem/ModemManagerBench.h"
#include "support/modem/Program.h"

namespace
{

const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const FORM = "AddrBookUIPlugin_New_Edit_Dlg";
const char* const BOX = "linkhand_MessageBox";
const size_t OTHERS_PORT = 2; // neither ModemManager's nor ours
const int PLUG_MS = 60000;

// Two ports for ModemManager, one for another program and one that is set aside, which ours takes.
struct CardSetup : modemsim::BenchSetup {
    CardSetup()
    {
        roles = {modemsim::Role::Primary, modemsim::Role::Secondary, modemsim::Role::Free, modemsim::Role::Ignored};
    }
};

} // namespace

// The phonebook of the real program on the card of a modem that the real ModemManager has found. What is on the card
// is seen by the modem itself and by gammu, on a port of its own.
class TestDesktopCard : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aCardComesByItselfAndIsChanged();
    void aModemPulledInTheMiddleOfADropLosesAndDoublesNothing();

private:
    bool shows(const QString& strNode, int iLimitMs = 15000)
    {
        return HostDriver::WaitUntil([&] { return !m_pHost->Cell(TREE, strNode).strText.isEmpty(); }, iLimitMs);
    }
    bool showsCard() { return !m_pHost->Cell(TREE, "SIM card").strText.isEmpty(); }
    QPoint handle(const QString& strContact);
    bool dropOnCard(const QString& strContact);
    QString answerBox();
    QString gammu();
    QStringList onCard(const QString& strBegin);

    QScopedPointer<Profile> m_pProfile;
    QScopedPointer<modemsim::ModemManagerBench> m_pBench;
    QScopedPointer<HostDriver> m_pHost;
};

void TestDesktopCard::init()
{
    m_pProfile.reset(new Profile);
    QVERIFY(m_pProfile->Add(4, "Berta", "+49170", 6));
    m_pProfile->Close();
    m_pBench.reset(new modemsim::ModemManagerBench(CardSetup()));
    m_pHost.reset(new HostDriver);
    for (const auto& variable : m_pBench->environment())
        m_pHost->SetEnvironment(QString::fromStdString(variable.first), QString::fromStdString(variable.second));
    QVERIFY2(m_pHost->Start(m_pProfile->Path(), {"--hardware", "auto"}), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 6);
    QVERIFY(!showsCard());
    m_pBench->plug();
    QVERIFY(shows("SIM card(5/20)", PLUG_MS));
}

void TestDesktopCard::cleanup()
{
    if (QTest::currentTestFailed())
        m_pHost->Screenshot(QStringLiteral("%1.png").arg(QTest::currentTestFunction()));
    m_pHost->WaitForMainWindow();
    QVERIFY2(m_pHost->Quit() >= 0, qPrintable(m_pHost->Log()));
}

// The left half of a cell is where a drag can begin.
QPoint TestDesktopCard::handle(const QString& strContact)
{
    const QRect rect = m_pHost->Cell(TABLE, strContact, 0).rect;
    return QPoint(rect.left() + rect.width() / 5, rect.center().y());
}

bool TestDesktopCard::dropOnCard(const QString& strContact)
{
    Hand hand;
    hand.Press(handle(strContact));
    hand.MoveTo(m_pHost->Cell(TREE, "SIM card").rect.center());
    if (!HostDriver::WaitUntil([this] { return m_pHost->Cell(TREE, "SIM card").bSelected; }))
        return false;
    hand.Release();
    return true;
}

// Puts the box away that tells of the end of a batch; its text, empty if none comes.
QString TestDesktopCard::answerBox()
{
    if (!m_pHost->WaitFor(BOX) || !m_pHost->WaitForModal())
        return QString();
    const QString strSaid = m_pHost->Text("linkhand_MessageBox/qt_msgbox_label");
    m_pHost->Key("Return");
    return m_pHost->WaitGone("modal") ? strSaid : QString();
}

QString TestDesktopCard::gammu()
{
    QTemporaryFile config;
    if (!config.open())
        return QString();
    config.write("[gammu]\ndevice = " + QByteArray::fromStdString(m_pBench->modem().terminal(OTHERS_PORT)) +
                 "\nconnection = at115200\nsynchronizetime = no\nuse_locking = no\n");
    config.flush();
    const modemsim::Outcome outcome =
        modemsim::runProgram({"gammu", "-c", config.fileName().toStdString(), "getallmemory", "SM"});
    return QString::fromStdString(outcome.output);
}

QStringList TestDesktopCard::onCard(const QString& strBegin)
{
    QStringList lstNames;
    for (const modemsim::Entry& entry : m_pBench->modem().entries("SM")) {
        if (QString::fromStdString(entry.name).startsWith(strBegin))
            lstNames << QString::fromStdString(entry.name);
    }
    return lstNames;
}

void TestDesktopCard::aCardComesByItselfAndIsChanged()
{
    QVERIFY(!gammu().contains("Berta"));
    QVERIFY(dropOnCard("Berta 0002"));
    QVERIFY(answerBox().endsWith("Entries: 1, successful: 1"));
    QVERIFY(shows("SIM card(6/20)"));
    QVERIFY(gammu().contains("Berta 0002"));
    QVERIFY(m_pHost->WaitForMainWindow());

    QVERIFY(m_pHost->ClickCell(TREE, "SIM card"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 6);
    QVERIFY(m_pHost->ClickCell(TABLE, "Berta 0002"));
    QVERIFY(m_pHost->WaitForFocus(TABLE));
    m_pHost->Key("ctrl+e");
    QVERIFY(m_pHost->WaitFor(FORM));
    QVERIFY(m_pHost->WaitForModal());
    m_pHost->Key("ctrl+a");
    m_pHost->Type("Carla");
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitGone("modal"));
    QTRY_COMPARE(onCard("Carla").size(), 1);
    QString strSeen = gammu();
    QVERIFY2(strSeen.contains("Carla") && !strSeen.contains("Berta"), qPrintable(strSeen));

    QVERIFY(m_pHost->WaitForMainWindow());
    QVERIFY(m_pHost->ClickCell(TABLE, "Carla"));
    QVERIFY(m_pHost->WaitForFocus(TABLE));
    m_pHost->Key("Delete");
    QVERIFY(m_pHost->WaitFor(BOX) && m_pHost->WaitForModal());
    m_pHost->Key("shift+Tab");
    QVERIFY(m_pHost->WaitForFocus("linkhand_MessageBox/QPushButton[0]"));
    m_pHost->Key("space");
    QVERIFY(shows("SIM card(5/20)"));
    strSeen = gammu();
    QVERIFY2(!strSeen.contains("Carla") && strSeen.contains("Anna"), qPrintable(strSeen));
    QCOMPARE(PbCtl(m_pProfile->Path()).Used("local"), 6);
}

void TestDesktopCard::aModemPulledInTheMiddleOfADropLosesAndDoublesNothing()
{
    m_pBench->modem().failAt("AT+CPBW", 3, modemsim::Fault::UnplugAfter);
    QVERIFY(m_pHost->ClickCell(TABLE, "Berta 0001"));
    QVERIFY(m_pHost->WaitForFocus(TABLE));
    m_pHost->Key("ctrl+a");
    QTRY_VERIFY(m_pHost->Cell(TABLE, "Berta 0006").bSelected);
    QVERIFY(dropOnCard("Berta 0001"));
    QVERIFY(m_pBench->modem().waitFor([this] { return !m_pBench->modem().plugged(); }));
    m_pBench->unplug();

    // What the modem has confirmed is said. The third was stored, but the answer to it is lost.
    QVERIFY(answerBox().endsWith("Entries: 6, successful: 2"));
    QTRY_VERIFY_WITH_TIMEOUT(!showsCard(), PLUG_MS);
    QCOMPARE(PbCtl(m_pProfile->Path()).Used("local"), 6);

    m_pBench->plug();
    QVERIFY(shows("SIM card(8/20)", PLUG_MS));
    QStringList lstStored = onCard("Berta");
    QCOMPARE(lstStored.size(), 3);
    QCOMPARE(lstStored.removeDuplicates(), 0);
    QCOMPARE(onCard("").size(), 8);
}

QTEST_GUILESS_MAIN(TestDesktopCard)
#include "test_desktop_card.moc"
