#include "window/FindingsNotice.h"

#include <QApplication>
#include <QMetaObject>
#include <QMutex>
#include <QMutexLocker>

#include "findings/FindingsDialog.h"
#include "loader/WorkerCount.h"
#include "orva/orva_care.h"
#include "window/StatusArea.h"

namespace
{

const int LOOK_MS = 100;

// The SDK's callback has no argument of ours, so that the object is found here. The lock keeps it alive meanwhile.
QMutex s_mutex;
FindingsNotice* s_pNotice = nullptr;

} // namespace

FindingsNotice::FindingsNotice(const WorkerCount& workers, StatusArea& status)
    : m_workers(workers), m_status(status), m_bStarted(false)
{
    m_look.setInterval(LOOK_MS);
    connect(&m_look, SIGNAL(timeout()), this, SLOT(OnLook()));
    connect(&m_status, SIGNAL(showFindingsRequested()), this, SLOT(OnShow()));
}

FindingsNotice::~FindingsNotice()
{
    Stop();
}

void FindingsNotice::Start()
{
    {
        QMutexLocker locker(&s_mutex);
        s_pNotice = this;
    }
    m_bStarted = true;
    ORVA_PBSrv_RegisterPBCallback(&FindingsNotice::onSdkEvent);
}

void FindingsNotice::Stop()
{
    if (!m_bStarted) {
        return;
    }
    m_bStarted = false;
    m_look.stop();
    ORVA_PBSrv_UnRegisterPBCallback(&FindingsNotice::onSdkEvent);
    QMutexLocker locker(&s_mutex);
    s_pNotice = nullptr;
}

void FindingsNotice::OnFindings()
{
    if (!m_bStarted) {
        return;
    }
    m_findings = FindingList::Read();
    m_status.SetFindings(0);
    m_look.start();
    OnLook();
}

// The import's dialogs are modal, and its worker runs between the last two of them.
void FindingsNotice::OnLook()
{
    if (m_workers.Running() > 0 || QApplication::activeModalWidget() != nullptr ||
        QApplication::activePopupWidget() != nullptr) {
        return;
    }
    m_look.stop();
    m_status.SetFindings(m_findings.Total());
}

void FindingsNotice::OnShow()
{
    FindingsDialog dialog(m_findings, m_status.window());
    dialog.exec();
}

// On the SDK's event thread.
int FindingsNotice::onSdkEvent(int iEvent, void*)
{
    if (iEvent != ORVA_EVENT_IMPORT_FINDINGS) {
        return 0;
    }
    QMutexLocker locker(&s_mutex);
    if (s_pNotice != nullptr) {
        QMetaObject::invokeMethod(s_pNotice, "OnFindings", Qt::QueuedConnection);
    }
    return 1;
}
