#include <QtTest>

#include "DesktopTest.h"

namespace
{

const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const SEARCH = "AddrBookUIPlugin_SearchBox";
const char* const CHANGED = "linkhand_StatusArea_changed";
const char* const NOTICE = "linkhand_StatusArea_notice";

} // namespace

// What another program writes into the PC's phonebook while the window shows it.
class TestDesktopLive : public DesktopStoreTest
{
    Q_OBJECT

private slots:
    void init();
    void whatAnotherProgramWritesShowsByItself();
    void groupsChangedElsewhereShowByThemselves();
    void aGroupThatIsCurrentIsReadAgain();
    void aCurrentGroupThatGoesLeavesThePhonebookCurrent();
    void aSelectionStaysAndAButtonShowsWhatIsNew();
    void aContactThatWentIsSaidWhenItIsToBeEdited();
    void aSearchStaysUntilItIsCleared();
    void ownChangesOfferNothing();

private:
    bool rowComes(const QString& strName)
    {
        return HostDriver::WaitUntil([&] { return m_pHost->Cell(TABLE, strName).iColumn >= 0; });
    }
    bool nodeComes(const QString& strText)
    {
        return HostDriver::WaitUntil([&] { return m_pHost->Cell(TREE, strText).iColumn >= 0; });
    }
    bool nodeGoes(const QString& strText)
    {
        return HostDriver::WaitUntil([&] { return m_pHost->Cell(TREE, strText).iColumn < 0; });
    }
    bool rowGoes(const QString& strName)
    {
        return HostDriver::WaitUntil([&] { return m_pHost->Cell(TABLE, strName).iColumn < 0; });
    }
};

void TestDesktopLive::init()
{
    DesktopStoreTest::init();
    Expect("ORVA_PBSrv_GetAddrRecord returned|GetRecord: no record"); // what the SDK refuses is warned about
    QVERIFY(m_pStore->Import("local", "Name,Mobile\nAda,0170111\nBo,0170222\n"));
    QVERIFY2(m_pHost->Start(DataFolder()), qPrintable(m_pHost->Log()));
    QVERIFY(rowComes("Ada") && rowComes("Bo"));
}

void TestDesktopLive::whatAnotherProgramWritesShowsByItself()
{
    QVERIFY(m_pStore->Run({"add", "Name=Cy", "Mobile=0170333"}));
    QVERIFY(rowComes("Cy"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 3);
    QVERIFY(m_pStore->Run({"delete", "1"}));
    QVERIFY(rowGoes("Ada"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 2);
    QVERIFY(!m_pHost->Exists(CHANGED));
}

void TestDesktopLive::groupsChangedElsewhereShowByThemselves()
{
    QVERIFY(m_pStore->Run({"group", "add", "Choir"}));
    QVERIFY(nodeComes("Choir(0)"));
    QVERIFY(m_pStore->Run({"add", "Name=Cy", "Mobile=0170333", "--group", "Choir"}));
    QVERIFY(nodeComes("Choir(1)"));
    QVERIFY(m_pStore->Run({"group", "rename", "Choir", "Band"}));
    QVERIFY(nodeComes("Band(1)"));
    QVERIFY(nodeGoes("Choir"));
    QVERIFY(m_pStore->Run({"group", "delete", "Band"}));
    QVERIFY(nodeGoes("Band"));
    QVERIFY(rowComes("Cy"));
}

void TestDesktopLive::aGroupThatIsCurrentIsReadAgain()
{
    QVERIFY(m_pStore->Run({"group", "add", "Choir"}));
    QVERIFY(m_pStore->Run({"group", "add", "Dancers"}));
    QVERIFY(nodeComes("Dancers(0)"));
    QVERIFY(m_pHost->ClickCell(TREE, "Choir"));
    QVERIFY(rowGoes("Ada"));
    QVERIFY(m_pStore->Run({"add", "Name=Cy", "Mobile=0170333", "--group", "Choir"}));
    QVERIFY(rowComes("Cy"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 1);
    QVERIFY(m_pHost->Cell(TREE, "Choir").bSelected);
}

void TestDesktopLive::aCurrentGroupThatGoesLeavesThePhonebookCurrent()
{
    QVERIFY(m_pStore->Run({"group", "add", "Choir"}));
    QVERIFY(nodeComes("Choir(0)"));
    QVERIFY(m_pHost->ClickCell(TREE, "Choir"));
    QVERIFY(rowGoes("Ada"));
    QVERIFY(m_pStore->Run({"group", "delete", "Choir"}));
    QVERIFY(nodeGoes("Choir"));
    QVERIFY(rowComes("Ada"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 2);
}

void TestDesktopLive::aSelectionStaysAndAButtonShowsWhatIsNew()
{
    QVERIFY(m_pHost->ClickCell(TABLE, "Bo"));
    QVERIFY(HostDriver::WaitUntil([&] { return m_pHost->Cell(TABLE, "Bo").bSelected; }));
    QVERIFY(m_pStore->Run({"add", "Name=Cy", "Mobile=0170333"}));
    QVERIFY(m_pHost->WaitFor(CHANGED));
    QCOMPARE(m_pHost->Text(CHANGED), QString("Changed elsewhere: show"));
    QVERIFY(m_pHost->Cell(TABLE, "Bo").bSelected);
    QTRY_COMPARE(m_pHost->Rows(TABLE), 2);
    m_pHost->Screenshot("changed-elsewhere.png");
    QVERIFY(m_pHost->Click(CHANGED));
    QVERIFY(rowComes("Cy"));
    QVERIFY(m_pHost->WaitGone(CHANGED));
}

void TestDesktopLive::aContactThatWentIsSaidWhenItIsToBeEdited()
{
    QVERIFY(m_pHost->ClickCell(TABLE, "Bo"));
    QVERIFY(HostDriver::WaitUntil([&] { return m_pHost->Cell(TABLE, "Bo").bSelected; }));
    QVERIFY(m_pStore->Run({"delete", "2"}));
    QVERIFY(m_pHost->WaitFor(CHANGED));
    QVERIFY2(!m_pHost->Text(NOTICE).contains("no longer"), qPrintable(m_pHost->Text(NOTICE)));
    m_pHost->Key("ctrl+e");
    QTRY_COMPARE(m_pHost->Text(NOTICE), QString("This contact is no longer there: another program has deleted it"));
    QVERIFY(m_pHost->Click(CHANGED));
    QVERIFY(rowGoes("Bo"));
}

void TestDesktopLive::aSearchStaysUntilItIsCleared()
{
    m_pHost->Key("ctrl+f");
    QVERIFY(m_pHost->WaitForFocus(SEARCH));
    m_pHost->Type("Bo");
    QVERIFY(rowGoes("Ada"));
    QVERIFY(m_pStore->Run({"add", "Name=Boris", "Mobile=0170333"}));
    QVERIFY(m_pHost->WaitFor(CHANGED));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 1);
    m_pHost->Key("BackSpace");
    m_pHost->Key("BackSpace");
    QVERIFY(rowComes("Boris"));
    QVERIFY(rowComes("Ada"));
    QVERIFY(m_pHost->WaitGone(CHANGED));
}

void TestDesktopLive::ownChangesOfferNothing()
{
    QVERIFY(m_pHost->ClickCell(TABLE, "Bo"));
    m_pHost->Key("Delete");
    QVERIFY(m_pHost->WaitForModal());
    QVERIFY(m_pHost->Click("linkhand_MessageBox/QPushButton[0]"));
    QVERIFY(rowGoes("Bo"));
    QVERIFY(m_pHost->ClickCell(TABLE, "Ada"));
    // What another program writes then is told of once, and not before.
    QVERIFY(!m_pHost->Exists(CHANGED));
    QVERIFY(m_pStore->Run({"add", "Name=Cy", "Mobile=0170333"}));
    QVERIFY(m_pHost->WaitFor(CHANGED));
}

QTEST_GUILESS_MAIN(TestDesktopLive)
#include "test_desktop_live.moc"
