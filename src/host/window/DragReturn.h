#ifndef LINKHAND_HOST_DRAGRETURN_H
#define LINKHAND_HOST_DRAGRETURN_H

#include <QObject>
#include <QPointer>

class QTreeWidget;
class QWidget;
class WorkerCount;

// A drag lights up the nodes that it passes by making them current, and one that ends without a drop leaves the
// phonebook deaf to the tree's keys. From the first drag on the click on the node that is current is sent again
// wherever tree and table may differ; for a node that the table shows it means nothing. User-interface thread only.
class DragReturn : public QObject
{
    Q_OBJECT

public:
    // Both outlive this; the phonebook's window is on the page already.
    DragReturn(QWidget& page, const WorkerCount& workers);

protected:
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private slots:
    void OnDragEnded();
    void OnSelectionChanged();
    void OnAgree();

private:
    void agreeSoon();
    bool isBusy() const;

    QWidget& m_page;
    const WorkerCount& m_workers;
    QPointer<QObject> m_pDrag; // the one that was last over the tree, while it runs
    bool m_bDragged;           // there has been one
    bool m_bDropped;           // it ended with a drop
    bool m_bPending;
};

#endif // LINKHAND_HOST_DRAGRETURN_H
