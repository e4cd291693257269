// The host's modem with the real ModemManager and the simulated modem behind it.

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include "device/ModemManagerModem.h"
#include "messages/MessageStore.h"
#include "shared/HostLink.h"
#include "support/modem/ModemManagerBench.h"

namespace
{

struct RealSetup : modemsim::BenchSetup {
    RealSetup() { usb = false; }
};

} // namespace

class TestModemReal : public QObject
{
    Q_OBJECT

private slots:
    void theWholeWay();

private:
    static OutgoingMessage sms(const QString& strText)
    {
        OutgoingMessage message;
        message.iKind = HOST_MESSAGE_SMS;
        message.lstNumbers << "+491711234567";
        message.strText = strText;
        return message;
    }
};

// One run of the daemon: a process has one system bus, and a found modem never leaves this one.
void TestModemReal::theWholeWay()
{
    RealSetup setup;
    setup.plan.card.pin = "1234";
    modemsim::ModemManagerBench bench(setup);
    for (const auto& variable : bench.environment()) {
        qputenv(variable.first.c_str(), QByteArray::fromStdString(variable.second));
    }
    const QTemporaryDir folder;
    MessageStore store(folder.path());
    ModemManagerModem modem(QString(), store);
    modem.Start();
    bench.plug();

    // A wrong PIN, the right one, and the modem switched on.
    QTRY_COMPARE_WITH_TIMEOUT(int(modem.Status().enLock), int(ModemStatus::LOCK_PIN), 30000);
    QTRY_COMPARE(modem.Status().iTries, 3);
    QSignalSpy answered(&modem, SIGNAL(pinAnswered(bool, bool, QString)));
    modem.SendPin("0000");
    QTRY_COMPARE_WITH_TIMEOUT(answered.count(), 1, 30000);
    QVERIFY(!answered.at(0).at(0).toBool() && answered.at(0).at(1).toBool());
    QCOMPARE(modem.Status().iTries, 2);
    QCOMPARE(bench.modem().pinTries(), 2);
    modem.SendPin("1234");
    QTRY_COMPARE_WITH_TIMEOUT(answered.count(), 2, 30000);
    QVERIFY(answered.at(1).at(0).toBool());
    QTRY_VERIFY_WITH_TIMEOUT(modem.Status().bUsable && modem.Status().enLock == ModemStatus::LOCK_NONE, 30000);
    modem.Enable();
    QTRY_VERIFY_WITH_TIMEOUT(modem.Status().bRegistered, 30000);
    QVERIFY(!modem.Status().strOperator.isEmpty());

    // A short message, a long one, one of which a part is refused, and one that comes in.
    QTRY_VERIFY(modem.Status().bMessages && modem.Status().bCalls);
    QVERIFY(modem.Send(sms(QString::fromUtf8("Grüße €"))));
    QTRY_COMPARE_WITH_TIMEOUT(store.Messages().value(0).iState, int(MESSAGE_SENT), 30000);
    QVERIFY(modem.Send(sms(QString(300, 'x'))));
    QTRY_COMPARE_WITH_TIMEOUT(store.Messages().value(1).iState, int(MESSAGE_SENT), 30000);
    QCOMPARE(bench.modem().sentMessages().size(), size_t(3));
    bench.modem().setMessageError(38, 2);
    QVERIFY(modem.Send(sms(QString(300, 'y'))));
    QTRY_COMPARE_WITH_TIMEOUT(store.Messages().value(2).iState, int(MESSAGE_PARTLY), 30000);
    bench.modem().receiveMessage("+4930123", "Hello from outside");
    QTRY_COMPARE_WITH_TIMEOUT(store.Messages().value(3).iState, int(MESSAGE_RECEIVED), 30000);
    QCOMPARE(store.Messages().value(3).message.strText, QString("Hello from outside"));
    QCOMPARE(bench.modem().storedMessages(), 1);
    QVERIFY(modem.Remove(store.Messages().value(3).iId));
    QTRY_COMPARE_WITH_TIMEOUT(bench.modem().storedMessages(), 0, 30000);
    QTRY_COMPARE(store.Messages().size(), 3);

    // A call that the other side ends, one that is put through to nobody, one that comes in.
    QSignalSpy way(&modem, SIGNAL(callProgress(int)));
    QSignalSpy ended(&modem, SIGNAL(callEnded(QString, int)));
    QVERIFY(modem.Dial("+491711234567", HOST_CALL_VOICE));
    QTRY_COMPARE_WITH_TIMEOUT(way.last().first().toInt(), int(HOST_CALL_ACTIVE), 30000);
    bench.modem().hangUpByOther();
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 30000);
    QCOMPARE(way.last().first().toInt(), int(HOST_CALL_ENDED_BY_OTHER));
    bench.modem().setCallOutcome("no_credit");
    QVERIFY(modem.Dial("+491711234567", HOST_CALL_VOICE));
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 2, 30000);
    QCOMPARE(way.last().first().toInt(), int(HOST_CALL_NOT_CONNECTED));
    bench.modem().ring("+4930123");
    QTRY_COMPARE_WITH_TIMEOUT(way.last().first().toInt(), int(HOST_CALL_INCOMING), 30000);
    modem.HangUp();
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 3, 30000);
    QVERIFY(bench.modem().commands("AT+CHUP") > 0);
}

QTEST_GUILESS_MAIN(TestModemReal)
#include "test_modem_real.moc"
