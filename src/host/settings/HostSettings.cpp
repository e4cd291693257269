#include "settings/HostSettings.h"

#include <QSettings>
#include <QStringList>
#include <QVariant>

#include "linkhand/QtCompat.h"
#include "linkhand/core/CommonUtils.h"

namespace
{

const char* const LANGUAGE_KEY = "host/language";
const char* const GEOMETRY_KEY = "host/geometry";
const char* const DEVICE_PANEL_KEY = "host/devicepanel";
const char* const WELCOME_KEY = "host/welcomedismissed";
const char* const START_PAGE_KEY = "host/startpage";
const char* const LAST_PAGE_KEY = "host/lastpage";
const char* const DAILY_BACKUP_KEY = "host/dailybackup";
const char* const SIZES_GROUP = "layout/";

} // namespace

HostSettings::Together::~Together()
{
    if (--m_settings.m_iTogether > 0 || m_settings.m_held.isEmpty()) {
        return;
    }
    // Written as the object goes, and whole: by another name and a rename.
    QSettings settings(m_settings.m_strFile, QSettings::IniFormat);
    QtCompat::useUtf8(settings);
    for (QMap<QString, QVariant>::const_iterator it = m_settings.m_held.constBegin();
         it != m_settings.m_held.constEnd(); ++it) {
        settings.setValue(it.key(), it.value());
    }
    m_settings.m_held.clear();
}

QVariant HostSettings::read(const QString& strKey) const
{
    if (m_held.contains(strKey)) {
        return m_held.value(strKey);
    }
    QSettings settings(m_strFile, QSettings::IniFormat);
    QtCompat::useUtf8(settings); // as the library reads it
    return settings.value(strKey);
}

void HostSettings::write(const QString& strKey, const QVariant& value)
{
    const Together together(*this);
    m_held.insert(strKey, value);
}

QString HostSettings::Language() const
{
    return read(QLatin1String(LANGUAGE_KEY)).toString();
}

void HostSettings::SetLanguage(const QString& strLanguage)
{
    write(QLatin1String(LANGUAGE_KEY), strLanguage);
}

QByteArray HostSettings::Geometry() const
{
    return read(QLatin1String(GEOMETRY_KEY)).toByteArray();
}

void HostSettings::SetGeometry(const QByteArray& geometry)
{
    write(QLatin1String(GEOMETRY_KEY), geometry);
}

bool HostSettings::WelcomeDismissed() const
{
    return read(QLatin1String(WELCOME_KEY)).toBool();
}

void HostSettings::SetWelcomeDismissed(bool bDismissed)
{
    write(QLatin1String(WELCOME_KEY), bDismissed);
}

QString HostSettings::StartPage() const
{
    return read(QLatin1String(START_PAGE_KEY)).toString();
}

void HostSettings::SetStartPage(const QString& strPage)
{
    write(QLatin1String(START_PAGE_KEY), strPage);
}

QString HostSettings::LastPage() const
{
    return read(QLatin1String(LAST_PAGE_KEY)).toString();
}

void HostSettings::SetLastPage(const QString& strPage)
{
    write(QLatin1String(LAST_PAGE_KEY), strPage);
}

QList<int> HostSettings::Sizes(const QString& strName) const
{
    QList<int> listSizes;
    foreach (const QString& strSize, read(QLatin1String(SIZES_GROUP) + strName).toStringList()) {
        bool bNumber = false;
        listSizes.append(strSize.toInt(&bNumber));
        if (!bNumber) {
            return QList<int>(); // somebody has been at the file
        }
    }
    return listSizes;
}

void HostSettings::SetSizes(const QString& strName, const QList<int>& listSizes)
{
    QStringList lstSizes;
    foreach (int iSize, listSizes) {
        lstSizes.append(QString::number(iSize));
    }
    write(QLatin1String(SIZES_GROUP) + strName, lstSizes);
}

bool HostSettings::DailyBackup() const
{
    return Value(QLatin1String(DAILY_BACKUP_KEY)) == QLatin1String("true");
}

QString HostSettings::Value(const QString& strKey) const
{
    static const struct {
        const char* pszKey;
        const char* pszValue;
    } defaults[] = {
        {DAILY_BACKUP_KEY, "true"}, {WELCOME_KEY, "false"}, {"DualModeCard/HideDoubleModeCardNode", "false"}};
    // By way of the library, as those read it whose values they are.
    QString strValue =
        CommonUtils::GetSettings(strKey.section(QLatin1Char('/'), 0, 0), strKey.section(QLatin1Char('/'), 1));
    for (const auto& entry : defaults) {
        if (strValue.isEmpty() && strKey == QLatin1String(entry.pszKey)) {
            return QLatin1String(entry.pszValue);
        }
    }
    return strValue;
}

void HostSettings::SetValue(const QString& strKey, const QString& strValue)
{
    write(strKey, strValue);
}

bool HostSettings::DevicePanelShown() const
{
    return read(QLatin1String(DEVICE_PANEL_KEY)).toBool();
}

void HostSettings::SetDevicePanelShown(bool bShown)
{
    write(QLatin1String(DEVICE_PANEL_KEY), bShown);
}
