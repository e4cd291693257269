#include <QAbstractButton>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>
#include <QtTest>

#include "PhonebookSetup.h"

// Keys of the search box, tree and table after a drag, counts, and what comes back after a restart.
class TestHostAids : public PhonebookSetup
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { start(); }
    void cleanup() { stop(); }
    void escapeEmptiesTheSearchAsAnEdit();
    void escapeInAnEmptySearchPutsItAwayByItsButton();
    void downInTheSearchGoesToTheFirstHit();
    void keysOfTheTreeReachTheTableAgainAfterADragWithoutADrop();
    void aNodeThatTheTableShowsIsNotReadAgain();
    void whatIsShownFoundAndSelectedIsCounted();
    void countsGoWithThePhonebook();
    void columnsAndSplittersComeBack();
    void columnsOfAWiderMemoryAreKept();
    void withoutSortPreservationColumnsBeginAsEver();
    void whatSomebodyWroteIntoTheFileIsPassedOver();

private:
    void setFile(const QString& strKey, const QVariant& value)
    {
        QSettings(m_folder.path() + "/s.ini", QSettings::IniFormat).setValue(strKey, value);
    }
    void dragOver(QTreeWidgetItem* pItem);
    QTreeWidgetItem* group() { return tree()->topLevelItem(0)->child(0); }
};

void TestHostAids::initTestCase()
{
    SimulatedHardware::SetDevice(true);
    SimulatedHardware::SetCard(true);
    ORVA_Sim_WaitEvents();
    addContact("Ada Hartley", "111");
    addContact("Bob", "222");
    ORVA_PBSrv_AddAddrToGroup(addGroup("Friends"), addContact("Cid", "333"), ORVA_MEMORY_LOCAL);
}

void TestHostAids::escapeEmptiesTheSearchAsAnEdit()
{
    PhonebookParts::SearchButton(page())->click();
    QTest::keyClicks(search(), "bob");
    QTRY_COMPARE(names(), QStringList("Bob"));
    QSignalSpy edited(search(), SIGNAL(textEdited(QString)));
    QTest::keyClick(search(), Qt::Key_Escape);
    QCOMPARE(edited.count(), 1);
    QCOMPARE(edited.first().first().toString(), QString());
    QCOMPARE(search()->text(), QString());
    QVERIFY(search()->isVisible());
    QTRY_VERIFY(isRead() && table()->rowCount() == 3);
}

void TestHostAids::escapeInAnEmptySearchPutsItAwayByItsButton()
{
    QAbstractButton* pButton = PhonebookParts::SearchButton(page());
    pButton->click();
    QSignalSpy clicked(pButton, SIGNAL(clicked()));
    QTest::keyClick(search(), Qt::Key_Escape);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(!search()->isVisible());
    // The window knows: the next click shows the box.
    pButton->click();
    QVERIFY(search()->isVisible());
}

void TestHostAids::downInTheSearchGoesToTheFirstHit()
{
    PhonebookParts::SearchButton(page())->click();
    QTest::keyClicks(search(), "bob");
    QTRY_COMPARE(names(), QStringList("Bob"));
    QTRY_VERIFY(isRead());
    QVERIFY(table()->selectedItems().isEmpty());
    QTest::keyClick(search(), Qt::Key_Down);
    QCOMPARE(table()->currentRow(), 0);
    QVERIFY(!table()->selectedItems().isEmpty());
    QCOMPARE(page().window()->focusWidget(), static_cast<QWidget*>(table()));
}

// Offscreen a drag ends as soon as it has begun, so that its events are made here.
void TestHostAids::dragOver(QTreeWidgetItem* pItem)
{
    QMimeData* pData = new QMimeData;
    pData->setData("Text/stringids", "1-10-1");
    pData->setData("Text/colordata", QVariant(QColor(Qt::transparent)).toByteArray());
    QDrag* pDrag = new QDrag(table());
    pDrag->setMimeData(pData);
    const QPoint point = tree()->visualItemRect(pItem).center();
    QDragEnterEvent enter(point, Qt::CopyAction, pData, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(tree()->viewport(), &enter);
    QDragMoveEvent move(point, Qt::CopyAction, pData, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(tree()->viewport(), &move);
    QCOMPARE(tree()->currentItem(), pItem);
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(tree()->viewport(), &leave);
    delete pDrag;
}

void TestHostAids::keysOfTheTreeReachTheTableAgainAfterADragWithoutADrop()
{
    QVERIFY(isRead());
    QCOMPARE(table()->rowCount(), 3);
    tree()->topLevelItem(0)->setExpanded(true);
    dragOver(group());
    // Where the drag left the tree is what the table shows, and so it is after each key.
    tree()->setFocus();
    tree()->setMouseTracking(false);
    QTest::keyClick(tree(), Qt::Key_Up);
    QTest::keyClick(tree(), Qt::Key_Down);
    QTRY_COMPARE(tree()->currentItem(), group());
    QTRY_VERIFY(isRead() && names() == QStringList("Cid"));
    QTest::keyClick(tree(), Qt::Key_Up);
    QTRY_VERIFY(isRead() && table()->rowCount() == 3);
}

void TestHostAids::aNodeThatTheTableShowsIsNotReadAgain()
{
    tree()->topLevelItem(0)->setExpanded(true);
    dragOver(group());
    tree()->setCurrentItem(tree()->topLevelItem(0));
    QTRY_VERIFY(isRead());
    QCoreApplication::processEvents();
    const QPointer<QTableWidget> pTable(table());
    tree()->clearSelection();
    tree()->setCurrentItem(tree()->topLevelItem(0));
    QCoreApplication::processEvents();
    QVERIFY(!pTable.isNull());
    QCOMPARE(table(), pTable.data());
}

void TestHostAids::whatIsShownFoundAndSelectedIsCounted()
{
    const char* const COUNTS = "linkhand_StatusArea_counts";
    QTRY_COMPARE(shown(COUNTS), QString("Contacts: 3"));
    table()->selectAll();
    QTRY_COMPARE(shown(COUNTS), QString("Contacts: 3   Selected: 3"));
    table()->clearSelection();
    QTRY_COMPARE(shown(COUNTS), QString("Contacts: 3"));
    PhonebookParts::SearchButton(page())->click();
    QTest::keyClicks(search(), "b");
    QTRY_COMPARE(shown(COUNTS), QString("Found: 1"));
    QTest::keyClick(search(), Qt::Key_Escape);
    QTRY_COMPARE(shown(COUNTS), QString("Contacts: 3"));
    // Also of a table that has come since.
    QTRY_VERIFY(isRead());
    table()->selectRow(1);
    QTRY_COMPARE(shown(COUNTS), QString("Contacts: 3   Selected: 1"));
    // A row that comes and goes by itself takes no selection along. It is empty: what cells hold is the plug-in's.
    table()->insertRow(3);
    QTRY_COMPARE(shown(COUNTS), QString("Contacts: 4   Selected: 1"));
    table()->removeRow(3);
    QTRY_COMPARE(shown(COUNTS), QString("Contacts: 3   Selected: 1"));
}

void TestHostAids::countsGoWithThePhonebook()
{
    const char* const COUNTS = "linkhand_StatusArea_counts";
    QTRY_VERIFY(!shown(COUNTS).isEmpty());
    m_pWindow->ShowPage("Messages");
    QTRY_VERIFY(shown(COUNTS).isEmpty());
    m_pWindow->ShowPage(LINKHAND_ADDRBOOK_NAME);
    QTRY_VERIFY(!shown(COUNTS).isEmpty());
}

void TestHostAids::columnsAndSplittersComeBack()
{
    table()->setColumnWidth(0, 211);
    table()->setColumnWidth(3, 77);
    QSplitter* pMain = PhonebookParts::MainSplitter(page());
    QSplitter* pPreview = PhonebookParts::PreviewSplitter(page());
    pMain->setSizes(QList<int>() << 300 << pMain->width() - 304);
    pPreview->setSizes(QList<int>() << 200 << pPreview->height() - 204);
    const QList<int> listMain = pMain->sizes();
    const QList<int> listPreview = pPreview->sizes();
    stop();
    start();
    QCOMPARE(table()->columnWidth(0), 211);
    QCOMPARE(table()->columnWidth(1), 100);
    QCOMPARE(table()->columnWidth(3), 77);
    QCOMPARE(PhonebookParts::MainSplitter(page())->sizes(), listMain);
    QCOMPARE(PhonebookParts::PreviewSplitter(page())->sizes(), listPreview);
    QCOMPARE(m_iMoved, 1);
    // And the table keeps them from node to node.
    tree()->topLevelItem(0)->setExpanded(true);
    tree()->setCurrentItem(group());
    QTRY_VERIFY(isRead() && table()->rowCount() == 1);
    QCOMPARE(table()->columnWidth(0), 211);
    // Once is enough: what the user does now stays.
    table()->setColumnWidth(0, 90);
    stop();
    start();
    QCOMPARE(table()->columnWidth(0), 90);
}

void TestHostAids::columnsOfAWiderMemoryAreKept()
{
    table()->setColumnWidth(0, 120);
    table()->setColumnWidth(4, 140);
    stop();
    start();
    QTreeWidgetItem* pCard = tree()->topLevelItem(1);
    QVERIFY(pCard != nullptr);
    tree()->setCurrentItem(pCard);
    QTRY_VERIFY(isRead() && table()->columnCount() == 2);
    table()->setColumnWidth(0, 130);
    stop();
    start();
    QCOMPARE(table()->columnWidth(0), 130);
    QCOMPARE(table()->columnWidth(4), 140);
}

void TestHostAids::withoutSortPreservationColumnsBeginAsEver()
{
    table()->setColumnWidth(0, 222);
    stop();
    setFile("addrbook/sortpreserve", "0");
    start();
    QCOMPARE(table()->columnWidth(0), 100);
    table()->setColumnWidth(0, 55);
    stop();
    setFile("addrbook/sortpreserve", "1");
    start();
    QCOMPARE(table()->columnWidth(0), 222);
}

void TestHostAids::whatSomebodyWroteIntoTheFileIsPassedOver()
{
    stop();
    setFile("layout/ContactTable", QStringList() << "0"
                                                 << "99999"
                                                 << "150");
    setFile("layout/splitterMain", QStringList() << "wide"
                                                 << "2");
    setFile("layout/splitterPreview", QStringList() << "0"
                                                    << "0");
    start();
    QCOMPARE(table()->columnWidth(0), 100);
    QCOMPARE(table()->columnWidth(1), 100);
    QCOMPARE(table()->columnWidth(2), 150);
    QVERIFY(PhonebookParts::MainSplitter(page())->sizes().first() > 0);
    QVERIFY(PhonebookParts::PreviewSplitter(page())->sizes().last() > 0);
}

QTEST_MAIN(TestHostAids)
#include "test_host_aids.moc"
