#include "FieldMapFixture.h"
#include "QtReleases.h"

namespace
{

// Counts the drags of a table, each of which is its child while it runs.
class DragCounter : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        count += event->type() == QEvent::ChildAdded;
        return QObject::eventFilter(watched, event);
    }

    int count = 0;
};

} // namespace

// Mapping by hand: a title dragged onto a field, and the Delete key.
class FieldMapDragTest : public FieldMapFixture
{
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void aPressPreparesTheOtherTableForADrop();
    void aSecondPressOnTheSameRowPreparesItAgain();
    void theFirstMoveDragsTheTitle();
    void aMoveWithoutTheLeftButtonDragsNothing();
    void aListThatScrollsAfterADragDragsNothing();
    void aDropIsPlacedWhereTheMouseMovesNext();
    void aDropReplacesAMapping();
    void theSameTitleMayBeDroppedOnSeveralFields();
    void aDisabledRowDoesNotTakeADrop();
    void withoutADropTheNextMoveEndsTheTracking();
    void onlyTextIsTakenAtTheEnter();
    void aDropNeedsAPressBefore();
    void deleteClearsAMapping();
    void deleteWithNothingCurrentDoesNothing();
    void otherKeysMoveThroughTheTable();
};

void FieldMapDragTest::aPressPreparesTheOtherTableForADrop()
{
    fill({"Name", "Tel"});
    open();
    QVERIFY(!right()->hasMouseTracking());
    QVERIFY(!right()->acceptDrops());
    right()->setCurrentCell(1, 0);
    pressTitle(1);
    QVERIFY(right()->hasMouseTracking());
    QVERIFY(right()->viewport()->hasMouseTracking());
    QVERIFY(right()->acceptDrops());
    QCOMPARE(right()->currentRow(), 0);
    QVERIFY(right()->selectedItems().isEmpty());
}

void FieldMapDragTest::aSecondPressOnTheSameRowPreparesItAgain()
{
    fill({"Name", "Tel"});
    open();
    pressTitle(1);
    moveOver(0);
    QVERIFY(!right()->hasMouseTracking());
    QSignalSpy changed(left(), SIGNAL(itemSelectionChanged()));
    pressTitle(1);
    QCOMPARE(changed.count(), 1); // by hand: the selection stayed
    QVERIFY(right()->hasMouseTracking());
    QVERIFY(right()->acceptDrops());
}

void FieldMapDragTest::theFirstMoveDragsTheTitle()
{
    fill({"Name", "Tel"});
    open();
    const QPoint point = cell(left(), 1, 0);
    mouse(left(), QEvent::MouseButtonPress, point, Qt::LeftButton, Qt::LeftButton);
    mouse(left(), QEvent::MouseMove, point + QPoint(1, 0), Qt::NoButton, Qt::LeftButton);
    auto* drag = left()->findChild<QDrag*>(); // over already; Qt deletes it later
    QVERIFY(drag);
    QCOMPARE(drag->mimeData()->text(), QString("Tel"));
    QCOMPARE(drag->mimeData()->formats(), QStringList("text/plain"));
    QCOMPARE(drag->source(), static_cast<QObject*>(left()));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    mouse(left(), QEvent::MouseMove, point + QPoint(2, 0), Qt::NoButton, Qt::LeftButton);
    QVERIFY(left()->findChild<QDrag*>());
}

void FieldMapDragTest::aMoveWithoutTheLeftButtonDragsNothing()
{
    fill({"Name", "Tel"});
    open();
    pressTitle(1);
    mouse(left(), QEvent::MouseMove, cell(left(), 0, 0), Qt::NoButton, Qt::NoButton);
    mouse(left(), QEvent::MouseMove, cell(left(), 0, 0), Qt::NoButton, Qt::RightButton);
    QVERIFY(!left()->findChild<QDrag*>());
}

void FieldMapDragTest::aListThatScrollsAfterADragDragsNothing()
{
    QStringList titles;
    for (int i = 0; i < 40; ++i)
        titles << QString::number(i);
    fill(titles);
    open();
    const QScrollBar* bar = left()->verticalScrollBar();
    left()->verticalScrollBar()->setValue(5);
    DragCounter drags;
    left()->installEventFilter(&drags);
    const QPoint point = cell(left(), 5, 0);
    mouse(left(), QEvent::MouseButtonPress, point, Qt::LeftButton, Qt::LeftButton);
    mouse(left(), QEvent::MouseMove, point + QPoint(1, 0), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(drags.count, 1);
    if (QtReleases::listScrollsAfterADrag)
        QTRY_VERIFY(bar->value() < 5);
    QCOMPARE(drags.count, 1);
}

void FieldMapDragTest::aDropIsPlacedWhereTheMouseMovesNext()
{
    fill({"Name", "Tel"});
    open();
    pressTitle(1);
    QVERIFY(dropText("Tel", 1));
    QCOMPARE(right()->m_strDropText, QString("Tel"));
    QCOMPARE(right()->item(1, 1)->text(), QString(" ")); // the drop itself changes nothing
    QCOMPARE(right()->rowCount(), 11);
    moveOver(2, 0);
    QCOMPARE(right()->item(2, 1)->text(), QString("Tel"));
    QCOMPARE(right()->item(1, 1)->text(), QString(" "));
    QCOMPARE(right()->m_strDropText, QString());
    QCOMPARE(right()->currentRow(), 2);
    QCOMPARE(right()->currentColumn(), 0);
    QVERIFY(!right()->hasMouseTracking());
    QVERIFY(!right()->acceptDrops());
    QCOMPARE(dialog()->focusWidget(), static_cast<QWidget*>(right()));
}

void FieldMapDragTest::aDropReplacesAMapping()
{
    fill({"Name", "Full name"});
    open();
    QCOMPARE(right()->item(0, 1)->text(), QString("Name"));
    pressTitle(1);
    QVERIFY(dropText("Full name", 0));
    moveOver(0);
    QCOMPARE(right()->item(0, 1)->text(), QString("Full name"));
}

void FieldMapDragTest::theSameTitleMayBeDroppedOnSeveralFields()
{
    fill({"Name", "Tel"});
    open();
    for (int row : {1, 2, 3}) {
        pressTitle(1);
        QVERIFY(dropText("Tel", row));
        moveOver(row);
    }
    QCOMPARE(mapped().mid(0, 6), (QStringList{"Name", "Tel", "Tel", "Tel", " ", " "}));
}

void FieldMapDragTest::aDisabledRowDoesNotTakeADrop()
{
    fill({"Name", "Tel"}, PB_MEM_SIM);
    open();
    pressTitle(1);
    QVERIFY(dropText("Tel", 5));
    emit right()->cellEntered(5, 1);
    QCOMPARE(right()->item(5, 1)->text(), QString());
    QVERIFY(!(right()->item(5, 1)->flags() & Qt::ItemIsEnabled));
    QCOMPARE(right()->m_strDropText, QString()); // and it is gone
    moveOver(1);
    QCOMPARE(right()->item(1, 1)->text(), QString(" "));
}

void FieldMapDragTest::withoutADropTheNextMoveEndsTheTracking()
{
    fill({"Name", "Tel"});
    open();
    pressTitle(1);
    moveOver(1);
    QVERIFY(!right()->hasMouseTracking());
    QVERIFY(!right()->acceptDrops());
    QCOMPARE(right()->item(1, 1)->text(), QString(" "));
    QVERIFY(!dropText("Tel", 1)); // needs a new press
    pressTitle(1);
    QVERIFY(dropText("Tel", 1));
}

void FieldMapDragTest::onlyTextIsTakenAtTheEnter()
{
    fill({"Name", "Tel"});
    open();
    pressTitle(1);
    QMimeData data;
    data.setData("text/html", "<b>Tel</b>");
    QDragEnterEvent enter(cell(right(), 1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(right()->viewport(), &enter);
    QVERIFY(!enter.isAccepted());
}

void FieldMapDragTest::aDropNeedsAPressBefore()
{
    fill({"Name", "Tel"});
    open();
    QVERIFY(!dropText("Tel", 1));
    QCOMPARE(right()->m_strDropText, QString());
}

void FieldMapDragTest::deleteClearsAMapping()
{
    fill({"Name", "Mobile"});
    open();
    right()->setFocus();
    right()->setCurrentCell(1, 0);
    QTest::keyClick(right(), Qt::Key_Delete);
    QCOMPARE(right()->item(1, 1)->text(), QString(" "));
    QCOMPARE(right()->item(1, 0)->text(), QString("Mobile phone"));
    QCOMPARE(run([this] { ok()->click(); }), 1);
    QCOMPARE(map->GetFieldMapData().mid(0, 3), (QList<QString>{"Name", " ", " "}));
}

void FieldMapDragTest::deleteWithNothingCurrentDoesNothing()
{
    fill({"Name", "Mobile"});
    open();
    right()->setCurrentItem(nullptr);
    QCOMPARE(right()->currentRow(), -1);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
    QApplication::sendEvent(right(), &key);
    QCOMPARE(mapped().mid(0, 2), (QStringList{"Name", "Mobile"}));
}

void FieldMapDragTest::otherKeysMoveThroughTheTable()
{
    fill({"Name", "Mobile"});
    open();
    right()->setCurrentCell(0, 0);
    QTest::keyClick(right(), Qt::Key_Down);
    QCOMPARE(right()->currentRow(), 1);
    QCOMPARE(mapped().mid(0, 2), (QStringList{"Name", "Mobile"}));
}

QTEST_MAIN(FieldMapDragTest)
#include "FieldMapDragTest.moc"
