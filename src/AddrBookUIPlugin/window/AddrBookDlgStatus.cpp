#include "dialogs/AddrBookSelectContactsDlg.h"
#include "linkhand/plugin/Codes.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"
#include "window/ToolItemIds.h"

namespace
{
void tell(AddrBookSelectContactsDlg* pdlg, bool bIsSimEnabled)
{
    if (pdlg != nullptr)
        pdlg->OnSimStatusChanged(bIsSimEnabled);
}
} // namespace

void AddrBookDlg::getUpdateDeviceAndSimNode()
{
    updateDeviceAndSimNode(true);
}

void AddrBookDlg::removeMemoryNode(QTreeWidgetItem*& pitem, _ORVA_EN_PHONEBOOK_MEMORY enType, const char* szLog,
                                   unsigned int uiMsg)
{
    if (pitem == nullptr || m_ptreePhonebook == nullptr)
        return;
    ADDRBOOK_LOG("%s", szLog);
    removeTreeItem(m_ptreePhonebook->invisibleRootItem(), pitem);
    broadcastMsg(uiMsg, 0, 0);
    pitem = nullptr;
    m_batch.cancelOn(enType);
}

void AddrBookDlg::removeSimNode()
{
    removeMemoryNode(m_pitemSimTreeWidgetItem, PB_MEM_SIM, "Sim Node removed", PHONEBOOK_CARD_NODE);
}

void AddrBookDlg::OnDeviceStatusChanged(bool isDeviceConnected)
{
    ADDRBOOK_LOG_ENTER();
    m_bSimEnabled = isDeviceConnected;
    if (isDeviceConnected) {
        updateDeviceAndSimNode(true);
        tell(m_pdlgSelectContacts, isDeviceConnected);
        return;
    }
    if (m_pAddrBookLogic == nullptr)
        return;
    m_pAddrBookLogic->ClearDeviceInfo();
    QTreeWidgetItem* pCurrent = m_ptreePhonebook != nullptr ? m_ptreePhonebook->currentItem() : nullptr;
    if (pCurrent != nullptr && (pCurrent == m_pitemSimTreeWidgetItem || pCurrent == m_pitemDeviceTreeWidgetItem))
        OnTreeClicked(m_pitemLocalTreeWidgetItem);
    removeSimNode();
    removeMemoryNode(m_pitemDeviceTreeWidgetItem, PB_MEM_ME, "Device Node removed", PHONEBOOK_DEVICE_NODE);
    m_pitemCurrentTreeWidgetItem = nullptr;
    tell(m_pdlgSelectContacts, isDeviceConnected);
}

void AddrBookDlg::OnSimStatusChanged(bool bIsSimEnabled)
{
    tell(m_pdlgSelectContacts, bIsSimEnabled);
    if (bIsSimEnabled == m_bSimEnabled)
        return;
    if (bIsSimEnabled) {
        ADDRBOOK_LOG("OnSimStatusChanged - Sim node added");
        // A node that is there stays the card's one node.
        if (!isNodePresentInTree(m_pitemSimTreeWidgetItem))
            addTreeNode(&m_pitemSimTreeWidgetItem, PB_MEM_SIM);
    } else if (m_ptreePhonebook != nullptr) {
        QTreeWidgetItem* pRoot = m_ptreePhonebook->invisibleRootItem();
        for (int i = pRoot->childCount() - 1; i >= 0; --i) {
            if (pRoot->child(i) != m_pitemSimTreeWidgetItem)
                continue;
            removeTreeItem(pRoot, m_pitemSimTreeWidgetItem);
            broadcastMsg(PHONEBOOK_CARD_NODE, 0, 0);
            m_pitemSimTreeWidgetItem = nullptr;
            break;
        }
    }
    m_bSimEnabled = bIsSimEnabled;
}

void AddrBookDlg::OnSimDisabled(bool bIsSimDisabled)
{
    if (!bIsSimDisabled) {
        updateDeviceAndSimNode(true);
        return;
    }
    if (m_ptreePhonebook != nullptr && m_pitemSimTreeWidgetItem != nullptr &&
        m_ptreePhonebook->currentItem() == m_pitemSimTreeWidgetItem)
        OnTreeClicked(m_pitemLocalTreeWidgetItem);
    removeSimNode();
}

void AddrBookDlg::OnSysmodeChanged()
{
    if (m_ptreePhonebook != nullptr && m_ptreePhonebook->currentItem() != m_pitemLocalTreeWidgetItem)
        OnTreeClicked(m_pitemLocalTreeWidgetItem);
    removeSimNode();
    // Receivers know the change of system mode by the card's code coming twice.
    removeMemoryNode(m_pitemDeviceTreeWidgetItem, PB_MEM_ME, "NV Node removed", PHONEBOOK_CARD_NODE);
}

void AddrBookDlg::OnAddrBookSimReady()
{
    showReadyMemory(m_pitemSimTreeWidgetItem, PB_MEM_SIM);
}

void AddrBookDlg::OnAddrBookDeviceReady()
{
    showReadyMemory(m_pitemDeviceTreeWidgetItem, PB_MEM_ME);
}

// The node comes with the first look at the memory if it was not there.
void AddrBookDlg::showReadyMemory(QTreeWidgetItem*& pitem, _ORVA_EN_PHONEBOOK_MEMORY enType)
{
    if (pitem == nullptr)
        updateDeviceAndSimNode(true);
    setNodeText(pitem, enType, true);
    m_pitemCurrentTreeWidgetItem = nullptr;
    if (m_ptreePhonebook != nullptr && pitem != nullptr && m_ptreePhonebook->currentItem() == pitem)
        OnTreeClicked(pitem);
}

void AddrBookDlg::OnAddrBookReady() {}

void AddrBookDlg::OnNetStatusChanged(bool bIsNetSrvConnected)
{
    if (bIsNetSrvConnected && !m_bRFOff) {
        const int iStatus = tableSelectionStatus();
        if (iStatus != ADDRBOOK_ENABLE_TABLE_NONE) {
            enableItem(TOOL_SEND);
            updateTableSend(true);
            if (iStatus == ADDRBOOK_ENABLE_TABLE_SINGLE) {
                updateTableCall(true);
                enableItem(TOOL_CALL);
            }
        }
    } else {
        disableItem(TOOL_SEND);
        disableItem(TOOL_CALL);
        updateTableSend(false);
        updateTableCall(false);
    }
    m_bNetConnected = bIsNetSrvConnected;
}

void AddrBookDlg::OnRFStatusChanged(bool bIsRFEnabled)
{
    if (m_bNetConnected && !bIsRFEnabled) {
        // The call goes on for several rows too; the next selection change puts that right.
        if (tableSelectionStatus() != ADDRBOOK_ENABLE_TABLE_NONE) {
            enableItem(TOOL_SEND);
            enableItem(TOOL_CALL);
            updateTableSend(true);
            updateTableCall(true);
        }
    } else {
        updateTableSend(false);
        updateTableCall(false);
        disableItem(TOOL_SEND);
        disableItem(TOOL_CALL);
    }
    m_bRFOff = bIsRFEnabled;
}
