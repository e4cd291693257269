#include "ModemFixture.h"

namespace
{

const char s_szError[] = "org.freedesktop.ModemManager1.Error.";

QString longText()
{
    return QString(200, 'x');
}

} // namespace

// Short messages by way of ModemManager: what the store and the user are told is what has happened.
class TestModemMessages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_pBus.reset(new TestBus); }
    void aMessageIsSentWhenTheNetworkHasTakenIt();
    void eachNumberGetsItsOwn();
    void whatHasFailedIsTold_data();
    void whatHasFailedIsTold();
    void aModemPulledInTheMiddleLeavesADoubt();
    void whatWaitedBehindItStaysUnsent();
    void withoutANetworkItStaysADraft();
    void aDraftIsSentByAPressAlone();
    void whatMayHaveLeftIsNotSentAgain();
    void multimediaMessagesStayDrafts();
    void aReceivedMessageIsKeptOnceAndStaysOnTheCard();
    void aLongOneIsThereWithItsLastPart();
    void whatLiesOnTheCardIsReadWhenTheModemComes();
    void deletingTakesItFromTheCard();
    void oneThatCannotBeDeletedStays();
    void aFullStoreIsTold();

private:
    QScopedPointer<TestBus> m_pBus;
};

void TestModemMessages::aMessageIsSentWhenTheNetworkHasTakenIt()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy finished(&f.modem, SIGNAL(messageFinished(int)));
    f.manager.Hold("Send");
    QVERIFY(f.modem.Send(f.Sms("Hello", {"+49 (171) 123"})));
    QTRY_VERIFY(f.manager.IsHeld("Send"));
    QVERIFY(f.manager.Calls().contains("Create +49171123 Hello"));
    QVERIFY(f.modem.IsSending(f.store.Messages().first().iId));
    QCOMPARE(f.StateOnDisk(), int(MESSAGE_UNCERTAIN));
    QCOMPARE(finished.count(), 0);
    f.manager.Release("Send");
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(f.State(), int(MESSAGE_SENT));
    QVERIFY(!f.modem.IsSending(f.store.Messages().first().iId));
    // What is sent stays in nobody's list.
    QTRY_COMPARE(f.manager.Count("Delete"), 1);
}

void TestModemMessages::eachNumberGetsItsOwn()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    f.manager.Hold("Send");
    QVERIFY(f.modem.Send(f.Sms("Hello", {"1", "2"})));
    QTRY_VERIFY(f.manager.IsHeld("Send"));
    f.manager.Release("Send", QLatin1String(s_szError) + "Message.NetworkTimeout");
    QTRY_COMPARE(f.State(1), int(MESSAGE_SENT));
    QCOMPARE(f.State(0), int(MESSAGE_FAILED));
    QCOMPARE(f.manager.Calls().filter("Create"), QStringList({"Create 1 Hello", "Create 2 Hello"}));
}

void TestModemMessages::whatHasFailedIsTold_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("state");
    const QString strError = s_szError;
    QTest::newRow("refused at once") << "x"
                                     << "Create" << strError + "Core.InvalidArgs" << int(MESSAGE_FAILED);
    QTest::newRow("refused by the network") << "x"
                                            << "Send" << strError + "Message.Network" << int(MESSAGE_FAILED);
    QTest::newRow("a part refused") << longText() << "Send" << strError + "Message.Network" << int(MESSAGE_PARTLY);
    QTest::newRow("no right") << longText() << "Send" << strError + "Core.Unauthorized" << int(MESSAGE_FAILED);
    QTest::newRow("the modem does not answer")
        << "x"
        << "Send" << strError + "Serial.ResponseTimeout" << int(MESSAGE_UNCERTAIN);
    QTest::newRow("broken off") << "x"
                                << "Send" << strError + "Core.Cancelled" << int(MESSAGE_UNCERTAIN);
    QTest::newRow("no answer") << "x"
                               << "Send"
                               << "org.freedesktop.DBus.Error.NoReply" << int(MESSAGE_UNCERTAIN);
}

void TestModemMessages::whatHasFailedIsTold()
{
    QFETCH(QString, text);
    QFETCH(QString, method);
    QFETCH(QString, error);
    QFETCH(int, state);
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy finished(&f.modem, SIGNAL(messageFinished(int)));
    f.manager.Fail(method, error, "what it says");
    QVERIFY(f.modem.Send(f.Sms(text)));
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(f.State(), state);
    QCOMPARE(f.store.Messages().first().strDetail, QString("what it says"));
    // Nothing is tried twice by itself.
    QCOMPARE(f.manager.Count("Send"), method == "Send" ? 1 : 0);
}

void TestModemMessages::aModemPulledInTheMiddleLeavesADoubt()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy finished(&f.modem, SIGNAL(messageFinished(int)));
    f.manager.Hold("Send");
    QVERIFY(f.modem.Send(f.Sms("Hello")));
    QTRY_VERIFY(f.manager.IsHeld("Send"));
    f.manager.Unplug();
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(f.State(), int(MESSAGE_UNCERTAIN));
    // A late word of the old modem changes nothing any more.
    f.manager.Release("Send", "org.freedesktop.DBus.Error.Failed");
    f.manager.Plug(1);
    QVERIFY(f.IsReady());
    QVERIFY(f.modem.Send(f.Sms("Second")));
    QTRY_COMPARE(f.State(1), int(MESSAGE_SENT));
    QCOMPARE(f.State(0), int(MESSAGE_UNCERTAIN));
}

void TestModemMessages::whatWaitedBehindItStaysUnsent()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy finished(&f.modem, SIGNAL(messageFinished(int)));
    f.manager.Hold("Send");
    QVERIFY(f.modem.Send(f.Sms("Hello", {"1", "2"})));
    QTRY_VERIFY(f.manager.IsHeld("Send"));
    f.manager.End();
    QTRY_COMPARE(finished.count(), 2);
    QCOMPARE(f.State(0), int(MESSAGE_UNCERTAIN));
    QCOMPARE(f.State(1), int(MESSAGE_DRAFT));
    f.manager.Run();
    f.manager.Plug();
    QVERIFY(f.IsReady());
    QTRY_VERIFY(f.manager.Count("List") > 0);
    QCOMPARE(f.manager.Calls().filter("Create").size(), 1);
}

void TestModemMessages::withoutANetworkItStaysADraft()
{
    ModemFixture f;
    f.manager.Set(f.manager.ModemPath(), "Modem", {{"State", 7}});
    QTRY_VERIFY(f.modem.Status().bEnabled && !f.modem.Status().bRegistered);
    const QSignalSpy finished(&f.modem, SIGNAL(messageFinished(int)));
    QVERIFY(f.modem.Send(f.Sms("Hello")));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(f.State(), int(MESSAGE_DRAFT));
    QVERIFY(!f.modem.SendAgain(f.store.Messages().first().iId));
    QCOMPARE(f.manager.Count("Create"), 0);
}

void TestModemMessages::aDraftIsSentByAPressAlone()
{
    ModemFixture f(false);
    QVERIFY(f.modem.Send(f.Sms("Hello")));
    f.manager.Run();
    f.manager.Plug();
    QVERIFY(f.IsReady());
    QTRY_COMPARE(f.manager.Count("ListCalls"), 1);
    QCOMPARE(f.manager.Count("Create"), 0);
    QVERIFY(f.modem.SendAgain(f.store.Messages().first().iId));
    QTRY_COMPARE(f.State(), int(MESSAGE_SENT));
}

void TestModemMessages::whatMayHaveLeftIsNotSentAgain()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    for (const MessageState enState :
         {MESSAGE_SIMULATED, MESSAGE_UNCERTAIN, MESSAGE_SENT, MESSAGE_PARTLY, MESSAGE_RECEIVED}) {
        QVERIFY(!f.modem.SendAgain(f.store.Add(f.Sms("Hello"), enState)));
    }
    QVERIFY(!f.modem.SendAgain(4711));
}

void TestModemMessages::multimediaMessagesStayDrafts()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    OutgoingMessage message = f.Sms("Hello");
    message.iKind = HOST_MESSAGE_MMS;
    QVERIFY(f.modem.Send(message));
    QCOMPARE(f.State(), int(MESSAGE_DRAFT));
    QVERIFY(!f.modem.SendAgain(f.store.Messages().first().iId));
    QCOMPARE(f.manager.Count("Create"), 0);
}

void TestModemMessages::aReceivedMessageIsKeptOnceAndStaysOnTheCard()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy received(&f.modem, SIGNAL(messageReceived(QString, QString)));
    const QString strPath = f.manager.Receive("+4930", "Guten Tag", "2026-11-22T06:30:00+01");
    QTRY_COMPARE(received.count(), 1);
    const StoredMessage stored = f.store.Messages().value(0);
    QCOMPARE(stored.iState, int(MESSAGE_RECEIVED));
    QCOMPARE(stored.message.lstNumbers, QStringList("+4930"));
    QCOMPARE(stored.time.toUTC(), QDateTime(QDate(2026, 11, 22), QTime(5, 30), Qt::UTC));
    // The daemon starts anew and lists it again.
    f.manager.Unplug();
    QTRY_VERIFY(!f.modem.Status().bPresent);
    f.manager.Plug();
    QTRY_VERIFY(f.manager.Count("GetAll") >= 2);
    QVERIFY(f.IsReady());
    QVERIFY(f.modem.Send(f.Sms("behind it")));
    QTRY_COMPARE(f.State(1), int(MESSAGE_SENT));
    QCOMPARE(received.count(), 1);
    QVERIFY(f.manager.Objects().contains(strPath));
}

void TestModemMessages::aLongOneIsThereWithItsLastPart()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy received(&f.modem, SIGNAL(messageReceived(QString, QString)));
    const QString strPath = f.manager.Receive("+4930", QString(), "2026-11-22T06:30:00+01", 2);
    QTRY_VERIFY(f.manager.Count("GetAll") >= 1);
    f.manager.Set(strPath, "Sms", {{"Text", longText()}, {"State", 3u}});
    QTRY_COMPARE(received.count(), 1);
    QCOMPARE(received.first().at(1).toString(), longText());
}

void TestModemMessages::whatLiesOnTheCardIsReadWhenTheModemComes()
{
    ModemFixture f(false);
    f.manager.Run();
    f.manager.Receive("+4930", "Earlier", "2026-11-20T10:00:00+01");
    f.manager.Plug();
    QTRY_COMPARE(f.store.Messages().size(), 1);
    QCOMPARE(f.State(), int(MESSAGE_RECEIVED));
}

void TestModemMessages::deletingTakesItFromTheCard()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QString strPath = f.manager.Receive("+4930", "Hello", "2026-11-22T06:30:00+01");
    QTRY_COMPARE(f.store.Messages().size(), 1);
    QVERIFY(f.modem.Remove(f.store.Messages().first().iId));
    QTRY_VERIFY(f.store.Messages().isEmpty());
    QVERIFY(!f.manager.Objects().contains(strPath));
}

void TestModemMessages::oneThatCannotBeDeletedStays()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy failed(&f.modem, SIGNAL(removeFailed(QString)));
    f.manager.Receive("+4930", "Hello", "2026-11-22T06:30:00+01");
    QTRY_COMPARE(f.store.Messages().size(), 1);
    f.manager.Fail("Delete", QLatin1String(s_szError) + "Core.Unauthorized", "not you");
    QVERIFY(f.modem.Remove(f.store.Messages().first().iId));
    QTRY_COMPARE(failed.count(), 1);
    QCOMPARE(failed.first().first().toString(), QString("not you"));
    QCOMPARE(f.store.Messages().size(), 1);
}

void TestModemMessages::aFullStoreIsTold()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy full(&f.modem, SIGNAL(messageStoreFull()));
    f.manager.Fail("Send", QLatin1String(s_szError) + "Message.MemoryFull");
    QVERIFY(f.modem.Send(f.Sms("Hello")));
    QTRY_COMPARE(full.count(), 1);
    QCOMPARE(f.State(), int(MESSAGE_FAILED));
}

QTEST_GUILESS_MAIN(TestModemMessages)
#include "test_modem_messages.moc"
