#include "SelectSupport.h"

#include <QSemaphore>

// How the tree follows the device.
class SelectDeviceTest : public SelectTest
{
    Q_OBJECT

    static void fillDevice()
    {
        FakeSdk::setMemoryList({0, 1});
        FakeSdk::addRecord(0, {"Eve", "555"});
        FakeSdk::addRecord(1, {"Dan", "444"});
    }
    static QStringList whole() { return {"PC(0)", "Card(1)", " Eve", "  m 555", "Device(1)", " Dan", "  m 444"}; }

private slots:
    void pullingOutTheDeviceRemovesBothNodesAndKeepsTheChoice()
    {
        fillDevice();
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), whole());
        picker.toggle(picker.item({"Card"}));
        FakeSdk::setMemoryList({});
        signalLogic("signalDeviceConnected", false);
        QCOMPARE(picker.lines(), QStringList("PC(0)"));
        QCOMPARE(picker.result(), QStringList("555"));
    }

    void theListCountsNotTheArgument()
    {
        fillDevice();
        Picker picker;
        QVERIFY(picker.waitFilled());
        FakeSdk::setMemoryList({1});
        signalLogic("signalSimStatus", true);
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", "Device(1)", " Dan", "  m 444"}));
        QVERIFY(!picker.access.simEnabled());
    }

    void simStatusWithBothStillListedOnlyRefreshesTheFlag()
    {
        FakeSdk::setPinStatus(3);
        fillDevice();
        Picker picker;
        QVERIFY(picker.waitFilled());
        QVERIFY(!picker.access.simEnabled());
        const QStringList before = picker.lines();
        signalLogic("signalSimStatus", false);
        QCOMPARE(picker.lines(), before);
        QVERIFY(picker.access.simEnabled());
    }

    void aListThatCannotBeReadChangesNothing()
    {
        fillDevice();
        Picker picker;
        QVERIFY(picker.waitFilled());
        FakeSdk::setMemoryList({});
        FakeSdk::fail("PBGetMemoryListType");
        signalLogic("signalSimStatus", false);
        QCOMPARE(picker.lines(), whole());
        QVERIFY(picker.access.simEnabled());
    }

    void theDeviceConnectedWithItsMemoriesListedChangesNothing()
    {
        fillDevice();
        Picker picker;
        QVERIFY(picker.waitFilled());
        signalLogic("signalDeviceConnected", true);
        QCOMPARE(picker.lines(), whole());
    }

    void aReadyMemoryComesBackWithItsContacts()
    {
        fillDevice();
        Picker picker(true, {"555"});
        QVERIFY(picker.waitFilled());
        QTreeWidgetItem* old = picker.access.simNode();
        FakeSdk::setMemoryList({});
        signalLogic("signalDeviceConnected", false);
        FakeSdk::addRecord(0, {"Fay", "666"});
        FakeSdk::setMemoryList({0, 1});
        signalLogic("signalAddrBookDeviceReady");
        signalLogic("signalAddrBookSimReady");
        QCOMPARE(picker.access.pending(), 2);
        QVERIFY(picker.access.simNode() != old);
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(true), (QStringList{"PC(0)", "Device(1)", " Dan", "  m 444", "*Card(2)", " *Eve",
                                                  "  *m 555", " Fay", "  m 666"}));
        QCOMPARE(picker.access.contactsInIndex(0, 0).size(), 2);
    }

    void readyWhileTheNodeIsThereDoesNothing()
    {
        fillDevice();
        Picker picker;
        QVERIFY(picker.waitFilled());
        signalLogic("signalAddrBookSimReady");
        signalLogic("signalAddrBookDeviceReady");
        QVERIFY(picker.access.filled());
        QCOMPARE(picker.lines(), whole());
    }

    void readyOnADualModeCardDoesNothing()
    {
        FakeCore::setSetting("DualModeCard", "HideDoubleModeCardNode", "true");
        FakeSdk::setMultiModeCard(1, 0);
        Picker picker;
        QVERIFY(picker.waitFilled());
        fillDevice();
        signalLogic("signalAddrBookSimReady");
        signalLogic("signalAddrBookDeviceReady");
        QCOMPARE(picker.lines(), QStringList("PC(0)"));
    }

    void aCardThatIsNotValidStaysAwayWhenItIsReady()
    {
        Picker picker;
        QVERIFY(picker.waitFilled());
        fillDevice();
        FakeSdk::setPinStatus(3);
        signalLogic("signalAddrBookSimReady");
        QCOMPARE(picker.lines(), QStringList("PC(0)"));
        signalLogic("signalAddrBookDeviceReady"); // does not ask the card
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", "Device(1)", " Dan", "  m 444"}));
    }

    void aFillUnderWayEndsNormallyWhenItsNodeGoes()
    {
        fillDevice();
        for (int i = 0; i < 30; ++i)
            FakeSdk::addRecord(1, {QString("More %1").arg(i), "1"});
        // The device's worker stands in its fifth record until its node has gone.
        QSemaphore entered;
        QSemaphore proceed;
        FakeSdk::setMemoryList({1});
        FakeSdk::onCall("AddrRecordSet_GetID", 5, [&] {
            entered.release();
            proceed.acquire();
        });
        Picker picker(true, {"999"});
        QVERIFY(QTest::qWaitFor([&] { return entered.tryAcquire(); }, 20000));
        QVERIFY(picker.access.deviceThread() != nullptr);
        FakeSdk::setMemoryList({});
        signalLogic("signalDeviceConnected", false);
        proceed.release();
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.access.pending(), 0);
        QCOMPARE(picker.lines(), QStringList("PC(0)"));
        QCOMPARE(picker.chosen(), QStringList("999"));
    }

    void theCurrentNodeMayGo()
    {
        fillDevice();
        Picker picker(false);
        QVERIFY(picker.waitFilled());
        picker.access.tree()->setCurrentItem(picker.item({"Card", "Eve", "m 555"}));
        FakeSdk::setMemoryList({});
        signalLogic("signalDeviceConnected", false);
        QVERIFY(picker.result({"old"}).size() <= 2);
    }
};

QTEST_MAIN(SelectDeviceTest)
#include "SelectDeviceTest.moc"
