#include "device/NumberMatch.h"

#include "linkhand/SdkText.h"
#include "orva/orva_care.h"

// Null where the SDK in use does not have it.
#pragma weak ORVA_Care_NumberKey

namespace
{

const int END = 6;      // numbers of one telephone end alike
const int SHORTEST = 7; // two numbers that share so many digits at their end may be one

bool endAlike(const QString& strOne, const QString& strOther)
{
    const QString& strShorter = strOne.length() < strOther.length() ? strOne : strOther;
    const QString& strLonger = strOne.length() < strOther.length() ? strOther : strOne;
    return !strShorter.isEmpty() &&
           (strShorter == strLonger || (strShorter.length() >= SHORTEST && strLonger.endsWith(strShorter)));
}

} // namespace

QString NumberMatch::Digits(const QString& strNumber)
{
    QString strDigits;
    foreach (const QChar c, strNumber) {
        if (c.isDigit()) {
            strDigits += QChar(QLatin1Char(char('0' + c.digitValue())));
        }
    }
    int iZeros = 0;
    while (iZeros < strDigits.length() && strDigits.at(iZeros) == QLatin1Char('0')) {
        ++iZeros;
    }
    return strDigits.mid(iZeros);
}

QString NumberMatch::Key(const QString& strNumber)
{
    SdkText key;
    const bool bKnown =
        &ORVA_Care_NumberKey != nullptr && ORVA_Care_NumberKey(sdkText(strNumber), key.out()) == ORVA_OK;
    return bKnown ? key.toString() : QString();
}

QString NumberMatch::End(const QString& strDigits)
{
    return strDigits.right(END);
}

bool NumberMatch::IsSame(const QString& strDigits, const QString& strKey, const QString& strOtherDigits,
                         const QString& strOtherKey)
{
    if (End(strDigits) != End(strOtherDigits)) {
        return false;
    }
    const bool bBothKnown = strKey.startsWith(QLatin1Char('+')) && strOtherKey.startsWith(QLatin1Char('+'));
    return bBothKnown ? strKey == strOtherKey : endAlike(strDigits, strOtherDigits);
}
