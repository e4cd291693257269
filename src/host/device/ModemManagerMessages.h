#ifndef LINKHAND_HOST_MODEMMANAGERMESSAGES_H
#define LINKHAND_HOST_MODEMMANAGERMESSAGES_H

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QString>

#include "messages/MessageStore.h"

class ModemManagerLink;
class QDBusPendingCall;
class QDBusPendingCallWatcher;
class QDBusError;

// Short messages by way of ModemManager, one after the other. Each stands in the store before it is sent, and there it
// says at each moment what would be true if the program ended in this one: not sent, nobody knows, sent. What comes in
// is copied into the store and stays on the card as well, until it is deleted here.
class ModemManagerMessages : public QObject
{
    Q_OBJECT

public:
    // Link and store outlive the object.
    ModemManagerMessages(ModemManagerLink& link, MessageStore& store, QObject* pParent = nullptr);

    // Takes a message over, a copy for each of its numbers; without a network they stay drafts. False if they could not
    // all be kept, and then nothing is sent.
    bool Send(const OutgoingMessage& message);

    // Sends one of the store that has not left. False for any other.
    bool SendAgain(int iId);

    // Deletes one from the card, if it lies there, and from the store. False while it is being sent.
    bool Remove(int iId);

    // True while the message is waiting its turn or with the modem.
    bool IsSending(int iId) const { return iId != 0 && (m_iCurrent == iId || m_listQueue.contains(iId)); }

signals:
    // One that was to be sent has come to its end, good or bad; the store tells.
    void finished(int iId);
    void received(const QString& strNumber, const QString& strText);

    // One could not be deleted from the card, in the modem's words.
    void removeFailed(const QString& strDetail);

    // The modem has no room for messages: none can come in.
    void storeFull();

private slots:
    void OnModemChanged();
    void OnStatusChanged();
    void OnCreated(QDBusPendingCallWatcher* pWatcher);
    void OnSent(QDBusPendingCallWatcher* pWatcher);
    void OnListed(QDBusPendingCallWatcher* pWatcher);
    void OnMessage(const QString& strPath);
    void OnRead(QDBusPendingCallWatcher* pWatcher);
    void OnDeleted(QDBusPendingCallWatcher* pWatcher);

private:
    bool isReady() const;
    void next();
    void finish(MessageState enState, const QString& strDetail);
    void look(const QDBusError& error);
    MessageState stateAfter(const QDBusError& error) const;
    QDBusPendingCallWatcher* watch(const QDBusPendingCall& call, const char* pszSlot);
    bool isStale(QDBusPendingCallWatcher* pWatcher) const;

    ModemManagerLink& m_link;
    MessageStore& m_store;
    QList<int> m_listQueue;
    int m_iCurrent;                // with the modem; 0: none
    QString m_strCurrent;          // its object, once there is one
    bool m_bListed;                // of the present modem
    int m_iModem;                  // counts modems
    QMap<QString, int> m_received; // identifiers in the store by object
};

#endif // LINKHAND_HOST_MODEMMANAGERMESSAGES_H
