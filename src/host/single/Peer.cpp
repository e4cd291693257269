#include "single/Peer.h"

#include <cerrno>
#include <sys/socket.h>
#include <unistd.h>

bool Peer::IsOurs(int iSocket)
{
    ucred credentials = {};
    socklen_t iSize = sizeof credentials;
    return getsockopt(iSocket, SOL_SOCKET, SO_PEERCRED, &credentials, &iSize) == 0 && credentials.uid == geteuid();
}

bool Peer::Send(int iSocket, const QByteArray& octets)
{
    for (int iSent = 0; iSent < octets.size();) {
        const ssize_t iWritten = send(iSocket, octets.constData() + iSent, size_t(octets.size() - iSent), MSG_NOSIGNAL);
        if (iWritten < 0 && errno == EINTR) {
            continue;
        }
        if (iWritten <= 0) {
            return false;
        }
        iSent += int(iWritten);
    }
    return true;
}
