#include "mms/MMSUIPlugin.h"

#include "common/MessageWindows.h"
#include "common/Recipients.h"
#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/PluginVerification.h"

LINKHAND_EXPORT_VERIFICATION()
LINKHAND_EXPORT_PLUGIN(MMSUIPlugin, MMSUIPlugin)

MMSUIPlugin::MMSUIPlugin() : Sibling<IBasePlugin>(LINKHAND_MMS_NAME, LINKHAND_MMS_ID, LINKHAND_MMS_KIND) {}

MMSUIPlugin::~MMSUIPlugin() {}

bool MMSUIPlugin::Init()
{
    m_pWindows.reset(new MessageWindows(GetPluginName(), HOST_MESSAGE_MMS));
    return true;
}

void MMSUIPlugin::OnDestroy()
{
    m_pWindows.reset();
}

void MMSUIPlugin::SendMessage(QString strNumbers)
{
    if (m_pWindows) {
        m_pWindows->Open(Recipients::Split(strNumbers), QString());
    }
}

void MMSUIPlugin::OpenMessage(int iId, const QStringList& lstNumbers, const QString& strSubject, const QString& strText)
{
    if (m_pWindows) {
        m_pWindows->Open(lstNumbers, strText, strSubject, iId);
    }
}

void MMSUIPlugin::Retranslate()
{
    if (m_pWindows) {
        m_pWindows->Retranslate();
    }
}
