#include "notify/NotifyPlugin.h"

#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/PluginVerification.h"
#include "notify/ChangeNotices.h"
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

// What a change of contacts is told as.
struct ChangeTexts {
    unsigned int uiMsg;
    const char* pszNamed;
    const char* pszNameless;
    const char* pszSeveral;
};

const ChangeTexts* textsOf(unsigned int uiMsg)
{
    static const ChangeTexts texts[] = {
        {PHONEBOOK_CONTACT_ADDED, "IDS_NAMED_ADDED", "IDS_CONTACT_ADDED", "IDS_SEVERAL_ADDED"},
        {PHONEBOOK_CONTACT_CHANGED, "IDS_NAMED_CHANGED", "IDS_CONTACT_CHANGED", "IDS_SEVERAL_CHANGED"},
        {PHONEBOOK_CONTACT_DELETED, "IDS_NAMED_DELETED", "IDS_CONTACT_DELETED", "IDS_SEVERAL_DELETED"}};
    for (const ChangeTexts& entry : texts) {
        if (entry.uiMsg == uiMsg) {
            return &entry;
        }
    }
    return nullptr;
}

} // namespace

NotifyPlugin::NotifyPlugin() : Sibling<IBasePlugin>(LINKHAND_NOTIFY_NAME, LINKHAND_NOTIFY_ID, LINKHAND_NOTIFY_KIND) {}

NotifyPlugin::~NotifyPlugin() {}

bool NotifyPlugin::Init()
{
    HostLink* pLink = HostLink::Instance();
    m_pLog.reset(new NotifyLog(pLink == nullptr ? QString() : pLink->LogFolder()));
    m_pChanges.reset(new ChangeNotices);
    connect(m_pChanges.data(), SIGNAL(due(unsigned int, bool, QString)), this,
            SLOT(OnChange(unsigned int, bool, QString)));
    return true;
}

void NotifyPlugin::OnDestroy()
{
    m_pChanges.reset();
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
    if (m_pChanges && textsOf(uiMsg) != nullptr) {
        m_pChanges->Note(uiMsg, uiParam1, uiParam2);
    }
}

void NotifyPlugin::OnChange(unsigned int uiMsg, bool bSeveral, const QString& strName)
{
    const ChangeTexts& texts = *textsOf(uiMsg);
    if (bSeveral) {
        show(text(texts.pszSeveral));
    } else {
        show(strName.isEmpty() ? text(texts.pszNameless) : text(texts.pszNamed).arg(strName));
    }
}

void NotifyPlugin::show(const QString& strText)
{
    HostLink* pLink = HostLink::Instance();
    if (pLink != nullptr) {
        pLink->ShowStatus(strText);
    }
}
