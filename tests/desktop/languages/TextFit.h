#ifndef LINKHAND_TESTS_TEXTFIT_H
#define LINKHAND_TESTS_TEXTFIT_H

#include <QStringList>

class QWidget;

// Finds texts that do not fit where they stand.
namespace TextFit
{

// A line for each text in the widget and below it that is cut off, wider or higher than its place, and for each widget
// that reaches out of its parent.
QStringList Cut(QWidget* pRoot);

} // namespace TextFit

#endif // LINKHAND_TESTS_TEXTFIT_H
