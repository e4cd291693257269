#include "common/Recipients.h"

#include <QRegExp>

QStringList Recipients::Split(const QString& strLine)
{
    QStringList lstNumbers;
    foreach (const QString& strPart,
             QString(strLine).replace(QLatin1Char(','), QLatin1Char(';')).split(QLatin1Char(';'))) {
        const QString strNumber = strPart.trimmed();
        if (!strNumber.isEmpty()) {
            lstNumbers.append(strNumber);
        }
    }
    return lstNumbers;
}

QString Recipients::Join(const QStringList& lstNumbers)
{
    return lstNumbers.join(QLatin1String("; "));
}

QString Recipients::WithName(const QString& strNumber, const QString& strName)
{
    // A first strong isolate, and one from left to right.
    const QString strShown = QChar(0x2066) + strNumber + QChar(0x2069);
    return strName.isEmpty() ? strShown : QChar(0x2068) + strName + QChar(0x2069) + QLatin1String("  ") + strShown;
}

bool Recipients::IsNumber(const QString& strNumber)
{
    return QRegExp(QLatin1String("\\+?[0-9*#()./ -]*[0-9*#][0-9*#()./ -]*")).exactMatch(strNumber);
}
