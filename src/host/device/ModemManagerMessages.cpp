#include "device/ModemManagerMessages.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>

#include "device/DialString.h"
#include "device/ModemManagerLink.h"
#include "shared/HostLink.h"
#include "shared/SmsLength.h"

namespace
{

// A message as ModemManager has it.
const uint STATE_RECEIVED = 3;

// The network may take a minute for each part; after that nobody knows.
const int PART_MS = 70000;

bool endsWithAny(const QString& strName, const char* const* ppszEnds)
{
    for (; *ppszEnds != nullptr; ++ppszEnds) {
        if (strName.endsWith(QLatin1String(*ppszEnds))) {
            return true;
        }
    }
    return false;
}

// Said before anything was done.
const char* const NOTHING_DONE[] = {".AccessDenied",     ".UnknownObject",    ".UnknownMethod",
                                    ".UnknownInterface", ".Unauthorized",     ".Core.WrongState",
                                    ".Core.InvalidArgs", ".Core.Unsupported", nullptr};

// Said of a message that is not on the card.
const char* const NOT_THERE[] = {".UnknownObject", ".UnknownMethod", ".Core.NotFound", nullptr};

// Said by somebody who does not know what the modem has done.
const char* const NOBODY_KNOWS[] = {
    ".NoReply",        ".Timeout",      ".TimedOut",       ".Disconnected",    ".ServiceUnknown",
    ".NameHasNoOwner", ".Core.Aborted", ".Core.Cancelled", ".ResponseTimeout", nullptr};

QDateTime timeOf(QString strStamp)
{
    // "+02" is short for "+02:00".
    if (strStamp.size() > 3 && QString(QLatin1String("+-")).contains(strStamp.at(strStamp.size() - 3))) {
        strStamp += QLatin1String(":00");
    }
    const QDateTime time = QDateTime::fromString(strStamp, Qt::ISODate);
    return time.isValid() ? time.toLocalTime() : QDateTime::currentDateTime();
}

} // namespace

ModemManagerMessages::ModemManagerMessages(ModemManagerLink& link, MessageStore& store, QObject* pParent)
    : QObject(pParent), m_link(link), m_store(store), m_iCurrent(0), m_bListed(false), m_iModem(0)
{
    connect(&m_link, SIGNAL(modemChanged()), this, SLOT(OnModemChanged()));
    connect(&m_link, SIGNAL(changed()), this, SLOT(OnStatusChanged()));
    connect(&m_link, SIGNAL(messageAdded(QString, bool)), this, SLOT(OnMessage(QString)));
    connect(&m_link, SIGNAL(messageChanged(QString)), this, SLOT(OnMessage(QString)));
}

bool ModemManagerMessages::Send(const OutgoingMessage& message)
{
    QList<int> listIds;
    foreach (const QString& strNumber, message.lstNumbers) {
        OutgoingMessage copy = message;
        copy.lstNumbers = QStringList(strNumber);
        const int iId = m_store.Add(copy, MESSAGE_DRAFT);
        if (iId == 0) {
            foreach (const int iKept, listIds) {
                m_store.Remove(iKept);
            }
            return false;
        }
        listIds.append(iId);
    }
    if (message.iKind != HOST_MESSAGE_SMS || !isReady()) {
        foreach (const int iId, listIds) {
            emit finished(iId);
        }
        return !listIds.isEmpty();
    }
    m_listQueue += listIds;
    next();
    return !listIds.isEmpty();
}

bool ModemManagerMessages::SendAgain(int iId)
{
    const StoredMessage stored = m_store.Message(iId);
    const bool bUnsent = stored.iState == MESSAGE_DRAFT || stored.iState == MESSAGE_FAILED;
    if (stored.iId == 0 || !bUnsent || stored.message.iKind != HOST_MESSAGE_SMS || IsSending(iId) || !isReady()) {
        return false;
    }
    m_listQueue.append(iId);
    next();
    return true;
}

bool ModemManagerMessages::Remove(int iId)
{
    if (IsSending(iId)) {
        return false;
    }
    const QString strPath = m_received.key(iId);
    if (strPath.isEmpty()) {
        return m_store.Remove(iId);
    }
    QDBusPendingCallWatcher* pWatcher =
        watch(m_link.Call(m_link.ModemPath(), "Modem.Messaging", "Delete",
                          QVariantList() << QVariant::fromValue(QDBusObjectPath(strPath))),
              SLOT(OnDeleted(QDBusPendingCallWatcher*)));
    pWatcher->setProperty("message", iId);
    pWatcher->setProperty("path", strPath);
    return true;
}

// What was with the modem or before it stays in the store, as what it is.
void ModemManagerMessages::OnModemChanged()
{
    ++m_iModem;
    m_bListed = false;
    m_received.clear();
    QList<int> listEnded = m_listQueue;
    m_listQueue.clear();
    if (m_iCurrent != 0) {
        listEnded.prepend(m_iCurrent);
        m_iCurrent = 0;
        m_strCurrent.clear();
    }
    foreach (const int iId, listEnded) {
        emit finished(iId);
    }
    OnStatusChanged();
}

void ModemManagerMessages::OnStatusChanged()
{
    if (!m_bListed && m_link.Status().bMessages && m_link.Status().bEnabled) {
        m_bListed = true;
        watch(m_link.Call(m_link.ModemPath(), "Modem.Messaging", "List"), SLOT(OnListed(QDBusPendingCallWatcher*)));
    }
}

void ModemManagerMessages::OnCreated(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    if (isStale(pWatcher)) {
        return;
    }
    const QDBusPendingReply<QDBusObjectPath> reply = *pWatcher;
    if (reply.isError()) {
        look(reply.error());
        finish(MESSAGE_FAILED, reply.error().message());
        return;
    }
    m_strCurrent = reply.value().path();
    if (!m_store.SetState(m_iCurrent, MESSAGE_UNCERTAIN)) {
        // A message whose sending cannot be noted would look unsent afterwards.
        finish(MESSAGE_DRAFT, QString());
        return;
    }
    const int iParts = SmsLength::Of(m_store.Message(m_iCurrent).message.strText).iMessages;
    watch(m_link.Call(m_strCurrent, "Sms", "Send", QVariantList(), PART_MS * qMax(1, iParts)),
          SLOT(OnSent(QDBusPendingCallWatcher*)));
}

void ModemManagerMessages::OnSent(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    if (isStale(pWatcher)) {
        return;
    }
    const QDBusError error = pWatcher->error();
    look(error);
    finish(pWatcher->isError() ? stateAfter(error) : MESSAGE_SENT, pWatcher->isError() ? error.message() : QString());
}

void ModemManagerMessages::OnListed(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    const QDBusPendingReply<QList<QDBusObjectPath>> reply = *pWatcher;
    if (!isStale(pWatcher) && !reply.isError()) {
        foreach (const QDBusObjectPath& path, reply.value()) {
            OnMessage(path.path());
        }
    }
}

void ModemManagerMessages::OnMessage(const QString& strPath)
{
    if (strPath != m_strCurrent && !m_received.contains(strPath) && m_link.Status().bPresent) {
        QDBusPendingCallWatcher* pWatcher =
            watch(m_link.Properties(strPath, "Sms"), SLOT(OnRead(QDBusPendingCallWatcher*)));
        pWatcher->setProperty("path", strPath);
    }
}

void ModemManagerMessages::OnRead(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    const QString strPath = pWatcher->property("path").toString();
    const QDBusPendingReply<QVariantMap> reply = *pWatcher;
    // A long one is there when its last part has come.
    if (isStale(pWatcher) || reply.isError() || m_received.contains(strPath) ||
        reply.value().value(QLatin1String("State")).toUInt() != STATE_RECEIVED) {
        return;
    }
    const QString strNumber = reply.value().value(QLatin1String("Number")).toString();
    const QString strText = reply.value().value(QLatin1String("Text")).toString();
    const QString strStamp = reply.value().value(QLatin1String("Timestamp")).toString();
    int iId = m_store.Received(strNumber, strText, strStamp);
    const bool bNew = iId == 0;
    if (bNew) {
        OutgoingMessage message;
        message.iKind = HOST_MESSAGE_SMS;
        message.lstNumbers = QStringList(strNumber);
        message.strText = strText;
        iId = m_store.Add(message, MESSAGE_RECEIVED, strStamp, timeOf(strStamp));
    }
    if (iId != 0) {
        m_received.insert(strPath, iId);
    }
    if (bNew) {
        emit received(strNumber, strText);
    }
}

void ModemManagerMessages::OnDeleted(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    const QDBusError error = pWatcher->error();
    // Somebody else may have deleted it.
    if (isStale(pWatcher) || (pWatcher->isError() && !endsWithAny(error.name(), NOT_THERE))) {
        emit removeFailed(error.message());
        return;
    }
    const int iId = pWatcher->property("message").toInt();
    m_received.remove(pWatcher->property("path").toString());
    // A network that was not sure may have delivered it twice.
    if (!Remove(iId)) {
        emit removeFailed(QString());
    }
}

bool ModemManagerMessages::isReady() const
{
    return m_link.Status().bMessages && m_link.Status().bRegistered;
}

void ModemManagerMessages::next()
{
    while (m_iCurrent == 0 && !m_listQueue.isEmpty()) {
        const StoredMessage stored = m_store.Message(m_listQueue.takeFirst());
        if (stored.iId == 0) {
            continue; // deleted meanwhile, by another program
        }
        m_iCurrent = stored.iId;
        QVariantMap properties;
        const QString strNumber = stored.message.lstNumbers.value(0);
        const QString strDialled = DialString::Of(strNumber);
        properties.insert(QLatin1String("number"), strDialled.isEmpty() ? strNumber : strDialled);
        properties.insert(QLatin1String("text"), stored.message.strText);
        watch(m_link.Call(m_link.ModemPath(), "Modem.Messaging", "Create", QVariantList() << properties),
              SLOT(OnCreated(QDBusPendingCallWatcher*)));
    }
}

void ModemManagerMessages::finish(MessageState enState, const QString& strDetail)
{
    const int iId = m_iCurrent;
    m_store.SetState(iId, enState, strDetail);
    if (!m_strCurrent.isEmpty()) {
        // It was never on the card; ModemManager would keep it in its list.
        m_link.Call(m_link.ModemPath(), "Modem.Messaging", "Delete",
                    QVariantList() << QVariant::fromValue(QDBusObjectPath(m_strCurrent)));
    }
    m_iCurrent = 0;
    m_strCurrent.clear();
    emit finished(iId);
    next();
}

void ModemManagerMessages::look(const QDBusError& error)
{
    if (error.name().endsWith(QLatin1String(".MemoryFull"))) {
        emit storeFull();
    }
}

MessageState ModemManagerMessages::stateAfter(const QDBusError& error) const
{
    if (endsWithAny(error.name(), NOTHING_DONE)) {
        return MESSAGE_FAILED;
    }
    if (endsWithAny(error.name(), NOBODY_KNOWS)) {
        return MESSAGE_UNCERTAIN;
    }
    return SmsLength::Of(m_store.Message(m_iCurrent).message.strText).iMessages > 1 ? MESSAGE_PARTLY : MESSAGE_FAILED;
}

QDBusPendingCallWatcher* ModemManagerMessages::watch(const QDBusPendingCall& call, const char* pszSlot)
{
    QDBusPendingCallWatcher* pWatcher = m_link.Watch(call, this, pszSlot);
    pWatcher->setProperty("modem", m_iModem);
    return pWatcher;
}

bool ModemManagerMessages::isStale(QDBusPendingCallWatcher* pWatcher) const
{
    return pWatcher->property("modem").toInt() != m_iModem;
}
