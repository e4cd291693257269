#include "app/RequestDesk.h"

#include <QApplication>
#include <QDesktopServices>
#include <QUrl>

#include <cstdlib>

#include "app/FileDrop.h"
#include "cards/CardImport.h"
#include "cards/CardPreview.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/IPluginContainer.h"
#include "linkhand/plugin/ISMSUIService.h"
#include "requests/Request.h"
#include "single/SingleInstance.h"
#include "text/HostText.h"
#include "window/MainWindow.h"
#include "window/StatusArea.h"

namespace
{

const int LOOK_MS = 100;
const int WAITING_LIMIT = 200;
const int TOKEN_LIMIT = 256;

const char* const SCHEMES[] = {"tel", "sms"};

bool isToken(const QString& strToken)
{
    foreach (const QChar c, strToken) {
        if (c.unicode() <= 0x20 || c.unicode() > 0x7e) {
            return false;
        }
    }
    return !strToken.isEmpty() && strToken.length() <= TOKEN_LIMIT;
}

} // namespace

RequestDesk::RequestDesk(MainWindow& window, IPluginContainer& container, SingleInstance& instance)
    : m_window(window), m_container(container), m_instance(instance), m_bStarted(false), m_bBusy(false), m_bSaid(false)
{
    m_look.setInterval(LOOK_MS);
    connect(&m_look, SIGNAL(timeout()), this, SLOT(OnLook()));
    connect(&m_instance, SIGNAL(received()), this, SLOT(OnReceived()));
    FileDrop* pDrop = new FileDrop(&m_window);
    pDrop->setObjectName(QLatin1String("linkhand_FileDrop"));
    connect(pDrop, SIGNAL(dropped(QStringList)), this, SLOT(OnDropped(QStringList)));
    for (const char* pszScheme : SCHEMES) {
        QDesktopServices::setUrlHandler(QLatin1String(pszScheme), this, "OnLink");
    }
}

RequestDesk::~RequestDesk()
{
    for (const char* pszScheme : SCHEMES) {
        QDesktopServices::unsetUrlHandler(QLatin1String(pszScheme));
    }
}

void RequestDesk::Start()
{
    m_bStarted = true;
    OnReceived();
    Add(QStringList());
}

void RequestDesk::Add(const QStringList& lstTexts)
{
    m_lstTexts += lstTexts.mid(0, qMax(0, WAITING_LIMIT - int(m_lstTexts.size())));
    // Not at once: the caller may stand in an event of a window that is to go.
    if (!m_lstTexts.isEmpty()) {
        m_look.start();
    }
}

// The first text is the token by which the desktop lets the window come to the front, or empty.
void RequestDesk::OnReceived()
{
    if (!m_bStarted) {
        return;
    }
    foreach (const QStringList& lstTexts, m_instance.Take()) {
        bringUp(lstTexts.value(0));
        Add(lstTexts.mid(1));
    }
}

void RequestDesk::OnDropped(const QStringList& lstUrls)
{
    Add(lstUrls);
}

void RequestDesk::OnLink(const QUrl& url)
{
    Add(QStringList(QString::fromLatin1(url.toEncoded())));
}

void RequestDesk::OnLook()
{
    if (!m_bStarted || m_bBusy || m_lstTexts.isEmpty()) {
        return;
    }
    if (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr) {
        if (!m_bSaid) {
            m_bSaid = true;
            m_window.Status().ShowNotice(HostText::Get("IDS_HOST_OPEN_WAITS"));
        }
        return;
    }
    m_bSaid = false;
    m_bBusy = true;
    carryOut(m_lstTexts.takeFirst());
    m_bBusy = false;
    if (m_lstTexts.isEmpty()) {
        m_look.stop();
    }
}

void RequestDesk::bringUp(const QString& strToken)
{
    QWidget* const pModal = QApplication::activeModalWidget();
    QWidget* const pWindow = pModal != nullptr ? pModal : &m_window;
    m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    m_window.show();
    // Where a compositor asks for it, Qt takes it from here.
    const bool bToken = isToken(strToken);
    if (bToken) {
        qputenv("XDG_ACTIVATION_TOKEN", strToken.toLatin1());
    }
    pWindow->raise();
    pWindow->activateWindow();
    if (bToken) {
        unsetenv("XDG_ACTIVATION_TOKEN");
    }
    QApplication::alert(&m_window);
    // There the compositor alone decides. Qt 4 has neither the property nor Wayland.
    if (qApp->property("platformName").toString().startsWith(QLatin1String("wayland"))) {
        m_window.Status().ShowNotice(HostText::Get("IDS_HOST_OPEN_ALREADY"));
    }
}

void RequestDesk::carryOut(const QString& strText)
{
    const Request request = Request::Of(strText);
    switch (request.enKind) {
    case Request::CALL:
        call(request);
        break;
    case Request::MESSAGE:
        write(request);
        break;
    case Request::CODE:
        tell(HostText::Get("IDS_HOST_OPEN_CODE").arg(request.lstNumbers.join(QLatin1String("; "))));
        break;
    case Request::CARDS:
        showCards(request.strFile);
        break;
    case Request::NONE:
        m_window.Status().ShowNotice(HostText::Get("IDS_HOST_OPEN_REFUSED"));
    }
}

void RequestDesk::call(const Request& request)
{
    QObject* const pCalls = m_container.GetPlugin(QLatin1String(LINKHAND_VOICECALL_ID), 0);
    if (pCalls != nullptr) {
        m_window.ShowPage(QLatin1String(LINKHAND_VOICECALL_NAME));
    }
    if (pCalls == nullptr ||
        !QMetaObject::invokeMethod(pCalls, "FillNumber", Q_ARG(QString, request.lstNumbers.value(0)))) {
        m_window.Status().ShowNotice(HostText::Get("IDS_HOST_OPEN_NO_PLUGIN"));
    } else if (!request.strExtension.isEmpty()) {
        m_window.Status().ShowNotice(HostText::Get("IDS_HOST_OPEN_EXTENSION").arg(request.strExtension));
    }
}

void RequestDesk::write(const Request& request)
{
    ISMSUIService* const pMessages =
        qobject_cast<ISMSUIService*>(m_container.GetPlugin(QLatin1String(LINKHAND_SMS_ID), LINKHAND_SMS_KIND));
    if (pMessages == nullptr) {
        m_window.Status().ShowNotice(HostText::Get("IDS_HOST_OPEN_NO_PLUGIN"));
        return;
    }
    pMessages->SendMessage(request.lstNumbers.join(QLatin1String(";")), request.strText, &m_window);
}

void RequestDesk::showCards(const QString& strFile)
{
    if (!CardImport::IsPossible()) {
        tell(HostText::Get("IDS_HOST_CARDS_NOT_POSSIBLE"));
        return;
    }
    CardPreview preview(strFile, &m_window);
    preview.exec();
    if (preview.HasStored()) {
        emit contactsChanged();
    }
    if (!preview.Outcome().isEmpty()) {
        m_window.Status().ShowNotice(preview.Outcome());
    }
}

void RequestDesk::tell(const QString& strText)
{
    CommonUtils::ShowMessage(QMessageBox::Information, &m_window, HostText::Get("IDS_HOST_TITLE"), strText,
                             QLatin1String("IDS_OK"), QString(), QString(), true, Qt::WindowCloseButtonHint, nullptr,
                             QString(), true);
}
