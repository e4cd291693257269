#include <QProcess>

#include "FakeModemManager.h"
#include "ModemFixture.h"

// A system bus that is not there, comes, goes and returns.
class TestModemBus : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void withoutABusNothingIsThere();
    void aBusThatComesGoesAndReturnsIsFollowed();

private:
    void startBus(QProcess& bus);

    QTemporaryDir m_folder;
};

// The address is read once in the life of a process.
void TestModemBus::initTestCase()
{
    QVERIFY(m_folder.isValid());
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + QFile::encodeName(m_folder.filePath("bus")));
    QFile configuration(m_folder.filePath("bus.conf"));
    QVERIFY(configuration.open(QIODevice::WriteOnly));
    configuration.write("<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\"\n"
                        "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
                        "<busconfig><type>session</type><listen>unix:path=" +
                        QFile::encodeName(m_folder.filePath("bus")) +
                        "</listen><policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/><allow "
                        "eavesdrop=\"true\"/>"
                        "<allow own=\"*\"/></policy></busconfig>\n");
}

void TestModemBus::startBus(QProcess& bus)
{
    bus.start("dbus-daemon", {"--config-file=" + m_folder.filePath("bus.conf"), "--nofork", "--print-address"});
    QVERIFY(bus.waitForStarted());
    QTRY_VERIFY(bus.canReadLine());
}

void TestModemBus::withoutABusNothingIsThere()
{
    const QTemporaryDir folder;
    MessageStore store(folder.path());
    ModemManagerModem modem(QString(), store);
    modem.Start();
    QVERIFY(!modem.Status().bBus && !modem.Status().bPresent);
    QVERIFY(!modem.Dial("123", HOST_CALL_VOICE));
    QVERIFY(modem.Send(ModemFixture::Sms("Hello")));
    QCOMPARE(store.Messages().first().iState, int(MESSAGE_DRAFT));
    modem.HangUp();
    modem.Answer();
    modem.Finish();
}

void TestModemBus::aBusThatComesGoesAndReturnsIsFollowed()
{
    const QTemporaryDir folder;
    MessageStore store(folder.path());
    ModemManagerModem modem(QString(), store);
    modem.Start();
    QVERIFY(!modem.Status().bBus);
    for (int i = 0; i < 2; ++i) {
        QProcess bus;
        startBus(bus);
        QTRY_VERIFY(modem.Status().bBus);
        QScopedPointer<FakeModemManager> pManager(new FakeModemManager);
        pManager->Run();
        pManager->Plug();
        QTRY_VERIFY(modem.Status().bRegistered);
        bus.kill();
        QVERIFY(bus.waitForFinished());
        QTRY_VERIFY(!modem.Status().bBus);
        QVERIFY(!modem.Status().bPresent);
        QFile::remove(m_folder.filePath("bus"));
    }
}

QTEST_GUILESS_MAIN(TestModemBus)
#include "test_modem_bus.moc"
