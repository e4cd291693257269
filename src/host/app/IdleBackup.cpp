#include "app/IdleBackup.h"

#include <QCoreApplication>
#include <QEvent>

#include "orva/orva_store.h"

// Null where the SDK in use does not have it.
#pragma weak ORVA_Store_KeepDailyBackup

IdleBackup::IdleBackup(int iIdleMs, QObject* pParent) : QThread(pParent)
{
    m_timer.setInterval(iIdleMs);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(OnIdle()));
}

IdleBackup::~IdleBackup()
{
    wait();
}

void IdleBackup::Start()
{
    if (&ORVA_Store_KeepDailyBackup == nullptr) {
        return;
    }
    QCoreApplication::instance()->installEventFilter(this);
    m_timer.start();
}

bool IdleBackup::eventFilter(QObject* pObject, QEvent* pEvent)
{
    switch (pEvent->type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
        m_timer.start();
        break;
    default:
        break;
    }
    return QThread::eventFilter(pObject, pEvent);
}

void IdleBackup::OnIdle()
{
    start(QThread::LowPriority);
}

void IdleBackup::run()
{
    int iMade = 0;
    if (ORVA_Store_KeepDailyBackup(ORVA_MEMORY_LOCAL, &iMade) == ORVA_OK && iMade != 0) {
        emit made();
    }
}
