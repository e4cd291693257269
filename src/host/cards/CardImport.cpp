#include "cards/CardImport.h"

#include "care/CareSdk.h"
#include "linkhand/core/CommonUtils.h"

CardImport::CardImport(QObject* pParent) : QThread(pParent), m_iRuns(0) {}

CardImport::~CardImport()
{
    Cancel();
    waitForEnd();
}

bool CardImport::IsPossible()
{
    return CareSdk::HasImport();
}

void CardImport::Begin(const ImportPlan& plan, bool bTry)
{
    waitForEnd();
    m_pTask.reset(new ContactImporting(plan, bTry));
    start();
}

void CardImport::Cancel()
{
    if (m_pTask) {
        m_pTask->Cancel();
    }
}

const ContactImporting& CardImport::Task() const
{
    (void)m_iRuns.load(std::memory_order_acquire);
    return *m_pTask;
}

void CardImport::waitForEnd()
{
    wait();
    (void)m_iRuns.load(std::memory_order_acquire);
}

void CardImport::run()
{
    // The host's end waits for it, and the phonebook is not read anew meanwhile.
    CommonUtils::ThreadCountInc(QLatin1String(__FILE__), QLatin1String(__FUNCTION__));
    m_pTask->Run();
    m_iRuns.fetch_add(1, std::memory_order_release);
    CommonUtils::ThreadCountDec(QLatin1String(__FILE__), QLatin1String(__FUNCTION__));
}
