#include <QtTest>

#include "HostDriver.h"
#include "Profile.h"
#include "orva/orva_sdk.h"

// Recipients chosen in the phonebook from the editors of messages, with real mouse and keys.
class TestDesktopPicker : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void numbersArePickedWithTheMouse_data() { editors(); }
    void numbersArePickedWithTheMouse();
    void numbersArePickedWithTheKeyboard_data() { editors(); }
    void numbersArePickedWithTheKeyboard();
    void chosenNumbersComeTickedAndCanBeUnticked();
    void oneOfTwoNumbersIsPicked();
    void aGroupIsPickedWhole();
    void cancelLeavesTheRecipients();
    void theCloseButtonLeavesTheRecipients();
    void theCardsNumbersGoAndComeWithTheCard();

private:
    static void editors();
    bool openEditor(const QString& strKind);
    bool openPicker();
    bool isFilled();
    QString recipients() { return m_pHost->Text(m_strPlugin + "_lineeditTo"); }
    bool closeEditor();

    // Clicks the check box of a node and waits for the mark.
    bool tick(const QString& strNode, bool bTick = true);
    bool isTicked(const QString& strNode);

    // Moves the keyboard to a node by typing how its text begins.
    bool goTo(const QString& strNode);
    bool pressSpace(const QString& strNode, bool bTick = true);
    bool pressOk();

    QString m_strPlugin; // of the editor
    QScopedPointer<Profile> m_pProfile;
    QScopedPointer<HostDriver> m_pHost;
};

namespace
{

const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const CHOICE = "AddrBookUIPlugin_selectContacts_treeContacts";
const char* const OK = "AddrBookUIPlugin_selectContacts_buttonOK";
const char* const CANCEL = "AddrBookUIPlugin_selectContacts_buttonCancel";

} // namespace

void TestDesktopPicker::init()
{
    m_pProfile.reset(new Profile);
    m_pHost.reset(new HostDriver);
    QVERIFY(m_pProfile->Import(ORVA_MEMORY_LOCAL, QStringList() << "Name,Mobile,homePhone,Groups"
                                                                << "Adele Berg,01701,,Friends"
                                                                << "Bruno Ahl,01702,,Friends"
                                                                << "Carla Diaz,01703,0303,"
                                                                << "David Ek,01704,,"
                                                                << "Emil Falk,01705,,"));
    QVERIFY(m_pProfile->Import(ORVA_MEMORY_CARD, QStringList() << "Name,Number"
                                                               << "Taxi,22456"
                                                               << "Voicemail,3311"));
    m_pProfile->Close();
    QVERIFY2(m_pHost->Start(m_pProfile->Path()), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 5);
}

void TestDesktopPicker::cleanup()
{
    if (QTest::currentTestFailed()) {
        m_pHost->Screenshot(QStringLiteral("%1.png").arg(QTest::currentTestFunction()));
    }
    QVERIFY2(m_pHost->Quit() >= 0, qPrintable(m_pHost->Log()));
    QVERIFY2(m_pHost->ErrorLines().isEmpty(), qPrintable(m_pHost->ErrorLines().join('\n')));
}

void TestDesktopPicker::editors()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("SMS") << "SMS";
    QTest::newRow("MMS") << "MMS";
}

bool TestDesktopPicker::openEditor(const QString& strKind)
{
    m_strPlugin = strKind + "UIPlugin";
    return m_pHost->Click("linkhand_NavBar_Messages") &&
           m_pHost->Click(strKind == "SMS" ? "linkhand_Messages_newSms" : "linkhand_Messages_newMms") &&
           m_pHost->WaitForFocus(m_strPlugin + "_lineeditTo");
}

bool TestDesktopPicker::openPicker()
{
    return m_pHost->Click(m_strPlugin + "_buttonAddRecipients") && isFilled();
}

// The contacts of no group come last on the PC; the card's come on their own.
bool TestDesktopPicker::isFilled()
{
    if (!m_pHost->WaitFor(CHOICE) || !m_pHost->TakeKeyboard()) {
        return false;
    }
    return HostDriver::WaitUntil([this] {
        return m_pHost->Cell(CHOICE, "Emil Falk").iColumn == 0 && m_pHost->Cell(CHOICE, "Bruno Ahl").iColumn == 0 &&
               m_pHost->Cell(CHOICE, "Voicemail").iColumn == 0 && m_pHost->Widget(CHOICE).bFocused;
    });
}

bool TestDesktopPicker::closeEditor()
{
    return m_pHost->Click(m_strPlugin + "_buttonClose") && m_pHost->WaitGone(m_strPlugin + "_window");
}

bool TestDesktopPicker::isTicked(const QString& strNode)
{
    return m_pHost->Cell(CHOICE, strNode).iCheckState == Qt::Checked;
}

bool TestDesktopPicker::tick(const QString& strNode, bool bTick)
{
    const QRect rect = m_pHost->Cell(CHOICE, strNode).rect;
    m_pHost->ClickAt(QPoint(rect.left() + 8, rect.center().y()));
    return HostDriver::WaitUntil([&] { return isTicked(strNode) == bTick; });
}

bool TestDesktopPicker::goTo(const QString& strNode)
{
    m_pHost->Type(strNode);
    return HostDriver::WaitUntil([&] { return m_pHost->Cell(CHOICE, strNode).bSelected; });
}

bool TestDesktopPicker::pressSpace(const QString& strNode, bool bTick)
{
    m_pHost->Key("space");
    return HostDriver::WaitUntil([&] { return isTicked(strNode) == bTick; });
}

bool TestDesktopPicker::pressOk()
{
    return m_pHost->Click(OK) && m_pHost->WaitGone(CHOICE);
}

void TestDesktopPicker::numbersArePickedWithTheMouse()
{
    QFETCH(QString, kind);
    QVERIFY(openEditor(kind));
    m_pHost->Type("0555123"); // nobody's
    QVERIFY(openPicker());
    QVERIFY(tick("David Ek"));
    QVERIFY(tick("Taxi"));
    QVERIFY(tick("Adele Berg"));
    QVERIFY(isTicked("Friends") && isTicked("Computer") && isTicked("SIM"));
    QVERIFY(!isTicked("Bruno Ahl") && !isTicked("Voicemail") && !isTicked("Emil Falk"));
    QVERIFY(tick("Adele Berg", false));
    QVERIFY(!isTicked("Friends") && isTicked("Computer"));
    QVERIFY(pressOk());
    QCOMPARE(recipients(), QStringLiteral("0555123; 01704; 22456"));
    QVERIFY(closeEditor());
}

void TestDesktopPicker::numbersArePickedWithTheKeyboard()
{
    QFETCH(QString, kind);
    QVERIFY(openEditor(kind));
    m_pHost->Type("0555123");
    m_pHost->Key("Tab");
    QVERIFY(m_pHost->WaitForFocus(m_strPlugin + "_buttonByName"));
    m_pHost->Key("Tab");
    QVERIFY(m_pHost->WaitForFocus(m_strPlugin + "_buttonAddRecipients"));
    m_pHost->Key("space");
    QVERIFY(isFilled());
    QVERIFY(goTo("Taxi"));
    QVERIFY(pressSpace("Taxi"));
    m_pHost->Key("Down");
    QTRY_VERIFY(m_pHost->Cell(CHOICE, "Voicemail").bSelected);
    QVERIFY(pressSpace("Voicemail"));
    QVERIFY(pressSpace("Voicemail", false));
    m_pHost->Key("Home");
    QTRY_VERIFY(m_pHost->Cell(CHOICE, "Computer").bSelected);
    m_pHost->Key("Down");
    QTRY_VERIFY(m_pHost->Cell(CHOICE, "Carla Diaz").bSelected);
    m_pHost->Key("Right"); // opens
    m_pHost->Key("Down");
    QTRY_VERIFY(m_pHost->Cell(CHOICE, "Mobile 01703").bSelected);
    QVERIFY(pressSpace("Mobile 01703"));
    m_pHost->Key("Tab");
    QVERIFY(m_pHost->WaitForFocus(OK));
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitGone(CHOICE));
    QCOMPARE(recipients(), QStringLiteral("0555123; 22456; 01703"));
    QVERIFY(closeEditor());
}

void TestDesktopPicker::chosenNumbersComeTickedAndCanBeUnticked()
{
    QVERIFY(openEditor("SMS"));
    m_pHost->Type("01704, 0555123, 22456");
    QVERIFY(openPicker());
    QTRY_VERIFY(isTicked("David Ek") && isTicked("Taxi"));
    QVERIFY(!isTicked("Emil Falk") && !isTicked("Voicemail") && !isTicked("Friends"));
    QVERIFY(tick("Taxi", false));
    QVERIFY(!isTicked("SIM"));
    QVERIFY(pressOk());
    QCOMPARE(recipients(), QStringLiteral("01704; 0555123"));
    // What was typed in between counts, too.
    QVERIFY(m_pHost->Click("SMSUIPlugin_lineeditTo"));
    m_pHost->Key("End");
    m_pHost->Type("; 0555999");
    QVERIFY(openPicker());
    QTRY_VERIFY(isTicked("David Ek"));
    QVERIFY(tick("Emil Falk"));
    QVERIFY(pressOk());
    QCOMPARE(recipients(), QStringLiteral("01704; 0555123; 0555999; 01705"));
    QVERIFY(closeEditor());
}

void TestDesktopPicker::oneOfTwoNumbersIsPicked()
{
    QVERIFY(openEditor("SMS"));
    QVERIFY(openPicker());
    QVERIFY(tick("Carla Diaz"));
    QVERIFY(m_pHost->DoubleClickCell(CHOICE, "Carla Diaz"));
    QTRY_VERIFY(isTicked("Mobile 01703") && isTicked("Home 0303"));
    QVERIFY(tick("Mobile 01703", false));
    QVERIFY(isTicked("Carla Diaz"));
    QVERIFY(pressOk());
    QCOMPARE(recipients(), QStringLiteral("0303"));
    QVERIFY(closeEditor());
}

void TestDesktopPicker::aGroupIsPickedWhole()
{
    QVERIFY(openEditor("SMS"));
    QVERIFY(openPicker());
    QVERIFY(tick("Friends"));
    QVERIFY(isTicked("Adele Berg") && isTicked("Bruno Ahl"));
    QVERIFY(pressOk());
    QCOMPARE(recipients(), QStringLiteral("01701; 01702"));
    QVERIFY(closeEditor());
}

void TestDesktopPicker::cancelLeavesTheRecipients()
{
    QVERIFY(openEditor("SMS"));
    m_pHost->Type("0555123,01704");
    QVERIFY(openPicker());
    QVERIFY(tick("Friends"));
    QVERIFY(m_pHost->Click(CANCEL));
    QVERIFY(m_pHost->WaitGone(CHOICE));
    QCOMPARE(recipients(), QStringLiteral("0555123,01704"));
    QVERIFY(closeEditor());
}

void TestDesktopPicker::theCloseButtonLeavesTheRecipients()
{
    QVERIFY(openEditor("SMS"));
    m_pHost->Type("0555123");
    QVERIFY(openPicker());
    QVERIFY(tick("Friends"));
    m_pHost->CloseActiveWindow();
    QVERIFY(m_pHost->WaitGone(CHOICE));
    QCOMPARE(recipients(), QStringLiteral("0555123"));
    QVERIFY(closeEditor());
}

void TestDesktopPicker::theCardsNumbersGoAndComeWithTheCard()
{
    QVERIFY(m_pHost->Click("linkhand_NavBar_device"));
    QVERIFY(m_pHost->Click("linkhand_DevicePanel_card"));
    QTRY_VERIFY(m_pHost->Cell("AddrBookUIPlugin_TreeWidget", "SIM").iColumn < 0);
    QVERIFY(openEditor("SMS"));
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonAddRecipients"));
    QTRY_VERIFY(m_pHost->Cell(CHOICE, "Emil Falk").iColumn == 0);
    QVERIFY(m_pHost->Cell(CHOICE, "SIM").iColumn < 0);
    QVERIFY(tick("Emil Falk"));
    QVERIFY(pressOk());
    QCOMPARE(recipients(), QStringLiteral("01705"));
    QVERIFY(closeEditor());
    QVERIFY(m_pHost->Click("linkhand_DevicePanel_card"));
    QVERIFY(openEditor("SMS"));
    QVERIFY(openPicker());
    QVERIFY(tick("Voicemail"));
    QVERIFY(pressOk());
    QCOMPARE(recipients(), QStringLiteral("3311"));
    QVERIFY(closeEditor());
}

QTEST_GUILESS_MAIN(TestDesktopPicker)
#include "test_desktop_picker.moc"
