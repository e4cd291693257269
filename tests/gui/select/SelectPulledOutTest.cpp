#include "SelectSupport.h"

// Each of the two answers to a device that comes or goes, where the other one alone would not do.
class SelectPulledOutTest : public SelectTest
{
    Q_OBJECT

    static void fillDevice()
    {
        FakeSdk::setMemoryList({0, 1});
        FakeSdk::addRecord(0, {"Eve", "555"});
        FakeSdk::addRecord(1, {"Dan", "444"});
    }

private slots:
    void deviceThatGoesTakesBothNodesThoughTheListStillNamesThem()
    {
        fillDevice();
        Picker picker;
        QVERIFY(picker.waitFilled());
        signalLogic("signalDeviceConnected", false);
        QCOMPARE(picker.lines(), QStringList("PC(0)"));
    }

    void deviceThatComesHasTheListReadAnew()
    {
        fillDevice();
        Picker picker;
        QVERIFY(picker.waitFilled());
        FakeSdk::setMemoryList({1});
        signalLogic("signalDeviceConnected", true);
        QCOMPARE(picker.lines(), (QStringList{"PC(0)", "Device(1)", " Dan", "  m 444"}));
    }
};

QTEST_MAIN(SelectPulledOutTest)
#include "SelectPulledOutTest.moc"
