#include <QSignalSpy>

#include "GroupsFixture.h"
#include "frame/AddrBookUIService.h"

// A new group: a node with an empty editor, which becomes a group when a name is in it.
class NewGroupTest : public WindowTest
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        qApp->setLayoutDirection(Qt::LeftToRight);
        WindowTest::cleanup();
    }

    void opensAnEmptyEditorBelowTheRoot()
    {
        GroupsFixture f;
        f.build();
        QLineEdit* editor = f.startNew();
        QVERIFY(editor != nullptr);
        QCOMPARE(editor->text(), QString());
        QTreeWidgetItem* node = f.in().editedGroup();
        QCOMPARE(node->parent(), f.in().local());
        QCOMPARE(f.tree()->currentItem(), node);
        QCOMPARE(f.in().groupParent(), f.in().local());
        QVERIFY(f.in().local()->isExpanded());
        QVERIFY(node->flags() & Qt::ItemIsEditable);
        QCOMPARE(node->sizeHint(0), QSize(25, 20));
        QCOMPARE(node->icon(0).pixmap(16, 16).toImage().pixelColor(12, 8), QColor(210, 0, 0));
        QVERIFY(treeNodeData(node) == nullptr); // it stands for nothing yet
        QVERIFY(f.in().newGroupPending());
        QVERIFY(!GroupsFixture::writesToGroups());
    }

    void nameBecomesAGroup()
    {
        GroupsFixture f;
        f.build();
        QLineEdit* editor = f.startNew();
        QTreeWidgetItem* node = f.in().editedGroup();
        GroupsFixture::type(editor, "Work");
        QCOMPARE(GroupsFixture::storedNames(), QStringList({"Friends", "Work"}));
        QCOMPARE(FakeSdk::groups().last().parent, 0);
        QCOMPARE(node->text(0), QString("Work(0)"));
        const AddrBookGroup* group = groupOf(treeNodeData(node));
        QVERIFY(group != nullptr);
        QCOMPARE(group->iGroupID, FakeSdk::groups().last().id);
        QCOMPARE(group->iParentID, 0);
        QCOMPARE(group->strName, QString("Work")); // bare
        QCOMPARE(group->iSize, 0);
        QVERIFY(!(node->flags() & Qt::ItemIsEditable));
        QCOMPARE(f.tree()->currentItem(), f.in().local()); // the parent, not the new node
        QVERIFY(f.in().editedGroup() == nullptr);
        QVERIFY(f.usageReported());
        QVERIFY(!f.in().newGroupPending());
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(f.waitRead());
    }

    void blankNameIsRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("nothing") << "";
        QTest::newRow("one blank") << " ";
        QTest::newRow("blanks") << "     ";
    }
    void blankNameIsRefused()
    {
        QFETCH(QString, name);
        GroupsFixture f;
        f.build();
        const int children = f.in().local()->childCount();
        GroupsFixture::type(f.startNew(), name);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_GROUP_NAME_NULL"));
        const FakeCore::Message message = FakeCore::messages().last();
        QCOMPARE(message.icon, QMessageBox::Information);
        QCOMPARE(message.caption, QString("IDS_PROMPT_CAPTION"));
        QCOMPARE(message.buttons, QStringList("IDS_OK"));
        QVERIFY(message.flag && message.modal);
        QCOMPARE(message.windowFlags, Qt::WindowFlags(Qt::WindowCloseButtonHint));
        QCOMPARE(f.in().local()->childCount(), children);
        QCOMPARE(f.tree()->currentItem(), f.in().local());
        QCOMPARE(f.in().current(), f.in().local());
        QVERIFY(f.in().editedGroup() == nullptr);
        QVERIFY(!GroupsFixture::writesToGroups());
        QVERIFY(!f.usageReported());
        QVERIFY(f.in().newGroupPending());
    }

    // A tabulator or a no-break space is no blank.
    void blanksAreSavedWithTheName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("before") << " Work";
        QTest::newRow("between") << "At  Work";
        QTest::newRow("behind") << "Work ";
        QTest::newRow("a no-break space alone") << QString(QChar(0xa0));
    }
    void blanksAreSavedWithTheName()
    {
        QFETCH(QString, name);
        GroupsFixture f;
        f.build();
        GroupsFixture::type(f.startNew(), name);
        QCOMPARE(GroupsFixture::storedNames().last(), name);
        QVERIFY(f.node(name + "(0)") != nullptr);
    }

    void parenthesesOfItsOwnStandBeforeTheCount()
    {
        GroupsFixture f;
        f.build();
        GroupsFixture::type(f.startNew(), "A(1)");
        QCOMPARE(GroupsFixture::storedNames().last(), QString("A(1)"));
        QTreeWidgetItem* node = f.node("A(1)(0)");
        QVERIFY(node != nullptr);
        QLineEdit* editor = f.startRename(node);
        QCOMPARE(editor->text(), QString("A(1)"));
        QCOMPARE(editor->selectedText(), QString("A(1)"));
        GroupsFixture::type(editor, "B(2)");
        QCOMPARE(node->text(0), QString("B(2)(0)"));
        QCOMPARE(GroupsFixture::storedNames().last(), QString("B(2)"));
    }

    void editorTakesThirtyTwoCharacters()
    {
        GroupsFixture f;
        f.build();
        GroupsFixture::type(f.startNew(), QString(40, 'x'));
        QCOMPARE(GroupsFixture::storedNames().last(), QString(32, 'x'));
    }

    void numberOfGroupsHasNoLimit()
    {
        GroupsFixture f;
        f.build();
        for (int i = 0; i < 60; ++i)
            GroupsFixture::type(f.startNew(), QString("Group %1").arg(i));
        QCOMPARE(f.in().local()->childCount(), 61);
        QCOMPARE(FakeSdk::groups().size(), 61);
    }

    void namesThatDifferInCaseAreDifferent()
    {
        GroupsFixture f;
        f.build();
        GroupsFixture::type(f.startNew(), "friends");
        QCOMPARE(GroupsFixture::storedNames(), QStringList({"Friends", "friends"}));
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void takenNameIsRefused()
    {
        GroupsFixture f;
        f.build();
        GroupsFixture::type(f.startNew(), "Friends");
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_GROUP_NAME_REPEAT"));
        QCOMPARE(FakeCore::messages().last().icon, QMessageBox::Information);
        QCOMPARE(FakeCore::messages().last().caption, QString("IDS_PROMPT_CAPTION"));
        QCOMPARE(FakeCore::messages().last().buttons, QStringList("IDS_OK"));
        QCOMPARE(f.in().local()->childCount(), 1);
        QCOMPARE(f.tree()->currentItem(), f.in().local());
        QCOMPARE(GroupsFixture::storedNames(), QStringList("Friends"));
        QVERIFY(!f.usageReported());
    }

    // A name may stand twice below different parents.
    void takenNameOfAnotherParentIsFree()
    {
        GroupsFixture f;
        FakeSdk::addGroup("Inner", FakeSdk::groups().last().id);
        f.build();
        GroupsFixture::type(f.startNew(), "Inner");
        QCOMPARE(GroupsFixture::storedNames(), QStringList({"Friends", "Inner", "Inner"}));
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void parentIsTheRootWithARootOrAGroupCurrent()
    {
        GroupsFixture f;
        f.build();
        f.click(f.node("Friends"));
        GroupsFixture::type(f.startNew(), "Beside");
        QCOMPARE(FakeSdk::groups().last().parent, 0);
        QCOMPARE(f.node("Beside")->parent(), f.in().local());
        f.click(f.in().local());
        GroupsFixture::type(f.startNew(), "Below");
        QCOMPARE(FakeSdk::groups().last().parent, 0);
        QCOMPARE(f.node("Below")->parent(), f.in().local());
    }

    // Its node stands beside the sub-group, though the store has it at the root.
    void groupBesideASubGroupBelongsToTheRoot()
    {
        GroupsFixture f;
        FakeSdk::addGroup("Inner", FakeSdk::groups().last().id);
        f.build();
        f.click(f.node("Inner"));
        GroupsFixture::type(f.startNew(), "New");
        QCOMPARE(f.node("New")->parent(), f.node("Friends"));
        QCOMPARE(FakeSdk::groups().last().parent, 0);
    }

    void withTheCardCurrentNothingIsSeenButTheNextRenameReports()
    {
        GroupsFixture f;
        f.build();
        f.click(f.in().sim());
        f.window()->OnNewGroupClicked();
        QVERIFY(f.in().editedGroup() == nullptr);
        QCOMPARE(f.in().local()->childCount(), 1);
        QCOMPARE(f.tree()->currentItem(), f.in().sim());
        QVERIFY(f.in().newGroupPending());
        QVERIFY(!f.usageReported());
        GroupsFixture::type(f.startRename(f.node("Friends")), "Pals");
        QVERIFY(f.usageReported());
        QVERIFY(!f.in().newGroupPending());
    }

    void escapeEndsLikeReturn()
    {
        GroupsFixture f;
        f.build();
        GroupsFixture::type(f.startNew(), "Work", Qt::Key_Escape);
        QCOMPARE(GroupsFixture::storedNames().last(), QString("Work"));
        QVERIFY(f.node("Work(0)") != nullptr);
        GroupsFixture::type(f.startNew(), "", Qt::Key_Escape);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_GROUP_NAME_NULL"));
        QCOMPARE(f.in().local()->childCount(), 2);
    }

    void clickElsewhereSaves()
    {
        GroupsFixture f;
        f.build();
        QTest::keyClicks(f.startNew(), "Work");
        f.table()->setFocus();
        QVERIFY(QTest::qWaitFor([] { return FakeSdk::count("AddGroup") == 1; }));
        QVERIFY(f.node("Work(0)") != nullptr);
        QVERIFY(f.waitRead());
    }

    void groupCanBeUsedAtOnce()
    {
        GroupsFixture f;
        f.build();
        GroupsFixture::type(f.startNew(), "Work");
        f.click(f.node("Work(0)"));
        QCOMPARE(f.table()->rowCount(), 0);
        f.click(f.node("Friends"));
        QCOMPARE(f.table()->rowCount(), 2);
    }

    void countIsCorrectedInRightToLeftLayouts()
    {
        GroupsFixture f;
        FakeCore::setParenthesisCorrection([](QString& text) { text += "'"; });
        qApp->setLayoutDirection(Qt::RightToLeft);
        f.build();
        GroupsFixture::type(f.startNew(), "Work");
        QVERIFY(f.node("Work(0)'") != nullptr);
        QCOMPARE(f.node("Work(0)'")->text(0), QString("Work(0)'")); // once
        QCOMPARE(GroupsFixture::storedNames().last(), QString("Work"));
    }

    void eachStoreCallFailingDropsTheNodeInSilence()
    {
        QStringList failed;
        for (int k = 1; k < 40; ++k) {
            GroupsFixture f;
            f.build();
            QLineEdit* editor = f.startNew();
            QVERIFY(editor != nullptr);
            QTest::keyClicks(editor, "Work");
            FakeSdk::failCall(k);
            GroupsFixture::press(editor, Qt::Key_Return);
            const QByteArray name = FakeSdk::failedCall();
            FakeSdk::clearFailures();
            QVERIFY(f.waitRead());
            QVERIFY(f.in().editedGroup() == nullptr);
            QCOMPARE(f.tree()->currentItem(), f.in().local());
            const bool stored = GroupsFixture::storedNames().contains("Work");
            QCOMPARE(f.in().local()->childCount(), stored ? 2 : 1);
            QCOMPARE(f.node("Work(0)") != nullptr, stored);
            QVERIFY2(FakeCore::messages().isEmpty(), name.constData());
            if (!stored)
                failed << name;
            if (name.isEmpty())
                break;
        }
        for (const char* call : {"GetGroupList", "AddrGroupSet_GetName", "CreateAddrGroup", "AddrGroup_SetName",
                                 "AddrGroup_SetParentID", "AddGroup"})
            QVERIFY2(failed.contains(call), call);
    }

    void closingFromOutsideSavesTheName()
    {
        GroupsFixture f;
        f.build();
        QTest::keyClicks(f.startNew(), "Work");
        f.window()->CloseEditor();
        QCOMPARE(GroupsFixture::storedNames().last(), QString("Work"));
        QTreeWidgetItem* node = f.node("Work(0)");
        QVERIFY(node != nullptr);
        QCOMPARE(f.tree()->currentItem(), node); // nothing was dropped: current again
        QVERIFY(f.editorOf(node) == nullptr);
        QVERIFY(f.in().editedGroup() == nullptr);
        QVERIFY(!f.in().closingEditor());
        QVERIFY(f.waitRead());
    }

    void closingFromOutsideDropsANodeWithoutAName()
    {
        GroupsFixture f;
        f.build();
        QVERIFY(f.startNew() != nullptr);
        f.window()->CloseEditor();
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_GROUP_NAME_NULL"));
        QCOMPARE(f.in().local()->childCount(), 1);
        QCOMPARE(f.tree()->currentItem(), f.in().local());
        QVERIFY(!f.in().closingEditor());
    }

    void closingFromOutsideWithNothingCurrentLeavesItsMark()
    {
        GroupsFixture f;
        f.build();
        f.tree()->setCurrentItem(nullptr);
        f.window()->CloseEditor();
        QVERIFY(f.in().closingEditor());
        f.click(f.in().local());
        f.window()->CloseEditor();
        QVERIFY(!f.in().closingEditor());
    }

    void closingFromOutsideWithoutAnEditorKeepsTheCurrentGroup()
    {
        GroupsFixture f;
        f.build();
        f.click(f.node("Friends"));
        f.window()->CloseEditor();
        QCOMPARE(f.tree()->currentItem(), f.node("Friends"));
        QVERIFY(f.waitRead());
        QCOMPARE(f.table()->rowCount(), 2);
        QVERIFY(!GroupsFixture::writesToGroups());
    }

    void changeOfLanguageSavesTheName()
    {
        GroupsFixture f;
        f.build();
        QTest::keyClicks(f.startNew(), "Work");
        f.window()->SetLanguage();
        QCOMPARE(GroupsFixture::storedNames().last(), QString("Work"));
        QVERIFY(f.node("Work(0)") != nullptr);
        QVERIFY(f.in().editedGroup() == nullptr);
        QVERIFY(f.waitRead());
    }

    void hidingThePageSavesTheName()
    {
        GroupsFixture f; // the stores; the window is the service's
        CAddrBookUIService* service = CAddrBookUIService::instance();
        QVERIFY(service->Init());
        QRect rect(0, 0, 900, 600);
        QVERIFY(service->ShowWindow(nullptr, rect));
        AddrBookDlg* window = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "AddrBookUIPlugin_MainWidget")
                window = qobject_cast<AddrBookDlg*>(widget);
        }
        QVERIFY(window != nullptr);
        const AddrBookDlgAccess in{window};
        window->OnNewGroupClicked();
        auto* editor = qobject_cast<QLineEdit*>(in.tree()->itemWidget(in.editedGroup(), 0));
        QVERIFY(editor != nullptr);
        QTest::keyClicks(editor, "Work");
        bool isSavedInSight = false;
        FakeSdk::onCall("AddGroup", 1, [&] { isSavedInSight = !window->isHidden(); });
        service->Hide();
        QVERIFY(window->isHidden());
        QVERIFY(isSavedInSight);
        QCOMPARE(GroupsFixture::storedNames().last(), QString("Work"));
        QVERIFY(in.editedGroup() == nullptr);
        service->unSDKRegisterEvent();
        service->Destroy();
    }
};

QTEST_MAIN(NewGroupTest)
#include "NewGroupTest.moc"
