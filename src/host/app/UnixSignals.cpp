#include "app/UnixSignals.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>

namespace
{

// A program that has not ended by then hangs, and its user may kill it with the same key.
const time_t PATIENCE_S = 10;

volatile std::sig_atomic_t s_iWriteEnd = -1;
volatile std::sig_atomic_t s_iFirst = 0; // when the first one came, in seconds of the monotonic clock; 0: none has
const int CAUGHT[] = {SIGTERM, SIGINT, SIGHUP};

// Only what is safe in a signal handler.
void onSignal(int iSignal)
{
    const int iError = errno;
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    if (s_iFirst == 0) {
        s_iFirst = static_cast<std::sig_atomic_t>(now.tv_sec);
    } else if (now.tv_sec - s_iFirst >= PATIENCE_S) {
        std::signal(iSignal, SIG_DFL);
        raise(iSignal);
    }
    const char cByte = 1;
    const ssize_t iWritten = write(s_iWriteEnd, &cByte, 1);
    static_cast<void>(iWritten);
    errno = iError;
}

} // namespace

UnixSignals::UnixSignals(QObject* pParent) : QObject(pParent), m_aiPipe{-1, -1}, m_pNotifier(nullptr)
{
    if (pipe2(m_aiPipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    s_iFirst = 0;
    s_iWriteEnd = m_aiPipe[1];
    m_pNotifier = new QSocketNotifier(m_aiPipe[0], QSocketNotifier::Read, this);
    connect(m_pNotifier, SIGNAL(activated(int)), this, SLOT(OnReadable()));
    for (const int iSignal : CAUGHT) {
        struct sigaction action = {};
        // What the caller had ignored, such as nohup, stays so.
        if (sigaction(iSignal, nullptr, &action) == 0 && action.sa_handler != SIG_IGN) {
            action = {};
            action.sa_handler = onSignal;
            action.sa_flags = SA_RESTART;
            sigaction(iSignal, &action, nullptr);
        }
    }
}

// The handler stays: a signal that comes while the rest of the program is taken down must not cut that short.
UnixSignals::~UnixSignals()
{
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
