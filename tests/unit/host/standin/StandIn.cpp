#include "StandIn.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QVariant>

#include "linkhand/core/CommonUtils.h"
#include "linkhand/plugin/PluginVerification.h"

#if defined(STANDIN_OTHER_TEXT)
// The file holds a text that fits; the code tells another.
extern "C" Q_DECL_EXPORT const char* qt_plugin_query_verification_data();
extern "C" Q_DECL_EXPORT const char* g_pszFittingText;
const char* g_pszFittingText = LINKHAND_VERIFICATION_TEXT;
extern "C" Q_DECL_EXPORT const char* qt_plugin_query_verification_data()
{
    return g_pszFittingText + 1;
}
#elif defined(STANDIN_TEXT)
extern "C" Q_DECL_EXPORT const char* qt_plugin_query_verification_data();
extern "C" Q_DECL_EXPORT const char* qt_plugin_query_verification_data()
{
    return STANDIN_TEXT;
}
#elif defined(STANDIN_TEXT_AT_RUN_TIME)
// The file itself holds no whole text.
extern "C" Q_DECL_EXPORT const char* qt_plugin_query_verification_data();
extern "C" Q_DECL_EXPORT const char* qt_plugin_query_verification_data()
{
    static const QByteArray text = QByteArray("pattern=QT_PLUGIN_VERIFICATION") + "_DATA\nversion=" + qVersion() +
                                   "\ndebug=false\nbuildkey=" + LINKHAND_BUILD_KEY;
    return text.constData();
}
#elif !defined(STANDIN_NO_TEXT)
LINKHAND_EXPORT_VERIFICATION()
#endif

#if defined(STANDIN_MISSING_SYMBOL)
extern int aFunctionThatNoLibraryHas();
int (*const g_pMissing)() = &aFunctionThatNoLibraryHas;
Q_DECL_EXPORT int callMissing();
Q_DECL_EXPORT int callMissing()
{
    return g_pMissing();
}
#endif

namespace
{

// Runs as the library is mapped.
struct Constructor {
    Constructor()
    {
        if (qApp != nullptr) {
            qApp->setProperty("standin.loaded", true);
        }
    }
} s_constructor;

QSemaphore s_slotDone;

} // namespace

int StandInService::SaveNumberToAddrBook(QString strNumber, QWidget*)
{
    setProperty("saved", property("saved").toStringList() << strNumber);
    return 1;
}

void StandInService::SearchMobile(QString, QString, int&, bool) {}

int StandInService::OpenNumSelectDlg(bool bFlag, FIELD_TYPE, QList<QString>& lstNumbers)
{
    setProperty("asked", QStringList(lstNumbers) << QLatin1String(bFlag ? "many" : "one"));
    if (!property("choice").isValid()) {
        return 0;
    }
    lstNumbers = property("choice").toStringList();
    return 1;
}

void StandInWorker::run()
{
    const QString strFile = QLatin1String("StandIn.cpp");
    const QString strFunction = QLatin1String("run");
    CommonUtils::ThreadCountInc(strFile, strFunction);
    while (!CommonUtils::IsShuttingDown()) {
        emit record();
        s_slotDone.acquire();
    }
    CommonUtils::ThreadCountDec(strFile, strFunction);
}

StandIn::StandIn()
{
    connect(&m_worker, SIGNAL(record()), this, SLOT(OnRecord()));
}

StandIn::~StandIn()
{
    note(QLatin1String("~"));
    delete m_pWindow.data();
    m_worker.wait();
}

void StandIn::OnDestroy()
{
    note(QLatin1String(m_worker.isRunning() ? "OnDestroy while working" : "OnDestroy"));
    delete m_pWindow.data();
}

void StandIn::UnSDKRegisterEvent()
{
    note(QLatin1String(CommonUtils::IsShuttingDown() ? "UnSDKRegisterEvent" : "UnSDKRegisterEvent too early"));
}

bool StandIn::Init()
{
    note(QLatin1String("Init"));
    return !QCoreApplication::instance()->property("standin.initFails").toBool();
}

int StandIn::QueryInterface(int iId, QObject** ppObject)
{
    if (iId != 4097) {
        return 0;
    }
    *ppObject = &m_service;
    return 1;
}

bool StandIn::ShowWindow(QWidget* pParent, QRect& rect)
{
    note(QString::fromLatin1("ShowWindow %1x%2").arg(rect.width()).arg(rect.height()));
    if (QCoreApplication::instance()->property("standin.showFails").toBool()) {
        return false;
    }
    if (!m_pWindow) {
        m_pWindow = new QWidget;
        m_pWindow->setObjectName(QLatin1String(STANDIN_NAME "_MainWidget"));
    }
    m_pWindow->setParent(pParent);
    m_pWindow->setGeometry(rect);
    m_pWindow->show();
    return true;
}

void StandIn::Hide()
{
    note(QLatin1String("Hide"));
    if (m_pWindow) {
        m_pWindow->hide();
    }
}

void StandIn::FitSize(QRect& rect)
{
    note(QString::fromLatin1("FitSize %1x%2").arg(rect.width()).arg(rect.height()));
    if (m_pWindow) {
        m_pWindow->setGeometry(rect);
    }
}

int StandIn::Notify(unsigned int uiCode, unsigned int uiParam1, unsigned int)
{
    note(QString::fromLatin1("Notify %1 %2").arg(uiCode).arg(uiParam1));
    return 0;
}

void StandIn::StartWorker()
{
    m_worker.start();
}

void StandIn::OnRecord()
{
    s_slotDone.release();
}

void StandIn::note(const QString& strCall)
{
    // Noted with the application too, where it outlives this object.
    QObject* pApplication = QCoreApplication::instance();
    pApplication->setProperty("standin.calls", pApplication->property("standin.calls").toStringList()
                                                   << QLatin1String(STANDIN_NAME ": ") + strCall);
}
