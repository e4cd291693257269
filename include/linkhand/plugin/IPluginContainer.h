#ifndef LINKHAND_PLUGIN_IPLUGINCONTAINER_H
#define LINKHAND_PLUGIN_IPLUGINCONTAINER_H

#include <QObject>
#include <QString>

// The host's container of loaded plug-ins. User-interface thread only.
class IPluginContainer
{
public:
    virtual ~IPluginContainer() {}

    // The object that the plug-in with identifier strId serves for iKind; its root object for kind 0. Null if it is
    // not loaded or serves no such kind. The object stays the plug-in's.
    virtual QObject* GetPlugin(QString strId, int iKind) = 0;
};

#endif // LINKHAND_PLUGIN_IPLUGINCONTAINER_H
