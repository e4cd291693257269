#include "work/WorkThread.h"

#include <system_error>

WorkThread::WorkThread(QObject* pParent) : QObject(pParent), m_bBusy(false), m_bRun(false) {}

WorkThread::~WorkThread()
{
    join();
}

void WorkThread::Begin(const std::function<void()>& work)
{
    m_bBusy = true;
    m_bRun = true;
    try {
        m_thread = std::thread([this, work] {
            work();
            QMetaObject::invokeMethod(this, "OnDone", Qt::QueuedConnection);
        });
    } catch (const std::system_error& failure) {
        qWarning("WorkThread: %s", failure.what());
        m_bRun = false;
        QMetaObject::invokeMethod(this, "OnDone", Qt::QueuedConnection);
    }
}

void WorkThread::OnDone()
{
    // Its last act was to say so.
    join();
    m_bBusy = false;
    emit ended();
}

void WorkThread::join()
{
    if (m_thread.joinable()) {
        m_thread.join();
    }
}
