#include "device/ContactNames.h"

#include "linkhand/QtCompat.h"
#include "orva/orva_sdk.h"

namespace
{

const struct {
    int iMemory;
    const char* apszNumbers[4]; // the keys of its numbers, to a null
} MEMORIES[] = {
    {4, {"Mobile", "officePhone", "homePhone", nullptr}}, // PC
    {0, {"Number", nullptr}},                             // card
    {1, {"Number", nullptr}},                             // device
};
const int SHORTEST = 7; // two numbers that share so many digits at their end may be one

QString digitsOf(const QString& strNumber)
{
    QString strDigits;
    foreach (const QChar c, strNumber) {
        if (c.isDigit()) {
            strDigits += QChar(QLatin1Char(char('0' + c.digitValue())));
        }
    }
    // A trunk's or an international prefix.
    while (strDigits.startsWith(QLatin1Char('0'))) {
        strDigits.remove(0, 1);
    }
    return strDigits;
}

bool isSame(const QString& strOne, const QString& strOther)
{
    const QString& strShorter = strOne.length() < strOther.length() ? strOne : strOther;
    const QString& strLonger = strOne.length() < strOther.length() ? strOther : strOne;
    return !strShorter.isEmpty() &&
           (strShorter == strLonger || (strShorter.length() >= SHORTEST && strLonger.endsWith(strShorter)));
}

QString valueOf(void* pSet, const char* pszKey)
{
    unsigned short* pText = nullptr;
    QString strText;
    if (ORVA_PBSrv_AddrRecordSet_GetValue(pSet, pszKey, &pText) == ORVA_OK && pText != nullptr) {
        strText = QtCompat::fromUtf16(pText);
    }
    delete[] pText;
    return strText;
}

QString nameIn(int iMemory, const char* const* ppszKeys, const QString& strDigits)
{
    void* pSet = nullptr;
    int iCount = 0;
    QString strName;
    if (ORVA_PBSrv_GetAddrRecList(iMemory, &pSet) != ORVA_OK || pSet == nullptr) {
        return strName;
    }
    if (ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(pSet, &iCount) == ORVA_OK && iCount > 0 &&
        ORVA_PBSrv_AddrRecordSet_MoveFirst(pSet) == ORVA_OK) {
        do {
            for (const char* const* ppszKey = ppszKeys; *ppszKey != nullptr; ++ppszKey) {
                if (strName.isEmpty() && isSame(digitsOf(valueOf(pSet, *ppszKey)), strDigits)) {
                    strName = valueOf(pSet, "Name");
                }
            }
        } while (strName.isEmpty() && ORVA_PBSrv_AddrRecordSet_MoveNext(pSet) == ORVA_OK);
    }
    ORVA_PBSrv_AddrRecordSet_Release(pSet);
    return strName;
}

} // namespace

QString ContactNames::Of(const QString& strNumber)
{
    const QString strDigits = digitsOf(strNumber);
    QString strName;
    for (const auto& memory : MEMORIES) {
        if (strName.isEmpty() && !strDigits.isEmpty()) {
            strName = nameIn(memory.iMemory, memory.apszNumbers, strDigits);
        }
    }
    return strName;
}

QString ContactNames::WithNumber(const QString& strNumber)
{
    const QString strName = Of(strNumber);
    return strName.isEmpty() ? strNumber : QString::fromLatin1("%1 (%2)").arg(strName, strNumber);
}
