#include <QtTest>

#include "DesktopTest.h"

namespace
{

const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const TABS = "linkhand_Care_tabs/QTabBar";
const char* const TOLD = "linkhand_Care_told";

} // namespace

// The care page, by keys alone.
class TestDesktopCare : public DesktopStoreTest
{
    Q_OBJECT

private slots:
    void init();
    void eachSectionIsUsedByKeys();

private:
    bool told(const QString& strText)
    {
        return HostDriver::WaitUntil([&] { return m_pHost->Text(TOLD) == strText; });
    }
    bool rowComes(const QString& strList, const QString& strText)
    {
        return HostDriver::WaitUntil([&] { return m_pHost->Cell(strList, strText).iColumn >= 0; });
    }
    bool rowGoes(const QString& strList, const QString& strText)
    {
        return HostDriver::WaitUntil([&] { return m_pHost->Cell(strList, strText).iColumn < 0; });
    }
    // Presses Tab until a widget has the keys.
    bool tabTo(const QString& strName)
    {
        for (int i = 0; i < 20 && !m_pHost->Widget(strName).bFocused; ++i) {
            m_pHost->Key("Tab");
        }
        return m_pHost->WaitForFocus(strName);
    }
    bool backToTabs()
    {
        for (int i = 0; i < 20 && !m_pHost->Widget(TABS).bFocused; ++i) {
            m_pHost->Key("shift+Tab");
        }
        return m_pHost->WaitForFocus(TABS);
    }
    void restoreFromTheBin();
    void goBackToABackup();
    void mergeAPair();
    void synchroniseWithAFolder();
};

void TestDesktopCare::init()
{
    DesktopStoreTest::init();
    QVERIFY(m_pStore->Import("local", "Name,Mobile\nAda,0170111\nBo,0170222\nCy,0170333\ncy,0170333\n"));
    QVERIFY(m_pStore->Run({"delete", "1", "2"}));
    QVERIFY2(m_pHost->Start(DataFolder()), qPrintable(m_pHost->Log()));
    QVERIFY(rowComes(TABLE, "Cy"));
}

void TestDesktopCare::eachSectionIsUsedByKeys()
{
    m_pHost->Key("alt+4");
    QVERIFY(m_pHost->WaitFor("linkhand_Page_Care"));
    QVERIFY(m_pHost->WaitForFocus(TABS));
    restoreFromTheBin();
    goBackToABackup();
    mergeAPair();
    QVERIFY(backToTabs());
    m_pHost->Key("Right");
    QVERIFY(HostDriver::WaitUntil(
        [&] { return m_pHost->Text("linkhand_Care_check_found").startsWith("The store is sound. Contacts: 3"); }));
    m_pHost->Screenshot("care-check.png");
    synchroniseWithAFolder();
    // What was done there shows on the other page without a restart.
    m_pHost->Key("alt+1");
    QVERIFY(rowComes(TABLE, "Ada"));
    QVERIFY(rowComes(TABLE, "Bo"));
    QVERIFY(HostDriver::WaitUntil([&] { return m_pHost->Rows(TABLE) == 3; }));
}

void TestDesktopCare::synchroniseWithAFolder()
{
    const auto shows = [this](const QString& strText) {
        return HostDriver::WaitUntil([&] { return m_pHost->Text("linkhand_Care_sync_last").contains(strText); });
    };
    QVERIFY(backToTabs());
    for (int i = 0; i < 3; ++i)
        m_pHost->Key("Right");
    QVERIFY(shows("Nothing is set up yet."));
    QVERIFY(tabTo("linkhand_Care_sync_kind"));
    m_pHost->Key("Down");
    QVERIFY(m_pHost->WaitFor("linkhand_Care_sync_folder"));
    QVERIFY(tabTo("linkhand_Care_sync_folder"));
    m_pHost->Type(m_pFolder->filePath("cards"));
    QVERIFY(tabTo("linkhand_Care_sync_setup"));
    m_pHost->Key("space");
    QVERIFY(told("Set up."));
    QVERIFY(shows("There has been no sync yet."));
    QVERIFY(HostDriver::WaitUntil([this] { return m_pHost->Widget("linkhand_Care_sync_now").bEnabled; }));
    QVERIFY(tabTo("linkhand_Care_sync_now"));
    m_pHost->Key("space");
    QVERIFY(told("Both sides are the same now."));
    QVERIFY(shows("Other side: 3 added, 0 changed, 0 deleted"));
    m_pHost->Screenshot("care-sync.png");
    QCOMPARE(QDir(m_pFolder->filePath("cards")).entryList(QStringList("*.vcf")).size(), 3);
}

void TestDesktopCare::restoreFromTheBin()
{
    const QString strList = "linkhand_Care_bin_list";
    QVERIFY(rowComes(strList, "Ada"));
    QVERIFY(tabTo("linkhand_Care_bin_search"));
    m_pHost->Type("ada");
    QVERIFY(rowGoes(strList, "Bo"));
    QVERIFY(tabTo(strList));
    m_pHost->Key("ctrl+a");
    QVERIFY(HostDriver::WaitUntil([&] { return m_pHost->Cell(strList, "Ada").bSelected; }));
    m_pHost->Screenshot("care-bin.png");
    QVERIFY(tabTo("linkhand_Care_bin_restore"));
    m_pHost->Key("space");
    QVERIFY(told("Contacts restored: 1"));
    QVERIFY(m_pHost->WaitForFocus(strList));
    QCOMPARE(m_pStore->Contacts("local").size(), 3);
}

void TestDesktopCare::goBackToABackup()
{
    const QString strList = "linkhand_Care_backups_list";
    QVERIFY(backToTabs());
    m_pHost->Key("Right");
    QVERIFY(tabTo("linkhand_Care_backups_make"));
    m_pHost->Key("space");
    QVERIFY(told("The backup is made."));
    QVERIFY(rowComes(strList, "Made by hand"));
    QVERIFY(m_pStore->Run({"undelete", "2"}));
    QVERIFY(m_pStore->Run({"delete", "3"}));
    QVERIFY(backToTabs());
    QVERIFY(tabTo("linkhand_Care_backups_restore"));
    m_pHost->Key("space");
    QVERIFY(m_pHost->WaitForModal());
    QVERIFY(rowComes("linkhand_Restore_list", "Cy"));
    const QString strHead = m_pHost->Text("linkhand_Restore_head");
    QVERIFY2(strHead.contains("come back: 1") && strHead.contains("go: 1"), qPrintable(strHead));
    m_pHost->Screenshot("care-restore.png");
    // Once more with what it asks about undone by hand: Escape leaves all as it is.
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone("linkhand_Restore"));
    QCOMPARE(m_pStore->Contacts("local").size(), 3);
    QVERIFY(m_pHost->WaitForMainWindow());
    QVERIFY(tabTo("linkhand_Care_backups_restore"));
    m_pHost->Key("space");
    QVERIFY(m_pHost->WaitForModal());
    QVERIFY(tabTo("linkhand_Restore_ok"));
    m_pHost->Key("space");
    QVERIFY(told("The phonebook is as it was then."));
    QVERIFY(m_pHost->WaitForMainWindow());
    QVERIFY(m_pStore->Run({"add", "Name=Bo", "Mobile=0170222"}));
}

void TestDesktopCare::mergeAPair()
{
    const QString strList = "linkhand_Care_duplicates_list";
    QVERIFY(backToTabs());
    m_pHost->Key("Right");
    QVERIFY(rowComes(strList, "Cy; cy"));
    QVERIFY(rowComes("linkhand_Care_duplicates_sides", "0170333"));
    m_pHost->Screenshot("care-duplicates.png");
    QVERIFY(tabTo("linkhand_Care_duplicates_merge"));
    m_pHost->Key("space");
    QVERIFY(told("Contacts merged into one: 1"));
    QVERIFY(rowGoes(strList, "Cy"));
}

QTEST_GUILESS_MAIN(TestDesktopCare)
#include "test_desktop_care.moc"
