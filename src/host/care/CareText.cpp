#include "care/CareText.h"

#include <QApplication>
#include <QDateTime>
#include <QLocale>

#include "care/CareSdk.h"
#include "linkhand/SdkText.h"
#include "text/HostText.h"

namespace
{

const struct {
    const char* pszKey;
    const char* pszTitleId;
} FIELDS[] = {
    {"Name", "IDS_HOST_FIELD_NAME"},      {"Mobile", "IDS_HOST_FIELD_MOBILE"}, {"officePhone", "IDS_HOST_FIELD_OFFICE"},
    {"homePhone", "IDS_HOST_FIELD_HOME"}, {"email", "IDS_HOST_FIELD_EMAIL"},   {"remark", "IDS_HOST_FIELD_NOTES"},
};

} // namespace

QString CareText::Explain(long nCode)
{
    switch (nCode) {
    case ORVA_E_NOT_FOUND:
        return HostText::Get("IDS_HOST_CARE_ERROR_GONE");
    case ORVA_E_FULL:
        return HostText::Get("IDS_HOST_CARE_ERROR_FULL");
    case ORVA_E_BUSY:
        return HostText::Get("IDS_HOST_CARE_ERROR_BUSY");
    case ORVA_E_FORMAT:
        return HostText::Get("IDS_HOST_CARE_ERROR_FORMAT");
    case ORVA_E_VERSION:
        return HostText::Get("IDS_HOST_CARE_ERROR_VERSION");
    case ORVA_E_NUMBER:
        return HostText::Get("IDS_HOST_CARE_ERROR_NUMBER");
    case ORVA_E_TOO_LONG:
        return HostText::Get("IDS_HOST_CARE_ERROR_LONG");
    case ORVA_E_NO_SPACE:
        return HostText::Get("IDS_HOST_CARE_ERROR_SPACE");
    case ORVA_E_READ_ONLY:
        return HostText::Get("IDS_HOST_CARE_ERROR_READ_ONLY");
    default:
        return HostText::Get("IDS_HOST_CARE_ERROR_STORE").arg(nCode);
    }
}

QString CareText::Outcome(const QString& strDone, long nCode)
{
    return nCode == ORVA_OK ? strDone : strDone + QLatin1String(". ") + Explain(nCode);
}

QString CareText::Time(qint64 iSeconds)
{
    return QLocale().toString(QDateTime::fromMSecsSinceEpoch(iSeconds * 1000), QLocale::ShortFormat);
}

QStringList CareText::FieldKeys()
{
    QStringList lstKeys;
    for (const auto& field : FIELDS) {
        lstKeys.append(QLatin1String(field.pszKey));
    }
    return lstKeys;
}

QString CareText::FieldTitle(const QString& strKey)
{
    for (const auto& field : FIELDS) {
        if (strKey == QLatin1String(field.pszKey)) {
            return HostText::Get(field.pszTitleId);
        }
    }
    return strKey;
}

QStringList CareText::ValuesOf(void* pRecord)
{
    QStringList lstValues;
    for (const auto& field : FIELDS) {
        SdkText text;
        const bool bThere = ORVA_PBSrv_AddrRecord_GetValue(pRecord, field.pszKey, text.out()) == ORVA_OK;
        lstValues.append(bThere ? text.toString() : QString());
    }
    return lstValues;
}

QString CareText::Number(const QString& strNumber)
{
    const QChar cLeftToRight(0x200e);
    return QApplication::isRightToLeft() && !strNumber.isEmpty() && !strNumber.isRightToLeft()
               ? cLeftToRight + strNumber
               : strNumber;
}

bool CareText::IsNumber(const QString& strKey)
{
    return strKey.endsWith(QLatin1String("Phone")) || strKey == QLatin1String("Mobile");
}

QString CareText::NameOf(const QStringList& lstValues)
{
    foreach (const QString& strValue, lstValues) {
        if (!strValue.isEmpty()) {
            return strValue;
        }
    }
    return QString();
}
