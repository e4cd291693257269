#ifndef TESTS_ENDURANCE_SCREEN_H
#define TESTS_ENDURANCE_SCREEN_H

class MainWindow;
class QAbstractItemView;
class QPoint;
class QRect;
class QTableWidget;
class QTreeWidget;

// The window's parts as a user finds them; null while they are not there.
namespace Screen
{
MainWindow* mainWindow();
QTreeWidget* tree();
QTableWidget* table();

// Where a click hits an item: the middle of what shows of it.
QPoint shown(const QAbstractItemView* view, const QRect& item);
} // namespace Screen

#endif // TESTS_ENDURANCE_SCREEN_H
