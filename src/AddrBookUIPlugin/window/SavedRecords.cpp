#include "window/SavedRecords.h"

void SavedRecords::Start()
{
    m_hashRecords.clear();
    m_bReading = true;
}

void SavedRecords::End()
{
    m_hashRecords.clear();
    m_bReading = false;
}

void SavedRecords::Add(_ORVA_EN_PHONEBOOK_MEMORY enMemory, const AddrBookRecord& record)
{
    if (m_bReading)
        m_hashRecords[enMemory].insert(record.iID, record);
}

bool SavedRecords::BringUpToDate(_ORVA_EN_PHONEBOOK_MEMORY enMemory, AddrBookRecord& record) const
{
    const QHash<int, AddrBookRecord> hashSaved = m_hashRecords.value(enMemory);
    if (!hashSaved.contains(record.iID))
        return false;
    record.lstValues = hashSaved.value(record.iID).lstValues;
    return true;
}
