#include "ContactsSupport.h"

// The shortcuts of the contacts and groups by the widget that has the focus, and the ways to a number picker.
class ContactShortcutsTest : public WindowTest
{
    Q_OBJECT

private slots:
    void shortcutOfANewGroupWithTheFocusOnTheTableDoesNothing()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.table()->setFocus();
        QVERIFY(!f.tree()->hasFocus());
        const int before = f.in().local()->childCount();
        f.window()->OnShortKeyNewGroup();
        QCOMPARE(f.in().local()->childCount(), before);
        f.click(f.node("Friends"));
        f.table()->setFocus();
        const QString text = f.node("Friends")->text(0);
        f.window()->OnShortKeyRenameGroup();
        QCOMPARE(f.node("Friends")->text(0), text);
        // With the focus on the tree they act.
        f.tree()->setFocus();
        f.click(f.in().local());
        f.window()->OnShortKeyNewGroup();
        QCOMPARE(f.in().local()->childCount(), before + 1);
    }

    void shortcutOfARenameOpensTheEditorOfTheCurrentGroup()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.node("Friends"));
        QTreeWidgetItem* const node = f.tree()->currentItem();
        f.tree()->setFocus();
        f.window()->OnShortKeyRenameGroup();
        QCOMPARE(f.in().editedGroup(), node);
        QVERIFY(f.tree()->itemWidget(node, 0) != nullptr);
    }

    void shortcutOfDeleteFollowsTheFocus()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.node("Friends"));
        f.selectRows({0});
        FakeCore::answer(QMessageBox::Cancel);
        FakeCore::answer(QMessageBox::Cancel);
        f.table()->setFocus();
        f.window()->OnShortKeyDel();
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_FLEXIT_UI_DELETE_ITEM"));
        f.tree()->setFocus();
        f.window()->OnShortKeyDel();
        QCOMPARE(FakeCore::messageTexts(), QStringList({"IDS_FLEXIT_UI_DELETE_ITEM", "IDS_DELETE_GROUP"}));
    }

    void shortcutOfEditOpensTheFormWhateverHasTheFocus()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0});
        FormUser user([](AddrBookEditDlgAccess) {});
        f.table()->setFocus();
        f.window()->OnShortKeyEditContact();
        f.tree()->setFocus();
        f.window()->OnShortKeyEditContact();
        QCOMPARE(user.forms(), 2);
    }

    // ---- Forwarders to the number picker ---------------------------------------------------------------------------

    void forwardersWithoutAPickerDoNothing()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeSdk::clearCalls();
        f.window()->OnAddSelectDialogContact(4, 1, 0);
        QCOMPARE(FakeSdk::count("GetAddrRecord"), 1);
        f.window()->OnDeleteSelectDialogContact(4, 1);
        f.window()->OnRemoveContactFromGroup(4, 1, 1);
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
        QCOMPARE(f.table()->rowCount(), 3);
    }
};

QTEST_MAIN(ContactShortcutsTest)
#include "ContactShortcutsTest.moc"
