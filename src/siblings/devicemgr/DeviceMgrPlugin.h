#ifndef LINKHAND_SIBLINGS_DEVICEMGRPLUGIN_H
#define LINKHAND_SIBLINGS_DEVICEMGRPLUGIN_H

#include "common/Sibling.h"
#include "linkhand/QtCompat.h"
#include "linkhand/plugin/IDeviceMgr.h"

// The device manager, whose presence is all that its siblings ask for.
class DeviceMgrPlugin : public Sibling<IBasePlugin>, public IDeviceMgr
{
    Q_OBJECT
    Q_INTERFACES(IBasePlugin INotify IDeviceMgr)
    LINKHAND_PLUGIN_METADATA("com.teskra.linkhand.plugin.IBasePlugin")

public:
    DeviceMgrPlugin();

    bool Init() override { return true; }
    void OnDestroy() override {}
};

#endif // LINKHAND_SIBLINGS_DEVICEMGRPLUGIN_H
