#include "Screen.h"

#include <QApplication>
#include <QTableWidget>
#include <QTreeWidget>

#include "window/MainWindow.h"

namespace
{
template <class T>
T* inWindow(const char* name)
{
    const MainWindow* window = Screen::mainWindow();
    return window != nullptr ? window->findChild<T*>(name) : nullptr;
}
} // namespace

MainWindow* Screen::mainWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (MainWindow* window = qobject_cast<MainWindow*>(widget))
            return window;
    }
    return nullptr;
}

QTreeWidget* Screen::tree()
{
    return inWindow<QTreeWidget>("AddrBookUIPlugin_TreeWidget");
}

// The window makes a new table now and then; the one in use is the one that shows.
QTableWidget* Screen::table()
{
    const MainWindow* window = mainWindow();
    if (window == nullptr)
        return nullptr;
    QTableWidget* found = nullptr;
    for (QTableWidget* table : window->findChildren<QTableWidget*>("AddrBookUIPlugin_ContactTable")) {
        if (found == nullptr || !table->isHidden())
            found = table;
    }
    return found;
}

QPoint Screen::shown(const QAbstractItemView* view, const QRect& item)
{
    return (item & view->viewport()->rect()).center();
}
