#ifndef LINKHAND_HOST_WINDOWPLACE_H
#define LINKHAND_HOST_WINDOWPLACE_H

#include <QRect>
#include <QSize>

class QWidget;

// Keeps a window within its screen: a place that was kept may be larger than the screen that there is now, or lie on
// one that is gone.
class WindowPlace
{
public:
    // The nearest rectangle that lies within what a screen has free: smaller where it must be, though never below the
    // smallest size, which then begins where the screen begins.
    static QRect Fitted(const QRect& rectWindow, const QRect& rectFree, const QSize& sizeSmallest);

    // Fits a window that is not shown yet, with the frame that it will get; its smallest size is at most what the
    // screen has. One that is maximized or fills the screen is left to the window manager, and so is the position of
    // one that was never placed.
    static void Fit(QWidget& window);
};

#endif
