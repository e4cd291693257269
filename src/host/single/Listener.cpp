#include "single/Listener.h"

#include <QSocketNotifier>
#include <QTimer>

#include <cerrno>
#include <sys/socket.h>
#include <sys/stat.h>

#include "single/Message.h"
#include "single/Peer.h"

namespace
{

const int CONNECTIONS_LIMIT = 16;

} // namespace

Listener::Listener(MeetingPlace& place, int iLimitMs, QObject* pParent)
    : QObject(pParent),
      m_place(place),
      m_socket(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)),
      m_pListening(nullptr),
      m_pSweep(new QTimer(this))
{
    // Whoever has left something there is no more: its lock is ours.
    m_place.RemoveSocket();
    const sockaddr_un address = m_place.Address();
    const mode_t before = umask(0177);
    const bool bBound = bind(m_socket.Get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    umask(before);
    if (!bBound || listen(m_socket.Get(), CONNECTIONS_LIMIT) != 0) {
        return;
    }
    m_pListening = new QSocketNotifier(m_socket.Get(), QSocketNotifier::Read, this);
    connect(m_pListening, SIGNAL(activated(int)), this, SLOT(OnConnection()));
    m_pSweep->setInterval(iLimitMs);
    connect(m_pSweep, SIGNAL(timeout()), this, SLOT(OnSweep()));
}

Listener::~Listener()
{
    foreach (const int iSocket, m_hashConnections.keys()) {
        drop(iSocket);
    }
    delete m_pListening;
    if (m_socket.IsOpen()) {
        m_place.RemoveSocket();
    }
}

void Listener::OnConnection()
{
    Handle connection(accept4(m_socket.Get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!connection.IsOpen() || !Peer::IsOurs(connection.Get()) || m_hashConnections.size() >= CONNECTIONS_LIMIT) {
        return;
    }
    const int iSocket = connection.Release();
    Connection& entry = m_hashConnections[iSocket];
    entry.pNotifier = new QSocketNotifier(iSocket, QSocketNotifier::Read, this);
    connect(entry.pNotifier, SIGNAL(activated(int)), this, SLOT(OnReadable(int)));
    if (!m_pSweep->isActive()) {
        m_pSweep->start();
    }
}

void Listener::OnReadable(int iSocket)
{
    if (!m_hashConnections.contains(iSocket)) {
        return;
    }
    char acBuffer[4096];
    const ssize_t iRead = read(iSocket, acBuffer, sizeof acBuffer);
    QByteArray& pending = m_hashConnections[iSocket].pending;
    if (iRead > 0) {
        pending.append(acBuffer, int(iRead));
        if (pending.size() > Message::OCTETS_LIMIT) {
            drop(iSocket);
        }
    } else if (iRead == 0) {
        const QByteArray octets = pending;
        answer(iSocket, octets);
    } else if (errno != EAGAIN && errno != EINTR) {
        drop(iSocket);
    }
}

// What has been there for a whole turn has had its time.
void Listener::OnSweep()
{
    foreach (const int iSocket, m_hashConnections.keys()) {
        if (m_hashConnections.value(iSocket).bOld) {
            drop(iSocket);
        } else {
            m_hashConnections[iSocket].bOld = true;
        }
    }
    if (m_hashConnections.isEmpty()) {
        m_pSweep->stop();
    }
}

void Listener::answer(int iSocket, const QByteArray& octets)
{
    QStringList lstTexts;
    const bool bTaken = Message::Read(octets, lstTexts) && Peer::Send(iSocket, Message::TAKEN);
    drop(iSocket);
    if (bTaken) {
        emit received(lstTexts);
    }
}

void Listener::drop(int iSocket)
{
    // The notifier may be the sender of this very call.
    QSocketNotifier* pNotifier = m_hashConnections.take(iSocket).pNotifier;
    pNotifier->setEnabled(false);
    pNotifier->deleteLater();
    close(iSocket);
}
