#include <QSignalSpy>

#include "TestTable.h"
#include "fakecore/FakeCore.h"
#include "fakesdk/FakeSdk.h"

// The keyboard and the window's shortcuts on the contact table.
class TableKeysTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FakeCore::reset();
        FakeSdk::reset();
        table = std::make_unique<TestTable>();
        for (int record = 1; record <= 4; ++record)
            table->addContact(record, 0);
        table->open();
        table->setFocus();
        for (const char* signal : {SIGNAL(editContact()), SIGNAL(importMOE()), SIGNAL(importMOO()),
                                   SIGNAL(deleteContact()), SIGNAL(newContact())})
            spies.push_back(std::make_unique<QSignalSpy>(table.get(), signal));
    }
    void cleanup()
    {
        // Modifiers that a key press left behind would reach the next test.
        QTest::keyRelease(table->windowHandle(), Qt::Key_Control, Qt::NoModifier);
        spies.clear();
        table.reset();
    }

    void keysOfTheTable_data();
    void keysOfTheTable();
    void returnWithNothingSelectedDoesNothingAndIsAccepted();
    void controlReturnEditsLikeReturn();
    void enterIsNotMeant();
    void otherKeysMoveThroughTheTable();
    void lettersOtherThanTheTwoSearch();
    void duringShutdownKeysDoNothing();
    void deleteShortcutNeedsASelection();
    void editShortcutNeedsExactlyOneRow();
    void selectedIndexesCanBeRead();
    void thereIsNoSignalForMms();

private:
    int raised(int which) const { return spies.at(static_cast<size_t>(which))->count(); }
    void key(int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(table->windowHandle(), static_cast<Qt::Key>(code), modifiers);
    }
    enum { Edit, Moe, Moo, Delete, New };

    std::unique_ptr<TestTable> table;
    std::vector<std::unique_ptr<QSignalSpy>> spies;
};

void TableKeysTest::keysOfTheTable_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("control");
    QTest::addColumn<int>("edits");
    QTest::addColumn<int>("moe");
    QTest::addColumn<int>("moo");
    QTest::newRow("Return") << int(Qt::Key_Return) << false << 1 << 0 << 0;
    QTest::newRow("Ctrl+Return") << int(Qt::Key_Return) << true << 1 << 0 << 0;
    QTest::newRow("S") << int(Qt::Key_S) << false << 0 << 0 << 0;
    QTest::newRow("Ctrl+S") << int(Qt::Key_S) << true << 0 << 1 << 0;
    QTest::newRow("O") << int(Qt::Key_O) << false << 0 << 0 << 0;
    QTest::newRow("Ctrl+O") << int(Qt::Key_O) << true << 0 << 0 << 1;
    QTest::newRow("Delete") << int(Qt::Key_Delete) << false << 0 << 0 << 0;
}

void TableKeysTest::keysOfTheTable()
{
    QFETCH(int, key);
    QFETCH(bool, control);
    QFETCH(int, edits);
    QFETCH(int, moe);
    QFETCH(int, moo);
    table->selectRows({1});
    this->key(key, control ? Qt::ControlModifier : Qt::NoModifier);
    QCOMPARE(raised(Edit), edits);
    QCOMPARE(raised(Moe), moe);
    QCOMPARE(raised(Moo), moo);
    QCOMPARE(raised(Delete), 0);
    QCOMPARE(table->selectedRows(), QList<int>{1});
}

void TableKeysTest::returnWithNothingSelectedDoesNothingAndIsAccepted()
{
    table->clearSelection();
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    event.ignore();
    table->keyPressEvent(&event);
    QVERIFY(event.isAccepted());
    QCOMPARE(raised(Edit), 0);
}

void TableKeysTest::controlReturnEditsLikeReturn()
{
    table->selectRows({0, 2}); // as many rows as there are: the window decides
    key(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(raised(Edit), 1);
}

void TableKeysTest::enterIsNotMeant()
{
    table->selectRows({1});
    key(Qt::Key_Enter);
    QCOMPARE(raised(Edit), 0);
}

void TableKeysTest::otherKeysMoveThroughTheTable()
{
    table->setCurrentCell(0, 0);
    key(Qt::Key_Down);
    QCOMPARE(table->currentRow(), 1);
}

void TableKeysTest::lettersOtherThanTheTwoSearch()
{
    table->item(2, 0)->setText("Theo");
    table->item(3, 0)->setText("Sonja");
    table->setCurrentCell(0, 0);
    key(Qt::Key_S);
    QCOMPARE(table->currentRow(), 0);
    key(Qt::Key_T);
    QCOMPARE(table->currentRow(), 2);
}

void TableKeysTest::duringShutdownKeysDoNothing()
{
    table->setCurrentCell(0, 0);
    table->selectRows({0});
    FakeCore::setShuttingDown(true);
    key(Qt::Key_Return);
    key(Qt::Key_S, Qt::ControlModifier);
    key(Qt::Key_Down);
    QCOMPARE(raised(Edit) + raised(Moe), 0);
    QCOMPARE(table->currentRow(), 0);
}

void TableKeysTest::deleteShortcutNeedsASelection()
{
    table->OnShortKeyDelContact();
    QCOMPARE(raised(Delete), 0);
    table->selectRows({0, 2});
    table->OnShortKeyDelContact();
    QCOMPARE(raised(Delete), 1);
}

void TableKeysTest::editShortcutNeedsExactlyOneRow()
{
    table->OnShortKeyEditContact();
    table->selectRows({0, 1}); // one range of two rows
    table->OnShortKeyEditContact();
    table->selectRows({0, 2}); // two ranges
    table->OnShortKeyEditContact();
    QCOMPARE(raised(Edit), 0);
    table->selectRows({3});
    table->OnShortKeyEditContact();
    QCOMPARE(raised(Edit), 1);
}

void TableKeysTest::selectedIndexesCanBeRead()
{
    table->selectRows({1, 3});
    const QModelIndexList indexes = table->GetSelectedIndexes();
    QCOMPARE(indexes.size(), 6);
    for (const QModelIndex& index : indexes)
        QVERIFY(index.row() == 1 || index.row() == 3);
}

// The window asks for it all the same; that one connection fails and nothing hangs on it.
void TableKeysTest::thereIsNoSignalForMms()
{
    QCOMPARE(table->metaObject()->indexOfSignal("sendMmsMessage()"), -1);
    QStringList names;
    const QMetaObject* meta = &AddrBookTableWidget::staticMetaObject;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            names << QString::fromLatin1(meta->method(i).methodSignature());
    }
    QCOMPARE(names, (QStringList{"emptyAreaRightClicked(bool)", "mouseDoubleClicked()", "editContact()", "newContact()",
                                 "deleteContact()", "showHideSearchControl()", "sendMessage()", "makeCall()",
                                 "dragTargetChanged(QWidget*)", "importMOE()", "importMOO()"}));
}

QTEST_MAIN(TableKeysTest)
#include "TableKeysTest.moc"
