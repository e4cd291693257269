#include "device/ModemManagerLink.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>
#include <QStringList>

#include "device/BusValues.h"

namespace
{

const char* const SERVICE = "org.freedesktop.ModemManager1";
const char* const ROOT = "/org/freedesktop/ModemManager1";
const char* const PREFIX = "org.freedesktop.ModemManager1.";
const char* const OBJECT_MANAGER = "org.freedesktop.DBus.ObjectManager";
const char* const PROPERTIES = "org.freedesktop.DBus.Properties";

// How long until a daemon that did not answer is asked again.
const int RETRY_MS = 2000;

// States of a modem, from failed to connected, and its locks, as ModemManager counts them.
const int STATE_INITIALIZING = 1;
const int STATE_ENABLED = 6;
const int STATE_REGISTERED = 8;
const uint UNLOCKED = 1;
const uint SIM_PIN = 2;
const uint SIM_PIN2 = 3; // the card works without
const uint SIM_PUK = 4;
const uint SIM_PUK2 = 5;

QString interfaceName(const char* pszInterface)
{
    return QLatin1String(PREFIX) + QLatin1String(pszInterface);
}

} // namespace

ModemManagerLink::ModemManagerLink(const QString& strPort, QObject* pParent)
    : QObject(pParent), m_strPort(strPort), m_bus(QLatin1String(SERVICE)), m_bService(false), m_iMostTries(-1)
{
    m_retry.setSingleShot(true);
    connect(&m_retry, SIGNAL(timeout()), this, SLOT(OnRetry()));
    connect(&m_bus, SIGNAL(busChanged()), this, SLOT(OnBusChanged()));
    connect(&m_bus, SIGNAL(ownerChanged()), this, SLOT(OnOwnerChanged()));
    connect(&m_bus, SIGNAL(heard(QDBusMessage)), this, SLOT(OnHeard(QDBusMessage)));
    m_bus.Listen(OBJECT_MANAGER, "InterfacesAdded");
    m_bus.Listen(OBJECT_MANAGER, "InterfacesRemoved");
    m_bus.Listen(PROPERTIES, "PropertiesChanged");
    m_bus.Listen("org.freedesktop.ModemManager1.Modem.Messaging", "Added");
    m_bus.Listen("org.freedesktop.ModemManager1.Modem.Voice", "CallAdded");
    m_bus.Listen("org.freedesktop.ModemManager1.Call", "StateChanged");
}

void ModemManagerLink::Start()
{
    m_bus.Start();
}

QString ModemManagerLink::CardPath() const
{
    const QString strPath = BusValues::Path(property("Modem", "Sim"));
    return strPath == QLatin1String("/") ? QString() : strPath;
}

QDBusPendingCall ModemManagerLink::Call(const QString& strPath, const char* pszInterface, const char* pszMethod,
                                        const QVariantList& listArguments, int iTimeoutMs) const
{
    return m_bus.Call(strPath, interfaceName(pszInterface), QLatin1String(pszMethod), listArguments, iTimeoutMs);
}

QDBusPendingCall ModemManagerLink::Properties(const QString& strPath, const char* pszInterface) const
{
    return m_bus.Call(strPath, QLatin1String(PROPERTIES), QLatin1String("GetAll"),
                      QVariantList() << interfaceName(pszInterface));
}

QDBusPendingCallWatcher* ModemManagerLink::Watch(const QDBusPendingCall& call, QObject* pReceiver, const char* pszSlot)
{
    return m_bus.Watch(call, pReceiver, pszSlot);
}

void ModemManagerLink::LimitTries(int iTries)
{
    m_iMostTries = iTries;
    update();
}

void ModemManagerLink::Refresh()
{
    Watch(Properties(m_strModem, "Modem"), this, SLOT(OnRefreshed(QDBusPendingCallWatcher*)))
        ->setProperty("modem", m_strModem);
}

void ModemManagerLink::OnRetry()
{
    if (m_bus.IsRunning()) {
        readObjects();
    }
}

void ModemManagerLink::OnBusChanged()
{
    update();
}

void ModemManagerLink::OnOwnerChanged()
{
    m_modems.clear();
    m_bService = m_bus.IsRunning();
    choose();
    if (m_bService) {
        readObjects();
    }
}

void ModemManagerLink::OnHeard(const QDBusMessage& message)
{
    const QString strMember = message.member();
    const QVariantList listArguments = message.arguments();
    if (strMember == QLatin1String("InterfacesAdded") && listArguments.size() == 2) {
        interfacesAdded(message);
    } else if (strMember == QLatin1String("InterfacesRemoved") && listArguments.size() == 2) {
        interfacesRemoved(message);
    } else if (strMember == QLatin1String("PropertiesChanged") && listArguments.size() == 3) {
        propertiesChanged(message);
    } else if (strMember == QLatin1String("Added") && listArguments.size() == 2 && message.path() == m_strModem) {
        emit messageAdded(BusValues::Path(listArguments.at(0)), listArguments.at(1).toBool());
    } else if (strMember == QLatin1String("CallAdded") && !listArguments.isEmpty() && message.path() == m_strModem) {
        emit callAdded(BusValues::Path(listArguments.at(0)));
    } else if (strMember == QLatin1String("StateChanged") && listArguments.size() == 3) {
        emit callStateChanged(message.path(), listArguments.at(1).toInt(), listArguments.at(2).toInt());
    }
}

void ModemManagerLink::OnManagedObjects(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    const QDBusMessage reply = pWatcher->reply();
    m_bService = reply.type() == QDBusMessage::ReplyMessage;
    if (!m_bService || reply.arguments().isEmpty()) {
        // One that is not there will be told of when it comes; one that hangs is asked again.
        if (reply.errorName() != QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown") && m_bus.HasBus()) {
            m_retry.start(RETRY_MS);
        }
        update();
        return;
    }
    const QDBusArgument argument = reply.arguments().first().value<QDBusArgument>();
    m_modems.clear();
    argument.beginMap();
    while (!argument.atEnd()) {
        QDBusObjectPath path;
        argument.beginMapEntry();
        argument >> path;
        takeObject(path.path(), BusValues::Interfaces(argument));
        argument.endMapEntry();
    }
    argument.endMap();
    choose();
}

void ModemManagerLink::OnRefreshed(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    const QString strModem = pWatcher->property("modem").toString();
    const QDBusPendingReply<QVariantMap> reply = *pWatcher;
    if (!reply.isError() && m_modems.contains(strModem)) {
        m_modems[strModem][interfaceName("Modem")] = BusValues::Readable(reply.value());
        update();
    }
    emit refreshed();
}

void ModemManagerLink::readObjects()
{
    Watch(m_bus.Call(QLatin1String(ROOT), QLatin1String(OBJECT_MANAGER), QLatin1String("GetManagedObjects")), this,
          SLOT(OnManagedObjects(QDBusPendingCallWatcher*)));
} // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): a watcher belongs to its parent

void ModemManagerLink::interfacesAdded(const QDBusMessage& message)
{
    const QString strPath = BusValues::Path(message.arguments().at(0));
    takeObject(strPath, BusValues::Interfaces(message.arguments().at(1).value<QDBusArgument>()));
    choose();
}

void ModemManagerLink::interfacesRemoved(const QDBusMessage& message)
{
    const QString strPath = BusValues::Path(message.arguments().at(0));
    if (m_modems.contains(strPath)) {
        foreach (const QString& strInterface, message.arguments().at(1).toStringList()) {
            m_modems[strPath].remove(strInterface);
        }
        if (!m_modems.value(strPath).contains(interfaceName("Modem"))) {
            m_modems.remove(strPath);
        }
        choose();
    }
}

void ModemManagerLink::propertiesChanged(const QDBusMessage& message)
{
    const QString strInterface = message.arguments().at(0).toString();
    if (!m_modems.contains(message.path())) {
        if (strInterface == interfaceName("Sms")) {
            emit messageChanged(message.path());
        }
        return;
    }
    const QVariantMap values = BusValues::Readable(qdbus_cast<QVariantMap>(message.arguments().at(1)));
    QVariantMap& known = m_modems[message.path()][strInterface];
    for (QVariantMap::const_iterator it = values.begin(); it != values.end(); ++it) {
        known.insert(it.key(), it.value());
    }
    choose(); // the ports may have become known
}

void ModemManagerLink::takeObject(const QString& strPath, const Interfaces& interfaces)
{
    for (Interfaces::const_iterator it = interfaces.begin(); it != interfaces.end(); ++it) {
        if (it.key().startsWith(QLatin1String(PREFIX))) {
            m_modems[strPath][it.key()] = BusValues::Readable(it.value());
        }
    }
}

bool ModemManagerLink::isWanted(const Interfaces& interfaces) const
{
    const QVariantMap modem = interfaces.value(interfaceName("Modem"));
    if (modem.isEmpty() || m_strPort.isEmpty()) {
        return !modem.isEmpty();
    }
    // A path may be a link to the port, which comes and goes with it.
    const QStringList lstPorts = modem.value(QLatin1String("Ports")).toStringList();
    const QString strTarget = QFileInfo(QFileInfo(m_strPort).canonicalFilePath()).fileName();
    return lstPorts.contains(QFileInfo(m_strPort).fileName()) || (!strTarget.isEmpty() && lstPorts.contains(strTarget));
}

// A modem that is in use stays in use while it is there.
void ModemManagerLink::choose()
{
    const QString strBefore = m_strModem;
    if (!isWanted(m_modems.value(m_strModem))) {
        m_strModem.clear();
        for (QMap<QString, Interfaces>::const_iterator it = m_modems.begin(); it != m_modems.end(); ++it) {
            if (isWanted(it.value()) && m_strModem.isEmpty()) {
                m_strModem = it.key();
            }
        }
    }
    if (m_strModem == strBefore) {
        update();
        return;
    }
    m_iMostTries = -1;
    m_status = read();
    emit modemChanged();
    emit changed();
}

void ModemManagerLink::update()
{
    const ModemStatus status = read();
    m_iMostTries = status.enLock == ModemStatus::LOCK_NONE ? -1 : m_iMostTries;
    if (!(status == m_status)) {
        m_status = status;
        emit changed();
    }
}

ModemStatus ModemManagerLink::read() const
{
    ModemStatus status;
    status.bBus = m_bus.HasBus();
    status.bService = m_bService;
    status.bPresent = !m_strModem.isEmpty();
    if (status.bPresent) {
        const int iState = property("Modem", "State").toInt();
        status.strName =
            (property("Modem", "Manufacturer").toString() + QLatin1Char(' ') + property("Modem", "Model").toString())
                .trimmed();
        status.bUsable = iState > STATE_INITIALIZING;
        status.bEnabled = iState >= STATE_ENABLED;
        status.bRegistered = iState >= STATE_REGISTERED;
        status.enLock = lock();
        status.iTries = tries();
        status.strOperator = property("Modem.Modem3gpp", "OperatorName").toString();
        status.iSignal = status.bRegistered ? property("Modem", "SignalQuality").toInt() : -1;
        status.bMessages = m_modems.value(m_strModem).contains(interfaceName("Modem.Messaging"));
        status.bCalls = m_modems.value(m_strModem).contains(interfaceName("Modem.Voice"));
    }
    return status;
}

ModemStatus::Lock ModemManagerLink::lock() const
{
    switch (property("Modem", "UnlockRequired").toUInt()) {
    case 0: // not known yet
    case UNLOCKED:
    case SIM_PIN2:
    case SIM_PUK2:
        return ModemStatus::LOCK_NONE;
    case SIM_PIN:
        return ModemStatus::LOCK_PIN;
    case SIM_PUK:
        return ModemStatus::LOCK_PUK;
    default:
        return ModemStatus::LOCK_OTHER;
    }
}

int ModemManagerLink::tries() const
{
    const QVariantMap tries = property("Modem", "UnlockRetries").toMap();
    const QString strLock = QString::number(property("Modem", "UnlockRequired").toUInt());
    const int iTries = tries.contains(strLock) ? tries.value(strLock).toInt() : -1;
    return iTries >= 0 && m_iMostTries >= 0 ? qMin(iTries, m_iMostTries) : iTries;
}

QVariant ModemManagerLink::property(const char* pszInterface, const char* pszName) const
{
    return m_modems.value(m_strModem).value(interfaceName(pszInterface)).value(QLatin1String(pszName));
}
