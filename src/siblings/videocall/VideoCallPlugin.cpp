#include "videocall/VideoCallPlugin.h"

#include "common/CallBox.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/core/ExtendDialog.h"
#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/PluginVerification.h"
#include "shared/HostLink.h"

LINKHAND_EXPORT_VERIFICATION()
LINKHAND_EXPORT_PLUGIN(VideoCallPlugin, VideoCallPlugin)

VideoCallPlugin::VideoCallPlugin() : Sibling<IBasePlugin>(LINKHAND_VIDEOCALL_NAME, LINKHAND_VIDEOCALL_ID, 0) {}

VideoCallPlugin::~VideoCallPlugin()
{
    VideoCallPlugin::OnDestroy();
}

bool VideoCallPlugin::Init()
{
    HostLink* pLink = HostLink::Instance();
    if (pLink != nullptr) {
        connect(pLink->CallEvents(), SIGNAL(callStarted(QString, int)), this, SLOT(OnCallStarted(QString, int)));
        connect(pLink->CallEvents(), SIGNAL(callEnded(QString, int)), this, SLOT(OnCallEnded()));
    }
    return true;
}

void VideoCallPlugin::OnDestroy()
{
    delete m_pWindow.data();
}

void VideoCallPlugin::Retranslate()
{
    if (m_pWindow && m_pBox) {
        m_pWindow->setWindowTitle(text("IDS_TITLE"));
        m_pBox->Retranslate();
    }
}

void VideoCallPlugin::OnCallStarted(const QString& strNumber, int iType)
{
    if (iType != HOST_CALL_VIDEO) {
        return;
    }
    if (!m_pWindow) {
        m_pWindow =
            new ExtendDialog(CommonUtils::GetMainWindow(), Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG);
        m_pWindow->setObjectName(GetPluginName() + QLatin1String("_window"));
        m_pBox = new CallBox(GetPluginName());
        m_pBox->setMinimumSize(420, 110);
        m_pWindow->AddMainWidget(m_pBox);
        connect(m_pWindow, SIGNAL(finished(int)), this, SLOT(OnWindowClosed()));
    }
    Retranslate();
    m_pBox->Start(strNumber);
    CommonUtils::MoveCentre(m_pWindow);
    m_pWindow->show();
}

void VideoCallPlugin::OnCallEnded()
{
    if (m_pWindow && m_pBox) {
        m_pBox->Stop();
        m_pWindow->hide();
    }
}

// Who closes the window hangs up.
void VideoCallPlugin::OnWindowClosed()
{
    HostLink* pLink = HostLink::Instance();
    if (pLink != nullptr) {
        pLink->HangUp();
    }
}
