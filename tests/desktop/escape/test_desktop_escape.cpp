#include <QtTest>

#include "DesktopTest.h"
#include "Hand.h"
#include "Profile.h"
#include "orva/orva_sdk.h"

namespace
{

const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const char* const SEARCH = "AddrBookUIPlugin_SearchBox";

} // namespace

// What is begun and given up: a search put away by Escape, and drags after which tree and table show the same, to the
// mouse as to the keys.
class TestDesktopEscape : public DesktopTest
{
    Q_OBJECT

private slots:
    void init();
    void escapeEmptiesTheSearchBoxAndClosesIt();
    void escapeInAnEmptySearchBoxClosesIt();
    void aDragEndedByEscapeLeavesTheKeysWorking();
    void aDragRefusedLeavesTheKeysWorking();

private:
    bool isLit(const QString& strNode)
    {
        return HostDriver::WaitUntil([&] { return m_pHost->Cell(TREE, strNode).bSelected; });
    }
    bool showsRows(int iRows)
    {
        return HostDriver::WaitUntil([&] { return m_pHost->Rows(TABLE) == iRows; });
    }
    bool openSearch();
    void beginDrag(Hand& hand);
    void checkKeys();

    QScopedPointer<Profile> m_pProfile;
};

void TestDesktopEscape::init()
{
    DesktopTest::init();
    m_pProfile.reset(new Profile);
    QVERIFY(m_pProfile->Import(ORVA_MEMORY_LOCAL, QStringList() << "Name,Mobile,Groups"
                                                                << "Adele Berg,01701,Friends"
                                                                << "Bruno Ahl,01702,Friends"
                                                                << "Carla Diaz,01703,"
                                                                << "David Ek,01704,"));
    m_pProfile->Close();
    QVERIFY2(m_pHost->Start(m_pProfile->Path()), qPrintable(m_pHost->Log()));
    QVERIFY(showsRows(4));
    QTRY_VERIFY(m_pHost->Cell(TREE, "Friends(2)").iColumn == 0 && m_pHost->Cell(TREE, "SIM").iColumn == 0);
}

bool TestDesktopEscape::openSearch()
{
    m_pHost->Key("ctrl+f");
    return m_pHost->WaitForFocus(SEARCH);
}

void TestDesktopEscape::escapeEmptiesTheSearchBoxAndClosesIt()
{
    QVERIFY(m_pHost->ClickCell(TABLE, "Carla Diaz"));
    QVERIFY(openSearch());
    m_pHost->Type("berg");
    QVERIFY(showsRows(1));
    m_pHost->Key("Escape");
    QTRY_COMPARE(m_pHost->Text(SEARCH), QString());
    QVERIFY(showsRows(4)); // the window has heard of it
    QVERIFY(m_pHost->Widget(SEARCH).bFocused);
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone(SEARCH));
    QVERIFY(m_pHost->WaitForFocus(TABLE));
    // The window knows that it is closed: the same key opens it again.
    QVERIFY(openSearch());
}

void TestDesktopEscape::escapeInAnEmptySearchBoxClosesIt()
{
    QVERIFY(m_pHost->ClickCell(TABLE, "Carla Diaz"));
    QVERIFY(openSearch());
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitGone(SEARCH));
    QVERIFY(openSearch());
}

// To a node that takes it.
void TestDesktopEscape::beginDrag(Hand& hand)
{
    const QRect rect = m_pHost->Cell(TABLE, "Carla Diaz", 0).rect;
    hand.Press(QPoint(rect.left() + rect.width() / 5, rect.center().y()));
    hand.MoveTo(m_pHost->Cell(TREE, "SIM").rect.center());
    QVERIFY(isLit("SIM"));
}

// The tree shows what the table shows, and goes on doing so where keys move it.
void TestDesktopEscape::checkKeys()
{
    QVERIFY(isLit("Computer"));
    QCOMPARE(m_pHost->Rows(TABLE), 4);
    QCOMPARE(m_pHost->Cell(TREE, "SIM").strText, QString("SIM card(0/250)"));
    QVERIFY(m_pHost->ClickCell(TREE, "Computer"));
    QVERIFY(m_pHost->WaitForFocus(TREE));
    m_pHost->Key("Down");
    QVERIFY(isLit("Friends"));
    QVERIFY(showsRows(2));
    m_pHost->Key("Up");
    QVERIFY(isLit("Computer"));
    QVERIFY(showsRows(4));
}

void TestDesktopEscape::aDragEndedByEscapeLeavesTheKeysWorking()
{
    {
        Hand hand;
        beginDrag(hand);
        hand.Tap("Escape");
        hand.Release();
    }
    checkKeys();
}

void TestDesktopEscape::aDragRefusedLeavesTheKeysWorking()
{
    {
        Hand hand;
        beginDrag(hand);
        hand.MoveTo(m_pHost->Cell(TREE, "Computer").rect.center());
        QVERIFY(isLit("Computer"));
        hand.Release();
    }
    checkKeys();
}

QTEST_GUILESS_MAIN(TestDesktopEscape)
#include "test_desktop_escape.moc"
