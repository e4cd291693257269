#include "window/NodeGuard.h"

namespace
{
NodeGuard* s_pFirst = nullptr;
}

NodeGuard::NodeGuard(QTreeWidgetItem* pItem) : m_pItem(pItem), m_pNext(s_pFirst)
{
    s_pFirst = this;
}

NodeGuard::~NodeGuard()
{
    s_pFirst = m_pNext;
}

void NodeGuard::Forget(const QTreeWidgetItem* pItem)
{
    for (NodeGuard* pGuard = s_pFirst; pGuard != nullptr; pGuard = pGuard->m_pNext) {
        if (pGuard->m_pItem == pItem)
            pGuard->m_pItem = nullptr;
    }
}
