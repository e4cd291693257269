#include <limits>
#include <utility>

#include "linkhand/SdkText.h"
#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/SdkCall.h"
#include "logic/TextCut.h"

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
        strSource = cutText(strSource, qBound(0, iLimit, iMaxCoded));

    // A text counts no less than its beginning, so that halves find the longest that fits: first the whole, which most
    // often does. A coding call that fails ends the search with what is not known to be too long.
    int iFits = 0;
    int iTooLong = strSource.size() + 1;
    int iLength = strSource.size();
    while (iTooLong - iFits > 1) {
        const QString strPart = strSource.left(iLength);
        short sLength = 0;
        SDK_CALL(lResult, ORVA_PBSrv_PBContentCodingJudge,
                 (sdkText(strPart), static_cast<short>(iLength), bNotUim, bCustomised, &sLength));
        if (lResult != 0)
            iFits = iTooLong - 1;
        else
            (sLength <= iLimit ? iFits : iTooLong) = iLength;
        iLength = (iFits + iTooLong) / 2;
    }
    strOut = cutText(strSource, iFits);
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
