#include "SelectSupport.h"

// The numbers that the caller passes in.
class SelectPresetTest : public SelectTest
{
    Q_OBJECT

private slots:
    void theyAreTickedWhenTheTreeIsFull()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "222"});
        Picker picker(true, {"222", "999"});
        QVERIFY(picker.chosen().isEmpty());
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(true), (QStringList{"*PC(1)", " *Ada", "  m 111", "  *o 222"}));
        QCOMPARE(picker.chosen(), (QStringList{"222", "999"}));
        QCOMPARE(picker.result({"222", "999"}), (QStringList{"222", "999"}));
    }

    void theLastNodeInTheTreeIsTicked()
    {
        FakeSdk::setMemoryList({0});
        FakeSdk::addRecord(4, {"Ada", "111"});
        FakeSdk::addRecord(0, {"Eve", "111"});
        Picker picker(true, {"111"});
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(true), (QStringList{"PC(1)", " Ada", "  m 111", "*Card(1)", " *Eve", "  *m 111"}));
        QCOMPARE(picker.chosen(), QStringList("111"));
    }

    void ofANumberTwiceInOneContactTheFirstIsTicked()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "", "111"});
        Picker picker(true, {"111"});
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(true), (QStringList{"*PC(1)", " *Ada", "  *m 111", "  h 111"}));
    }

    void emptyNumbersArePassedOver()
    {
        FakeSdk::addRecord(4, {"Ada"});
        Picker picker(true, {"", "111"});
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.chosen(), QStringList("111"));
        QCOMPARE(picker.lines(true), (QStringList{"PC(1)", " Ada"}));
    }

    void aNumberGivenTwiceIsChosenOnce()
    {
        Picker picker(true, {"999", "999"});
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.chosen(), QStringList("999"));
    }

    void anEmptyFirstEntrySkipsTheFirstCentringOnly()
    {
        Picker picker(true, {"", "111"});
        QCOMPARE(FakeCore::log().count("MoveCentre"), 0);
        QVERIFY(picker.waitFilled());
        QCOMPARE(FakeCore::log().count("MoveCentre"), 1);
    }

    void otherwiseTheWindowIsCentredTwice()
    {
        Picker picker(true, {"111"});
        QCOMPARE(FakeCore::log().count("MoveCentre"), 1);
        QVERIFY(picker.waitFilled());
        QCOMPARE(FakeCore::log().count("MoveCentre"), 2);
    }

    void inSingleModeTheFoundNodeGetsTheOnlyCheckBox()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "222"});
        Picker picker(false, {"222"});
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(true), (QStringList{"PC(1)", " Ada", "  m 111", "  *o 222"}));
        QVERIFY(!picker.item({"PC", "Ada", "m 111"})->data(0, Qt::CheckStateRole).isValid());
        picker.access.tree()->setCurrentItem(nullptr);
        QCOMPARE(picker.result({"222"}), QStringList("222"));
    }

    void aMemoryThatBecomesReadyAppliesThemAgain()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        FakeSdk::addRecord(1, {"Dan", "444"});
        Picker picker(true, {"111", "444"});
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.chosen(), (QStringList{"111", "444"}));
        picker.toggle(picker.item({"PC", "Ada", "m 111"}));
        QCOMPARE(picker.chosen(), QStringList("444"));
        FakeSdk::setMemoryList({1});
        signalLogic("signalAddrBookDeviceReady");
        QVERIFY(picker.waitFilled());
        QVERIFY(Picker::ticked(picker.item({"PC", "Ada", "m 111"})));
        QVERIFY(Picker::ticked(picker.item({"Device", "Dan", "m 444"})));
        QCOMPARE(picker.chosen(), (QStringList{"444", "111", "444"}));
        QCOMPARE(picker.result(), (QStringList{"444", "111"}));
    }

    void aSiblingContactWhoseFirstValueIsTheNumberIsTickedWhole()
    {
        // The last leaf with the number is a contact without numbers of its own; among its siblings the first with
        // that value is another contact, whose numbers are then all ticked.
        FakeSdk::setFields(4,
                           {FakeSdk::localFields().at(0), FakeSdk::localFields().at(4), FakeSdk::localFields().at(1)});
        FakeSdk::addRecord(4, {"Ada", "x", "111"});
        FakeSdk::addRecord(4, {"Bob", "x"});
        Picker picker(true, {"x"});
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(true), (QStringList{"*PC(2)", " *Ada", "  *m 111", " Bob"}));
        QCOMPARE(picker.chosen(), (QStringList{"111", "x"}));
    }
};

QTEST_MAIN(SelectPresetTest)
#include "SelectPresetTest.moc"
