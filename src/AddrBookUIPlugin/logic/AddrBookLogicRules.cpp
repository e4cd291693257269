#include <limits>
#include <utility>

#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/SdkText.h"

// What a field may hold, and the settings that bend it.

bool AddrBookLogic::isValidPhoneNum(QString strValue)
{
    for (const QChar& ch : std::as_const(strValue))
        if (!ch.isDigit() && ch != QLatin1Char('+') && ch != QLatin1Char('*') && ch != QLatin1Char('#'))
            return false;
    return true;
}

int AddrBookLogic::IsValidEmail(QString strValue)
{
    if (strValue.isEmpty())
        return 0;
    for (const QChar& ch : std::as_const(strValue))
        if (ch.unicode() > 127)
            return -2;
    return strValue.contains(QLatin1Char('@')) ? 0 : -1;
}

void AddrBookLogic::GetFieldString(QString& strOut, QString strSource, int iLimit, _ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    if (strSource.isEmpty()) {
        strOut = QString();
        return;
    }
    if (!isDeviceMemory(enMemory))
        return;

    int iProduct = 0;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_DevSrv_GetProductType, (&iProduct));
    const bool bNotUim = iProduct != 1;
    const bool bCustomised =
        CommonUtils::GetSettings(QLatin1String("customize"), QLatin1String("pbnamecode")).trimmed() ==
        QLatin1String("all");

    // The coding call takes the length as a short. Each UTF-16 unit counts at least one, so that nothing is lost by
    // cutting a text beyond that to the limit at once.
    const int iMaxCoded = std::numeric_limits<short>::max();
    if (strSource.size() > iMaxCoded)
        strSource.truncate(qBound(0, iLimit, iMaxCoded));

    strOut = strSource;
    for (int n = 1;; ++n) {
        short sLength = 0;
        SDK_CALL(lResult, ORVA_PBSrv_PBContentCodingJudge,
                 (sdkText(strOut), static_cast<short>(strOut.size()), bNotUim, bCustomised, &sLength));
        // A coding call that fails, or a limit that not even the empty text meets, ends it too.
        if (lResult != 0 || sLength <= iLimit || strOut.isEmpty())
            return;
        strOut = strSource.left(strSource.size() - n);
    }
}

void AddrBookLogic::GetRegExpForNewContactDlg(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QString& strOut, QString strFieldKey)
{
    const std::lock_guard<std::mutex> locker(m_mutexCaches);
    const QList<AddrBookField> lstFields = m_hashFields.value(enMemory).lstFields;
    for (const AddrBookField& field : lstFields) {
        if (field.strName.compare(strFieldKey, Qt::CaseInsensitive) == 0) {
            strOut = field.strIncludeChars;
            return;
        }
    }
}

bool AddrBookLogic::GetSortPreserve()
{
    return !CommonUtils::GetSettings(QLatin1String("addrbook"), QLatin1String("sortpreserve"))
                .startsWith(QLatin1Char('0'));
}
