#include "device/ModemManagerCalls.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include "device/DialString.h"
#include "device/ModemManagerLink.h"
#include "messages/MessageStore.h"
#include "shared/HostLink.h"

namespace
{

// A call as ModemManager has it: its states, why it is in one, and its direction.
enum State {
    STATE_UNKNOWN,
    STATE_DIALLING,
    STATE_RINGING_OUT,
    STATE_RINGING_IN,
    STATE_ACTIVE,
    STATE_HELD,
    STATE_WAITING,
    STATE_TERMINATED
};
enum Reason { REASON_REFUSED = 5, REASON_ERROR = 6, REASON_AUDIO = 7 };
const int DIRECTION_INCOMING = 1;

// A modem may take a minute and a half until it knows whether the other side rings.
const int DIAL_MS = 120000;
const int FAREWELL_MS = 1000;

// To a network that refuses to dial, ModemManager has no dialtone.
int endAfter(const QDBusError& error)
{
    const QString strName = error.name();
    return strName.endsWith(QLatin1String(".Connection.Busy"))         ? HOST_CALL_REFUSED
           : strName.endsWith(QLatin1String(".Connection.NoAnswer"))   ? HOST_CALL_NOT_ANSWERED
           : strName.endsWith(QLatin1String(".Connection.NoCarrier"))  ? HOST_CALL_NOT_CONNECTED
           : strName.endsWith(QLatin1String(".Connection.NoDialtone")) ? HOST_CALL_NOT_CONNECTED
                                                                       : HOST_CALL_FAILED;
}

} // namespace

ModemManagerCalls::ModemManagerCalls(ModemManagerLink& link, MessageStore& store, QObject* pParent)
    : QObject(pParent),
      m_link(link),
      m_store(store),
      m_bInCall(false),
      m_bIncoming(false),
      m_bStarting(false),
      m_bHangingUp(false),
      m_iProgress(HOST_CALL_ENDED),
      m_bListed(false),
      m_iCall(0)
{
    connect(&m_link, SIGNAL(modemChanged()), this, SLOT(OnModemChanged()));
    connect(&m_link, SIGNAL(changed()), this, SLOT(OnStatusChanged()));
    connect(&m_link, SIGNAL(callAdded(QString)), this, SLOT(OnCallAdded(QString)));
    connect(&m_link, SIGNAL(callStateChanged(QString, int, int)), this, SLOT(OnStateChanged(QString, int, int)));
}

bool ModemManagerCalls::Dial(const QString& strNumber)
{
    const QString strDialled = DialString::Of(strNumber);
    if (strDialled.isEmpty() || m_bInCall || !m_link.Status().bCalls || !m_link.Status().bRegistered) {
        return false;
    }
    begin(strDialled, HOST_CALL_DIALLING);
    QVariantMap properties;
    properties.insert(QLatin1String("number"), m_strNumber);
    watch(m_link.Call(m_link.ModemPath(), "Modem.Voice", "CreateCall", QVariantList() << properties),
          SLOT(OnCreated(QDBusPendingCallWatcher*)));
    return true;
}

void ModemManagerCalls::Answer()
{
    if (m_bInCall && m_iProgress == HOST_CALL_INCOMING) {
        watch(m_link.Call(m_strPath, "Call", "Accept"), SLOT(OnAnswered(QDBusPendingCallWatcher*)));
    }
}

void ModemManagerCalls::HangUp()
{
    if (m_bInCall) {
        m_bHangingUp = true;
        if (!m_strPath.isEmpty()) {
            m_link.Call(m_strPath, "Call", "Hangup");
        }
    }
}

void ModemManagerCalls::HangUpNow()
{
    // Somebody else may still answer what only rings here.
    if (m_bInCall && m_iProgress != HOST_CALL_INCOMING) {
        m_bHangingUp = true;
        if (!m_strPath.isEmpty()) {
            m_link.Call(m_strPath, "Call", "Hangup", QVariantList(), FAREWELL_MS).waitForFinished();
        }
        end(HOST_CALL_ENDED);
    }
}

void ModemManagerCalls::OnModemChanged()
{
    m_bListed = false;
    if (m_bInCall) {
        end(HOST_CALL_LOST);
    }
    ++m_iCall;
    OnStatusChanged();
}

void ModemManagerCalls::OnStatusChanged()
{
    // A modem whose radio is switched off may say nothing more of its call.
    if (m_bInCall && !m_link.Status().bEnabled) {
        end(HOST_CALL_LOST);
    }
    if (!m_bListed && m_link.Status().bCalls && m_link.Status().bEnabled) {
        m_bListed = true;
        watch(m_link.Call(m_link.ModemPath(), "Modem.Voice", "ListCalls"), SLOT(OnListed(QDBusPendingCallWatcher*)));
    }
}

void ModemManagerCalls::OnCreated(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    if (isStale(pWatcher)) {
        return;
    }
    const QDBusPendingReply<QDBusObjectPath> reply = *pWatcher;
    if (reply.isError()) {
        end(endAfter(reply.error()), reply.error().message());
        return;
    }
    m_strPath = reply.value().path();
    if (m_bHangingUp) {
        end(HOST_CALL_ENDED);
        return;
    }
    m_bStarting = true;
    watch(m_link.Call(m_strPath, "Call", "Start", QVariantList(), DIAL_MS), SLOT(OnStarted(QDBusPendingCallWatcher*)));
}

void ModemManagerCalls::OnStarted(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    if (isStale(pWatcher)) {
        return;
    }
    m_bStarting = false;
    if (pWatcher->isError()) {
        const QDBusError error = pWatcher->error();
        // Nobody knows whether it rings somewhere.
        m_link.Call(m_strPath, "Call", "Hangup");
        end(m_bHangingUp ? int(HOST_CALL_ENDED) : endAfter(error), error.message());
    } else {
        if (m_bHangingUp) {
            m_link.Call(m_strPath, "Call", "Hangup");
        }
        // Its state may have come first, and its end too.
        watch(m_link.Properties(m_strPath, "Call"), SLOT(OnRead(QDBusPendingCallWatcher*)))
            ->setProperty("path", m_strPath);
    }
}

void ModemManagerCalls::OnAnswered(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    if (!isStale(pWatcher) && pWatcher->isError()) {
        emit failed(HOST_CALL_FAILED, pWatcher->error().message());
    }
}

void ModemManagerCalls::OnListed(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    const QDBusPendingReply<QList<QDBusObjectPath>> reply = *pWatcher;
    if (!isStale(pWatcher) && !reply.isError()) {
        foreach (const QDBusObjectPath& path, reply.value()) {
            OnCallAdded(path.path());
        }
    }
}

void ModemManagerCalls::OnCallAdded(const QString& strPath)
{
    if (strPath != m_strPath) {
        watch(m_link.Properties(strPath, "Call"), SLOT(OnRead(QDBusPendingCallWatcher*)))->setProperty("path", strPath);
    }
}

void ModemManagerCalls::OnRead(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    const QString strPath = pWatcher->property("path").toString();
    const QDBusPendingReply<QVariantMap> reply = *pWatcher;
    const bool bOwn = m_bInCall && strPath == m_strPath;
    if (reply.isError() || !m_link.Status().bPresent) {
        if (bOwn) {
            end(endOf(REASON_ERROR), reply.error().message());
        }
        return;
    }
    const int iState = reply.value().value(QLatin1String("State")).toInt();
    const int iReason = reply.value().value(QLatin1String("StateReason")).toInt();
    if (bOwn) {
        OnStateChanged(strPath, iState, iReason);
        return;
    }
    const bool bRings = iState == STATE_RINGING_IN || iState == STATE_WAITING;
    if (!bRings || reply.value().value(QLatin1String("Direction")).toInt() != DIRECTION_INCOMING) {
        return;
    }
    const QString strNumber = reply.value().value(QLatin1String("Number")).toString();
    if (!m_bInCall) {
        m_strPath = strPath;
        begin(strNumber, HOST_CALL_INCOMING);
    } else {
        keep(strNumber, true, QDateTime::currentDateTime(), 0, HOST_CALL_MISSED);
    }
    emit incoming(strNumber);
}

void ModemManagerCalls::OnStateChanged(const QString& strPath, int iState, int iReason)
{
    if (!m_bInCall || strPath != m_strPath) {
        return;
    }
    switch (iState) {
    case STATE_DIALLING:
        progress(HOST_CALL_DIALLING);
        break;
    case STATE_RINGING_OUT:
        progress(HOST_CALL_RINGING);
        break;
    case STATE_ACTIVE:
        if (!m_active.isValid()) {
            m_active.start();
        }
        progress(HOST_CALL_ACTIVE);
        break;
    case STATE_HELD:
        progress(HOST_CALL_HELD);
        break;
    case STATE_TERMINATED:
        // The answer to the order to dial says more.
        if (!m_bStarting) {
            end(endOf(iReason));
        }
        break;
    default:
        break;
    }
}

void ModemManagerCalls::begin(const QString& strNumber, int iProgress)
{
    ++m_iCall;
    m_bInCall = true;
    m_bIncoming = iProgress == HOST_CALL_INCOMING;
    m_bHangingUp = false;
    m_strNumber = strNumber;
    m_begun = QDateTime::currentDateTime();
    m_active.invalidate();
    emit callStarted(m_strNumber, HOST_CALL_VOICE);
    progress(iProgress);
}

void ModemManagerCalls::progress(int iProgress)
{
    if (m_iProgress != iProgress) {
        m_iProgress = iProgress;
        emit callProgress(iProgress);
    }
}

void ModemManagerCalls::end(int iProgress, const QString& strDetail)
{
    const QString strNumber = m_strNumber;
    const bool bFailed = iProgress == HOST_CALL_NOT_CONNECTED || iProgress == HOST_CALL_FAILED;
    keep(strNumber, m_bIncoming, m_begun, m_active.isValid() ? int(m_active.elapsed() / 1000) : 0, iProgress);
    if (!m_strPath.isEmpty() && iProgress != HOST_CALL_LOST) {
        m_link.Call(m_link.ModemPath(), "Modem.Voice", "DeleteCall",
                    QVariantList() << QVariant::fromValue(QDBusObjectPath(m_strPath)));
    }
    m_bInCall = false;
    m_bStarting = false;
    m_strPath.clear();
    m_strNumber.clear();
    ++m_iCall;
    progress(iProgress);
    emit callEnded(strNumber, HOST_CALL_VOICE);
    if (bFailed) {
        emit failed(iProgress, strDetail);
    }
}

void ModemManagerCalls::keep(const QString& strNumber, bool bIncoming, const QDateTime& begun, int iSeconds,
                             int iProgress)
{
    StoredCall call;
    call.strNumber = strNumber;
    call.iType = HOST_CALL_VOICE;
    call.time = begun;
    call.iSeconds = iSeconds;
    call.iDirection = bIncoming ? HOST_CALL_FROM_OUTSIDE : HOST_CALL_OUTGOING;
    call.iEnd = iProgress;
    call.iSimulated = 0;
    m_store.AddCall(call);
}

int ModemManagerCalls::endOf(int iReason) const
{
    if (m_bHangingUp) {
        return HOST_CALL_ENDED;
    }
    if (m_bIncoming && !m_active.isValid()) {
        return HOST_CALL_MISSED;
    }
    if (iReason == REASON_REFUSED) {
        return HOST_CALL_REFUSED;
    }
    if (iReason == REASON_ERROR || iReason == REASON_AUDIO) {
        return HOST_CALL_FAILED;
    }
    return m_active.isValid() ? HOST_CALL_ENDED_BY_OTHER : HOST_CALL_NOT_ANSWERED;
}

QDBusPendingCallWatcher* ModemManagerCalls::watch(const QDBusPendingCall& call, const char* pszSlot)
{
    QDBusPendingCallWatcher* pWatcher = m_link.Watch(call, this, pszSlot);
    pWatcher->setProperty("call", m_iCall);
    return pWatcher;
}

bool ModemManagerCalls::isStale(QDBusPendingCallWatcher* pWatcher) const
{
    return pWatcher->property("call").toInt() != m_iCall;
}
