#include <QtTest>

#include <sys/file.h>

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTreeWidget>

#include "loader/WorkerCount.h"
#include "orva/orva_sync.h"
#include "window/PhonebookHold.h"

// Whether a sync has its turn while somebody works on the phonebook.
class TestHostHold : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aFormKeepsASyncOutUntilItIsClosed();
    void aWindowBesideTheOthersKeepsNothingOut();
    void anEditorInATreeKeepsASyncOut();
    void aBatchGoesOnHoldingWhenItsFormIsClosed();
    void aFormThatOpensDuringASyncHoldsWhenThatEnds();

private:
    long sync() const;

    QString m_strFolder;
};

// The code of a sync that does not wait.
long TestHostHold::sync() const
{
    void* pResult = nullptr;
    const long lCode = ORVA_Sync_Run(ORVA_MEMORY_LOCAL, m_strFolder.utf16(), 0, 0, &pResult);
    ORVA_Sync_Result_Release(pResult);
    return lCode;
}

void TestHostHold::initTestCase()
{
    m_strFolder = QDir::homePath() + QLatin1String("/hold-cards");
    QCOMPARE(sync(), long(ORVA_OK));
}

void TestHostHold::aFormKeepsASyncOutUntilItIsClosed()
{
    WorkerCount workers;
    PhonebookHold hold(workers);
    QDialog form;
    form.setModal(true);
    QVERIFY(!hold.Held());
    form.show();
    QVERIFY(hold.Held());
    QCOMPARE(sync(), long(ORVA_E_BUSY));
    QDialog box(&form);
    box.setModal(true);
    box.show();
    box.hide();
    QTest::qWait(300); // longer than a look takes: it must still be held
    QCOMPARE(sync(), long(ORVA_E_BUSY));
    form.hide();
    QTRY_VERIFY(!hold.Held());
    QCOMPARE(sync(), long(ORVA_OK));
}

void TestHostHold::aWindowBesideTheOthersKeepsNothingOut()
{
    WorkerCount workers;
    PhonebookHold hold(workers);
    QWidget window;
    QLineEdit field(&window);
    window.show();
    field.show();
    QVERIFY(!hold.Held());
    QCOMPARE(sync(), long(ORVA_OK));
}

void TestHostHold::anEditorInATreeKeepsASyncOut()
{
    WorkerCount workers;
    PhonebookHold hold(workers);
    QTreeWidget tree;
    QTreeWidgetItem* pItem = new QTreeWidgetItem(&tree, QStringList(QLatin1String("Friends")));
    pItem->setFlags(pItem->flags() | Qt::ItemIsEditable);
    tree.show();
    tree.editItem(pItem, 0);
    QVERIFY(hold.Held());
    QCOMPARE(sync(), long(ORVA_E_BUSY));
    QLineEdit* pEditor = tree.findChild<QLineEdit*>();
    QVERIFY(pEditor != nullptr);
    QTest::keyClick(pEditor, Qt::Key_Return);
    QTRY_VERIFY(!hold.Held());
    QCOMPARE(sync(), long(ORVA_OK));
}

void TestHostHold::aBatchGoesOnHoldingWhenItsFormIsClosed()
{
    WorkerCount workers;
    PhonebookHold hold(workers);
    QDialog form;
    form.setModal(true);
    form.show();
    workers.Increment(QLatin1String("file"), QLatin1String("batch"));
    form.hide();
    QTest::qWait(300); // longer than a look takes
    QVERIFY(hold.Held());
    workers.Decrement(QLatin1String("file"), QLatin1String("batch"));
    QTRY_VERIFY(!hold.Held());
}

void TestHostHold::aFormThatOpensDuringASyncHoldsWhenThatEnds()
{
    WorkerCount workers;
    PhonebookHold hold(workers);
    // What a sync holds while it runs, in the hands of the test.
    QFile lock(QString::fromLocal8Bit(qgetenv("LINKHAND_DATA_DIR")) + QLatin1String("/local.sync"));
    QVERIFY(lock.open(QIODevice::ReadWrite));
    QCOMPARE(::flock(lock.handle(), LOCK_EX | LOCK_NB), 0);
    QDialog form;
    form.setModal(true);
    form.show();
    QVERIFY(!hold.Held());
    lock.close();
    QTRY_VERIFY(hold.Held());
}

QTEST_MAIN(TestHostHold)
#include "test_host_hold.moc"
