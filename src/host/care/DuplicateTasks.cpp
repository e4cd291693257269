#include "care/DuplicateTasks.h"

#include <vector>

#include "care/CareSdk.h"
#include "care/CareText.h"
#include "linkhand/SdkText.h"
#include "sdk/OwnedHandle.h"

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
        OwnedRecord record;
        const long nCode = ORVA_PBSrv_GetAddrRecord(pEntries[i].record, ORVA_MEMORY_LOCAL, record.Out());
        if (nCode == ORVA_OK) {
            m_listSets.last().listIds.append(pEntries[i].record);
            m_listSets.last().listValues.append(CareText::ValuesOf(record.Get()));
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
    OwnedRecord record;
    SdkText groups;
    if (!succeeded(
            ORVA_Care_PreviewMerge(ORVA_MEMORY_LOCAL, ids.data(), int(ids.size()), record.Out(), groups.out()))) {
        return;
    }
    m_lstValues = CareText::ValuesOf(record.Get());
    const QString strGroups = groups.toString();
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
