#include "frame/AddrBookUIService.h"

#include <QCoreApplication>

#include "frame/FrameLog.h"
#include "linkhand/plugin/Codes.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/SdkCall.h"
#include "logic/Texts.h"
#include "orva/orva_sdk.h"
#include "window/AddrBookDlg.h"

CAddrBookUIService* CAddrBookUIService::m_pInstance = nullptr;

CAddrBookUIService::CAddrBookUIService() {}

CAddrBookUIService::~CAddrBookUIService()
{
    delete m_pAddrBookDlg.data();
}

CAddrBookUIService* CAddrBookUIService::instance()
{
    if (m_pInstance == nullptr)
        m_pInstance = new CAddrBookUIService;
    return m_pInstance;
}

void CAddrBookUIService::Destroy()
{
    FRAME_LOG_CALLED();
    delete m_pInstance;
    m_pInstance = nullptr;
}

QString CAddrBookUIService::tr(const QString& strId) const
{
    return addrBookTr(strId);
}

bool CAddrBookUIService::Init()
{
    FRAME_LOG_CALLED();
    QCoreApplication::addLibraryPath(QCoreApplication::applicationDirPath() + QLatin1String("/plugins"));
    return constructDialog(CommonUtils::GetMainWindow()) == ADDRBOOK_OK;
}

int CAddrBookUIService::constructDialog(QWidget* pParent)
{
    FRAME_LOG_CALLED();
    if (m_pAddrBookDlg != nullptr)
        return ADDRBOOK_OK;
    m_pAddrBookDlg = new (std::nothrow) AddrBookDlg;
    if (m_pAddrBookDlg == nullptr)
        return ADDRBOOK_OUT_OF_MEMORY;
    m_pAddrBookDlg->InitWindow(pParent);
    m_pAddrBookDlg->setObjectName(QLatin1String("AddrBookUIPlugin_MainWidget"));
    m_pAddrBookDlg->InitTree();
    FRAME_LOG_EXIT();
    return ADDRBOOK_OK;
}

int CAddrBookUIService::createWindow(QWidget* pParent)
{
    FRAME_LOG_CALLED();
    if (constructDialog(pParent) == ADDRBOOK_OUT_OF_MEMORY)
        return 0;
    int iStatus = 0;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_NetSrv_GetSrvStatus, (&iStatus));
    if (m_pAddrBookDlg != nullptr)
        m_pAddrBookDlg->OnNetStatusChanged(lResult == 0 && iStatus == ORVA_NETWORK_IN_SERVICE);
    return 1;
}

bool CAddrBookUIService::ShowWindow(QWidget* pParent, QRect& rect)
{
    FRAME_LOG_CALLED();
    const int iResult = createWindow(nullptr);
    if (m_pAddrBookDlg == nullptr || iResult != 1) {
        qWarning("CreateWindow failed inside the function ShowWindow");
        return iResult != 0;
    }
    m_pAddrBookDlg->setParent(pParent);
    m_pAddrBookDlg->SetTreeFocus();
    m_pAddrBookDlg->resize(rect.width(), rect.height());
    m_pAddrBookDlg->move(rect.x(), rect.y());
    qDebug("%s, %s: %s: %s rect: x=%d, y=%d, width=%d, height=%d", AddrBookLog::now().constData(), ADDRBOOK_FILE,
           __func__, "show", rect.x(), rect.y(), rect.width(), rect.height());
    m_pAddrBookDlg->setContentsMargins(4, 0, 4, 0);
    m_pAddrBookDlg->setMouseTracking(true);
    m_pAddrBookDlg->show();
    return true;
}

void CAddrBookUIService::Hide()
{
    FRAME_LOG_CALLED();
    if (m_pAddrBookDlg == nullptr)
        return;
    const QPointer<AddrBookDlg> pDlg(m_pAddrBookDlg);
    pDlg->CloseEditor();
    // Its box about a name may have outlived the window, and this service too.
    if (!pDlg.isNull())
        pDlg->hide();
}

void CAddrBookUIService::FitSize(QRect& rect)
{
    FRAME_LOG_CALLED();
    if (m_pAddrBookDlg == nullptr)
        return;
    m_pAddrBookDlg->resize(rect.size());
    m_pAddrBookDlg->move(rect.x(), rect.y());
}

int CAddrBookUIService::DoModal()
{
    return 1;
}

int CAddrBookUIService::Notify(unsigned int uiCode, unsigned int uiParam1, unsigned int /*uiParam2*/)
{
    FRAME_LOG_CALLED();
    if (m_pAddrBookDlg == nullptr)
        return 0;
    switch (uiCode) {
    case HOST_NOTIFY_LANGUAGE:
        m_pAddrBookDlg->SetLanguage();
        break;
    case HOST_NOTIFY_REGISTRATION:
        m_pAddrBookDlg->OnNetStatusChanged(uiParam1 != 0);
        break;
    case HOST_NOTIFY_NETWORK_LOST:
        m_pAddrBookDlg->OnNetStatusChanged(false);
        break;
    case HOST_NOTIFY_NETWORK_GAINED:
        m_pAddrBookDlg->OnNetStatusChanged(true);
        break;
    case HOST_NOTIFY_CARD_ENABLED:
        m_pAddrBookDlg->OnSimDisabled(false);
        break;
    case HOST_NOTIFY_CARD_DISABLED:
        m_pAddrBookDlg->OnSimDisabled(true);
        break;
    case HOST_NOTIFY_SYSTEM_MODE:
        m_pAddrBookDlg->OnSysmodeChanged();
        break;
    default:
        break;
    }
    return 0;
}

void CAddrBookUIService::unSDKRegisterEvent()
{
    FRAME_LOG_CALLED();
    if (AddrBookLogic::Instance() != nullptr)
        AddrBookLogic::unSDKRegisterEvent();
    FRAME_LOG_EXIT();
}

int CAddrBookUIService::SaveNumberToAddrBook(QString strNumber, QWidget* pParent)
{
    FRAME_LOG_CALLED();
    if (constructDialog(CommonUtils::GetMainWindow()) != ADDRBOOK_OK)
        return 0;
    m_pAddrBookDlg->SaveNumberToAddrBook(strNumber, pParent);
    return 1;
}

// Keeps its place in the interface; searches nothing.
void CAddrBookUIService::SearchMobile(QString /*strNumber*/, QString /*strText*/, int& /*iResult*/, bool /*bFlag*/)
{
    FRAME_LOG_CALLED();
}

int CAddrBookUIService::OpenNumSelectDlg(bool bFlag, FIELD_TYPE enFieldType, QList<QString>& lstNumbers)
{
    FRAME_LOG_CALLED();
    if (constructDialog(CommonUtils::GetMainWindow()) != ADDRBOOK_OK)
        return 0;
    if (m_pAddrBookDlg->parentWidget() == nullptr)
        m_pAddrBookDlg->setParent(CommonUtils::GetMainWindow());
    return m_pAddrBookDlg->OpenNumSelectDlg(bFlag, enFieldType, lstNumbers) ? 1 : 0;
}
