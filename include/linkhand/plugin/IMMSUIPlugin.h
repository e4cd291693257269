#ifndef LINKHAND_PLUGIN_IMMSUIPLUGIN_H
#define LINKHAND_PLUGIN_IMMSUIPLUGIN_H

#include <QObject>
#include <QString>

// The MMS plug-in's service, LINKHAND_MMS_KIND. User-interface thread only.
class IMMSUIPlugin
{
public:
    virtual ~IMMSUIPlugin() {}

    // Opens the MMS editor with recipients separated by ";" (possibly none).
    virtual void SendMessage(QString strNumbers) = 0;
};

Q_DECLARE_INTERFACE(IMMSUIPlugin, "com.teskra.linkhand.plugin.IMMSUIPlugin")

#endif // LINKHAND_PLUGIN_IMMSUIPLUGIN_H
