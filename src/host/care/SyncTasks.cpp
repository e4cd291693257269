#include "care/SyncTasks.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QStringList>

#include "care/SyncSdk.h"
#include "linkhand/QtCompat.h"
#include "orva/orva_sdk.h"

namespace
{

// For an open form or another sync.
const int WAIT_MS = 60000;

const int SYSTEMCTL_MS = 10000;

const char* const TIMER = "linkhand-sync.timer";

// What systemctl printed; false if it is not there, hangs or fails.
bool systemctl(const QStringList& lstWords, QString& strPrinted)
{
    QProcess process;
    process.start(QLatin1String("systemctl"), QStringList() << QLatin1String("--user") << lstWords);
    if (!process.waitForFinished(SYSTEMCTL_MS)) {
        process.kill();
        process.waitForFinished(SYSTEMCTL_MS);
        return false;
    }
    strPrinted = QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

SyncOutcome outcomeOf(void* pResult)
{
    SyncOutcome outcome;
    ORVA_SYNC_RUN run = {};
    ORVA_SYNC_COUNTS counts = {};
    outcome.bThere =
        ORVA_Sync_Result_GetRun(pResult, &run) == ORVA_OK && ORVA_Sync_Result_GetCounts(pResult, &counts) == ORVA_OK;
    if (!outcome.bThere) {
        return outcome;
    }
    outcome.nCode = run.code;
    outcome.bOffline = run.offline != 0;
    outcome.iTime = run.time;
    outcome.strSaid = QtCompat::fromUtf16(run.said);
    const int aiHere[3] = {counts.added_here, counts.changed_here, counts.deleted_here};
    const int aiThere[3] = {counts.added_there, counts.changed_there, counts.deleted_there};
    for (int i = 0; i < 3; ++i) {
        outcome.aiHere[i] = aiHere[i];
        outcome.aiThere[i] = aiThere[i];
    }
    outcome.iHeld = counts.held_here + counts.held_there;
    ORVA_SYNC_EVENT event = {};
    for (int i = 0; ORVA_Sync_Result_GetEvent(pResult, i, &event) == ORVA_OK; ++i) {
        SyncNote note;
        note.bConflict = event.kind == ORVA_SYNC_CONFLICT;
        note.bHereWon = event.here_won != 0;
        note.strName = QtCompat::fromUtf16(event.name);
        if (note.strName.isEmpty()) {
            note.strName = QtCompat::fromUtf16(event.file);
        }
        note.strWhat = QtCompat::fromUtf16(event.what);
        if (&ORVA_Sync_Result_GetReason != nullptr) {
            ORVA_Sync_Result_GetReason(pResult, i, &note.iReason);
        }
        outcome.listNotes.append(note);
    }
    return outcome;
}

} // namespace

void SyncReading::Run()
{
    ORVA_SYNC_SETUP setup = {};
    if (ORVA_Sync_GetSetUp(&setup) == ORVA_OK) {
        m_setup.bSetUp = true;
        m_setup.strFolder = QtCompat::fromUtf16(setup.folder);
        m_setup.strUrl = QtCompat::fromUtf16(setup.url);
        m_setup.strUser = QtCompat::fromUtf16(setup.user);
        m_setup.strCommand = QtCompat::fromUtf16(setup.password_command);
        m_setup.bFolder = m_setup.strUrl.isEmpty();
        ORVA_Sync_SetUpRelease(&setup);
    }
    void* pResult = nullptr;
    if (ORVA_Sync_GetLastRun(&pResult) == ORVA_OK) {
        m_last = outcomeOf(pResult);
        ORVA_Sync_Result_Release(pResult);
    }
    QString strState;
    systemctl(QStringList() << QLatin1String("is-enabled") << QLatin1String(TIMER), strState);
    m_enTimer = strState == QLatin1String("enabled")    ? TIMER_ON
                : strState == QLatin1String("disabled") ? TIMER_OFF
                                                        : TIMER_UNKNOWN;
}

void SyncSetting::Run()
{
    if (m_setup.bFolder) {
        succeeded(ORVA_Sync_SetUpFolder(m_setup.strFolder.utf16()));
        return;
    }
    // The password first: what is set up works.
    if (m_setup.strCommand.isEmpty() && !m_setup.strPassword.isEmpty() &&
        !succeeded(
            ORVA_Sync_KeepPassword(m_setup.strUrl.utf16(), m_setup.strUser.utf16(), m_setup.strPassword.utf16()))) {
        return;
    }
    const QString strProgram = QCoreApplication::applicationDirPath() + QLatin1String("/pbctl");
    succeeded(ORVA_Sync_SetUpServer(m_setup.strUrl.utf16(), m_setup.strUser.utf16(), m_setup.strCommand.utf16(),
                                    strProgram.utf16()));
}

int SyncRunning::goesOn(int iStep, int iSteps, void* pTask)
{
    SyncRunning* const pRunning = static_cast<SyncRunning*>(pTask);
    pRunning->setTotal(iSteps);
    while (pRunning->Done() < iStep) {
        pRunning->advance();
    }
    return pRunning->IsCancelled() ? 1 : 0;
}

void SyncRunning::Run()
{
    void* pResult = nullptr;
    if (succeeded(ORVA_Sync_RunSetUp(ORVA_MEMORY_LOCAL, 0, WAIT_MS, &SyncRunning::goesOn, this, &pResult))) {
        m_outcome = outcomeOf(pResult);
        ORVA_Sync_Result_Release(pResult);
        succeeded(m_outcome.nCode);
    }
}

void SyncTimerSwitching::Run()
{
    QString strPrinted;
    m_bDone = systemctl(QStringList() << QLatin1String(m_bOn ? "enable" : "disable") << QLatin1String("--now")
                                      << QLatin1String(TIMER),
                        strPrinted);
}
