#include "SelectSupport.h"

// Which memory an operation asks, and in what brackets.
class SelectRulesTest : public SelectTest
{
    Q_OBJECT

private slots:
    // Made and counted inside one transaction of its memory, before its worker begins.
    void aMemorysNodeIsMadeInsideATransaction_data()
    {
        QTest::addColumn<int>("memory");
        QTest::newRow("card") << 0;
        QTest::newRow("device") << 1;
    }
    void aMemorysNodeIsMadeInsideATransaction()
    {
        QFETCH(int, memory);
        Picker picker;
        QVERIFY(picker.waitFilled());
        FakeSdk::setMemoryList({memory});
        FakeSdk::addRecord(memory, {"Eve", "555"});
        FakeSdk::clearCalls();
        signalLogic(memory == 0 ? "signalAddrBookSimReady" : "signalAddrBookDeviceReady");
        QVERIFY(picker.waitFilled());
        QStringList own;
        for (const FakeSdk::Call& call : FakeSdk::calls()) {
            const bool bracket = call.name.endsWith("Transaction") || call.name.contains("AddrRec");
            if (call.thread == QThread::currentThread() && bracket)
                own << call.name + "(" + call.arguments.join(", ") + ")";
        }
        const QString number = QString::number(memory);
        QCOMPARE(own.mid(0, 5), (QStringList{"BeginTransaction(" + number + ")", "GetAddrRecList(" + number + ")",
                                             "AddrRecordSet_GetAddrRecordCount()", "AddrRecordSet_Release()",
                                             "EndTransaction(" + number + ")"}));
        QCOMPARE(FakeSdk::openTransactions(memory), 0);
    }

    // Groups stand in the PC's index, whatever memory an operation was called with.
    void aGroupIsEnteredForThePcWhateverItsMemory()
    {
        FakeSdk::setMemoryList({0});
        FakeSdk::addRecord(0, {"Eve", "555"});
        const int group = FakeSdk::addGroup("Friends");
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.dialog->OnDeleteGroup(PB_MEM_LOCAL, group);
        QVERIFY(!picker.access.inIndex(4, group));
        picker.dialog->OnAddGroup(PB_MEM_SIM, group, 0, "Friends");
        QVERIFY(picker.item({"Card", "Friends"}) != nullptr);
        QVERIFY(picker.access.inIndex(4, group));
        QVERIFY(!picker.access.inIndex(0, group));
    }

    // The count behind a memory's name is the PC's, and so is the group that a rename asks for.
    void theCountBehindAMemorysNameIsThePcs()
    {
        FakeSdk::setMemoryList({0});
        FakeSdk::addRecord(0, {"Eve", "555"});
        for (int i = 0; i < 3; ++i)
            FakeSdk::addRecord(4, {QString("Local %1").arg(i), "1"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.access.simNode()->text(0), QString("Card(1)"));
        picker.dialog->OnAddContact(PB_MEM_SIM, 0, 9, {"Zoe", "9"});
        QCOMPARE(picker.access.simNode()->text(0), QString("Card(3)"));
    }

    void aRenameAsksThePcWhateverItsMemory()
    {
        FakeSdk::setMemoryList({0});
        FakeSdk::addRecord(0, {"Eve", "555"});
        FakeSdk::addGroup("Friends");
        Picker picker;
        QVERIFY(picker.waitFilled());
        FakeSdk::clearCalls();
        picker.dialog->OnUpdateGroup(PB_MEM_SIM, 0, "Other"); // the memory's node stands for group 0
        QVERIFY(FakeSdk::log().contains("GetGroupList(4)"));
        QVERIFY(!FakeSdk::log().contains("GetGroupList(0)"));
    }
};

QTEST_MAIN(SelectRulesTest)
#include "SelectRulesTest.moc"
