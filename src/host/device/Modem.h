#ifndef LINKHAND_HOST_MODEM_H
#define LINKHAND_HOST_MODEM_H

#include <QObject>
#include <QString>

#include "messages/OutgoingMessage.h"

// Where this program ends and a modem begins: calls and messages go in here and nowhere else. An implementation for
// real hardware replaces SimulatedModem; it must never report as sent what has not left. User-interface thread only.
class Modem : public QObject
{
    Q_OBJECT

public:
    explicit Modem(QObject* pParent = nullptr) : QObject(pParent) {}

    // Starts a call of a HostCallType. False with no network, an unusable number or a call in progress.
    virtual bool Dial(const QString& strNumber, int iType) = 0;

    // Ends the call in progress, if there is one.
    virtual void HangUp() = 0;

    // Takes a message over. False if it could not even be kept for later.
    virtual bool Send(const OutgoingMessage& message) = 0;

signals:
    void callStarted(const QString& strNumber, int iType);
    void callEnded(const QString& strNumber, int iType);
};

#endif // LINKHAND_HOST_MODEM_H
