#include "app/UnixSignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace
{

volatile std::sig_atomic_t s_iWriteEnd = -1;
const int CAUGHT[] = {SIGTERM, SIGINT, SIGHUP};

// Only what is safe in a signal handler: one write. SA_RESETHAND has restored the default action already.
void onSignal(int)
{
    const char cByte = 1;
    const ssize_t iWritten = write(s_iWriteEnd, &cByte, 1);
    static_cast<void>(iWritten);
}

} // namespace

UnixSignals::UnixSignals(QObject* pParent) : QObject(pParent), m_aiPipe{-1, -1}, m_pNotifier(nullptr)
{
    if (pipe2(m_aiPipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    s_iWriteEnd = m_aiPipe[1];
    m_pNotifier = new QSocketNotifier(m_aiPipe[0], QSocketNotifier::Read, this);
    connect(m_pNotifier, SIGNAL(activated(int)), this, SLOT(OnReadable()));
    struct sigaction action = {};
    action.sa_handler = onSignal;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    for (const int iSignal : CAUGHT) {
        sigaction(iSignal, &action, nullptr);
    }
}

UnixSignals::~UnixSignals()
{
    for (const int iSignal : CAUGHT) {
        std::signal(iSignal, SIG_DFL);
    }
    s_iWriteEnd = -1;
    delete m_pNotifier;
    for (const int iEnd : m_aiPipe) {
        if (iEnd >= 0) {
            close(iEnd);
        }
    }
}

void UnixSignals::OnReadable()
{
    char cByte = 0;
    while (read(m_aiPipe[0], &cByte, 1) == 1) {
    }
    emit received();
}
