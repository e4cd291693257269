#include "cards/CardImport.h"

#include "care/CareSdk.h"
#include "linkhand/core/CommonUtils.h"

CardImport::~CardImport()
{
    Cancel();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

bool CardImport::IsPossible()
{
    return CareSdk::HasImport();
}

void CardImport::Begin(const ImportPlan& plan, bool bTry)
{
    m_pTask.reset(new ContactImporting(plan, bTry));
    m_thread = std::thread([this] { run(); });
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
    QMetaObject::invokeMethod(this, "OnEnded", Qt::QueuedConnection);
}

void CardImport::OnEnded()
{
    m_thread.join();
    emit finished();
}
