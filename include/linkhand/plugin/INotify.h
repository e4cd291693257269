#ifndef LINKHAND_PLUGIN_INOTIFY_H
#define LINKHAND_PLUGIN_INOTIFY_H

#include <QObject>

// The host's notices to a plug-in, on the user-interface thread.
class INotify
{
public:
    virtual ~INotify() {}

    // Codes: 320 language changed; 515 network registration, uiParam1 non-zero when registered; 576 network lost;
    // 577 network gained; 578 card enabled; 579 card disabled; 4101 system mode changed. A plug-in ignores codes
    // that it does not know. The result is not looked at.
    virtual int Notify(unsigned int uiCode, unsigned int uiParam1, unsigned int uiParam2) = 0;
};

Q_DECLARE_INTERFACE(INotify, "com.teskra.linkhand.plugin.INotify")

#endif // LINKHAND_PLUGIN_INOTIFY_H
