#include "app/Link.h"

#include <QCoreApplication>
#include <QHash>
#include <QVariant>

#include "device/CleanNumber.h"
#include "device/Modem.h"
#include "messages/MessageStore.h"
#include "window/MainWindow.h"
#include "window/StatusArea.h"

namespace
{

OutgoingMessage messageOf(HostMessageKind enKind, const QStringList& lstNumbers, const QString& strSubject,
                          const QString& strText)
{
    OutgoingMessage message;
    message.iKind = enKind;
    message.lstNumbers = lstNumbers;
    message.strSubject = strSubject;
    message.strText = strText;
    return message;
}

} // namespace

Link::Link(Modem& modem, MessageStore& store, MainWindow* pWindow, const QString& strLogFolder)
    : m_modem(modem), m_store(store), m_pWindow(pWindow), m_strLogFolder(strLogFolder)
{
}

void Link::Publish()
{
    const HostLink* pSelf = this;
    QCoreApplication::instance()->setProperty(LINKHAND_HOST_LINK,
                                              QVariant(static_cast<qlonglong>(reinterpret_cast<quintptr>(pSelf))));
}

void Link::Withdraw()
{
    QCoreApplication::instance()->setProperty(LINKHAND_HOST_LINK, QVariant());
}

bool Link::SendMessage(HostMessageKind enKind, const QStringList& lstNumbers, const QString& strSubject,
                       const QString& strText)
{
    return m_modem.Send(messageOf(enKind, lstNumbers, strSubject, strText));
}

int Link::KeepDraft(int iId, HostMessageKind enKind, const QStringList& lstNumbers, const QString& strSubject,
                    const QString& strText)
{
    const OutgoingMessage message = messageOf(enKind, lstNumbers, strSubject, strText);
    // What was sent or deleted meanwhile stays as it is.
    if (iId != 0 && !m_modem.IsSending(iId) && m_store.Replace(iId, message)) {
        return iId;
    }
    return m_store.Add(message, MESSAGE_DRAFT);
}

void Link::ForgetDraft(int iId)
{
    const StoredMessage stored = m_store.Message(iId);
    if (stored.iId != 0 && stored.IsUnsent() && !m_modem.IsSending(iId)) {
        m_store.Remove(iId);
    }
}

bool Link::Dial(const QString& strNumber, HostCallType enType)
{
    return m_modem.Dial(strNumber, enType);
}

void Link::HangUp()
{
    m_modem.HangUp();
}

void Link::Answer()
{
    m_modem.Answer();
}

bool Link::IsSimulated()
{
    return m_modem.IsSimulated();
}

QString Link::CleanNumber(const QString& strNumber)
{
    return ::CleanNumber::Of(strNumber);
}

QObject* Link::CallEvents()
{
    return &m_modem;
}

QList<HostCall> Link::Calls(int iSkipped, int iAtMost)
{
    const QList<StoredCall> listStored = m_store.Calls(iSkipped, iAtMost);
    // What has been read of the contacts: a page opens without waiting for them.
    QHash<QString, QString> names;
    QList<HostCall> listCalls;
    foreach (const StoredCall& stored, listStored) {
        HostCall call;
        call.iId = stored.iId;
        call.strNumber = stored.strNumber;
        if (!names.contains(stored.strNumber)) {
            names.insert(stored.strNumber, m_contacts.NameOf(stored.strNumber));
        }
        call.strName = names.value(stored.strNumber);
        call.iType = stored.iType;
        call.time = stored.time;
        call.iSeconds = stored.iSeconds;
        call.iDirection = stored.iDirection;
        call.iEnd = stored.iEnd;
        call.iSimulated = stored.iSimulated;
        listCalls.append(call);
    }
    return listCalls;
}

bool Link::RemoveCall(int iId)
{
    return m_store.RemoveCall(iId);
}

bool Link::AskChangedContact(unsigned int uiMsg, unsigned int uiMemory, unsigned int uiNumber, QObject* pAsker,
                             int iTicket)
{
    m_namer.Ask(uiMsg, uiMemory, uiNumber, pAsker, iTicket);
    return true;
}

void Link::ShowPage(const QString& strPlugin)
{
    if (m_pWindow) {
        m_pWindow->ShowPage(strPlugin);
    }
}

void Link::ShowStatus(const QString& strText)
{
    if (m_pWindow) {
        m_pWindow->Status().ShowNotice(strText);
    }
}
