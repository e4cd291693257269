#include <QDrag>
#include <QMouseEvent>
#include <QObject>

#include "WindowFixture.h"
#include "dialogs/FieldMapTables.h"

// The table that a drag comes from goes while the drag runs. On a display, where a drag runs an event loop of its own.
class DragEndTest : public QObject
{
    Q_OBJECT

private:
    static void mouse(const AddrBookTableWidget* table, QEvent::Type type, const QPoint& point)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, point, table->viewport()->mapToGlobal(point), button, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(table->viewport(), &event);
    }

    // The user drags the first row; the function runs under the drag. False if there was none, or it did not end
    // with what the function did.
    static bool dragUnder(const WindowFixture& f, std::function<void(QPointer<QDrag>)> function)
    {
        const QPointer<AddrBookTableWidget> table(f.table());
        f.selectRows({0});
        const QPoint press(10, table->visualItemRect(table->item(0, 0)).center().y());
        bool ran = false;
        bool ended = true;
        QTimer under;
        under.setSingleShot(true);
        QObject::connect(&under, &QTimer::timeout, [&] {
            const QPointer<QDrag> drag(table->findChild<QDrag*>());
            ran = !drag.isNull();
            function(drag);
        });
        // One that goes on for good is ended here.
        QTimer limit;
        QObject::connect(&limit, &QTimer::timeout, [&ended] {
            ended = false;
            QDrag::cancel();
        });
        mouse(table, QEvent::MouseButtonPress, press);
        under.start(0);
        limit.start(10000);
        mouse(table, QEvent::MouseMove, press + QPoint(0, 50));
        return ran && ended;
    }

private slots:
    void initTestCase()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        QLoggingCategory::setFilterRules("default.debug=false");
        QVERIFY2(QGuiApplication::platformName() != "offscreen", "a drag ends there as soon as it has begun");
    }

    void cleanup()
    {
        QCOMPARE(FakeSdk::leaks(), QString());
        QCOMPARE(FakeCore::runningWorkers(), 0);
    }

    void dragEndsWithItsTable_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("the window goes") << "window";
        QTest::newRow("two nodes are read") << "reads";
    }
    void dragEndsWithItsTable()
    {
        QFETCH(QString, how);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        const QPointer<AddrBookTableWidget> table(f.table());
        bool outlived = false;
        QPointer<QDrag> seen;
        QVERIFY(dragUnder(f, [&](QPointer<QDrag> drag) {
            seen = drag;
            if (how == "window") {
                f.destroy();
            } else {
                f.window()->OnTreeClicked(f.node("Friends"));
                f.window()->OnTreeClicked(f.in().local());
            }
            outlived = !drag.isNull();
        }));
        QVERIFY(table.isNull());
        QVERIFY2(outlived, "Qt still works with it");
        QTRY_VERIFY(seen.isNull());
        if (how == "reads") {
            QVERIFY(f.waitRead());
            QCOMPARE(f.table()->rowCount(), 3);
        }
    }

    void columnOfAFileIsDraggedNoMoreWhereItsTableGoes()
    {
        auto* table = new FieldMapTable1Widget(2, 1, nullptr);
        const QPointer<QObject> gone(table);
        table->setItem(0, 0, new QTableWidgetItem("Name"));
        table->show();
        QVERIFY(QTest::qWaitForWindowExposed(table));
        table->selectRow(0);
        const QPoint press(5, table->visualItemRect(table->item(0, 0)).center().y());
        QPointer<QDrag> seen;
        bool outlived = false;
        QTimer::singleShot(0, table, [&] {
            seen = table->findChild<QDrag*>();
            QVERIFY(!seen.isNull());
            delete table;
            outlived = !seen.isNull();
        });
        QTimer limit;
        limit.setSingleShot(true);
        QObject::connect(&limit, &QTimer::timeout, [] { QDrag::cancel(); });
        limit.start(10000);
        QMouseEvent move(QEvent::MouseMove, press, table->viewport()->mapToGlobal(press), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(table->viewport(), &move);
        QVERIFY(gone.isNull());
        QVERIFY2(limit.isActive(), "the drag went on");
        QVERIFY2(outlived, "Qt still works with it");
        QTRY_VERIFY(seen.isNull());
    }

    // The next drag is one like the first.
    void dragThatIsCalledOffLeavesTheTable()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        for (int i = 0; i < 2; ++i) {
            QPointer<QDrag> seen;
            QVERIFY(dragUnder(f, [&seen](QPointer<QDrag> drag) {
                seen = drag;
                QDrag::cancel();
            }));
            QTRY_VERIFY(seen.isNull());
            QCOMPARE(f.table()->rowCount(), 3);
        }
    }
};

QTEST_MAIN(DragEndTest)
#include "DragEndTest.moc"
