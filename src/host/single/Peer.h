#ifndef LINKHAND_HOST_SINGLE_PEER_H
#define LINKHAND_HOST_SINGLE_PEER_H

#include <QByteArray>

// The other side of a Unix socket.
namespace Peer
{

// True if it is a process of the same user; for a side that listens, if it was one when it began to.
bool IsOurs(int iSocket);

// Sends all of it. False if the other side has gone, or on a socket that waits if it takes nothing for its time limit.
bool Send(int iSocket, const QByteArray& octets);

} // namespace Peer

#endif // LINKHAND_HOST_SINGLE_PEER_H
