#ifndef ADDRBOOKUIPLUGIN_ITEMDATA_H
#define ADDRBOOKUIPLUGIN_ITEMDATA_H

#include <QTableWidgetItem>
#include <QTreeWidgetItem>
#include <QVariant>

#include "logic/AddrBookTypes.h"
#include "logic/PointerCarrier.h"

// The blocks behind table cells and tree nodes.

// A cell's block; null without a cell, or where the data does not convert.
inline TableRowData* tableRowData(const QTableWidgetItem* pitem)
{
    if (pitem == nullptr)
        return nullptr;
    bool bOk = false;
    const qlonglong iData = pitem->data(Qt::UserRole).toLongLong(&bOk);
    return bOk ? carrierToPointer<TableRowData>(iData) : nullptr;
}

// A node's block; null without a node or block.
inline TreeNodeData* treeNodeData(const QTreeWidgetItem* pitem)
{
    if (pitem == nullptr)
        return nullptr;
    bool bOk = false;
    const qlonglong iData = pitem->data(0, Qt::UserRole).toLongLong(&bOk);
    return bOk ? carrierToPointer<TreeNodeData>(iData) : nullptr;
}

// The group of a group node's block; null for a memory.
inline AddrBookGroup* groupOf(const TreeNodeData* pData)
{
    if (pData == nullptr || !isGroupValue(pData->iMemoryOrGroup))
        return nullptr;
    return carrierToPointer<AddrBookGroup>(pData->iMemoryOrGroup);
}

#endif // ADDRBOOKUIPLUGIN_ITEMDATA_H
