#ifndef ADDRBOOKUIPLUGIN_DISCARDEDCELLS_H
#define ADDRBOOKUIPLUGIN_DISCARDEDCELLS_H

#include <QBasicTimer>
#include <QObject>
#include <QVector>

class QTableWidget;
class QTableWidgetItem;

// Cells that have left a table of contacts, with the blocks behind them. Freeing those of many rows takes longer than
// to find out that they go, so that it is done a few at a time while the event loop has nothing else to do; what is
// left when the table goes, goes with it. User-interface thread.
class DiscardedCells : public QObject
{
    Q_OBJECT

public:
    // The table's own.
    static DiscardedCells& Of(QTableWidget* ptable);

    ~DiscardedCells() override;

    // Takes a cell that is in no table any more; null is none.
    void Take(QTableWidgetItem* pitem);

    // Frees all now: where many cells are about to be made, they are to lie side by side, too.
    void FreeAll();

    // How many are still there.
    int Count() const { return int(m_lstCells.size()) - m_iFreed; }

protected:
    void timerEvent(QTimerEvent* pEvent) override;

private:
    explicit DiscardedCells(QTableWidget* ptable);
    Q_DISABLE_COPY(DiscardedCells)
    void free(int iUpTo);

    QVector<QTableWidgetItem*> m_lstCells;
    int m_iFreed; // of these, from the begin: in the order in which they came they lie side by side in memory
    QBasicTimer m_timer;
};

#endif // ADDRBOOKUIPLUGIN_DISCARDEDCELLS_H
