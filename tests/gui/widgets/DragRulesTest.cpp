#include <QDrag>
#include <QObject>
#include <QScrollBar>
#include <QSignalSpy>

#include "TestTable.h"
#include "fakecore/FakeCore.h"
#include "fakesdk/FakeSdk.h"

// What a drag offers and where it may start, with more rows than the table shows.
class DragRulesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestTable> table;

private slots:
    void init()
    {
        FakeCore::reset();
        FakeSdk::reset();
        table = std::make_unique<TestTable>();
        for (int i = 1; i <= 60; ++i)
            table->addContact(i, 0);
    }

    void cleanup()
    {
        table.reset();
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void dragOffersCopyAndMove()
    {
        table->open();
        table->press(table->leftHalf(0));
        table->mouse(QEvent::MouseMove, table->leftHalf(0) + QPoint(0, 60), Qt::NoButton, Qt::LeftButton);
        QCOMPARE(table->drags().size(), 1);
        QCOMPARE(table->drags().last()->supportedActions(), Qt::CopyAction | Qt::MoveAction);
    }

    // The scroll bar stands between the first column and the edge that counts.
    void rightToLeftPointsAreMeasuredFromTheEdgeOfTheWidget()
    {
        QApplication::setLayoutDirection(Qt::RightToLeft);
        table->open();
        QCoreApplication::processEvents();
        const int beside = table->width() - table->viewport()->width();
        QVERIFY(table->verticalScrollBar()->isVisible() && beside > 8);
        const auto dragged = [this](int x) {
            table->m_strDragData = "none";
            table->press(QPoint(x, table->visualRect(table->model()->index(0, 0)).center().y()));
            return table->m_strDragData != "none";
        };
        QVERIFY(dragged(table->width() - 50));
        QVERIFY(!dragged(table->width() - 51)); // though still the left half of the cell, as seen from the rows
        QVERIFY(table->viewport()->width() - (table->width() - 51) <= 50);
    }

    void editShortcutIsForOneRowAlsoWithinOneRange()
    {
        QSignalSpy edits(table.get(), SIGNAL(editContact()));
        table->setRangeSelected(QTableWidgetSelectionRange(2, 0, 3, 2), true);
        QCOMPARE(table->selectedRanges().size(), 1);
        table->OnShortKeyEditContact();
        QCOMPARE(edits.size(), 0);
        table->clearSelection();
        table->setRangeSelected(QTableWidgetSelectionRange(2, 0, 2, 2), true);
        table->OnShortKeyEditContact();
        QCOMPARE(edits.size(), 1);
    }
};

QTEST_MAIN(DragRulesTest)
#include "DragRulesTest.moc"
