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

bool Recipients::IsNumber(const QString& strNumber)
{
    return QRegExp(QLatin1String("\\+?[0-9*#()./ -]*[0-9*#][0-9*#()./ -]*")).exactMatch(strNumber);
}
