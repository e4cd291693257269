#ifndef LINKHAND_PLUGIN_IDESTROYEVENT_H
#define LINKHAND_PLUGIN_IDESTROYEVENT_H

// How the host takes a plug-in down, on the user-interface thread: first UnSDKRegisterEvent, then, once no worker
// runs any more, OnDestroy.
class IDestroyEvent
{
public:
    virtual ~IDestroyEvent() {}

    // Frees the plug-in's windows and data. The root object stays.
    virtual void OnDestroy() = 0;

    // Takes the plug-in's SDK callbacks away; no SDK event reaches it afterwards.
    virtual void UnSDKRegisterEvent() = 0;
};

#endif // LINKHAND_PLUGIN_IDESTROYEVENT_H
