#include "settings/HostSettings.h"

#include <QSettings>
#include <QVariant>

namespace
{

const char* const LANGUAGE_KEY = "host/language";
const char* const GEOMETRY_KEY = "host/geometry";
const char* const DEVICE_PANEL_KEY = "host/devicepanel";
const char* const WELCOME_KEY = "host/welcomedismissed";

QVariant read(const QString& strFile, const char* pszKey)
{
    return QSettings(strFile, QSettings::IniFormat).value(QLatin1String(pszKey));
}

void write(const QString& strFile, const char* pszKey, const QVariant& value)
{
    QSettings settings(strFile, QSettings::IniFormat);
    settings.setValue(QLatin1String(pszKey), value);
}

} // namespace

QString HostSettings::Language() const
{
    return read(m_strFile, LANGUAGE_KEY).toString();
}

void HostSettings::SetLanguage(const QString& strLanguage)
{
    write(m_strFile, LANGUAGE_KEY, strLanguage);
}

QByteArray HostSettings::Geometry() const
{
    return read(m_strFile, GEOMETRY_KEY).toByteArray();
}

void HostSettings::SetGeometry(const QByteArray& geometry)
{
    write(m_strFile, GEOMETRY_KEY, geometry);
}

bool HostSettings::WelcomeDismissed() const
{
    return read(m_strFile, WELCOME_KEY).toBool();
}

void HostSettings::SetWelcomeDismissed(bool bDismissed)
{
    write(m_strFile, WELCOME_KEY, bDismissed);
}

bool HostSettings::DevicePanelShown() const
{
    return read(m_strFile, DEVICE_PANEL_KEY).toBool();
}

void HostSettings::SetDevicePanelShown(bool bShown)
{
    write(m_strFile, DEVICE_PANEL_KEY, bShown);
}
