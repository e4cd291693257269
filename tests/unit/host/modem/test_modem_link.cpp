#include "ModemFixture.h"

// The modem itself by way of ModemManager: what is there, comes and goes, its card's PIN, its network.
class TestModemLink : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_pBus.reset(new TestBus); }
    void whatIsKnownIsTold();
    void aDaemonThatComesGoesAndReturnsIsFollowed();
    void aDaemonThatHangsHoldsNothingUp();
    void theModemWithTheChosenPortIsTaken();
    void aPortThatIsNotThereYetTakesNoOther();
    void theSignalFollows();
    void aLockIsToldWithItsTries_data();
    void aLockIsToldWithItsTries();
    void theRightPinOpensTheCard();
    void aWrongPinLeavesOneTryLess();
    void aWrongPinCountsEvenIfTheModemDoesNot();
    void aPinIsGivenOnce();
    void whatElseKeepsThePinIsNoWrongPin();
    void aModemIsSwitchedOnByAPress();

private:
    QScopedPointer<TestBus> m_pBus;
};

void TestModemLink::whatIsKnownIsTold()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const ModemStatus status = f.modem.Status();
    QVERIFY(status.bBus && status.bService && status.bPresent && status.bUsable && status.bEnabled);
    QVERIFY(status.bMessages && status.bCalls);
    QCOMPARE(status.strName, QString("Maker Stick 0"));
    QCOMPARE(status.strOperator, QString("Test Net"));
    QCOMPARE(status.iSignal, 67);
    QCOMPARE(int(status.enLock), int(ModemStatus::LOCK_NONE));
    QVERIFY(!f.modem.IsSimulated());
}

void TestModemLink::aDaemonThatComesGoesAndReturnsIsFollowed()
{
    ModemFixture f(false);
    QTRY_VERIFY(f.modem.Status().bBus);
    QVERIFY(!f.modem.Status().bService);
    f.manager.Run();
    QTRY_VERIFY(f.modem.Status().bService);
    QVERIFY(!f.modem.Status().bPresent);
    f.manager.Plug();
    QVERIFY(f.IsReady());
    f.manager.End();
    QTRY_VERIFY(!f.modem.Status().bService);
    QVERIFY(!f.modem.Status().bPresent);
    f.manager.Run();
    f.manager.Plug(1);
    QVERIFY(f.IsReady());
    f.manager.Unplug(1);
    QTRY_VERIFY(!f.modem.Status().bPresent);
    QVERIFY(f.modem.Status().bService);
}

void TestModemLink::aDaemonThatHangsHoldsNothingUp()
{
    ModemFixture f(false);
    f.manager.Hold("GetManagedObjects");
    f.manager.Run();
    QTRY_VERIFY(f.manager.IsHeld("GetManagedObjects"));
    QVERIFY(!f.modem.Status().bPresent);
    f.manager.Plug();
    f.manager.Release("GetManagedObjects");
    QVERIFY(f.IsReady());
}

void TestModemLink::theModemWithTheChosenPortIsTaken()
{
    QTemporaryDir ports;
    QFile port(ports.filePath("ttyUSB7"));
    QVERIFY(port.open(QIODevice::WriteOnly));
    const QString strLink = ports.filePath("my-modem");
    QVERIFY(QFile::link(port.fileName(), strLink));
    ModemFixture f(true, strLink);
    QTRY_VERIFY(f.modem.Status().bService);
    f.manager.Plug(1, "ttyUSB7");
    QVERIFY(f.IsReady());
    QCOMPARE(f.modem.Status().strName, QString("Maker Stick 1"));
    f.manager.Unplug(1);
    QTRY_VERIFY(!f.modem.Status().bPresent);
}

void TestModemLink::aPortThatIsNotThereYetTakesNoOther()
{
    ModemFixture f(true, "/nonexistent/ttyUSB7");
    QTRY_VERIFY(f.manager.Count("GetManagedObjects") == 1);
    f.manager.Plug(1, "ttyUSB7");
    QVERIFY(f.IsReady());
    QCOMPARE(f.modem.Status().strName, QString("Maker Stick 1"));
}

void TestModemLink::theSignalFollows()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy changed(&f.modem, SIGNAL(statusChanged()));
    f.manager.Set(f.manager.ModemPath(), "Modem", {{"SignalQuality", 12u}});
    QTRY_COMPARE(f.modem.Status().iSignal, 12);
    QVERIFY(!changed.isEmpty());
}

void TestModemLink::aLockIsToldWithItsTries_data()
{
    QTest::addColumn<uint>("lock");
    QTest::addColumn<int>("tries");
    QTest::addColumn<int>("expected");
    QTest::newRow("PIN") << 2u << 3 << int(ModemStatus::LOCK_PIN);
    QTest::newRow("PIN, the modem does not count") << 2u << -1 << int(ModemStatus::LOCK_PIN);
    QTest::newRow("PUK") << 4u << -1 << int(ModemStatus::LOCK_PUK);
    QTest::newRow("PIN2 is not for opening") << 3u << -1 << int(ModemStatus::LOCK_NONE);
    QTest::newRow("the operator's") << 6u << -1 << int(ModemStatus::LOCK_OTHER);
}

void TestModemLink::aLockIsToldWithItsTries()
{
    QFETCH(uint, lock);
    QFETCH(int, tries);
    QFETCH(int, expected);
    ModemFixture f;
    QVERIFY(f.IsReady());
    f.manager.Lock(lock, tries);
    QTRY_VERIFY(!f.modem.Status().bRegistered);
    QCOMPARE(int(f.modem.Status().enLock), expected);
    QCOMPARE(f.modem.Status().iTries, tries);
}

void TestModemLink::theRightPinOpensTheCard()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    f.manager.Lock(2, 3);
    QTRY_COMPARE(f.modem.Status().iTries, 3);
    const QSignalSpy answered(&f.modem, SIGNAL(pinAnswered(bool, bool, QString)));
    f.modem.SendPin("1234");
    QTRY_COMPARE(answered.count(), 1);
    QVERIFY(answered.first().at(0).toBool());
    QCOMPARE(f.manager.Calls().filter("SendPin"), QStringList("SendPin 1234"));
}

void TestModemLink::aWrongPinLeavesOneTryLess()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    f.manager.Lock(2, 3);
    QTRY_COMPARE(f.modem.Status().iTries, 3);
    const QSignalSpy answered(&f.modem, SIGNAL(pinAnswered(bool, bool, QString)));
    f.manager.Fail("SendPin", "org.freedesktop.ModemManager1.Error.MobileEquipment.IncorrectPassword");
    f.manager.Set(f.manager.ModemPath(), "Modem", {{"UnlockRetries", 2}});
    f.modem.SendPin("0000");
    QTRY_COMPARE(answered.count(), 1);
    QVERIFY(!answered.first().at(0).toBool() && answered.first().at(1).toBool());
    QVERIFY(f.modem.Status().iTries <= 2);
    // By itself it is not given again.
    f.manager.Unplug();
    QTRY_VERIFY(!f.modem.Status().bPresent);
    f.manager.Plug();
    f.manager.Lock(2, 2);
    QTRY_COMPARE(f.modem.Status().iTries, 2);
    QCOMPARE(f.manager.Count("SendPin"), 1);
}

void TestModemLink::aWrongPinCountsEvenIfTheModemDoesNot()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    f.manager.Lock(2, 2);
    QTRY_COMPARE(f.modem.Status().iTries, 2);
    const QSignalSpy answered(&f.modem, SIGNAL(pinAnswered(bool, bool, QString)));
    f.manager.Fail("SendPin", "org.freedesktop.ModemManager1.Error.MobileEquipment.IncorrectPassword");
    f.modem.SendPin("0000");
    QTRY_COMPARE(answered.count(), 1);
    QCOMPARE(f.modem.Status().iTries, 1);
}

void TestModemLink::aPinIsGivenOnce()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    f.manager.Lock(2, 3);
    QTRY_COMPARE(f.modem.Status().iTries, 3);
    const QSignalSpy answered(&f.modem, SIGNAL(pinAnswered(bool, bool, QString)));
    f.manager.Hold("SendPin");
    f.modem.SendPin("1234");
    f.modem.SendPin("1234");
    QTRY_VERIFY(f.manager.IsHeld("SendPin"));
    f.manager.Release("SendPin");
    QTRY_COMPARE(answered.count(), 1);
    QCOMPARE(f.manager.Count("SendPin"), 1);
}

void TestModemLink::whatElseKeepsThePinIsNoWrongPin()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    f.manager.Lock(2, 3);
    QTRY_COMPARE(f.modem.Status().iTries, 3);
    const QSignalSpy answered(&f.modem, SIGNAL(pinAnswered(bool, bool, QString)));
    f.manager.Fail("SendPin", "org.freedesktop.ModemManager1.Error.Core.Unauthorized", "not you");
    f.modem.SendPin("1234");
    QTRY_COMPARE(answered.count(), 1);
    QVERIFY(!answered.first().at(1).toBool());
    QCOMPARE(answered.first().at(2).toString(), QString("not you"));
    QCOMPARE(f.modem.Status().iTries, 3);
}

void TestModemLink::aModemIsSwitchedOnByAPress()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    const QSignalSpy failed(&f.modem, SIGNAL(enableFailed(QString)));
    f.manager.Set(f.manager.ModemPath(), "Modem", {{"State", 3}});
    QTRY_VERIFY(!f.modem.Status().bEnabled);
    QCOMPARE(f.manager.Count("Enable"), 0);
    f.manager.Fail("Enable", "org.freedesktop.ModemManager1.Error.Core.Unauthorized", "not you");
    f.modem.Enable();
    QTRY_COMPARE(failed.count(), 1);
    QCOMPARE(f.manager.Count("Enable"), 1);
}

QTEST_GUILESS_MAIN(TestModemLink)
#include "test_modem_link.moc"
