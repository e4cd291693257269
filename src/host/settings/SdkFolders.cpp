#include "settings/SdkFolders.h"

#include "linkhand/QtCompat.h"
#include "orva/orva_sdk.h"

QString SdkFolders::LogFolder()
{
    unsigned short* pusPath = nullptr;
    if (ORVA_GetLogDirectory(&pusPath) != ORVA_OK || pusPath == nullptr) {
        return QString();
    }
    QString strPath = QtCompat::fromUtf16(pusPath);
    delete[] pusPath;
    return strPath;
}
