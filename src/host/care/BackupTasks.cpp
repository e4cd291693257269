#include "care/BackupTasks.h"

#include "care/CareSdk.h"
#include "linkhand/QtCompat.h"

void BackupReading::Run()
{
    ORVA_STORE_BACKUP* pBackups = nullptr;
    int iCount = 0;
    if (!succeeded(ORVA_Store_GetBackups(ORVA_MEMORY_LOCAL, &pBackups, &iCount))) {
        return;
    }
    setTotal(iCount);
    for (int i = 0; i < iCount && !IsCancelled(); ++i, advance()) {
        Backup backup;
        backup.strName = QtCompat::fromUtf16(pBackups[i].name);
        backup.iTime = pBackups[i].time;
        backup.iReason = pBackups[i].reason;
        backup.iContacts = pBackups[i].records;
        backup.nState = ORVA_Store_CheckBackup(ORVA_MEMORY_LOCAL, pBackups[i].name);
        // One that was let go meanwhile is none.
        if (backup.nState != ORVA_E_NOT_FOUND) {
            m_listBackups.append(backup);
        }
    }
    ORVA_Store_BackupsRelease(ORVA_MEMORY_LOCAL, &pBackups);
}

void BackupMaking::Run()
{
    succeeded(ORVA_Store_KeepBackup(ORVA_MEMORY_LOCAL, ORVA_BACKUP_ASKED));
}

void BackupComparing::Run()
{
    ORVA_STORE_DIFFERENCE* pEntries = nullptr;
    int iCount = 0;
    if (!succeeded(ORVA_Store_CompareBackup(ORVA_MEMORY_LOCAL, m_strName.utf16(), &pEntries, &iCount))) {
        return;
    }
    for (int i = 0; i < iCount; ++i) {
        RestoreChange change;
        change.iKind = pEntries[i].kind;
        change.strName = QtCompat::fromUtf16(pEntries[i].name);
        m_listChanges.append(change);
    }
    ORVA_Store_DifferencesRelease(ORVA_MEMORY_LOCAL, &pEntries, iCount);
}

void BackupRestoring::Run()
{
    succeeded(ORVA_Store_RestoreBackup(ORVA_MEMORY_LOCAL, m_strName.utf16()));
}
