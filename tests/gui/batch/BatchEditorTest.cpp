#include "BatchFixture.h"

// A group editor that is open while a batch ends.
class BatchEditorTest : public WindowTest
{
    Q_OBJECT

private slots:
    void newGroupUnderItsEditorOutlivesTheEndOfABatch()
    {
        BatchFixture f;
        f.build();
        f.cancelledImport(3);
        QVERIFY(f.waitForTheWindow());
        f.treeAction("IDS_Add_GROUP")->trigger();
        QTreeWidgetItem* node = f.in().editedGroup();
        QVERIFY(node != nullptr);
        QPointer<QLineEdit> editor = qobject_cast<QLineEdit*>(f.tree()->itemWidget(node, 0));
        QTest::keyClicks(editor, "Frien");
        f.letEnd();
        QVERIFY(!editor.isNull());
        QCOMPARE(f.tree()->itemWidget(node, 0), editor.data());
        QCOMPARE(editor->text(), QString("Frien"));
        QTest::keyClicks(editor, "ds");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(f.in().editedGroup() == nullptr);
        QCOMPARE(FakeSdk::groups().size(), 1);
        QCOMPARE(FakeSdk::groups().first().name, QString("Friends"));
        QCOMPARE(f.node("Friends")->text(0), QString("Friends(0)"));
        QVERIFY(treeNodeData(f.node("Friends")) != nullptr);
        // The root is current again, with what the batch has added.
        QVERIFY(f.waitRead());
        QCOMPARE(f.column(0), QStringList("New 1"));
    }

    void renameUnderItsEditorOutlivesTheEndOfABatchAndTakesTheNewCount()
    {
        BatchFixture f;
        const int friends = FakeSdk::addGroup("Friends");
        f.build();
        f.click(f.node("Friends"));
        f.held = std::make_unique<Held>("AddAddrRec", 1);
        f.window()->addImportedRecords(PB_MEM_LOCAL, Contacts::records(PB_MEM_LOCAL, "New", 3), friends);
        QVERIFY(f.held->wait());
        WindowFixture::cancelButton()->click();
        QVERIFY(f.waitForTheWindow());
        f.treeAction("IDS_EDIT_GROUP")->trigger();
        QTreeWidgetItem* node = f.in().editedGroup();
        QVERIFY(node != nullptr);
        QPointer<QLineEdit> editor = qobject_cast<QLineEdit*>(f.tree()->itemWidget(node, 0));
        QTest::keyClicks(editor, "Mates");
        f.letEnd();
        QVERIFY(!editor.isNull());
        QCOMPARE(f.tree()->itemWidget(node, 0), editor.data());
        QCOMPARE(editor->text(), QString("Mates"));
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(f.in().editedGroup() == nullptr);
        QCOMPARE(FakeSdk::groups().first().name, QString("Mates"));
        QCOMPARE(node->text(0), QString("Mates(1)"));
    }
};

QTEST_MAIN(BatchEditorTest)
#include "BatchEditorTest.moc"
