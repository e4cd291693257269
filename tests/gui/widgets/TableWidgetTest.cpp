#include <QScrollBar>
#include <QSignalSpy>

#include "TestTable.h"
#include "fakecore/FakeCore.h"
#include "fakesdk/FakeSdk.h"

// The mouse on the contact table: the drag from the left half of a cell, what it carries, clicks on empty space.
class TableWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<QTableWidgetItem*>(); }
    void init()
    {
        FakeCore::reset();
        FakeSdk::reset();
        table = std::make_unique<TestTable>();
        table->addContact(12, 3);
        table->addContact(7, 3);
        table->addContact(9, 3);
        table->open();
    }
    void cleanup()
    {
        table.reset();
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void aPressOnEmptyAreaKeepsTheDragTextAndClicksNothing();
    void aReleaseOnEmptyAreaTellsTheButton();
    void aReleaseOnARowTellsNothing();
    void theClickIsToldAtThePressAndOnceMoreAtTheRelease();
    void aDragCarriesAllRowsSelectedAtThePress();
    void aDragOfOneRowCarriesThatRow();
    void aDragFromARootCarriesGroupZero();
    void rangesStandInTheOrderOfTheSelection();
    void theMarkOfOriginIsAValidColour();
    void aPressOnTheRightHalfKeepsTheDragTextAndItsMoveStartsNoDrag();
    void aMoveFromTheRightHalfSelectsRows();
    void aMoveFromTheLeftHalfSelectsNoFurtherRows();
    void aShortMoveStartsNoDragAndDoesNotReachTheBaseClass();
    void aMoveWithoutTheLeftButtonStartsNoDrag();
    void theRightButtonBuildsNoDragText();
    void theLeftHalfOfEachColumnCounts_data();
    void theLeftHalfOfEachColumnCounts();
    void idsComeFromTheFirstColumn();
    void inARightToLeftLayoutPointsAreMeasuredFromTheRightEdge_data();
    void inARightToLeftLayoutPointsAreMeasuredFromTheRightEdge();
    void theHorizontalScrollPositionIsNotTakenIntoAccount();
    void aCellWithoutDataEndsTheTextWhereItStands_data();
    void aCellWithoutDataEndsTheTextWhereItStands();
    void aRowWithoutAFirstCellIsPassedOver();
    void aDoubleClickOnARowIsToldOnceAndOpensNoEditor();
    void aDoubleClickOnEmptyAreaTellsNothing();
    void theTargetOfADragIsHandedOn();
    void theTargetOfADragIsNotHandedOnDuringShutdown();
    void duringShutdownClicksDoNothing();
    void aMoveDuringShutdownStillStartsADrag();
    void aNullEventDoesNothing();

private:
    std::unique_ptr<TestTable> table;
};

void TableWidgetTest::aPressOnEmptyAreaKeepsTheDragTextAndClicksNothing()
{
    table->press(table->leftHalf(0));
    QCOMPARE(table->m_strDragData, QString("12-13-1"));
    QSignalSpy clicked(table.get(), SIGNAL(itemClicked(QTableWidgetItem*)));
    table->press(table->emptyArea());
    QCOMPARE(table->m_strDragData, QString("12-13-1"));
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(table->m_ptPress, table->emptyArea());
}

void TableWidgetTest::aReleaseOnEmptyAreaTellsTheButton()
{
    QSignalSpy empty(table.get(), SIGNAL(emptyAreaRightClicked(bool)));
    table->press(table->emptyArea());
    table->release(table->emptyArea());
    QCOMPARE(empty.count(), 1);
    QCOMPARE(empty.takeFirst().at(0).toBool(), false);
    table->press(table->emptyArea(), Qt::RightButton);
    table->release(table->emptyArea(), Qt::RightButton);
    QCOMPARE(empty.count(), 1);
    QCOMPARE(empty.takeFirst().at(0).toBool(), true);
}

void TableWidgetTest::aReleaseOnARowTellsNothing()
{
    QSignalSpy empty(table.get(), SIGNAL(emptyAreaRightClicked(bool)));
    table->press(table->rightHalf(1));
    table->release(table->rightHalf(1));
    QCOMPARE(empty.count(), 0);
}

void TableWidgetTest::theClickIsToldAtThePressAndOnceMoreAtTheRelease()
{
    QSignalSpy clicked(table.get(), SIGNAL(itemClicked(QTableWidgetItem*)));
    table->press(table->rightHalf(1, 2));
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.at(0).at(0).value<QTableWidgetItem*>(), table->item(1, 2));
    QCOMPARE(table->selectedRows(), QList<int>{1}); // the selection was up to date
    table->release(table->rightHalf(1, 2));
    QCOMPARE(clicked.count(), 2);
}

void TableWidgetTest::aDragCarriesAllRowsSelectedAtThePress()
{
    table->selectRows({0, 1});
    table->press(table->leftHalf(1));
    table->selectRows({2}); // too late
    table->move(table->leftHalf(1) + QPoint(0, 60));
    QCOMPARE(table->drags().size(), 1);
    QCOMPARE(table->dragged("Text/stringids"), QByteArray("12-13-17-13-1"));
}

void TableWidgetTest::aDragOfOneRowCarriesThatRow()
{
    table->press(table->leftHalf(2));
    table->move(table->leftHalf(2) + QPoint(60, 0));
    QCOMPARE(table->dragged("Text/stringids"), QByteArray("9-13-1"));
    QCOMPARE(table->drags().last()->source(), table.get());
}

void TableWidgetTest::aDragFromARootCarriesGroupZero()
{
    TestTable root;
    root.addContact(12, 0);
    root.addContact(7, 0);
    root.open();
    root.selectRows({0, 1});
    root.press(root.leftHalf(0));
    QCOMPARE(root.m_strDragData, QString("12-10-17-10-1"));
}

void TableWidgetTest::rangesStandInTheOrderOfTheSelection()
{
    table->selectRows({2, 0});
    QCOMPARE(table->selectedRanges().size(), 2);
    QString expected;
    for (const QTableWidgetSelectionRange& range : table->selectedRanges())
        expected += range.topRow() == 0 ? "12-13-1" : "9-13-1";
    table->press(table->leftHalf(0));
    QCOMPARE(table->m_strDragData, expected);
    QCOMPARE(expected.count("-1"), 4);
}

void TableWidgetTest::theMarkOfOriginIsAValidColour()
{
    table->press(table->leftHalf(0));
    table->move(table->leftHalf(0) + QPoint(60, 0));
    const QByteArray mark = table->dragged("Text/colordata");
    QCOMPARE(mark, QVariant(QColor(Qt::transparent)).toByteArray());
    QVERIFY(QVariant(mark).value<QColor>().isValid());
    QCOMPARE(table->drags().last()->mimeData()->formats(), (QStringList{"Text/stringids", "Text/colordata"}));
}

void TableWidgetTest::aPressOnTheRightHalfKeepsTheDragTextAndItsMoveStartsNoDrag()
{
    table->press(table->leftHalf(0));
    table->release(table->leftHalf(0));
    table->press(table->rightHalf(1));
    QCOMPARE(table->m_strDragData, QString("12-13-1"));
    table->move(table->leftHalf(1)); // the press counts, not where the mouse is now
    QCOMPARE(table->drags().size(), 0);
}

void TableWidgetTest::aMoveFromTheRightHalfSelectsRows()
{
    table->press(table->rightHalf(0));
    table->move(table->rightHalf(1));
    table->move(table->rightHalf(2));
    QCOMPARE(table->selectedRows(), (QList<int>{0, 1, 2}));
}

void TableWidgetTest::aMoveFromTheLeftHalfSelectsNoFurtherRows()
{
    table->press(table->leftHalf(0));
    table->move(table->leftHalf(1));
    table->move(table->leftHalf(2));
    QCOMPARE(table->selectedRows(), QList<int>{0});
}

void TableWidgetTest::aShortMoveStartsNoDragAndDoesNotReachTheBaseClass()
{
    const QPoint start = table->at(0, 0, 20);
    table->press(start);
    QSignalSpy entered(table.get(), SIGNAL(cellEntered(int, int)));
    table->move(start + QPoint(QApplication::startDragDistance() - 1, 0));
    QCOMPARE(table->drags().size(), 0);
    QCOMPARE(entered.count(), 0);
    table->move(start + QPoint(QApplication::startDragDistance(), 0));
    QCOMPARE(table->drags().size(), 1);
    QCOMPARE(entered.count(), 0);
}

void TableWidgetTest::aMoveWithoutTheLeftButtonStartsNoDrag()
{
    table->press(table->leftHalf(0), Qt::RightButton);
    table->move(table->leftHalf(2), Qt::RightButton);
    table->press(table->leftHalf(0));
    table->move(table->leftHalf(2), Qt::NoButton);
    QCOMPARE(table->drags().size(), 0);
}

void TableWidgetTest::theRightButtonBuildsNoDragText()
{
    QSignalSpy clicked(table.get(), SIGNAL(itemClicked(QTableWidgetItem*)));
    table->press(table->leftHalf(0), Qt::RightButton);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(table->m_strDragData, QString(""));
}

void TableWidgetTest::theLeftHalfOfEachColumnCounts_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("x");
    QTest::addColumn<bool>("counts");
    for (int column = 0; column < 3; ++column) {
        QTest::addRow("column %d, edge", column) << column << 0 << true;
        QTest::addRow("column %d, half", column) << column << 50 << true;
        QTest::addRow("column %d, beyond half", column) << column << 51 << false;
        QTest::addRow("column %d, far edge", column) << column << 98 << false;
    }
}

void TableWidgetTest::theLeftHalfOfEachColumnCounts()
{
    QFETCH(int, column);
    QFETCH(int, x);
    QFETCH(bool, counts);
    const QPoint point = table->at(1, column, x);
    table->press(point);
    QCOMPARE(table->m_strDragData, counts ? QString("7-13-1") : QString(""));
    table->move(point + QPoint(0, 60));
    QCOMPARE(table->drags().size(), counts ? 1 : 0);
}

void TableWidgetTest::idsComeFromTheFirstColumn()
{
    TableRowData other = {PB_MEM_LOCAL, 99, 99};
    table->item(1, 2)->setData(Qt::UserRole, pointerToCarrier(&other));
    table->press(table->leftHalf(1, 2));
    QCOMPARE(table->m_strDragData, QString("7-13-1"));
}

void TableWidgetTest::inARightToLeftLayoutPointsAreMeasuredFromTheRightEdge_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("fromRight");
    QTest::addColumn<bool>("counts");
    QTest::newRow("first column, near its start") << 0 << 20 << true;
    QTest::newRow("first column, near its end") << 0 << 80 << false;
    QTest::newRow("second column, near its start") << 1 << 120 << true;
    QTest::newRow("second column, near its end") << 1 << 180 << false;
    QTest::newRow("third column, near its start") << 2 << 220 << true;
    QTest::newRow("third column, near its end") << 2 << 280 << false;
}

void TableWidgetTest::inARightToLeftLayoutPointsAreMeasuredFromTheRightEdge()
{
    QFETCH(int, column);
    QFETCH(int, fromRight);
    QFETCH(bool, counts);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    const QPoint point(table->width() - fromRight, table->leftHalf(1).y());
    QVERIFY(table->itemAt(point));
    QCOMPARE(table->itemAt(point)->column(), column);
    table->press(point);
    QCOMPARE(table->m_strDragData, counts ? QString("7-13-1") : QString(""));
}

void TableWidgetTest::theHorizontalScrollPositionIsNotTakenIntoAccount()
{
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->resize(200, 300);
    QCoreApplication::processEvents();
    table->horizontalScrollBar()->setValue(60);
    QCOMPARE(table->horizontalScrollBar()->value(), 60);
    // 70 pixels into the first column, which is beyond its half, but 10 pixels from the table's edge.
    const QPoint point(10, table->leftHalf(0).y());
    QCOMPARE(table->itemAt(point), table->item(0, 0));
    table->press(point);
    QCOMPARE(table->m_strDragData, QString("12-13-1"));
    // 80 pixels into the second column: 120 from the table's edge less the first column's 100.
    const QPoint second(120, point.y());
    QCOMPARE(table->itemAt(second), table->item(0, 1));
    table->press(table->rightHalf(1, 0)); // forget
    table->m_strDragData.clear();
    table->press(second);
    QCOMPARE(table->m_strDragData, QString("12-13-1"));
}

void TableWidgetTest::aCellWithoutDataEndsTheTextWhereItStands_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::newRow("no data") << QVariant();
    QTest::newRow("null") << QVariant(0);
    QTest::newRow("no number") << QVariant(QString("text"));
}

void TableWidgetTest::aCellWithoutDataEndsTheTextWhereItStands()
{
    QFETCH(QVariant, data);
    table->item(1, 0)->setData(Qt::UserRole, data);
    table->selectRows({0, 1, 2});
    table->press(table->leftHalf(2));
    QCOMPARE(table->m_strDragData, QString("12-13-1"));
    table->move(table->leftHalf(2) + QPoint(60, 0));
    QCOMPARE(table->dragged("Text/stringids"), QByteArray("12-13-1"));
}

void TableWidgetTest::aRowWithoutAFirstCellIsPassedOver()
{
    delete table->takeItem(1, 0);
    table->selectRows({0, 1, 2});
    table->press(table->leftHalf(2));
    QCOMPARE(table->m_strDragData, QString("12-13-19-13-1"));
}

void TableWidgetTest::aDoubleClickOnARowIsToldOnceAndOpensNoEditor()
{
    QSignalSpy twice(table.get(), SIGNAL(mouseDoubleClicked()));
    QSignalSpy item(table.get(), SIGNAL(itemDoubleClicked(QTableWidgetItem*)));
    QSignalSpy view(table.get(), SIGNAL(doubleClicked(QModelIndex)));
    table->setEditTriggers(QAbstractItemView::DoubleClicked);
    const QPoint point = table->rightHalf(1);
    table->press(point);
    table->release(point);
    table->doubleClick(point);
    table->release(point);
    QCOMPARE(twice.count(), 1);
    QCOMPARE(item.count(), 0);
    QCOMPARE(view.count(), 0);
    QVERIFY(!table->isPersistentEditorOpen(table->item(1, 0)));
}

void TableWidgetTest::aDoubleClickOnEmptyAreaTellsNothing()
{
    QSignalSpy twice(table.get(), SIGNAL(mouseDoubleClicked()));
    table->doubleClick(table->emptyArea());
    QCOMPARE(twice.count(), 0);
}

void TableWidgetTest::theTargetOfADragIsHandedOn()
{
    QSignalSpy target(table.get(), SIGNAL(dragTargetChanged(QWidget*)));
    table->press(table->leftHalf(0));
    table->move(table->leftHalf(0) + QPoint(60, 0));
    QDrag* drag = table->drags().last();
    QVERIFY(drag);
    const int before = target.count();
    QWidget other;
    emit drag->targetChanged(&other);
    QCOMPARE(target.count(), before + 1);
    QCOMPARE(target.last().at(0).value<QWidget*>(), &other);
    emit drag->targetChanged(nullptr);
    QCOMPARE(target.last().at(0).value<QWidget*>(), static_cast<QWidget*>(nullptr));
    table->OnDragTargetChanged(table.get());
    QCOMPARE(target.last().at(0).value<QWidget*>(), static_cast<QWidget*>(table.get()));
}

void TableWidgetTest::theTargetOfADragIsNotHandedOnDuringShutdown()
{
    QSignalSpy target(table.get(), SIGNAL(dragTargetChanged(QWidget*)));
    table->press(table->leftHalf(0));
    table->move(table->leftHalf(0) + QPoint(60, 0));
    QDrag* drag = table->drags().last();
    QVERIFY(drag);
    target.clear();
    FakeCore::setShuttingDown(true);
    QWidget other;
    emit drag->targetChanged(&other);
    table->OnDragTargetChanged(&other);
    QCOMPARE(target.count(), 0);
}

void TableWidgetTest::duringShutdownClicksDoNothing()
{
    QSignalSpy clicked(table.get(), SIGNAL(itemClicked(QTableWidgetItem*)));
    QSignalSpy empty(table.get(), SIGNAL(emptyAreaRightClicked(bool)));
    QSignalSpy twice(table.get(), SIGNAL(mouseDoubleClicked()));
    FakeCore::setShuttingDown(true);
    const QPoint before = table->m_ptPress;
    table->press(table->leftHalf(1));
    table->release(table->leftHalf(1));
    table->doubleClick(table->leftHalf(1));
    table->release(table->emptyArea());
    QCOMPARE(clicked.count() + empty.count() + twice.count(), 0);
    QVERIFY(table->selectedItems().isEmpty());
    QCOMPARE(table->m_strDragData, QString(""));
    QCOMPARE(table->m_ptPress, before);
}

void TableWidgetTest::aMoveDuringShutdownStillStartsADrag()
{
    table->press(table->leftHalf(1));
    FakeCore::setShuttingDown(true);
    table->move(table->leftHalf(1) + QPoint(60, 0));
    QCOMPARE(table->drags().size(), 1);
}

void TableWidgetTest::aNullEventDoesNothing()
{
    QSignalSpy empty(table.get(), SIGNAL(emptyAreaRightClicked(bool)));
    table->mousePressEvent(nullptr);
    table->mouseReleaseEvent(nullptr);
    table->mouseDoubleClickEvent(nullptr);
    table->mouseMoveEvent(nullptr);
    table->keyPressEvent(nullptr);
    QCOMPARE(empty.count(), 0);
}

QTEST_MAIN(TableWidgetTest)
#include "TableWidgetTest.moc"
