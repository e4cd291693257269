#ifndef LINKHAND_HOST_MODEM_H
#define LINKHAND_HOST_MODEM_H

#include <QObject>
#include <QString>

#include "device/ModemStatus.h"
#include "messages/OutgoingMessage.h"

// Where this program ends and a modem begins: calls and messages go in here and nowhere else. It never reports as sent
// what has not left, and sends and dials nothing by itself. Nothing here waits. User-interface thread only.
class Modem : public QObject
{
    Q_OBJECT

public:
    explicit Modem(QObject* pParent = nullptr) : QObject(pParent) {}

    // True if nobody is reached by it.
    virtual bool IsSimulated() const = 0;

    // Begins to look for a real one; nothing is asked of a bus before.
    virtual void Start() {}

    // What is known of a real one.
    virtual ModemStatus Status() const { return ModemStatus(); }

    // Starts a call of a HostCallType. False with no network, an unusable number or a call in progress.
    virtual bool Dial(const QString& strNumber, int iType) = 0;

    // Takes a call that rings here.
    virtual void Answer() {}

    // Ends the call in progress, if there is one, or refuses the one that rings here.
    virtual void HangUp() = 0;

    // Takes a message over. False if it could not even be kept for later.
    virtual bool Send(const OutgoingMessage& message) = 0;

    // Sends a message of the store that has not left. False if it cannot be sent now, or has left.
    virtual bool SendAgain(int) { return false; }

    // True while a message of the store is waiting its turn or with the modem.
    virtual bool IsSending(int) const { return false; }

    // Deletes a message of the store, and from the card, which takes a moment. False if that cannot be.
    virtual bool Remove(int iId) = 0;

    // Gives the card its PIN, once; pinAnswered follows. It is kept nowhere.
    virtual void SendPin(const QString&) {}

    // Switches the modem on.
    virtual void Enable() {}

    // The program ends: a call is ended, what is being sent stays as it is.
    virtual void Finish() { HangUp(); }

public slots:
    // The state of the device, as the SDK tells it, is another one.
    virtual void OnDeviceChanged() {}

signals:
    void callStarted(const QString& strNumber, int iType);
    void callProgress(int iProgress); // HostCallProgress
    void callEnded(const QString& strNumber, int iType);

    // Of a real modem.
    void statusChanged();
    void pinAnswered(bool bDone, bool bWrong, const QString& strDetail);
    void enableFailed(const QString& strDetail);
    void callFailed(int iProgress, const QString& strDetail);
    void incomingCall(const QString& strNumber);
    void messageFinished(int iId);
    void messageReceived(const QString& strNumber, const QString& strText);
    void removeFailed(const QString& strDetail);
    void messageStoreFull();
};

#endif // LINKHAND_HOST_MODEM_H
