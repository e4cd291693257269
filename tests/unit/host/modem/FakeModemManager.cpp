#include "FakeModemManager.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>

typedef QMap<QString, QVariantMap> InterfaceMap;
typedef QMap<QDBusObjectPath, InterfaceMap> ObjectMap;
typedef QMap<uint, uint> CountMap;

struct NamedPort {
    QString strName;
    uint uiKind;
};
struct Quality {
    uint uiPercent;
    bool bRecent;
};

Q_DECLARE_METATYPE(NamedPort)
Q_DECLARE_METATYPE(Quality)
Q_DECLARE_METATYPE(QList<NamedPort>)
Q_DECLARE_METATYPE(InterfaceMap)
Q_DECLARE_METATYPE(ObjectMap)
Q_DECLARE_METATYPE(CountMap)

QDBusArgument& operator<<(QDBusArgument& argument, const NamedPort& port)
{
    argument.beginStructure();
    argument << port.strName << port.uiKind;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NamedPort& port)
{
    argument.beginStructure();
    argument >> port.strName >> port.uiKind;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const Quality& quality)
{
    argument.beginStructure();
    argument << quality.uiPercent << quality.bRecent;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Quality& quality)
{
    argument.beginStructure();
    argument >> quality.uiPercent >> quality.bRecent;
    argument.endStructure();
    return argument;
}

namespace
{

const char s_szName[] = "org.freedesktop.ModemManager1";
const char s_szRoot[] = "/org/freedesktop/ModemManager1";
const char s_szConnection[] = "fake-modemmanager";

QString full(const QString& strInterface)
{
    return QLatin1String(s_szName) + '.' + strInterface;
}

} // namespace

FakeModemManager::FakeModemManager()
    : m_bus(QDBusConnection::connectToBus(QDBusConnection::SystemBus, s_szConnection)), m_iNext(0), m_bRuns(false)
{
    qDBusRegisterMetaType<NamedPort>();
    qDBusRegisterMetaType<QList<NamedPort>>();
    qDBusRegisterMetaType<Quality>();
    qDBusRegisterMetaType<InterfaceMap>();
    qDBusRegisterMetaType<ObjectMap>();
    qDBusRegisterMetaType<CountMap>();
    m_bus.registerVirtualObject(s_szRoot, this, QDBusConnection::SubPath);
}

FakeModemManager::~FakeModemManager()
{
    End();
    m_bus.unregisterObject(s_szRoot, QDBusConnection::UnregisterTree);
    m_bus = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(s_szConnection);
}

void FakeModemManager::Run()
{
    m_bRuns = m_bus.registerService(s_szName);
}

void FakeModemManager::End()
{
    if (m_bRuns) {
        m_bus.unregisterService(s_szName);
        m_objects.clear();
        m_bRuns = false;
    }
}

QString FakeModemManager::ModemPath(int iNumber)
{
    return QLatin1String(s_szRoot) + "/Modem/" + QString::number(iNumber);
}

QString FakeModemManager::Plug(int iNumber, const QString& strPort)
{
    const QString strPath = ModemPath(iNumber);
    const QString strCard = QLatin1String(s_szRoot) + "/SIM/" + QString::number(iNumber);
    m_objects[strCard][full("Sim")] = QVariantMap{{"SimIdentifier", "8949"}};
    m_objects[strPath][full("Modem")] = QVariantMap{{"State", 8},
                                                    {"UnlockRequired", 1u},
                                                    {"Manufacturer", "Maker"},
                                                    {"Model", QString("Stick %1").arg(iNumber)},
                                                    {"Sim", QVariant::fromValue(QDBusObjectPath(strCard))},
                                                    {"SignalQuality", 67u},
                                                    {"Ports", strPort}};
    m_objects[strPath][full("Modem.Modem3gpp")] = QVariantMap{{"OperatorName", "Test Net"}, {"RegistrationState", 1u}};
    m_objects[strPath][full("Modem.Messaging")] = QVariantMap();
    m_objects[strPath][full("Modem.Voice")] = QVariantMap();
    signal(s_szRoot, "org.freedesktop.DBus.ObjectManager", "InterfacesAdded",
           {QVariant::fromValue(QDBusObjectPath(strPath)), interfaces(strPath)});
    return strPath;
}

void FakeModemManager::Unplug(int iNumber)
{
    const QString strPath = ModemPath(iNumber);
    const QStringList lstInterfaces = m_objects.take(strPath).keys();
    signal(s_szRoot, "org.freedesktop.DBus.ObjectManager", "InterfacesRemoved",
           {QVariant::fromValue(QDBusObjectPath(strPath)), lstInterfaces});
}

void FakeModemManager::Set(const QString& strPath, const QString& strInterface, const QVariantMap& values)
{
    for (auto it = values.begin(); it != values.end(); ++it) {
        m_objects[strPath][full(strInterface)][it.key()] = it.value();
    }
    signal(strPath, "org.freedesktop.DBus.Properties", "PropertiesChanged",
           {full(strInterface), wire(full(strInterface), values), QStringList()});
}

void FakeModemManager::Lock(uint uiLock, int iTries)
{
    Set(ModemPath(), "Modem", {{"UnlockRequired", uiLock}, {"UnlockRetries", iTries}, {"State", uiLock == 1 ? 3 : 2}});
}

void FakeModemManager::Fail(const QString& strMethod, const QString& strError, const QString& strText)
{
    m_errors[strMethod] = qMakePair(strError, strText);
}

void FakeModemManager::Hold(const QString& strMethod)
{
    m_lstHold << strMethod;
}

void FakeModemManager::Release(const QString& strMethod, const QString& strError)
{
    const QDBusMessage message = m_held.take(strMethod);
    m_bus.send(strError.isEmpty() ? answer(message) : message.createErrorReply(strError, "no"));
}

QString FakeModemManager::Receive(const QString& strNumber, const QString& strText, const QString& strStamp,
                                  uint uiState)
{
    const QString strPath =
        add("SMS", "Sms", {{"Number", strNumber}, {"Text", strText}, {"Timestamp", strStamp}, {"State", uiState}});
    signal(ModemPath(), full("Modem.Messaging"), "Added", {QVariant::fromValue(QDBusObjectPath(strPath)), true});
    return strPath;
}

QString FakeModemManager::Ring(const QString& strNumber)
{
    const QString strPath = add("Call", "Call", {{"Number", strNumber}, {"Direction", 1}, {"State", 3}});
    signal(ModemPath(), full("Modem.Voice"), "CallAdded", {QVariant::fromValue(QDBusObjectPath(strPath))});
    return strPath;
}

void FakeModemManager::SetCall(const QString& strPath, int iState, uint uiReason)
{
    const int iOld = m_objects[strPath][full("Call")].value("State").toInt();
    m_objects[strPath][full("Call")]["State"] = iState;
    m_objects[strPath][full("Call")]["StateReason"] = uiReason;
    signal(strPath, full("Call"), "StateChanged", {iOld, iState, uiReason});
}

bool FakeModemManager::handleMessage(const QDBusMessage& message, const QDBusConnection&)
{
    QString strCall = message.member();
    foreach (const QVariant& argument, message.arguments()) {
        if (message.member() == "SendPin") {
            strCall += ' ' + argument.toString();
        } else if (message.member() == "Create" || message.member() == "CreateCall") {
            const QVariantMap values = qdbus_cast<QVariantMap>(argument);
            strCall += ' ' + values.value("number").toString();
            strCall += values.contains("text") ? ' ' + values.value("text").toString() : QString();
        }
    }
    m_lstCalls << strCall;
    if (m_lstHold.removeOne(message.member())) {
        message.setDelayedReply(true);
        m_held[message.member()] = message;
        return true;
    }
    if (m_errors.contains(message.member())) {
        const QPair<QString, QString> error = m_errors.take(message.member());
        return m_bus.send(message.createErrorReply(error.first, error.second));
    }
    return m_bus.send(answer(message));
}

QDBusMessage FakeModemManager::answer(const QDBusMessage& message)
{
    const QString strMethod = message.member();
    if (strMethod == "GetManagedObjects") {
        ObjectMap modems;
        foreach (const QString& strPath, m_objects.keys()) {
            if (strPath.contains("/Modem/")) {
                modems[QDBusObjectPath(strPath)] = qvariant_cast<InterfaceMap>(interfaces(strPath));
            }
        }
        return message.createReply(QVariant::fromValue(modems));
    }
    const bool bThere = m_objects.contains(message.path());
    if (!bThere) {
        return message.createErrorReply(QDBusError::UnknownObject, "no such object");
    }
    if (strMethod == "GetAll") {
        const QString strInterface = message.arguments().first().toString();
        return message.createReply(QVariant(wire(strInterface, m_objects[message.path()][strInterface])));
    }
    if (strMethod == "Create" || strMethod == "CreateCall") {
        const QVariantMap values = qdbus_cast<QVariantMap>(message.arguments().first());
        const bool bCall = strMethod == "CreateCall";
        const QString strPath = add(bCall ? "Call" : "SMS", bCall ? "Call" : "Sms",
                                    {{"Number", values.value("number")}, {"Direction", 2}, {"State", bCall ? 0 : 0u}});
        return message.createReply(QVariant::fromValue(QDBusObjectPath(strPath)));
    }
    if (strMethod == "List" || strMethod == "ListCalls") {
        QList<QDBusObjectPath> listPaths;
        foreach (const QString& strPath, m_objects.keys()) {
            if (strPath.contains(strMethod == "List" ? "/SMS/" : "/Call/")) {
                listPaths << QDBusObjectPath(strPath);
            }
        }
        return message.createReply(QVariant::fromValue(listPaths));
    }
    if (strMethod == "Delete" || strMethod == "DeleteCall") {
        m_objects.remove(message.arguments().first().value<QDBusObjectPath>().path());
    }
    return message.createReply();
}

// The values as they travel.
QVariantMap FakeModemManager::wire(const QString& strInterface, const QVariantMap& values) const
{
    QVariantMap wired = values;
    if (strInterface == full("Modem")) {
        if (values.contains("SignalQuality")) {
            wired["SignalQuality"] = QVariant::fromValue(Quality{values.value("SignalQuality").toUInt(), true});
        }
        if (values.contains("Ports")) {
            wired["Ports"] = QVariant::fromValue(QList<NamedPort>{{values.value("Ports").toString(), 3u}});
        }
        if (values.contains("UnlockRetries")) {
            CountMap tries;
            if (values.value("UnlockRetries").toInt() >= 0) {
                tries[2] = values.value("UnlockRetries").toUInt();
            }
            wired["UnlockRetries"] = QVariant::fromValue(tries);
        }
    }
    return wired;
}

QVariant FakeModemManager::interfaces(const QString& strPath) const
{
    InterfaceMap map;
    const QMap<QString, QVariantMap> known = m_objects.value(strPath);
    for (auto it = known.begin(); it != known.end(); ++it) {
        map[it.key()] = wire(it.key(), it.value());
    }
    return QVariant::fromValue(map);
}

QString FakeModemManager::add(const QString& strKind, const QString& strInterface, const QVariantMap& values)
{
    const QString strPath = QString("%1/%2/%3").arg(s_szRoot, strKind).arg(m_iNext++);
    m_objects[strPath][full(strInterface)] = values;
    return strPath;
}

void FakeModemManager::signal(const QString& strPath, const QString& strInterface, const QString& strName,
                              const QVariantList& arguments)
{
    QDBusMessage message = QDBusMessage::createSignal(strPath, strInterface, strName);
    message.setArguments(arguments);
    m_bus.send(message);
}
