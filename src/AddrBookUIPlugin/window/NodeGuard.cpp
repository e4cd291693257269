#include "window/NodeGuard.h"

namespace
{
NodeGuard* s_pFirst = nullptr;
}

NodeGuard::NodeGuard(QTreeWidgetItem* pitem) : m_pItem(pitem), m_pNext(s_pFirst)
{
    s_pFirst = this;
}

NodeGuard::~NodeGuard()
{
    s_pFirst = m_pNext;
}

void NodeGuard::Forget(const QTreeWidgetItem* pitem)
{
    for (NodeGuard* pGuard = s_pFirst; pGuard != nullptr; pGuard = pGuard->m_pNext) {
        if (pGuard->m_pItem == pitem)
            pGuard->m_pItem = nullptr;
    }
}
