#include "notify/ChangeNotices.h"

#include <QMetaObject>

#include "shared/HostLink.h"

namespace
{

const int QUIET_MS = 300;

} // namespace

ChangeNotices::ChangeNotices()
    : m_uiMsg(0), m_iContacts(0), m_bInContact(false), m_bDue(false), m_bAsking(false), m_iTicket(0)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(QUIET_MS);
    connect(&m_quiet, SIGNAL(timeout()), this, SLOT(OnQuiet()));
}

void ChangeNotices::Note(unsigned int uiMsg, unsigned int uiMemory, unsigned int uiNumber)
{
    if (m_iContacts > 0 && uiMsg != m_uiMsg) {
        Flush();
    }
    m_uiMsg = uiMsg;
    if (!m_bInContact) {
        m_bInContact = true;
        QMetaObject::invokeMethod(this, "OnContactEnds", Qt::QueuedConnection);
        ++m_iContacts;
    }
    // Another of its numbers may tell more than the first.
    if (m_iContacts == 1) {
        m_listWays.append(qMakePair(uiMemory, uiNumber));
        ask();
    }
    m_bDue = false;
    m_quiet.start();
}

void ChangeNotices::OnContactEnds()
{
    m_bInContact = false;
}

void ChangeNotices::ask()
{
    HostLink* const pLink = HostLink::Instance();
    while (pLink != nullptr && !m_bAsking && m_strName.isEmpty() && !m_listWays.isEmpty()) {
        const QPair<unsigned int, unsigned int> way = m_listWays.takeFirst();
        m_bAsking = pLink->AskChangedContact(m_uiMsg, way.first, way.second, this, ++m_iTicket);
    }
}

// An answer to a question of a notice that has gone out is about somebody else by now.
void ChangeNotices::OnContactNamed(int iTicket, const QString& strName)
{
    if (!m_bAsking || iTicket != m_iTicket) {
        return;
    }
    m_bAsking = false;
    m_strName = strName;
    ask();
    if (m_bDue && !m_bAsking) {
        Flush();
    }
}

void ChangeNotices::OnQuiet()
{
    m_bDue = m_bAsking && m_iContacts == 1;
    if (!m_bDue) {
        Flush();
    }
}

void ChangeNotices::Flush()
{
    m_quiet.stop();
    const bool bAny = m_iContacts > 0;
    const bool bSeveral = m_iContacts > 1;
    const QString strName = m_strName;
    m_iContacts = 0;
    m_bInContact = false;
    m_bDue = false;
    m_strName.clear();
    m_listWays.clear();
    m_bAsking = false;
    if (bAny) {
        emit due(m_uiMsg, bSeveral, strName);
    }
}
