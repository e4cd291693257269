#include <QtTest>

#include "DesktopTest.h"
#include "Profile.h"

namespace
{

const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const CALLS = "VoiceCallPlugin_treeCalls";

} // namespace

// The calls of one run in the next one, by the keys alone where a person has only those.
class TestDesktopCalls : public DesktopTest
{
    Q_OBJECT

private slots:
    void init();
    void aCallIsThereAfterARestartUntilItIsDeleted();
    void theNetworkThatGoesIsTheEndOfACall();

private:
    bool start() { return m_pHost->Start(m_pProfile->Path()); }
    bool restart() { return m_pHost->Quit() >= 0 && start() && m_pHost->Click("linkhand_NavBar_VoiceCallPlugin"); }
    bool call(const QString& strName);
    QString cell(int iColumn);

    QScopedPointer<Profile> m_pProfile;
};

void TestDesktopCalls::init()
{
    DesktopTest::init();
    m_pProfile.reset(new Profile);
    QVERIFY(m_pProfile->Add(4, "Anna", "0170", 10));
    m_pProfile->Close();
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 10);
}

bool TestDesktopCalls::call(const QString& strName)
{
    return m_pHost->ClickCell(TABLE, strName) && m_pHost->ClickCell(TABLE, strName, 3) &&
           m_pHost->ClickAction("Call") && m_pHost->WaitFor("VoiceCallPlugin_callBox");
}

// Of the first row.
QString TestDesktopCalls::cell(int iColumn)
{
    foreach (const CellInfo& info, m_pHost->Cells(CALLS)) {
        if (info.strPath == "0" && info.iColumn == iColumn) {
            return info.strText;
        }
    }
    return QString();
}

void TestDesktopCalls::aCallIsThereAfterARestartUntilItIsDeleted()
{
    QVERIFY(call("Anna 0005"));
    QVERIFY(m_pHost->Click("VoiceCallPlugin_buttonHangUp"));
    QVERIFY(m_pHost->WaitGone("VoiceCallPlugin_callBox"));
    QVERIFY2(restart(), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(CALLS), 1);
    QCOMPARE(cell(0), QString("01700005"));
    QCOMPARE(cell(1), QString("Anna 0005"));
    QCOMPARE(cell(2), QString("Outgoing"));
    QVERIFY(cell(3).contains(QString::number(QDate::currentDate().year() % 100)));
    QCOMPARE(cell(5), QString("Simulated"));
    // Return puts the number where a second one would call it.
    QVERIFY(m_pHost->ClickCell(CALLS, "01700005"));
    QVERIFY(m_pHost->WaitForFocus(CALLS));
    m_pHost->Key("Return");
    QTRY_COMPARE(m_pHost->Text("VoiceCallPlugin_lineeditNumber"), QString("01700005"));
    QVERIFY(m_pHost->WaitForFocus("VoiceCallPlugin_lineeditNumber"));
    QVERIFY(m_pHost->ClickCell(CALLS, "Anna 0005")); // twice in one place would be a double click
    QVERIFY(m_pHost->WaitForFocus(CALLS));
    m_pHost->Key("Delete");
    QVERIFY(m_pHost->WaitForModal());
    m_pHost->Key("Tab");
    m_pHost->Key("space");
    QTRY_COMPARE(m_pHost->Rows(CALLS), 0);
    QVERIFY(m_pHost->WaitForMainWindow());
    QVERIFY2(restart(), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->WaitFor(CALLS));
    QCOMPARE(m_pHost->Rows(CALLS), 0);
}

void TestDesktopCalls::theNetworkThatGoesIsTheEndOfACall()
{
    QVERIFY(call("Anna 0003"));
    QVERIFY(m_pHost->Click("linkhand_NavBar_device"));
    QVERIFY(m_pHost->Click("linkhand_DevicePanel_network"));
    QVERIFY(m_pHost->WaitGone("VoiceCallPlugin_callBox"));
    QVERIFY2(restart(), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(CALLS), 1);
    QCOMPARE(cell(1), QString("Anna 0003"));
    QVERIFY2(cell(5).endsWith("Connection lost"), qPrintable(cell(5)));
}

QTEST_GUILESS_MAIN(TestDesktopCalls)
#include "test_desktop_calls.moc"
