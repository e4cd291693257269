#include "device/BusService.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace
{

const char* const BUS = "org.freedesktop.DBus";
const char* const BUS_PATH = "/org/freedesktop/DBus";
const char* const ADDRESS = "unix:path=/run/dbus/system_bus_socket";

// How long until a bus that is not there is looked for again.
const int RETRY_MS = 2000;

QString systemBus()
{
    const QByteArray address = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
    return address.isEmpty() ? QString(QLatin1String(ADDRESS)) : QString::fromLocal8Bit(address);
}

} // namespace

BusService::BusService(const QString& strName, QObject* pParent)
    : QObject(pParent), m_strName(strName), m_bus(QString()), m_bOpen(false), m_bWelcome(false), m_bOwnerTold(false)
{
    m_retry.setSingleShot(true);
    connect(&m_retry, SIGNAL(timeout()), this, SLOT(OnRetry()));
}

BusService::~BusService()
{
    blockSignals(true); // who listens may be half gone
    close();
}

void BusService::Listen(const char* pszInterface, const char* pszMember)
{
    m_listWanted.append(qMakePair(QString(QLatin1String(pszInterface)), QString(QLatin1String(pszMember))));
}

void BusService::Start()
{
    OnRetry();
}

QDBusPendingCall BusService::Call(const QString& strPath, const QString& strInterface, const QString& strMethod,
                                  const QVariantList& listArguments, int iTimeoutMs) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(m_strName, strPath, strInterface, strMethod);
    message.setArguments(listArguments);
    message.setAutoStartService(false);
    return m_bus.asyncCall(message, iTimeoutMs);
}

QDBusPendingCallWatcher* BusService::Watch(const QDBusPendingCall& call, QObject* pReceiver, const char* pszSlot)
{
    QDBusPendingCallWatcher* pWatcher = new QDBusPendingCallWatcher(call, this);
    connect(pWatcher, SIGNAL(finished(QDBusPendingCallWatcher*)), pReceiver, pszSlot);
    return pWatcher;
}

// As to a peer, which the bus is as well: all that makes it a bus is asked of it here, and nobody waits for an answer.
void BusService::OnRetry()
{
    m_bus = QDBusConnection::connectToPeer(systemBus(), m_strName);
    m_bOpen = true;
    if (!m_bus.isConnected()) {
        OnDisconnected();
        return;
    }
    hear(QString(), QLatin1String("org.freedesktop.DBus.Local"), QLatin1String("Disconnected"), SLOT(OnDisconnected()));
    Watch(ask("Hello"), this, SLOT(OnWelcomed(QDBusPendingCallWatcher*)));
} // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): a watcher belongs to its parent

void BusService::OnWelcomed(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    if (pWatcher->isError()) {
        pWatcher->setParent(nullptr); // the others go with the bus
        OnDisconnected();
        return;
    }
    m_bWelcome = true;
    hear(QLatin1String(BUS), QLatin1String(BUS), QLatin1String("NameOwnerChanged"), SLOT(OnOwnerChanged(QDBusMessage)));
    for (int i = 0; i < m_listWanted.size(); ++i) {
        hear(m_strName, m_listWanted.at(i).first, m_listWanted.at(i).second, SLOT(OnSignal(QDBusMessage)));
    }
    // Behind the wishes: whatever changes from now on is heard.
    Watch(ask("GetNameOwner", m_strName), this, SLOT(OnOwnerTold(QDBusPendingCallWatcher*)));
    emit busChanged(); // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the watcher is a child of this
}

void BusService::OnOwnerTold(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    const QDBusPendingReply<QString> reply = *pWatcher;
    if (reply.isError() && reply.error().name() != QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner")) {
        pWatcher->setParent(nullptr);
        OnDisconnected();
    } else if (!m_bOwnerTold) {
        setOwner(reply.isError() ? QString() : reply.value());
    }
}

void BusService::OnOwnerChanged(const QDBusMessage& message)
{
    const QVariantList listArguments = message.arguments();
    if (message.service() == QLatin1String(BUS) && listArguments.size() == 3 &&
        listArguments.at(0).toString() == m_strName) {
        m_bOwnerTold = true;
        setOwner(listArguments.at(2).toString());
    }
}

void BusService::OnDisconnected()
{
    close();
    m_retry.start(RETRY_MS);
}

// Anybody may send anything to anybody.
void BusService::OnSignal(const QDBusMessage& message)
{
    if (IsRunning() && message.service() == m_strOwner) {
        emit heard(message);
    }
}

QDBusPendingCall BusService::ask(const char* pszMethod, const QString& strArgument) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(QLatin1String(BUS), QLatin1String(BUS_PATH),
                                                          QLatin1String(BUS), QLatin1String(pszMethod));
    if (!strArgument.isEmpty()) {
        message << strArgument;
    }
    return m_bus.asyncCall(message);
}

void BusService::hear(const QString& strSender, const QString& strInterface, const QString& strMember,
                      const char* pszSlot)
{
    m_bus.connect(QString(), QString(), strInterface, strMember, this, pszSlot);
    if (!strSender.isEmpty()) {
        ask("AddMatch", QString(QLatin1String("type='signal',sender='%1',interface='%2',member='%3'"))
                            .arg(strSender, strInterface, strMember));
    }
}

void BusService::close()
{
    m_retry.stop();
    const bool bWelcome = m_bWelcome;
    m_bWelcome = false;
    m_bOwnerTold = false;
    setOwner(QString());
    if (m_bOpen) {
        m_bOpen = false;
        // Qt takes unanswered questions along with their connection, whoever still holds one.
        qDeleteAll(findChildren<QDBusPendingCallWatcher*>());
        m_bus = QDBusConnection(QString());
        QDBusConnection::disconnectFromPeer(m_strName);
    }
    if (bWelcome) {
        emit busChanged();
    }
}

void BusService::setOwner(const QString& strOwner)
{
    if (m_strOwner != strOwner) {
        m_strOwner = strOwner;
        emit ownerChanged();
    }
}
