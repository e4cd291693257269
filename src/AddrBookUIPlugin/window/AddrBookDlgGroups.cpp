#include <QTreeWidgetItem>

#include "logic/ItemData.h"
#include "logic/Log.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"

void AddrBookDlg::removeTreeItem(QTreeWidgetItem* pParent, QTreeWidgetItem* pItem)
{
    ADDRBOOK_LOG_ENTER();
    m_bRemovingTreeItem = true;
    // The selection may change while the node goes.
    if (m_ptableContacts != nullptr)
        QObject::disconnect(m_ptableContacts, nullptr, this, nullptr);
    if (pParent != nullptr && pItem != nullptr && pParent->indexOfChild(pItem) >= 0) {
        forgetTreeItem(pItem);
        pParent->takeChild(pParent->indexOfChild(pItem));
        // Taking it may have named it once more.
        forgetTreeItem(pItem);
        freeNodeData(pItem);
        delete pItem;
    }
    connectHandlersForTable();
    m_bRemovingTreeItem = false;
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::forgetTreeItem(const QTreeWidgetItem* pItem)
{
    QTreeWidgetItem** const lstNamed[] = {&m_pitemEnteredTreeWidgetItem, &m_pitemCurrentTreeWidgetItem,
                                          &m_pitemSimTreeWidgetItem,     &m_pitemDeviceTreeWidgetItem,
                                          &m_pitemGroupParent,           &m_pitemEditedGroup};
    for (QTreeWidgetItem** ppNamed : lstNamed) {
        if (*ppNamed == pItem)
            *ppNamed = nullptr;
    }
    if (m_ptreePhonebook != nullptr && m_ptreePhonebook->m_pitemPrevious == pItem)
        m_ptreePhonebook->m_pitemPrevious = nullptr;
    for (int i = 0; i < pItem->childCount(); ++i)
        forgetTreeItem(pItem->child(i));
}

void AddrBookDlg::freeNodeData(QTreeWidgetItem* pItem)
{
    const TreeNodeData* pData = treeNodeData(pItem);
    delete groupOf(pData);
    delete pData;
    for (int i = 0; i < pItem->childCount(); ++i)
        freeNodeData(pItem->child(i));
}
