#include "care/BinTasks.h"

#include "care/CareSdk.h"
#include "care/CareText.h"
#include "linkhand/SdkText.h"
#include "sdk/OwnedHandle.h"

void BinReading::Run()
{
    ORVA_BIN_ENTRY* pEntries = nullptr;
    int iCount = 0;
    if (!succeeded(ORVA_Care_GetBin(ORVA_MEMORY_LOCAL, &pEntries, &iCount))) {
        return;
    }
    setTotal(iCount);
    for (int i = 0; i < iCount && !IsCancelled(); ++i, advance()) {
        BinContact contact;
        contact.iEntry = pEntries[i].id;
        contact.bDeleted = pEntries[i].reason == ORVA_BIN_DELETED;
        contact.iTime = pEntries[i].time;
        if (read(contact)) {
            m_listContacts.append(contact);
        }
    }
    ORVA_Care_BinRelease(ORVA_MEMORY_LOCAL, &pEntries);
}

// False for one that has left the bin.
bool BinReading::read(BinContact& contact)
{
    OwnedRecord record;
    long nCode = ORVA_Care_GetBinRecord(ORVA_MEMORY_LOCAL, contact.iEntry, record.Out());
    SdkText groups;
    if (nCode == ORVA_OK) {
        contact.lstValues = CareText::ValuesOf(record.Get());
        nCode = ORVA_Care_GetBinGroups(ORVA_MEMORY_LOCAL, contact.iEntry, groups.out());
    }
    if (nCode != ORVA_OK) {
        return nCode != ORVA_E_NOT_FOUND && succeeded(nCode);
    }
    const QString strGroups = groups.toString();
    if (!strGroups.isEmpty()) {
        contact.lstGroups = strGroups.split(QLatin1Char('\n'));
    }
    return true;
}

void BinRestoring::Run()
{
    setTotal(m_listEntries.size());
    ORVA_PBSrv_BeginTransaction(ORVA_MEMORY_LOCAL);
    foreach (const int iEntry, m_listEntries) {
        int iId = 0;
        const long nCode = ORVA_Care_Undelete(ORVA_MEMORY_LOCAL, iEntry, &iId);
        if (IsCancelled() || (nCode != ORVA_E_NOT_FOUND && !succeeded(nCode))) {
            m_iRestored += nCode == ORVA_OK ? 1 : 0;
            break;
        }
        m_iRestored += nCode == ORVA_OK ? 1 : 0;
        advance();
    }
    // What a refused commit took away is told by the window itself.
    if (!succeeded(ORVA_PBSrv_EndTransaction(ORVA_MEMORY_LOCAL))) {
        m_iRestored = 0;
    }
}
