#include <QPointer>

#include "dialogs/AddrBookSelectContactsDlg.h"
#include "linkhand/core/Startup.h"
#include "linkhand/plugin/INotifyService.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "window/AddrBookDlg.h"
#include "window/PluginIds.h"

namespace
{
// A number as a notification carries it: 0 for one that does not fit or begins with a plus sign.
int numberOf(const QString& strValue)
{
    if (strValue.trimmed().startsWith(QLatin1Char('+')))
        return 0;
    return strValue.toInt(nullptr, 10);
}
} // namespace

QObject* AddrBookDlg::getPlugin(const QString& strPluginId, int iKind)
{
    m_pPluginContainer = Startup::GetPluginContainer();
    return m_pPluginContainer != nullptr ? m_pPluginContainer->GetPlugin(strPluginId, iKind) : nullptr;
}

IDeviceMgr* AddrBookDlg::getDeviceMgrPlugin()
{
    IDeviceMgr* pManager = qobject_cast<IDeviceMgr*>(getPlugin(PluginId::deviceMgr(), PLUGIN_KIND_SERVICE));
    ADDRBOOK_LOG("%s", pManager != nullptr ? "device manager found" : "device manager is not loaded");
    return pManager;
}

void AddrBookDlg::broadcastMsg(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2)
{
    INotifyService* pService = qobject_cast<INotifyService*>(getPlugin(PluginId::notify(), PLUGIN_KIND_NOTIFY));
    if (pService != nullptr)
        pService->Broadcast(uiMsg, uiParam1, uiParam2);
}

void AddrBookDlg::pushNotify(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2)
{
    IPluginContainer* pContainer = Startup::GetPluginContainer();
    if (pContainer == nullptr) {
        ADDRBOOK_LOG_UNTIMED("Plugin container is null ");
        return;
    }
    QObject* pPlugin = pContainer->GetPlugin(PluginId::notify(), PLUGIN_KIND_NOTIFY);
    if (pPlugin == nullptr) {
        ADDRBOOK_LOG_UNTIMED("plugin is not loaded ");
        return;
    }
    INotifyService* pService = qobject_cast<INotifyService*>(pPlugin);
    if (pService != nullptr)
        pService->Push(uiMsg, uiParam1, uiParam2);
}

void AddrBookDlg::sendNotifyToSMS(int iRecordId, unsigned int uiMsg)
{
    announce(m_listNotifyRecords, m_enMemory, iRecordId, uiMsg);
}

void AddrBookDlg::announce(QList<AddrBookRecord>& lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordId,
                           unsigned int uiMsg)
{
    int i = 0;
    while (i < lstRecords.size()) {
        if (lstRecords.at(i).iID != iRecordId) {
            ++i;
            continue;
        }
        const AddrBookRecord record = lstRecords.takeAt(i);
        foreach (const QString& strValue, record.lstValues) {
            const int iNumber = numberOf(strValue);
            ADDRBOOK_LOG_LINE("phone number=%d", iNumber);
            pushNotify(uiMsg, enMemory, static_cast<unsigned int>(iNumber));
        }
    }
}

bool AddrBookDlg::isPhoneField(const QString& strFieldName) const
{
    if (m_pAddrBookLogic == nullptr)
        return false;
    QList<QString> lstIds;
    m_pAddrBookLogic->GetPhoneFieldLangID(m_enDragSourceMemory, lstIds);
    return lstIds.contains(strFieldName);
}

int AddrBookDlg::getPhoneFieldCount(const QList<QString>& lstFieldNames) const
{
    int iCount = 0;
    foreach (const QString& strName, lstFieldNames)
        iCount += isPhoneField(strName) ? 1 : 0;
    return iCount;
}

bool AddrBookDlg::OpenNumSelectDlg(bool bFlag, FIELD_TYPE enFieldType, QList<QString>& lstNumbers)
{
    ADDRBOOK_LOG_ENTER();
    // While it runs it belongs to the host's window, which may go and take it away; this window goes along then.
    const QPointer<AddrBookSelectContactsDlg> pdlg(new (std::nothrow) AddrBookSelectContactsDlg);
    if (pdlg.isNull())
        return false;
    pdlg->InitDlg(this, m_pAddrBookLogic, bFlag, enFieldType, lstNumbers);
    pdlg->Exec();
    if (pdlg.isNull())
        return false;
    const bool bConfirmed = pdlg->GetButtonClicked();
    if (bConfirmed)
        pdlg->GetRecords(lstNumbers);
    delete pdlg.data();
    ADDRBOOK_LOG_EXIT();
    return bConfirmed;
}
