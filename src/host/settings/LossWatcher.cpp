#include "settings/LossWatcher.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMutex>
#include <QMutexLocker>

#include "orva/orva_store.h"
#include "settings/DataFolder.h"

// Null where the SDK in use does not have it.
#pragma weak ORVA_Store_TakeLoss

namespace
{

const QEvent::Type LOSS_EVENT = static_cast<QEvent::Type>(QEvent::User + 1);

// The SDK's callback has no argument of ours, so that the object is found here. The lock keeps it alive meanwhile.
QMutex s_mutex;
LossWatcher* s_pWatcher = nullptr;

void addLoss(int iMemory, const char* pszFile, ProblemList& problems)
{
    long lCode = ORVA_OK;
    int iRecords = 0;
    if (ORVA_Store_TakeLoss(iMemory, &lCode, &iRecords) != ORVA_OK || lCode == ORVA_OK) {
        return;
    }
    const QString strName = DataFolder::Path() + QLatin1String(pszFile) + QString::fromLatin1(" (%1)").arg(lCode);
    problems.append(Problem(strName, "IDS_HOST_PROBLEM_LOSS", QString::number(iRecords)));
}

} // namespace

LossWatcher::LossWatcher(QObject* pParent) : QObject(pParent), m_bStarted(false) {}

LossWatcher::~LossWatcher()
{
    Stop();
}

void LossWatcher::Start()
{
    if (&ORVA_Store_TakeLoss == nullptr) {
        return;
    }
    {
        QMutexLocker locker(&s_mutex);
        s_pWatcher = this;
    }
    m_bStarted = true;
    ORVA_PBSrv_RegisterPBCallback(&LossWatcher::onSdkEvent);
}

void LossWatcher::Stop()
{
    if (!m_bStarted) {
        return;
    }
    m_bStarted = false;
    ORVA_PBSrv_UnRegisterPBCallback(&LossWatcher::onSdkEvent);
    QMutexLocker locker(&s_mutex);
    s_pWatcher = nullptr;
}

void LossWatcher::customEvent(QEvent* pEvent)
{
    if (pEvent->type() != LOSS_EVENT || !m_bStarted) {
        return;
    }
    ProblemList problems;
    addLoss(ORVA_MEMORY_LOCAL, "/local.db", problems);
    addLoss(ORVA_MEMORY_CARD, "/card.db", problems);
    addLoss(ORVA_MEMORY_DEVICE, "/device.db", problems);
    if (!problems.isEmpty()) {
        emit lost(problems);
    }
}

// On the SDK's event thread.
int LossWatcher::onSdkEvent(int iEvent, void*)
{
    if (iEvent != ORVA_EVENT_STORE_LOSS) {
        return 0;
    }
    QMutexLocker locker(&s_mutex);
    if (s_pWatcher != nullptr) {
        QCoreApplication::postEvent(s_pWatcher, new QEvent(LOSS_EVENT));
    }
    return 1;
}
