#include "cards/CardImport.h"

#include "care/CareSdk.h"
#include "linkhand/core/CommonUtils.h"
#include "orva/orva_sdk.h"

CardImport::CardImport(QObject* pParent) : QObject(pParent), m_thread(this)
{
    connect(&m_thread, SIGNAL(ended()), this, SLOT(OnWorkEnded()));
}

CardImport::~CardImport()
{
    Cancel();
}

bool CardImport::IsPossible()
{
    return CareSdk::HasImport();
}

void CardImport::Begin(const ImportPlan& plan, bool bTry)
{
    m_pTask.reset(new ContactImporting(plan, bTry));
    m_thread.Begin([this] { run(); });
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

void CardImport::OnWorkEnded()
{
    if (!m_thread.HasRun()) {
        m_pTask->Fail(ORVA_E_NO_MEMORY);
    }
    emit finished();
}
