#include "care/CareRunner.h"

#include "care/CareSection.h"
#include "linkhand/core/CommonUtils.h"
#include "orva/orva_sdk.h"

CareRunner::CareRunner(QObject* pParent)
    : QObject(pParent), m_pSection(nullptr), m_pNextSection(nullptr), m_thread(this)
{
    connect(&m_thread, SIGNAL(ended()), this, SLOT(OnWorkEnded()));
}

CareRunner::~CareRunner()
{
    CancelCurrent();
}

bool CareRunner::Begin(CareTask* pTask, CareSection* pSection)
{
    std::unique_ptr<CareTask> pHeld(pTask);
    if (!m_pTask) {
        m_pTask.swap(pHeld);
        m_pSection = pSection;
        m_thread.Begin([this] { run(); });
        emit begun();
        return true;
    }
    const bool bNextWrites = m_pNext && m_pNext->KindOf() == CareTask::WRITING;
    if (m_pTask->KindOf() == CareTask::WRITING || bNextWrites) {
        return false;
    }
    m_pTask->Cancel();
    m_pNext.swap(pHeld);
    m_pNextSection = pSection;
    return true;
}

void CareRunner::CancelCurrent()
{
    m_pNext.reset();
    if (m_pTask) {
        m_pTask->Cancel();
    }
}

void CareRunner::run()
{
    const bool bCounts = !m_pTask->TakesTurns();
    // The host's end waits for it, and the phonebook is not read anew meanwhile.
    if (bCounts) {
        CommonUtils::ThreadCountInc(QLatin1String(__FILE__), QLatin1String(__FUNCTION__));
    }
    m_pTask->Run();
    if (bCounts) {
        CommonUtils::ThreadCountDec(QLatin1String(__FILE__), QLatin1String(__FUNCTION__));
    }
}

void CareRunner::OnWorkEnded()
{
    std::unique_ptr<CareTask> pDone;
    pDone.swap(m_pTask);
    if (!m_thread.HasRun()) {
        pDone->Fail(ORVA_E_NO_MEMORY);
    }
    CareSection* const pSection = m_pSection;
    if (m_pNext) {
        // A section that reads anew reads what it was to read: to begin that once more would cancel it, and without
        // end.
        const bool bAnew = m_pNextSection == pSection && m_pNext->KindOf() == CareTask::READING;
        pSection->SetStale(pSection->IsStale() || (pDone->KindOf() == CareTask::READING && !bAnew));
        Begin(m_pNext.release(), m_pNextSection);
    }
    const bool bWrote = pDone->KindOf() == CareTask::WRITING;
    if (pDone->IsTakenCancelled() || !pDone->IsCancelled()) {
        pSection->Take(*pDone);
    }
    emit ended(bWrote);
}
