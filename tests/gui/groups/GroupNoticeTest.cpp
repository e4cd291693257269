#include "GroupsFixture.h"

// A group editor that is open while a notice of the host makes another node current.
class GroupNoticeTest : public WindowTest
{
    Q_OBJECT

private:
    static int groupNodes(const GroupsFixture& f) { return f.in().local()->childCount(); }

private slots:
    void cleanup()
    {
        FakeCore::onMessage(nullptr);
        WindowTest::cleanup();
    }

    void newGroupIsStoredWithWhatHasBeenTyped()
    {
        GroupsFixture f;
        f.build();
        QPointer<QLineEdit> editor = f.startNew();
        QVERIFY(!editor.isNull());
        QTest::keyClicks(editor, "Work");
        f.window()->OnSysmodeChanged();
        QCOMPARE(GroupsFixture::storedNames(), QStringList({"Friends", "Work"}));
        QVERIFY(f.node("Work") != nullptr);
        QCOMPARE(f.node("Work")->text(0), QString("Work(0)"));
        QVERIFY(treeNodeData(f.node("Work")) != nullptr);
        QVERIFY(f.in().editedGroup() == nullptr);
        QCOMPARE(f.tree()->currentItem(), f.in().local());
        QVERIFY(f.in().sim() == nullptr);
        QTRY_VERIFY(editor.isNull());
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(f.waitRead());
        QCOMPARE(f.column(0), QStringList({"Anna", "Bert", "Carl"}));
    }

    void renameIsStoredWithWhatHasBeenTyped()
    {
        GroupsFixture f;
        f.build();
        QTreeWidgetItem* node = f.node("Friends");
        QPointer<QLineEdit> editor = f.startRename(node);
        QVERIFY(!editor.isNull());
        QTest::keyClicks(editor, "Mates");
        f.window()->OnSysmodeChanged();
        QCOMPARE(GroupsFixture::storedNames(), QStringList("Mates"));
        QCOMPARE(node->text(0), QString("Mates(2)"));
        QCOMPARE(f.tree()->currentItem(), f.in().local());
        QTRY_VERIFY(editor.isNull());
        QCOMPARE(node->text(0), QString("Mates(2)"));
        QVERIFY(!(node->flags() & Qt::ItemIsEditable));
        QVERIFY(f.waitRead());
    }

    // The box comes when the notice is through.
    void nameThatIsRefusedIsUndoneAndToldBehindTheNotice_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("rename");
        QTest::addColumn<QString>("box");
        QTest::newRow("new, blank") << "" << false << "IDS_GROUP_NAME_NULL";
        QTest::newRow("new, taken") << "Friends" << false << "IDS_GROUP_NAME_REPEAT";
        QTest::newRow("renamed, blank") << "" << true << "IDS_GROUP_NAME_NULL";
        QTest::newRow("renamed, taken") << "Others" << true << "IDS_GROUP_NAME_REPEAT";
    }
    void nameThatIsRefusedIsUndoneAndToldBehindTheNotice()
    {
        QFETCH(QString, typed);
        QFETCH(bool, rename);
        QFETCH(QString, box);
        GroupsFixture f;
        FakeSdk::addGroup("Others");
        f.build();
        const int nodes = groupNodes(f);
        QLineEdit* editor = rename ? f.startRename(f.node("Friends")) : f.startNew();
        QVERIFY(editor != nullptr);
        editor->selectAll();
        QTest::keyClick(editor, Qt::Key_Delete);
        QTest::keyClicks(editor, typed);
        bool through = false;
        bool boxBehind = false;
        FakeCore::onMessage([&](const FakeCore::Message&) { boxBehind = through; });
        f.window()->OnSysmodeChanged();
        through = true;
        QVERIFY(f.in().sim() == nullptr);
        QCOMPARE(groupNodes(f), nodes);
        QVERIFY(f.node("Friends(2)") != nullptr);
        QCOMPARE(GroupsFixture::storedNames(), QStringList({"Friends", "Others"}));
        QCOMPARE(f.tree()->currentItem(), f.in().local());
        QTRY_COMPARE(FakeCore::messageTexts(), QStringList(box));
        QVERIFY(boxBehind);
        QVERIFY(f.waitRead());
    }

    void windowThatGoesBeforeTheBoxLeavesNothing()
    {
        GroupsFixture f;
        f.build();
        QVERIFY(f.startNew() != nullptr);
        f.window()->OnSysmodeChanged();
        f.destroy();
        QCoreApplication::processEvents();
        QVERIFY(FakeCore::messages().isEmpty());
    }
};

QTEST_MAIN(GroupNoticeTest)
#include "GroupNoticeTest.moc"
