#ifndef TESTS_GUI_ACCESSIBILITY_INSPECTOR_H
#define TESTS_GUI_ACCESSIBILITY_INSPECTOR_H

#include <QStringList>

class QWidget;

// What somebody who sees nothing, or has no mouse, finds in a window.
namespace Inspector
{

// A line for each part of the window that a screen reader could not name or would take for something else, and for each
// that the Tab key does not reach.
QStringList Faults(QWidget* pWindow);

} // namespace Inspector

#endif // TESTS_GUI_ACCESSIBILITY_INSPECTOR_H
