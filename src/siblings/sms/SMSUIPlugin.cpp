#include "sms/SMSUIPlugin.h"

#include "common/MessageWindows.h"
#include "common/Recipients.h"
#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/PluginVerification.h"

LINKHAND_EXPORT_VERIFICATION()
LINKHAND_EXPORT_PLUGIN(SMSUIPlugin, SMSUIPlugin)

SMSUIPlugin::SMSUIPlugin() : Sibling<IBasePlugin>(LINKHAND_SMS_NAME, LINKHAND_SMS_ID, LINKHAND_SMS_KIND) {}

SMSUIPlugin::~SMSUIPlugin() {}

bool SMSUIPlugin::Init()
{
    m_pWindows.reset(new MessageWindows(GetPluginName(), HOST_MESSAGE_SMS));
    return true;
}

void SMSUIPlugin::OnDestroy()
{
    m_pWindows.reset();
}

void SMSUIPlugin::SendMessage(QString strNumbers, QString strText, QWidget*)
{
    if (m_pWindows) {
        m_pWindows->Open(Recipients::Split(strNumbers), strText);
    }
}

void SMSUIPlugin::OpenMessage(int iId, const QStringList& lstNumbers, const QString& strSubject, const QString& strText)
{
    if (m_pWindows) {
        m_pWindows->Open(lstNumbers, strText, strSubject, iId);
    }
}

void SMSUIPlugin::Retranslate()
{
    if (m_pWindows) {
        m_pWindows->Retranslate();
    }
}
