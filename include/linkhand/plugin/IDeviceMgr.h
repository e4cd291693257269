#ifndef LINKHAND_PLUGIN_IDEVICEMGR_H
#define LINKHAND_PLUGIN_IDEVICEMGR_H

#include <QObject>

// The device manager, LINKHAND_DEVICEMGR_KIND: an interface without operations, by which its presence is told.
class IDeviceMgr
{
public:
    virtual ~IDeviceMgr() {}
};

Q_DECLARE_INTERFACE(IDeviceMgr, "com.teskra.linkhand.plugin.IDeviceMgr")

#endif // LINKHAND_PLUGIN_IDEVICEMGR_H
