#include "work/WorkThread.h"

WorkThread::WorkThread(QObject* pParent) : QThread(pParent), m_bBusy(false), m_bRun(false), m_iRuns(0)
{
    connect(this, SIGNAL(finished()), this, SLOT(OnFinished()));
}

WorkThread::~WorkThread()
{
    wait();
    (void)m_iRuns.load(std::memory_order_acquire);
}

void WorkThread::Begin(const std::function<void()>& work)
{
    m_work = work;
    m_bBusy = true;
    start();
    m_bRun = isRunning() || isFinished();
    if (!m_bRun) {
        QMetaObject::invokeMethod(this, "OnFinished", Qt::QueuedConnection);
    }
}

void WorkThread::run()
{
    m_work();
    m_iRuns.fetch_add(1, std::memory_order_release);
}

void WorkThread::OnFinished()
{
    // What it sent is behind its work, but it may still be on its way out.
    wait();
    (void)m_iRuns.load(std::memory_order_acquire);
    m_bBusy = false;
    emit ended();
}
