#ifndef ADDRBOOKUIPLUGIN_RUNNINGDRAG_H
#define ADDRBOOKUIPLUGIN_RUNNINGDRAG_H

#include <QDrag>
#include <QPointer>

#include "linkhand/QtCompat.h"

// The drag that a widget runs, as a member of that widget. Qt works with a drag until its loop has ended, and frees it
// then: where the widget goes first, the drag is called off and does not go along as its child.
class RunningDrag
{
public:
    RunningDrag() {}
    ~RunningDrag()
    {
        if (m_pDrag.isNull())
            return;
        QObject::disconnect(m_pDrag.data(), nullptr, m_pDrag->parent(), nullptr);
        m_pDrag->setParent(nullptr);
        QtCompat::cancelDrag();
    }

    // Runs a drag whose parent is the widget. False if the widget has gone meanwhile, and this with it.
    bool Exec(QDrag* pDrag, Qt::DropActions actions)
    {
        const QPointer<QObject> pWidget(pDrag->parent());
        m_pDrag = pDrag;
        pDrag->exec(actions);
        if (pWidget.isNull())
            return false;
        m_pDrag = nullptr;
        return true;
    }

private:
    Q_DISABLE_COPY(RunningDrag)
    QPointer<QDrag> m_pDrag;
};

#endif // ADDRBOOKUIPLUGIN_RUNNINGDRAG_H
