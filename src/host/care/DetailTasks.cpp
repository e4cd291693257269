#include "care/DetailTasks.h"

#include "care/CareSdk.h"
#include "care/CareText.h"

namespace
{

QString valueIn(void* pSet, const char* pszKey)
{
    unsigned short* pText = nullptr;
    return ORVA_PBSrv_AddrRecordSet_GetValue(pSet, pszKey, &pText) == ORVA_OK ? CareText::Take(pText) : QString();
}

// The property at an index of a record.
long propertyAt(void* pRecord, int iIndex, KeptProperty& property)
{
    ORVA_KEPT_PROPERTY found = {};
    const long nCode = ORVA_Care_GetKeptProperty(pRecord, iIndex, &found);
    if (nCode == ORVA_OK) {
        property.strHead = CareText::Take(found.head);
        property.strValue = CareText::Take(found.value);
        property.bOctets = found.octets != 0;
    }
    return nCode;
}

} // namespace

void ContactReading::Run()
{
    void* pSet = nullptr;
    if (!succeeded(ORVA_PBSrv_GetAddrRecList(ORVA_MEMORY_LOCAL, &pSet)) || pSet == nullptr) {
        return;
    }
    int iCount = 0;
    ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(pSet, &iCount);
    setTotal(iCount);
    static const char* const s_apszNumbers[] = {"Mobile", "officePhone", "homePhone"};
    for (long nCode = ORVA_PBSrv_AddrRecordSet_MoveFirst(pSet); nCode == ORVA_OK && !IsCancelled();
         nCode = ORVA_PBSrv_AddrRecordSet_MoveNext(pSet), advance()) {
        NamedContact contact;
        ORVA_PBSrv_AddrRecordSet_GetID(pSet, &contact.iId);
        contact.strName = valueIn(pSet, "Name");
        for (const char* pszKey : s_apszNumbers) {
            if (contact.strNumber.isEmpty()) {
                contact.strNumber = valueIn(pSet, pszKey);
            }
        }
        m_listContacts.append(contact);
    }
    ORVA_PBSrv_AddrRecordSet_Release(pSet);
}

void KeptReading::Run()
{
    void* pRecord = nullptr;
    if (!succeeded(ORVA_PBSrv_GetAddrRecord(m_iId, ORVA_MEMORY_LOCAL, &pRecord))) {
        return;
    }
    KeptProperty property;
    while (!IsCancelled() && propertyAt(pRecord, int(m_listProperties.size()), property) == ORVA_OK) {
        m_listProperties.append(property);
    }
    ORVA_PBSrv_AddrRecord_Release(pRecord);
}

void KeptChange::Run()
{
    void* pRecord = nullptr;
    if (succeeded(ORVA_PBSrv_GetAddrRecord(m_iId, ORVA_MEMORY_LOCAL, &pRecord))) {
        if (succeeded(change(pRecord))) {
            succeeded(ORVA_PBSrv_UpdateAddrRec(pRecord, m_iId));
        }
        ORVA_PBSrv_AddrRecord_Release(pRecord);
    }
}

long KeptChange::change(void* pRecord) const
{
    KeptProperty property;
    if (m_iIndex >= 0 && (propertyAt(pRecord, m_iIndex, property) != ORVA_OK || property.strHead != m_strHead)) {
        return ORVA_E_NOT_FOUND;
    }
    return ORVA_Care_SetKeptProperty(pRecord, m_iIndex, m_strHead.toLatin1().constData(), m_strValue.utf16());
}
