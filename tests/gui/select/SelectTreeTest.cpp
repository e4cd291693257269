#include "SelectSupport.h"

#include <QHeaderView>

// How the tree is filled.
class SelectTreeTest : public SelectTest
{
    Q_OBJECT

private slots:
    void anEmptyPhonebookGivesALocalNodeWithoutChildren()
    {
        Picker picker(true, {"999"});
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), QStringList("PC(0)"));
        QCOMPARE(picker.chosen(), QStringList("999")); // the caller's numbers have been applied
    }

    void aContactInNoGroupStandsBeforeTheGroups()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, FakeSdk::addRecord(4, {"Bob", "222"}));
        FakeSdk::addRecord(4, {"Cid", "333"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(),
                 (QStringList{"PC(3)", " Ada", "  m 111", " Cid", "  m 333", " Friends(1)", "  Bob", "   m 222"}));
    }

    void aContactInTwoGroupsStandsUnderBothAndNotUnderTheRoot()
    {
        const int ada = FakeSdk::addRecord(4, {"Ada", "111"});
        FakeSdk::join(FakeSdk::addGroup("Friends"), ada);
        FakeSdk::join(FakeSdk::addGroup("Work"), ada);
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(),
                 (QStringList{"PC(1)", " Friends(1)", "  Ada", "   m 111", " Work(1)", "  Ada", "   m 111"}));
    }

    void groupsNest()
    {
        const int outer = FakeSdk::addGroup("Outer");
        FakeSdk::join(outer, FakeSdk::addRecord(4, {"Ada", "111"}));
        const int inner = FakeSdk::addGroup("Inner", outer);
        FakeSdk::join(inner, FakeSdk::addRecord(4, {"Bob", "222"}));
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(),
                 (QStringList{"PC(2)", " Outer(1)", "  Ada", "   m 111", "  Inner(1)", "   Bob", "    m 222"}));
    }

    void aGroupThatIsItsOwnParentIsOfTheFirstLevel()
    {
        const int first = FakeSdk::addGroup("First", 1);
        QCOMPARE(first, 1);
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", " First(0)"}));
    }

    void aGroupListedBeforeItsParentIsNotShownNorAreItsContacts()
    {
        const int early = FakeSdk::addGroup("Early", 2);
        QCOMPARE(early, 1);
        const int late = FakeSdk::addGroup("Late");
        QCOMPARE(late, 2);
        FakeSdk::join(early, FakeSdk::addRecord(4, {"Ada", "111"}));
        const int bob = FakeSdk::addRecord(4, {"Bob", "222"});
        FakeSdk::join(early, bob);
        FakeSdk::join(late, bob);
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), (QStringList{"PC(2)", " Late(1)", "  Bob", "   m 222"}));
    }

    void eachFilledNumberIsAChildWithItsLabel()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "", "333", "a@b", "note"});
        FakeSdk::addRecord(4, {"None"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), (QStringList{"PC(2)", " Ada", "  m 111", "  h 333", " None"}));
    }

    void aContactWithoutANameShowsItsFirstNumber()
    {
        FakeSdk::addRecord(4, {"", "", "222", "333"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), (QStringList{"PC(1)", " 222", "  o 222", "  h 333"}));
        QCOMPARE(picker.access.leaf(picker.item({"PC", "222", "h 333"}))->strName, QString("222"));
    }

    void theBlocksBehindTheNodes()
    {
        FakeSdk::setDevicePresent(true);
        FakeSdk::setCardPresent(true);
        const int id = FakeSdk::addRecord(4, {"Ada", "111", "222"});
        const int group = FakeSdk::addGroup("Friends");
        const int cardId = FakeSdk::addRecord(0, {"Eve", "555"});
        Picker picker;
        QVERIFY(picker.waitFilled());

        QCOMPARE(picker.item({"PC"})->data(0, Qt::UserRole), QVariant(4));
        QCOMPARE(picker.item({"Card"})->data(0, Qt::UserRole), QVariant(0));
        QCOMPARE(picker.item({"Device"})->data(0, Qt::UserRole), QVariant(1));

        const auto* contact = picker.access.leaf(picker.item({"PC", "Ada"}));
        QCOMPARE(contact->iNodeType, 2);
        QCOMPARE(contact->iID, id);
        QCOMPARE(contact->enType, PB_MEM_LOCAL);
        QCOMPARE(contact->strValue, QString("111")); // the value behind the name
        QVERIFY(!contact->bChecked);
        const auto* number = picker.access.leaf(picker.item({"PC", "Ada", "o 222"}));
        QCOMPARE(number->iNodeType, 3);
        QCOMPARE(number->iID, id);
        QCOMPARE(number->strName, QString("Ada"));
        QCOMPARE(number->strFieldName, QString("o"));
        QCOMPARE(number->strValue, QString("222"));
        const auto* groupLeaf = picker.access.leaf(picker.item({"PC", "Friends"}));
        QCOMPARE(groupLeaf->iNodeType, 1);
        QCOMPARE(groupLeaf->iID, group);
        QCOMPARE(groupLeaf->strName, QString("Friends"));
        QCOMPARE(groupLeaf->strValue, QString());
        const auto* card = picker.access.leaf(picker.item({"Card", "Eve", "m 555"}));
        QCOMPARE(card->enType, PB_MEM_SIM);
        QCOMPARE(card->iID, cardId);
    }

    void deviceSideMemoriesFollowInTheSdksOrder()
    {
        FakeSdk::addRecord(1, {"Dan", "444"});
        FakeSdk::addRecord(0, {"Eve", "555"});
        FakeSdk::setMemoryList({1, -1, 0});
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", "Device(1)", " Dan", "  m 444", "Card(1)", " Eve", "  m 555"}));
    }

    void aNumberOfADeviceBearsThePcsMobileLabel()
    {
        FakeSdk::setMemoryList({1});
        FakeSdk::setFields(1, FakeSdk::wideDeviceFields());
        FakeSdk::addRecord(1, {"Dan", "444", "555", "d@e"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", "Device(1)", " Dan", "  m 444", "  m 555"}));
    }

    void onADualModeCardOnlyTheLocalNodeShows()
    {
        FakeSdk::setMemoryList({0, 1});
        FakeSdk::setMultiModeCard(1, 0);
        FakeCore::setSetting("DualModeCard", "HideDoubleModeCardNode", "true");
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), QStringList("PC(0)"));
    }

    void theCardFlagAloneHidesNothing_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("setting");
        QTest::newRow("flag alone") << 1 << "false";
        QTest::newRow("setting alone") << 0 << "true";
        QTest::newRow("another word") << 1 << "TRUE";
    }
    void theCardFlagAloneHidesNothing()
    {
        QFETCH(int, status);
        QFETCH(QString, setting);
        FakeSdk::setMemoryList({0, 1});
        FakeSdk::setMultiModeCard(static_cast<unsigned char>(status), 1);
        FakeCore::setSetting("DualModeCard", "HideDoubleModeCardNode", setting);
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", "Card(0)", "Device(0)"}));
    }

    void aCardThatIsNotValidDoesNotShowThoughItIsListed()
    {
        FakeSdk::setMemoryList({0, 1});
        FakeSdk::setPinStatus(3);
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", "Device(0)"}));
        QVERIFY(!picker.access.simEnabled());
    }

    void aMemoryListedTwiceShowsOnce()
    {
        FakeSdk::setMemoryList({1, 1});
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", "Device(0)"}));
        QCOMPARE(picker.access.pending(), 0);
    }

    void singleModeHasTheSameTreeWithoutCheckBoxes()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        FakeSdk::addGroup("Friends");
        Picker multi(true);
        Picker single(false);
        QVERIFY(multi.waitFilled());
        QVERIFY(single.waitFilled());
        QCOMPARE(single.lines(), multi.lines());
        for (const QStringList& path : {QStringList{"PC"}, QStringList{"PC", "Ada"}, QStringList{"PC", "Ada", "m 111"},
                                        QStringList{"PC", "Friends"}}) {
            QVERIFY(!single.item(path)->data(0, Qt::CheckStateRole).isValid());
            QCOMPARE(multi.item(path)->data(0, Qt::CheckStateRole), QVariant(int(Qt::Unchecked)));
            QCOMPARE(single.item(path)->sizeHint(0), QSize(25, 20));
        }
    }

    void memoriesAndGroupsAreExpandedAndContactsAreNot()
    {
        FakeSdk::join(FakeSdk::addGroup("Friends"), FakeSdk::addRecord(4, {"Ada", "111"}));
        Picker picker;
        QVERIFY(picker.waitFilled());
        QVERIFY(picker.item({"PC"})->isExpanded());
        QVERIFY(picker.item({"PC", "Friends"})->isExpanded());
        QVERIFY(!picker.item({"PC", "Friends", "Ada"})->isExpanded());
    }

    void theColumnWidensForLongTextsAndNeverNarrows()
    {
        const QString name(200, 'W');
        const int id = FakeSdk::addRecord(4, {name, "111"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        QTreeWidget* tree = picker.access.tree();
        const int wanted = tree->fontMetrics().horizontalAdvance(name) + tree->indentation() + name.size();
        QCOMPARE(tree->columnWidth(0), wanted);
        picker.dialog->OnDeleteContact(PB_MEM_LOCAL, id);
        QCOMPARE(tree->columnWidth(0), wanted);
    }

    void aReferenceToAContactThatHasGoneIsANodeWithoutAText()
    {
        FakeSdk::setMissingRecordGivesNull(true);
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, 77);
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", " Friends(1)", "  "}));
    }

    void aRecordWithoutValuesMakesANodeWithAnEmptyText()
    {
        Picker picker;
        QVERIFY(picker.waitFilled());
        AddrBookRecord record;
        record.iID = 3;
        const QScopedPointer<QTreeWidgetItem> item(picker.access.newNode(record, 4));
        QCOMPARE(item->text(0), QString());
        QCOMPARE(item->childCount(), 0);
        QCOMPARE(picker.access.leaf(item.data())->strValue, QString());
    }

    void withoutANameFieldANodeHasNoBlock()
    {
        FakeSdk::setFields(4, {FakeSdk::localFields().at(1)});
        FakeSdk::addRecord(4, {"111"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), (QStringList{"PC(1)", " ", "  m 111"}));
        picker.toggle(picker.item({"PC"}));
        QCOMPARE(picker.chosen(), QStringList("111"));
    }

    void aNumberBeforeTheNameBearsNoName()
    {
        FakeSdk::setFields(4, {FakeSdk::localFields().at(1), FakeSdk::localFields().at(0)});
        FakeSdk::addRecord(4, {"111", "Ada"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        QTreeWidgetItem* number = picker.item({"PC", "Ada"})->child(0);
        QCOMPARE(picker.access.leaf(number)->strValue, QString("111"));
        QCOMPARE(picker.access.leaf(number)->strName, QString());
    }

    void resultsForANodeThatWentAreDropped()
    {
        FakeSdk::setMemoryList({1});
        Picker picker;
        QVERIFY(picker.waitFilled());
        QTreeWidgetItem* old = picker.access.deviceNode();
        FakeSdk::setMemoryList({});
        signalLogic("signalDeviceConnected", false);
        FakeSdk::setMemoryList({1});
        signalLogic("signalAddrBookDeviceReady");
        QVERIFY(picker.waitFilled());
        auto* record = new AddrBookRecord;
        record->iID = 9;
        record->lstValues = QList<QString>{"Late", "1"};
        picker.dialog->OnAddContactToTree(1, pointerToCarrier(record), pointerToCarrier(old), 0);
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", "Device(0)"}));
        QVERIFY(picker.access.contactsInIndex(1, 0).isEmpty());
    }

    void resultsForNothingAreFreed()
    {
        Picker picker;
        QVERIFY(picker.waitFilled());
        AddrBookGroup group;
        group.iGroupID = 77;
        picker.dialog->OnAddContactToTree(1, pointerToCarrier(new AddrBookRecord()), 0, 0);
        picker.dialog->OnAddGroupContacts(4, pointerToCarrier(&group), pointerToCarrier(new AddrBookRecord()));
        picker.dialog->OnAddGroupContacts(4, 0, pointerToCarrier(new AddrBookRecord()));
        picker.dialog->OnAddGroupsToTree(1, pointerToCarrier(new AddrBookGroup));
        picker.dialog->OnAddContactsToTree(12);
        picker.dialog->OnAddContactsToTree(-1);
        picker.dialog->OnInitTreeFinished();
        QCOMPARE(picker.lines(), QStringList("PC(0)"));
    }

    void nodesAreFoundByMemoryAndGroup()
    {
        const int outer = FakeSdk::addGroup("Outer");
        const int inner = FakeSdk::addGroup("Inner", outer);
        Picker picker;
        QVERIFY(picker.waitFilled());
        AddrBookSelectContactsDlg& dialog = *picker.dialog;
        QVERIFY(dialog.findNode(PB_MEM_LOCAL, 0) == picker.access.localNode());
        QVERIFY(dialog.findNode(PB_MEM_LOCAL, inner) == picker.item({"PC", "Outer", "Inner"}));
        QVERIFY(dialog.findNode(PB_MEM_LOCAL, 99) == nullptr);
        QVERIFY(dialog.findNode(PB_MEM_SIM, 0) == nullptr);
        QVERIFY(dialog.getNode(PB_MEM_LOCAL) == picker.access.localNode());
        QVERIFY(dialog.getNode(PB_MEM_SIM) == nullptr);
        QVERIFY(dialog.findGroupNode(picker.access.localNode(), inner) == dialog.findNode(PB_MEM_LOCAL, inner));
        QVERIFY(dialog.findGroupNode(picker.access.localNode(), 99) == nullptr);
        QVERIFY(dialog.findGroupNode(nullptr, 99) == nullptr);
        QVERIFY(dialog.isNodePresentInTree(picker.access.localNode()));
        QVERIFY(!dialog.isNodePresentInTree(dialog.findNode(PB_MEM_LOCAL, inner)));
        QVERIFY(!dialog.isNodePresentInTree(nullptr));
    }

    void theHeaderShowsTheOrderButNothingIsSorted()
    {
        FakeSdk::addRecord(4, {"Zoe", "1"});
        FakeSdk::addRecord(4, {"Ada", "2"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        QVERIFY(picker.access.tree()->isHeaderHidden());
        QVERIFY(!picker.access.tree()->isSortingEnabled());
        QCOMPARE(picker.access.tree()->header()->sortIndicatorSection(), 0);
        QCOMPARE(picker.access.tree()->header()->sortIndicatorOrder(), Qt::AscendingOrder);
        QCOMPARE(picker.lines(), (QStringList{"PC(2)", " Zoe", "  m 1", " Ada", "  m 2"}));
    }
};

QTEST_MAIN(SelectTreeTest)
#include "SelectTreeTest.moc"
