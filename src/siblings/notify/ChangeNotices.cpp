#include "notify/ChangeNotices.h"

#include <QMetaObject>

#include "shared/HostLink.h"

namespace
{

const int QUIET_MS = 300;

} // namespace

ChangeNotices::ChangeNotices() : m_uiMsg(0), m_iContacts(0), m_bInContact(false)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(QUIET_MS);
    connect(&m_quiet, SIGNAL(timeout()), this, SLOT(Flush()));
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
    if (m_iContacts == 1 && m_strName.isEmpty()) {
        HostLink* const pLink = HostLink::Instance();
        m_strName = pLink == nullptr ? QString() : pLink->ChangedContact(uiMsg, uiMemory, uiNumber);
    }
    m_quiet.start();
}

void ChangeNotices::OnContactEnds()
{
    m_bInContact = false;
}

void ChangeNotices::Flush()
{
    m_quiet.stop();
    if (m_iContacts > 0) {
        emit due(m_uiMsg, m_iContacts > 1, m_strName);
    }
    m_iContacts = 0;
    m_bInContact = false;
    m_strName.clear();
}
