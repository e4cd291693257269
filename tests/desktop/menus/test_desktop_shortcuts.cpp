#include <QtTest>

#include "MenusFixture.h"

// The nine shortcuts of the phonebook, pressed on a real keyboard.
class TestDesktopShortcuts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ctrlTWritesATextMessageToTheRows();
    void ctrlTWritesATextMessageToTheGroup();
    void ctrlMWritesAMultimediaMessage();
    void ctrlNOpensAnEmptyForm();
    void ctrlEOpensTheContactsForm();
    void delAsksAndDeletesTheRows();
    void delAsksAndDeletesTheGroup();
    void ctrlFShowsAndHidesTheSearchBox();
    void ctrlShiftCCalls();
    void ctrlShiftCAsksForTheNumber();
    void ctrlShiftNMakesAGroup();
    void f2RenamesTheGroup();
    void theTreesShortcutsLeaveTheTableAlone();
    void withoutANetworkNobodyIsWrittenToOrCalled();

private:
    HostDriver* host() { return m_fixture.Host(); }
    QString node(const QString& strBegin) { return host()->Cell(MenusFixture::TREE, strBegin).strText; }

    // A key for a widget of the main window, and one for the question that is open; false if they do not come.
    bool press(const QString& strKey, const QString& strWidget);
    bool answer(const QString& strKey);

    MenusFixture m_fixture;
};

namespace
{

const char* const TREE = MenusFixture::TREE;
const char* const TABLE = MenusFixture::TABLE;
const char* const FORM = "AddrBookUIPlugin_New_Edit_Dlg";
const char* const CALL_BOX = "VoiceCallPlugin_callBox";

} // namespace

void TestDesktopShortcuts::init()
{
    QVERIFY2(m_fixture.Start(), qPrintable(m_fixture.Log()));
}

void TestDesktopShortcuts::cleanup()
{
    if (QTest::currentTestFailed()) {
        host()->Screenshot(QStringLiteral("%1.png").arg(QTest::currentTestFunction()));
    }
    const QStringList lstErrors = m_fixture.Stop();
    QVERIFY2(lstErrors.isEmpty(), qPrintable(lstErrors.join(QLatin1Char(0x0a))));
}

// A key goes where the keyboard is, and a window gets that a moment after it is there, or in front again.
bool TestDesktopShortcuts::press(const QString& strKey, const QString& strWidget)
{
    if (!host()->WaitForMainWindow() || !host()->WaitForFocus(strWidget)) {
        return false;
    }
    host()->Key(strKey);
    return true;
}

bool TestDesktopShortcuts::answer(const QString& strKey)
{
    if (!host()->WaitFor("modal/QPushButton") || !host()->WaitForModal()) {
        return false;
    }
    host()->Key(strKey);
    return true;
}

void TestDesktopShortcuts::ctrlTWritesATextMessageToTheRows()
{
    QVERIFY(m_fixture.ClickRow("David Ek"));
    QVERIFY(press("ctrl+t", TABLE));
    QVERIFY(host()->WaitFor(MenusFixture::SMS_TO));
    QCOMPARE(host()->Text(MenusFixture::SMS_TO), QStringLiteral("01704"));
    QVERIFY(m_fixture.CloseWindow(MenusFixture::SMS_TO));
}

void TestDesktopShortcuts::ctrlTWritesATextMessageToTheGroup()
{
    QVERIFY(m_fixture.OpenNode("Friends", MenusFixture::FRIENDS));
    QVERIFY(press("ctrl+t", TREE));
    QVERIFY(host()->WaitFor(MenusFixture::SMS_TO));
    QCOMPARE(host()->Text(MenusFixture::SMS_TO), QStringLiteral("01701; 01702; 01703"));
    QVERIFY(m_fixture.CloseWindow(MenusFixture::SMS_TO));
}

void TestDesktopShortcuts::ctrlMWritesAMultimediaMessage()
{
    QVERIFY(m_fixture.ClickRow("David Ek"));
    QVERIFY(press("ctrl+m", TABLE));
    QVERIFY(host()->WaitFor(MenusFixture::MMS_TO));
    QCOMPARE(host()->Text(MenusFixture::MMS_TO), QStringLiteral("01704"));
    QVERIFY(m_fixture.CloseWindow(MenusFixture::MMS_TO));
}

void TestDesktopShortcuts::ctrlNOpensAnEmptyForm()
{
    QVERIFY(m_fixture.ClickRow("David Ek"));
    QVERIFY(press("ctrl+n", TABLE));
    QVERIFY(host()->WaitFor(FORM));
    QCOMPARE(host()->Text("modal"), QStringLiteral("New contact"));
    QVERIFY(host()->WaitForFocus("modal/QLineEdit"));
    host()->Type("Karl Lund");
    QCOMPARE(host()->Text("modal/QLineEdit[1]"), QString());
    QVERIFY(host()->Click("modal/AddrBookUIPlugin_New_Edit_Dlg_OK_Button"));
    QVERIFY(host()->WaitGone(FORM));
    QTRY_COMPARE(host()->Rows(TABLE), MenusFixture::CONTACTS + 1);
    QVERIFY(host()->Cell(TABLE, "Karl Lund").iColumn == 0);
    QTRY_COMPARE(node("Computer"), QStringLiteral("Computer(10)"));
}

void TestDesktopShortcuts::ctrlEOpensTheContactsForm()
{
    QVERIFY(m_fixture.ClickRow("David Ek"));
    QVERIFY(press("ctrl+e", TABLE));
    QVERIFY(host()->WaitFor(FORM));
    QVERIFY(host()->WaitForFocus("modal/QLineEdit"));
    QCOMPARE(host()->Text("modal/QLineEdit"), QStringLiteral("David Ek"));
    QCOMPARE(host()->Text("modal/QLineEdit[1]"), QStringLiteral("01704"));
    QVERIFY(m_fixture.CloseWindow(FORM));
}

void TestDesktopShortcuts::delAsksAndDeletesTheRows()
{
    QVERIFY(m_fixture.ClickRow("David Ek"));
    QVERIFY(m_fixture.AddRow("Ida Jung"));
    QVERIFY(press("Delete", TABLE));
    QVERIFY(host()->WaitFor("modal/QPushButton"));
    QVERIFY(m_fixture.CloseWindow("modal"));
    QCOMPARE(host()->Rows(TABLE), int(MenusFixture::CONTACTS));
    // Return alone does no harm.
    QVERIFY(press("Delete", TABLE));
    QVERIFY(answer("Return"));
    QVERIFY(host()->WaitGone("modal"));
    QCOMPARE(host()->Rows(TABLE), int(MenusFixture::CONTACTS));
    QVERIFY(press("Delete", TABLE));
    QVERIFY(host()->Click("modal/QPushButton"));
    QTRY_COMPARE(host()->Rows(TABLE), MenusFixture::CONTACTS - 2);
    QVERIFY(host()->Cell(TABLE, "David Ek").iColumn < 0);
    QTRY_COMPARE(node("Computer"), QStringLiteral("Computer(7)"));
    QTRY_COMPARE(node("Work"), QStringLiteral("Work(1)"));
    QVERIFY(host()->WaitGone("modal"));
}

void TestDesktopShortcuts::delAsksAndDeletesTheGroup()
{
    QVERIFY(m_fixture.OpenNode("Work", 2));
    QVERIFY(press("Delete", TREE));
    QVERIFY(answer("Return"));
    QTRY_COMPARE(node("Work"), QString());
    QTRY_COMPARE(host()->Rows(TABLE), int(MenusFixture::CONTACTS));
}

void TestDesktopShortcuts::ctrlFShowsAndHidesTheSearchBox()
{
    QVERIFY(m_fixture.ClickRow("David Ek"));
    QVERIFY(press("ctrl+f", TABLE));
    QVERIFY(host()->WaitForFocus(MenusFixture::SEARCH));
    host()->Type("holm");
    QTRY_COMPARE(host()->Rows(TABLE), 1);
    QVERIFY(press("ctrl+f", MenusFixture::SEARCH));
    QVERIFY(host()->WaitGone(MenusFixture::SEARCH));
    QTRY_COMPARE(host()->Rows(TABLE), int(MenusFixture::CONTACTS));
}

void TestDesktopShortcuts::ctrlShiftCCalls()
{
    QVERIFY(m_fixture.ClickRow("David Ek"));
    QVERIFY(press("ctrl+shift+c", TABLE));
    QVERIFY(host()->WaitFor(CALL_BOX));
    QCOMPARE(host()->Text("VoiceCallPlugin_labelNumber"), QStringLiteral("David Ek  01704"));
    QVERIFY(host()->Click("VoiceCallPlugin_buttonHangUp"));
    QVERIFY(host()->WaitGone(CALL_BOX));
}

void TestDesktopShortcuts::ctrlShiftCAsksForTheNumber()
{
    QVERIFY(m_fixture.ClickRow("Carla Diaz"));
    QVERIFY(press("ctrl+shift+c", TABLE));
    QVERIFY(host()->WaitFor("ChoosePhoneNumber_TableWidget"));
    QCOMPARE(host()->Rows("ChoosePhoneNumber_TableWidget"), 2);
    QVERIFY(host()->ClickCell("ChoosePhoneNumber_TableWidget", "0303"));
    QVERIFY(host()->Click("ChoosePhoneNumber_buttonOk"));
    QVERIFY(host()->WaitFor(CALL_BOX));
    QCOMPARE(host()->Text("VoiceCallPlugin_labelNumber"), QStringLiteral("Carla Diaz  0303"));
    QVERIFY(host()->Click("VoiceCallPlugin_buttonHangUp"));
    QVERIFY(host()->WaitGone(CALL_BOX));
}

void TestDesktopShortcuts::ctrlShiftNMakesAGroup()
{
    QVERIFY(m_fixture.OpenNode("Computer", MenusFixture::CONTACTS));
    QVERIFY(press("ctrl+shift+n", TREE));
    QVERIFY(host()->WaitForFocus(QString(TREE) + "/QLineEdit"));
    host()->Type("Choir");
    host()->Key("Return");
    QTRY_COMPARE(node("Choir"), QStringLiteral("Choir(0)"));
    QVERIFY(m_fixture.OpenNode("Choir", 0));
}

void TestDesktopShortcuts::f2RenamesTheGroup()
{
    QVERIFY(m_fixture.OpenNode("Work", 2));
    QVERIFY(press("F2", TREE));
    QVERIFY(host()->WaitForFocus(QString(TREE) + "/QLineEdit"));
    QCOMPARE(host()->Text(QString(TREE) + "/QLineEdit"), QStringLiteral("Work"));
    host()->Type("Office");
    host()->Key("Return");
    QTRY_COMPARE(node("Office"), QStringLiteral("Office(2)"));
    QCOMPARE(node("Work"), QString());
}

void TestDesktopShortcuts::theTreesShortcutsLeaveTheTableAlone()
{
    QVERIFY(m_fixture.OpenNode("Work", 2));
    QVERIFY(m_fixture.ClickRow("David Ek"));
    QVERIFY(press("ctrl+shift+n", TABLE));
    QVERIFY(press("F2", TABLE));
    // The next key finds no editor in its way.
    QVERIFY(press("ctrl+f", TABLE));
    QVERIFY(host()->WaitForFocus(MenusFixture::SEARCH));
    QVERIFY(!host()->Exists(QString(TREE) + "/QLineEdit"));
    QCOMPARE(node("Work"), QStringLiteral("Work(2)"));
}

void TestDesktopShortcuts::withoutANetworkNobodyIsWrittenToOrCalled()
{
    QVERIFY(host()->Click("linkhand_NavBar_device"));
    QVERIFY(host()->Click("linkhand_DevicePanel_network"));
    QTRY_COMPARE(host()->Text("linkhand_StatusArea_network"), QStringLiteral("Offline"));
    QVERIFY(m_fixture.ClickRow("David Ek"));
    QVERIFY(press("ctrl+t", TABLE));
    QVERIFY(press("ctrl+m", TABLE));
    QVERIFY(press("ctrl+shift+c", TABLE));
    QVERIFY(press("ctrl+f", TABLE));
    QVERIFY(host()->WaitForFocus(MenusFixture::SEARCH));
    QVERIFY(!host()->Exists(MenusFixture::SMS_TO));
    QVERIFY(!host()->Exists(MenusFixture::MMS_TO));
    QVERIFY(!host()->Exists(CALL_BOX));
}

QTEST_GUILESS_MAIN(TestDesktopShortcuts)
#include "test_desktop_shortcuts.moc"
