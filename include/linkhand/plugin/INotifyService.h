#ifndef LINKHAND_PLUGIN_INOTIFYSERVICE_H
#define LINKHAND_PLUGIN_INOTIFYSERVICE_H

#include <QObject>

#include "linkhand/plugin/Codes.h"

// The notification service, LINKHAND_NOTIFY_KIND, through which plug-ins tell each other of changes, in the words of
// PhonebookMessage. User-interface thread only.
class INotifyService
{
public:
    virtual ~INotifyService() {}

    // Announces a memory node: uiMsg PHONEBOOK_CARD_NODE or PHONEBOOK_DEVICE_NODE; uiParam1 1 came, 0 went;
    // uiParam2 0.
    virtual void Broadcast(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2) = 0;

    // Delivers a change of a contact, once a number: uiMsg PHONEBOOK_CONTACT_ADDED, _CHANGED or _DELETED; uiParam1 the
    // memory (ORVA_MEMORY_CARD, _DEVICE or _LOCAL); uiParam2 the number, 0 where it does not fit.
    virtual void Push(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2) = 0;
};

Q_DECLARE_INTERFACE(INotifyService, "com.teskra.linkhand.plugin.INotifyService")

#endif // LINKHAND_PLUGIN_INOTIFYSERVICE_H
