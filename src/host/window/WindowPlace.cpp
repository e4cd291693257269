#include "window/WindowPlace.h"

#include <QMargins>
#include <QStyle>
#include <QWidget>
#include <QtGlobal>

#include "linkhand/QtCompat.h"

namespace
{

// Nobody knows a frame before the window manager has made it.
const int BORDER = 6;

} // namespace

QRect WindowPlace::Fitted(const QRect& rectWindow, const QRect& rectFree, const QSize& sizeSmallest)
{
    QRect rect = rectWindow;
    rect.setSize(rect.size().boundedTo(rectFree.size()).expandedTo(sizeSmallest));
    rect.moveLeft(qMax(qMin(rect.left(), rectFree.right() - rect.width() + 1), rectFree.left()));
    rect.moveTop(qMax(qMin(rect.top(), rectFree.bottom() - rect.height() + 1), rectFree.top()));
    return rect;
}

void WindowPlace::Fit(QWidget& window)
{
    if ((window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) != 0) {
        return;
    }
    const int iTitle = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    const QRect rectFree =
        QtCompat::availableGeometry(window.geometry().center()).adjusted(BORDER, iTitle + BORDER, -BORDER, -BORDER);
    window.setMinimumSize(window.minimumSize().boundedTo(rectFree.size()));
    const QRect rect = Fitted(window.geometry(), rectFree, window.minimumSize());
    if (window.testAttribute(Qt::WA_Moved)) {
        window.setGeometry(rect);
    } else {
        window.resize(rect.size());
    }
}
