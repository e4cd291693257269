#include "test/ScreenPlace.h"

#include <QApplication>
#include <QEvent>
#include <QRect>
#include <QVariant>
#include <QWidget>

#include "linkhand/QtCompat.h"

namespace
{

const char* const FIRST_SIZE = "linkhand_firstSize";

bool isWayland()
{
    return qApp->property("platformName").toString().startsWith(QLatin1String("wayland"));
}

// A window of another one is put where it stays when it is first seen, whatever size the compositor gives it then.
class SizeKeeper : public QObject
{
public:
    explicit SizeKeeper(QObject* pParent) : QObject(pParent) {}

    bool eventFilter(QObject* pObject, QEvent* pEvent) override
    {
        const QWidget* const pWidget = qobject_cast<QWidget*>(pObject);
        if (pEvent->type() == QEvent::Show && pWidget != nullptr && pWidget->isWindow()) {
            pObject->setProperty(FIRST_SIZE, pWidget->size());
        }
        return QObject::eventFilter(pObject, pEvent);
    }
};

QSize firstSize(const QWidget* pWindow)
{
    const QSize sizeNow = pWindow->frameGeometry().size();
    const QSize sizeFirst = pWindow->property(FIRST_SIZE).toSize();
    return pWindow->parentWidget() == nullptr || sizeFirst.isEmpty() ? sizeNow : sizeNow - pWindow->size() + sizeFirst;
}

bool isPopup(const QWidget* pWindow)
{
    return pWindow->windowType() == Qt::Popup || pWindow->windowType() == Qt::ToolTip;
}

// The window that a menu or the list of a box hangs on; one whose parent is not shown hangs on that which the user
// works with.
const QWidget* holder(const QWidget* pPopup)
{
    const QWidget* const pParent = pPopup->parentWidget();
    if (pParent != nullptr && pParent->window()->isVisible()) {
        return pParent->window();
    }
    const QWidget* pHolder = QApplication::activeModalWidget();
    foreach (const QWidget* pTop, QApplication::topLevelWidgets()) {
        if (pHolder == nullptr && pTop->isVisible() && !isPopup(pTop)) {
            pHolder = pTop;
        }
    }
    return pHolder;
}

// The upper left corner of a window's contents. What Qt says of it is no place on the screen, but right for what hangs
// on the window.
QPoint corner(const QWidget* pWindow)
{
    const QPoint claimed = pWindow->mapToGlobal(QPoint());
    const QWidget* const pHolder = isPopup(pWindow) ? holder(pWindow) : nullptr;
    if (pHolder != nullptr) {
        return corner(pHolder) + claimed - pHolder->mapToGlobal(QPoint());
    }
    const QSize sizeLeft = QtCompat::availableGeometry(claimed).size() - firstSize(pWindow);
    return QPoint(sizeLeft.width() / 2, sizeLeft.height() / 2) + pWindow->geometry().topLeft() -
           pWindow->frameGeometry().topLeft();
}

} // namespace

void ScreenPlace::Watch()
{
    if (isWayland()) {
        qApp->installEventFilter(new SizeKeeper(qApp));
    }
}

QPoint ScreenPlace::Of(const QWidget* pWidget, const QPoint& point)
{
    if (!isWayland()) {
        return pWidget->mapToGlobal(point);
    }
    const QWidget* const pWindow = pWidget->window();
    return corner(pWindow) + pWidget->mapTo(const_cast<QWidget*>(pWindow), point);
}
