#include "settings/SdkFolders.h"

#include "orva/orva_sdk.h"

QString SdkFolders::LogFolder()
{
    unsigned short* pusPath = nullptr;
    if (ORVA_GetLogDirectory(&pusPath) != ORVA_OK || pusPath == nullptr) {
        return QString();
    }
    QString strPath = QString::fromUtf16(pusPath);
    delete[] pusPath;
    return strPath;
}
