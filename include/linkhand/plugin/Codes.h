#ifndef LINKHAND_PLUGIN_CODES_H
#define LINKHAND_PLUGIN_CODES_H

// What host and plug-ins say to each other in numbers and identifiers.

// Who is who among the plug-ins: name, class identifier and the kind of object served (IPluginContainer::GetPlugin).
// The phonebook has no identifier; the container knows it by its name.

#define LINKHAND_PRESENCE_KIND 0 // whichever object it is: asks whether the plug-in is there

#define LINKHAND_ADDRBOOK_NAME "AddrBookUIPlugin"
#define LINKHAND_ADDRBOOK_KIND 4097

#define LINKHAND_SMS_NAME "SMSUIPlugin"
#define LINKHAND_SMS_ID "ED395DF6-E3BA-478e-8AE9-D8A1BF090214"
#define LINKHAND_SMS_KIND 4097

#define LINKHAND_MMS_NAME "MMSUIPlugin"
#define LINKHAND_MMS_ID "8A8F7C8C-B6DE-41cb-9228-D78C95312E87"
#define LINKHAND_MMS_KIND 32785

#define LINKHAND_VOICECALL_NAME "VoiceCallPlugin"
#define LINKHAND_VOICECALL_ID "58A0343A-93DB-4ea2-92B4-C51589629381"

#define LINKHAND_VIDEOCALL_NAME "VideoCallPlugin"
#define LINKHAND_VIDEOCALL_ID "EAF9E049-AFD3-4DCB-B721-172970E7F3F7"

#define LINKHAND_NOTIFY_NAME "NotifyPlugin"
#define LINKHAND_NOTIFY_ID "C986A689-A5F6-4215-84BD-39BA626F1F57"
#define LINKHAND_NOTIFY_KIND 8209

#define LINKHAND_DEVICEMGR_NAME "DeviceMgrPlugin"
#define LINKHAND_DEVICEMGR_ID "8772F2BF-3227-4203-AFDD-DBAD1E9D1F98"
#define LINKHAND_DEVICEMGR_KIND 4097

// The first argument of INotify::Notify, from the host to each plug-in. The second is used by one code alone.
enum HostNotifyCode {
    HOST_NOTIFY_LANGUAGE = 320,     // the language has changed
    HOST_NOTIFY_REGISTRATION = 515, // second: not 0 if the device is registered in a network
    HOST_NOTIFY_NETWORK_LOST = 576,
    HOST_NOTIFY_NETWORK_GAINED = 577,
    HOST_NOTIFY_CARD_ENABLED = 578,
    HOST_NOTIFY_CARD_DISABLED = 579,
    HOST_NOTIFY_SYSTEM_MODE = 4101 // another product or card type
};

// The first argument of the notification service's operations. The first three are pushed, with the memory and a
// number as a 32-bit integer, 0 for one that does not fit; the others are broadcast, with 1 for come and 0 for gone.
enum PhonebookMessage {
    PHONEBOOK_CONTACT_ADDED = 288, // once for each phone number of the contact
    PHONEBOOK_CONTACT_CHANGED = 289,
    PHONEBOOK_CONTACT_DELETED = 290,
    PHONEBOOK_CARD_NODE = 291,
    PHONEBOOK_DEVICE_NODE = 292
};

#endif // LINKHAND_PLUGIN_CODES_H
