#include "notify/NotifyPlugin.h"

#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/PluginVerification.h"
#include "notify/NotifyLog.h"
#include "shared/HostLink.h"

LINKHAND_EXPORT_VERIFICATION()
LINKHAND_EXPORT_PLUGIN(NotifyPlugin, NotifyPlugin)

namespace
{

QString logLine(const char* pszKind, unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2)
{
    return QString::fromLatin1("%1 %2 %3 %4").arg(QLatin1String(pszKind)).arg(uiMsg).arg(uiParam1).arg(uiParam2);
}

} // namespace

NotifyPlugin::NotifyPlugin() : Sibling<IBasePlugin>(LINKHAND_NOTIFY_NAME, LINKHAND_NOTIFY_ID, LINKHAND_NOTIFY_KIND) {}

NotifyPlugin::~NotifyPlugin() {}

bool NotifyPlugin::Init()
{
    HostLink* pLink = HostLink::Instance();
    m_pLog.reset(new NotifyLog(pLink == nullptr ? QString() : pLink->LogFolder()));
    return true;
}

void NotifyPlugin::OnDestroy()
{
    m_pLog.reset();
}

void NotifyPlugin::Broadcast(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2)
{
    if (m_pLog) {
        m_pLog->Append(logLine("broadcast", uiMsg, uiParam1, uiParam2));
    }
    if (uiMsg == PHONEBOOK_CARD_NODE) {
        show(text(uiParam1 != 0 ? "IDS_CARD_CAME" : "IDS_CARD_WENT"));
    } else if (uiMsg == PHONEBOOK_DEVICE_NODE) {
        show(text(uiParam1 != 0 ? "IDS_DEVICE_CAME" : "IDS_DEVICE_WENT"));
    }
}

void NotifyPlugin::Push(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2)
{
    if (m_pLog) {
        m_pLog->Append(logLine("push", uiMsg, uiParam1, uiParam2));
    }
    const char* const pszId = uiMsg == PHONEBOOK_CONTACT_ADDED     ? "IDS_CONTACT_ADDED"
                              : uiMsg == PHONEBOOK_CONTACT_CHANGED ? "IDS_CONTACT_CHANGED"
                              : uiMsg == PHONEBOOK_CONTACT_DELETED ? "IDS_CONTACT_DELETED"
                                                                   : nullptr;
    if (pszId != nullptr) {
        // A number that did not fit came as 0.
        show(uiParam2 == 0 ? text(pszId) : text(pszId) + QLatin1String(": ") + QString::number(uiParam2));
    }
}

void NotifyPlugin::show(const QString& strText)
{
    HostLink* pLink = HostLink::Instance();
    if (pLink != nullptr) {
        pLink->ShowStatus(strText);
    }
}
