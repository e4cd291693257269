#include "settings/SdkFolders.h"

#include "linkhand/SdkText.h"
#include "orva/orva_sdk.h"

QString SdkFolders::LogFolder()
{
    SdkText path;
    return ORVA_GetLogDirectory(path.out()) == ORVA_OK ? path.toString() : QString();
}
