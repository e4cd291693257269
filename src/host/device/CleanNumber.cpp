#include "device/CleanNumber.h"

#include "linkhand/QtCompat.h"
#include "orva/orva_care.h"

// Null where the SDK in use does not have it.
#pragma weak ORVA_Care_CleanNumber

QString CleanNumber::Of(const QString& strText)
{
    unsigned short* pNumber = nullptr;
    unsigned short* pExtension = nullptr;
    if (&ORVA_Care_CleanNumber == nullptr ||
        ORVA_Care_CleanNumber(ORVA_MEMORY_LOCAL, strText.utf16(), &pNumber, &pExtension) != ORVA_OK) {
        return strText;
    }
    QString strNumber = QtCompat::fromUtf16(pNumber);
    delete[] pNumber;
    delete[] pExtension;
    return strNumber;
}
