// The host's modem with the real ModemManager and the simulated modem behind it.

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

#include "device/ModemManagerModem.h"
#include "messages/MessageStore.h"
#include "shared/HostLink.h"
#include "support/modem/ModemManagerBench.h"

namespace
{

const char s_szPin[] = "1234";

// One daemon for all tests: a process has one system bus, and a found modem never leaves this one.
struct RealModem {
    RealModem() : bench(setup()), store(folder.path())
    {
        for (const auto& variable : bench.environment()) {
            qputenv(variable.first.c_str(), QByteArray::fromStdString(variable.second));
        }
        modem.reset(new ModemManagerModem(QString(), store));
        modem->Start();
        bench.plug();
    }

    static modemsim::BenchSetup setup()
    {
        modemsim::BenchSetup result;
        result.usb = false;
        result.plan.card.pin = s_szPin;
        return result;
    }

    QTemporaryDir folder;
    modemsim::ModemManagerBench bench;
    MessageStore store;
    QScopedPointer<ModemManagerModem> modem;
};

} // namespace

class TestModemReal : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_pReal.reset(new RealModem); }
    void itsPinOpensIt();
    void messagesGoAndCome();
    void callsGoAndCome();

private:
    static OutgoingMessage sms(const QString& strText)
    {
        OutgoingMessage message;
        message.iKind = HOST_MESSAGE_SMS;
        message.lstNumbers << "+491711234567";
        message.strText = strText;
        return message;
    }

    ModemManagerModem& modem() { return *m_pReal->modem; }
    modemsim::Modem& hardware() { return m_pReal->bench.modem(); }
    QList<StoredMessage> messages() const { return m_pReal->store.Messages(); }
    // Opens what no test before has opened, and waits for the network. False if it does not come.
    bool open();

    QScopedPointer<RealModem> m_pReal;
};

// A lock may be gone for a moment while ModemManager asks for it anew, and what is asked of the modem then fails.
bool TestModemReal::open()
{
    bool bPinGiven = false;
    bool bEnabling = false;
    QSignalSpy refused(&modem(), SIGNAL(enableFailed(QString)));
    const bool bOpen = QTest::qWaitFor(
        [&] {
            const ModemStatus status = modem().Status();
            if (status.enLock == ModemStatus::LOCK_PIN) {
                bEnabling = false;
                if (!bPinGiven) {
                    bPinGiven = true;
                    modem().SendPin(s_szPin);
                }
            } else if (!refused.isEmpty()) {
                qInfo("asked again: %s", qPrintable(refused.takeFirst().at(0).toString()));
                bEnabling = false;
            } else if (status.bUsable && status.enLock == ModemStatus::LOCK_NONE && !bEnabling) {
                bEnabling = true;
                modem().Enable();
            }
            return status.bRegistered && status.bMessages && status.bCalls;
        },
        60000);
    const ModemStatus status = modem().Status();
    if (!bOpen) {
        qWarning("lock %d, usable %d, enabled %d, registered %d, messages %d, calls %d", int(status.enLock),
                 status.bUsable, status.bEnabled, status.bRegistered, status.bMessages, status.bCalls);
    }
    return bOpen;
}

void TestModemReal::itsPinOpensIt()
{
    QTRY_COMPARE_WITH_TIMEOUT(int(modem().Status().enLock), int(ModemStatus::LOCK_PIN), 30000);
    QTRY_COMPARE(modem().Status().iTries, 3);
    const QSignalSpy answered(&modem(), SIGNAL(pinAnswered(bool, bool, QString)));
    modem().SendPin("0000");
    QTRY_COMPARE_WITH_TIMEOUT(answered.count(), 1, 30000);
    QVERIFY(!answered.at(0).at(0).toBool() && answered.at(0).at(1).toBool());
    QCOMPARE(modem().Status().iTries, 2);
    QCOMPARE(hardware().pinTries(), 2);
    QVERIFY(open());
    QTRY_COMPARE(answered.count(), 2);
    QVERIFY(answered.at(1).at(0).toBool());
    QTRY_VERIFY(!modem().Status().strOperator.isEmpty());
}

// A short message, a long one, one of which a part is refused, and one that comes in.
void TestModemReal::messagesGoAndCome()
{
    QVERIFY(open());
    QVERIFY(modem().Send(sms(QString::fromUtf8("Grüße €"))));
    QTRY_COMPARE_WITH_TIMEOUT(messages().value(0).iState, int(MESSAGE_SENT), 30000);
    QVERIFY(modem().Send(sms(QString(300, 'x'))));
    QTRY_COMPARE_WITH_TIMEOUT(messages().value(1).iState, int(MESSAGE_SENT), 30000);
    QCOMPARE(hardware().sentMessages().size(), size_t(3));
    hardware().setMessageError(38, 2);
    QVERIFY(modem().Send(sms(QString(300, 'y'))));
    QTRY_COMPARE_WITH_TIMEOUT(messages().value(2).iState, int(MESSAGE_PARTLY), 30000);
    hardware().receiveMessage("+4930123", "Hello from outside");
    QTRY_COMPARE_WITH_TIMEOUT(messages().value(3).iState, int(MESSAGE_RECEIVED), 30000);
    QCOMPARE(messages().value(3).message.strText, QString("Hello from outside"));
    QCOMPARE(hardware().storedMessages(), 1);
    QVERIFY(modem().Remove(messages().value(3).iId));
    QTRY_COMPARE_WITH_TIMEOUT(hardware().storedMessages(), 0, 30000);
    QTRY_COMPARE(messages().size(), 3);
}

// A call that the other side ends, one that is put through to nobody, one that comes in.
void TestModemReal::callsGoAndCome()
{
    QVERIFY(open());
    const QSignalSpy way(&modem(), SIGNAL(callProgress(int)));
    const QSignalSpy ended(&modem(), SIGNAL(callEnded(QString, int)));
    QVERIFY(modem().Dial("+491711234567", HOST_CALL_VOICE));
    QTRY_COMPARE_WITH_TIMEOUT(way.last().first().toInt(), int(HOST_CALL_ACTIVE), 30000);
    hardware().hangUpByOther();
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 30000);
    QCOMPARE(way.last().first().toInt(), int(HOST_CALL_ENDED_BY_OTHER));
    hardware().setCallOutcome("no_credit");
    QVERIFY(modem().Dial("+491711234567", HOST_CALL_VOICE));
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 2, 30000);
    QCOMPARE(way.last().first().toInt(), int(HOST_CALL_NOT_CONNECTED));
    hardware().ring("+4930123");
    QTRY_COMPARE_WITH_TIMEOUT(way.last().first().toInt(), int(HOST_CALL_INCOMING), 30000);
    modem().HangUp();
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 3, 30000);
    QVERIFY(hardware().commands("AT+CHUP") > 0);
}

QTEST_GUILESS_MAIN(TestModemReal)
#include "test_modem_real.moc"
