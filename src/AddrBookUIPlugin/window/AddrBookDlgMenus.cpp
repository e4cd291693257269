#include <QAction>
#include <QContextMenuEvent>
#include <QCursor>
#include <QHeaderView>
#include <QMenu>

#include "linkhand/core/Startup.h"
#include "linkhand/plugin/Codes.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"
#include "window/ToolItemIds.h"

void AddrBookDlg::constructContextMenu()
{
    ADDRBOOK_LOG_ENTER();
    if (m_pBuildMenu == nullptr)
        m_pBuildMenu = new (std::nothrow) MENU::QBuildMenu(addrBookPluginName(), QLatin1String("Config.xml"));
    if (m_pBuildMenu == nullptr)
        return;
    if (m_ptableContacts != nullptr) {
        // The table on screen is replaced at each switch of node; the menu's owner lives as long as the window. It lies
        // in the window that is seen: under Wayland the menu of one that never is comes up as a window of its own.
        m_ptableMenuOwner = new (std::nothrow) QTableWidget(m_ptreePhonebook);
        if (m_ptableMenuOwner != nullptr)
            m_ptableMenuOwner->hide();
        m_pmenuTable = m_pBuildMenu->CreateMenuBar(QLatin1String("listview"), m_ptableMenuOwner, &m_listTableActions);
    }
    tableMenuConnect();
    if (m_ptreePhonebook != nullptr)
        m_pmenuTree = m_pBuildMenu->CreateMenuBar(QLatin1String("tree"), m_ptreePhonebook, &m_listTreeActions);
    removeTreeMenuItem(QLatin1String(LINKHAND_MMS_ID), QLatin1String("IDS_SEND_MMS"));
    treeMenuConnect();
    setMenuShortCuts();
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::tableMenuConnect()
{
    QMenu* pmenuSend = nullptr;
    foreach (const MENU::QActionInfo& info, m_listTableActions) {
        m_tableEntries.connectTo(this, info);
        if (info.strId == QLatin1String("IDS_PMMENU_SEND") && info.pAction != nullptr)
            pmenuSend = info.pAction->menu();
        else if (info.strId == QLatin1String("IDS_PMMENU_SEND_MMS"))
            tableMenuConnectMMS(info, pmenuSend);
        else if (info.strId == QLatin1String("IDS_PMMENU_CALL"))
            tableMenuConnectCall(info, QLatin1String(LINKHAND_VOICECALL_ID));
        else if (info.strId == QLatin1String("IDS_PMMENU_VIDEO_CALL"))
            tableMenuConnectCall(info, QLatin1String(LINKHAND_VIDEOCALL_ID));
    }
}

void AddrBookDlg::treeMenuConnect()
{
    foreach (const MENU::QActionInfo& info, m_listTreeActions)
        m_treeEntries.connectTo(this, info);
}

// One setting rules for voice and video.
void AddrBookDlg::tableMenuConnectCall(const MENU::QActionInfo& info, const QString& strPluginId)
{
    const bool bAllowed =
        CommonUtils::GetSettings(QLatin1String("callui"), QLatin1String("callvoice")).startsWith(QLatin1Char('1'));
    if (getPlugin(strPluginId, LINKHAND_PRESENCE_KIND) != nullptr && bAllowed)
        return;
    if (m_pmenuTable != nullptr)
        m_pmenuTable->removeAction(info.pAction);
}

void AddrBookDlg::tableMenuConnectMMS(const MENU::QActionInfo& info, QMenu* pmenuSend)
{
    if (pmenuSend != nullptr && getPlugin(QLatin1String(LINKHAND_MMS_ID), LINKHAND_PRESENCE_KIND) == nullptr)
        pmenuSend->removeAction(info.pAction);
}

void AddrBookDlg::removeTreeMenuItem(const QString& strPluginId, const QString& strActionId)
{
    if (ToolBarLogic::getPlugin(strPluginId) || m_pmenuTree == nullptr)
        return;
    for (int i = 0; i < m_listTreeActions.size(); ++i) {
        if (m_listTreeActions.at(i).strId != strActionId)
            continue;
        m_pmenuTree->removeAction(m_listTreeActions.at(i).pAction);
        m_listTreeActions.removeAt(i);
        return;
    }
}

QAction* AddrBookDlg::getAction(const QString& strId, const QList<MENU::QActionInfo>& lstActions) const
{
    return MenuEntries::find(strId, lstActions);
}

void AddrBookDlg::updateTableSend(bool bEnable)
{
    m_tableEntries.enable("IDS_PMMENU_SEND_MSG", bEnable);
}

void AddrBookDlg::updateTableCall(bool bEnable)
{
    m_tableEntries.enable("IDS_PMMENU_CALL", bEnable);
}

void AddrBookDlg::enableOutlookMenu(bool bEnable, int iId)
{
    if (iId == TOOL_IMPORT_MOO)
        m_tableEntries.enable("IDS_PMMENU_IMPORT_FROM_MOO", bEnable);
    else if (iId == TOOL_IMPORT_MOE)
        m_tableEntries.enable("IDS_PMMENU_IMPORT_FROM_MOE", bEnable);
}

void AddrBookDlg::updateTableMenu(bool bDetail, bool bDelete, bool bExportSelected)
{
    m_tableEntries.enable("IDS_PMMENU_DETAIL", bDetail);
    m_tableEntries.enable("IDS_PMMENU_DELETE", bDelete);
    m_tableEntries.enable("IDS_EXPORT_PHONEBOOKSEL", bExportSelected);
}

void AddrBookDlg::updateTreeMenu(bool bNew, bool bRename, bool bDelete)
{
    m_treeEntries.enable("IDS_Add_GROUP", bNew);
    m_treeEntries.enable("IDS_EDIT_GROUP", bRename);
    m_treeEntries.enable("IDS_DEL_GROUP", bDelete);
}

void AddrBookDlg::updateContextMenu(ADDRBOOK_ENABLE_STATUS enStatus)
{
    m_pPluginContainer = Startup::GetPluginContainer();
    if (m_pPluginContainer == nullptr) {
        ADDRBOOK_LOG_UNTIMED("Plugin container is null ");
        return;
    }
    const bool bSms = m_pPluginContainer->GetPlugin(QLatin1String(LINKHAND_SMS_ID), LINKHAND_SMS_KIND) != nullptr;
    if (!bSms)
        ADDRBOOK_LOG_UNTIMED("IBase plugin is null ");

    MenuSituation situation;
    situation.bOnline = isOnline();
    situation.bSms = bSms;
    situation.bMmsListed = ToolBarLogic::getPlugin(QLatin1String(LINKHAND_MMS_ID));
    situation.bRows = m_ptableContacts != nullptr && m_ptableContacts->rowCount() > 0;
    situation.iSelection = tableSelectionStatus();
    applyMenuRules(situation, m_tableEntries, m_treeEntries);
    updateMenu(enStatus, getAction(QLatin1String("IDS_PMMENU_REMFRGRP"), m_listTableActions));
}

void AddrBookDlg::updateMenu(ADDRBOOK_ENABLE_STATUS enStatus, QAction* pactionRemove)
{
    switch (enStatus) {
    case ADDRBOOK_ENABLE_TABLE_SINGLE:
        updateTableMenu(true, true, true);
        break;
    case ADDRBOOK_ENABLE_TABLE_MULTIPLE:
        updateTableMenu(false, true, true);
        break;
    case ADDRBOOK_ENABLE_TABLE_NONE:
        updateTableMenu(false, false, false);
        break;
    case ADDRBOOK_ENABLE_TREE_LOCAL:
        updateTreeMenu(true, false, false);
        break;
    case ADDRBOOK_ENABLE_TREE_GROUP:
        updateTreeMenu(m_bSubGroupSupported, true, true);
        break;
    case ADDRBOOK_ENABLE_TREE_DEVICE:
        updateTreeMenu(false, false, false);
        break;
    case ADDRBOOK_ENABLE_TABLE_IN_GROUP:
        if (pactionRemove != nullptr && tableSelectionStatus() != ADDRBOOK_ENABLE_TABLE_NONE)
            pactionRemove->setEnabled(true);
        break;
    }
}

void AddrBookDlg::OnTableEmptyAreaRightClicked()
{
    if (tableSelectionStatus() == ADDRBOOK_ENABLE_TABLE_NONE)
        disableSelectionItems();
}

void AddrBookDlg::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_ptreePhonebook != nullptr && m_ptreePhonebook->hasFocus())
        treeContextMenuEvent(event);
    else if (m_ptableContacts != nullptr && m_ptableContacts->hasFocus())
        tableContextMenuEvent(event);
}

void AddrBookDlg::treeContextMenuEvent(QContextMenuEvent* event)
{
    const QPoint ptCursor = QCursor::pos();
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = 0;
    getGroupId(enMemory, iGroupId);
    // Beside the tree there is no node, but scrolled away there may be one.
    const QPoint ptTree = m_ptreePhonebook->mapFrom(this, event->pos());
    if (!m_ptreePhonebook->rect().contains(ptTree) || !m_ptreePhonebook->indexAt(ptTree).isValid())
        return;
    if (isDeviceMemory(enMemory))
        updateContextMenu(ADDRBOOK_ENABLE_TREE_DEVICE);
    else if (iGroupId != 0)
        updateContextMenu(ADDRBOOK_ENABLE_TREE_GROUP);
    else
        updateContextMenu(ADDRBOOK_ENABLE_TREE_LOCAL);
    if (m_pmenuTree != nullptr)
        m_pmenuTree->exec(ptCursor);
}

void AddrBookDlg::tableContextMenuEvent(QContextMenuEvent* event)
{
    const QPoint ptCursor = QCursor::pos();
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = 0;
    getGroupId(enMemory, iGroupId);
    QPoint ptTable = m_ptableContacts->mapFrom(this, event->pos());
    if (ptTable.y() > m_ptableContacts->height())
        return;
    ptTable.ry() -= m_ptableContacts->horizontalHeader()->height();
    if (ptTable.y() < 0 && m_ptableContacts->GetSelectedIndexes().isEmpty())
        return;
    // On the header the point is above the rows, whatever has been scrolled up to there, and the menu opens as on an
    // empty area.
    if (ptTable.y() < 0 || !m_ptableContacts->indexAt(ptTable).isValid()) {
        showNoRecord();
        m_ptableContacts->setCurrentCell(-1, -1, QItemSelectionModel::Clear);
        updateContextMenu(ADDRBOOK_ENABLE_TABLE_NONE);
    } else {
        updateContextMenu(tableSelectionStatus() == ADDRBOOK_ENABLE_TABLE_SINGLE ? ADDRBOOK_ENABLE_TABLE_SINGLE
                                                                                 : ADDRBOOK_ENABLE_TABLE_MULTIPLE);
        if (iGroupId != 0)
            updateContextMenu(ADDRBOOK_ENABLE_TABLE_IN_GROUP);
    }
    checkMaxCapacity(enMemory, false);
    if (m_pmenuTable != nullptr)
        m_pmenuTable->exec(ptCursor);
}
