#include "device/ContactNames.h"

#include <QMultiHash>

#include "linkhand/SdkText.h"
#include "orva/orva_care.h"
#include "sdk/OwnedHandle.h"
#include "sdk/RecordText.h"

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
    SdkText key;
    const bool bKnown =
        &ORVA_Care_NumberKey != nullptr && ORVA_Care_NumberKey(sdkText(strNumber), key.out()) == ORVA_OK;
    return bKnown ? key.toString() : QString();
}

// A number with the forms in which it is compared.
struct Wanted {
    QString strNumber; // as it was given
    QString strDigits;
    QString strKey;

    bool IsSame(const QString& strOtherNumber) const
    {
        const QString strOther = digitsOf(strOtherNumber);
        if (strOther.right(END) != strDigits.right(END)) {
            return false;
        }
        const QString strOtherKey = keyOf(strOtherNumber);
        const bool bBothKnown = strKey.startsWith(QLatin1Char('+')) && strOtherKey.startsWith(QLatin1Char('+'));
        return bBothKnown ? strKey == strOtherKey : isSame(strOther, strDigits);
    }
};

// By the end of its digits, which tells most numbers apart at once.
typedef QMultiHash<QString, Wanted> WantedNumbers;

// Takes a contact's name for those of the numbers that are its own.
void takeName(void* pSet, const char* const* ppszKeys, WantedNumbers& wanted, QHash<QString, QString>& names)
{
    for (const char* const* ppszKey = ppszKeys; *ppszKey != nullptr; ++ppszKey) {
        const QString strNumber = RecordText::Of(pSet, *ppszKey);
        WantedNumbers::iterator it = wanted.find(digitsOf(strNumber).right(END));
        const QString strEnd = it == wanted.end() ? QString() : it.key();
        while (it != wanted.end() && it.key() == strEnd) {
            if (!it->IsSame(strNumber)) {
                ++it;
                continue;
            }
            const QString strName = RecordText::Of(pSet, "Name");
            if (strName.isEmpty()) {
                ++it; // another contact may have one
                continue;
            }
            names.insert(it->strNumber, strName);
            it = wanted.erase(it);
        }
    }
}

void namesIn(int iMemory, const char* const* ppszKeys, WantedNumbers& wanted, QHash<QString, QString>& names)
{
    OwnedRecordSet set;
    int iCount = 0;
    if (ORVA_PBSrv_GetAddrRecList(iMemory, set.Out()) != ORVA_OK || set.IsNull()) {
        return;
    }
    if (ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(set.Get(), &iCount) == ORVA_OK && iCount > 0 &&
        ORVA_PBSrv_AddrRecordSet_MoveFirst(set.Get()) == ORVA_OK) {
        do {
            takeName(set.Get(), ppszKeys, wanted, names);
        } while (!wanted.isEmpty() && ORVA_PBSrv_AddrRecordSet_MoveNext(set.Get()) == ORVA_OK);
    }
}

} // namespace

QHash<QString, QString> ContactNames::Of(const QStringList& lstNumbers)
{
    WantedNumbers wanted;
    QStringList lstDistinct(lstNumbers);
    lstDistinct.removeDuplicates();
    foreach (const QString& strNumber, lstDistinct) {
        const QString strDigits = digitsOf(strNumber);
        if (!strDigits.isEmpty()) {
            const Wanted one = {strNumber, strDigits, keyOf(strNumber)};
            wanted.insert(strDigits.right(END), one);
        }
    }
    QHash<QString, QString> names;
    for (const auto& memory : MEMORIES) {
        if (!wanted.isEmpty()) {
            namesIn(memory.iMemory, memory.apszNumbers, wanted, names);
        }
    }
    return names;
}

QString ContactNames::Of(const QString& strNumber)
{
    return Of(QStringList(strNumber)).value(strNumber);
}

QString ContactNames::WithNumber(const QString& strNumber)
{
    const QString strName = Of(strNumber);
    return strName.isEmpty() ? strNumber : QString::fromLatin1("%1 (%2)").arg(strName, strNumber);
}
