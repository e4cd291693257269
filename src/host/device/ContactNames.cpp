#include "device/ContactNames.h"

#include "device/RecordText.h"
#include "linkhand/QtCompat.h"
#include "orva/orva_care.h"

// Null where the SDK in use does not have it.
#pragma weak ORVA_Care_NumberKey

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
const int END = 6;      // numbers of one telephone end alike
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

// What numbers of one telephone have in common; empty where the SDK does not know.
QString keyOf(const QString& strNumber)
{
    unsigned short* pKey = nullptr;
    if (&ORVA_Care_NumberKey == nullptr || ORVA_Care_NumberKey(strNumber.utf16(), &pKey) != ORVA_OK) {
        return QString();
    }
    QString strKey = QtCompat::fromUtf16(pKey);
    delete[] pKey;
    return strKey;
}

// A number with the forms in which it is compared.
struct Wanted {
    QString strDigits;
    QString strKey;

    bool IsSame(const QString& strNumber) const
    {
        const QString strOther = digitsOf(strNumber);
        if (strOther.right(END) != strDigits.right(END)) {
            return false;
        }
        const QString strOtherKey = keyOf(strNumber);
        const bool bBothKnown = strKey.startsWith(QLatin1Char('+')) && strOtherKey.startsWith(QLatin1Char('+'));
        return bBothKnown ? strKey == strOtherKey : isSame(strOther, strDigits);
    }
};

QString nameIn(int iMemory, const char* const* ppszKeys, const Wanted& wanted)
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
                if (strName.isEmpty() && wanted.IsSame(RecordText::Of(pSet, *ppszKey))) {
                    strName = RecordText::Of(pSet, "Name");
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
    const Wanted wanted = {digitsOf(strNumber), keyOf(strNumber)};
    QString strName;
    for (const auto& memory : MEMORIES) {
        if (strName.isEmpty() && !wanted.strDigits.isEmpty()) {
            strName = nameIn(memory.iMemory, memory.apszNumbers, wanted);
        }
    }
    return strName;
}

QString ContactNames::WithNumber(const QString& strNumber)
{
    const QString strName = Of(strNumber);
    return strName.isEmpty() ? strNumber : QString::fromLatin1("%1 (%2)").arg(strName, strNumber);
}
