#ifndef LINKHAND_TESTS_FIT_H
#define LINKHAND_TESTS_FIT_H

#include <QStringList>

class QWidget;

namespace Fit
{

// A line for each thing about a window that has too little room: itself on its screen, what can be used in it, its
// rows.
QStringList Faults(QWidget* pWidget);

} // namespace Fit

#endif // LINKHAND_TESTS_FIT_H
