#include "window/MenuEntries.h"

#include <QAction>
#include <QObject>

#include "logic/AddrBookTypes.h"

namespace
{
struct MenuEntry {
    const char* szId;
    const char* szSlot; // null for an entry that is connected to nothing
};

const MenuEntry TABLE_ENTRIES[] = {
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

const MenuEntry TREE_ENTRIES[] = {
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

QAction* MenuEntries::find(const QString& strId, const QList<MENU::QActionInfo>& lstActions)
{
    if (strId.isEmpty())
        return nullptr;
    for (int i = 0; i < lstActions.size(); ++i) {
        if (lstActions.at(i).strId == strId)
            return lstActions.at(i).pAction;
    }
    return nullptr;
}

void MenuEntries::connectTo(QObject* pWindow, const MENU::QActionInfo& info) const
{
    const char* const szSlot = m_enMenu == TABLE ? slotOf(TABLE_ENTRIES, info.strId) : slotOf(TREE_ENTRIES, info.strId);
    if (szSlot != nullptr && info.pAction != nullptr)
        QObject::connect(info.pAction, SIGNAL(triggered()), pWindow, szSlot);
}

void MenuEntries::enable(const char* szId, bool bEnable) const
{
    QAction* pAction = find(QLatin1String(szId), m_lstActions);
    if (pAction != nullptr)
        pAction->setEnabled(bEnable);
}

void applyMenuRules(const MenuSituation& situation, const MenuEntries& table, const MenuEntries& tree)
{
    tree.enable("IDS_SEND_MSG", situation.bOnline && situation.bSms);
    if (situation.bMmsListed)
        tree.enable("IDS_SEND_MMS", situation.bOnline && situation.bSms);
    table.enable("IDS_EXPORT_PHONEBOOK", situation.bRows);
    table.enable("IDS_PMMENU_SEND",
                 situation.iSelection != ADDRBOOK_ENABLE_TABLE_NONE && situation.bOnline && situation.bSms);
    table.enable("IDS_PMMENU_CALL", situation.iSelection == ADDRBOOK_ENABLE_TABLE_SINGLE && situation.bOnline);
    table.enable("IDS_PMMENU_VIDEO_CALL", false);
    table.enable("IDS_PMMENU_REMFRGRP", false);
}
