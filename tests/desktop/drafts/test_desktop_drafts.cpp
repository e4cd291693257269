#include <QtTest>

#include "DesktopTest.h"
#include "Profile.h"
#include "orva/orva_sdk.h"

namespace
{

const char* const LIST = "linkhand_Messages_list";
const char* const WINDOW = "SMSUIPlugin_window";
const char* const TO = "SMSUIPlugin_lineeditTo";
const char* const TEXT = "SMSUIPlugin_texteditText";
const char* const OFFER = "SMSUIPlugin_listContacts";
const char* const BOX = "linkhand_MessageBox";

} // namespace

// Messages that are not sent at once, and recipients by a part of their name, with real keys and mouse.
class TestDesktopDrafts : public DesktopTest
{
    Q_OBJECT

private slots:
    void init();
    void aMessageKeptIsSentAfterARestart();
    void theEndOfTheProgramKeepsWhatIsWritten();
    void whatIsDiscardedIsGone();
    void aNameTypedInPartIsChosenByKey();
    void aSecondRecipientIsChosenByKey();

private:
    bool start();
    bool write(const QString& strTo, const QString& strText);
    bool openDraft();
    QString offered(int iRow) { return m_pHost->Cells(OFFER).value(iRow).strText; }
    QString state() { return m_pHost->Cells(LIST).isEmpty() ? QString() : m_pHost->Cells(LIST).last().strText; }

    QScopedPointer<Profile> m_pProfile;
};

void TestDesktopDrafts::init()
{
    DesktopTest::init();
    m_pProfile.reset(new Profile);
    QVERIFY(m_pProfile->Import(ORVA_MEMORY_LOCAL, QStringList() << "Name,Mobile,homePhone"
                                                                << "Adele Berg,01701,"
                                                                << "Bruno Ahl,01702,"
                                                                << "Carla Diaz,01703,0303"));
    m_pProfile->Close();
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
}

bool TestDesktopDrafts::start()
{
    return m_pHost->Start(m_pProfile->Path()) && m_pHost->Click("linkhand_NavBar_Messages") && m_pHost->WaitFor(LIST);
}

bool TestDesktopDrafts::write(const QString& strTo, const QString& strText)
{
    if (!m_pHost->Click("linkhand_Messages_newSms") || !m_pHost->WaitForFocus(TO)) {
        return false;
    }
    m_pHost->Type(strTo);
    if (!m_pHost->Click(TEXT) || !m_pHost->WaitForFocus(TEXT)) {
        return false;
    }
    m_pHost->Type(strText);
    return HostDriver::WaitUntil([&] { return m_pHost->Text(TEXT) == strText; });
}

bool TestDesktopDrafts::openDraft()
{
    return HostDriver::WaitUntil([this] { return m_pHost->Rows(LIST) == 1; }) && m_pHost->ClickCell(LIST, "SMS") &&
           m_pHost->Click("linkhand_Messages_open") && m_pHost->WaitFor(WINDOW);
}

void TestDesktopDrafts::aMessageKeptIsSentAfterARestart()
{
    QVERIFY(write("01702", "Later"));
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonClose"));
    QVERIFY(m_pHost->WaitFor(BOX) && m_pHost->WaitForModal());
    QCOMPARE(m_pHost->Text(QString(BOX) + "/QPushButton[0]"), QString("Keep as draft"));
    QVERIFY(m_pHost->Click(QString(BOX) + "/QPushButton[0]"));
    QVERIFY(m_pHost->WaitGone(WINDOW));
    QTRY_COMPARE(m_pHost->Rows(LIST), 1);
    QVERIFY(m_pHost->Quit() >= 0);
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(openDraft());
    QCOMPARE(m_pHost->Text(TEXT), QString("Later"));
    QVERIFY(m_pHost->Text(TO).contains("01702"));
    const QString strDraft = state();
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonSend"));
    QVERIFY(m_pHost->WaitGone(WINDOW));
    // The same message, and a draft no more.
    QTRY_VERIFY(m_pHost->Rows(LIST) == 1 && state() != strDraft);
}

void TestDesktopDrafts::theEndOfTheProgramKeepsWhatIsWritten()
{
    QVERIFY(write("01701", "Not lost"));
    QVERIFY(m_pHost->Quit() >= 0);
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(openDraft());
    QCOMPARE(m_pHost->Text(TEXT), QString("Not lost"));
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonClose"));
    QVERIFY(m_pHost->WaitGone(WINDOW));
}

void TestDesktopDrafts::whatIsDiscardedIsGone()
{
    QVERIFY(write("01701", "Never mind"));
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonClose"));
    QVERIFY(m_pHost->WaitFor(BOX) && m_pHost->WaitForModal());
    // What asks stays open when the question is not answered.
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone(BOX));
    QCOMPARE(m_pHost->Text(TEXT), QString("Never mind"));
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonClose"));
    QVERIFY(m_pHost->WaitFor(BOX) && m_pHost->WaitForModal());
    QCOMPARE(m_pHost->Text(QString(BOX) + "/QPushButton[2]"), QString("Discard"));
    QVERIFY(m_pHost->Click(QString(BOX) + "/QPushButton[2]"));
    QVERIFY(m_pHost->WaitGone(WINDOW));
    QCOMPARE(m_pHost->Rows(LIST), 0);
}

void TestDesktopDrafts::aNameTypedInPartIsChosenByKey()
{
    QVERIFY(m_pHost->Click("linkhand_Messages_newSms"));
    QVERIFY(m_pHost->WaitForFocus(TO));
    m_pHost->Type("ahl");
    QTRY_COMPARE(m_pHost->Rows(OFFER), 1);
    QVERIFY2(offered(0).contains("Bruno Ahl"), qPrintable(offered(0)));
    m_pHost->Key("Return");
    QTRY_COMPARE(m_pHost->Text(TO).trimmed(), QString("01702;"));
    QVERIFY(m_pHost->WaitGone(OFFER));
    QVERIFY(m_pHost->Exists(WINDOW)); // Return chose, and sent nothing
}

void TestDesktopDrafts::aSecondRecipientIsChosenByKey()
{
    QVERIFY(m_pHost->Click("linkhand_Messages_newSms"));
    QVERIFY(m_pHost->WaitForFocus(TO));
    m_pHost->Type("01701; car");
    QTRY_COMPARE(m_pHost->Rows(OFFER), 2);
    QTRY_VERIFY(m_pHost->Cells(OFFER).value(0).bSelected);
    QVERIFY2(offered(0).contains("Carla Diaz") && offered(1).contains("Carla Diaz"), qPrintable(offered(0)));
    const QString strSecond = offered(1).contains("0303") ? "0303" : "01703";
    m_pHost->Key("Down");
    QTRY_VERIFY(m_pHost->Cells(OFFER).value(1).bSelected);
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitGone(OFFER));
    QTRY_COMPARE(m_pHost->Text(TO).trimmed(), "01701; " + strSecond + ';');
}

QTEST_GUILESS_MAIN(TestDesktopDrafts)
#include "test_desktop_drafts.moc"
