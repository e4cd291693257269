#include "app/FirstPaint.h"

#include <QEvent>
#include <QWidget>

FirstPaint::FirstPaint(QWidget* pWindow) : m_bCome(false)
{
    pWindow->installEventFilter(this);
}

bool FirstPaint::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Paint) {
        m_bCome = true;
        pObject->removeEventFilter(this);
    }
    return false;
}
