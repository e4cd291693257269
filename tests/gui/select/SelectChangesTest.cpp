#include "SelectSupport.h"

// Single changes of contacts and groups.
class SelectChangesTest : public SelectTest
{
    Q_OBJECT

    typedef QList<QString> Values;

private slots:
    void anAddedContactIsTheLastChild()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        FakeSdk::addGroup("Friends");
        Picker picker;
        QVERIFY(picker.waitFilled());
        const int bob = FakeSdk::addRecord(4, {"Bob", "222"});
        picker.dialog->OnAddContact(PB_MEM_LOCAL, 0, bob, Values{"Bob", "222"});
        QCOMPARE(picker.lines(), (QStringList{"PC(2)", " Ada", "  m 111", " Friends(0)", " Bob", "  m 222"}));
        QCOMPARE(picker.access.contactsInIndex(4, 0).size(), 2);
    }

    void anAddedContactOfAGroupRenewsBothCounts()
    {
        const int group = FakeSdk::addGroup("Friends");
        Picker picker;
        QVERIFY(picker.waitFilled());
        const int bob = FakeSdk::addRecord(4, {"Bob", "222"});
        FakeSdk::join(group, bob);
        picker.dialog->OnAddContact(PB_MEM_LOCAL, group, bob, Values{"Bob", "222"});
        QCOMPARE(picker.lines(), (QStringList{"PC(1)", " Friends(1)", "  Bob", "   m 222"}));
    }

    void aContactForAnUnknownPlaceIsDropped()
    {
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.dialog->OnAddContact(PB_MEM_LOCAL, 77, 1, Values{"Bob", "222"});
        picker.dialog->OnAddContact(PB_MEM_SIM, 0, 1, Values{"Bob", "222"});
        QCOMPARE(picker.lines(), QStringList("PC(0)"));
    }

    void theCountOfACardsNodeIsThePcs()
    {
        FakeSdk::setMemoryList({0});
        FakeSdk::addRecord(4, {"Ada", "1"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.dialog->OnAddContact(PB_MEM_SIM, 0, 9, Values{"Eve", "5"});
        QCOMPARE(picker.lines(), (QStringList{"PC(1)", " Ada", "  m 1", "Card(1)", " Eve", "  m 5"}));
        FakeSdk::addRecord(4, {"Bob", "2"});
        picker.dialog->OnDeleteContact(PB_MEM_SIM, 9);
        QCOMPARE(picker.lines(), (QStringList{"PC(1)", " Ada", "  m 1", "Card(2)"}));
    }

    void aContactThatJoinsAGroupLeavesTheRoot()
    {
        const int ada = FakeSdk::addRecord(4, {"Ada", "111"});
        FakeSdk::addRecord(4, {"Bob", "222"});
        const int group = FakeSdk::addGroup("Friends");
        Picker picker;
        QVERIFY(picker.waitFilled());
        FakeSdk::join(group, ada);
        picker.dialog->OnAddContactToGroup(PB_MEM_LOCAL, group, ada, Values{"Ada", "111"});
        QCOMPARE(picker.lines(), (QStringList{"PC(2)", " Bob", "  m 222", " Friends(1)", "  Ada", "   m 111"}));
        QCOMPARE(picker.access.contactsInIndex(4, 0).size(), 1);
        QCOMPARE(picker.access.contactsInIndex(4, group), QList<int>{ada});
    }

    void aContactRemovedFromItsLastGroupVanishes()
    {
        const int ada = FakeSdk::addRecord(4, {"Ada", "111"});
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, ada);
        Picker picker;
        QVERIFY(picker.waitFilled());
        ORVA_PBSrv_DelAddrFromGroup(group, ada, 4);
        picker.dialog->OnRemoveContactFromGroup(PB_MEM_LOCAL, ada, group);
        QCOMPARE(picker.lines(), (QStringList{"PC(1)", " Friends(0)"}));
    }

    void aContactRemovedFromOneOfTwoGroupsStaysInTheOther()
    {
        const int ada = FakeSdk::addRecord(4, {"Ada", "111"});
        const int friends = FakeSdk::addGroup("Friends");
        FakeSdk::join(friends, ada);
        FakeSdk::join(FakeSdk::addGroup("Work"), ada);
        Picker picker;
        QVERIFY(picker.waitFilled());
        ORVA_PBSrv_DelAddrFromGroup(friends, ada, 4);
        picker.dialog->OnRemoveContactFromGroup(PB_MEM_LOCAL, ada, friends);
        QCOMPARE(picker.lines(), (QStringList{"PC(1)", " Friends(0)", " Work(1)", "  Ada", "   m 111"}));
    }

    void aContactThatIsNowhereTakesTheLastChildToTheRoot()
    {
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, FakeSdk::addRecord(4, {"Ada", "111"}));
        FakeSdk::join(group, FakeSdk::addRecord(4, {"Bob", "222"}));
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.dialog->OnRemoveContactFromGroup(PB_MEM_LOCAL, 99, group);
        QCOMPARE(picker.lines(), (QStringList{"PC(2)", " Friends(2)", "  Ada", "   m 111", " Bob", "  m 222"}));
    }

    void aContactThatIsElsewhereTakesTheLastChildAway()
    {
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, FakeSdk::addRecord(4, {"Ada", "111"}));
        const int bob = FakeSdk::addRecord(4, {"Bob", "222"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.dialog->OnRemoveContactFromGroup(PB_MEM_LOCAL, bob, group);
        QCOMPARE(picker.lines(), (QStringList{"PC(2)", " Bob", "  m 222", " Friends(1)"}));
    }

    void aSubGroupThatStandsInIsForgotten()
    {
        const int outer = FakeSdk::addGroup("Outer");
        const int inner = FakeSdk::addGroup("Inner", outer);
        const int bob = FakeSdk::addRecord(4, {"Bob", "222"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.dialog->OnRemoveContactFromGroup(PB_MEM_LOCAL, bob, outer);
        QCOMPARE(picker.lines(), (QStringList{"PC(1)", " Bob", "  m 222", " Outer(0)"}));
        QVERIFY(picker.dialog->findNode(PB_MEM_LOCAL, inner) == nullptr);
        picker.dialog->OnAddContact(PB_MEM_LOCAL, inner, 5, Values{"Cid", "3"});
        picker.dialog->OnUpdateGroup(PB_MEM_LOCAL, inner, "Gone");
        picker.dialog->OnDeleteGroup(PB_MEM_LOCAL, inner);
        QCOMPARE(picker.lines().size(), 4);
    }

    void removalFromAnEmptyOrUnknownGroupChangesNothing()
    {
        const int group = FakeSdk::addGroup("Friends");
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.dialog->OnRemoveContactFromGroup(PB_MEM_LOCAL, 1, group);
        picker.dialog->OnRemoveContactFromGroup(PB_MEM_LOCAL, 1, 99);
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", " Friends(0)"}));
    }

    void anUpdateRebuildsAndUnticksTheContactInBothGroups()
    {
        const int ada = FakeSdk::addRecord(4, {"Ada", "111"});
        FakeSdk::join(FakeSdk::addGroup("Friends"), ada);
        FakeSdk::join(FakeSdk::addGroup("Work"), ada);
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"PC"}));
        picker.dialog->OnUpdateContact(PB_MEM_LOCAL, ada, Values{"Ada L", "999", "", "333"});
        QCOMPARE(picker.lines(true), (QStringList{"*PC(1)", " *Friends(1)", "  Ada L", "   m 999", "   h 333",
                                                  " *Work(1)", "  Ada L", "   m 999", "   h 333"}));
        QCOMPARE(picker.chosen(), (QStringList{"111", "111"})); // not touched
        QVERIFY(picker.access.leaf(picker.item({"PC", "Work", "Ada L"}))->strValue.isNull());
        QCOMPARE(picker.access.leaf(picker.item({"PC", "Work", "Ada L", "m 999"}))->strName, QString("Ada L"));
    }

    void anUpdateWithoutANameShowsTheValueBehindIt()
    {
        const int ada = FakeSdk::addRecord(4, {"Ada", "111"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.dialog->OnUpdateContact(PB_MEM_LOCAL, ada, Values{"", "222", "333"});
        QCOMPARE(picker.lines(), (QStringList{"PC(1)", " 222", "  m 222", "  o 333"}));
        QCOMPARE(picker.access.leaf(picker.item({"PC", "222", "o 333"}))->strName, QString());
        picker.dialog->OnUpdateContact(PB_MEM_LOCAL, ada, Values{"", "", "333"});
        QCOMPARE(picker.lines(), (QStringList{"PC(1)", " ", "  o 333"}));
    }

    void aContactAtTheRootAndInAGroupIsDeletedInBothPlaces()
    {
        const int ada = FakeSdk::addRecord(4, {"Ada", "111"});
        const int bob = FakeSdk::addRecord(4, {"Bob", "222"});
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, bob);
        Picker picker;
        QVERIFY(picker.waitFilled());
        FakeSdk::join(group, ada);
        picker.dialog->OnAddContact(PB_MEM_LOCAL, group, ada, Values{"Ada", "111"});
        QCOMPARE(picker.lines(),
                 (QStringList{"PC(2)", " Ada", "  m 111", " Friends(2)", "  Bob", "   m 222", "  Ada", "   m 111"}));
        QCOMPARE(ORVA_PBSrv_DelAddrRec(ada, 4), 0L);
        picker.dialog->OnDeleteContact(PB_MEM_LOCAL, ada);
        QCOMPARE(picker.lines(), (QStringList{"PC(1)", " Friends(1)", "  Bob", "   m 222"}));
        QVERIFY(picker.access.contactsInIndex(4, 0).isEmpty());
    }

    void aContactBehindAGroupCountsAsTheGroups()
    {
        const int group = FakeSdk::addGroup("Friends");
        Picker picker;
        QVERIFY(picker.waitFilled());
        const int ada = FakeSdk::addRecord(4, {"Ada", "111"});
        picker.dialog->OnAddContact(PB_MEM_LOCAL, 0, ada, Values{"Ada", "111"});
        QCOMPARE(picker.access.contactsInIndex(4, 0), QList<int>{ada});
        QCOMPARE(ORVA_PBSrv_DelAddrRec(ada, 4), 0L);
        picker.dialog->OnDeleteContact(PB_MEM_LOCAL, ada);
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", " Friends(0)"}));
        // The root's own entry stays, since the group before it was in force.
        QCOMPARE(picker.access.contactsInIndex(4, 0), QList<int>{ada});
        Q_UNUSED(group);
    }

    void changesOfUnknownContactsAndMemoriesDoNothing()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        const QStringList before = picker.lines();
        picker.dialog->OnDeleteContact(PB_MEM_LOCAL, 99);
        picker.dialog->OnDeleteContact(PB_MEM_SIM, 1);
        picker.dialog->OnUpdateContact(PB_MEM_LOCAL, 99, Values{"x"});
        picker.dialog->OnUpdateContact(PB_MEM_ME, 1, Values{"x"});
        picker.dialog->OnUpdateGroup(PB_MEM_LOCAL, 99, "x");
        picker.dialog->OnDeleteGroup(PB_MEM_LOCAL, 99);
        picker.dialog->OnAddGroup(PB_MEM_LOCAL, 5, 99, "x");
        picker.dialog->OnAddGroup(PB_MEM_SIM, 5, 0, "x");
        QCOMPARE(picker.lines(), before);
    }

    // ---- Groups --------------------------------------------------------------------------------------------------

    void anAddedGroupShowsItsSize()
    {
        Picker picker;
        QVERIFY(picker.waitFilled());
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, FakeSdk::addRecord(4, {"Ada", "1"}));
        QTreeWidgetItem* item = nullptr;
        picker.dialog->OnAddGroup(PB_MEM_LOCAL, group, 0, "Friends", &item);
        QVERIFY(item != nullptr);
        QVERIFY(item == picker.dialog->findNode(PB_MEM_LOCAL, group));
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", " Friends(1)"}));
        QCOMPARE(picker.access.leaf(item)->iNodeType, 1);
    }

    void aGroupThatIsItsOwnParentGoesUnderTheMemory()
    {
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.dialog->OnAddGroup(PB_MEM_LOCAL, 5, 5, "Self");
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", " Self(0)"}));
    }

    void aGroupAddedTwiceIsFoundAtItsLastNode()
    {
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.dialog->OnAddGroup(PB_MEM_LOCAL, 5, 0, "One");
        picker.dialog->OnAddGroup(PB_MEM_LOCAL, 5, 0, "Two");
        QVERIFY(picker.dialog->findNode(PB_MEM_LOCAL, 5) == picker.item({"PC", "Two"}));
        picker.dialog->OnDeleteGroup(PB_MEM_LOCAL, 5);
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", " One(0)"}));
    }

    void aNewNameShowsTheQuerysResultInPlaceOfTheSize()
    {
        const int group = FakeSdk::addGroup("Friends");
        const int ada = FakeSdk::addRecord(4, {"Ada", "1"});
        FakeSdk::join(group, ada);
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.dialog->OnUpdateGroup(PB_MEM_LOCAL, group, "Mates");
        QCOMPARE(picker.item({"PC", "Mates"})->text(0), QString("Mates(0)"));
        QCOMPARE(picker.access.leaf(picker.item({"PC", "Mates"}))->strName, QString("Mates"));
        FakeSdk::failAlways("GetGroupList");
        picker.dialog->OnUpdateGroup(PB_MEM_LOCAL, group, "Pals");
        QCOMPARE(picker.item({"PC", "Pals"})->text(0), QString("Pals(1)"));
        FakeSdk::clearFailures();
        // The next text of the group is the SDK's again.
        picker.dialog->OnAddContact(PB_MEM_LOCAL, group, 9, Values{"Bob", "2"});
        QVERIFY(picker.item({"PC", "Friends"}) != nullptr);
        QCOMPARE(picker.item({"PC", "Friends"})->text(0), QString("Friends(1)"));
    }

    void aDeletedGroupTakesItsContactsAndSubGroups()
    {
        const int outer = FakeSdk::addGroup("Outer");
        const int inner = FakeSdk::addGroup("Inner", outer);
        FakeSdk::join(outer, FakeSdk::addRecord(4, {"Ada", "1"}));
        FakeSdk::join(inner, FakeSdk::addRecord(4, {"Bob", "2"}));
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.dialog->OnDeleteGroup(PB_MEM_LOCAL, outer);
        QCOMPARE(picker.lines(), QStringList("PC(2)"));
        QVERIFY(!picker.access.inIndex(4, outer));
        QVERIFY(!picker.access.inIndex(4, inner));
    }
};

QTEST_MAIN(SelectChangesTest)
#include "SelectChangesTest.moc"
