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

void AddrBookDlg::removeSimNode(const char* szLog)
{
    if (m_pitemSimTreeWidgetItem == nullptr || m_ptreePhonebook == nullptr)
        return;
    ADDRBOOK_LOG("%s", szLog);
    removeTreeItem(m_ptreePhonebook->invisibleRootItem(), m_pitemSimTreeWidgetItem);
    broadcastMsg(PHONEBOOK_CARD_NODE, 0, 0);
    m_pitemSimTreeWidgetItem = nullptr;
    m_batch.cancelOn(PB_MEM_SIM);
}

void AddrBookDlg::removeDeviceNode(const char* szLog, unsigned int uiMsg)
{
    if (m_pitemDeviceTreeWidgetItem == nullptr || m_ptreePhonebook == nullptr)
        return;
    ADDRBOOK_LOG("%s", szLog);
    removeTreeItem(m_ptreePhonebook->invisibleRootItem(), m_pitemDeviceTreeWidgetItem);
    broadcastMsg(uiMsg, 0, 0);
    m_pitemDeviceTreeWidgetItem = nullptr;
    m_batch.cancelOn(PB_MEM_ME);
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
    removeSimNode("Sim Node removed");
    removeDeviceNode("Device Node removed", PHONEBOOK_DEVICE_NODE);
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
    removeSimNode("Sim Node removed");
}

void AddrBookDlg::OnSysmodeChanged()
{
    if (m_ptreePhonebook != nullptr && m_ptreePhonebook->currentItem() != m_pitemLocalTreeWidgetItem)
        OnTreeClicked(m_pitemLocalTreeWidgetItem);
    removeSimNode("Sim Node removed");
    // Receivers know the change of system mode by the card's code coming twice.
    removeDeviceNode("NV Node removed", PHONEBOOK_CARD_NODE);
}

void AddrBookDlg::OnAddrBookSimReady()
{
    if (m_pitemSimTreeWidgetItem == nullptr)
        updateDeviceAndSimNode(true);
    setNodeText(m_pitemSimTreeWidgetItem, PB_MEM_SIM, true);
    m_pitemCurrentTreeWidgetItem = nullptr;
    if (m_ptreePhonebook != nullptr && m_pitemSimTreeWidgetItem != nullptr &&
        m_ptreePhonebook->currentItem() == m_pitemSimTreeWidgetItem)
        OnTreeClicked(m_pitemSimTreeWidgetItem);
}

void AddrBookDlg::OnAddrBookDeviceReady()
{
    if (m_pitemDeviceTreeWidgetItem == nullptr)
        updateDeviceAndSimNode(true);
    setNodeText(m_pitemDeviceTreeWidgetItem, PB_MEM_ME, true);
    m_pitemCurrentTreeWidgetItem = nullptr;
    if (m_ptreePhonebook != nullptr && m_pitemDeviceTreeWidgetItem != nullptr &&
        m_ptreePhonebook->currentItem() == m_pitemDeviceTreeWidgetItem)
        OnTreeClicked(m_pitemDeviceTreeWidgetItem);
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
