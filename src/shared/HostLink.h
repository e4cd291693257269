#ifndef LINKHAND_SHARED_HOSTLINK_H
#define LINKHAND_SHARED_HOSTLINK_H

#include <QCoreApplication>
#include <QDateTime>
#include <QList>
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

// How far a call is. From HOST_CALL_ENDED on it is over.
enum HostCallProgress {
    HOST_CALL_DIALLING = 0,
    HOST_CALL_RINGING = 1,  // at the other side
    HOST_CALL_INCOMING = 2, // and rings here
    HOST_CALL_ACTIVE = 3,
    HOST_CALL_HELD = 4,
    HOST_CALL_ENDED = 10, // from here
    HOST_CALL_ENDED_BY_OTHER = 11,
    HOST_CALL_REFUSED = 12, // or busy
    HOST_CALL_NOT_ANSWERED = 13,
    HOST_CALL_NOT_CONNECTED = 14, // the network did not put it through, as without credit
    HOST_CALL_FAILED = 15,        // the modem could not do it
    HOST_CALL_MISSED = 16,        // it came in, and nobody answered here
    HOST_CALL_LOST = 17           // the modem or its radio has gone
};

enum HostCallDirection { HOST_CALL_OUTGOING = 0, HOST_CALL_FROM_OUTSIDE = 1, HOST_CALL_DIRECTION_UNKNOWN = 2 };

// A call that is over.
struct HostCall {
    int iId = 0;
    QString strNumber; // empty where the other side keeps it back
    QString strName;   // of the contact who has it now
    int iType = HOST_CALL_VOICE;
    QDateTime time; // at which it began
    int iSeconds = 0;
    int iDirection = HOST_CALL_DIRECTION_UNKNOWN;
    int iEnd = -1;       // how it ended, a HostCallProgress; -1: nobody knows
    int iSimulated = -1; // 0 or 1; -1: nobody knows, as of one that an earlier release has kept
};

class HostLink
{
public:
    virtual ~HostLink() {}

    // Hands a message to the modem. The simulated one keeps it and never sends it; a real one sends it at once, or
    // keeps it as a draft where it cannot, and the host tells what has become of it. False if it could not be kept.
    virtual bool SendMessage(HostMessageKind enKind, const QStringList& lstNumbers, const QString& strSubject,
                             const QString& strText) = 0;

    // Keeps a message that is not to be sent now, in the place of the draft or unsent message iId, or as a new one with
    // 0. The identifier under which it is kept, 0 if it could not be.
    virtual int KeepDraft(int iId, HostMessageKind enKind, const QStringList& lstNumbers, const QString& strSubject,
                          const QString& strText) = 0;

    // Deletes a draft or unsent message, since what it says has been handed over by SendMessage.
    virtual void ForgetDraft(int iId) = 0;

    // Starts and ends a call. One call at a time: Dial is false while one is in progress, and without a network.
    virtual bool Dial(const QString& strNumber, HostCallType enType) = 0;
    virtual void HangUp() = 0;

    // Takes a call that comes in; HangUp refuses it.
    virtual void Answer() = 0;

    // True where calls and messages reach nobody: no modem is behind them, and whatever shows them says so.
    virtual bool IsSimulated() = 0;

    // The object that signals callStarted(QString strNumber, int iType), then callProgress(int enProgress) as often as
    // it is known, and callEnded(QString strNumber, int iType).
    virtual QObject* CallEvents() = 0;

    // The calls that are kept, of this run and of earlier ones, the latest first: iAtMost of them behind the first
    // iSkipped, with the names that HostContacts has.
    virtual QList<HostCall> Calls(int iSkipped, int iAtMost) = 0;

    // Forgets one of them. False if it could not be.
    virtual bool RemoveCall(int iId) = 0;

    // A number as the phonebook stores it, without what is there for the eye; a text that is no number as it is.
    virtual QString CleanNumber(const QString& strNumber) = 0;

    // Brings the page of the plug-in with this name to the front.
    virtual void ShowPage(const QString& strPlugin) = 0;

    // Shows a short text in the status area; it moves into the list of past ones when the next comes.
    virtual void ShowStatus(const QString& strText) = 0;

    // The folder for log files, ending in "/".
    virtual QString LogFolder() = 0;

    // Asks for the name of the contact that has just been added, changed or deleted, as one of the phonebook's messages
    // says, in the memory with this number. uiNumber is one of its numbers, or 0. To look for it takes a while: the
    // asker's slot OnContactNamed(int iTicket, QString strName) is called later, with the ticket that he gave, and an
    // empty name where nobody is found. False where no answer will come.
    virtual bool AskChangedContact(unsigned int uiMsg, unsigned int uiMemory, unsigned int uiNumber, QObject* pAsker,
                                   int iTicket)
    {
        Q_UNUSED(uiMsg)
        Q_UNUSED(uiMemory)
        Q_UNUSED(uiNumber)
        Q_UNUSED(pAsker)
        Q_UNUSED(iTicket)
        return false;
    }

    // The link that the host has published, or null.
    static HostLink* Instance()
    {
        const QVariant link = QCoreApplication::instance()->property(LINKHAND_HOST_LINK);
        return reinterpret_cast<HostLink*>(static_cast<quintptr>(link.toLongLong()));
    }
};

#endif // LINKHAND_SHARED_HOSTLINK_H
