#include "ModemFixture.h"

namespace
{

const char s_szError[] = "org.freedesktop.ModemManager1.Error.";

// A call as ModemManager has it.
enum State { DIALLING = 1, RINGING_OUT = 2, ACTIVE = 4, TERMINATED = 7 };
enum Reason { NO_REASON = 0, OVER = 4, REFUSED = 5, BROKEN = 6 };

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
    void theEndOfTheProgramHangsUp();

private:
    // The path of the call that was dialled last.
    static QString callPath(const ModemFixture& f);
    static QList<int> progress(const QSignalSpy& spy);

    QScopedPointer<TestBus> m_pBus;
};

QString TestModemCalls::callPath(const ModemFixture& f)
{
    foreach (const QString& strPath, f.manager.Objects().keys()) {
        if (strPath.contains("/Call/")) {
            return strPath;
        }
    }
    return QString();
}

QList<int> TestModemCalls::progress(const QSignalSpy& spy)
{
    QList<int> listProgress;
    for (const QList<QVariant>& arguments : spy) {
        listProgress << arguments.first().toInt();
    }
    return listProgress;
}

void TestModemCalls::aCallGoesItsWay()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy started(&f.modem, SIGNAL(callStarted(QString, int)));
    const QSignalSpy way(&f.modem, SIGNAL(callProgress(int)));
    const QSignalSpy ended(&f.modem, SIGNAL(callEnded(QString, int)));
    QVERIFY(f.modem.Dial("+49 (171) 123", HOST_CALL_VOICE));
    QCOMPARE(started.value(0).value(0).toString(), QString("+49171123"));
    QTRY_COMPARE(f.manager.Count("Start"), 1);
    QVERIFY(f.manager.Calls().contains("CreateCall +49171123"));
    const QString strPath = callPath(f);
    f.manager.SetCall(strPath, RINGING_OUT, 1);
    f.manager.SetCall(strPath, ACTIVE, 3);
    QTRY_COMPARE(progress(way), QList<int>({HOST_CALL_DIALLING, HOST_CALL_RINGING, HOST_CALL_ACTIVE}));
    QVERIFY(!f.modem.Dial("456", HOST_CALL_VOICE)); // one at a time
    f.manager.SetCall(strPath, TERMINATED, OVER);
    QTRY_COMPARE(ended.count(), 1);
    QCOMPARE(progress(way).last(), int(HOST_CALL_ENDED_BY_OTHER));
    QCOMPARE(f.store.Calls().size(), 1);
    QCOMPARE(f.store.Calls().first().strNumber, QString("+49171123"));
    QTRY_COMPARE(f.manager.Count("DeleteCall"), 1);
    QVERIFY(f.modem.Dial("456", HOST_CALL_VOICE));
}

void TestModemCalls::whatCannotBeDialledIsRefused()
{
    ModemFixture f;
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
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy way(&f.modem, SIGNAL(callProgress(int)));
    const QSignalSpy ended(&f.modem, SIGNAL(callEnded(QString, int)));
    const QSignalSpy failed(&f.modem, SIGNAL(callFailed(int, QString)));
    f.manager.Fail(method, error, "what it says");
    QVERIFY(f.modem.Dial("123", HOST_CALL_VOICE));
    QTRY_COMPARE(ended.count(), 1);
    QCOMPARE(progress(way).last(), end);
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
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy way(&f.modem, SIGNAL(callProgress(int)));
    const QSignalSpy ended(&f.modem, SIGNAL(callEnded(QString, int)));
    QVERIFY(f.modem.Dial("123", HOST_CALL_VOICE));
    QTRY_COMPARE(f.manager.Count("Start"), 1);
    f.manager.SetCall(callPath(f), active ? ACTIVE : RINGING_OUT, 1);
    f.manager.SetCall(callPath(f), TERMINATED, uint(reason));
    QTRY_COMPARE(ended.count(), 1);
    QCOMPARE(progress(way).last(), end);
}

void TestModemCalls::hangingUpEndsIt()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy way(&f.modem, SIGNAL(callProgress(int)));
    const QSignalSpy ended(&f.modem, SIGNAL(callEnded(QString, int)));
    QVERIFY(f.modem.Dial("123", HOST_CALL_VOICE));
    QTRY_COMPARE(f.manager.Count("Start"), 1);
    f.manager.SetCall(callPath(f), ACTIVE, 3);
    QTRY_COMPARE(progress(way).last(), int(HOST_CALL_ACTIVE));
    f.modem.HangUp();
    QTRY_COMPARE(f.manager.Count("Hangup"), 1);
    QCOMPARE(ended.count(), 0); // the modem has the last word
    f.manager.SetCall(callPath(f), TERMINATED, OVER);
    QTRY_COMPARE(ended.count(), 1);
    QCOMPARE(progress(way).last(), int(HOST_CALL_ENDED));
}

void TestModemCalls::hangingUpBeforeItIsDialledDialsNothing()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy ended(&f.modem, SIGNAL(callEnded(QString, int)));
    f.manager.Hold("CreateCall");
    QVERIFY(f.modem.Dial("123", HOST_CALL_VOICE));
    QTRY_VERIFY(f.manager.IsHeld("CreateCall"));
    f.modem.HangUp();
    f.manager.Release("CreateCall");
    QTRY_COMPARE(ended.count(), 1);
    QTRY_COMPARE(f.manager.Count("DeleteCall"), 1);
    QCOMPARE(f.manager.Count("Start"), 0);
}

void TestModemCalls::aCallThatComesInIsTakenByAPress()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy way(&f.modem, SIGNAL(callProgress(int)));
    const QSignalSpy incoming(&f.modem, SIGNAL(incomingCall(QString)));
    const QString strPath = f.manager.Ring("+4930");
    QTRY_COMPARE(progress(way), QList<int>({HOST_CALL_INCOMING}));
    QCOMPARE(incoming.value(0).value(0).toString(), QString("+4930"));
    QCOMPARE(f.manager.Count("Accept"), 0);
    f.modem.Answer();
    QTRY_COMPARE(f.manager.Count("Accept"), 1);
    f.manager.SetCall(strPath, ACTIVE, 3);
    QTRY_COMPARE(progress(way).last(), int(HOST_CALL_ACTIVE));
}

void TestModemCalls::aCallThatNobodyTakesIsMissed()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy way(&f.modem, SIGNAL(callProgress(int)));
    const QString strPath = f.manager.Ring("+4930");
    QTRY_COMPARE(way.count(), 1);
    f.manager.SetCall(strPath, TERMINATED, OVER);
    QTRY_COMPARE(progress(way).last(), int(HOST_CALL_MISSED));
    QCOMPARE(f.store.Calls().size(), 1);
}

void TestModemCalls::aCallThatIsRefusedHereIsNotMissed()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy way(&f.modem, SIGNAL(callProgress(int)));
    const QString strPath = f.manager.Ring("+4930");
    QTRY_COMPARE(way.count(), 1);
    f.modem.HangUp();
    QTRY_COMPARE(f.manager.Count("Hangup"), 1);
    f.manager.SetCall(strPath, TERMINATED, REFUSED);
    QTRY_COMPARE(progress(way).last(), int(HOST_CALL_ENDED));
}

void TestModemCalls::aSecondCallThatComesInIsTold()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy incoming(&f.modem, SIGNAL(incomingCall(QString)));
    const QSignalSpy started(&f.modem, SIGNAL(callStarted(QString, int)));
    QVERIFY(f.modem.Dial("123", HOST_CALL_VOICE));
    QTRY_COMPARE(f.manager.Count("Start"), 1);
    f.manager.Ring("+4930");
    QTRY_COMPARE(incoming.count(), 1);
    QCOMPARE(started.count(), 1);
    QCOMPARE(f.store.Calls().size(), 1);
}

void TestModemCalls::aModemPulledEndsTheCall()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy way(&f.modem, SIGNAL(callProgress(int)));
    const QSignalSpy ended(&f.modem, SIGNAL(callEnded(QString, int)));
    f.manager.Hold("Start");
    QVERIFY(f.modem.Dial("123", HOST_CALL_VOICE));
    QTRY_VERIFY(f.manager.IsHeld("Start"));
    f.manager.Unplug();
    QTRY_COMPARE(ended.count(), 1);
    QCOMPARE(progress(way).last(), int(HOST_CALL_LOST));
}

void TestModemCalls::theEndOfTheProgramHangsUp()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy ended(&f.modem, SIGNAL(callEnded(QString, int)));
    QVERIFY(f.modem.Dial("123", HOST_CALL_VOICE));
    QTRY_COMPARE(f.manager.Count("Start"), 1);
    f.manager.Hold("Hangup"); // and a daemon that hangs does not keep it
    f.modem.Finish();
    QCOMPARE(ended.count(), 1);
    QTRY_COMPARE(f.manager.Count("Hangup"), 1);
}

QTEST_GUILESS_MAIN(TestModemCalls)
#include "test_modem_calls.moc"
