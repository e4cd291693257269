#include "dialogs/AddrBookSelectContactsDlg.h"

#include <QFontMetrics>
#include <QSize>
#include <new>

#include "linkhand/QtCompat.h"
#include "logic/Log.h"
#include "logic/PointerCarrier.h"
#include "logic/Texts.h"

// Nodes of the tree: how they are made, and the index that finds them.

namespace
{
const QSize NODE_SIZE(25, 20);

bool isPhoneField(const AddrBookField& field)
{
    return field.strType == QLatin1String("Mobile") || field.strType == QLatin1String("Number");
}

bool isNameField(const AddrBookField& field)
{
    return field.strType == QLatin1String("Name") &&
           field.strName.compare(QLatin1String("Name"), Qt::CaseInsensitive) == 0;
}

// The block of a group, contact or number. A value that stands for a memory is no address, the card's least of all.
AddrBookSelectContactsDlg::LeafNodeData* blockBehind(const QTreeWidgetItem* pitem)
{
    bool bOk = false;
    const qlonglong iValue = pitem->data(0, Qt::UserRole).toLongLong(&bOk);
    return bOk && isGroupValue(iValue) ? carrierToPointer<AddrBookSelectContactsDlg::LeafNodeData>(iValue) : nullptr;
}

// A node that takes the block behind it along.
class ContactTreeItem : public QTreeWidgetItem
{
public:
    ContactTreeItem() {}
    ~ContactTreeItem() override { delete blockBehind(this); }

private:
    Q_DISABLE_COPY(ContactTreeItem)
};
} // namespace

QTreeWidgetItem* AddrBookSelectContactsDlg::createNode()
{
    return new (std::nothrow) ContactTreeItem;
}

AddrBookSelectContactsDlg::LeafNodeData* AddrBookSelectContactsDlg::leafData(const QTreeWidgetItem* pitem)
{
    return pitem != nullptr ? blockBehind(pitem) : nullptr;
}

bool AddrBookSelectContactsDlg::isMemoryNode(const QTreeWidgetItem* pitem)
{
    bool bOk = false;
    const qlonglong iValue = pitem->data(0, Qt::UserRole).toLongLong(&bOk);
    return bOk && !isGroupValue(iValue);
}

// ---- Contacts and numbers --------------------------------------------------------------------------------------

// The node belongs to the caller until it has a parent.
QTreeWidgetItem* AddrBookSelectContactsDlg::AddRecordNodes(const AddrBookRecord& record,
                                                           _ORVA_EN_PHONEBOOK_MEMORY enType)
{
    QTreeWidgetItem* pitem = createNode();
    if (pitem != nullptr && !fillContactNode(pitem, record, enType, false)) {
        delete pitem;
        return nullptr;
    }
    return pitem;
}

// Rebuilds a contact's node in place. With check boxes its marks go; those above it stay.
void AddrBookSelectContactsDlg::updateAddressNodes(QTreeWidgetItem* pitem, const AddrBookRecord& record,
                                                   _ORVA_EN_PHONEBOOK_MEMORY enType)
{
    while (pitem->childCount() > 0)
        delete pitem->takeChild(0);
    fillContactNode(pitem, record, enType, true);
}

bool AddrBookSelectContactsDlg::fillContactNode(QTreeWidgetItem* pitem, const AddrBookRecord& record,
                                                _ORVA_EN_PHONEBOOK_MEMORY enType, bool bUpdate)
{
    QList<AddrBookField> lstFields;
    if (m_pAddrBookLogic)
        m_pAddrBookLogic->GetAllFields(lstFields, enType);

    LeafNodeData leaf;
    leaf.enType = enType;
    leaf.iNodeType = NumberNode;
    leaf.iID = record.iID;
    leaf.bChecked = false;
    leaf.strName = QLatin1String("");
    for (int i = 0; i < lstFields.size(); ++i) {
        if (isNameField(lstFields.at(i))) {
            LeafNodeData* pData = new (std::nothrow) LeafNodeData(leaf);
            if (pData == nullptr)
                return false;
            leaf.strName = nameNode(pitem, record, lstFields, i, pData, bUpdate);
        } else if (isPhoneField(lstFields.at(i)) && !record.lstValues.value(i).isEmpty()) {
            leaf.strFieldName = numberLabel(enType, i);
            leaf.strValue = record.lstValues.value(i);
            addNumberNode(pitem, leaf);
        }
    }
    return true;
}

// Gives a contact's node its block and its text; returns the name that its numbers bear. A new node without a name
// shows its first number and its numbers bear that; an updated one shows the value behind the name and they bear none.
QString AddrBookSelectContactsDlg::nameNode(QTreeWidgetItem* pitem, const AddrBookRecord& record,
                                            const QList<AddrBookField>& lstFields, int iName, LeafNodeData* pData,
                                            bool bUpdate)
{
    const QString strNext = record.lstValues.value(iName + 1);
    pData->iNodeType = ContactNode;
    pData->strName = QString();
    pData->strFieldName = QString();
    pData->strValue = bUpdate ? QString() : strNext;

    QString strName = record.lstValues.value(iName);
    QString strText = strName;
    if (strName.isEmpty() && bUpdate) {
        strText = strNext;
    } else if (strName.isEmpty()) {
        for (int i = 0; i < lstFields.size() && strName.isEmpty(); ++i) {
            if (isPhoneField(lstFields.at(i)))
                strName = record.lstValues.value(i);
        }
        strText = strName;
    }

    LeafNodeData* pOld = leafData(pitem);
    setNodeProperties(pitem, strText, false, 0, QVariant(pointerToCarrier(pData)));
    delete pOld;
    return strName;
}

void AddrBookSelectContactsDlg::addNumberNode(QTreeWidgetItem* pitemContact, const LeafNodeData& leaf)
{
    LeafNodeData* pData = new (std::nothrow) LeafNodeData(leaf);
    QTreeWidgetItem* pitem = createNode();
    if (pData == nullptr || pitem == nullptr) {
        delete pData;
        delete pitem;
        return;
    }
    pitemContact->addChild(pitem);
    setNodeProperties(pitem, leaf.strFieldName + QLatin1Char(' ') + leaf.strValue, false, 0,
                      QVariant(pointerToCarrier(pData)));
}

// A number of the card or the device bears the PC's label of a mobile number.
QString AddrBookSelectContactsDlg::numberLabel(_ORVA_EN_PHONEBOOK_MEMORY enType, int iField)
{
    if (enType != PB_MEM_LOCAL)
        iField = m_pAddrBookLogic ? m_pAddrBookLogic->GetMobileIndex() : -1;
    return addrBookTr(m_lstFieldNames.value(iField));
}

void AddrBookSelectContactsDlg::setNodeProperties(QTreeWidgetItem* pitem, QString strText, bool bCount, int iCount,
                                                  const QVariant& variant)
{
    if (pitem == nullptr)
        return;
    if (bCount) {
        strText += QLatin1Char('(') + QString::number(iCount) + QLatin1Char(')');
        pitem->setExpanded(true);
    }
    pitem->setText(0, strText);
    setTreeColumnWidth(pitem);
    pitem->setData(0, Qt::UserRole, variant);
    pitem->setSizeHint(0, NODE_SIZE);
    if (m_bMultiSelect)
        pitem->setCheckState(0, Qt::Unchecked);
}

// The column only ever widens, which gives the tree its horizontal scroll bar.
void AddrBookSelectContactsDlg::setTreeColumnWidth(QTreeWidgetItem* pitem)
{
    if (!m_ptreeContacts)
        return;
    int iLevels = 1;
    for (const QTreeWidgetItem* pitemParent = pitem->parent(); pitemParent != nullptr;
         pitemParent = pitemParent->parent())
        ++iLevels;
    const QString strText = pitem->text(0);
    const QFontMetrics metrics = m_ptreeContacts->fontMetrics();
    const int iRest = iLevels * m_ptreeContacts->indentation() + strText.length();
    const int iColumn = m_ptreeContacts->columnWidth(0);
    // Most texts are far from the column's edge.
    const int iMost = m_textBound.Most(metrics, strText);
    if (iMost >= 0 && iMost + iRest <= iColumn)
        return;
    const int iWidth = QtCompat::textWidth(metrics, strText) + iRest;
    if (iColumn < iWidth)
        m_ptreeContacts->setColumnWidth(0, iWidth);
}

// ---- Finding nodes ---------------------------------------------------------------------------------------------

QTreeWidgetItem* AddrBookSelectContactsDlg::findNode(_ORVA_EN_PHONEBOOK_MEMORY enType, int iGroupId)
{
    const SC_Hash_Group_Node* pEntry = groupEntry(enType, iGroupId);
    return pEntry != nullptr && m_ptreeContacts ? pEntry->pitemNode : nullptr;
}

QTreeWidgetItem* AddrBookSelectContactsDlg::getNode(_ORVA_EN_PHONEBOOK_MEMORY enType)
{
    if (!m_ptreeContacts)
        return nullptr;
    for (int i = 0; i < m_ptreeContacts->topLevelItemCount(); ++i) {
        bool bOk = false;
        QTreeWidgetItem* pitem = m_ptreeContacts->topLevelItem(i);
        if (pitem->data(0, Qt::UserRole).toLongLong(&bOk) == enType && bOk)
            return pitem;
    }
    return nullptr;
}

QTreeWidgetItem* AddrBookSelectContactsDlg::findGroupNode(QTreeWidgetItem* pitemParent, int iGroupId)
{
    for (int i = 0; pitemParent != nullptr && i < pitemParent->childCount(); ++i) {
        QTreeWidgetItem* pitem = pitemParent->child(i);
        const LeafNodeData* pData = leafData(pitem);
        if (pData == nullptr || pData->iNodeType != GroupNode)
            continue;
        if (pData->iID == iGroupId)
            return pitem;
        if (QTreeWidgetItem* pitemFound = findGroupNode(pitem, iGroupId))
            return pitemFound;
    }
    ADDRBOOK_LOG_LINE("Exit node not found");
    return nullptr;
}

bool AddrBookSelectContactsDlg::isNodePresentInTree(QTreeWidgetItem* pitem)
{
    return pitem != nullptr && m_ptreeContacts && m_ptreeContacts->indexOfTopLevelItem(pitem) >= 0;
}

// ---- The index -------------------------------------------------------------------------------------------------

// A new index for a memory with one entry. It takes phashContacts over, and frees it if it fails.
AddrBookSelectContactsDlg::GroupHash*
AddrBookSelectContactsDlg::createHashForGroup(QTreeWidgetItem* pitem, ContactHash* phashContacts, int iGroupId)
{
    GroupHash* phashGroups = new (std::nothrow) GroupHash;
    SC_Hash_Group_Node* pEntry = new (std::nothrow) SC_Hash_Group_Node;
    if (phashGroups == nullptr || pEntry == nullptr) {
        delete phashGroups;
        delete pEntry;
        delete phashContacts;
        return nullptr;
    }
    pEntry->pitemNode = pitem;
    pEntry->phashContacts = phashContacts;
    phashGroups->insert(iGroupId, pEntry);
    return phashGroups;
}

// The index of a memory whose node is new; the old index goes.
void AddrBookSelectContactsDlg::enterMemory(QTreeWidgetItem* pitem, _ORVA_EN_PHONEBOOK_MEMORY enType)
{
    freeGroupHash(m_hashMemories.take(enType));
    GroupHash* phashGroups = pitem != nullptr ? createHashForGroup(pitem, new (std::nothrow) ContactHash, 0) : nullptr;
    if (phashGroups != nullptr)
        m_hashMemories.insert(enType, phashGroups);
}

SC_Hash_Group_Node* AddrBookSelectContactsDlg::groupEntry(_ORVA_EN_PHONEBOOK_MEMORY enType, int iGroupId)
{
    const GroupHash* phashGroups = m_hashMemories.value(enType, nullptr);
    return phashGroups != nullptr ? phashGroups->value(iGroupId, nullptr) : nullptr;
}

void AddrBookSelectContactsDlg::freeEntry(SC_Hash_Group_Node* pEntry)
{
    if (pEntry == nullptr)
        return;
    delete pEntry->phashContacts;
    delete pEntry;
}

void AddrBookSelectContactsDlg::freeGroupHash(GroupHash* phashGroups)
{
    if (phashGroups == nullptr)
        return;
    for (GroupHash::const_iterator it = phashGroups->constBegin(); it != phashGroups->constEnd(); ++it)
        freeEntry(it.value());
    delete phashGroups;
}

// Takes a node that goes, and the groups below it, out of the index.
void AddrBookSelectContactsDlg::forgetGroups(QTreeWidgetItem* pitem)
{
    const LeafNodeData* pData = leafData(pitem);
    if (pData == nullptr || pData->iNodeType != GroupNode)
        return;
    for (int i = 0; i < pitem->childCount(); ++i)
        forgetGroups(pitem->child(i));

    GroupHash* phashGroups = m_hashMemories.value(PB_MEM_LOCAL, nullptr);
    const int iGroupId = pData->iID;
    if (phashGroups != nullptr && phashGroups->contains(iGroupId) && phashGroups->value(iGroupId)->pitemNode == pitem)
        freeEntry(phashGroups->take(iGroupId));
}
