#include <QtTest>

#include "DesktopTest.h"
#include "Hand.h"
#include "Profile.h"
#include "orva/orva_sdk.h"

namespace
{

const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const FORM = "AddrBookUIPlugin_New_Edit_Dlg";
const char* const CHOICE = "AddrBookUIPlugin_selectContacts_treeContacts";
const char* const SMS_TO = "SMSUIPlugin_lineeditTo";
const char* const NOTICE = "linkhand_StatusArea_notice";

} // namespace

// The real program under Wayland, where it knows of no place on the screen and a compositor has the last word on its
// windows, menus and drags.
class TestDesktopWayland : public DesktopTest
{
    Q_OBJECT

private slots:
    void init();
    void aNodeShowsItsContacts();
    void theMenuOpensWhereItIsAskedForAndWorks();
    void aMenuIsPutAway();
    void theMenuKeyOpensTheMenu();
    void aContactIsMade();
    void numbersArePicked();
    void aListOpensAtItsBox();
    void aRowJoinsAGroup();
    void aRowIsCopiedToTheCard();
    void aDragGivenUpLeavesTreeAndTableAgreed();
    void aDragRefusedLeavesTreeAndTableAgreed();
    void aSecondStartIsSaid();

private:
    bool shows(const QString& strNode)
    {
        return HostDriver::WaitUntil(
            [&] { return m_pHost->Cell(TREE, strNode.section('(', 0, 0)).strText == strNode; });
    }
    bool showsRows(int iRows)
    {
        return HostDriver::WaitUntil([&] { return m_pHost->Rows(TABLE) == iRows; });
    }
    bool isLit(const QString& strNode)
    {
        return HostDriver::WaitUntil([&] { return m_pHost->Cell(TREE, strNode).bSelected; });
    }
    QPoint node(const QString& strNode) { return m_pHost->Cell(TREE, strNode).rect.center(); }
    QPoint handle(const QString& strContact);
    bool openMenu(const QString& strContact);
    bool choose(const QString& strEntry);
    bool answerBox();

    QScopedPointer<Profile> m_pProfile;
};

void TestDesktopWayland::init()
{
    DesktopTest::init();
    m_pProfile.reset(new Profile);
    QVERIFY(m_pProfile->Import(ORVA_MEMORY_LOCAL, QStringList() << "Name,Mobile,Groups"
                                                                << "Adele Berg,01701,Friends"
                                                                << "Bruno Ahl,01702,Friends"
                                                                << "Carla Diaz,01703,"
                                                                << "David Ek,01704,"));
    QVERIFY(m_pProfile->Import(ORVA_MEMORY_CARD, QStringList() << "Name,Number"
                                                               << "Taxi,22456"
                                                               << "Voicemail,3311"));
    m_pProfile->Close();
    QVERIFY2(m_pHost->Start(m_pProfile->Path()), qPrintable(m_pHost->Log()));
    QVERIFY(showsRows(4) && shows("Friends(2)") && shows("SIM card(2/250)"));
}

// The left half of a cell is where a drag can begin.
QPoint TestDesktopWayland::handle(const QString& strContact)
{
    const QRect rect = m_pHost->Cell(TABLE, strContact, 0).rect;
    return QPoint(rect.left() + rect.width() / 5, rect.center().y());
}

bool TestDesktopWayland::openMenu(const QString& strContact)
{
    return m_pHost->ClickCell(TABLE, strContact, 3) &&
           HostDriver::WaitUntil([this] { return !m_pHost->Actions().isEmpty(); });
}

// The program knows of a menu before the compositor has put it on the screen; a person clicks what lights up.
bool TestDesktopWayland::choose(const QString& strEntry)
{
    int iStep = 0;
    const bool bLit = HostDriver::WaitUntil([&] {
        const ActionInfo action = m_pHost->Action(strEntry);
        m_pHost->MoveTo(action.rect.center() + QPoint(iStep++ % 2, 0));
        return action.bEnabled && action.bLit;
    });
    m_pHost->ClickAt(m_pHost->Action(strEntry).rect.center());
    return bLit;
}

bool TestDesktopWayland::answerBox()
{
    if (!m_pHost->WaitFor("modal/QPushButton") || !m_pHost->WaitForModal()) {
        return false;
    }
    m_pHost->Key("Return");
    return m_pHost->WaitGone("modal");
}

void TestDesktopWayland::aNodeShowsItsContacts()
{
    QVERIFY(m_pHost->ClickCell(TREE, "SIM"));
    QVERIFY(showsRows(2));
    QVERIFY(m_pHost->ClickCell(TABLE, "Taxi"));
    QTRY_VERIFY(m_pHost->Cell(TABLE, "Taxi").bSelected);
    QVERIFY(m_pHost->ClickCell(TREE, "Computer"));
    QVERIFY(showsRows(4));
}

void TestDesktopWayland::theMenuOpensWhereItIsAskedForAndWorks()
{
    QVERIFY(openMenu("Carla Diaz"));
    const QRect row = m_pHost->Cell(TABLE, "Carla Diaz", 0).rect;
    QVERIFY((m_pHost->Widget("popup").rect.topLeft() - row.center()).manhattanLength() < 10);
    QVERIFY(choose("Edit contact…"));
    QVERIFY(m_pHost->WaitFor(FORM) && m_pHost->WaitForModal());
    QCOMPARE(m_pHost->Text(QString(FORM) + "/NewContactLineEdit[0]"), QString("Carla Diaz"));
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone(FORM));
    // A menu that opens from a menu.
    QVERIFY(openMenu("Carla Diaz"));
    QVERIFY(choose("Send"));
    QTRY_VERIFY(m_pHost->Action("Text message…").bEnabled);
    QVERIFY(choose("Text message…"));
    QVERIFY(m_pHost->WaitFor(SMS_TO));
    QTRY_VERIFY(m_pHost->Text(SMS_TO).contains("01703"));
}

void TestDesktopWayland::aMenuIsPutAway()
{
    QVERIFY(openMenu("Carla Diaz"));
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone("popup"));
    QVERIFY(openMenu("David Ek"));
    const QRect table = m_pHost->Widget(TABLE).rect;
    m_pHost->ClickAt(QPoint(table.right() - 30, table.bottom() - 30));
    QVERIFY(m_pHost->WaitGone("popup"));
    // Mouse and keys are the window's again.
    QVERIFY(m_pHost->ClickCell(TREE, "Friends"));
    QVERIFY(showsRows(2));
    m_pHost->Key("Up");
    QVERIFY(showsRows(4));
}

void TestDesktopWayland::theMenuKeyOpensTheMenu()
{
    QVERIFY(m_pHost->ClickCell(TABLE, "Bruno Ahl"));
    QTRY_VERIFY(m_pHost->Cell(TABLE, "Bruno Ahl").bSelected && m_pHost->Widget(TABLE).bFocused);
    m_pHost->Key("Menu");
    QTRY_VERIFY(!m_pHost->Actions().isEmpty());
    const QRect row = m_pHost->Cell(TABLE, "Bruno Ahl", 0).rect;
    QVERIFY(qAbs(m_pHost->Widget("popup").rect.top() - row.bottom()) < 2 * row.height());
    QVERIFY(choose("Edit contact…"));
    QVERIFY(m_pHost->WaitFor(FORM) && m_pHost->WaitForModal());
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone(FORM));
}

void TestDesktopWayland::aContactIsMade()
{
    m_pHost->Key("ctrl+n");
    QVERIFY(m_pHost->WaitFor(FORM) && m_pHost->WaitForModal());
    QVERIFY(m_pHost->Click(QString(FORM) + "/NewContactLineEdit[0]"));
    m_pHost->Type("Emil Falk");
    m_pHost->Key("Tab");
    m_pHost->Type("01705");
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitGone(FORM));
    QVERIFY(shows("Computer(5)") && showsRows(5));
    QVERIFY(m_pHost->Cell(TABLE, "Emil Falk").iColumn == 0);
    QCOMPARE(PbCtl(m_pProfile->Path()).Used("local"), 5);
}

void TestDesktopWayland::numbersArePicked()
{
    QVERIFY(m_pHost->Click("linkhand_NavBar_Messages"));
    QVERIFY(m_pHost->Click("linkhand_Messages_newSms"));
    QVERIFY(m_pHost->WaitForFocus(SMS_TO));
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonAddRecipients"));
    QVERIFY(m_pHost->WaitFor(CHOICE) && m_pHost->WaitForModal());
    QTRY_VERIFY(m_pHost->Cell(CHOICE, "David Ek").iColumn == 0 && m_pHost->Cell(CHOICE, "Voicemail").iColumn == 0);
    const QRect rect = m_pHost->Cell(CHOICE, "David Ek").rect;
    m_pHost->ClickAt(QPoint(rect.left() + 8, rect.center().y()));
    QTRY_COMPARE(m_pHost->Cell(CHOICE, "David Ek").iCheckState, int(Qt::Checked));
    QVERIFY(m_pHost->Click("AddrBookUIPlugin_selectContacts_buttonOK"));
    QVERIFY(m_pHost->WaitGone(CHOICE));
    QTRY_VERIFY(m_pHost->Text(SMS_TO).contains("01704"));
}

void TestDesktopWayland::aListOpensAtItsBox()
{
    QVERIFY(m_pHost->Click("linkhand_NavBar_Preferences"));
    QVERIFY(m_pHost->Click("linkhand_Preferences_language"));
    QTRY_VERIFY(m_pHost->Cell("popup/QListView", "Deutsch").iColumn == 0);
    const QRect box = m_pHost->Widget("linkhand_Preferences_language").rect;
    QVERIFY(m_pHost->Widget("popup").rect.intersects(box.adjusted(0, 0, 0, box.height())));
    QVERIFY(m_pHost->ClickCell("popup/QListView", "Deutsch"));
    QVERIFY(m_pHost->WaitGone("popup"));
    QTRY_COMPARE(m_pHost->Text("linkhand_NavBar_Messages"), QString("Nachrichten"));
}

void TestDesktopWayland::aRowJoinsAGroup()
{
    {
        Hand hand;
        hand.Press(handle("Carla Diaz"));
        hand.MoveTo(node("Friends"));
        QVERIFY(isLit("Friends"));
        hand.Release();
    }
    QVERIFY(shows("Friends(3)") && shows("Computer(4)"));
    QVERIFY(showsRows(3));
}

void TestDesktopWayland::aRowIsCopiedToTheCard()
{
    {
        Hand hand;
        hand.Press(handle("Carla Diaz"));
        hand.MoveTo(node("SIM"));
        QVERIFY(isLit("SIM"));
        hand.Release();
    }
    QVERIFY(shows("SIM card(3/250)"));
    QVERIFY(answerBox());
    QVERIFY(showsRows(3) && shows("Computer(4)"));
    QCOMPARE(PbCtl(m_pProfile->Path()).Used("card"), 3);
}

void TestDesktopWayland::aDragGivenUpLeavesTreeAndTableAgreed()
{
    {
        Hand hand;
        hand.Press(handle("Carla Diaz"));
        hand.MoveTo(node("SIM"));
        QVERIFY(isLit("SIM"));
        // Whether Escape ends a drag is for the compositor to say; nothing takes it where it is let go here.
        hand.Tap("Escape");
        hand.MoveTo(m_pHost->Widget("AddrBookUIPlugin_labelPreview").rect.center());
        hand.Release();
    }
    QVERIFY(isLit("Computer"));
    QCOMPARE(m_pHost->Rows(TABLE), 4);
    QVERIFY(m_pHost->ClickCell(TREE, "Friends"));
    QVERIFY(showsRows(2));
    m_pHost->Key("Up");
    QVERIFY(isLit("Computer") && showsRows(4));
    QVERIFY(shows("SIM card(2/250)"));
}

void TestDesktopWayland::aDragRefusedLeavesTreeAndTableAgreed()
{
    const QRect tree = m_pHost->Widget(TREE).rect;
    {
        Hand hand;
        hand.Press(handle("Carla Diaz"));
        hand.MoveTo(node("Friends"));
        QVERIFY(isLit("Friends"));
        hand.MoveTo(QPoint(tree.center().x(), tree.bottom() - 20));
        QVERIFY(isLit("Computer"));
        hand.Release();
    }
    QVERIFY(shows("Friends(2)"));
    QCOMPARE(m_pHost->Rows(TABLE), 4);
    QVERIFY(m_pHost->ClickCell(TREE, "Friends"));
    QVERIFY(showsRows(2));
    m_pHost->Key("Up");
    QVERIFY(isLit("Computer") && showsRows(4));
}

void TestDesktopWayland::aSecondStartIsSaid()
{
    QProcess start;
    start.start(QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR")) + "/linkhand",
                QStringList({"--data-dir", m_pProfile->Path()}));
    QVERIFY(start.waitForFinished(60000));
    QCOMPARE(start.exitCode(), 0);
    QTRY_COMPARE(m_pHost->Text(NOTICE), QString("Linkhand was started again: this is its window"));
}

QTEST_GUILESS_MAIN(TestDesktopWayland)
#include "test_desktop_wayland.moc"
