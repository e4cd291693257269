#include "care/DetailTasks.h"

#include "care/CareSdk.h"
#include "linkhand/SdkText.h"
#include "sdk/OwnedHandle.h"
#include "sdk/RecordText.h"

namespace
{

// The property at an index of a record.
long propertyAt(void* pRecord, int iIndex, KeptProperty& property)
{
    ORVA_KEPT_PROPERTY found = {};
    const long nCode = ORVA_Care_GetKeptProperty(pRecord, iIndex, &found);
    if (nCode == ORVA_OK) {
        property.strHead = SdkText(found.head).toString();
        property.strValue = SdkText(found.value).toString();
        property.bOctets = found.octets != 0;
    }
    return nCode;
}

} // namespace

void ContactReading::Run()
{
    OwnedRecordSet set;
    if (!succeeded(ORVA_PBSrv_GetAddrRecList(ORVA_MEMORY_LOCAL, set.Out())) || set.IsNull()) {
        return;
    }
    int iCount = 0;
    ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(set.Get(), &iCount);
    setTotal(iCount);
    static const char* const s_apszNumbers[] = {"Mobile", "officePhone", "homePhone"};
    for (long nCode = ORVA_PBSrv_AddrRecordSet_MoveFirst(set.Get()); nCode == ORVA_OK && !IsCancelled();
         nCode = ORVA_PBSrv_AddrRecordSet_MoveNext(set.Get()), advance()) {
        NamedContact contact;
        ORVA_PBSrv_AddrRecordSet_GetID(set.Get(), &contact.iId);
        contact.strName = RecordText::Of(set.Get(), "Name");
        for (const char* pszKey : s_apszNumbers) {
            if (contact.strNumber.isEmpty()) {
                contact.strNumber = RecordText::Of(set.Get(), pszKey);
            }
        }
        m_listContacts.append(contact);
    }
}

void KeptReading::Run()
{
    OwnedRecord record;
    if (!succeeded(ORVA_PBSrv_GetAddrRecord(m_iId, ORVA_MEMORY_LOCAL, record.Out()))) {
        return;
    }
    KeptProperty property;
    while (!IsCancelled() && propertyAt(record.Get(), int(m_listProperties.size()), property) == ORVA_OK) {
        m_listProperties.append(property);
    }
}

void KeptChange::Run()
{
    OwnedRecord record;
    if (succeeded(ORVA_PBSrv_GetAddrRecord(m_iId, ORVA_MEMORY_LOCAL, record.Out()))) {
        if (succeeded(change(record.Get()))) {
            succeeded(ORVA_PBSrv_UpdateAddrRec(record.Get(), m_iId));
        }
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
