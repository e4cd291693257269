#include <QProcess>
#include <QtTest>

#include <csignal>

#include "DesktopTest.h"

namespace
{

const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const PREVIEW = "AddrBookUIPlugin_labelPreview";
const char* const NUMBER = "VoiceCallPlugin_lineeditNumber";
const char* const NOTICE = "linkhand_StatusArea_notice";
const char* const CARDS = "linkhand_Cards_list";

} // namespace

// Further starts of the program, and what it is given to open: by arguments, links and files.
class TestDesktopOpening : public DesktopStoreTest
{
    Q_OBJECT

private slots:
    void init();
    void aSecondStartBringsTheWindowUp();
    void aSecondStartTakesTheKeyboardFromAnotherWindow();
    void aNumberFillsTheFormAndIsNotCalled();
    void aMessageFillsTheEditor();
    void aCodeIsShownAndGoesNowhere();
    void aFileOfContactsIsShownAndImported();
    void theFirstStartOpensWhatItIsGiven();
    void aNewDataFolderHasOneProgramAsWell();
    void whatIsGivenWaitsForAnOpenDialog();
    void aNumberInThePreviewFillsTheForm();
    void aStoppedProgramIsGivenUp();
    void aKilledProgramIsReplaced();
    void theLastPageComesBack();
    void whatMakesNoSenseIsRefused();

private:
    void begin(QProcess& start, const QStringList& lstArguments, const QString& strFolder = QString());
    int end(QProcess& start);
    QByteArray waitForWindowOf(QProcess& start);
    int again(const QStringList& lstArguments, const QString& strFolder = QString());
    bool isActive();

    QString m_strSaid;
};

void TestDesktopOpening::init()
{
    DesktopStoreTest::init();
    QVERIFY(m_pStore->Import("local", "Name,Mobile\nAda,+491711234567\n"));
    QFile file(m_pFolder->filePath("two.vcf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("BEGIN:VCARD\nVERSION:3.0\nFN:Bo\nTEL;TYPE=CELL:0170222\nEND:VCARD\n"
                       "BEGIN:VCARD\nVERSION:3.0\nFN:Cy\nTEL;TYPE=CELL:0170333\nEND:VCARD\n") > 0);
    QVERIFY2(m_pHost->Start(DataFolder()), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 1);
}

// Starts the shipped program on the same data folder.
void TestDesktopOpening::begin(QProcess& start, const QStringList& lstArguments, const QString& strFolder)
{
    start.setWorkingDirectory(strFolder.isEmpty() ? m_pFolder->path() : strFolder);
    start.start(QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR")) + "/linkhand",
                QStringList({"--data-dir", DataFolder()}) + lstArguments);
}

// Waits for its end; -1 if there is none.
int TestDesktopOpening::end(QProcess& start)
{
    const bool bEnded = start.waitForFinished(60000);
    m_strSaid = QString::fromLocal8Bit(start.readAllStandardError());
    return bEnded && start.exitStatus() == QProcess::NormalExit ? start.exitCode() : -1;
}

int TestDesktopOpening::again(const QStringList& lstArguments, const QString& strFolder)
{
    QProcess start;
    begin(start, lstArguments, strFolder);
    return end(start);
}

// The number of its window; empty if none comes before it ends.
QByteArray TestDesktopOpening::waitForWindowOf(QProcess& start)
{
    QByteArray window;
    HostDriver::WaitUntil(
        [&] {
            QProcess search;
            search.start("xdotool", {"search", "--onlyvisible", "--pid", QString::number(start.processId())});
            search.waitForFinished();
            window = search.readAllStandardOutput().trimmed().split('\n').last();
            start.waitForFinished(0);
            return !window.isEmpty() || start.state() == QProcess::NotRunning;
        },
        60000);
    return window;
}

bool TestDesktopOpening::isActive()
{
    return !m_pHost->Windows().filter(QRegularExpression("^[^\t]*\tlinkhand_MainWindow\t.*\t1$")).isEmpty();
}

void TestDesktopOpening::aSecondStartBringsTheWindowUp()
{
    QProcess::execute("xdotool", {"search", "--onlyvisible", "--name", "^Linkhand$", "windowminimize"});
    QVERIFY(HostDriver::WaitUntil([this] { return !isActive(); }));
    QCOMPARE(again({}), 0);
    QVERIFY(HostDriver::WaitUntil([this] { return isActive(); }));
    QCOMPARE(m_strSaid, QString());
    QVERIFY(m_pHost->Exists(TABLE));
}

// A window that was not put away comes up only if it is asked to.
void TestDesktopOpening::aSecondStartTakesTheKeyboardFromAnotherWindow()
{
    QCOMPARE(again({"sms:+49171"}), 0);
    QVERIFY(m_pHost->WaitFor("SMSUIPlugin_lineeditTo"));
    QVERIFY(HostDriver::WaitUntil([this] { return !isActive(); }));
    QCOMPARE(again({}), 0);
    QVERIFY(HostDriver::WaitUntil([this] { return isActive(); }));
}

void TestDesktopOpening::aNumberFillsTheFormAndIsNotCalled()
{
    QCOMPARE(again({"tel:+49-171-55"}), 0);
    QTRY_COMPARE(m_pHost->Text(NUMBER), QString("+4917155"));
    QVERIFY(m_pHost->WaitForFocus(NUMBER));
    QVERIFY(!m_pHost->Exists("VoiceCallPlugin_callBox"));
    QCOMPARE(m_pHost->Rows("VoiceCallPlugin_treeCalls"), 0);
    QVERIFY(m_pHost->Widget("VoiceCallPlugin_buttonCall").bEnabled);
}

void TestDesktopOpening::aMessageFillsTheEditor()
{
    QCOMPARE(again({"sms:+49171,0172?body=On%20my%20way"}), 0);
    QVERIFY(m_pHost->WaitFor("SMSUIPlugin_lineeditTo"));
    QTRY_COMPARE(m_pHost->Text("SMSUIPlugin_lineeditTo"), QString("+49171; 0172"));
    QCOMPARE(m_pHost->Text("SMSUIPlugin_texteditText"), QString("On my way"));
    QVERIFY(m_pHost->Click("SMSUIPlugin_buttonClose"));
    QVERIFY(m_pHost->WaitGone("SMSUIPlugin_window"));
}

void TestDesktopOpening::aCodeIsShownAndGoesNowhere()
{
    QCOMPARE(again({"tel:*%2306%23"}), 0);
    QVERIFY(m_pHost->WaitForModal());
    QVERIFY(m_pHost->Text("modal/QLabel[1]").contains("*#06#") || m_pHost->Text("modal/QLabel").contains("*#06#"));
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitGone("modal"));
    QVERIFY(m_pHost->Click("linkhand_NavBar_VoiceCallPlugin"));
    QVERIFY(m_pHost->WaitFor(NUMBER));
    QCOMPARE(m_pHost->Text(NUMBER), QString());
    QCOMPARE(m_pHost->Rows("VoiceCallPlugin_treeCalls"), 0);
}

void TestDesktopOpening::aFileOfContactsIsShownAndImported()
{
    QCOMPARE(again({"two.vcf"}), 0);
    QVERIFY(m_pHost->WaitForModal());
    QTRY_COMPARE(m_pHost->Rows(CARDS), 2);
    QVERIFY(m_pHost->Cell(CARDS, "Bo").iColumn == 0 && m_pHost->Cell(CARDS, "0170333").iColumn == 1);
    QCOMPARE(m_pStore->Used("local"), 1);
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone("linkhand_Cards"));
    QCOMPARE(m_pStore->Used("local"), 1);
    QCOMPARE(again({"file://" + m_pFolder->filePath("two.vcf")}), 0);
    QVERIFY(m_pHost->WaitForModal());
    QVERIFY(HostDriver::WaitUntil([this] { return m_pHost->Widget("linkhand_Cards_import").bFocused; }));
    m_pHost->Key("Return");
    QVERIFY(m_pHost->WaitGone("linkhand_Cards"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 3);
    QTRY_COMPARE(m_pHost->Text(NOTICE), QString("Contacts imported: 2 of 2"));
    QCOMPARE(m_pStore->Used("local"), 3);
}

void TestDesktopOpening::theFirstStartOpensWhatItIsGiven()
{
    QVERIFY(m_pHost->Quit() >= 0);
    QVERIFY2(m_pHost->Start(DataFolder(), {"tel:0171", m_pFolder->filePath("two.vcf")}), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->WaitForModal());
    QTRY_COMPARE(m_pHost->Rows(CARDS), 2);
    QCOMPARE(m_pHost->Text(NUMBER), QString("0171"));
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone("linkhand_Cards"));
}

void TestDesktopOpening::aNewDataFolderHasOneProgramAsWell()
{
    QVERIFY(m_pHost->Quit() >= 0);
    QVERIFY(QDir(DataFolder()).removeRecursively());
    QVERIFY2(m_pHost->Start(DataFolder()), qPrintable(m_pHost->Log()));
    QCOMPARE(again({"tel:0171"}), 0);
    QTRY_COMPARE(m_pHost->Text(NUMBER), QString("0171"));
}

void TestDesktopOpening::whatIsGivenWaitsForAnOpenDialog()
{
    m_pHost->Key("ctrl+n");
    QVERIFY(m_pHost->WaitForModal());
    QCOMPARE(again({"tel:0171"}), 0);
    QTRY_COMPARE(m_pHost->Text(NOTICE), QString("What is to be opened waits until the dialog is closed"));
    QVERIFY(!m_pHost->Exists(NUMBER));
    QVERIFY(m_pHost->WaitForModal());
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone("modal"));
    QTRY_COMPARE(m_pHost->Text(NUMBER), QString("0171"));
}

void TestDesktopOpening::aNumberInThePreviewFillsTheForm()
{
    QVERIFY(m_pHost->ClickCell(TABLE, "Ada"));
    QVERIFY(HostDriver::WaitUntil([this] { return m_pHost->Text(PREVIEW).contains("+491711234567"); }));
    // By keys: the first link of the preview is the number.
    QVERIFY(m_pHost->Click(PREVIEW));
    QVERIFY(m_pHost->WaitForFocus(PREVIEW));
    m_pHost->Key("Tab");
    m_pHost->Key("Return");
    QTRY_COMPARE(m_pHost->Text(NUMBER), QString("+491711234567"));
    QCOMPARE(m_pHost->Rows("VoiceCallPlugin_treeCalls"), 0);
}

void TestDesktopOpening::aStoppedProgramIsGivenUp()
{
    QCOMPARE(kill(pid_t(m_pHost->Pid()), SIGSTOP), 0);
    QProcess start;
    begin(start, {"tel:0171"});
    // Whoever started it from a menu is told as well.
    const QByteArray box = waitForWindowOf(start);
    const bool bWaits = start.state() == QProcess::Running;
    QProcess::execute("xdotool", {"windowactivate", "--sync", box, "key", "--window", "0", "Return"});
    const int iCode = end(start);
    QCOMPARE(kill(pid_t(m_pHost->Pid()), SIGCONT), 0);
    QVERIFY(!box.isEmpty() && bWaits);
    QCOMPARE(iCode, 3);
    QVERIFY2(m_strSaid.contains("linkhand: runs already with " + DataFolder() + ": it does not answer"),
             qPrintable(m_strSaid));
}

void TestDesktopOpening::aKilledProgramIsReplaced()
{
    QCOMPARE(kill(pid_t(m_pHost->Pid()), SIGKILL), 0);
    m_pHost->WaitForExit();
    QVERIFY(QFile::remove(m_pHost->SocketFolder() + "/socket")); // of the test, which it left
    QVERIFY2(m_pHost->Start(DataFolder()), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 1);
    QCOMPARE(again({"tel:0171"}), 0);
    QTRY_COMPARE(m_pHost->Text(NUMBER), QString("0171"));
}

void TestDesktopOpening::theLastPageComesBack()
{
    QVERIFY(m_pHost->Click("linkhand_NavBar_Messages"));
    QVERIFY(m_pHost->WaitFor("linkhand_Messages_list"));
    QVERIFY(m_pHost->Quit() >= 0);
    QVERIFY2(m_pHost->Start(DataFolder()), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->WaitFor("linkhand_Messages_list"));
}

void TestDesktopOpening::whatMakesNoSenseIsRefused()
{
    QCOMPARE(again({"tel:abc"}), 2);
    QVERIFY2(m_strSaid.contains("unknown argument tel:abc"), qPrintable(m_strSaid));
    QCOMPARE(again({"/etc/passwd"}), 2);
    QCOMPARE(again({"--hardware", "auto"}), 3);
    QVERIFY2(m_strSaid.contains("--hardware"), qPrintable(m_strSaid));
}

QTEST_GUILESS_MAIN(TestDesktopOpening)
#include "test_desktop_opening.moc"
