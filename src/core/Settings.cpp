#include "Settings.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStringList>
#include <QVariant>

#include "Host.h"
#include "linkhand/QtCompat.h"

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

// What stands behind the key in the file; null if the key is written in another way there.
QString writtenValue(const QString& strFile, const QString& strSection, const QString& strKey)
{
    QFile file(strFile);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    bool bInside = false;
    QString strValue;
    foreach (const QString& strLine, QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        const QString strText = strLine.trimmed();
        const int iEquals = strText.indexOf(QLatin1Char('='));
        if (strText.startsWith(QLatin1Char('[')))
            bInside = strText == QLatin1Char('[') + strSection + QLatin1Char(']');
        else if (bInside && iEquals > 0 && strText.left(iEquals).trimmed() == strKey)
            strValue = strText.mid(iEquals + 1).trimmed(); // the last one counts
    }
    return strValue;
}

// A value with commas comes back as a list without the blanks that stood between; the configuration knows texts alone.
QString toText(const QVariant& value, const QString& strWritten)
{
    if (value.userType() != QMetaType::QStringList)
        return value.toString();
    const bool bAsWritten = !strWritten.isEmpty() && !strWritten.contains(QLatin1Char('"')) &&
                            !strWritten.contains(QLatin1Char('\\')) && !strWritten.contains(QLatin1Char(';'));
    return bAsWritten ? strWritten : value.toStringList().join(QLatin1String(","));
}

} // namespace

QString Settings::value(const QString& strSection, const QString& strKey)
{
    const QString strPath = strSection + QLatin1Char('/') + strKey;
    QSettings settings(userFile(), QSettings::IniFormat);
    QtCompat::useUtf8(settings);
    if (settings.contains(strPath)) {
        const QVariant value = settings.value(strPath);
        const bool bList = value.userType() == QMetaType::QStringList;
        return toText(value, bList ? writtenValue(settings.fileName(), strSection, strKey) : QString());
    }
    for (const Default& entry : s_defaults) {
        if (strPath == QLatin1String(entry.szKey))
            return QLatin1String(entry.szValue);
    }
    return QString();
}
