#include <QtTest>

#include "DesktopTest.h"

namespace
{

const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const PREVIEW = "AddrBookUIPlugin_labelPreview";
const char* const FORM = "AddrBookUIPlugin_New_Edit_Dlg";
const char* const FORM_OK = "AddrBookUIPlugin_New_Edit_Dlg_OK_Button[0]";
const char* const BOX = "linkhand_MessageBox";
const char* const WAITING = "ABWaitingDlg";
const char* const WAITING_COUNT = "ABWaitingDlg/QLabel[1]";
const int MANY = 300;

// The inputs of the form by their place in it.
QString input(int iPlace)
{
    return QStringLiteral("%1/NewContactLineEdit[%2]").arg(FORM).arg(iPlace);
}

// The text of a file with contacts named "Anna 0001" and so on.
QString manyContacts(int iCount, const QString& strNumberTitle)
{
    QString strText = "Name," + strNumberTitle + '\n';
    for (int i = 1; i <= iCount; ++i) {
        strText += QStringLiteral("Anna %1,0170%1\n").arg(i, 4, 10, QLatin1Char('0'));
    }
    return strText;
}

} // namespace

// Contacts made, edited and deleted in the real program. What the screen says is compared with the store as another
// program sees it.
class TestDesktopContacts : public DesktopStoreTest
{
    Q_OBJECT

private slots:
    void aContactIsMadeAndEditedWithTheKeyboardAlone();
    void escapeLeavesTheContactAsItWas();
    void aRepeatedNumberIsAskedAbout();
    void aNumberFromAMessageIsSaved();
    void aNumberFromElsewhereComesInClean();
    void deletingManyGoesToTheEnd();
    void deletingManyIsCancelledHalfWay();

private:
    bool start();
    bool focused(const QString& strAddress)
    {
        return HostDriver::WaitUntil([&] { return m_pHost->Widget(strAddress).bFocused; });
    }
    bool tabTo(const QString& strAddress)
    {
        m_pHost->Key("Tab");
        return focused(strAddress);
    }
    QString nodeText(const QString& strBegin) { return m_pHost->Cell(TREE, strBegin).strText; }
    int selectedRows();
    bool selectAllRows(int iRows);
    bool confirmDelete();
};

bool TestDesktopContacts::start()
{
    return m_pHost->Start(DataFolder()) &&
           HostDriver::WaitUntil([this] { return m_pHost->Rows(TABLE) == m_pStore->Used("local"); });
}

int TestDesktopContacts::selectedRows()
{
    int iSelected = 0;
    foreach (const CellInfo& cell, m_pHost->Cells(TABLE)) {
        iSelected += cell.iColumn == 0 && cell.bSelected ? 1 : 0;
    }
    return iSelected;
}

// Those that are seen stand for all.
bool TestDesktopContacts::selectAllRows(int iRows)
{
    return HostDriver::WaitUntil([&] { return m_pHost->Rows(TABLE) == iRows; }) &&
           m_pHost->ClickCell(TABLE, "Anna 0001") && focused(TABLE) && (m_pHost->Key("ctrl+a"), true) &&
           HostDriver::WaitUntil([this] { return selectedRows() > 10 && m_pHost->Cell(TABLE, "Anna").bSelected; });
}

// The answer that the box offers first is the harmless one.
bool TestDesktopContacts::confirmDelete()
{
    m_pHost->Key("Delete");
    if (!m_pHost->WaitFor(BOX) || !m_pHost->Text(BOX).contains("stays in the bin") ||
        !focused("linkhand_MessageBox/QPushButton[1]")) {
        return false;
    }
    m_pHost->Key("shift+Tab");
    if (!focused("linkhand_MessageBox/QPushButton[0]")) {
        return false;
    }
    m_pHost->Key("space");
    return m_pHost->WaitGone(BOX);
}

void TestDesktopContacts::aContactIsMadeAndEditedWithTheKeyboardAlone()
{
    QVERIFY2(m_pStore->Import("local", "Name,Mobile\nBea,0171\nCleo,0172\n"), qPrintable(m_pStore->Said()));
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    m_pHost->Key("ctrl+n");
    QVERIFY(m_pHost->WaitFor(FORM));
    QVERIFY(focused(input(0)));
    QVERIFY(!m_pHost->Widget(FORM_OK).bEnabled);
    m_pHost->Type("Anna Berg");
    QVERIFY(tabTo(input(1)));
    m_pHost->Type("+49a170 1"); // letters and blanks are no part of a number
    QTRY_COMPARE(m_pHost->Text(input(1)), QStringLiteral("+491701"));
    QVERIFY(tabTo(input(2)));
    m_pHost->Type("0301");
    QVERIFY(tabTo(input(3)));
    QVERIFY(tabTo(input(4)));
    m_pHost->Type("anna@example.org");
    QVERIFY(tabTo("NewContactTextEdit"));
    m_pHost->Type("Likes tea");
    QVERIFY(tabTo(FORM_OK));
    m_pHost->Key("space");
    QVERIFY(m_pHost->WaitGone(FORM));

    QTRY_COMPARE(nodeText("Computer"), QStringLiteral("Computer(3)"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 3);
    QVERIFY(m_pHost->Cell(TABLE, "Anna Berg", 0).bSelected);
    QCOMPARE(m_pStore->Used("local"), 3);
    const QStringList lstMade = {"Anna Berg", "+491701", "0301", "", "anna@example.org", "Likes tea"};
    QCOMPARE(m_pStore->Contacts("local").first(), lstMade);

    // The new row is the selected one.
    QVERIFY(m_pHost->WaitForMainWindow());
    m_pHost->Key("ctrl+e");
    QVERIFY(m_pHost->WaitFor(FORM));
    QVERIFY(focused(input(0)));
    QCOMPARE(m_pHost->Text(input(0)), QStringLiteral("Anna Berg"));
    QVERIFY(!m_pHost->Widget(FORM_OK).bEnabled);
    m_pHost->Key("End");
    m_pHost->Type("mann");
    QVERIFY(tabTo(input(1)) && tabTo(input(2)) && tabTo(input(3)));
    m_pHost->Type("0302");
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitGone(FORM));

    const QStringList lstEdited = {"Anna Bergmann", "+491701", "0301", "0302", "anna@example.org", "Likes tea"};
    QTRY_VERIFY(m_pHost->Cell(TABLE, "Anna Bergmann", 0).bSelected);
    QCOMPARE(m_pStore->Contacts("local").first(), lstEdited);
    QCOMPARE(m_pStore->Used("local"), 3);
    QCOMPARE(nodeText("Computer"), QStringLiteral("Computer(3)"));
    QVERIFY(m_pHost->ClickCell(TABLE, "Anna Bergmann"));
    QTRY_VERIFY(m_pHost->Text(PREVIEW).contains("0302"));
}

void TestDesktopContacts::escapeLeavesTheContactAsItWas()
{
    QVERIFY2(m_pStore->Import("local", "Name,Mobile\nBea,0171\n"), qPrintable(m_pStore->Said()));
    const QList<QStringList> listBefore = m_pStore->Contacts("local");
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->ClickCell(TABLE, "Bea") && focused(TABLE));
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitFor(FORM) && focused(input(0)));
    m_pHost->Type("trice");
    QTRY_VERIFY(m_pHost->Text(input(0)).contains("trice"));
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone(FORM));
    QVERIFY(m_pHost->Cell(TABLE, "Bea", 0).strText == "Bea");
    QCOMPARE(m_pStore->Contacts("local"), listBefore);
}

void TestDesktopContacts::aRepeatedNumberIsAskedAbout()
{
    QVERIFY2(m_pStore->Import("local", "Name,Mobile\nBea,0171\n"), qPrintable(m_pStore->Said()));
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    m_pHost->Key("ctrl+n");
    QVERIFY(m_pHost->WaitFor(FORM) && focused(input(0)));
    m_pHost->Type("Dora");
    QVERIFY(tabTo(input(1)) && tabTo(input(2)) && tabTo(input(3)));
    m_pHost->Type("0171");
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitFor(BOX) && m_pHost->WaitForModal());
    // It names the field that repeats a number.
    QVERIFY(!m_pHost->Windows().filter(QRegularExpression("\tlinkhand_MessageBox\tHome\t")).isEmpty());
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone(BOX));
    QCOMPARE(m_pHost->Text(input(3)), QStringLiteral("0171")); // nothing typed is lost
    QCOMPARE(m_pStore->Used("local"), 1);

    QVERIFY(focused(input(3)));
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitFor(BOX) && focused("linkhand_MessageBox/QPushButton[0]"));
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitGone(FORM));
    QTRY_COMPARE(nodeText("Computer"), QStringLiteral("Computer(2)"));
    const QList<QStringList> listStored = {{"Bea", "0171", "", "", "", ""}, {"Dora", "", "", "0171", "", ""}};
    QCOMPARE(m_pStore->Contacts("local"), listStored);

    // A contact's own number is no repeat.
    QVERIFY(m_pHost->WaitForMainWindow());
    m_pHost->Key("ctrl+e");
    QVERIFY(m_pHost->WaitFor(FORM) && focused(input(0)));
    QCOMPARE(m_pHost->Text(input(0)), QStringLiteral("Dora"));
    QVERIFY(tabTo(input(1)) && tabTo(input(2)) && tabTo(input(3)));
    m_pHost->Key("ctrl+a");
    m_pHost->Type("0172");
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitGone(FORM));
    QVERIFY(!m_pHost->Exists(BOX));
    QCOMPARE(m_pStore->Contacts("local").last().value(3), QStringLiteral("0172"));
}

void TestDesktopContacts::aNumberFromAMessageIsSaved()
{
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->Click("linkhand_NavBar_Messages"));
    QVERIFY(m_pHost->Click("linkhand_Messages_newSms"));
    QVERIFY(focused("SMSUIPlugin_lineeditTo"));
    m_pHost->Type("+49 (0)170 555-1");
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonSaveNumber"));
    QVERIFY(m_pHost->WaitFor(FORM));
    QVERIFY(m_pHost->WaitUntil([this] { return m_pHost->Text(input(1)) == "+491705551"; }));
    QVERIFY(m_pHost->Widget(FORM_OK).bEnabled);
    QVERIFY(focused(input(0)));
    m_pHost->Type("Emil");
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitGone(FORM));
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonClose"));
    QVERIFY(m_pHost->WaitGone("SMSUIPlugin_window"));
    QVERIFY(m_pHost->Click("linkhand_NavBar_AddrBookUIPlugin"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 1);
    QCOMPARE(nodeText("Computer"), QStringLiteral("Computer(1)"));
    QCOMPARE(m_pStore->Contacts("local"), QList<QStringList>({{"Emil", "+491705551", "", "", "", ""}}));
}

// With the keyboard, with the middle button, and dropped.
void TestDesktopContacts::aNumberFromElsewhereComesInClean()
{
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    m_pHost->Key("ctrl+n");
    QVERIFY(m_pHost->WaitFor(FORM) && focused(input(0)));
    m_pHost->Type("+49 (30) 1234-5678");
    m_pHost->Key("ctrl+a");
    m_pHost->Key("ctrl+c");
    QVERIFY(tabTo(input(1)));
    m_pHost->Key("ctrl+v");
    QTRY_COMPARE(m_pHost->Text(input(1)), QStringLiteral("+493012345678"));
    // What the mouse selects is there for the middle button.
    m_pHost->ClickAt(m_pHost->Widget(input(0)).rect.center(), 1, 3);
    QVERIFY(m_pHost->Click(input(2), 2));
    QTRY_COMPARE(m_pHost->Text(input(2)), QStringLiteral("+493012345678"));
    const QString strRemarks = QStringLiteral("%1/NewContactTextEdit[0]").arg(FORM);
    QVERIFY(m_pHost->Click(strRemarks));
    m_pHost->Type("tel:030-99");
    m_pHost->Key("ctrl+a");
    const QRect remarks = m_pHost->Widget(strRemarks).rect;
    m_pHost->Drag(remarks.topLeft() + QPoint(20, 12), m_pHost->Widget(input(3)).rect.center());
    QTRY_COMPARE(m_pHost->Text(input(3)), QStringLiteral("03099"));
    QVERIFY(m_pHost->Click(QString(FORM_OK).replace("[0]", "[1]")));
    QVERIFY(m_pHost->WaitGone(FORM));
}

void TestDesktopContacts::deletingManyGoesToTheEnd()
{
    QVERIFY2(m_pStore->Import("local", manyContacts(MANY, "Mobile")), qPrintable(m_pStore->Said()));
    QVERIFY2(m_pStore->Run({"add", "Name=Zoe", "Mobile=1"}), qPrintable(m_pStore->Said()));
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(selectAllRows(MANY + 1));
    QVERIFY(confirmDelete());
    QTRY_COMPARE_WITH_TIMEOUT(nodeText("Computer"), QStringLiteral("Computer(0)"), 60000);
    QVERIFY(m_pHost->WaitGone(WAITING));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 0);
    QCOMPARE(m_pStore->Used("local"), 0);
}

void TestDesktopContacts::deletingManyIsCancelledHalfWay()
{
    // The device takes ten milliseconds for a contact: enough for a hand to reach the button.
    QVERIFY2(m_pStore->Import("device", manyContacts(MANY, "Number")), qPrintable(m_pStore->Said()));
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->Click("linkhand_NavBar_device"));
    QVERIFY(m_pHost->Click("linkhand_DevicePanel_speed"));
    QVERIFY(m_pHost->ClickCell("popup/QAbstractItemView", "10 ms"));
    QVERIFY(m_pHost->ClickCell(TREE, "Device"));
    QVERIFY(selectAllRows(MANY));
    QVERIFY(confirmDelete());

    const auto done = [this] { return m_pHost->Text(WAITING_COUNT).section('/', 0, 0).toInt(); };
    int iSaid = 0;
    QVERIFY(HostDriver::WaitUntil([&] { return (iSaid = done()) >= MANY / 4; }, 60000));
    QVERIFY(m_pHost->Text(WAITING_COUNT).endsWith("/300"));
    // Neither Escape nor the window manager closes it.
    m_pHost->Key("Escape");
    m_pHost->CloseActiveWindow();
    QVERIFY(HostDriver::WaitUntil([&] { return (iSaid = done()) >= MANY / 3; }, 60000));
    QVERIFY(m_pHost->Click("ABWaitingDlg/QPushButton"));
    QVERIFY(m_pHost->WaitGone(WAITING));

    // The tree is told again at the end of the batch.
    QTRY_VERIFY(nodeText("Device") != "Device(300/500)");
    const int iLeft = m_pStore->Used("device");
    QVERIFY2(iLeft > 0 && iLeft <= MANY - iSaid, qPrintable(QString::number(iLeft)));
    QTRY_COMPARE(nodeText("Device"), QStringLiteral("Device(%1/500)").arg(iLeft));
    QTRY_COMPARE(m_pHost->Rows(TABLE), iLeft);
    QVERIFY(!m_pHost->Exists("modal"));
    const QList<QStringList> listLeft = m_pStore->Contacts("device");
    QCOMPARE(listLeft.size(), iLeft);
    QCOMPARE(listLeft.first().first(), QStringLiteral("Anna %1").arg(MANY - iLeft + 1, 4, 10, QLatin1Char('0')));
    QCOMPARE(m_pHost->Cell(TABLE, "Anna", 0).strText, listLeft.first().first());

    // Nothing goes on behind the screen, and the table listens again.
    QVERIFY(m_pHost->ClickCell(TABLE, listLeft.first().first()));
    QTRY_VERIFY(m_pHost->Text(PREVIEW).contains(listLeft.first().first()));
    QVERIFY(m_pHost->Quit() >= 0);
    QCOMPARE(m_pStore->Used("device"), iLeft);
    QCOMPARE(m_pStore->Contacts("device"), listLeft);
}

QTEST_GUILESS_MAIN(TestDesktopContacts)
#include "test_desktop_contacts.moc"
