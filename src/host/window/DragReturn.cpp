#include "window/DragReturn.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QLineEdit>
#include <QMetaObject>
#include <QTreeWidget>

#include "loader/WorkerCount.h"
#include "window/PhonebookParts.h"

DragReturn::DragReturn(QWidget& page, const WorkerCount& workers)
    : m_page(page), m_workers(workers), m_bDragged(false), m_bDropped(false), m_bPending(false)
{
    if (QTreeWidget* const pTree = PhonebookParts::Tree(m_page)) {
        pTree->viewport()->installEventFilter(this);
        connect(pTree, SIGNAL(itemSelectionChanged()), this, SLOT(OnSelectionChanged()));
    }
}

bool DragReturn::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::DragEnter) {
        m_bDragged = true;
        // One of another program has no object here, and the tree does not take it.
        const QObject* const pSource = static_cast<QDropEvent*>(pEvent)->source();
        QObject* const pDrag = pSource != nullptr ? pSource->findChild<QDrag*>() : nullptr;
        if (pDrag != nullptr && pDrag != m_pDrag) {
            m_pDrag = pDrag;
            connect(pDrag, SIGNAL(destroyed()), this, SLOT(OnDragEnded()));
        }
    }
    m_bDropped = pEvent->type() == QEvent::Drop || (m_bDropped && pEvent->type() != QEvent::DragEnter);
    return QObject::eventFilter(pObject, pEvent);
}

// What follows a drop is the window's business.
void DragReturn::OnDragEnded()
{
    if (!m_bDropped) {
        agreeSoon();
    }
}

void DragReturn::OnSelectionChanged()
{
    if (m_bDragged && m_pDrag == nullptr) {
        agreeSoon();
    }
}

// Behind what the window itself makes of it.
void DragReturn::agreeSoon()
{
    if (!m_bPending) {
        m_bPending = true;
        QMetaObject::invokeMethod(this, "OnAgree", Qt::QueuedConnection);
    }
}

void DragReturn::OnAgree()
{
    m_bPending = false;
    QTreeWidget* const pTree = PhonebookParts::Tree(m_page);
    if (pTree == nullptr || pTree->currentItem() == nullptr || isBusy()) {
        return;
    }
    QMetaObject::invokeMethod(pTree, "itemClicked", Q_ARG(QTreeWidgetItem*, pTree->currentItem()), Q_ARG(int, 0));
}

// A drop that has begun something ends with a table that is read anew, and a name that is edited stays so.
bool DragReturn::isBusy() const
{
    return m_pDrag != nullptr || m_workers.Running() > 0 || QApplication::activeModalWidget() != nullptr ||
           PhonebookParts::Tree(m_page)->findChild<QLineEdit*>() != nullptr;
}
