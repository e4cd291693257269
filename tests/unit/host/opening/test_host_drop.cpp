#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTextEdit>
#include <QUrl>
#include <QVBoxLayout>
#include <QtTest>

#include "app/FileDrop.h"

// Files that are dropped on a window.
class TestHostDrop : public QObject
{
    Q_OBJECT

private slots:
    void filesOfContactsAreTaken();
    void whatHoldsNoneIsRefused_data();
    void whatHoldsNoneIsRefused();
    void theFilesStayWhereTheyAre();
};

namespace
{

// As Qt sends them: enter, move, drop. With Shift held down, a file manager proposes a move.
bool dropOn(QWidget& widget, const QMimeData& data, Qt::DropActions actions, Qt::DropAction& enTaken)
{
    QDragEnterEvent enter(QPoint(5, 5), actions, &data, Qt::LeftButton, Qt::ShiftModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&widget, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    QDragMoveEvent move(QPoint(6, 6), actions, &data, Qt::LeftButton, Qt::ShiftModifier);
    move.ignore();
    QCoreApplication::sendEvent(&widget, &move);
    if (!move.isAccepted()) {
        return false;
    }
    QDropEvent drop(QPointF(6, 6), actions, &data, Qt::LeftButton, Qt::ShiftModifier);
    drop.ignore();
    QCoreApplication::sendEvent(&widget, &drop);
    enTaken = drop.dropAction();
    return drop.isAccepted();
}

} // namespace

void TestHostDrop::filesOfContactsAreTaken()
{
    QWidget window;
    window.resize(200, 200);
    QWidget child(&window);
    child.setGeometry(0, 0, 100, 100);
    QSignalSpy dropped(new FileDrop(&window), SIGNAL(dropped(QStringList)));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/a b.vcf"), QUrl::fromLocalFile("/a.txt"), QUrl::fromLocalFile("/c.CSV")});
    Qt::DropAction enTaken = Qt::IgnoreAction;
    QVERIFY(dropOn(window, data, Qt::CopyAction, enTaken));
    QCOMPARE(dropped.count(), 1);
    QCOMPARE(dropped.takeFirst().at(0).toStringList(), QStringList({"file:///a%20b.vcf", "file:///c.CSV"}));
    QVERIFY(dropOn(child, data, Qt::CopyAction, enTaken));
    QCOMPARE(dropped.count(), 1);
}

void TestHostDrop::whatHoldsNoneIsRefused_data()
{
    QTest::addColumn<QStringList>("urls");
    QTest::addColumn<QString>("text");
    QTest::newRow("another file") << QStringList("file:///a.txt") << "";
    QTest::newRow("from the web") << QStringList("http://example.org/a.vcf") << "";
    QTest::newRow("a number") << QStringList("tel:+49171") << "";
    QTest::newRow("contacts of the phonebook") << QStringList() << "4|1,2";
    QTest::newRow("nothing") << QStringList() << "";
}

void TestHostDrop::whatHoldsNoneIsRefused()
{
    QFETCH(QStringList, urls);
    QFETCH(QString, text);
    QWidget window;
    QSignalSpy dropped(new FileDrop(&window), SIGNAL(dropped(QStringList)));
    QMimeData data;
    QList<QUrl> listUrls;
    foreach (const QString& strUrl, urls) {
        listUrls.append(QUrl(strUrl));
    }
    if (!listUrls.isEmpty()) {
        data.setUrls(listUrls);
    }
    data.setText(text);
    Qt::DropAction enTaken = Qt::IgnoreAction;
    QVERIFY(!dropOn(window, data, Qt::CopyAction, enTaken));
    QCOMPARE(dropped.count(), 0);
}

// A move would have the file manager delete what was looked at.
void TestHostDrop::theFilesStayWhereTheyAre()
{
    QWidget window;
    QSignalSpy dropped(new FileDrop(&window), SIGNAL(dropped(QStringList)));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/a.vcf")});
    Qt::DropAction enTaken = Qt::IgnoreAction;
    QVERIFY(dropOn(window, data, Qt::CopyAction | Qt::MoveAction, enTaken));
    QCOMPARE(enTaken, Qt::CopyAction);
    QVERIFY(!dropOn(window, data, Qt::MoveAction, enTaken));
    QCOMPARE(dropped.count(), 1);
}

QTEST_MAIN(TestHostDrop)
#include "test_host_drop.moc"
