#include "window/DialogPlace.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFileDialog>

#include "window/WindowPlace.h"

DialogPlace::DialogPlace()
{
    qApp->installEventFilter(this);
}

bool DialogPlace::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Show && !pEvent->spontaneous()) {
        QFileDialog* const pDialog = qobject_cast<QFileDialog*>(pObject);
        if (pDialog != nullptr) {
            WindowPlace::Fit(*pDialog);
        }
    }
    return QObject::eventFilter(pObject, pEvent);
}
