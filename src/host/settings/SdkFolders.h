#ifndef LINKHAND_HOST_SDKFOLDERS_H
#define LINKHAND_HOST_SDKFOLDERS_H

#include <QString>

namespace SdkFolders
{

// The SDK's folder for log files, ending in "/"; empty if it tells none.
QString LogFolder();

} // namespace SdkFolders

#endif // LINKHAND_HOST_SDKFOLDERS_H
