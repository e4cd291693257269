#ifndef ADDRBOOKUIPLUGIN_PLUGINIDS_H
#define ADDRBOOKUIPLUGIN_PLUGINIDS_H

#include <QLatin1String>

// The sibling plug-ins by identifier, the kinds of object they serve, and the codes of the notification service.

namespace PluginId
{
inline QLatin1String sms()
{
    return QLatin1String("ED395DF6-E3BA-478e-8AE9-D8A1BF090214");
}
inline QLatin1String mms()
{
    return QLatin1String("8A8F7C8C-B6DE-41cb-9228-D78C95312E87");
}
inline QLatin1String voiceCall()
{
    return QLatin1String("58A0343A-93DB-4ea2-92B4-C51589629381");
}
inline QLatin1String videoCall()
{
    return QLatin1String("EAF9E049-AFD3-4DCB-B721-172970E7F3F7");
}
inline QLatin1String notify()
{
    return QLatin1String("C986A689-A5F6-4215-84BD-39BA626F1F57");
}
inline QLatin1String deviceMgr()
{
    return QLatin1String("8772F2BF-3227-4203-AFDD-DBAD1E9D1F98");
}
} // namespace PluginId

enum PluginKind {
    PLUGIN_KIND_PRESENCE = 0,
    PLUGIN_KIND_SERVICE = 4097, // SMS, device manager
    PLUGIN_KIND_NOTIFY = 8209,
    PLUGIN_KIND_MMS = 32785
};

enum AddrBookMessage {
    ADDRBOOK_MSG_ADDED = 288, // a contact, once for each of its numbers
    ADDRBOOK_MSG_CHANGED = 289,
    ADDRBOOK_MSG_DELETED = 290,
    ADDRBOOK_MSG_SIM_NODE = 291,
    ADDRBOOK_MSG_DEVICE_NODE = 292
};

#endif // ADDRBOOKUIPLUGIN_PLUGINIDS_H
