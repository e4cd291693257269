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

TestSocket::TestSocket(QObject* pParent) : QObject(pParent), m_iListener(-1), m_path(qgetenv("LINKHAND_TEST_SOCKET"))
{
    sockaddr_un address = {};
    if (m_path.isEmpty() || m_path.size() >= int(sizeof address.sun_path)) {
        return;
    }
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, m_path.constData(), size_t(m_path.size()));
    m_iListener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    // The program's umask has made the socket its owner's alone.
    if (m_iListener < 0 || bind(m_iListener, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        listen(m_iListener, 4) != 0) {
        qWarning("cannot listen on %s", m_path.constData());
        return;
    }
    QSocketNotifier* pNotifier = new QSocketNotifier(m_iListener, QSocketNotifier::Read, this);
    connect(pNotifier, SIGNAL(activated(int)), this, SLOT(OnConnection()));
}

TestSocket::~TestSocket()
{
    foreach (const int iSocket, m_hashPending.keys()) {
        close(iSocket);
    }
    if (m_iListener >= 0) {
        close(m_iListener);
        unlink(m_path.constData());
    }
}

void TestSocket::OnConnection()
{
    const int iSocket = accept4(m_iListener, nullptr, nullptr, SOCK_CLOEXEC);
    if (iSocket >= 0) {
        m_hashPending.insert(iSocket, QByteArray());
        QSocketNotifier* pNotifier = new QSocketNotifier(iSocket, QSocketNotifier::Read, this);
        connect(pNotifier, SIGNAL(activated(int)), this, SLOT(OnReadable(int)));
    }
}

void TestSocket::OnReadable(int iSocket)
{
    char acBuffer[4096];
    const ssize_t iRead = read(iSocket, acBuffer, sizeof acBuffer);
    if (iRead <= 0) {
        sender()->deleteLater();
        qobject_cast<QSocketNotifier*>(sender())->setEnabled(false);
        m_hashPending.remove(iSocket);
        close(iSocket);
        return;
    }
    QByteArray& pending = m_hashPending[iSocket];
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
