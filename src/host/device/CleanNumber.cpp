#include "device/CleanNumber.h"

#include "linkhand/SdkText.h"
#include "orva/orva_care.h"

// Null where the SDK in use does not have it.
#pragma weak ORVA_Care_CleanNumber

QString CleanNumber::Of(const QString& strText)
{
    SdkText number;
    SdkText extension;
    if (&ORVA_Care_CleanNumber == nullptr ||
        ORVA_Care_CleanNumber(ORVA_MEMORY_LOCAL, strText.utf16(), number.out(), extension.out()) != ORVA_OK) {
        return strText;
    }
    return number.toString();
}
