#include "logic/RecordReader.h"

#include "linkhand/QtCompat.h"
#include "linkhand/SdkText.h"
#include "logic/SdkCall.h"
#include "orva/orva_sdk.h"

RecordReader::RecordReader(const QList<AddrBookField>& lstFields)
{
    m_vecKeys.reserve(lstFields.size());
    for (const AddrBookField& field : lstFields)
        m_vecKeys.append(QtCompat::toAscii(field.strName));
}

bool RecordReader::readSetValue(void* hAddrRecordSet, int iField, QString& strValue) const
{
    SdkText text;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_AddrRecordSet_GetValue, (hAddrRecordSet, m_vecKeys[iField].constData(), text.out()));
    if (lResult != 0)
        return false;
    strValue = text.toString();
    return true;
}

bool RecordReader::readSetRecord(void* hAddrRecordSet, AddrBookRecord& record) const
{
    if (!readSetId(hAddrRecordSet, record.iID))
        return false;
    const int iCount = m_vecKeys.size();
    record.lstValues.reserve(iCount);
    for (int i = 0; i < iCount; ++i) {
        QString strValue;
        if (!readSetValue(hAddrRecordSet, i, strValue))
            return false;
        record.lstValues.append(strValue);
    }
    return true;
}

bool RecordReader::readRecord(void* hAddrRecord, QList<QString>& lstValues) const
{
    lstValues.reserve(lstValues.size() + m_vecKeys.size());
    for (const QByteArray& baKey : m_vecKeys) {
        SdkText text;
        long lResult = 0;
        SDK_CALL(lResult, ORVA_PBSrv_AddrRecord_GetValue, (hAddrRecord, baKey.constData(), text.out()));
        if (lResult != 0)
            return false;
        lstValues.append(text.toString());
    }
    return true;
}

bool readSetId(void* hAddrRecordSet, int& iID)
{
    long lResult = 0;
    iID = 0;
    SDK_CALL(lResult, ORVA_PBSrv_AddrRecordSet_GetID, (hAddrRecordSet, &iID));
    return lResult == 0;
}
