#include "Settings.h"

#include <QDir>
#include <QSettings>
#include <QStringList>
#include <QVariant>

#include "Host.h"

namespace
{

struct Default {
    const char* szKey;
    const char* szValue;
};

// What the program ships with; the user's file overrides it key by key.
const Default s_defaults[] = {
    {"callui/callvoice", "1"},
    {"customize/simtype", "SIM"},
    {"customize/uimtype", "UIM"},
    {"addrbook/sortpreserve", "1"},
};

QString userFile()
{
    HostServices* pServices = Host::services();
    QString strFile = pServices != nullptr ? pServices->SettingsFile() : QString();
    if (!strFile.isEmpty())
        return strFile;
    // The XDG base directory specification has relative paths ignored.
    QString strConfig = QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME"));
    if (!QDir::isAbsolutePath(strConfig))
        strConfig = QDir::homePath() + QLatin1String("/.config");
    return strConfig + QLatin1String("/linkhand/linkhand.ini");
}

// A value with commas comes back as a list; the configuration knows texts alone.
QString toText(const QVariant& value)
{
    if (value.type() == QVariant::StringList)
        return value.toStringList().join(QLatin1String(", "));
    return value.toString();
}

} // namespace

QString Settings::value(const QString& strSection, const QString& strKey)
{
    const QString strPath = strSection + QLatin1Char('/') + strKey;
    QSettings settings(userFile(), QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    if (settings.contains(strPath))
        return toText(settings.value(strPath));
    for (const Default& entry : s_defaults) {
        if (strPath == QLatin1String(entry.szKey))
            return QLatin1String(entry.szValue);
    }
    return QString();
}
