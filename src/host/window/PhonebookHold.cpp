#include "window/PhonebookHold.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QLineEdit>

#include "loader/WorkerCount.h"
#include "orva/orva_sync.h"

// Null where the SDK in use does not have them: it synchronises nothing.
#pragma weak ORVA_Sync_Hold
#pragma weak ORVA_Sync_Hold_Release

namespace
{

const int LOOK_MS = 100;

// A sync under way takes no longer, but for the first of a large phonebook. The user waits so long for a form.
const int PATIENCE_MS = 1000;

// An editor in a list or a tree.
bool isEditor(const QObject* pObject)
{
    if (qobject_cast<const QLineEdit*>(pObject) == nullptr) {
        return false;
    }
    const QObject* pParent = pObject->parent();
    return pParent != nullptr && (qobject_cast<const QAbstractItemView*>(pParent) != nullptr ||
                                  qobject_cast<const QAbstractItemView*>(pParent->parent()) != nullptr);
}

bool isForm(const QObject* pObject)
{
    const QWidget* pWidget = qobject_cast<const QWidget*>(pObject);
    return pWidget != nullptr && pWidget->isWindow() && pWidget->isModal();
}

} // namespace

PhonebookHold::PhonebookHold(const WorkerCount& workers) : m_workers(workers), m_pHold(nullptr)
{
    m_look.setInterval(LOOK_MS);
    connect(&m_look, SIGNAL(timeout()), this, SLOT(OnLook()));
    if (&ORVA_Sync_Hold != nullptr) {
        qApp->installEventFilter(this);
    }
}

PhonebookHold::~PhonebookHold()
{
    release();
}

bool PhonebookHold::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Show && !Held() && (isForm(pObject) || isEditor(pObject))) {
        take(PATIENCE_MS);
        m_look.start();
    }
    return QObject::eventFilter(pObject, pEvent);
}

void PhonebookHold::OnLook()
{
    if (!isNeeded()) {
        m_look.stop();
        release();
    } else if (!Held()) {
        take(0);
    }
}

// A batch begins in a form, and outlives it.
bool PhonebookHold::isNeeded() const
{
    if (m_workers.Running() > 0 || QApplication::activeModalWidget() != nullptr) {
        return true;
    }
    foreach (QWidget* pWidget, QApplication::allWidgets()) {
        if (pWidget->isVisible() && isEditor(pWidget)) {
            return true;
        }
    }
    return false;
}

void PhonebookHold::take(int iWaitMs)
{
    ORVA_Sync_Hold(ORVA_MEMORY_LOCAL, iWaitMs, &m_pHold);
}

void PhonebookHold::release()
{
    if (m_pHold != nullptr) {
        ORVA_Sync_Hold_Release(m_pHold);
    }
    m_pHold = nullptr;
}
