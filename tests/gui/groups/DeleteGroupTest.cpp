#include "GroupsFixture.h"

// A group deleted after a question, with what hangs below it.
class DeleteGroupTest : public WindowTest
{
    Q_OBJECT

private slots:
    void questionIsAsked()
    {
        GroupsFixture f;
        f.build();
        f.click(f.node("Friends"));
        FakeCore::answer(QMessageBox::Cancel);
        f.treeAction("IDS_DEL_GROUP")->trigger();
        QCOMPARE(FakeCore::messages().size(), 1);
        const FakeCore::Message message = FakeCore::messages().last();
        QCOMPARE(message.icon, QMessageBox::Question);
        QCOMPARE(message.caption, QString("IDS_PROMPT_CAPTION"));
        QCOMPARE(message.text, QString("IDS_DELETE_GROUP"));
        QCOMPARE(message.buttons, QStringList({"IDS_OK", "IDS_CANCEL"}));
        QVERIFY(message.flag && message.modal);
        QVERIFY(f.node("Friends") != nullptr);
        QVERIFY(!GroupsFixture::writesToGroups());
    }

    void groupGoesAndItsContactsStay()
    {
        GroupsFixture f;
        f.build();
        f.click(f.node("Friends"));
        QCOMPARE(f.table()->rowCount(), 2);
        f.treeAction("IDS_DEL_GROUP")->trigger();
        QVERIFY(f.waitRead());
        QVERIFY(f.node("Friends") == nullptr);
        QVERIFY(FakeSdk::groups().isEmpty());
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
        QCOMPARE(FakeSdk::count("DelAddrRec"), 0);
        QCOMPARE(FakeSdk::count("DelAddrFromGroup"), 0);
        QCOMPARE(f.tree()->currentItem(), f.in().local());
        QCOMPARE(f.in().current(), f.in().local());
        QCOMPARE(f.table()->rowCount(), 3);
        QVERIFY(!f.usageReported());
    }

    void nodeGoesThoughTheStoreFails()
    {
        GroupsFixture f;
        f.build();
        f.click(f.node("Friends"));
        FakeSdk::fail("DelGroup");
        f.treeAction("IDS_DEL_GROUP")->trigger();
        QVERIFY(f.node("Friends") == nullptr);
        QCOMPARE(FakeSdk::groups().size(), 1);
        QCOMPARE(FakeCore::messages().size(), 1); // the question alone
        QVERIFY(f.waitRead());
    }

    // The leak checker sees the groups behind the sub-groups' nodes.
    void groupTakesItsSubGroupsAlong()
    {
        GroupsFixture f;
        const int friends = FakeSdk::groups().last().id;
        const int inner = FakeSdk::addGroup("Inner", friends);
        FakeSdk::addGroup("Innermost", inner);
        FakeSdk::addGroup("Other", friends);
        f.build();
        f.tree()->expandAll();
        f.click(f.node("Friends"));
        f.treeAction("IDS_DEL_GROUP")->trigger();
        QVERIFY(f.waitRead());
        QCOMPARE(f.in().local()->childCount(), 0);
        QVERIFY(f.node("Innermost") == nullptr);
        QCOMPARE(f.tree()->currentItem(), f.in().local());
    }

    void subGroupMakesItsParentCurrent()
    {
        GroupsFixture f;
        FakeSdk::addGroup("Inner", FakeSdk::groups().last().id);
        f.build();
        f.click(f.node("Inner"));
        f.treeAction("IDS_DEL_GROUP")->trigger();
        QVERIFY(f.waitRead());
        QCOMPARE(f.tree()->currentItem(), f.node("Friends"));
        QCOMPARE(f.table()->rowCount(), 2);
    }

    void nodesBelowANodeAreFreed()
    {
        GroupsFixture f;
        const int friends = FakeSdk::groups().last().id;
        FakeSdk::addGroup("Innermost", FakeSdk::addGroup("Inner", friends));
        f.build();
        f.window()->removeChildNodes(f.node("Friends"));
        QCOMPARE(f.node("Friends")->childCount(), 0);
    }

    // A name whose only owner is the test again has left with its group's block.
    void blockOfAGroupGoesWithItsNode()
    {
        GroupsFixture f;
        f.build();
        const QString name = QString("The one and only");
        groupOf(treeNodeData(f.node("Friends")))->strName = name;
        QVERIFY(!name.isDetached());
        f.window()->removeTreeItem(f.in().local(), f.node("Friends"));
        QVERIFY(name.isDetached());
        // The value of a memory's node names no block.
        f.window()->removeTreeItem(f.tree()->invisibleRootItem(), f.in().device());
        QCOMPARE(f.tree()->topLevelItemCount(), 2);
    }

    void nothingNamesANodeThatWent()
    {
        GroupsFixture f;
        f.build();
        QTreeWidgetItem* node = f.node("Friends");
        f.click(node);
        f.in().entered() = node;
        f.in().groupParent() = node;
        f.in().editedGroup() = node;
        f.window()->removeTreeItem(f.in().local(), node);
        for (const QTreeWidgetItem* named : {f.in().entered(), f.in().groupParent(), f.in().editedGroup()})
            QVERIFY(named == nullptr);
        QVERIFY(f.in().current() != node);
        QVERIFY(f.tree()->m_pitemPrevious != node);
        f.window()->OnTreeItemSelectionChanged();
    }

    void nodeOfAnotherParentIsLeftAlone()
    {
        GroupsFixture f;
        f.build();
        f.window()->removeTreeItem(f.in().sim(), f.node("Friends"));
        f.window()->removeTreeItem(nullptr, f.node("Friends"));
        f.window()->removeTreeItem(f.in().local(), nullptr);
        QVERIFY(f.node("Friends") != nullptr);
        // The table hears again.
        f.selectRows({f.rowOf("Carl")});
        QVERIFY(f.previewText().contains("Carl"));
    }

    void groupGoesThoughTheModeChangesDuringTheQuestion()
    {
        GroupsFixture f;
        f.build();
        f.click(f.node("Friends"));
        FakeCore::onMessage([&f](const FakeCore::Message&) { f.window()->OnSysmodeChanged(); });
        f.treeAction("IDS_DEL_GROUP")->trigger();
        QVERIFY(f.in().sim() == nullptr);
        QVERIFY(f.node("Friends") == nullptr);
        QVERIFY(FakeSdk::groups().isEmpty());
        QVERIFY(f.waitRead());
        QCOMPARE(f.table()->rowCount(), 3);
    }

    void nodeThatGoesDuringTheQuestionIsNotTouched()
    {
        GroupsFixture f;
        f.build();
        f.click(f.node("Friends"));
        FakeCore::onMessage(
            [&f](const FakeCore::Message&) { f.window()->removeTreeItem(f.in().local(), f.node("Friends")); });
        f.treeAction("IDS_DEL_GROUP")->trigger();
        QCOMPARE(FakeSdk::count("DelGroup"), 0);
        QVERIFY(f.waitRead());
    }

    void eachStoreCallFailingLeavesAWholeTree()
    {
        for (int k = 1; k < 60; ++k) {
            GroupsFixture f;
            f.build();
            f.click(f.node("Friends"));
            FakeSdk::failCall(k);
            f.treeAction("IDS_DEL_GROUP")->trigger();
            const bool done = FakeSdk::failedCall().isEmpty();
            QVERIFY(f.waitRead());
            FakeSdk::clearFailures();
            QVERIFY(f.node("Friends") == nullptr);
            QCOMPARE(f.tree()->currentItem(), f.in().local());
            QCOMPARE(FakeSdk::recordIds(4).size(), 3);
            if (done && FakeSdk::failedCall().isEmpty())
                break;
        }
    }

    void withNothingCurrentNothingGoes()
    {
        GroupsFixture f;
        f.build();
        f.tree()->setCurrentItem(nullptr);
        f.window()->OnDeleteGroupClicked();
        QVERIFY(!GroupsFixture::writesToGroups());
        QVERIFY(f.node("Friends") != nullptr);
    }
};

QTEST_MAIN(DeleteGroupTest)
#include "DeleteGroupTest.moc"
