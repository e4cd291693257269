#ifndef LINKHAND_PLUGIN_INOTIFYSERVICE_H
#define LINKHAND_PLUGIN_INOTIFYSERVICE_H

#include <QObject>

// The notification service, kind 8209, through which plug-ins tell each other of changes. User-interface thread
// only.
class INotifyService
{
public:
    virtual ~INotifyService() {}

    // Announces a memory node: uiMsg 291 for the card, 292 for the device; uiParam1 1 came, 0 went; uiParam2 0.
    virtual void Broadcast(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2) = 0;

    // Delivers a change of a contact, once a number: uiMsg 288 added, 289 changed, 290 deleted; uiParam1 the memory
    // (0 card, 1 device, 4 PC); uiParam2 the number, 0 where it does not fit.
    virtual void Push(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2) = 0;
};

Q_DECLARE_INTERFACE(INotifyService, "com.teskra.linkhand.plugin.INotifyService")

#endif // LINKHAND_PLUGIN_INOTIFYSERVICE_H
