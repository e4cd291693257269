#ifndef LINKHAND_HOST_SCREENPLACE_H
#define LINKHAND_HOST_SCREENPLACE_H

#include <QPoint>

class QWidget;

// Where a widget is on the screen. Under Wayland no program knows where its windows are, so it is worked out there for
// the compositor that the tests run: a shell that fills the screen with a window of its own and puts what belongs to
// another in the middle.
namespace ScreenPlace
{

// Begins to watch where windows go; called before the first is shown.
void Watch();

// A point of the widget, in pixels of the screen.
QPoint Of(const QWidget* pWidget, const QPoint& point);

} // namespace ScreenPlace

#endif // LINKHAND_HOST_SCREENPLACE_H
