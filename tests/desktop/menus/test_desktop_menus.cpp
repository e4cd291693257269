#include <QtTest>

#include "MenusFixture.h"

// The search box, the tool bar and both context menus of the real program, used with real mouse and keys.
class TestDesktopMenus : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void typingNarrowsTheTableAndClearingBringsItBack();
    void hidingTheSearchBoxBringsTheTableBack();
    void theTableMenuOpensOnARow();
    void theTableMenuOpensOnSeveralRows();
    void theTableMenuOpensOnTheEmptyPart();
    void theTableMenuOffersTheWayOutOfAGroup();
    void theMenuKeyOpensTheTableMenu();
    void theMenuKeyOpensTheTableMenuWithoutARow();
    void theTreeMenuFollowsTheNode();
    void theMenuKeyOpensTheTreeMenu();
    void theTreeMenuDoesNotOpenBesideItsNodes();
    void theTreeMenuWritesToAGroupOfThree();
    void theToolBarWritesToThreeSelectedRows();
    void theToolBarFollowsTheSelection();

private:
    HostDriver* host() { return m_fixture.Host(); }
    bool isOn(int iTool)
    {
        return host()->Widget(QStringLiteral("AddrBookUIPlugin_ToolButton_%1").arg(iTool)).bEnabled;
    }
    bool clickTool(int iTool) { return host()->Click(QStringLiteral("AddrBookUIPlugin_ToolButton_%1").arg(iTool)); }
    QString toolsOn();

    MenusFixture m_fixture;
};

namespace
{

const char* const TREE = MenusFixture::TREE;
const char* const TABLE = MenusFixture::TABLE;
const char* const SEARCH = MenusFixture::SEARCH;

enum Tool { TOOL_NEW = 9000, TOOL_EDIT, TOOL_DELETE, TOOL_CALL, TOOL_SEND = 9005, TOOL_SEARCH };

const QStringList ONE_ROW = {"+Send ▸",
                             "+Call",
                             "-Video call",
                             "+New contact…",
                             "+Edit contact…",
                             "-Remove from group",
                             "+Delete",
                             "+Import contacts…",
                             "-Import from Outlook Express…",
                             "-Import from Outlook…",
                             "+Export selected contacts…",
                             "+Export all contacts…"};

QStringList with(QStringList lstEntries, const QStringList& lstChanged)
{
    foreach (const QString& strChanged, lstChanged) {
        for (QString& strEntry : lstEntries) {
            if (strEntry.mid(1) == strChanged.mid(1)) {
                strEntry = strChanged;
            }
        }
    }
    return lstEntries;
}

const QStringList SEVERAL_ROWS = with(ONE_ROW, {"-Call", "-Edit contact…"});
const QStringList NO_ROW =
    with(ONE_ROW, {"-Send ▸", "-Call", "-Edit contact…", "-Delete", "-Export selected contacts…"});

const QStringList LOCAL_NODE = {
    "+New group", "-Rename group", "-Delete group", "+Send text message…", "+Send multimedia message…", "+Call"};

} // namespace

void TestDesktopMenus::init()
{
    QVERIFY2(m_fixture.Start(), qPrintable(m_fixture.Log()));
}

void TestDesktopMenus::cleanup()
{
    if (QTest::currentTestFailed()) {
        host()->Screenshot(QStringLiteral("%1.png").arg(QTest::currentTestFunction()));
    }
    const QStringList lstErrors = m_fixture.Stop();
    QVERIFY2(lstErrors.isEmpty(), qPrintable(lstErrors.join(QLatin1Char(0x0a))));
}

QString TestDesktopMenus::toolsOn()
{
    QStringList lstOn;
    for (int iTool : {TOOL_NEW, TOOL_EDIT, TOOL_DELETE, TOOL_CALL, TOOL_SEND, TOOL_SEARCH}) {
        if (isOn(iTool)) {
            lstOn.append(QString::number(iTool));
        }
    }
    return lstOn.join(' ');
}

void TestDesktopMenus::typingNarrowsTheTableAndClearingBringsItBack()
{
    QVERIFY(!host()->Exists(SEARCH));
    QVERIFY(clickTool(TOOL_SEARCH));
    QVERIFY(host()->WaitForFocus(SEARCH));
    host()->Type("b");
    QTRY_COMPARE(host()->Rows(TABLE), 5); // Adele, Bruno, Frida; Georg by his address; Hanna
    host()->Type("erg");
    QTRY_COMPARE(host()->Rows(TABLE), 3);
    QVERIFY(host()->Cell(TABLE, "Georg Holm").iColumn == 0);
    QVERIFY(host()->Cell(TABLE, "Bruno Ahl").iColumn < 0);
    host()->Key("BackSpace");
    host()->Key("BackSpace");
    host()->Key("BackSpace");
    QTRY_COMPARE(host()->Rows(TABLE), 5);
    host()->Key("ctrl+a");
    host()->Type("01702");
    QTRY_COMPARE(host()->Rows(TABLE), 1);
    QVERIFY(host()->Cell(TABLE, "Bruno Ahl").iColumn == 0);
    host()->Key("ctrl+a");
    host()->Key("BackSpace");
    QTRY_COMPARE(host()->Rows(TABLE), int(MenusFixture::CONTACTS));
    QCOMPARE(host()->Text(SEARCH), QString());
}

void TestDesktopMenus::hidingTheSearchBoxBringsTheTableBack()
{
    QVERIFY(clickTool(TOOL_SEARCH));
    QVERIFY(host()->WaitForFocus(SEARCH));
    host()->Type("holm");
    QTRY_COMPARE(host()->Rows(TABLE), 1);
    QVERIFY(clickTool(TOOL_SEARCH));
    QVERIFY(host()->WaitGone(SEARCH));
    QTRY_COMPARE(host()->Rows(TABLE), int(MenusFixture::CONTACTS));
}

void TestDesktopMenus::theTableMenuOpensOnARow()
{
    QVERIFY(host()->ClickCell(TABLE, "Frida Berg", 3));
    QCOMPARE(m_fixture.MenuEntries(), ONE_ROW);
    QVERIFY(host()->Cell(TABLE, "Frida Berg").bSelected);
    QVERIFY(host()->Widget("linkhand_MainWindow").rect.intersects(host()->Widget("popup").rect));
    QVERIFY(host()->ClickAction("Send"));
    QTRY_COMPARE(host()->Actions().size(), 2);
    QCOMPARE(m_fixture.MenuEntries(), QStringList({"+Text message…", "+Multimedia message…"}));
    host()->Key("Escape");
    QTRY_COMPARE(host()->Actions().size(), ONE_ROW.size());
    QVERIFY(m_fixture.CloseMenu());
}

void TestDesktopMenus::theTableMenuOpensOnSeveralRows()
{
    QVERIFY(m_fixture.ClickRow("Frida Berg"));
    QVERIFY(m_fixture.AddRow("Ida Jung"));
    QVERIFY(host()->ClickCell(TABLE, "Ida Jung", 3));
    QCOMPARE(m_fixture.MenuEntries(), SEVERAL_ROWS);
    QVERIFY(m_fixture.CloseMenu());
    QVERIFY(host()->Cell(TABLE, "Frida Berg").bSelected);
}

void TestDesktopMenus::theTableMenuOpensOnTheEmptyPart()
{
    QVERIFY(m_fixture.ClickRow("Frida Berg"));
    host()->ClickAt(m_fixture.EmptyPlace(TABLE), 3);
    QCOMPARE(m_fixture.MenuEntries(), NO_ROW);
    QVERIFY(!host()->Cell(TABLE, "Frida Berg").bSelected);
    QVERIFY(m_fixture.CloseMenu());
}

void TestDesktopMenus::theTableMenuOffersTheWayOutOfAGroup()
{
    QVERIFY(m_fixture.OpenNode("Friends", MenusFixture::FRIENDS));
    QVERIFY(host()->ClickCell(TABLE, "Bruno Ahl", 3));
    QCOMPARE(m_fixture.MenuEntries(), with(ONE_ROW, {"+Remove from group"}));
    QVERIFY(host()->ClickAction("Remove from group"));
    QTRY_COMPARE(host()->Rows(TABLE), MenusFixture::FRIENDS - 1);
    QTRY_COMPARE(host()->Cell(TREE, "Friends").strText, QStringLiteral("Friends(2)"));
    QCOMPARE(host()->Cell(TREE, "Computer").strText, QStringLiteral("Computer(9)"));
    QVERIFY(host()->WaitGone("modal")); // the progress
}

void TestDesktopMenus::theMenuKeyOpensTheTableMenu()
{
    QVERIFY(m_fixture.ClickRow("Frida Berg"));
    host()->MoveTo(m_fixture.EmptyPlace(TABLE)); // the key is not about the place below the mouse
    host()->Key("Menu");
    QCOMPARE(m_fixture.MenuEntries(), ONE_ROW);
    QVERIFY(host()->Cell(TABLE, "Frida Berg").bSelected);
    // The menu is used with the keyboard, too.
    host()->Key("Down");
    host()->Key("Right");
    QTRY_COMPARE(host()->Actions().size(), 2);
    host()->Key("Return");
    QVERIFY(host()->WaitFor(MenusFixture::SMS_TO));
    QCOMPARE(host()->Text(MenusFixture::SMS_TO), QStringLiteral("01706"));
    QVERIFY(m_fixture.CloseWindow(MenusFixture::SMS_TO));
}

void TestDesktopMenus::theMenuKeyOpensTheTableMenuWithoutARow()
{
    host()->ClickAt(m_fixture.EmptyPlace(TABLE));
    QVERIFY(host()->WaitForFocus(TABLE));
    host()->Key("Menu");
    QCOMPARE(m_fixture.MenuEntries(), NO_ROW);
    QVERIFY(m_fixture.CloseMenu());
}

void TestDesktopMenus::theTreeMenuFollowsTheNode()
{
    const QStringList lstGroup = with(LOCAL_NODE, {"-New group", "+Rename group", "+Delete group"});
    QVERIFY(host()->ClickCell(TREE, "Computer", 3));
    QCOMPARE(m_fixture.MenuEntries(), LOCAL_NODE);
    QVERIFY(m_fixture.CloseMenu());
    QVERIFY(m_fixture.OpenNode("Friends", MenusFixture::FRIENDS));
    QVERIFY(host()->ClickCell(TREE, "Friends", 3));
    QCOMPARE(m_fixture.MenuEntries(), lstGroup);
    QVERIFY(m_fixture.CloseMenu());
    QVERIFY(m_fixture.OpenNode("SIM", 2));
    QVERIFY(host()->ClickCell(TREE, "SIM", 3));
    QCOMPARE(m_fixture.MenuEntries(), with(LOCAL_NODE, {"-New group"}));
    QVERIFY(m_fixture.CloseMenu());
}

void TestDesktopMenus::theMenuKeyOpensTheTreeMenu()
{
    QVERIFY(m_fixture.OpenNode("Work", 2));
    host()->MoveTo(m_fixture.EmptyPlace(TREE));
    host()->Key("Menu");
    QCOMPARE(m_fixture.MenuEntries(), with(LOCAL_NODE, {"-New group", "+Rename group", "+Delete group"}));
    QVERIFY(m_fixture.CloseMenu());
    host()->Key("Home");
    QTRY_VERIFY(host()->Cell(TREE, "Computer").bSelected);
    host()->Key("Menu");
    QCOMPARE(m_fixture.MenuEntries(), LOCAL_NODE);
    QVERIFY(m_fixture.CloseMenu());
}

void TestDesktopMenus::theTreeMenuDoesNotOpenBesideItsNodes()
{
    QVERIFY(m_fixture.OpenNode("Work", 2));
    host()->ClickAt(m_fixture.EmptyPlace(TREE), 3);
    // The click after it is taken by the tree and not by a menu.
    QVERIFY(m_fixture.OpenNode("Friends", MenusFixture::FRIENDS));
    QVERIFY(!host()->Exists("popup"));
}

void TestDesktopMenus::theTreeMenuWritesToAGroupOfThree()
{
    QVERIFY(m_fixture.OpenNode("Friends", MenusFixture::FRIENDS));
    QVERIFY(host()->ClickCell(TREE, "Friends", 3));
    QVERIFY(host()->ClickAction("Send text message…"));
    QVERIFY(host()->WaitFor(MenusFixture::SMS_TO));
    QCOMPARE(host()->Text(MenusFixture::SMS_TO), QStringLiteral("01701; 01702; 01703"));
    QVERIFY(host()->WaitForFocus("SMSUIPlugin_texteditText"));
    host()->Type("Tonight at eight?");
    QVERIFY(host()->Click("SMSUIPlugin_buttonSend"));
    QVERIFY(host()->WaitGone(MenusFixture::SMS_TO));
    QVERIFY(host()->Click("linkhand_NavBar_Messages"));
    // Each name keeps its direction beside its number.
    const QString strTo = QStringLiteral("\u2068Adele Berg\u2069  \u206601701\u2069; \u2068Bruno Ahl\u2069  "
                                         "\u206601702\u2069; \u2068Carla Diaz\u2069  \u206601703\u2069");
    QVERIFY(host()->WaitUntil([&] { return host()->Cell("linkhand_Messages_list", strTo).strText == strTo; }));
}

void TestDesktopMenus::theToolBarWritesToThreeSelectedRows()
{
    QVERIFY(m_fixture.ClickRow("Adele Berg"));
    QVERIFY(m_fixture.AddRow("Carla Diaz"));
    QVERIFY(m_fixture.AddRow("Hanna Ibel"));
    QVERIFY(clickTool(TOOL_SEND));
    QCOMPARE(m_fixture.MenuEntries(), QStringList({"+Text message…  Ctrl+T", "+Multimedia message…  Ctrl+M"}));
    QVERIFY(host()->ClickAction("Multimedia message…  Ctrl+M"));
    QVERIFY(host()->WaitFor(MenusFixture::MMS_TO));
    QStringList lstNumbers = host()->Text(MenusFixture::MMS_TO).split("; ");
    lstNumbers.sort();
    QCOMPARE(lstNumbers, QStringList({"01701", "01703", "01708"}));
    QVERIFY(host()->Click("MMSUIPlugin_buttonClose"));
    QVERIFY(host()->WaitGone(MenusFixture::MMS_TO));
}

void TestDesktopMenus::theToolBarFollowsTheSelection()
{
    QTRY_COMPARE(toolsOn(), QStringLiteral("9000 9006"));
    QVERIFY(m_fixture.ClickRow("Adele Berg"));
    QTRY_COMPARE(toolsOn(), QStringLiteral("9000 9001 9002 9003 9005 9006"));
    QVERIFY(m_fixture.AddRow("Hanna Ibel"));
    QTRY_COMPARE(toolsOn(), QStringLiteral("9000 9002 9005 9006"));
    QVERIFY(host()->Click("linkhand_NavBar_device"));
    QVERIFY(host()->Click("linkhand_DevicePanel_network"));
    QTRY_COMPARE(toolsOn(), QStringLiteral("9000 9002 9006"));
    QVERIFY(host()->Click("linkhand_DevicePanel_network"));
    QTRY_COMPARE(toolsOn(), QStringLiteral("9000 9002 9005 9006"));
}

QTEST_GUILESS_MAIN(TestDesktopMenus)
#include "test_desktop_menus.moc"
