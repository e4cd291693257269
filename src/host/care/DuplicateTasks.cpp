#include "care/DuplicateTasks.h"

#include <vector>

#include "care/CareSdk.h"
#include "care/CareText.h"

void DuplicateReading::Run()
{
    ORVA_DUPLICATE* pEntries = nullptr;
    int iCount = 0;
    if (!succeeded(ORVA_Care_GetDuplicates(ORVA_MEMORY_LOCAL, &pEntries, &iCount))) {
        return;
    }
    setTotal(iCount);
    for (int i = 0; i < iCount && !IsCancelled(); ++i, advance()) {
        if (i == 0 || pEntries[i].set != pEntries[i - 1].set) {
            m_listSets.append(DuplicateSet());
            m_listSets.last().bSame = pEntries[i].kind == ORVA_DUPLICATE_SAME;
        }
        void* pRecord = nullptr;
        const long nCode = ORVA_PBSrv_GetAddrRecord(pEntries[i].record, ORVA_MEMORY_LOCAL, &pRecord);
        if (nCode == ORVA_OK) {
            m_listSets.last().listIds.append(pEntries[i].record);
            m_listSets.last().listValues.append(CareText::ValuesOf(pRecord));
            ORVA_PBSrv_AddrRecord_Release(pRecord);
        } else if (nCode != ORVA_E_NOT_FOUND && !succeeded(nCode)) {
            break;
        }
    }
    ORVA_Care_DuplicatesRelease(ORVA_MEMORY_LOCAL, &pEntries);
    // Some may have gone meanwhile.
    for (int i = int(m_listSets.size()) - 1; i >= 0; --i) {
        if (m_listSets.at(i).listIds.size() < 2) {
            m_listSets.removeAt(i);
        }
    }
}

void MergePreview::Run()
{
    std::vector<int> ids;
    foreach (const int iId, m_listIds) {
        ids.push_back(iId);
    }
    void* pRecord = nullptr;
    unsigned short* pGroups = nullptr;
    if (!succeeded(ORVA_Care_PreviewMerge(ORVA_MEMORY_LOCAL, ids.data(), int(ids.size()), &pRecord, &pGroups))) {
        return;
    }
    m_lstValues = CareText::ValuesOf(pRecord);
    ORVA_PBSrv_AddrRecord_Release(pRecord);
    const QString strGroups = CareText::Take(pGroups);
    if (!strGroups.isEmpty()) {
        m_lstGroups = strGroups.split(QLatin1Char('\n'));
    }
}

void Merging::Run()
{
    std::vector<ORVA_DUPLICATE> entries;
    int iSet = 0;
    foreach (const DuplicateSet& set, m_listSets) {
        ++iSet;
        foreach (const int iId, set.listIds) {
            const ORVA_DUPLICATE entry = {iSet, ORVA_DUPLICATE_SAME, iId};
            entries.push_back(entry);
        }
    }
    succeeded(ORVA_Care_Merge(ORVA_MEMORY_LOCAL, entries.data(), int(entries.size())));
}
