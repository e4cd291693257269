#include "test/TestSocket.h"

#include <QSocketNotifier>
#include <QStringList>
#include <QtGlobal>

#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "test/WidgetQueries.h"

namespace
{

// Device and inode of a socket's file; zeros for everything else.
QPair<quint64, quint64> identityOf(const QByteArray& path)
{
    struct stat status = {};
    const bool bSocket = lstat(path.constData(), &status) == 0 && S_ISSOCK(status.st_mode);
    return bSocket ? qMakePair(quint64(status.st_dev), quint64(status.st_ino)) : qMakePair(quint64(0), quint64(0));
}

} // namespace

TestSocket::TestSocket(const QByteArray& path) : m_iListener(-1), m_path(path), m_identity(0, 0), m_pListening(nullptr)
{
    sockaddr_un address = {};
    if (m_path.isEmpty() || m_path.size() >= int(sizeof address.sun_path)) {
        return;
    }
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, m_path.constData(), size_t(m_path.size()));
    m_iListener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (m_iListener < 0 || bind(m_iListener, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
        qWarning("cannot listen on %s", m_path.constData());
        return;
    }
    m_identity = identityOf(m_path);
    if (listen(m_iListener, 4) != 0) {
        qWarning("cannot listen on %s", m_path.constData());
        return;
    }
    m_pListening = new QSocketNotifier(m_iListener, QSocketNotifier::Read, this);
    connect(m_pListening, SIGNAL(activated(int)), this, SLOT(OnConnection()));
}

TestSocket::~TestSocket()
{
    foreach (const int iSocket, m_hashConnections.keys()) {
        delete m_hashConnections.value(iSocket).pNotifier;
        close(iSocket);
    }
    delete m_pListening;
    if (m_iListener >= 0) {
        close(m_iListener);
    }
    if (m_identity.second != 0 && identityOf(m_path) == m_identity) {
        unlink(m_path.constData());
    }
}

void TestSocket::OnConnection()
{
    const int iSocket = accept4(m_iListener, nullptr, nullptr, SOCK_CLOEXEC);
    if (iSocket >= 0) {
        Connection& connection = m_hashConnections[iSocket];
        connection.pNotifier = new QSocketNotifier(iSocket, QSocketNotifier::Read, this);
        connect(connection.pNotifier, SIGNAL(activated(int)), this, SLOT(OnReadable(int)));
    }
}

void TestSocket::OnReadable(int iSocket)
{
    char acBuffer[4096];
    const ssize_t iRead = read(iSocket, acBuffer, sizeof acBuffer);
    if (iRead <= 0) {
        // The notifier is the sender of this very call.
        QSocketNotifier* pNotifier = m_hashConnections.take(iSocket).pNotifier;
        pNotifier->setEnabled(false);
        pNotifier->deleteLater();
        close(iSocket);
        return;
    }
    QByteArray& pending = m_hashConnections[iSocket].pending;
    pending.append(acBuffer, int(iRead));
    for (int iEnd = pending.indexOf('\n'); iEnd >= 0; iEnd = pending.indexOf('\n')) {
        const QByteArray query = pending.left(iEnd);
        pending.remove(0, iEnd + 1);
        answer(iSocket, query);
    }
}

void TestSocket::answer(int iSocket, const QByteArray& query)
{
    bool bFound = false;
    const QStringList lstLines = WidgetQueries::Answer(QString::fromUtf8(query), bFound);
    QByteArray reply = bFound ? "ok " + QByteArray::number(lstLines.size()) + "\n" : QByteArray("none\n");
    foreach (const QString& strLine, lstLines) {
        reply += strLine.toUtf8() + '\n';
    }
    for (int iSent = 0; iSent < reply.size();) {
        const ssize_t iWritten = send(iSocket, reply.constData() + iSent, size_t(reply.size() - iSent), MSG_NOSIGNAL);
        if (iWritten <= 0) {
            return;
        }
        iSent += int(iWritten);
    }
}
