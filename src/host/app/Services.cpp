#include "app/Services.h"

#include <QCoreApplication>
#include <QFile>
#include <QVariant>

#include "device/Modem.h"
#include "linkhand/core/Startup.h"
#include "linkhand/plugin/Codes.h"

namespace
{

// The plug-in's name to an identifier, which is the identifier itself for one that is known by its name. A plug-in
// that is installed but not loaded has no other way to tell its identifier.
QString pluginNameOf(const QString& strId)
{
    static const struct {
        const char* pszId;
        const char* pszName;
    } known[] = {
        {LINKHAND_SMS_ID, LINKHAND_SMS_NAME},
        {LINKHAND_MMS_ID, LINKHAND_MMS_NAME},
        {LINKHAND_VOICECALL_ID, LINKHAND_VOICECALL_NAME},
        {LINKHAND_VIDEOCALL_ID, LINKHAND_VIDEOCALL_NAME},
        {LINKHAND_NOTIFY_ID, LINKHAND_NOTIFY_NAME},
        {LINKHAND_DEVICEMGR_ID, LINKHAND_DEVICEMGR_NAME},
    };
    for (const auto& entry : known) {
        if (strId == QLatin1String(entry.pszId)) {
            return QLatin1String(entry.pszName);
        }
    }
    return strId;
}

void publish(HostServices* pServices)
{
    QVariant address;
    if (pServices != nullptr) {
        address = QVariant(static_cast<qlonglong>(reinterpret_cast<quintptr>(pServices)));
    }
    QCoreApplication::instance()->setProperty(LINKHAND_HOST_SERVICES, address);
    // The library hands on to other threads what it last found on this one.
    Startup::GetPluginContainer();
}

} // namespace

Services::Services(const QString& strRoot, const QString& strSettingsFile)
    : m_strRoot(strRoot), m_strSettingsFile(strSettingsFile), m_strLanguage(QLatin1String("en")), m_pContainer(nullptr)
{
}

void Services::Publish()
{
    publish(this);
}

void Services::Withdraw()
{
    publish(nullptr);
}

QString Services::PluginsPath() const
{
    return m_strRoot + QLatin1String("/plugins");
}

IPluginContainer* Services::PluginContainer()
{
    return m_pContainer;
}

bool Services::IsPluginAvailable(const QString& strId)
{
    if (strId.isEmpty() || strId.contains(QLatin1Char('/'))) {
        return false;
    }
    if (m_pContainer != nullptr && m_pContainer->GetPlugin(strId, 0) != nullptr) {
        return true;
    }
    return QFile::exists(PluginsPath() + QLatin1String("/lib") + pluginNameOf(strId) + QLatin1String(".so"));
}

bool Services::MakeCall(const QString& strNumber, int iType)
{
    return m_pModem && m_pModem->Dial(strNumber, iType);
}

QString Services::LanguagesPath()
{
    return m_strRoot + QLatin1String("/languages");
}

int Services::MessageAnswer(QMessageBox::Icon, const QString&, const QString&)
{
    if (m_state.IsClosing()) {
        return QMessageBox::NoButton;
    }
    return m_listAnswers.isEmpty() ? -1 : m_listAnswers.takeFirst();
}

void Services::ThreadCountInc(const QString& strFile, const QString& strFunction)
{
    m_state.Workers().Increment(strFile, strFunction);
}

void Services::ThreadCountDec(const QString& strFile, const QString& strFunction)
{
    m_state.Workers().Decrement(strFile, strFunction);
}
