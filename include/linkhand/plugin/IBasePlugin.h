#ifndef LINKHAND_PLUGIN_IBASEPLUGIN_H
#define LINKHAND_PLUGIN_IBASEPLUGIN_H

#include <QObject>
#include <QString>

#include "linkhand/plugin/IBaseInterface.h"
#include "linkhand/plugin/IDestroyEvent.h"

// What every plug-in answers. All operations run on the user-interface thread.
class IBasePlugin : public IBaseInterface, public IDestroyEvent
{
public:
    ~IBasePlugin() override {}

    // Builds what the plug-in needs to work; called once after loading. False if it cannot work.
    virtual bool Init() = 0;

    virtual int GetPluginType() = 0;

    // The identifier under which the host's container finds the plug-in; null for a plug-in that has none.
    virtual QString GetCLSID() = 0;

    virtual int GetVersion() = 0;

    // The plug-in's name: also the name of its folder below "plugins" and its context in the language files.
    virtual QString GetPluginName() = 0;

    // True if the host may unload the plug-in before it ends.
    virtual bool IsAllowRelease() = 0;

    // Writes the object that serves iId into *ppObject and returns 1; returns 0 and leaves *ppObject alone for an
    // id that is not served. The object stays the plug-in's.
    virtual int QueryInterface(int iId, QObject** ppObject) = 0;
};

Q_DECLARE_INTERFACE(IBasePlugin, "com.teskra.linkhand.plugin.IBasePlugin")

#endif // LINKHAND_PLUGIN_IBASEPLUGIN_H
