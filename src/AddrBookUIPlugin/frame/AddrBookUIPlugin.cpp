#include "frame/AddrBookUIPlugin.h"

#include "frame/AddrBookUIService.h"
#include "frame/FrameLog.h"
#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/PluginVerification.h"
#include "logic/Texts.h"

LINKHAND_EXPORT_VERIFICATION()
LINKHAND_EXPORT_PLUGIN(AddrBookUIPlugin, CAddrBookUIPlugin)

CAddrBookUIPlugin::CAddrBookUIPlugin() {}

CAddrBookUIPlugin::~CAddrBookUIPlugin() {}

bool CAddrBookUIPlugin::Init()
{
    FRAME_LOG_CALLED();
    return CAddrBookUIService::instance()->Init();
}

bool CAddrBookUIPlugin::ShowWindow(QWidget* pParent, QRect& rect)
{
    FRAME_LOG_CALLED();
    return CAddrBookUIService::instance()->ShowWindow(pParent, rect);
}

int CAddrBookUIPlugin::DoModal()
{
    FRAME_LOG_CALLED();
    return CAddrBookUIService::instance()->DoModal();
}

void CAddrBookUIPlugin::Hide()
{
    FRAME_LOG_CALLED();
    CAddrBookUIService::instance()->Hide();
}

void CAddrBookUIPlugin::FitSize(QRect& rect)
{
    FRAME_LOG_CALLED();
    CAddrBookUIService::instance()->FitSize(rect);
}

bool CAddrBookUIPlugin::IsReady()
{
    FRAME_LOG_CALLED();
    return false;
}

// The change itself reaches the window as a notice.
bool CAddrBookUIPlugin::ChangeLang(const QString& strLang)
{
    FRAME_LOG_CALLED();
    return !strLang.isEmpty();
}

int CAddrBookUIPlugin::GetPluginType()
{
    FRAME_LOG_CALLED();
    return 0;
}

// Unlike its siblings this plug-in is not looked up in the host's container.
QString CAddrBookUIPlugin::GetCLSID()
{
    FRAME_LOG_CALLED();
    return QString();
}

int CAddrBookUIPlugin::GetVersion()
{
    FRAME_LOG_CALLED();
    return 0;
}

QString CAddrBookUIPlugin::GetPluginName()
{
    FRAME_LOG_CALLED();
    return addrBookPluginName();
}

bool CAddrBookUIPlugin::IsAllowRelease()
{
    FRAME_LOG_CALLED();
    return false;
}

int CAddrBookUIPlugin::QueryInterface(int iId, QObject** ppObject)
{
    FRAME_LOG_CALLED();
    if (iId != LINKHAND_ADDRBOOK_KIND)
        return 0;
    *ppObject = CAddrBookUIService::instance();
    return 1;
}

void CAddrBookUIPlugin::UnSDKRegisterEvent()
{
    FRAME_LOG_CALLED();
    CAddrBookUIService::instance()->unSDKRegisterEvent();
}

void CAddrBookUIPlugin::Release()
{
    FRAME_LOG_CALLED();
}

int CAddrBookUIPlugin::GetLastError()
{
    FRAME_LOG_CALLED();
    return 0;
}

void CAddrBookUIPlugin::OnDestroy()
{
    FRAME_LOG_CALLED();
    CAddrBookUIService::Destroy();
}

int CAddrBookUIPlugin::Notify(unsigned int uiCode, unsigned int uiParam1, unsigned int uiParam2)
{
    FRAME_LOG_CALLED();
    return CAddrBookUIService::instance()->Notify(uiCode, uiParam1, uiParam2);
}
