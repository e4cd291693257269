#include "widgets/DiscardedCells.h"

#include <QTableWidget>
#include <QTimerEvent>

#include "logic/ItemData.h"

namespace
{
const int CELLS_AT_A_TIME = 4000; // a millisecond or two
}

DiscardedCells& DiscardedCells::Of(QTableWidget* ptable)
{
    DiscardedCells* pCells = ptable->findChild<DiscardedCells*>();
    return pCells != nullptr ? *pCells : *new DiscardedCells(ptable);
}

DiscardedCells::DiscardedCells(QTableWidget* ptable) : QObject(ptable), m_iFreed(0) {}

DiscardedCells::~DiscardedCells()
{
    FreeAll();
}

void DiscardedCells::FreeAll()
{
    free(int(m_lstCells.size()));
}

void DiscardedCells::Take(QTableWidgetItem* pitem)
{
    if (pitem == nullptr)
        return;
    m_lstCells.append(pitem);
    if (!m_timer.isActive())
        m_timer.start(0, this);
}

void DiscardedCells::timerEvent(QTimerEvent* pEvent)
{
    if (pEvent->timerId() != m_timer.timerId()) {
        QObject::timerEvent(pEvent);
        return;
    }
    free(qMin(m_iFreed + CELLS_AT_A_TIME, int(m_lstCells.size())));
}

void DiscardedCells::free(int iUpTo)
{
    for (; m_iFreed < iUpTo; ++m_iFreed) {
        const QTableWidgetItem* pitem = m_lstCells.at(m_iFreed);
        delete tableRowData(pitem);
        delete pitem;
    }
    if (Count() == 0) {
        m_timer.stop();
        m_lstCells = QVector<QTableWidgetItem*>();
        m_iFreed = 0;
    }
}
