#include "dialogs/AddrBookSelectContactsDlg.h"

#include <new>

#include "logic/AddrBookUICommon.h"
#include "logic/Log.h"
#include "logic/MemoryList.h"
#include "logic/PointerCarrier.h"
#include "logic/Texts.h"

// How the tree follows the device and single changes of the phonebook. The numbers chosen stay as they are throughout.

// ---- The device ------------------------------------------------------------------------------------------------

// The SDK says which memories there are, whatever the signal said.
void AddrBookSelectContactsDlg::OnSimStatusChanged(bool)
{
    QList<int> lstMemories;
    if (m_bClosing || !readMemoryList(lstMemories))
        return;
    if (!lstMemories.contains(PB_MEM_ME))
        removeTopLevelNode(m_pitemDeviceTreeWidgetItem);
    if (!lstMemories.contains(PB_MEM_SIM))
        removeTopLevelNode(m_pitemSimTreeWidgetItem);
    m_bSimEnabled = lstMemories.contains(PB_MEM_SIM);
}

void AddrBookSelectContactsDlg::OnDeviceStatusChanged(bool bIsDeviceEnabled)
{
    if (m_bClosing || bIsDeviceEnabled)
        return;
    removeTopLevelNode(m_pitemSimTreeWidgetItem);
    removeTopLevelNode(m_pitemDeviceTreeWidgetItem);
}

void AddrBookSelectContactsDlg::OnAddrBookSimReady()
{
    if (m_bClosing || isDeviceSideHidden())
        return;
    checkSimStatus();
    if (m_bSimEnabled)
        addDeviceNode(&m_pitemSimTreeWidgetItem, PB_MEM_SIM);
}

void AddrBookSelectContactsDlg::OnAddrBookDeviceReady()
{
    if (m_bClosing || isDeviceSideHidden())
        return;
    addDeviceNode(&m_pitemDeviceTreeWidgetItem, PB_MEM_ME);
}

// A fill under way ends early: what it would still bring is not wanted any more.
void AddrBookSelectContactsDlg::removeTopLevelNode(QTreeWidgetItem* pitem)
{
    if (pitem == nullptr || !isNodePresentInTree(pitem))
        return;
    if (pitem == m_pitemSimTreeWidgetItem && m_pthreadSim)
        m_pthreadSim->StopOperation();
    if (pitem == m_pitemDeviceTreeWidgetItem && m_pthreadDevice)
        m_pthreadDevice->StopOperation();
    removeTreeItem(m_ptreeContacts->invisibleRootItem(), pitem);
}

// A memory's node is only taken out: the members go on pointing at it until the memory is back. Its contacts, which
// nobody can reach any more, go at once.
void AddrBookSelectContactsDlg::removeTreeItem(QTreeWidgetItem* pitemParent, QTreeWidgetItem* pitem)
{
    if (pitemParent == nullptr || pitem == nullptr || pitemParent->indexOfChild(pitem) < 0)
        return;
    pitemParent->takeChild(pitemParent->indexOfChild(pitem));
    if (isMemoryNode(pitem)) {
        m_lstDetachedNodes.append(pitem);
        emptyNode(pitem);
    } else {
        forgetGroups(pitem);
        delete pitem;
    }
}

void AddrBookSelectContactsDlg::emptyNode(QTreeWidgetItem* pitemMemory)
{
    for (int i = 0; i < pitemMemory->childCount(); ++i)
        forgetGroups(pitemMemory->child(i));
    qDeleteAll(pitemMemory->takeChildren());
    bool bOk = false;
    const int iMemory = pitemMemory->data(0, Qt::UserRole).toInt(&bOk);
    SC_Hash_Group_Node* pEntry = groupEntry(static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(iMemory), 0);
    if (bOk && pEntry != nullptr && pEntry->pitemNode == pitemMemory && pEntry->phashContacts != nullptr)
        pEntry->phashContacts->clear();
}

// ---- Contacts --------------------------------------------------------------------------------------------------

void AddrBookSelectContactsDlg::OnAddContact(ADDRBOOK_TYPE enType, int iGroupId, int iContactId,
                                             QList<QString> listData)
{
    AddrBookRecord record;
    record.iID = iContactId;
    record.lstValues = listData;
    QTreeWidgetItem* pitem = AddRecordNodes(record, enType);
    QTreeWidgetItem* pitemParent = findNode(enType, iGroupId);
    if (pitem == nullptr || pitemParent == nullptr) {
        delete pitem;
        return;
    }

    pitemParent->addChild(pitem);
    SC_Hash_Group_Node* pEntry = groupEntry(enType, iGroupId);
    if (pEntry->phashContacts != nullptr)
        pEntry->phashContacts->insert(iContactId, pitem);
    setGroupText(enType, iGroupId);
}

// A contact that joins a group leaves the root.
void AddrBookSelectContactsDlg::OnAddContactToGroup(ADDRBOOK_TYPE enType, int iGroupId, int iContactId,
                                                    QList<QString> listData)
{
    OnAddContact(enType, iGroupId, iContactId, listData);
    QTreeWidgetItem* pitemMemory = getNode(enType);
    SC_Hash_Group_Node* pEntry = groupEntry(enType, 0);
    if (pitemMemory == nullptr || pEntry == nullptr)
        return;
    if (pEntry->phashContacts != nullptr)
        pEntry->phashContacts->remove(iContactId);
    findAndRemoveChild(pitemMemory, iContactId);
    setGroupText(enType, iGroupId);
}

void AddrBookSelectContactsDlg::findAndRemoveChild(QTreeWidgetItem* pitem, int iContactId)
{
    int i = 0;
    while (QTreeWidgetItem* pitemChild = pitem->child(i)) {
        const LeafNodeData* pData = leafData(pitemChild);
        if (pData != nullptr && pData->iNodeType == ContactNode && pData->iID == iContactId)
            removeTreeItem(pitem, pitemChild);
        else
            ++i;
    }
}

// Where no child is this contact, the last child stands in for it. As the contact is still under its group when the
// tree is asked, it goes for good and does not come back under the root.
void AddrBookSelectContactsDlg::OnRemoveContactFromGroup(ADDRBOOK_TYPE enType, int iContactId, int iGroupId)
{
    QTreeWidgetItem* pitemGroup = findNode(enType, iGroupId);
    if (pitemGroup == nullptr)
        return;

    QTreeWidgetItem* pitemContact = nullptr;
    for (int i = 0; i < pitemGroup->childCount(); ++i) {
        pitemContact = pitemGroup->child(i);
        const LeafNodeData* pData = leafData(pitemContact);
        if (pData != nullptr && pData->iNodeType == ContactNode && pData->iID == iContactId)
            break;
    }

    QTreeWidgetItem* pitemMemory = getNode(enType);
    if (IsContactPresentInOtherGroups(pitemMemory, iContactId)) {
        removeTreeItem(pitemGroup, pitemContact);
    } else if (pitemContact != nullptr && pitemMemory != nullptr) {
        pitemGroup->removeChild(pitemContact);
        pitemMemory->addChild(pitemContact);
    }
    setGroupText(enType, iGroupId);
}

// Looks at the whole tree below pitem, the group that the contact is leaving included.
bool AddrBookSelectContactsDlg::IsContactPresentInOtherGroups(QTreeWidgetItem* pitem, int iContactId)
{
    for (int i = 0; pitem != nullptr && i < pitem->childCount(); ++i) {
        QTreeWidgetItem* pitemChild = pitem->child(i);
        const LeafNodeData* pData = leafData(pitemChild);
        if (pData == nullptr)
            continue;
        if (pData->iNodeType == ContactNode && pData->iID == iContactId)
            return true;
        if (pData->iNodeType == GroupNode && IsContactPresentInOtherGroups(pitemChild, iContactId))
            return true;
    }
    return false;
}

void AddrBookSelectContactsDlg::OnUpdateContact(ADDRBOOK_TYPE enType, int iContactId, QList<QString> listData)
{
    if (QTreeWidgetItem* pitem = getNode(enType))
        findAndReplaceContactNodes(enType, pitem, iContactId, listData, false, 0);
}

void AddrBookSelectContactsDlg::OnDeleteContact(ADDRBOOK_TYPE enType, int iContactId)
{
    if (QTreeWidgetItem* pitem = getNode(enType))
        findAndReplaceContactNodes(enType, pitem, iContactId, QList<QString>(), true, 0);
}

// Treats every node of the contact below pitem. A group stays in force for the siblings behind it too, so that a
// contact there counts as the group's.
void AddrBookSelectContactsDlg::findAndReplaceContactNodes(_ORVA_EN_PHONEBOOK_MEMORY enType, QTreeWidgetItem* pitem,
                                                           int iContactId, const QList<QString>& listData, bool bDelete,
                                                           int iGroupId)
{
    int i = 0;
    while (QTreeWidgetItem* pitemChild = pitem->child(i)) {
        const LeafNodeData* pData = leafData(pitemChild);
        ++i;
        if (pData != nullptr && pData->iNodeType == GroupNode)
            iGroupId = pData->iID;
        if (pData == nullptr || pData->iNodeType != ContactNode) {
            findAndReplaceContactNodes(enType, pitemChild, iContactId, listData, bDelete, iGroupId);
        } else if (pData->iID == iContactId && bDelete) {
            if (m_hashMemories.value(enType, nullptr) == nullptr)
                return;
            if (removeContactNode(enType, pitem, pitemChild, iContactId, iGroupId))
                --i;
        } else if (pData->iID == iContactId) {
            AddrBookRecord record;
            record.iID = iContactId;
            record.lstValues = listData;
            updateAddressNodes(pitemChild, record, enType);
        }
    }
}

// False if the index does not know the group; the node then stays.
bool AddrBookSelectContactsDlg::removeContactNode(_ORVA_EN_PHONEBOOK_MEMORY enType, QTreeWidgetItem* pitemParent,
                                                  QTreeWidgetItem* pitem, int iContactId, int iGroupId)
{
    SC_Hash_Group_Node* pEntry = groupEntry(enType, iGroupId);
    if (pEntry == nullptr || pEntry->phashContacts == nullptr)
        return false;
    pEntry->phashContacts->remove(iContactId);
    setGroupText(enType, iGroupId);
    pitemParent->removeChild(pitem);
    delete pitem;
    return true;
}

// ---- Groups ----------------------------------------------------------------------------------------------------

void AddrBookSelectContactsDlg::OnAddGroup(ADDRBOOK_TYPE enType, int iGroupId, int iParentId, QString strText,
                                           QTreeWidgetItem** pptreewidgetitemObject)
{
    if (iGroupId == iParentId)
        iParentId = 0;
    GroupHash* phashGroups = m_hashMemories.value(PB_MEM_LOCAL, nullptr);
    QTreeWidgetItem* pitemParent = findNode(enType, iParentId);
    if (phashGroups == nullptr || pitemParent == nullptr)
        return;

    QTreeWidgetItem* pitem = createNode();
    if (pitem == nullptr)
        return;
    pitemParent->addChild(pitem);
    if (pptreewidgetitemObject != nullptr)
        *pptreewidgetitemObject = pitem;

    LeafNodeData* pData = new (std::nothrow) LeafNodeData;
    ContactHash* phashContacts = new (std::nothrow) ContactHash;
    SC_Hash_Group_Node* pEntry = new (std::nothrow) SC_Hash_Group_Node;
    if (pData == nullptr || phashContacts == nullptr || pEntry == nullptr) {
        delete pData;
        delete phashContacts;
        delete pEntry;
        return;
    }
    pData->enType = enType;
    pData->iNodeType = GroupNode;
    pData->iID = iGroupId;
    pData->strName = strText;
    pData->strFieldName = QLatin1String("");
    pData->strValue = QLatin1String("");
    pData->bChecked = false;
    pEntry->pitemNode = pitem;
    pEntry->phashContacts = phashContacts;
    freeEntry(phashGroups->take(iGroupId));
    phashGroups->insert(iGroupId, pEntry);

    AddrBookGroup group;
    group.iGroupID = iGroupId;
    if (m_pAddrBookLogic)
        m_pAddrBookLogic->GetGroupInfo(enType, group);
    setNodeProperties(pitem, strText, true, group.iSize, QVariant(pointerToCarrier(pData)));
}

// The figure behind the new name is the result of the query, 0 for success, until the group's text is next set.
void AddrBookSelectContactsDlg::OnUpdateGroup(ADDRBOOK_TYPE enType, int iGroupId, QString strText)
{
    QTreeWidgetItem* pitem = findNode(enType, iGroupId);
    if (pitem == nullptr || !m_pAddrBookLogic)
        return;
    if (LeafNodeData* pData = leafData(pitem))
        pData->strName = strText;
    AddrBookGroup group;
    group.iGroupID = iGroupId;
    const int iResult = m_pAddrBookLogic->GetGroupInfo(PB_MEM_LOCAL, group);
    pitem->setText(0, strText + QLatin1Char('(') + QString::number(iResult) + QLatin1Char(')'));
}

// The contacts go with the group's node.
void AddrBookSelectContactsDlg::OnDeleteGroup(ADDRBOOK_TYPE enType, int iGroupId)
{
    QTreeWidgetItem* pitem = findNode(enType, iGroupId);
    GroupHash* phashGroups = m_hashMemories.value(enType, nullptr);
    if (pitem == nullptr || phashGroups == nullptr)
        return;
    freeEntry(phashGroups->take(iGroupId));
    removeTreeItem(pitem->parent(), pitem);
}

// Renews the counts of the memory's node and of the group's. The memory's is always that of the PC.
void AddrBookSelectContactsDlg::setGroupText(_ORVA_EN_PHONEBOOK_MEMORY enType, int iGroupId)
{
    const SC_Hash_Group_Node* pEntry = groupEntry(enType, iGroupId);
    if (!m_pAddrBookLogic || pEntry == nullptr || !m_ptreeContacts)
        return;

    AddrBookGroup group;
    group.iGroupID = iGroupId;
    m_pAddrBookLogic->GetGroupInfo(enType, group);

    const QString strMemory = isDeviceMemory(enType) ? AddrBookUICommon::GetNodeText(enType)
                                                     : addrBookTr(QLatin1String("IDS_LOCAL_PHONEBOOKUI"));
    const int iCount = qMax(0, m_pAddrBookLogic->GetAddrRecordCount(PB_MEM_LOCAL));
    if (const SC_Hash_Group_Node* pRoot = groupEntry(enType, 0))
        pRoot->pitemNode->setText(0, strMemory + QLatin1Char('(') + QString::number(iCount) + QLatin1Char(')'));
    if (!group.strName.isEmpty())
        pEntry->pitemNode->setText(0,
                                   group.strName + QLatin1Char('(') + QString::number(group.iSize) + QLatin1Char(')'));
}
