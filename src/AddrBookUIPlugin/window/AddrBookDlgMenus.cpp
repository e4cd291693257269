#include <QAction>
#include <QContextMenuEvent>
#include <QCursor>
#include <QHeaderView>
#include <QMenu>

#include "linkhand/core/Startup.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"
#include "window/PluginIds.h"
#include "window/ToolItemIds.h"

namespace
{
struct MenuEntry {
    const char* szId;
    const char* szSlot; // null for an entry that is connected to nothing
};

const MenuEntry s_lstTableEntries[] = {
    {"IDS_PMMENU_SEND", nullptr},
    {"IDS_PMMENU_SEND_MSG", SLOT(OnButtonClickedSendSMS())},
    {"IDS_PMMENU_SEND_MMS", SLOT(OnButtonClickedSendMMS())},
    {"IDS_PMMENU_ADD", SLOT(OnButtonClickedNewContact())},
    {"IDS_PMMENU_DETAIL", SLOT(OnButtonClickedEditContact())},
    {"IDS_PMMENU_DELETE", SLOT(OnButtonClickedDeleteContact())},
    {"IDS_PMMENU_REMFRGRP", SLOT(OnRemoveFromGroupClicked())},
    {"IDS_PMMENU_CALL", SLOT(OnButtonClickedCall())},
    {"IDS_PMMENU_VIDEO_CALL", nullptr},
    {"IDS_IMPORT_PHONEBOOK", SLOT(OnClickImport())},
    {"IDS_EXPORT_PHONEBOOKSEL", SLOT(OnClickExportSelectedContacts())},
    {"IDS_EXPORT_PHONEBOOK", SLOT(OnClickExportAllContacts())},
    {"IDS_PMMENU_IMPORT_FROM_MOE", SLOT(OnBnClickedBtnMOE())},
    {"IDS_PMMENU_IMPORT_FROM_MOO", SLOT(OnBnClickedBtnMOO())},
};

const MenuEntry s_lstTreeEntries[] = {
    {"IDS_Add_GROUP", SLOT(OnNewGroupClicked())},          {"IDS_EDIT_GROUP", SLOT(OnRenameGroupClicked())},
    {"IDS_DEL_GROUP", SLOT(OnDeleteGroupClicked())},       {"IDS_SEND_MSG", SLOT(OnButtonClickedSendGroupSMS())},
    {"IDS_SEND_MMS", SLOT(OnButtonClickedSendGroupMMS())}, {"IDS_PMMENU_CALL", SLOT(OnButtonClickedCall())},
};

template <int iCount>
const char* slotOf(const MenuEntry (&lstEntries)[iCount], const QString& strId)
{
    for (const MenuEntry& entry : lstEntries) {
        if (strId == QLatin1String(entry.szId))
            return entry.szSlot;
    }
    return nullptr;
}
} // namespace

void AddrBookDlg::constructContextMenu()
{
    ADDRBOOK_LOG_ENTER();
    if (m_pBuildMenu == nullptr)
        m_pBuildMenu = new (std::nothrow) MENU::QBuildMenu(addrBookPluginName(), QLatin1String("Config.xml"));
    if (m_pBuildMenu == nullptr)
        return;
    if (m_ptableContacts != nullptr) {
        // The table on screen is replaced at each switch of node; the menu's owner lives as long as the window.
        m_ptableMenuOwner = new (std::nothrow) QTableWidget;
        m_pmenuTable = m_pBuildMenu->CreateMenuBar(QLatin1String("listview"), m_ptableMenuOwner, &m_listTableActions);
    }
    tableMenuConnect();
    if (m_ptreePhonebook != nullptr)
        m_pmenuTree = m_pBuildMenu->CreateMenuBar(QLatin1String("tree"), m_ptreePhonebook, &m_listTreeActions);
    removeTreeMenuItem(PluginId::mms(), QLatin1String("IDS_SEND_MMS"));
    treeMenuConnect();
    setMenuShortCuts();
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::connectAction(const MENU::QActionInfo& info, const char* szSlot)
{
    if (szSlot != nullptr && info.pAction != nullptr)
        connect(info.pAction, SIGNAL(triggered()), this, szSlot);
}

void AddrBookDlg::tableMenuConnect()
{
    QMenu* pmenuSend = nullptr;
    foreach (const MENU::QActionInfo& info, m_listTableActions) {
        connectAction(info, slotOf(s_lstTableEntries, info.strId));
        if (info.strId == QLatin1String("IDS_PMMENU_SEND") && info.pAction != nullptr)
            pmenuSend = info.pAction->menu();
        else if (info.strId == QLatin1String("IDS_PMMENU_SEND_MMS"))
            tableMenuConnectMMS(info, pmenuSend);
        else if (info.strId == QLatin1String("IDS_PMMENU_CALL"))
            tableMenuConnectCall(info, PluginId::voiceCall());
        else if (info.strId == QLatin1String("IDS_PMMENU_VIDEO_CALL"))
            tableMenuConnectCall(info, PluginId::videoCall());
    }
}

void AddrBookDlg::treeMenuConnect()
{
    foreach (const MENU::QActionInfo& info, m_listTreeActions)
        connectAction(info, slotOf(s_lstTreeEntries, info.strId));
}

// One setting rules for voice and video.
void AddrBookDlg::tableMenuConnectCall(const MENU::QActionInfo& info, const QString& strPluginId)
{
    const bool bAllowed =
        CommonUtils::GetSettings(QLatin1String("callui"), QLatin1String("callvoice")).startsWith(QLatin1Char('1'));
    if (getPlugin(strPluginId, PLUGIN_KIND_PRESENCE) != nullptr && bAllowed)
        return;
    if (m_pmenuTable != nullptr)
        m_pmenuTable->removeAction(info.pAction);
}

void AddrBookDlg::tableMenuConnectMMS(const MENU::QActionInfo& info, QMenu* pmenuSend)
{
    if (pmenuSend != nullptr && getPlugin(PluginId::mms(), PLUGIN_KIND_PRESENCE) == nullptr)
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
    if (strId.isEmpty())
        return nullptr;
    for (int i = 0; i < lstActions.size(); ++i) {
        if (lstActions.at(i).strId == strId)
            return lstActions.at(i).pAction;
    }
    return nullptr;
}

void AddrBookDlg::setTableActionEnabled(const char* szId, bool bEnable)
{
    QAction* pAction = getAction(QLatin1String(szId), m_listTableActions);
    if (pAction != nullptr)
        pAction->setEnabled(bEnable);
}

void AddrBookDlg::setTreeActionEnabled(const char* szId, bool bEnable)
{
    QAction* pAction = getAction(QLatin1String(szId), m_listTreeActions);
    if (pAction != nullptr)
        pAction->setEnabled(bEnable);
}

void AddrBookDlg::updateTableSend(bool bEnable)
{
    setTableActionEnabled("IDS_PMMENU_SEND_MSG", bEnable);
}

void AddrBookDlg::updateTableCall(bool bEnable)
{
    setTableActionEnabled("IDS_PMMENU_CALL", bEnable);
}

void AddrBookDlg::enableOutlookMenu(bool bEnable, int iId)
{
    if (iId == TOOL_IMPORT_MOO)
        setTableActionEnabled("IDS_PMMENU_IMPORT_FROM_MOO", bEnable);
    else if (iId == TOOL_IMPORT_MOE)
        setTableActionEnabled("IDS_PMMENU_IMPORT_FROM_MOE", bEnable);
}

void AddrBookDlg::updateTableMenu(bool bDetail, bool bDelete, bool bExportSelected)
{
    setTableActionEnabled("IDS_PMMENU_DETAIL", bDetail);
    setTableActionEnabled("IDS_PMMENU_DELETE", bDelete);
    setTableActionEnabled("IDS_EXPORT_PHONEBOOKSEL", bExportSelected);
}

void AddrBookDlg::updateTreeMenu(bool bNew, bool bRename, bool bDelete)
{
    setTreeActionEnabled("IDS_Add_GROUP", bNew);
    setTreeActionEnabled("IDS_EDIT_GROUP", bRename);
    setTreeActionEnabled("IDS_DEL_GROUP", bDelete);
}

void AddrBookDlg::updateContextMenu(ADDRBOOK_ENABLE_STATUS enStatus)
{
    m_pPluginContainer = Startup::GetPluginContainer();
    if (m_pPluginContainer == nullptr) {
        ADDRBOOK_LOG_UNTIMED("Plugin container is null ");
        return;
    }
    const bool bSms = m_pPluginContainer->GetPlugin(PluginId::sms(), PLUGIN_KIND_SERVICE) != nullptr;
    if (!bSms)
        ADDRBOOK_LOG_UNTIMED("IBase plugin is null ");

    const int iSelection = tableSelectionStatus();
    setTreeActionEnabled("IDS_SEND_MSG", isOnline() && bSms);
    // The SMS plug-in decides for MMS too.
    if (ToolBarLogic::getPlugin(PluginId::mms()))
        setTreeActionEnabled("IDS_SEND_MMS", isOnline() && bSms);
    setTableActionEnabled("IDS_EXPORT_PHONEBOOK", m_ptableContacts != nullptr && m_ptableContacts->rowCount() > 0);
    setTableActionEnabled("IDS_PMMENU_SEND", iSelection != ADDRBOOK_ENABLE_TABLE_NONE && isOnline() && bSms);
    setTableActionEnabled("IDS_PMMENU_CALL", iSelection == ADDRBOOK_ENABLE_TABLE_SINGLE && isOnline());
    setTableActionEnabled("IDS_PMMENU_VIDEO_CALL", false);
    setTableActionEnabled("IDS_PMMENU_REMFRGRP", false);
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
