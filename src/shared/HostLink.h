#ifndef LINKHAND_SHARED_HOSTLINK_H
#define LINKHAND_SHARED_HOSTLINK_H

#include <QCoreApplication>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

// What this host gives its own messaging, calling and notification plug-ins, beyond what every plug-in gets. Published
// like HostServices, as a dynamic property of the application; absent in any other host. All operations run on the
// user-interface thread.
#define LINKHAND_HOST_LINK "linkhand.hostLink"

enum HostMessageKind { HOST_MESSAGE_SMS = 0, HOST_MESSAGE_MMS = 1 };
enum HostCallType { HOST_CALL_VOICE = 0, HOST_CALL_VIDEO = 1 };

class HostLink
{
public:
    virtual ~HostLink() {}

    // Hands a message to the modem; it lies in the outbox until one takes it. False if it could not be kept.
    virtual bool SendMessage(HostMessageKind enKind, const QStringList& lstNumbers, const QString& strSubject,
                             const QString& strText) = 0;

    // Starts and ends a call. One call at a time: Dial is false while one is in progress, and without a network.
    virtual bool Dial(const QString& strNumber, HostCallType enType) = 0;
    virtual void HangUp() = 0;

    // The object that signals callStarted(QString strNumber, int iType) and callEnded(QString strNumber, int iType).
    virtual QObject* CallEvents() = 0;

    // Brings the page of the plug-in with this name to the front.
    virtual void ShowPage(const QString& strPlugin) = 0;

    // Shows a short text in the status area; it moves into the list of past ones when the next comes.
    virtual void ShowStatus(const QString& strText) = 0;

    // The folder for log files, ending in "/".
    virtual QString LogFolder() = 0;

    // The link that the host has published, or null.
    static HostLink* Instance()
    {
        const QVariant link = QCoreApplication::instance()->property(LINKHAND_HOST_LINK);
        return reinterpret_cast<HostLink*>(static_cast<quintptr>(link.toLongLong()));
    }
};

#endif // LINKHAND_SHARED_HOSTLINK_H
