#include "voicecall/VoiceCallPlugin.h"

#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/PluginVerification.h"
#include "shared/HostLink.h"
#include "voicecall/CallPage.h"

LINKHAND_EXPORT_VERIFICATION()
LINKHAND_EXPORT_PLUGIN(VoiceCallPlugin, VoiceCallPlugin)

VoiceCallPlugin::VoiceCallPlugin() : Sibling<IUIPlugin>(LINKHAND_VOICECALL_NAME, LINKHAND_VOICECALL_ID, 0) {}

VoiceCallPlugin::~VoiceCallPlugin()
{
    VoiceCallPlugin::OnDestroy();
}

bool VoiceCallPlugin::Init()
{
    m_pPage = new CallPage(GetPluginName());
    HostLink* pLink = HostLink::Instance();
    if (pLink != nullptr) {
        connect(pLink->CallEvents(), SIGNAL(callStarted(QString, int)), this, SLOT(OnCallStarted(QString, int)));
        connect(pLink->CallEvents(), SIGNAL(callProgress(int)), this, SLOT(OnCallProgress(int)));
        connect(pLink->CallEvents(), SIGNAL(callEnded(QString, int)), this, SLOT(OnCallEnded()));
    }
    return true;
}

void VoiceCallPlugin::OnDestroy()
{
    delete m_pPage.data();
}

bool VoiceCallPlugin::ShowWindow(QWidget* pParent, QRect& rect)
{
    if (!m_pPage) {
        return false;
    }
    m_pPage->setParent(pParent);
    m_pPage->setGeometry(rect);
    m_pPage->Enter();
    m_pPage->show();
    return true;
}

void VoiceCallPlugin::Hide()
{
    if (m_pPage) {
        m_pPage->hide();
    }
}

void VoiceCallPlugin::FitSize(QRect& rect)
{
    if (m_pPage) {
        m_pPage->setGeometry(rect);
    }
}

void VoiceCallPlugin::FillNumber(const QString& strNumber)
{
    if (m_pPage) {
        m_pPage->Fill(strNumber);
    }
}

void VoiceCallPlugin::Retranslate()
{
    if (m_pPage) {
        m_pPage->Retranslate();
    }
}

void VoiceCallPlugin::OnCallStarted(const QString& strNumber, int iType)
{
    if (m_pPage) {
        m_pPage->Start(strNumber, iType);
        if (iType == HOST_CALL_VOICE) {
            HostLink::Instance()->ShowPage(GetPluginName());
        }
    }
}

void VoiceCallPlugin::OnCallProgress(int iProgress)
{
    if (m_pPage) {
        m_pPage->SetProgress(iProgress);
    }
}

void VoiceCallPlugin::OnCallEnded()
{
    if (m_pPage) {
        m_pPage->Stop();
    }
}
