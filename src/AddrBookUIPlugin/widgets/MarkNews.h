#ifndef ADDRBOOKUIPLUGIN_MARKNEWS_H
#define ADDRBOOKUIPLUGIN_MARKNEWS_H

#include <QList>
#include <QTreeWidget>

#include "linkhand/QtCompat.h"

// Tells a screen reader at the end of its life which check marks of a tree have changed since its beginning: of the
// rows on the screen, since the others are read out when the user comes to them, and of them the one that the user
// clicked in any case. User-interface thread only.
class MarkNews
{
public:
    MarkNews(QTreeWidget* ptree, const QTreeWidgetItem* pitemClicked) : m_ptree(ptree)
    {
        const QRect screen = ptree->viewport()->rect();
        for (QTreeWidgetItem* pitem = ptree->itemAt(ptree->isRightToLeft() ? screen.topRight() : screen.topLeft());
             pitem != nullptr && ptree->visualItemRect(pitem).intersects(screen); pitem = ptree->itemBelow(pitem))
            m_lstBefore.append(qMakePair(pitem, pitem == pitemClicked ? -1 : int(pitem->checkState(0))));
    }
    ~MarkNews()
    {
        if (m_lstBefore.isEmpty())
            return;
        int iRow = 1; // behind the header
        for (const QTreeWidgetItem* pitem = m_lstBefore.first().first; m_ptree->itemAbove(pitem) != nullptr; ++iRow)
            pitem = m_ptree->itemAbove(pitem);
        for (int i = 0; i < m_lstBefore.size(); ++i) {
            if (m_lstBefore.at(i).second != m_lstBefore.at(i).first->checkState(0))
                QtCompat::tellMark(m_ptree, (iRow + i) * m_ptree->columnCount());
        }
    }

private:
    Q_DISABLE_COPY(MarkNews)
    QTreeWidget* m_ptree;
    QList<QPair<QTreeWidgetItem*, int>> m_lstBefore;
};

#endif // ADDRBOOKUIPLUGIN_MARKNEWS_H
