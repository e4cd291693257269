#include <QPointer>

#include "dialogs/AddrBookSelectContactsDlg.h"
#include "linkhand/core/Startup.h"
#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/IDeviceMgr.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "window/AddrBookDlg.h"
#include "window/Notices.h"

QObject* AddrBookDlg::getPlugin(const QString& strPluginId, int iKind)
{
    m_pPluginContainer = Startup::GetPluginContainer();
    return m_pPluginContainer != nullptr ? m_pPluginContainer->GetPlugin(strPluginId, iKind) : nullptr;
}

IDeviceMgr* AddrBookDlg::getDeviceMgrPlugin()
{
    IDeviceMgr* pManager =
        qobject_cast<IDeviceMgr*>(getPlugin(QLatin1String(LINKHAND_DEVICEMGR_ID), LINKHAND_DEVICEMGR_KIND));
    ADDRBOOK_LOG("%s", pManager != nullptr ? "device manager found" : "device manager is not loaded");
    return pManager;
}

void AddrBookDlg::broadcastMsg(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2)
{
    Notices::broadcast(getPlugin(QLatin1String(LINKHAND_NOTIFY_ID), LINKHAND_NOTIFY_KIND), uiMsg, uiParam1, uiParam2);
}

void AddrBookDlg::pushNotify(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2)
{
    Notices::push(uiMsg, uiParam1, uiParam2);
}

void AddrBookDlg::sendNotifyToSMS(int iRecordId, unsigned int uiMsg)
{
    Notices::announce(m_listNotifyRecords, m_enMemory, iRecordId, uiMsg);
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
