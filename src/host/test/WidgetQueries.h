#ifndef LINKHAND_HOST_WIDGETQUERIES_H
#define LINKHAND_HOST_WIDGETQUERIES_H

#include <QString>
#include <QStringList>

class QWidget;

// Answers what is on the screen and where, for tests that drive the program with real keys and mouse. Reads only.
//
// An address is a path of object or class names, "A/B/C[2]": the third visible C below the first visible B below the
// first visible A. It may begin with "popup" (the open menu) or "modal" (the open modal window).
namespace WidgetQueries
{

// The widget at an address, null if there is none or it is not visible.
QWidget* Find(const QString& strAddress);

// Runs a query, "verb<TAB>address". The answer is a list of lines of fields separated by tabs, in which tab, line end
// and backslash are escaped; bFound is false for an unknown verb or an address without a widget.
//   windows            class, object name, title, x, y, width, height, modal, active
//   place              the names of the place that has the keyboard, one a line (ReaderQueries.h)
//   texts              the texts of the window in front, one a line
//   widget ADDRESS     class, object name, text, x, y, width, height, enabled, focused, checked,
//                      shown by the display
//   rows ADDRESS       number of rows of an item view that are not hidden
//   cells ADDRESS      each visible cell of an item view: row path, column, text, x, y, width, height, selected, check
//                      state (-1 without a check box)
//   headers ADDRESS    each shown section of a table's or tree's header: number, text, x, y, width, height
//   actions ADDRESS    each entry of a menu: text, x, y, width, height, enabled, checked, opens a menu, lit
// Positions are in pixels of the screen.
QStringList Answer(const QString& strQuery, bool& bFound);

} // namespace WidgetQueries

#endif // LINKHAND_HOST_WIDGETQUERIES_H
