#include "linkhand/SdkText.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/SdkCall.h"
#include "logic/SdkHandle.h"
#include "logic/TextCut.h"

// Storing, changing and deleting single contacts.

namespace
{

bool isKey(const AddrBookField& field, const char* pszKey)
{
    return field.strName.compare(QLatin1String(pszKey), Qt::CaseInsensitive) == 0;
}

bool isPhoneKey(const AddrBookField& field)
{
    return isKey(field, "Mobile") || isKey(field, "officePhone") || isKey(field, "homePhone");
}

// Makes the SDK's record of a contact, for the operation that is named.
int makeRecord(AddrBookLogic& logic, const char* pszOperation, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
               const QList<QString>& lstValues, SdkRecord& record, int& iNonEmpty)
{
    QList<AddrBookField> lstFields;
    logic.GetAllFields(lstFields, enMemory);
    if (lstFields.size() != lstValues.size()) {
        qWarning("%s: %s: %s: number of fields are not matching in %s and exiting", AddrBookLog::now().constData(),
                 ADDRBOOK_FILE, pszOperation, pszOperation);
        return ADDRBOOK_MISMATCH;
    }
    return logic.createAddrRecSetValues(enMemory, record.out(), lstValues, lstFields, iNonEmpty) ? ADDRBOOK_OK
                                                                                                 : ADDRBOOK_FAILED;
}

} // namespace

bool AddrBookLogic::createAddrRecSetValues(_ORVA_EN_PHONEBOOK_MEMORY enMemory, void*& hAddrRecord,
                                           QList<QString> lstValues, QList<AddrBookField> lstFields, int& iNonEmpty)
{
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_CreateAddrRecord, (enMemory, &hAddrRecord));
    if (lResult != 0 || hAddrRecord == nullptr)
        return false;
    const int iCount = qMin(lstFields.size(), lstValues.size());
    for (int i = 0; i < iCount; ++i) {
        const AddrBookField& field = lstFields.at(i);
        const QString& strWhole = lstValues.at(i);
        // The checks look at the whole value: a bad character refuses the record even where it would be cut off.
        if (isPhoneKey(field) && !isValidPhoneNum(strWhole))
            return false;
        if (isKey(field, "email") && IsValidEmail(strWhole) != 0)
            return false;
        const QString strValue = cutText(strWhole, field.iMaxLength);
        if (!strValue.isEmpty())
            ++iNonEmpty;
        SDK_CALL(lResult, ORVA_PBSrv_AddrRecord_SetValue,
                 (hAddrRecord, QtCompat::toAscii(field.strName).constData(), sdkText(strValue)));
        if (lResult != 0)
            return false;
    }
    return true;
}

int AddrBookLogic::AddRecord(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QList<QString> lstValues, int& iRecordID)
{
    ADDRBOOK_LOG_CALLED();
    SdkRecord record;
    int iNonEmpty = 0;
    const int iResult = makeRecord(*this, __func__, enMemory, lstValues, record, iNonEmpty);
    if (iResult != ADDRBOOK_OK)
        return iResult;
    long lResult = 1; // what a contact without any content keeps: it is never stored
    if (iNonEmpty > 0)
        SDK_CALL(lResult, ORVA_PBSrv_AddAddrRec, (record.get(), &iRecordID));
    return lResult == 0 ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}

int AddrBookLogic::UpdateRecord(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordID, const QList<QString>& lstValues)
{
    ADDRBOOK_LOG_CALLED();
    SdkRecord record;
    int iNonEmpty = 0;
    const int iResult = makeRecord(*this, __func__, enMemory, lstValues, record, iNonEmpty);
    if (iResult != ADDRBOOK_OK)
        return iResult;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_UpdateAddrRec, (record.get(), iRecordID));
    return lResult == 0 ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}

int AddrBookLogic::DelRecord(_ORVA_EN_PHONEBOOK_MEMORY enMemory, const int& iRecordID)
{
    ADDRBOOK_LOG_CALLED();
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_DelAddrRec, (iRecordID, enMemory));
    return lResult == 0 ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}
