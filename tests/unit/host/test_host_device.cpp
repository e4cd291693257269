#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include "ReadyDevice.h"
#include "device/DeviceState.h"
#include "device/DeviceWatcher.h"
#include "device/SimulatedHardware.h"
#include "device/SimulatedModem.h"
#include "messages/MessageStore.h"
#include "orva/orva_sim.h"
#include "shared/HostLink.h"

// The watcher, the modem and the switches on the real SDK with its simulated device.
class TestHostDevice : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void theSwitchesAreThere();
    void theFirstStateIsRead();
    void eventsBecomeNotifyCodes_data();
    void eventsBecomeNotifyCodes();
    void codesComeOnTheUserInterfaceThread();
    void nothingComesAfterStop();
    void theSystemModeIsAnnounced();
    void aCallNeedsANetwork();
    void oneCallAtATime();
    void numbersThatCanBeDialled_data();
    void numbersThatCanBeDialled();
    void hangingUpWithoutACallDoesNothing();
    void aMessageGoesToTheOutbox();
    void aMessageToNobodyIsRefused();
};

void TestHostDevice::init()
{
    makeDeviceReady();
}

void TestHostDevice::theSwitchesAreThere()
{
    QVERIFY(SimulatedHardware::Available());
}

void TestHostDevice::theFirstStateIsRead()
{
    DeviceWatcher watcher;
    const QSignalSpy codes(&watcher, SIGNAL(notifyCode(int, int)));
    QVERIFY(!watcher.State().Online());
    watcher.Start();
    QVERIFY(watcher.State().bAttached);
    QVERIFY(watcher.State().bCardReady);
    QVERIFY(watcher.State().Online());
    QCOMPARE(codes.count(), 0);
}

void TestHostDevice::eventsBecomeNotifyCodes_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("codes");
    QTest::newRow("network lost") << "net0"
                                  << "515/0";
    QTest::newRow("network lost and back") << "net0 net1"
                                           << "515/0 515/1";
    QTest::newRow("radio off") << "radio0"
                               << "576/0";
    QTest::newRow("radio off and on") << "radio0 radio1"
                                      << "576/0 577/0";
    QTest::newRow("card out") << "card0"
                              << "579/0";
    QTest::newRow("card out and in") << "card0 card1"
                                     << "579/0 578/0";
    QTest::newRow("PIN asked for") << "pin2"
                                   << "579/0";
    QTest::newRow("PIN asked for and given") << "pin2 pin1"
                                             << "579/0 578/0";
    QTest::newRow("device out") << "dev0"
                                << "576/0";
    QTest::newRow("device out and in") << "dev0 dev1"
                                       << "576/0 577/0";
}

void TestHostDevice::eventsBecomeNotifyCodes()
{
    QFETCH(QString, action);
    QFETCH(QString, codes);
    DeviceWatcher watcher;
    watcher.Start();
    QSignalSpy spy(&watcher, SIGNAL(notifyCode(int, int)));
    QSignalSpy changed(&watcher, SIGNAL(changed()));
    QStringList lstSeen;
    foreach (const QString& strStep, action.split(' ')) {
        const int iValue = strStep.right(1).toInt();
        const QString strWhat = strStep.left(strStep.length() - 1);
        if (strWhat == "net") {
            SimulatedHardware::SetNetwork(iValue != 0);
        } else if (strWhat == "radio") {
            SimulatedHardware::SetRadio(iValue != 0);
        } else if (strWhat == "card") {
            SimulatedHardware::SetCard(iValue != 0);
        } else if (strWhat == "pin") {
            SimulatedHardware::SetPinStatus(iValue);
        } else {
            SimulatedHardware::SetDevice(iValue != 0);
        }
        // The state is read when the event arrives, so that each step is let through by itself.
        QCOMPARE(ORVA_Sim_WaitEvents(), 0L);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
        while (!spy.isEmpty()) {
            const QList<QVariant> lstCode = spy.takeFirst();
            lstSeen << QStringLiteral("%1/%2").arg(lstCode.at(0).toInt()).arg(lstCode.at(1).toInt());
        }
    }
    QCOMPARE(lstSeen.join(' '), codes);
    QVERIFY(changed.count() > 0);
}

namespace
{

class ThreadProbe : public QObject
{
    Q_OBJECT

public:
    Qt::HANDLE m_thread = nullptr;

public slots:
    void OnCode() { m_thread = QThread::currentThreadId(); }
};

} // namespace

void TestHostDevice::codesComeOnTheUserInterfaceThread()
{
    DeviceWatcher watcher;
    watcher.Start();
    ThreadProbe probe;
    QVERIFY(connect(&watcher, SIGNAL(notifyCode(int, int)), &probe, SLOT(OnCode()), Qt::DirectConnection));
    SimulatedHardware::SetNetwork(false);
    QTRY_VERIFY(probe.m_thread != nullptr);
    QCOMPARE(probe.m_thread, QThread::currentThreadId());
}

void TestHostDevice::nothingComesAfterStop()
{
    DeviceWatcher watcher;
    watcher.Start();
    const QSignalSpy spy(&watcher, SIGNAL(notifyCode(int, int)));
    SimulatedHardware::SetNetwork(false);
    QCOMPARE(ORVA_Sim_WaitEvents(), 0L);
    watcher.Stop();
    SimulatedHardware::SetNetwork(true);
    QCOMPARE(ORVA_Sim_WaitEvents(), 0L);
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 0);
}

void TestHostDevice::theSystemModeIsAnnounced()
{
    DeviceWatcher watcher;
    watcher.Start();
    QSignalSpy spy(&watcher, SIGNAL(notifyCode(int, int)));
    SimulatedHardware::SetProductType(1);
    watcher.AnnounceSystemMode();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toInt(), 4101);
    QCOMPARE(watcher.State().iProductType, 1);
}

void TestHostDevice::aCallNeedsANetwork()
{
    const QTemporaryDir folder;
    MessageStore outbox(folder.path());
    SimulatedModem modem(outbox);
    SimulatedHardware::SetRadio(false);
    QVERIFY(!modem.Dial("123", HOST_CALL_VOICE));
    SimulatedHardware::SetRadio(true);
    SimulatedHardware::SetNetwork(false);
    QVERIFY(!modem.Dial("123", HOST_CALL_VOICE));
    SimulatedHardware::SetNetwork(true);
    SimulatedHardware::SetDevice(false);
    QVERIFY(!modem.Dial("123", HOST_CALL_VOICE));
    SimulatedHardware::SetDevice(true);
    QVERIFY(modem.Dial("123", HOST_CALL_VOICE));
}

void TestHostDevice::oneCallAtATime()
{
    const QTemporaryDir folder;
    MessageStore outbox(folder.path());
    SimulatedModem modem(outbox);
    QSignalSpy started(&modem, SIGNAL(callStarted(QString, int)));
    QSignalSpy ended(&modem, SIGNAL(callEnded(QString, int)));
    QVERIFY(modem.Dial("123", HOST_CALL_VIDEO));
    QVERIFY(!modem.Dial("456", HOST_CALL_VOICE));
    QCOMPARE(started.count(), 1);
    QCOMPARE(started.first().at(0).toString(), QStringLiteral("123"));
    QCOMPARE(started.first().at(1).toInt(), int(HOST_CALL_VIDEO));
    modem.HangUp();
    QCOMPARE(ended.count(), 1);
    QCOMPARE(ended.first().at(1).toInt(), int(HOST_CALL_VIDEO));
    QVERIFY(modem.Dial("456", HOST_CALL_VOICE));
}

void TestHostDevice::numbersThatCanBeDialled_data()
{
    QTest::addColumn<QString>("dialled");
    QTest::newRow("123") << "123";
    QTest::newRow("+49 (170) 12-34/5.6") << "+49170123456";
    QTest::newRow("*100#") << "*100#";
    QTest::newRow("") << "";
    QTest::newRow("+") << "";
    QTest::newRow("Anna") << "";
    QTest::newRow("12+3") << "";
    QTest::newRow("123;456") << "";
}

void TestHostDevice::numbersThatCanBeDialled()
{
    QFETCH(QString, dialled);
    const QTemporaryDir folder;
    MessageStore outbox(folder.path());
    SimulatedModem modem(outbox);
    QSignalSpy started(&modem, SIGNAL(callStarted(QString, int)));
    QCOMPARE(modem.Dial(QTest::currentDataTag(), HOST_CALL_VOICE), !dialled.isEmpty());
    QCOMPARE(started.isEmpty() ? QString() : started.first().first().toString(), dialled);
}

void TestHostDevice::hangingUpWithoutACallDoesNothing()
{
    const QTemporaryDir folder;
    MessageStore outbox(folder.path());
    SimulatedModem modem(outbox);
    const QSignalSpy ended(&modem, SIGNAL(callEnded(QString, int)));
    modem.HangUp();
    QCOMPARE(ended.count(), 0);
}

void TestHostDevice::aMessageGoesToTheOutbox()
{
    const QTemporaryDir folder;
    MessageStore outbox(folder.path());
    SimulatedModem modem(outbox);
    OutgoingMessage message;
    message.lstNumbers << "1"
                       << "2";
    message.strText = "Hello";
    QVERIFY(modem.Send(message));
    QCOMPARE(outbox.Messages().size(), 1);
    QCOMPARE(outbox.Messages().first().message.lstNumbers.size(), 2);
}

void TestHostDevice::aMessageToNobodyIsRefused()
{
    const QTemporaryDir folder;
    MessageStore outbox(folder.path());
    SimulatedModem modem(outbox);
    QVERIFY(!modem.Send(OutgoingMessage()));
    QVERIFY(outbox.Messages().isEmpty());
}

QTEST_MAIN(TestHostDevice)
#include "test_host_device.moc"
