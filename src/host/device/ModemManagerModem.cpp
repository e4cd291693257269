#include "device/ModemManagerModem.h"

#include <QDBusPendingCallWatcher>

#include "shared/HostLink.h"

namespace
{

// A modem reads its card before it answers to the PIN, and searches a network before it counts as switched on.
const int PIN_MS = 60000;
const int ENABLE_MS = 120000;

} // namespace

ModemManagerModem::ModemManagerModem(const QString& strPort, MessageStore& store, QObject* pParent)
    : Modem(pParent),
      m_link(strPort),
      m_messages(m_link, store),
      m_calls(m_link, store),
      m_bPinAsked(false),
      m_bPinWrong(false),
      m_iTriesBefore(-1)
{
    connect(&m_link, SIGNAL(changed()), this, SIGNAL(statusChanged()));
    connect(&m_link, SIGNAL(modemChanged()), this, SLOT(OnModemChanged()));
    connect(&m_link, SIGNAL(refreshed()), this, SLOT(OnRefreshed()));
    connect(&m_messages, SIGNAL(finished(int)), this, SIGNAL(messageFinished(int)));
    connect(&m_messages, SIGNAL(received(QString, QString)), this, SIGNAL(messageReceived(QString, QString)));
    connect(&m_messages, SIGNAL(removeFailed(QString)), this, SIGNAL(removeFailed(QString)));
    connect(&m_messages, SIGNAL(storeFull()), this, SIGNAL(messageStoreFull()));
    connect(&m_calls, SIGNAL(callStarted(QString, int)), this, SIGNAL(callStarted(QString, int)));
    connect(&m_calls, SIGNAL(callProgress(int)), this, SIGNAL(callProgress(int)));
    connect(&m_calls, SIGNAL(callEnded(QString, int)), this, SIGNAL(callEnded(QString, int)));
    connect(&m_calls, SIGNAL(incoming(QString)), this, SIGNAL(incomingCall(QString)));
    connect(&m_calls, SIGNAL(failed(int, QString)), this, SIGNAL(callFailed(int, QString)));
}

void ModemManagerModem::Start()
{
    m_link.Start();
}

bool ModemManagerModem::Dial(const QString& strNumber, int iType)
{
    return iType == HOST_CALL_VOICE && m_calls.Dial(strNumber);
}

void ModemManagerModem::SendPin(const QString& strPin)
{
    if (m_bPinAsked) {
        return;
    }
    m_bPinAsked = true;
    m_iTriesBefore = m_link.Status().iTries;
    m_link.Watch(m_link.Call(m_link.CardPath(), "Sim", "SendPin", QVariantList() << strPin, PIN_MS), this,
                 SLOT(OnPinAnswered(QDBusPendingCallWatcher*)));
}

void ModemManagerModem::Enable()
{
    m_link.Watch(m_link.Call(m_link.ModemPath(), "Modem", "Enable", QVariantList() << true, ENABLE_MS), this,
                 SLOT(OnEnabled(QDBusPendingCallWatcher*)));
}

void ModemManagerModem::OnModemChanged()
{
    if (m_bPinAsked) {
        m_bPinAsked = false;
        emit pinAnswered(false, false, QString());
    }
}

void ModemManagerModem::OnPinAnswered(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    if (!m_bPinAsked) {
        return; // of a modem that has gone
    }
    if (!pWatcher->isError()) {
        m_bPinAsked = false;
        emit pinAnswered(true, false, QString());
        return;
    }
    const QDBusError error = pWatcher->error();
    m_bPinWrong =
        error.name().endsWith(QLatin1String(".IncorrectPassword")) || error.name().endsWith(QLatin1String(".SimPuk"));
    m_strPinDetail = error.message();
    // The modem's own count may come after its answer.
    if (m_bPinWrong && m_iTriesBefore > 0) {
        m_link.LimitTries(m_iTriesBefore - 1);
    }
    m_link.Refresh();
}

void ModemManagerModem::OnRefreshed()
{
    if (m_bPinAsked) {
        m_bPinAsked = false;
        emit pinAnswered(false, m_bPinWrong, m_strPinDetail);
    }
}

void ModemManagerModem::OnEnabled(QDBusPendingCallWatcher* pWatcher)
{
    pWatcher->deleteLater();
    if (pWatcher->isError()) {
        emit enableFailed(pWatcher->error().message());
    }
}
