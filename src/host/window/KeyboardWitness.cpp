#include "window/KeyboardWitness.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace
{

bool comesFromTheUser(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::ShortcutOverride: // comes before the shortcuts are looked at
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
        return event.spontaneous();
    default:
        return false;
    }
}

} // namespace

KeyboardWitness::KeyboardWitness()
{
    qApp->installEventFilter(this);
}

bool KeyboardWitness::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (comesFromTheUser(*pEvent) && QApplication::activeWindow() == nullptr &&
        QApplication::activePopupWidget() == nullptr && pObject->isWidgetType()) {
        QWidget* const pWindow = static_cast<QWidget*>(pObject)->window();
        const QWidget* const pModal = QApplication::activeModalWidget();
        if (pModal == nullptr || pModal == pWindow)
            QApplication::setActiveWindow(pWindow);
    }
    return false;
}
