#include "Profile.h"

#include <QFile>
#include <QProcess>

#include "PbCtl.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"

Profile::Profile()
{
    ORVA_Sim_Reset(QFile::encodeName(Path()).constData());
}

bool Profile::Add(int iMemory, const QString& strName, const QString& strNumber, int iCount)
{
    const QString strNumberKey = iMemory == ORVA_MEMORY_LOCAL ? "Mobile" : "Number";
    bool bDone = ORVA_PBSrv_BeginTransaction(iMemory) == ORVA_OK;
    for (int i = 1; bDone && i <= iCount; ++i) {
        const QString strIndex = QStringLiteral("%1").arg(i, 4, 10, QLatin1Char('0'));
        bDone = AddContact(iMemory, QStringList() << "Name" << strName + ' ' + strIndex << strNumberKey
                                                  << strNumber + strIndex) != 0;
    }
    return ORVA_PBSrv_EndTransaction(iMemory) == ORVA_OK && bDone;
}

int Profile::AddContact(int iMemory, const QStringList& lstKeysAndValues)
{
    void* pRecord = nullptr;
    if (ORVA_PBSrv_CreateAddrRecord(iMemory, &pRecord) != ORVA_OK) {
        return 0;
    }
    bool bDone = true;
    for (int i = 0; i + 1 < lstKeysAndValues.size(); i += 2) {
        bDone = ORVA_PBSrv_AddrRecord_SetValue(pRecord, lstKeysAndValues.at(i).toLatin1().constData(),
                                               lstKeysAndValues.at(i + 1).utf16()) == ORVA_OK &&
                bDone;
    }
    int iId = 0;
    bDone = bDone && ORVA_PBSrv_AddAddrRec(pRecord, &iId) == ORVA_OK;
    ORVA_PBSrv_AddrRecord_Release(pRecord);
    return bDone ? iId : 0;
}

int Profile::AddGroup(const QString& strName, int iParent, const QList<int>& listMembers)
{
    void* pGroup = nullptr;
    int iId = 0;
    if (ORVA_PBSrv_CreateAddrGroup(ORVA_MEMORY_LOCAL, &pGroup) != ORVA_OK) {
        return 0;
    }
    bool bDone = ORVA_PBSrv_AddrGroup_SetName(pGroup, strName.utf16()) == ORVA_OK &&
                 ORVA_PBSrv_AddrGroup_SetParentID(pGroup, iParent) == ORVA_OK &&
                 ORVA_PBSrv_AddGroup(pGroup, &iId) == ORVA_OK;
    ORVA_PBSrv_AddrGroup_Release(pGroup);
    foreach (const int iMember, listMembers) {
        bDone = bDone && ORVA_PBSrv_AddAddrToGroup(iId, iMember, ORVA_MEMORY_LOCAL) == ORVA_OK;
    }
    return bDone ? iId : 0;
}

bool Profile::Import(int iMemory, const QStringList& lstLines)
{
    static const char* const s_apszMemories[] = {"card", "device"};
    PbCtl pbctl(Path());
    const bool bDone =
        pbctl.Import(iMemory == ORVA_MEMORY_LOCAL ? "local" : s_apszMemories[iMemory], lstLines.join('\n') + '\n');
    if (!bDone) {
        qWarning("pbctl: %s", qPrintable(pbctl.Said()));
    }
    return bDone;
}

void Profile::Close()
{
    // Another folder, so that the files of this one are closed.
    ORVA_Sim_Reset(QFile::encodeName(m_folder.filePath("closed")).constData());
}
