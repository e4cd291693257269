#include "devicemgr/DeviceMgrPlugin.h"

#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/PluginVerification.h"

LINKHAND_EXPORT_VERIFICATION()
LINKHAND_EXPORT_PLUGIN(DeviceMgrPlugin, DeviceMgrPlugin)

DeviceMgrPlugin::DeviceMgrPlugin()
    : Sibling<IBasePlugin>(LINKHAND_DEVICEMGR_NAME, LINKHAND_DEVICEMGR_ID, LINKHAND_DEVICEMGR_KIND)
{
}
