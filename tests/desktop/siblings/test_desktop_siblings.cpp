#include <QtTest>

#include "DesktopTest.h"
#include "Profile.h"

namespace
{

const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const CHOICE = "AddrBookUIPlugin_selectContacts_treeContacts";

} // namespace

// Phonebook and siblings together: messages to contacts and groups, numbers from the phonebook, calls.
class TestDesktopSiblings : public DesktopTest
{
    Q_OBJECT

private slots:
    void init();
    void anSmsToAGroupOfThreeNamesTheThreeNumbers();
    void anSmsToSelectedRowsNamesTheirNumbers();
    void recipientsAreChosenInThePhonebook();
    void aCallToAContactIsShownUntilHungUp();
    void sendAndCallAreOffWithoutANetwork();

private:
    bool click(const QString& strText) { return m_pHost->ClickCell(TABLE, strText); }

    QScopedPointer<Profile> m_pProfile;
};

void TestDesktopSiblings::init()
{
    DesktopTest::init();
    m_pProfile.reset(new Profile);
    QVERIFY(m_pProfile->Add(4, "Anna", "0170", 10));
    QVERIFY(m_pProfile->AddGroup("Friends", 0, QList<int>() << 1 << 2 << 3) != 0);
    m_pProfile->Close();
    QVERIFY2(m_pHost->Start(m_pProfile->Path()), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 10);
}

void TestDesktopSiblings::anSmsToAGroupOfThreeNamesTheThreeNumbers()
{
    QVERIFY(m_pHost->ClickCell(TREE, "Friends"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 3);
    QVERIFY(m_pHost->ClickCell(TREE, "Friends", 3));
    QVERIFY(m_pHost->ClickAction("Send text message…"));
    QVERIFY(m_pHost->WaitFor("SMSUIPlugin_lineeditTo"));
    QTRY_COMPARE(m_pHost->Text("SMSUIPlugin_lineeditTo"), QStringLiteral("01700001; 01700002; 01700003"));
    QVERIFY(m_pHost->WaitUntil([this] { return m_pHost->Widget("SMSUIPlugin_texteditText").bFocused; }));
    m_pHost->Type("Hello");
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonSend"));
    QVERIFY(m_pHost->WaitGone("SMSUIPlugin_window"));
    QVERIFY(m_pHost->Click("linkhand_NavBar_Messages"));
    QTRY_COMPARE(m_pHost->Rows("linkhand_Messages_list"), 1);
}

void TestDesktopSiblings::anSmsToSelectedRowsNamesTheirNumbers()
{
    QVERIFY(click("Anna 0004"));
    m_pHost->ClickAtHolding("ctrl", m_pHost->Cell(TABLE, "Anna 0006").rect.center());
    QTRY_VERIFY(m_pHost->Cell(TABLE, "Anna 0006").bSelected && m_pHost->Cell(TABLE, "Anna 0004").bSelected);
    QVERIFY(m_pHost->ClickCell(TABLE, "Anna 0006", 3));
    QVERIFY(m_pHost->ClickAction("Send"));
    QVERIFY(m_pHost->ClickAction("Text message…"));
    QVERIFY(m_pHost->WaitFor("SMSUIPlugin_lineeditTo"));
    QStringList lstNumbers = m_pHost->Text("SMSUIPlugin_lineeditTo").split("; ");
    lstNumbers.sort();
    QCOMPARE(lstNumbers, QStringList() << "01700004"
                                       << "01700006");
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonClose"));
    QVERIFY(m_pHost->WaitGone("SMSUIPlugin_window"));
}

void TestDesktopSiblings::recipientsAreChosenInThePhonebook()
{
    QVERIFY(m_pHost->Click("linkhand_NavBar_Messages"));
    QVERIFY(m_pHost->Click("linkhand_Messages_newSms"));
    QVERIFY(m_pHost->WaitUntil([this] { return m_pHost->Widget("SMSUIPlugin_lineeditTo").bFocused; }));
    m_pHost->Type("0170555");
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonAddRecipients"));
    QVERIFY(m_pHost->WaitFor(CHOICE));
    // The contacts come after the groups' members; the check box of a group stands for all below it.
    QVERIFY(m_pHost->WaitUntil([this] { return m_pHost->Cell(CHOICE, "Anna 0010").iColumn >= 0; }));
    const CellInfo group = m_pHost->Cell(CHOICE, "Friends");
    QVERIFY(group.iColumn >= 0);
    m_pHost->ClickAt(QPoint(group.rect.left() + 8, group.rect.center().y()));
    QVERIFY(m_pHost->Click("AddrBookUIPlugin_selectContacts_buttonOK"));
    QVERIFY(m_pHost->WaitGone(CHOICE));
    QTRY_VERIFY(m_pHost->Text("SMSUIPlugin_lineeditTo").contains("01700002"));
    QVERIFY(m_pHost->Text("SMSUIPlugin_lineeditTo").contains("0170555"));
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonClose"));
    QVERIFY(m_pHost->WaitGone("SMSUIPlugin_window"));
}

void TestDesktopSiblings::aCallToAContactIsShownUntilHungUp()
{
    QVERIFY(click("Anna 0005"));
    QVERIFY(m_pHost->ClickCell(TABLE, "Anna 0005", 3));
    QVERIFY(m_pHost->ClickAction("Call"));
    QVERIFY(m_pHost->WaitFor("VoiceCallPlugin_callBox"));
    QCOMPARE(m_pHost->Text("VoiceCallPlugin_labelNumber"), QStringLiteral("Anna 0005  01700005"));
    QVERIFY(m_pHost->Click("VoiceCallPlugin_buttonHangUp"));
    QVERIFY(m_pHost->WaitGone("VoiceCallPlugin_callBox"));
    QCOMPARE(m_pHost->Rows("VoiceCallPlugin_treeCalls"), 1);
    QVERIFY(m_pHost->Click("linkhand_NavBar_AddrBookUIPlugin"));
    QVERIFY(m_pHost->WaitFor(TABLE));
}

void TestDesktopSiblings::sendAndCallAreOffWithoutANetwork()
{
    QVERIFY(m_pHost->Click("linkhand_NavBar_device"));
    QVERIFY(m_pHost->Click("linkhand_DevicePanel_network"));
    QTRY_COMPARE(m_pHost->Text("linkhand_StatusArea_network"), QStringLiteral("Offline"));
    QVERIFY(click("Anna 0005"));
    QVERIFY(m_pHost->ClickCell(TABLE, "Anna 0005", 3));
    QVERIFY(m_pHost->WaitUntil([this] { return !m_pHost->Action("Call").rect.isEmpty(); }));
    QVERIFY(!m_pHost->Action("Call").bEnabled);
    QVERIFY(!m_pHost->Action("Send").bEnabled);
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone("popup"));
    QVERIFY(m_pHost->Click("linkhand_DevicePanel_network"));
    QTRY_COMPARE(m_pHost->Text("linkhand_StatusArea_network"), QStringLiteral("Online"));
    QVERIFY(m_pHost->ClickCell(TABLE, "Anna 0005", 3));
    QTRY_VERIFY(m_pHost->Action("Call").bEnabled);
    m_pHost->Key("Escape");
}

QTEST_GUILESS_MAIN(TestDesktopSiblings)
#include "test_desktop_siblings.moc"
