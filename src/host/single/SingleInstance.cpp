#include "single/SingleInstance.h"

#include <QElapsedTimer>

#include <cerrno>
#include <sys/socket.h>
#include <sys/time.h>

#include "single/Message.h"
#include "single/Peer.h"

namespace
{

const int STEP_US = 20000; // between two looks at a lock or a socket that is about to come or go

// Reading, writing and connecting give up after that time.
void limit(int iSocket, int iLimitMs)
{
    timeval time = {};
    time.tv_sec = iLimitMs / 1000;
    time.tv_usec = (iLimitMs % 1000) * 1000;
    setsockopt(iSocket, SOL_SOCKET, SO_RCVTIMEO, &time, sizeof time);
    setsockopt(iSocket, SOL_SOCKET, SO_SNDTIMEO, &time, sizeof time);
}

} // namespace

SingleInstance::SingleInstance(const QString& strDataFolder, int iLimitMs)
    : m_place(strDataFolder), m_iLimitMs(iLimitMs)
{
}

SingleInstance::Outcome SingleInstance::Begin(const QStringList& lstTexts)
{
    const QByteArray message = Message::Of(lstTexts);
    QElapsedTimer timer;
    timer.start();
    while (m_place.IsUsable()) {
        if (m_place.Lock()) {
            m_pListener.reset(new Listener(m_place, m_iLimitMs, nullptr));
            connect(m_pListener.data(), SIGNAL(received(QStringList)), this, SLOT(OnReceived(QStringList)));
            return FIRST;
        }
        if (!m_place.IsUsable()) {
            break;
        }
        if (message.isEmpty()) {
            return TOO_MUCH;
        }
        const int iLeftMs = m_iLimitMs - int(timer.elapsed());
        Outcome enOutcome = NO_ANSWER;
        if (iLeftMs <= 0 || talk(message, iLeftMs, enOutcome)) {
            return enOutcome;
        }
        usleep(STEP_US);
    }
    return FIRST;
}

QList<QStringList> SingleInstance::Take()
{
    QList<QStringList> listTaken = m_listReceived;
    m_listReceived.clear();
    return listTaken;
}

void SingleInstance::StopListening()
{
    m_pListener.reset();
}

void SingleInstance::OnReceived(const QStringList& lstTexts)
{
    m_listReceived.append(lstTexts);
    emit received();
}

bool SingleInstance::talk(const QByteArray& message, int iLimitMs, Outcome& enOutcome) const
{
    const Handle connection(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    limit(connection.Get(), iLimitMs);
    const sockaddr_un address = m_place.Address();
    if (::connect(connection.Get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        // A queue that stays full is a hanging one's.
        return errno == EAGAIN;
    }
    if (!Peer::IsOurs(connection.Get())) {
        enOutcome = FOREIGN;
        return true;
    }
    if (!Peer::Send(connection.Get(), message)) {
        return errno == EAGAIN;
    }
    shutdown(connection.Get(), SHUT_WR);
    char acAnswer[16];
    const ssize_t iRead = recv(connection.Get(), acAnswer, sizeof acAnswer, 0);
    if (iRead > 0) {
        enOutcome = QByteArray(acAnswer, int(iRead)) == Message::TAKEN ? PASSED_ON : NO_ANSWER;
        return true;
    }
    // Closed without a word: it is ending, and its lock will be free.
    return iRead < 0 && errno == EAGAIN;
}
