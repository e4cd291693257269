#ifndef LINKHAND_PLUGIN_IBASEINTERFACE_H
#define LINKHAND_PLUGIN_IBASEINTERFACE_H

// The root of every plug-in interface. All operations run on the user-interface thread.
class IBaseInterface
{
public:
    virtual ~IBaseInterface() {}

    // Tells the object that its user has done with it. Plug-ins of this host release nothing here: whoever
    // unloads the plug-in deletes its root object.
    virtual void Release() = 0;

    // The code of the last failure, 0 for none.
    virtual int GetLastError() = 0;
};

#endif // LINKHAND_PLUGIN_IBASEINTERFACE_H
