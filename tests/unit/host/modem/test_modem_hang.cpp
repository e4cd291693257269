#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QDBusServer>

#include <csignal>

#include "ModemFixture.h"

namespace
{

// Qt gives a bus that does not answer half a minute.
const int PROMPT_MS = 5000;

// Whoever connects to it waits for the first word.
class MuteSocket
{
public:
    explicit MuteSocket(const QString& strPath) : m_iSocket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, QFile::encodeName(strPath).constData(), sizeof address.sun_path);
        m_bListens = ::bind(m_iSocket, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 &&
                     ::listen(m_iSocket, 8) == 0;
    }
    ~MuteSocket() { ::close(m_iSocket); }
    Q_DISABLE_COPY(MuteSocket)

    bool Listens() const { return m_bListens; }

private:
    int m_iSocket;
    bool m_bListens;
};

// A bus that welcomes, and answers nothing after that.
class CurtBus : public QDBusVirtualObject
{
    Q_OBJECT

public:
    explicit CurtBus(const QString& strPath) : m_server("unix:path=" + strPath)
    {
        connect(&m_server, SIGNAL(newConnection(QDBusConnection)), this, SLOT(OnConnection(QDBusConnection)));
    }

    QString Address() const { return m_server.address(); }
    int Questions() const { return m_iQuestions; }

    QString introspect(const QString&) const override { return QString(); }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        message.setDelayedReply(true);
        if (message.member() == "Hello") {
            connection.send(message.createReply(":1.1"));
        } else {
            ++m_iQuestions;
        }
        return true;
    }

private slots:
    void OnConnection(QDBusConnection connection)
    {
        connection.registerVirtualObject("/", this, QDBusConnection::SubPath);
    }

private:
    QDBusServer m_server;
    int m_iQuestions = 0;
};

} // namespace

// A system bus that hangs, and one where not everybody is who he seems: the window and the other buses of the program
// go on meanwhile.
class TestModemHang : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { setBus(m_address); }
    void aBusWithoutAWordHoldsNothingUp();
    void aBusThatAnswersNothingHoldsNothingUp();
    void aBusThatWasStoppedIsThereWhenItGoesOn();
    void aCallThatIsNeverAnsweredHoldsNothingUp();
    void onlyModemManagerIsHeard();

private:
    static void setBus(const QByteArray& address) { qputenv("DBUS_SYSTEM_BUS_ADDRESS", address); }
    bool otherBusAnswers() const;

    QScopedPointer<modemsim::PrivateBus> m_pBus;
    QByteArray m_address;
    QTemporaryDir m_folder;
};

void TestModemHang::initTestCase()
{
    QVERIFY(m_folder.isValid());
    m_pBus.reset(new modemsim::PrivateBus);
    m_address = QByteArray::fromStdString(m_pBus->environment().at("DBUS_SYSTEM_BUS_ADDRESS"));
    setBus(m_address);
    QVERIFY(QDBusConnection::systemBus().isConnected()); // for good: Qt keeps the address
}

bool TestModemHang::otherBusAnswers() const
{
    return QDBusConnection::systemBus().interface()->registeredServiceNames().isValid();
}

void TestModemHang::aBusWithoutAWordHoldsNothingUp()
{
    const QString strPath = m_folder.filePath("mute");
    const MuteSocket mute(strPath);
    QVERIFY(mute.Listens());
    setBus("unix:path=" + QFile::encodeName(strPath));
    QElapsedTimer timer;
    timer.start();
    {
        ModemFixture f(false);
        QVERIFY(otherBusAnswers());
        QVERIFY(!f.modem.Status().bBus && !f.modem.Status().bPresent);
        QVERIFY(f.modem.Send(ModemFixture::Sms("Hello")));
        QCOMPARE(f.State(), int(MESSAGE_DRAFT));
    }
    QVERIFY(timer.elapsed() < PROMPT_MS);
}

void TestModemHang::aBusThatAnswersNothingHoldsNothingUp()
{
    const CurtBus bus(m_folder.filePath("curt"));
    setBus(bus.Address().toLocal8Bit());
    QElapsedTimer timer;
    timer.start();
    {
        ModemFixture f(false);
        QTRY_VERIFY(f.modem.Status().bBus);
        QTRY_VERIFY(bus.Questions() > 0);
        QVERIFY(otherBusAnswers());
        QVERIFY(!f.modem.Status().bService);
    }
    QVERIFY(timer.elapsed() < PROMPT_MS);
}

void TestModemHang::aBusThatWasStoppedIsThereWhenItGoesOn()
{
    FakeModemManager manager;
    manager.Run();
    manager.Plug();
    MessageStore store(m_folder.path());
    ModemManagerModem modem(QString(), store);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(::kill(m_pBus->daemon(), SIGSTOP), 0);
    modem.Start();
    const qint64 iTook = timer.elapsed();
    ::kill(m_pBus->daemon(), SIGCONT);
    QVERIFY(iTook < PROMPT_MS);
    QTRY_VERIFY(modem.Status().bRegistered);
}

void TestModemHang::aCallThatIsNeverAnsweredHoldsNothingUp()
{
    QElapsedTimer timer;
    {
        ModemFixture f;
        QVERIFY(f.IsReady());
        f.manager.Hold("CreateCall");
        timer.start();
        QVERIFY(f.modem.Dial("+491711234567", HOST_CALL_VOICE));
        QTRY_VERIFY(f.manager.IsHeld("CreateCall"));
        f.modem.HangUp();
        f.modem.Finish();
    }
    QVERIFY(timer.elapsed() < PROMPT_MS);
}

void TestModemHang::onlyModemManagerIsHeard()
{
    ModemFixture f;
    QVERIFY(f.IsReady());
    QDBusConnection stranger = QDBusConnection::connectToBus(QString::fromLatin1(m_address), "stranger");
    const QStringList lstNames = stranger.interface()->registeredServiceNames();
    QVariantMap values;
    values.insert("SignalQuality", 1u);
    values.insert("Manufacturer", QString("Stranger"));
    foreach (const QString& strName, lstNames) {
        if (strName.startsWith(':')) {
            QDBusMessage lie = QDBusMessage::createTargetedSignal(
                strName, FakeModemManager::ModemPath(), "org.freedesktop.DBus.Properties", "PropertiesChanged");
            lie << QString("org.freedesktop.ModemManager1.Modem") << values << QStringList();
            QVERIFY(stranger.send(lie));
        }
    }
    // The bus keeps the order: what the modem says now comes behind the lies.
    QVERIFY(stranger.interface()->registeredServiceNames().isValid());
    f.manager.Set(FakeModemManager::ModemPath(), "Modem", {{"SignalQuality", 12u}});
    QTRY_COMPARE(f.modem.Status().iSignal, 12);
    QCOMPARE(f.modem.Status().strName, QString("Maker Stick 0"));
    QDBusConnection::disconnectFromBus("stranger");
}

QTEST_GUILESS_MAIN(TestModemHang)
#include "test_modem_hang.moc"
