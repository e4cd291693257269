#include <QtTest>

#include "ReadyDevice.h"
#include "device/DeviceState.h"
#include "device/DeviceWatcher.h"
#include "device/SimulatedHardware.h"
#include "orva/orva_sim.h"

// What counts as a state of the device, and as another one than before.
class TestHostChanges : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void theRadioIsOnWhenBothItsWordsAreOne_data();
    void theRadioIsOnWhenBothItsWordsAreOne();
    void aCardIsReadyWithItsPinGivenOrNotAskedFor_data();
    void aCardIsReadyWithItsPinGivenOrNotAskedFor();
    void eachPartOfTheStateMakesItAnotherOne();
    void aSwitchWithoutAnEventIsSeenByARefresh();
    void whatIsTheSameIsNotToldAgain();
};

void TestHostChanges::init()
{
    makeDeviceReady();
}

void TestHostChanges::theRadioIsOnWhenBothItsWordsAreOne_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<bool>("on");
    QTest::newRow("both") << 1 << 1 << true;
    QTest::newRow("the first alone") << 1 << 0 << false;
    QTest::newRow("the second alone") << 0 << 1 << false;
    QTest::newRow("neither") << 0 << 0 << false;
    QTest::newRow("another word first") << 2 << 1 << false;
    QTest::newRow("another word second") << 1 << 2 << false;
}

void TestHostChanges::theRadioIsOnWhenBothItsWordsAreOne()
{
    QFETCH(int, first);
    QFETCH(int, second);
    QCOMPARE(ORVA_Sim_SetRadio(first, second), long(ORVA_OK));
    QTEST(DeviceState::Read().bRadioOn, "on");
    QTEST(DeviceState::Read().Online(), "on");
}

void TestHostChanges::aCardIsReadyWithItsPinGivenOrNotAskedFor_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("ready");
    for (int iStatus = 0; iStatus <= 9; ++iStatus) {
        QTest::newRow(qPrintable(QString::number(iStatus))) << iStatus << (iStatus == 1 || iStatus == 8);
    }
}

void TestHostChanges::aCardIsReadyWithItsPinGivenOrNotAskedFor()
{
    QFETCH(int, status);
    SimulatedHardware::SetPinStatus(status);
    QCOMPARE(DeviceState::Read().iPinStatus, status);
    QTEST(DeviceState::Read().bCardReady, "ready");
}

void TestHostChanges::eachPartOfTheStateMakesItAnotherOne()
{
    const DeviceState one;
    QVERIFY(one == DeviceState());
    DeviceState other;
    other.bAttached = true;
    QVERIFY(!(one == other));
    other = one;
    other.bCardReady = true;
    QVERIFY(!(one == other));
    other = one;
    other.bRadioOn = true;
    QVERIFY(!(one == other));
    other = one;
    other.bRegistered = true;
    QVERIFY(!(one == other));
    other = one;
    other.iPinStatus = 2;
    QVERIFY(!(one == other));
    other = one;
    other.iProductType = 1;
    QVERIFY(!(one == other));
    other = one;
    other.iCardType = 3;
    QVERIFY(!(one == other));
}

void TestHostChanges::aSwitchWithoutAnEventIsSeenByARefresh()
{
    DeviceWatcher watcher;
    watcher.Start();
    QSignalSpy changed(&watcher, SIGNAL(changed()));
    SimulatedHardware::SetProductType(1);
    watcher.Refresh();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(watcher.State().iProductType, 1);
    SimulatedHardware::SetCardType(3);
    watcher.Refresh();
    QCOMPARE(changed.count(), 2);
    QCOMPARE(watcher.State().iCardType, 3);
}

void TestHostChanges::whatIsTheSameIsNotToldAgain()
{
    DeviceWatcher watcher;
    watcher.Start();
    QSignalSpy changed(&watcher, SIGNAL(changed()));
    watcher.Refresh();
    QCOMPARE(changed.count(), 0);
}

QTEST_MAIN(TestHostChanges)
#include "test_host_changes.moc"
