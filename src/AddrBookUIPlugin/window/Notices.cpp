#include "window/Notices.h"

#include "linkhand/core/Startup.h"
#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/INotifyService.h"
#include "linkhand/plugin/IPluginContainer.h"
#include "logic/Log.h"

void Notices::broadcast(QObject* pPlugin, unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2)
{
    INotifyService* pService = qobject_cast<INotifyService*>(pPlugin);
    if (pService != nullptr)
        pService->Broadcast(uiMsg, uiParam1, uiParam2);
}

void Notices::push(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2)
{
    IPluginContainer* pContainer = Startup::GetPluginContainer();
    if (pContainer == nullptr) {
        ADDRBOOK_LOG_UNTIMED("Plugin container is null ");
        return;
    }
    QObject* pPlugin = pContainer->GetPlugin(QLatin1String(LINKHAND_NOTIFY_ID), LINKHAND_NOTIFY_KIND);
    if (pPlugin == nullptr) {
        ADDRBOOK_LOG_UNTIMED("plugin is not loaded ");
        return;
    }
    INotifyService* pService = qobject_cast<INotifyService*>(pPlugin);
    if (pService != nullptr)
        pService->Push(uiMsg, uiParam1, uiParam2);
}

QList<AddrBookRecord> Notices::numbersOf(const QList<AddrBookRecord>& lstRecords, const QList<AddrBookField>& lstFields)
{
    QList<AddrBookRecord> lstNumbers;
    foreach (const AddrBookRecord& record, lstRecords) {
        AddrBookRecord numbers;
        numbers.iID = record.iID;
        for (int i = 0; i < lstFields.size() && i < record.lstValues.size(); ++i) {
            const QString& strType = lstFields.at(i).strType;
            const bool bPhone = strType == QLatin1String("Mobile") || strType == QLatin1String("Number");
            if (bPhone && !record.lstValues.at(i).isEmpty())
                numbers.lstValues.append(record.lstValues.at(i));
        }
        lstNumbers.append(numbers);
    }
    return lstNumbers;
}

void Notices::announce(QList<AddrBookRecord>& lstNumbers, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordId,
                       unsigned int uiMsg)
{
    int i = 0;
    while (i < lstNumbers.size()) {
        if (lstNumbers.at(i).iID != iRecordId) {
            ++i;
            continue;
        }
        const AddrBookRecord record = lstNumbers.takeAt(i);
        foreach (const QString& strValue, record.lstValues) {
            const int iNumber = numberIn(strValue);
            ADDRBOOK_LOG_LINE("phone number=%d", iNumber);
            push(uiMsg, enMemory, static_cast<unsigned int>(iNumber));
        }
    }
}

int Notices::numberIn(const QString& strValue)
{
    if (strValue.trimmed().startsWith(QLatin1Char('+')))
        return 0;
    return strValue.toInt(nullptr, 10);
}
