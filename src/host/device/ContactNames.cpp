#include "device/ContactNames.h"

#include <QMultiHash>

#include "device/NumberMatch.h"
#include "sdk/OwnedHandle.h"
#include "sdk/RecordText.h"

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
// A number with the forms in which it is compared.
struct Wanted {
    QString strNumber; // as it was given
    QString strDigits;
    QString strKey;

    bool IsSame(const QString& strOtherNumber) const
    {
        return NumberMatch::IsSame(strDigits, strKey, NumberMatch::Digits(strOtherNumber),
                                   NumberMatch::Key(strOtherNumber));
    }
};

// By the end of its digits, which tells most numbers apart at once.
typedef QMultiHash<QString, Wanted> WantedNumbers;

// Takes a contact's name for those of the numbers that are its own.
void takeName(void* pSet, const char* const* ppszKeys, WantedNumbers& wanted, QHash<QString, QString>& names)
{
    for (const char* const* ppszKey = ppszKeys; *ppszKey != nullptr; ++ppszKey) {
        const QString strNumber = RecordText::Of(pSet, *ppszKey);
        WantedNumbers::iterator it = wanted.find(NumberMatch::End(NumberMatch::Digits(strNumber)));
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
        const QString strDigits = NumberMatch::Digits(strNumber);
        if (!strDigits.isEmpty()) {
            const Wanted one = {strNumber, strDigits, NumberMatch::Key(strNumber)};
            wanted.insert(NumberMatch::End(strDigits), one);
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
