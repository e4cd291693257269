#include "ModemFixture.h"

namespace
{

const char s_szError[] = "org.freedesktop.ModemManager1.Error.";

// A call as ModemManager has it.
enum State { DIALLING = 1, RINGING_OUT = 2, ACTIVE = 4, TERMINATED = 7 };
enum Reason { NO_REASON = 0, OVER = 4, REFUSED = 5, BROKEN = 6 };

// A modem, its calls and what it tells of them.
struct CallFixture : ModemFixture {
    // Dials, once the network is there, and waits until the modem has begun.
    bool IsDialled()
    {
        return IsReady() && modem.Dial("123", HOST_CALL_VOICE) &&
               QTest::qWaitFor([this] { return manager.Count("Start") == 1; });
    }

    // Dials, up to a question that ModemManager leaves unanswered.
    bool IsHeldAt(const char* szQuestion)
    {
        if (!IsReady()) {
            return false;
        }
        manager.Hold(szQuestion);
        return modem.Dial("123", HOST_CALL_VOICE) &&
               QTest::qWaitFor([this, szQuestion] { return manager.IsHeld(szQuestion); });
    }

    // Somebody calls from outside. The call's path, once the host knows of it.
    QString Rung()
    {
        const QString strPath = IsReady() ? manager.Ring("+4930") : QString();
        return QTest::qWaitFor([this] { return incoming.count() == 1; }) ? strPath : QString();
    }

    // The path of the call that was dialled last.
    QString Path() const
    {
        foreach (const QString& strPath, manager.Objects().keys()) {
            if (strPath.contains("/Call/")) {
                return strPath;
            }
        }
        return QString();
    }

    // How far the calls went, step by step.
    QList<int> Progress() const
    {
        QList<int> listProgress;
        for (const QList<QVariant>& arguments : progress) {
            listProgress << arguments.first().toInt();
        }
        return listProgress;
    }

    const QSignalSpy started{&modem, SIGNAL(callStarted(QString, int))};
    const QSignalSpy progress{&modem, SIGNAL(callProgress(int))};
    const QSignalSpy incoming{&modem, SIGNAL(incomingCall(QString))};
    const QSignalSpy ended{&modem, SIGNAL(callEnded(QString, int))};
};

} // namespace

// Voice calls by way of ModemManager, in both directions.
class TestModemCalls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_pBus.reset(new TestBus); }
    void aCallGoesItsWay();
    void whatCannotBeDialledIsRefused();
    void aCallThatCannotBeMadeSaysWhy_data();
    void aCallThatCannotBeMadeSaysWhy();
    void theEndHasItsReason_data();
    void theEndHasItsReason();
    void hangingUpEndsIt();
    void hangingUpBeforeItIsDialledDialsNothing();
    void aCallThatComesInIsTakenByAPress();
    void aCallThatNobodyTakesIsMissed();
    void aCallThatIsRefusedHereIsNotMissed();
    void aSecondCallThatComesInIsTold();
    void aModemPulledEndsTheCall();
    void aRadioSwitchedOffEndsTheCall_data();
    void aRadioSwitchedOffEndsTheCall();
    void whatIsKeptIsRealAndSaysHowItWas();
    void theEndOfTheProgramHangsUp();

private:
    QScopedPointer<TestBus> m_pBus;
};

void TestModemCalls::aCallGoesItsWay()
{
    CallFixture f;
    QVERIFY(f.IsReady());
    QVERIFY(f.modem.Dial("+49 (171) 123", HOST_CALL_VOICE));
    QCOMPARE(f.started.value(0).value(0).toString(), QString("+49171123"));
    QTRY_COMPARE(f.manager.Count("Start"), 1);
    QVERIFY(f.manager.Calls().contains("CreateCall +49171123"));
    const QString strPath = f.Path();
    f.manager.SetCall(strPath, RINGING_OUT, 1);
    f.manager.SetCall(strPath, ACTIVE, 3);
    QTRY_COMPARE(f.Progress(), QList<int>({HOST_CALL_DIALLING, HOST_CALL_RINGING, HOST_CALL_ACTIVE}));
    QVERIFY(!f.modem.Dial("456", HOST_CALL_VOICE)); // one at a time
    f.manager.SetCall(strPath, TERMINATED, OVER);
    QTRY_COMPARE(f.ended.count(), 1);
    QCOMPARE(f.Progress().last(), int(HOST_CALL_ENDED_BY_OTHER));
    QCOMPARE(f.store.Calls().size(), 1);
    QCOMPARE(f.store.Calls().first().strNumber, QString("+49171123"));
    QTRY_COMPARE(f.manager.Count("DeleteCall"), 1);
    QVERIFY(f.modem.Dial("456", HOST_CALL_VOICE));
}

void TestModemCalls::whatCannotBeDialledIsRefused()
{
    CallFixture f;
    QVERIFY(!f.modem.Dial("123", HOST_CALL_VOICE)); // nothing is known yet
    QVERIFY(f.IsReady());
    QVERIFY(!f.modem.Dial("Anna", HOST_CALL_VOICE));
    QVERIFY(!f.modem.Dial("123", HOST_CALL_VIDEO));
    f.manager.Set(f.manager.ModemPath(), "Modem", {{"State", 7}});
    QTRY_VERIFY(!f.modem.Status().bRegistered);
    QVERIFY(!f.modem.Dial("123", HOST_CALL_VOICE));
    QCOMPARE(f.manager.Count("CreateCall"), 0);
}

void TestModemCalls::aCallThatCannotBeMadeSaysWhy_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("end");
    QTest::addColumn<bool>("told");
    const QString strError = s_szError;
    QTest::newRow("no credit") << "Start" << strError + "Connection.NoCarrier" << int(HOST_CALL_NOT_CONNECTED) << true;
    QTest::newRow("not dialled") << "Start" << strError + "Connection.NoDialtone" << int(HOST_CALL_NOT_CONNECTED)
                                 << true;
    QTest::newRow("busy") << "Start" << strError + "Connection.Busy" << int(HOST_CALL_REFUSED) << false;
    QTest::newRow("no answer") << "Start" << strError + "Connection.NoAnswer" << int(HOST_CALL_NOT_ANSWERED) << false;
    QTest::newRow("no right") << "Start" << strError + "Core.Unauthorized" << int(HOST_CALL_FAILED) << true;
    QTest::newRow("not even made") << "CreateCall" << strError + "Core.Unsupported" << int(HOST_CALL_FAILED) << true;
}

void TestModemCalls::aCallThatCannotBeMadeSaysWhy()
{
    QFETCH(QString, method);
    QFETCH(QString, error);
    QFETCH(int, end);
    QFETCH(bool, told);
    CallFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy failed(&f.modem, SIGNAL(callFailed(int, QString)));
    f.manager.Fail(method, error, "what it says");
    QVERIFY(f.modem.Dial("123", HOST_CALL_VOICE));
    QTRY_COMPARE(f.ended.count(), 1);
    QCOMPARE(f.Progress().last(), end);
    QCOMPARE(failed.count(), told ? 1 : 0);
    if (told) {
        QCOMPARE(failed.first().at(1).toString(), QString("what it says"));
    }
    QVERIFY(f.modem.Dial("123", HOST_CALL_VOICE)); // the next is possible
}

void TestModemCalls::theEndHasItsReason_data()
{
    QTest::addColumn<bool>("active");
    QTest::addColumn<int>("reason");
    QTest::addColumn<int>("end");
    QTest::newRow("refused or busy") << false << int(REFUSED) << int(HOST_CALL_REFUSED);
    QTest::newRow("nobody answered") << false << int(OVER) << int(HOST_CALL_NOT_ANSWERED);
    QTest::newRow("broken off") << true << int(BROKEN) << int(HOST_CALL_FAILED);
    QTest::newRow("no reason") << true << int(NO_REASON) << int(HOST_CALL_ENDED_BY_OTHER);
}

void TestModemCalls::theEndHasItsReason()
{
    QFETCH(bool, active);
    QFETCH(int, reason);
    QFETCH(int, end);
    CallFixture f;
    QVERIFY(f.IsDialled());
    f.manager.SetCall(f.Path(), active ? ACTIVE : RINGING_OUT, 1);
    f.manager.SetCall(f.Path(), TERMINATED, uint(reason));
    QTRY_COMPARE(f.ended.count(), 1);
    QCOMPARE(f.Progress().last(), end);
}

void TestModemCalls::hangingUpEndsIt()
{
    CallFixture f;
    QVERIFY(f.IsDialled());
    f.manager.SetCall(f.Path(), ACTIVE, 3);
    QTRY_COMPARE(f.Progress().last(), int(HOST_CALL_ACTIVE));
    f.modem.HangUp();
    QTRY_COMPARE(f.manager.Count("Hangup"), 1);
    QCOMPARE(f.ended.count(), 0); // the modem has the last word
    f.manager.SetCall(f.Path(), TERMINATED, OVER);
    QTRY_COMPARE(f.ended.count(), 1);
    QCOMPARE(f.Progress().last(), int(HOST_CALL_ENDED));
}

void TestModemCalls::hangingUpBeforeItIsDialledDialsNothing()
{
    CallFixture f;
    QVERIFY(f.IsHeldAt("CreateCall"));
    f.modem.HangUp();
    f.manager.Release("CreateCall");
    QTRY_COMPARE(f.ended.count(), 1);
    QTRY_COMPARE(f.manager.Count("DeleteCall"), 1);
    QCOMPARE(f.manager.Count("Start"), 0);
}

void TestModemCalls::aCallThatComesInIsTakenByAPress()
{
    CallFixture f;
    const QString strPath = f.Rung();
    QVERIFY(!strPath.isEmpty());
    QCOMPARE(f.Progress(), QList<int>({HOST_CALL_INCOMING}));
    QCOMPARE(f.incoming.value(0).value(0).toString(), QString("+4930"));
    QCOMPARE(f.manager.Count("Accept"), 0);
    f.modem.Answer();
    QTRY_COMPARE(f.manager.Count("Accept"), 1);
    f.manager.SetCall(strPath, ACTIVE, 3);
    QTRY_COMPARE(f.Progress().last(), int(HOST_CALL_ACTIVE));
}

void TestModemCalls::aCallThatNobodyTakesIsMissed()
{
    CallFixture f;
    const QString strPath = f.Rung();
    QVERIFY(!strPath.isEmpty());
    f.manager.SetCall(strPath, TERMINATED, OVER);
    QTRY_COMPARE(f.Progress().last(), int(HOST_CALL_MISSED));
    QCOMPARE(f.store.Calls().size(), 1);
}

void TestModemCalls::aCallThatIsRefusedHereIsNotMissed()
{
    CallFixture f;
    const QString strPath = f.Rung();
    QVERIFY(!strPath.isEmpty());
    f.modem.HangUp();
    QTRY_COMPARE(f.manager.Count("Hangup"), 1);
    f.manager.SetCall(strPath, TERMINATED, REFUSED);
    QTRY_COMPARE(f.Progress().last(), int(HOST_CALL_ENDED));
}

void TestModemCalls::aSecondCallThatComesInIsTold()
{
    CallFixture f;
    QVERIFY(f.IsDialled());
    f.manager.Ring("+4930");
    QTRY_COMPARE(f.incoming.count(), 1);
    QCOMPARE(f.started.count(), 1);
    QCOMPARE(f.store.Calls().size(), 1);
}

void TestModemCalls::aModemPulledEndsTheCall()
{
    CallFixture f;
    QVERIFY(f.IsHeldAt("Start"));
    f.manager.Unplug();
    QTRY_COMPARE(f.ended.count(), 1);
    QCOMPARE(f.Progress().last(), int(HOST_CALL_LOST));
    QCOMPARE(f.store.Calls().size(), 1);
    QCOMPARE(f.store.Calls().first().iEnd, int(HOST_CALL_LOST));
}

void TestModemCalls::aRadioSwitchedOffEndsTheCall_data()
{
    QTest::addColumn<bool>("incoming");
    QTest::newRow("dialled") << false;
    QTest::newRow("rings") << true;
}

void TestModemCalls::aRadioSwitchedOffEndsTheCall()
{
    QFETCH(bool, incoming);
    CallFixture f;
    QVERIFY(incoming ? !f.Rung().isEmpty() : f.IsDialled());
    f.manager.Set(f.manager.ModemPath(), "Modem", {{"State", 7}}); // out of the network alone: it may come back
    QTRY_VERIFY(!f.modem.Status().bRegistered);
    QCOMPARE(f.ended.count(), 0);
    f.manager.Set(f.manager.ModemPath(), "Modem", {{"State", 3}});
    QTRY_COMPARE(f.ended.count(), 1);
    QCOMPARE(f.Progress().last(), int(HOST_CALL_LOST));
    QCOMPARE(f.store.Calls().size(), 1);
    QCOMPARE(f.store.Calls().first().iEnd, int(HOST_CALL_LOST));
    QCOMPARE(f.store.Calls().first().iDirection, int(incoming ? HOST_CALL_FROM_OUTSIDE : HOST_CALL_OUTGOING));
}

void TestModemCalls::whatIsKeptIsRealAndSaysHowItWas()
{
    CallFixture f;
    QVERIFY(f.IsDialled());
    f.manager.Ring("+4930"); // told, and kept as missed
    QTRY_COMPARE(f.incoming.count(), 1);
    f.manager.SetCall(f.Path(), TERMINATED, REFUSED);
    QTRY_COMPARE(f.ended.count(), 1);
    const QList<StoredCall> listCalls = f.store.Calls();
    QCOMPARE(listCalls.size(), 2);
    QCOMPARE(listCalls.first().strNumber, QString("+4930"));
    QCOMPARE(listCalls.first().iDirection, int(HOST_CALL_FROM_OUTSIDE));
    QCOMPARE(listCalls.first().iEnd, int(HOST_CALL_MISSED));
    QCOMPARE(listCalls.last().strNumber, QString("123"));
    QCOMPARE(listCalls.last().iDirection, int(HOST_CALL_OUTGOING));
    QCOMPARE(listCalls.last().iEnd, int(HOST_CALL_REFUSED));
    foreach (const StoredCall& stored, listCalls) {
        QCOMPARE(stored.iSimulated, 0);
    }
}

void TestModemCalls::theEndOfTheProgramHangsUp()
{
    CallFixture f;
    QVERIFY(f.IsDialled());
    f.manager.Hold("Hangup"); // and a daemon that hangs does not keep it
    f.modem.Finish();
    QCOMPARE(f.ended.count(), 1);
    QTRY_COMPARE(f.manager.Count("Hangup"), 1);
}

QTEST_GUILESS_MAIN(TestModemCalls)
#include "test_modem_calls.moc"
