#include "app/ModemNotices.h"

#include <QApplication>

#include "device/Modem.h"
#include "messages/MessageStore.h"
#include "shared/HostLink.h"
#include "text/HostText.h"
#include "window/MainWindow.h"
#include "window/PinForm.h"
#include "window/StatusArea.h"

namespace
{

const char* const ABOUT_CALL = "call";
const char* const ABOUT_POWER = "power";
const char* const ABOUT_ROOM = "room";

} // namespace

ModemNotices::ModemNotices(Modem& modem, MessageStore& store, MainWindow& window)
    : m_modem(modem), m_store(store), m_window(window), m_named(window.Status()), m_bLocked(false)
{
    connect(&m_modem, SIGNAL(statusChanged()), this, SLOT(OnStatusChanged()));
    connect(&m_modem, SIGNAL(messageFinished(int)), this, SLOT(OnMessageFinished(int)));
    connect(&m_modem, SIGNAL(messageReceived(QString, QString)), this, SLOT(OnMessageReceived(QString, QString)));
    connect(&m_modem, SIGNAL(incomingCall(QString)), this, SLOT(OnIncomingCall(QString)));
    connect(&m_modem, SIGNAL(callEnded(QString, int)), this, SLOT(OnCallEnded()));
    connect(&m_modem, SIGNAL(callFailed(int, QString)), this, SLOT(OnCallFailed(int, QString)));
    connect(&m_modem, SIGNAL(removeFailed(QString)), this, SLOT(OnRemoveFailed(QString)));
    connect(&m_modem, SIGNAL(enableFailed(QString)), this, SLOT(OnEnableFailed(QString)));
    connect(&m_modem, SIGNAL(messageStoreFull()), this, SLOT(OnStoreFull()));
    connect(&m_window.Status(), SIGNAL(unlockRequested()), this, SLOT(ShowPinForm()));
    connect(&m_window, SIGNAL(retranslated()), this, SLOT(OnRetranslated()));
    OnStatusChanged();
}

void ModemNotices::OnRetranslated()
{
    if (m_pForm) {
        m_pForm->Retranslate();
    }
}

void ModemNotices::ShowPinForm()
{
    if (m_modem.Status().enLock != ModemStatus::LOCK_PIN) {
        return;
    }
    if (!m_pForm) {
        m_pForm = new PinForm(m_modem, &m_window);
        m_pForm->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_pForm->show();
    m_pForm->raise();
    m_pForm->activateWindow();
}

// The form comes by itself once for each card that asks.
void ModemNotices::OnStatusChanged()
{
    const ModemStatus status = m_modem.Status();
    m_window.Status().SetModem(status);
    if (status.bEnabled || !status.bPresent) {
        m_window.Status().EndNotice(QLatin1String(ABOUT_POWER));
    }
    const bool bLocked = status.enLock == ModemStatus::LOCK_PIN;
    if (bLocked && !m_bLocked && m_window.isVisible()) {
        ShowPinForm();
    }
    m_bLocked = bLocked;
}

void ModemNotices::OnMessageFinished(int iId)
{
    const StoredMessage stored = m_store.Message(iId);
    const QString strNumber = stored.message.lstNumbers.value(0);
    const bool bMms = stored.message.iKind == HOST_MESSAGE_MMS;
    switch (stored.iState) {
    case MESSAGE_SENT:
        showNamed("IDS_HOST_SMS_SENT", strNumber, QString(), QString());
        break;
    case MESSAGE_DRAFT:
        showNamed(bMms ? "IDS_HOST_MMS_KEPT" : "IDS_HOST_SMS_KEPT", strNumber, QString(), QString());
        break;
    case MESSAGE_FAILED:
        showNamed("IDS_HOST_SMS_FAILED", strNumber, QString(), stored.strDetail);
        break;
    case MESSAGE_PARTLY:
        showNamed("IDS_HOST_SMS_PARTLY", strNumber, QString(), stored.strDetail);
        break;
    case MESSAGE_UNCERTAIN:
        showNamed("IDS_HOST_SMS_UNCERTAIN", strNumber, QString(), stored.strDetail);
        break;
    default:
        break;
    }
}

void ModemNotices::OnMessageReceived(const QString& strNumber, const QString& strText)
{
    m_window.Status().EndNotice(QLatin1String(ABOUT_ROOM));
    showNamed("IDS_HOST_SMS_RECEIVED", strNumber, strText.section(QLatin1Char('\n'), 0, 0), QString());
    call();
}

void ModemNotices::OnIncomingCall(const QString& strNumber)
{
    showNamed("IDS_HOST_CALL_INCOMING", strNumber, QString(), QString(), ABOUT_CALL);
    call();
}

void ModemNotices::OnCallEnded()
{
    m_window.Status().EndNotice(QLatin1String(ABOUT_CALL));
}

void ModemNotices::OnCallFailed(int iProgress, const QString& strDetail)
{
    if (iProgress == HOST_CALL_NOT_CONNECTED) {
        show(HostText::Get("IDS_HOST_CALL_NOT_CONNECTED")); // the modem's own word for it leads astray
    } else {
        show(HostText::Get("IDS_HOST_CALL_FAILED"), strDetail);
    }
}

void ModemNotices::OnRemoveFailed(const QString& strDetail)
{
    show(HostText::Get("IDS_HOST_SMS_NOT_DELETED"), strDetail);
}

void ModemNotices::OnEnableFailed(const QString& strDetail)
{
    show(HostText::Get("IDS_HOST_MODEM_NOT_ON"), strDetail, ABOUT_POWER);
}

void ModemNotices::OnStoreFull()
{
    show(HostText::Get("IDS_HOST_SMS_STORE_FULL"), QString(), ABOUT_ROOM);
    call();
}

void ModemNotices::show(const QString& strText, const QString& strDetail, const char* pszAbout)
{
    m_window.Status().ShowNotice(strDetail.isEmpty() ? strText
                                                     : strText + QLatin1String(" (") + strDetail + QLatin1Char(')'),
                                 QLatin1String(pszAbout));
}

void ModemNotices::showNamed(const char* pszId, const QString& strNumber, const QString& strMore,
                             const QString& strDetail, const char* pszAbout)
{
    const NamedNotice notice = {QLatin1String(pszId), strNumber, strMore, strDetail, QLatin1String(pszAbout)};
    m_named.Show(notice);
}

void ModemNotices::call()
{
    QApplication::alert(&m_window);
}
