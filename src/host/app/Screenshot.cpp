#include "app/Screenshot.h"

#include <QPixmap>
#include <QTableWidget>

#include "loader/WorkerCount.h"

namespace
{

const int TICK_MS = 100;
const int CALM_TICKS = 3;     // the last queued rows and the preview come after the worker has ended
const int EMPTY_MS = 3000;    // no rows by then: there are none
const int LONGEST_MS = 30000; // a picture is better than none

} // namespace

Screenshot::Screenshot(QWidget* pWindow, const WorkerCount& workers, const QString& strFile, QObject* pParent)
    : QObject(pParent), m_pWindow(pWindow), m_workers(workers), m_strFile(strFile), m_iCalmTicks(0), m_bSelected(false)
{
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(OnTick()));
    m_elapsed.start();
    m_timer.start(TICK_MS);
}

void Screenshot::OnTick()
{
    QTableWidget* pContacts = contacts();
    const bool bCalm = m_workers.Running() == 0 && (pContacts != nullptr || m_elapsed.elapsed() > EMPTY_MS);
    m_iCalmTicks = bCalm ? m_iCalmTicks + 1 : 0;
    if (m_iCalmTicks < CALM_TICKS && m_elapsed.elapsed() < LONGEST_MS) {
        return;
    }
    if (pContacts != nullptr && !m_bSelected) {
        m_bSelected = true;
        m_iCalmTicks = 0;
        // Not selectRow, which finds no column in a table that runs from right to left.
        pContacts->setCurrentCell(0, 0);
        return;
    }
    m_timer.stop();
    write();
}

QTableWidget* Screenshot::contacts() const
{
    if (m_pWindow) {
        foreach (QTableWidget* pTable, m_pWindow->findChildren<QTableWidget*>()) {
            if (pTable->isVisible() && pTable->rowCount() > 0) {
                return pTable;
            }
        }
    }
    return nullptr;
}

void Screenshot::write()
{
    bool bWritten = false;
    if (m_pWindow) {
        QPixmap pixmap(m_pWindow->size());
        m_pWindow->render(&pixmap);
        bWritten = pixmap.save(m_strFile);
    }
    emit taken(bWritten);
}
