#include "window/FindingsNotice.h"

#include <QApplication>

#include "findings/FindingsDialog.h"
#include "loader/WorkerCount.h"
#include "orva/orva_care.h"
#include "sdk/SdkListener.h"
#include "window/StatusArea.h"

namespace
{

const int LOOK_MS = 100;

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
    SdkListener<FindingsNotice>::SetReceiver(this);
    m_bStarted = true;
    ORVA_PBSrv_RegisterPBCallback(&SdkListener<FindingsNotice>::OnEvent);
}

void FindingsNotice::Stop()
{
    if (!m_bStarted) {
        return;
    }
    m_bStarted = false;
    m_look.stop();
    ORVA_PBSrv_UnRegisterPBCallback(&SdkListener<FindingsNotice>::OnEvent);
    SdkListener<FindingsNotice>::SetReceiver(nullptr);
}

bool FindingsNotice::Takes(int iEvent)
{
    return iEvent == ORVA_EVENT_IMPORT_FINDINGS;
}

void FindingsNotice::OnSdkEvent(int)
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
