#include <QtTest>

#include <csignal>
#include <sys/resource.h>

#include "DesktopTest.h"

namespace
{

const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const PROBLEMS = "linkhand_StatusArea_problems";
const char* const PROBLEM_LIST = "linkhand_Problems_list";

} // namespace

// The program on a disk that has no room: a limit on the length of files, which can be taken back while it runs.
class TestDesktopDisk : public DesktopStoreTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The program is to meet an error and no signal; it inherits that.
        std::signal(SIGXFSZ, SIG_IGN);
    }
    void init();
    void contactsShowOnAFullDiskAndAllComesBack();

private:
    bool rowComes(const QString& strName)
    {
        return HostDriver::WaitUntil([&] { return m_pHost->Cell(TABLE, strName).iColumn >= 0; });
    }
    bool rowGoes(const QString& strName)
    {
        return HostDriver::WaitUntil([&] { return m_pHost->Cell(TABLE, strName).iColumn < 0; });
    }
    // What the program lists as its problems.
    bool listsProblem(const QString& strText);
    bool makeRoom();
};

void TestDesktopDisk::init()
{
    DesktopStoreTest::init();
    QVERIFY(m_pStore->Import("local", "Name,Mobile\nAda,0170111\nBo,0170222\n"));
}

void TestDesktopDisk::contactsShowOnAFullDiskAndAllComesBack()
{
    Expect("."); // a full disk is warned about
    m_pHost->SetRunner({"prlimit", "--fsize=0:unlimited", "--"});
    QVERIFY2(m_pHost->Start(DataFolder()), qPrintable(m_pHost->Log()));
    QVERIFY(rowComes("Ada"));
    QVERIFY(rowComes("Bo"));
    QCOMPARE(m_pHost->Rows(TABLE), 2);
    QVERIFY(!m_pHost->Exists("linkhand_WelcomeNote"));
    QVERIFY(listsProblem("The disk is full. Your contacts are safe"));
    m_pHost->Screenshot("disk-full.png");
    QVERIFY(makeRoom());
    QVERIFY(HostDriver::WaitUntil([&] { return !m_pHost->Exists(PROBLEMS); }));
    QCOMPARE(m_pHost->Rows(TABLE), 2);
    QVERIFY(m_pStore->Run({"add", "Name=Cy", "Mobile=0170333"}));
    QVERIFY(rowComes("Cy"));
    QVERIFY(m_pHost->ClickCell(TABLE, "Ada"));
    m_pHost->Key("Delete");
    QVERIFY(m_pHost->WaitForModal());
    // The answer that the box offers first is the harmless one.
    m_pHost->Key("shift+Tab");
    m_pHost->Key("space");
    QVERIFY(rowGoes("Ada"));
    QCOMPARE(m_pStore->Contacts("local").size(), 2);
}

bool TestDesktopDisk::listsProblem(const QString& strText)
{
    if (!m_pHost->WaitFor(PROBLEMS)) {
        return false;
    }
    m_pHost->Click(PROBLEMS);
    const bool bThere =
        m_pHost->WaitForModal() && HostDriver::WaitUntil([&] {
            return m_pHost->Text(PROBLEM_LIST).contains(strText) || m_pHost->Cell(PROBLEM_LIST, strText).iColumn >= 0;
        });
    m_pHost->Key("Escape");
    return m_pHost->WaitForMainWindow() && bThere;
}

bool TestDesktopDisk::makeRoom()
{
    const rlimit none = {RLIM_INFINITY, RLIM_INFINITY};
    return ::prlimit(static_cast<pid_t>(m_pHost->Pid()), RLIMIT_FSIZE, &none, nullptr) == 0;
}

QTEST_GUILESS_MAIN(TestDesktopDisk)
#include "test_desktop_disk.moc"
