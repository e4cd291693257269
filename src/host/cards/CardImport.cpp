#include "cards/CardImport.h"

#include "care/CareSdk.h"
#include "linkhand/core/CommonUtils.h"

CardImport::~CardImport()
{
    Cancel();
    wait();
}

bool CardImport::IsPossible()
{
    return CareSdk::HasImport();
}

void CardImport::Begin(const ImportPlan& plan, bool bTry)
{
    wait();
    m_pTask.reset(new ContactImporting(plan, bTry));
    start();
}

void CardImport::Cancel()
{
    if (m_pTask) {
        m_pTask->Cancel();
    }
}

void CardImport::run()
{
    // The host's end waits for it, and the phonebook is not read anew meanwhile.
    CommonUtils::ThreadCountInc(QLatin1String(__FILE__), QLatin1String(__FUNCTION__));
    m_pTask->Run();
    CommonUtils::ThreadCountDec(QLatin1String(__FILE__), QLatin1String(__FUNCTION__));
}
