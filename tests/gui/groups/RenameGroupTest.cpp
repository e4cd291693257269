#include "GroupsFixture.h"

// A group renamed in place: its count stays out of the editor and of the store.
class RenameGroupTest : public WindowTest
{
    Q_OBJECT

private slots:
    void editorShowsTheNameWithoutItsCount()
    {
        GroupsFixture f;
        f.build();
        QTreeWidgetItem* node = f.node("Friends(2)");
        QLineEdit* editor = f.startRename(node);
        QVERIFY(editor != nullptr);
        QCOMPARE(f.in().editedGroup(), node);
        QCOMPARE(f.in().oldGroupName(), QString("Friends(2)"));
        QCOMPARE(editor->text(), QString("Friends"));
        QCOMPARE(editor->selectedText(), QString("Friends"));
        QVERIFY(node->text(0).isEmpty());
        QVERIFY(node->flags() & Qt::ItemIsEditable);
    }

    void nameIsStoredBareAndShownWithItsCount()
    {
        GroupsFixture f;
        f.build();
        QTreeWidgetItem* node = f.node("Friends(2)");
        GroupsFixture::type(f.startRename(node), "Pals");
        QCOMPARE(GroupsFixture::storedNames(), QStringList("Pals"));
        QCOMPARE(node->text(0), QString("Pals(2)"));
        QVERIFY(!(node->flags() & Qt::ItemIsEditable));
        QVERIFY(f.in().editedGroup() == nullptr);
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(!f.usageReported());
        // The node's own record keeps the old name until the groups are read again.
        QCOMPARE(groupOf(treeNodeData(node))->strName, QString("Friends"));
        f.window()->rePaintTree();
        QCOMPARE(groupOf(treeNodeData(node))->strName, QString("Pals"));
        QCOMPARE(node->text(0), QString("Pals(2)"));
    }

    void textWithoutParenthesesOpensAnEmptyEditor()
    {
        GroupsFixture f;
        f.build();
        f.click(f.node("Friends"));
        f.node("Friends")->setText(0, "Friends");
        f.window()->OnRenameGroupClicked();
        QCOMPARE(f.editor()->text(), QString());
        GroupsFixture::type(f.editor(), "Pals");
        QVERIFY(f.node("Pals") != nullptr);
        QCOMPARE(f.node("Pals")->text(0), QString("Pals"));
    }

    void renameToTheSameNameCallsNothing()
    {
        GroupsFixture f;
        f.build();
        QLineEdit* editor = f.startRename(f.node("Friends"));
        FakeSdk::clearCalls();
        GroupsFixture::press(editor, Qt::Key_Return);
        QCOMPARE(FakeSdk::totalCalls(), 0);
        QVERIFY(f.node("Friends(2)") != nullptr);
        QVERIFY(!(f.node("Friends(2)")->flags() & Qt::ItemIsEditable));
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void renameToAnotherCaseIsARename()
    {
        GroupsFixture f;
        f.build();
        GroupsFixture::type(f.startRename(f.node("Friends")), "FRIENDS");
        QCOMPARE(GroupsFixture::storedNames(), QStringList("FRIENDS"));
    }

    void blankNameBringsTheOldOneBack_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("key");
        QTest::newRow("nothing") << "" << int(Qt::Key_Return);
        QTest::newRow("blanks") << "   " << int(Qt::Key_Return);
        QTest::newRow("nothing, by Escape") << "" << int(Qt::Key_Escape);
    }
    void blankNameBringsTheOldOneBack()
    {
        QFETCH(QString, name);
        QFETCH(int, key);
        GroupsFixture f;
        f.build();
        QTreeWidgetItem* node = f.node("Friends");
        GroupsFixture::type(f.startRename(node), name, Qt::Key(key));
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_GROUP_NAME_NULL"));
        QCOMPARE(node->text(0), QString("Friends(2)"));
        QCOMPARE(f.tree()->currentItem(), node);
        QVERIFY(f.in().editedGroup() == nullptr);
        QVERIFY(!GroupsFixture::writesToGroups());
    }

    void blanksAreSavedWithTheName()
    {
        GroupsFixture f;
        f.build();
        GroupsFixture::type(f.startRename(f.node("Friends")), " My  pals ");
        QCOMPARE(GroupsFixture::storedNames(), QStringList(" My  pals "));
        QVERIFY(f.node(" My  pals (2)") != nullptr);
    }

    void escapeEndsLikeReturn()
    {
        GroupsFixture f;
        f.build();
        GroupsFixture::type(f.startRename(f.node("Friends")), "Pals", Qt::Key_Escape);
        QCOMPARE(GroupsFixture::storedNames(), QStringList("Pals"));
        QVERIFY(f.node("Pals(2)") != nullptr);
    }

    void takenNameBringsTheOldOneBackAndLeavesTheNodeEditable()
    {
        GroupsFixture f;
        FakeSdk::addGroup("Work");
        f.build();
        QTreeWidgetItem* node = f.node("Friends");
        GroupsFixture::type(f.startRename(node), "Work");
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_GROUP_NAME_REPEAT"));
        QCOMPARE(node->text(0), QString("Friends(2)"));
        QCOMPARE(GroupsFixture::storedNames(), QStringList({"Friends", "Work"}));
        QVERIFY(node->flags() & Qt::ItemIsEditable);
        QVERIFY(f.in().editedGroup() == nullptr);
    }

    void nameIsFreeBelowAnotherParent()
    {
        GroupsFixture f;
        const int friends = FakeSdk::groups().last().id;
        FakeSdk::addGroup("Work", friends);
        f.build();
        GroupsFixture::type(f.startRename(f.node("Friends")), "Work");
        QVERIFY(FakeCore::messages().isEmpty());
        QCOMPARE(GroupsFixture::storedNames(), QStringList({"Work", "Work"}));
    }

    void eachStoreCallFailingBringsTheOldNameBackInSilence()
    {
        QStringList failed;
        for (int k = 1; k < 40; ++k) {
            GroupsFixture f;
            f.build();
            QTreeWidgetItem* node = f.node("Friends");
            QLineEdit* editor = f.startRename(node);
            QTest::keyClicks(editor, "Pals"); // over the selection
            FakeSdk::failCall(k);
            GroupsFixture::press(editor, Qt::Key_Return);
            const QByteArray name = FakeSdk::failedCall();
            FakeSdk::clearFailures();
            const bool stored = GroupsFixture::storedNames() == QStringList("Pals");
            QCOMPARE(node->text(0), QString(stored ? "Pals(2)" : "Friends(2)"));
            QCOMPARE(bool(node->flags() & Qt::ItemIsEditable), !stored);
            QVERIFY(f.in().editedGroup() == nullptr);
            QVERIFY2(FakeCore::messages().isEmpty(), name.constData());
            if (!stored)
                failed << name;
            if (name.isEmpty())
                break;
        }
        for (const char* call :
             {"GetGroupList", "AddrGroupSet_GetName", "CreateAddrGroup", "AddrGroup_SetName", "UpdateGroup"})
            QVERIFY2(failed.contains(call), call);
    }

    void doubleClickOnAGroupRenamesIt()
    {
        GroupsFixture f;
        f.build();
        QTreeWidgetItem* node = f.node("Friends");
        f.click(node);
        const QPoint at = f.tree()->visualItemRect(node).center();
        QTest::mouseClick(f.tree()->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(f.tree()->viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(f.in().editedGroup(), node);
        QVERIFY(f.editor() != nullptr);
        QCOMPARE(f.editor()->text(), QString("Friends"));
    }

    void doubleClickOnARootOpensAndClosesIt()
    {
        GroupsFixture f;
        f.build();
        const QPoint at = f.tree()->visualItemRect(f.in().local()).center();
        QVERIFY(f.in().local()->isExpanded());
        for (const bool expanded : {false, true}) {
            QTest::mouseClick(f.tree()->viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(f.tree()->viewport(), Qt::LeftButton, {}, at);
            QCOMPARE(f.in().local()->isExpanded(), expanded);
            QVERIFY(f.in().editedGroup() == nullptr);
        }
        f.window()->OnTreeDoubleClicked(f.in().sim());
        f.window()->OnTreeDoubleClicked(f.in().device());
        QVERIFY(f.in().editedGroup() == nullptr);
    }

    // It is the current node that is renamed, not the one clicked.
    void doubleClickActsOnTheCurrentNode()
    {
        GroupsFixture f;
        FakeSdk::addGroup("Work");
        f.build();
        f.click(f.node("Friends"));
        f.window()->OnTreeDoubleClicked(f.node("Work"));
        QVERIFY(f.in().editedGroup() != nullptr);
        QCOMPARE(f.in().oldGroupName(), QString("Friends(2)"));
    }

    void withNothingCurrentNothingHappens()
    {
        GroupsFixture f;
        f.build();
        f.tree()->setCurrentItem(nullptr);
        f.window()->OnRenameGroupClicked();
        f.window()->OnNewGroupClicked();
        QVERIFY(f.in().editedGroup() == nullptr);
        QCOMPARE(f.in().local()->childCount(), 1);
    }

    void closingFromOutsideSavesTheName()
    {
        GroupsFixture f;
        f.build();
        QTreeWidgetItem* node = f.node("Friends");
        QTest::keyClicks(f.startRename(node), "Pals");
        f.window()->CloseEditor();
        QCOMPARE(GroupsFixture::storedNames(), QStringList("Pals"));
        QCOMPARE(node->text(0), QString("Pals(2)"));
        QCOMPARE(f.tree()->currentItem(), node);
        QVERIFY(f.editorOf(node) == nullptr);
        QVERIFY(!f.in().closingEditor());
        QVERIFY(f.waitRead());
    }

    void changeOfLanguageBringsTheOldNameBackForABlankOne()
    {
        GroupsFixture f;
        f.build();
        QTreeWidgetItem* node = f.node("Friends");
        f.startRename(node)->clear();
        f.window()->SetLanguage();
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_GROUP_NAME_NULL"));
        QCOMPARE(node->text(0), QString("Friends(2)"));
        QVERIFY(f.waitRead());
    }

    void cardThatGoesUnderTheEditorLeavesItOpen()
    {
        GroupsFixture f;
        f.build();
        QTreeWidgetItem* node = f.node("Friends");
        QLineEdit* editor = f.startRename(node);
        f.window()->OnSimDisabled(true);
        QVERIFY(f.in().sim() == nullptr);
        GroupsFixture::type(editor, "Pals");
        QCOMPARE(node->text(0), QString("Pals(2)"));
    }

    void nodeThatGoesUnderTheEditorIsForgotten()
    {
        GroupsFixture f;
        f.build();
        QTreeWidgetItem* node = f.node("Friends");
        const QPointer<QLineEdit> editor = f.startRename(node);
        f.window()->removeTreeItem(f.in().local(), node);
        QVERIFY(f.in().editedGroup() == nullptr);
        if (editor != nullptr)
            f.window()->OnEditorClosed(editor);
        QVERIFY(!GroupsFixture::writesToGroups());
    }
};

QTEST_MAIN(RenameGroupTest)
#include "RenameGroupTest.moc"
