#include <QtTest>

#include "Hand.h"
#include "HostDriver.h"
#include "PbCtl.h"
#include "Profile.h"

namespace
{

const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const TABLE = "AddrBookUIPlugin_ContactTable";

} // namespace

// Contacts dragged from the table to the tree of the real program, with the real mouse.
class TestDesktopDrags : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aRowOfTheRootJoinsAGroup();
    void aRowOfAGroupLeavesItForTheRoot();
    void aRowOfAGroupMovesToAnother();
    void aRowOfAGroupIsCopiedToAnotherWithCtrl();
    void aRowOfAGroupStaysThereWhenDroppedOnTheRootWithCtrl();
    void severalRowsGoTogether();
    void aRowIsCopiedToTheCard();
    void aRowIsCopiedToTheDevice();
    void aCardContactIsCopiedToThePc();
    void theNodeItComesFromRefuses();
    void theEmptyAreaRefuses();
    void aFullCardRefuses();
    void aCardThatFillsOnTheWaySaysHowManyWentIn();
    void aPressOnTheRightHalfDragsNothing();
    void aDragThatLeavesAndComesBackIsDropped();
    void escapeCancels();

private:
    bool shows(const QString& strNode)
    {
        return HostDriver::WaitUntil([&] { return nodeText(strNode) == strNode; });
    }
    QString nodeText(const QString& strBegin) { return m_pHost->Cell(TREE, strBegin.section('(', 0, 0)).strText; }
    QPoint node(const QString& strBegin) { return m_pHost->Cell(TREE, strBegin).rect.center(); }
    bool isLit(const QString& strBegin);
    bool open(const QString& strNode, int iRows);

    // The left half of a cell is where a drag can begin.
    QPoint handle(const QString& strContact);
    void drag(const QString& strContact, const QString& strNode, const QString& strKey = QString());
    bool answerBox();
    bool restartWithCardContacts(int iCount);
    void selectThree();

    QScopedPointer<Profile> m_pProfile;
    QScopedPointer<HostDriver> m_pHost;
};

void TestDesktopDrags::init()
{
    m_pProfile.reset(new Profile);
    m_pHost.reset(new HostDriver);
    QVERIFY(m_pProfile->Add(4, "Anna", "+49170", 8));
    QVERIFY(m_pProfile->Add(0, "Card", "0171", 2));
    QVERIFY(m_pProfile->Add(1, "Unit", "0172", 1));
    QVERIFY(m_pProfile->AddGroup("Friends", 0, QList<int>() << 1 << 2) != 0);
    QVERIFY(m_pProfile->AddGroup("Work", 0, QList<int>()) != 0);
    m_pProfile->Close();
    QVERIFY2(m_pHost->Start(m_pProfile->Path()), qPrintable(m_pHost->Log()));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 8);
    QVERIFY(shows("Friends(2)") && shows("Work(0)"));
}

void TestDesktopDrags::cleanup()
{
    if (QTest::currentTestFailed())
        m_pHost->Screenshot(QStringLiteral("%1.png").arg(QTest::currentTestFunction()));
    m_pHost->WaitForMainWindow();
    QVERIFY2(m_pHost->Quit() >= 0, qPrintable(m_pHost->Log()));
    QVERIFY2(m_pHost->ErrorLines().isEmpty(), qPrintable(m_pHost->ErrorLines().join('\n')));
}

bool TestDesktopDrags::isLit(const QString& strBegin)
{
    return HostDriver::WaitUntil([&] { return m_pHost->Cell(TREE, strBegin).bSelected; });
}

bool TestDesktopDrags::open(const QString& strNode, int iRows)
{
    return m_pHost->ClickCell(TREE, strNode) && HostDriver::WaitUntil([&] { return m_pHost->Rows(TABLE) == iRows; });
}

QPoint TestDesktopDrags::handle(const QString& strContact)
{
    const QRect rect = m_pHost->Cell(TABLE, strContact, 0).rect;
    return QPoint(rect.left() + rect.width() / 5, rect.center().y());
}

void TestDesktopDrags::drag(const QString& strContact, const QString& strNode, const QString& strKey)
{
    Hand hand;
    hand.Press(handle(strContact));
    hand.MoveTo(node(strNode));
    QVERIFY(isLit(strNode));
    if (!strKey.isEmpty())
        hand.Hold(strKey);
    hand.Release();
}

bool TestDesktopDrags::answerBox()
{
    if (!m_pHost->WaitFor("modal/QPushButton") || !m_pHost->WaitForModal())
        return false;
    m_pHost->Key("Return");
    return m_pHost->WaitGone("modal");
}

bool TestDesktopDrags::restartWithCardContacts(int iCount)
{
    PbCtl store(m_pProfile->Path());
    QString strText = "Name,Number\n";
    for (int i = store.Used("card"); i < iCount; ++i)
        strText += QStringLiteral("More %1,0173%1\n").arg(i, 4, 10, QLatin1Char('0'));
    return m_pHost->Quit() >= 0 && store.Import("card", strText) && store.Used("card") == iCount &&
           m_pHost->Start(m_pProfile->Path()) && shows(QStringLiteral("SIM card(%1/250)").arg(iCount)) &&
           HostDriver::WaitUntil([this] { return m_pHost->Rows(TABLE) == 8; });
}

void TestDesktopDrags::selectThree()
{
    m_pHost->ClickAt(handle("Anna 0003"));
    m_pHost->ClickAtHolding("ctrl", handle("Anna 0004"));
    m_pHost->ClickAtHolding("ctrl", handle("Anna 0007"));
    QTRY_VERIFY(m_pHost->Cell(TABLE, "Anna 0003").bSelected && m_pHost->Cell(TABLE, "Anna 0004").bSelected &&
                m_pHost->Cell(TABLE, "Anna 0007").bSelected);
}

void TestDesktopDrags::aRowOfTheRootJoinsAGroup()
{
    drag("Anna 0005", "Friends");
    QVERIFY(shows("Friends(3)"));
    QVERIFY(shows("Computer(8)"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 3); // the table shows the group now
}

void TestDesktopDrags::aRowOfAGroupLeavesItForTheRoot()
{
    QVERIFY(open("Friends", 2));
    drag("Anna 0001", "Computer");
    QVERIFY(shows("Friends(1)"));
    QVERIFY(shows("Computer(8)"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 8);
}

void TestDesktopDrags::aRowOfAGroupMovesToAnother()
{
    QVERIFY(open("Friends", 2));
    drag("Anna 0001", "Work");
    QVERIFY(shows("Work(1)"));
    QVERIFY(shows("Friends(1)"));
}

void TestDesktopDrags::aRowOfAGroupIsCopiedToAnotherWithCtrl()
{
    QVERIFY(open("Friends", 2));
    drag("Anna 0001", "Work", "ctrl");
    QVERIFY(shows("Work(1)"));
    QVERIFY(shows("Friends(2)"));
}

void TestDesktopDrags::aRowOfAGroupStaysThereWhenDroppedOnTheRootWithCtrl()
{
    QVERIFY(open("Friends", 2));
    drag("Anna 0001", "Computer", "ctrl");
    QTRY_COMPARE(m_pHost->Rows(TABLE), 8);
    QVERIFY(shows("Friends(2)"));
}

void TestDesktopDrags::severalRowsGoTogether()
{
    selectThree();
    drag("Anna 0004", "Work");
    QVERIFY(shows("Work(3)"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 3);
    QVERIFY(m_pHost->Cell(TABLE, "Anna 0007", 0).iColumn == 0);
}

void TestDesktopDrags::aRowIsCopiedToTheCard()
{
    drag("Anna 0006", "SIM");
    QVERIFY(shows("SIM card(3/250)"));
    QVERIFY(answerBox());
    QVERIFY(shows("Computer(8)"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 3);
    QVERIFY(m_pHost->Cell(TABLE, "Anna 0006", 0).iColumn == 0);
}

void TestDesktopDrags::aRowIsCopiedToTheDevice()
{
    drag("Anna 0006", "Device");
    QVERIFY(shows("Device(2/500)"));
    QVERIFY(answerBox());
    QVERIFY(shows("Computer(8)"));
    QTRY_COMPARE(m_pHost->Rows(TABLE), 2);
}

void TestDesktopDrags::aCardContactIsCopiedToThePc()
{
    QVERIFY(open("SIM", 2));
    drag("Card 0001", "Work");
    QVERIFY(shows("Work(1)"));
    QVERIFY(answerBox());
    QVERIFY(shows("Computer(9)"));
    QVERIFY(shows("SIM card(2/250)"));
}

void TestDesktopDrags::theNodeItComesFromRefuses()
{
    Hand hand;
    hand.Press(handle("Anna 0002"));
    hand.MoveTo(node("Work"));
    QVERIFY(isLit("Work"));
    hand.MoveTo(node("Computer"));
    QVERIFY(isLit("Computer"));
    hand.Release();
    QVERIFY(shows("Work(0)") && shows("Friends(2)"));
    QCOMPARE(m_pHost->Rows(TABLE), 8);
    drag("Anna 0002", "Work");
    QVERIFY(shows("Work(1)"));
}

void TestDesktopDrags::theEmptyAreaRefuses()
{
    const QRect tree = m_pHost->Widget(TREE).rect;
    Hand hand;
    hand.Press(handle("Anna 0002"));
    hand.MoveTo(node("Work"));
    QVERIFY(isLit("Work"));
    hand.MoveTo(QPoint(tree.center().x(), tree.bottom() - 20));
    QVERIFY(isLit("Computer"));
    hand.Release();
    QVERIFY(shows("Work(0)"));
    QCOMPARE(m_pHost->Rows(TABLE), 8);
}

void TestDesktopDrags::aFullCardRefuses()
{
    QVERIFY(restartWithCardContacts(250));
    Hand hand;
    hand.Press(handle("Anna 0002"));
    hand.MoveTo(node("Work"));
    QVERIFY(isLit("Work"));
    hand.MoveTo(node("SIM"));
    hand.Release();
    QVERIFY(shows("SIM card(250/250)"));
    QVERIFY(!m_pHost->Exists("modal"));
    QCOMPARE(m_pHost->Rows(TABLE), 8);
    // The next drag works.
    drag("Anna 0002", "Device");
    QVERIFY(shows("Device(2/500)"));
    QVERIFY(answerBox());
    QCOMPARE(PbCtl(m_pProfile->Path()).Used("card"), 250);
}

void TestDesktopDrags::aCardThatFillsOnTheWaySaysHowManyWentIn()
{
    QVERIFY(restartWithCardContacts(248));
    selectThree();
    drag("Anna 0004", "SIM");
    QVERIFY(m_pHost->WaitFor("linkhand_MessageBox"));
    QCOMPARE(m_pHost->Text("linkhand_MessageBox"), QStringLiteral("The memory is full. Entries copied: 2"));
    QVERIFY(answerBox());
    QVERIFY(shows("SIM card(250/250)"));
    QVERIFY(shows("Computer(8)")); // nothing is lost
    QTRY_COMPARE(m_pHost->Rows(TABLE), 250);
    PbCtl store(m_pProfile->Path());
    QCOMPARE(store.Used("card"), 250);
    QCOMPARE(store.Used("local"), 8);
}

void TestDesktopDrags::aPressOnTheRightHalfDragsNothing()
{
    const QRect rect = m_pHost->Cell(TABLE, "Anna 0002", 0).rect;
    Hand hand;
    hand.Press(QPoint(rect.right() - 5, rect.center().y()));
    hand.MoveTo(node("Work"));
    hand.Release();
    QVERIFY(shows("Work(0)"));
    QVERIFY(m_pHost->Cell(TREE, "Computer").bSelected);
}

void TestDesktopDrags::aDragThatLeavesAndComesBackIsDropped()
{
    Hand hand;
    hand.Press(handle("Anna 0002"));
    hand.MoveTo(node("Work"));
    QVERIFY(isLit("Work"));
    hand.MoveTo(QPoint(1360, 890)); // a corner of the screen
    QVERIFY(isLit("Computer"));
    hand.MoveTo(node("Work"));
    QVERIFY(isLit("Work"));
    hand.Release();
    QVERIFY(shows("Work(1)"));
}

void TestDesktopDrags::escapeCancels()
{
    {
        Hand hand;
        hand.Press(handle("Anna 0002"));
        hand.MoveTo(node("Work"));
        QVERIFY(isLit("Work"));
        hand.Tap("Escape");
        hand.Release();
    }
    QVERIFY(shows("Work(0)"));
    // The next click and the next drag work.
    QVERIFY(open("Friends", 2));
    drag("Anna 0001", "Work");
    QVERIFY(shows("Work(1)"));
    QVERIFY(shows("Friends(1)"));
}

QTEST_GUILESS_MAIN(TestDesktopDrags)
#include "test_desktop_drags.moc"
