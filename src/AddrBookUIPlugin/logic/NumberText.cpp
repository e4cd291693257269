#include "logic/NumberText.h"

#include <dlfcn.h>

#include "linkhand/SdkText.h"
#include "logic/AddrBookTypes.h"

bool cleanNumberText(const QString& strText, bool bPauses, bool bNote, NumberText& cleaned)
{
    // Looked for by its name: an SDK need not have it.
    typedef long (*CleanNumber)(int memory, const unsigned short* text, unsigned short** number,
                                unsigned short** extension);
    const CleanNumber cleanNumber = reinterpret_cast<CleanNumber>(dlsym(RTLD_DEFAULT, "ORVA_Care_CleanNumber"));
    if (cleanNumber == nullptr)
        return false;

    SdkText number;
    SdkText extension;
    const int iMemory = bPauses ? PB_MEM_SIM : PB_MEM_LOCAL;
    if (cleanNumber(iMemory, sdkText(strText), number.out(), bNote ? extension.out() : nullptr) != 0)
        return false;
    cleaned.strNumber = number.toString();
    const QString strExtension = extension.toString();
    cleaned.strNote = strExtension.isEmpty() ? QString() : cleaned.strNumber + QLatin1String(" ext. ") + strExtension;
    return true;
}
