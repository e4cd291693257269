#include "test/RowsPaint.h"

#include <QEvent>
#include <QTableWidget>
#include <QTimer>

#include "test/Mark.h"

RowsPaint::RowsPaint(QTableWidget* pTable) : QObject(pTable), m_pTable(pTable)
{
    m_pTable->viewport()->installEventFilter(this);
}

bool RowsPaint::eventFilter(QObject* pObject, QEvent* pEvent)
{
    // Sorting is off for as long as rows arrive.
    if (pEvent->type() == QEvent::Paint && m_pTable->isSortingEnabled()) {
        pObject->removeEventFilter(this);
        // Behind what the window system is told of this painting.
        QTimer::singleShot(0, this, SLOT(OnPainted()));
    }
    return false;
}

void RowsPaint::OnPainted()
{
    Mark::Write("LINKHAND_TEST_ROWS", "rows\n");
}
