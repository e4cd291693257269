#include <memory>
#include <new>
#include <utility>

#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/SdkProfile.h"

// The field lists of the memories, fetched from the SDK's profiles and kept.

int AddrBookLogic::GetAllFields(QList<AddrBookField>& lstFields, _ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    int iGeneration = 0;
    {
        const std::lock_guard<std::mutex> locker(m_mutexCaches);
        const auto it = m_hashFields.constFind(enMemory);
        if (it != m_hashFields.constEnd())
            lstFields = it->lstFields;
        iGeneration = m_iDeviceGeneration;
    }
    if (!lstFields.isEmpty())
        return ADDRBOOK_OK;
    if (fetchFields(lstFields, enMemory) != ADDRBOOK_OK)
        return ADDRBOOK_FAILED;

    const std::lock_guard<std::mutex> locker(m_mutexCaches);
    if (!isDeviceMemory(enMemory) || iGeneration == m_iDeviceGeneration)
        m_hashFields[enMemory].lstFields = lstFields;
    return ADDRBOOK_OK;
}

int AddrBookLogic::fetchFields(QList<AddrBookField>& lstFields, _ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    SdkProfile profile(enMemory);
    if (!profile.fetch())
        return ADDRBOOK_FAILED;
    const int iCount = profile.count();
    lstFields.reserve(iCount);
    for (int i = 0; i < iCount; ++i) {
        const std::unique_ptr<AddrBookField> pField(new (std::nothrow) AddrBookField);
        if (pField == nullptr)
            continue;
        const ORVA_PROFILE_ENTRY& entry = profile.at(i);
        pField->strName = QString::fromLatin1(entry.key);
        pField->strType = QString::fromLatin1(entry.kind);
        pField->strLangID = QString::fromLatin1(entry.label_id);
        pField->strExcludeChars = QString::fromLatin1(entry.refused);
        pField->strIncludeChars = QString::fromLatin1(entry.accepted);
        pField->bFlag = entry.flag != 0;
        pField->iReserved1 = 0;
        pField->iReserved2 = 0;
        pField->iReserved3 = 0;
        pField->iMaxLength = entry.max_length;
        lstFields.append(*pField);
        if (enMemory == PB_MEM_LOCAL && pField->strType == QLatin1String("Mobile")) {
            const std::lock_guard<std::mutex> locker(m_mutexCaches);
            m_iMobileIndex = i;
        }
    }
    return profile.release() ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}

int AddrBookLogic::GetAllFieldsForOutlook(QList<QString>& lstNames, _ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    ADDRBOOK_LOG_CALLED();
    SdkProfile profile(enMemory);
    if (!profile.fetch())
        return ADDRBOOK_FAILED;
    for (int i = 0; i < profile.count(); ++i)
        lstNames.append(QString::fromLatin1(profile.at(i).key));
    return profile.release() ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}

void AddrBookLogic::GetFieldNames(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QList<QString>& lstNames)
{
    QList<AddrBookField> lstFields;
    GetAllFields(lstFields, enMemory);
    lstNames.clear();
    for (const AddrBookField& field : std::as_const(lstFields))
        lstNames.append(field.strLangID);
}

void AddrBookLogic::GetPhoneFieldLangID(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QList<QString>& lstNames)
{
    QList<AddrBookField> lstFields;
    GetAllFields(lstFields, enMemory);
    lstNames.clear();
    for (const AddrBookField& field : std::as_const(lstFields))
        if (field.strType == QLatin1String("Mobile") || field.strType == QLatin1String("Number"))
            lstNames.append(field.strLangID);
}
