#include "SelectSupport.h"

// Check marks, and what the dialog hands back.
class SelectSelectionTest : public SelectTest
{
    Q_OBJECT

private slots:
    void tickingAMemoryTicksAllBelowAndTakesEachNumberOncePerNode()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "222"});
        const int bob = FakeSdk::addRecord(4, {"Bob", "333"});
        FakeSdk::join(FakeSdk::addGroup("Friends"), bob);
        FakeSdk::join(FakeSdk::addGroup("Work"), bob);
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"PC"}));
        QCOMPARE(picker.lines(true), (QStringList{"*PC(2)", " *Ada", "  *m 111", "  *o 222", " *Friends(1)", "  *Bob",
                                                  "   *m 333", " *Work(1)", "  *Bob", "   *m 333"}));
        QCOMPARE(picker.chosen(), (QStringList{"111", "222", "333", "333"}));
        QCOMPARE(picker.result({"old"}), (QStringList{"111", "222", "333"}));
    }

    void untickingOneOfTwoNumbersLeavesTheContactAndItsAncestors()
    {
        FakeSdk::join(FakeSdk::addGroup("Friends"), FakeSdk::addRecord(4, {"Ada", "111", "222"}));
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"PC", "Friends", "Ada"}));
        picker.toggle(picker.item({"PC", "Friends", "Ada", "m 111"}));
        QCOMPARE(picker.lines(true), (QStringList{"*PC(1)", " *Friends(1)", "  *Ada", "   m 111", "   *o 222"}));
        QCOMPARE(picker.chosen(), QStringList("222"));
        picker.toggle(picker.item({"PC", "Friends", "Ada", "o 222"}));
        QCOMPARE(picker.lines(true), (QStringList{"PC(1)", " Friends(1)", "  Ada", "   m 111", "   o 222"}));
        QVERIFY(picker.chosen().isEmpty());
    }

    void untickingStopsAtAnAncestorWithAnotherTickedChild()
    {
        const int friends = FakeSdk::addGroup("Friends");
        FakeSdk::join(friends, FakeSdk::addRecord(4, {"Ada", "111"}));
        FakeSdk::addRecord(4, {"Bob", "222"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"PC"}));
        picker.toggle(picker.item({"PC", "Friends", "Ada", "m 111"}));
        QCOMPARE(picker.lines(true), (QStringList{"*PC(2)", " *Bob", "  *m 222", " Friends(1)", "  Ada", "   m 111"}));
    }

    void tickingANumberTicksItsAncestorsAndNothingElse()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "222"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"PC", "Ada", "o 222"}));
        QCOMPARE(picker.lines(true), (QStringList{"*PC(1)", " *Ada", "  m 111", "  *o 222"}));
        QCOMPARE(picker.item({"PC"})->checkState(0), Qt::Checked); // never partly
    }

    void aClickOnTheTextOfACheckedContactTicksTheOtherNumberToo()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "222"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"PC", "Ada", "o 222"}));
        picker.clickText(picker.item({"PC", "Ada"}));
        QCOMPARE(picker.lines(true), (QStringList{"*PC(1)", " *Ada", "  *m 111", "  *o 222"}));
        QCOMPARE(picker.chosen(), (QStringList{"222", "111"}));
    }

    void aClickOnTheTextOfAnUncheckedNodeChangesNothing()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        const QStringList before = picker.lines(true);
        picker.clickText(picker.item({"PC", "Ada"}));
        QCOMPARE(picker.lines(true), before);
    }

    void aNumberInTwoNodesIsTwoIndependentTicks()
    {
        const int ada = FakeSdk::addRecord(4, {"Ada", "111"});
        FakeSdk::join(FakeSdk::addGroup("Friends"), ada);
        FakeSdk::join(FakeSdk::addGroup("Work"), ada);
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"PC", "Friends", "Ada"}));
        QVERIFY(!Picker::ticked(picker.item({"PC", "Work", "Ada"})));
        QCOMPARE(picker.chosen(), QStringList("111"));
        picker.toggle(picker.item({"PC", "Work", "Ada"}));
        QCOMPARE(picker.chosen(), (QStringList{"111", "111"}));
        picker.toggle(picker.item({"PC", "Friends", "Ada"}));
        QCOMPARE(picker.chosen(), QStringList("111"));
        QCOMPARE(picker.result(), QStringList("111"));
        picker.toggle(picker.item({"PC", "Work", "Ada"}));
        QVERIFY(picker.chosen().isEmpty());
    }

    void untickingStrikesTheLastEntryOfANumber()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "222"});
        FakeSdk::addRecord(4, {"Bob", "111"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"PC", "Ada"}));
        picker.toggle(picker.item({"PC", "Bob"}));
        QCOMPARE(picker.chosen(), (QStringList{"111", "222", "111"}));
        picker.toggle(picker.item({"PC", "Ada", "m 111"}));
        QCOMPARE(picker.chosen(), (QStringList{"111", "222"}));
    }

    void untickingANodeStrikesInTheOrderOfSingleStrikes()
    {
        FakeSdk::addRecord(4, {"Ada", "1", "2", "1"});
        FakeSdk::addRecord(4, {"Bob", "2", "1", "3"});
        FakeSdk::addRecord(4, {"Cid", "1"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"PC"}));
        QCOMPARE(picker.chosen(), (QStringList{"1", "2", "1", "2", "1", "3", "1"}));
        picker.toggle(picker.item({"PC", "Bob"}));
        QCOMPARE(picker.chosen(), (QStringList{"1", "2", "1", "1"}));
        picker.toggle(picker.item({"PC", "Ada"}));
        QCOMPARE(picker.chosen(), QStringList("1"));
    }

    void aNumberStruckMoreOftenThanItStandsKeepsItsFlag()
    {
        FakeSdk::addRecord(4, {"Ada", "1", "1"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"PC", "Ada"}));
        picker.access.chosen() = QList<QString>{"1"};
        picker.toggle(picker.item({"PC", "Ada"}));
        QVERIFY(picker.chosen().isEmpty());
        QTreeWidgetItem* ada = picker.item({"PC", "Ada"});
        QVERIFY(!picker.access.leaf(ada->child(0))->bChecked);
        QVERIFY(picker.access.leaf(ada->child(1))->bChecked);
    }

    void untickingAMemoryKeepsNumbersThatNoNodeShows()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        Picker picker(true, {"999", "111"});
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.chosen(), (QStringList{"999", "111"}));
        picker.toggle(picker.item({"PC"}));
        QCOMPARE(picker.chosen(), QStringList("999"));
        QCOMPARE(picker.lines(true), (QStringList{"PC(1)", " Ada", "  m 111"}));
    }

    void aContactWithoutNumbersGivesTheValueBehindItsName()
    {
        FakeSdk::setFields(4, {FakeSdk::localFields().at(0), FakeSdk::localFields().at(4)});
        FakeSdk::addRecord(4, {"Ada", "a@b"});
        FakeSdk::addRecord(4, {"Bob", ""});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"PC"}));
        QCOMPARE(picker.chosen(), QStringList("a@b"));
        QVERIFY(Picker::ticked(picker.item({"PC", "Bob"})));
        QVERIFY(!picker.access.leaf(picker.item({"PC", "Bob"}))->bChecked);
    }

    void anEmptyMemoryCanBeTickedAndGivesNothing()
    {
        FakeSdk::setMemoryList({0, 1});
        Picker picker;
        QVERIFY(picker.waitFilled());
        for (const char* name : {"PC", "Card", "Device"}) {
            picker.toggle(picker.item({name}));
            QVERIFY(Picker::ticked(picker.item({name})));
            picker.toggle(picker.item({name}));
            QVERIFY(!Picker::ticked(picker.item({name})));
        }
        QVERIFY(picker.chosen().isEmpty());
    }

    void theCardsContactsAreTickedThroughItsNode()
    {
        FakeSdk::setMemoryList({0});
        FakeSdk::addRecord(0, {"Eve", "555"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"Card"}));
        QCOMPARE(picker.lines(true), (QStringList{"PC(0)", "*Card(1)", " *Eve", "  *m 555"}));
        picker.toggle(picker.item({"Card", "Eve", "m 555"}));
        QCOMPARE(picker.lines(true), (QStringList{"PC(0)", "Card(1)", " Eve", "  m 555"}));
    }

    void withoutOkThereIsNoResult()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"PC"}));
        QList<QString> numbers{"kept"};
        picker.dialog->GetRecords(numbers);
        QCOMPARE(numbers, QList<QString>{"kept"});
    }

    // ---- One number ----------------------------------------------------------------------------------------------

    void singleModeAppendsTheNumberOfTheCurrentNode()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "222"});
        Picker picker(false);
        QVERIFY(picker.waitFilled());
        picker.access.tree()->setCurrentItem(picker.item({"PC", "Ada", "o 222"}));
        QCOMPARE(picker.result({"old"}), (QStringList{"old", "222"}));
        picker.access.tree()->setCurrentItem(picker.item({"PC", "Ada"}));
        QCOMPARE(picker.result({"old"}), (QStringList{"old", "111"}));
    }

    void singleModeAppendsAnEmptyValueToo()
    {
        FakeSdk::addRecord(4, {"Ada", "", "222"});
        Picker picker(false);
        QVERIFY(picker.waitFilled());
        picker.access.tree()->setCurrentItem(picker.item({"PC", "Ada"}));
        QCOMPARE(picker.result({"old"}), (QStringList{"old", ""}));
    }

    void singleModeWithAGroupOrMemoryOrNothingCurrentAddsNothing()
    {
        FakeSdk::setMemoryList({0, 1});
        FakeSdk::addGroup("Friends");
        Picker picker(false);
        QVERIFY(picker.waitFilled());
        picker.access.tree()->setCurrentItem(nullptr);
        QCOMPARE(picker.result({"old"}), QStringList("old"));
        for (const QStringList& path :
             {QStringList{"PC", "Friends"}, QStringList{"PC"}, QStringList{"Card"}, QStringList{"Device"}}) {
            picker.access.tree()->setCurrentItem(picker.item(path));
            QCOMPARE(picker.result({"old"}), QStringList("old"));
            QVERIFY(picker.dialog->GetButtonClicked());
        }
    }

    void singleModeIgnoresClicks()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        Picker picker(false);
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"PC", "Ada"}));
        QVERIFY(picker.chosen().isEmpty());
        QVERIFY(!picker.item({"PC"})->data(0, Qt::CheckStateRole).isValid());
    }

    void nodesAddedUnderACheckedParentAreUnchecked()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.toggle(picker.item({"PC"}));
        picker.dialog->OnAddContact(PB_MEM_LOCAL, 0, 9, QList<QString>{"Bob", "222"});
        QVERIFY(!Picker::ticked(picker.item({"PC", "Bob"})));
        QVERIFY(Picker::ticked(picker.item({"PC"})));
    }
};

QTEST_MAIN(SelectSelectionTest)
#include "SelectSelectionTest.moc"
