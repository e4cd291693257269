#include "SelectSupport.h"

// Every call to the SDK failing in turn while the dialog opens and fills.
class SelectFailureTest : public SelectTest
{
    Q_OBJECT

    void prepare()
    {
        SelectTest::init();
        FakeSdk::setMemoryList({0, 1});
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, FakeSdk::addRecord(4, {"Ada", "111"}));
        FakeSdk::addRecord(4, {"Bob", "222"});
        FakeSdk::addRecord(0, {"Eve", "555"});
        FakeSdk::addRecord(1, {"Dan", "444"});
    }

private slots:
    void eachCallFailingInTurn()
    {
        prepare();
        FakeSdk::clearCalls();
        {
            Picker picker(true, {"222", "555"});
            QVERIFY(picker.waitFilled());
            QCOMPARE(picker.lines().size(), 12);
        }
        const int calls = FakeSdk::totalCalls();
        for (int k = 1; k <= calls; ++k) {
            prepare();
            FakeSdk::failCall(k);
            {
                Picker picker(true, {"222", "999"});
                QVERIFY2(picker.waitFilled(), qPrintable(QString("%1").arg(k)));
                QCOMPARE(picker.access.pending(), 0);
                // Whatever could not be read, the tree stands, and the caller's numbers are in the result.
                QVERIFY(!picker.lines().isEmpty());
                QVERIFY(picker.lines().first().startsWith("PC("));
                picker.toggle(picker.item({"PC"}));
                const QStringList result = picker.result();
                QVERIFY2(result.contains("999"), FakeSdk::failedCall().constData());
            }
            AddrBookLogic::Destroy();
            QVERIFY2(FakeSdk::leaks().isEmpty(), (FakeSdk::failedCall() + FakeSdk::leaks().toUtf8()).constData());
        }
    }

    void aMemoryThatDoesNotReadShowsItsNodeWithoutContacts()
    {
        prepare();
        FakeSdk::failAlways("AddrRecordSet_MoveFirst");
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), (QStringList{"PC(2)", " Friends(1)", "  Ada", "   m 111", "Card(1)", "Device(1)"}));
    }

    void aCountThatFailsShowsNought()
    {
        prepare();
        FakeSdk::failAlways("AddrRecordSet_GetAddrRecordCount");
        Picker picker;
        QVERIFY(picker.waitFilled());
        QVERIFY(picker.lines().contains("PC(0)"));
        QVERIFY(picker.lines().contains("Card(0)"));
        QVERIFY(picker.lines().contains(" Eve"));
    }

    void aListThatFailsShowsOnlyThePc()
    {
        prepare();
        FakeSdk::failAlways("PBGetMemoryListType");
        Picker picker;
        QVERIFY(picker.waitFilled());
        QVERIFY(picker.item({"Card"}) == nullptr);
        QVERIFY(picker.item({"PC", "Bob"}) != nullptr);
    }
};

QTEST_MAIN(SelectFailureTest)
#include "SelectFailureTest.moc"
