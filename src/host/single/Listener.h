#ifndef LINKHAND_HOST_SINGLE_LISTENER_H
#define LINKHAND_HOST_SINGLE_LISTENER_H

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QStringList>

#include "single/Handle.h"
#include "single/MeetingPlace.h"

class QSocketNotifier;
class QTimer;

// Takes the messages of further starts. User-interface thread only: a program that hangs does not answer, and is to be
// known by that.
class Listener : public QObject
{
    Q_OBJECT

public:
    // Listens at the place, whose lock the caller has. Connections that say nothing are closed after iLimitMs.
    Listener(MeetingPlace& place, int iLimitMs, QObject* pParent);

    // Takes the socket away.
    ~Listener() override;

    bool IsListening() const { return m_pListening != nullptr; }

signals:
    // After the other side was told that it has been taken.
    void received(const QStringList& lstTexts);

private slots:
    void OnConnection();
    void OnReadable(int iSocket);
    void OnSweep();

private:
    struct Connection {
        QSocketNotifier* pNotifier = nullptr;
        QByteArray pending;
        bool bOld = false; // was there when it was last swept
    };

    void answer(int iSocket, const QByteArray& octets);
    void drop(int iSocket);

    MeetingPlace& m_place;
    Handle m_socket;
    QSocketNotifier* m_pListening;
    QTimer* m_pSweep;
    QHash<int, Connection> m_hashConnections; // by socket
};

#endif // LINKHAND_HOST_SINGLE_LISTENER_H
