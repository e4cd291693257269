#include "settings/LossWatcher.h"

#include "orva/orva_store.h"
#include "sdk/SdkListener.h"
#include "settings/DataFolder.h"

// Null where the SDK in use does not have them.
#pragma weak ORVA_Store_TakeLoss
#pragma weak ORVA_Store_GetAccess

namespace
{

const int LOOK_MS = 2000;

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

LossWatcher::LossWatcher(QObject* pParent) : QObject(pParent), m_bStarted(false), m_lAccess(ORVA_OK), m_bReadable(true)
{
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(OnCheckAccess()));
}

LossWatcher::~LossWatcher()
{
    Stop();
}

void LossWatcher::Start()
{
    if (&ORVA_Store_TakeLoss == nullptr) {
        return;
    }
    SdkListener<LossWatcher>::SetReceiver(this);
    m_bStarted = true;
    ORVA_PBSrv_RegisterPBCallback(&SdkListener<LossWatcher>::OnEvent);
    // Behind the start of the program, which opens the phonebook anyway.
    QTimer::singleShot(0, this, SLOT(OnCheckAccess()));
}

void LossWatcher::Stop()
{
    if (!m_bStarted) {
        return;
    }
    m_bStarted = false;
    m_timer.stop();
    ORVA_PBSrv_UnRegisterPBCallback(&SdkListener<LossWatcher>::OnEvent);
    SdkListener<LossWatcher>::SetReceiver(nullptr);
}

bool LossWatcher::Takes(int iEvent)
{
    return iEvent == ORVA_EVENT_STORE_LOSS || iEvent == ORVA_EVENT_STORE_ACCESS || iEvent == ORVA_EVENT_RECORD_GONE;
}

void LossWatcher::OnSdkEvent(int iEvent)
{
    if (!m_bStarted) {
        return;
    }
    if (iEvent == ORVA_EVENT_STORE_LOSS) {
        tellLoss();
    } else if (iEvent == ORVA_EVENT_STORE_ACCESS) {
        OnCheckAccess();
    } else {
        emit contactGone();
    }
}

void LossWatcher::tellLoss()
{
    ProblemList problems;
    addLoss(ORVA_MEMORY_LOCAL, "/local.db", problems);
    addLoss(ORVA_MEMORY_CARD, "/card.db", problems);
    addLoss(ORVA_MEMORY_DEVICE, "/device.db", problems);
    if (!problems.isEmpty()) {
        emit lost(problems);
    }
}

// Nobody tells that a disk has room again: asking tries, and is done while there is none alone.
void LossWatcher::OnCheckAccess()
{
    if (!m_bStarted || &ORVA_Store_GetAccess == nullptr) {
        return;
    }
    long lAccess = ORVA_OK;
    const long lResult = ORVA_Store_GetAccess(ORVA_MEMORY_LOCAL, &lAccess);
    const bool bWasReadable = m_bReadable;
    m_bReadable = lResult == ORVA_OK;
    if (!m_bReadable || lAccess != ORVA_OK) {
        m_timer.start(LOOK_MS);
    } else {
        m_timer.stop();
    }
    if (m_bReadable && lAccess != m_lAccess) {
        m_lAccess = lAccess;
        ProblemList problems;
        if (lAccess != ORVA_OK) {
            const bool bFull = lAccess == ORVA_E_NO_SPACE;
            problems.append(Problem(DataFolder::Path() + QLatin1String("/local.db"),
                                    bFull ? "IDS_HOST_PROBLEM_NO_SPACE" : "IDS_HOST_PROBLEM_READ_ONLY"));
        }
        emit accessChanged(problems);
    }
    if (m_bReadable && !bWasReadable) {
        emit readableAgain();
    }
}
