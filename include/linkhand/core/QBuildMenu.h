#ifndef LINKHAND_CORE_QBUILDMENU_H
#define LINKHAND_CORE_QBUILDMENU_H

#include <QAction>
#include <QList>
#include <QMenu>
#include <QString>
#include <QWidget>

#include "linkhand/core/CoreExport.h"

namespace MENU
{

class QBuildMenuPrivate;

// One entry of a menu that was built.
struct QActionInfo {
    QAction* pAction; // the menu's
    QString strId;    // the entry's id in the menu file
    QString strName;  // the name of the submenu it opens, else empty
};

// Builds context menus from a plug-in's menu file (its format stands in docs/plugin.md). User-interface thread only.
class LINKHAND_CORE_API QBuildMenu
{
public:
    // Prepares to read strFile in the folder of the plug-in strPlugin. Nothing is opened yet.
    QBuildMenu(QString strPlugin, QString strFile);

    // Frees the reader. Menus stay with their parents.
    ~QBuildMenu();

    // Builds the first menu of strParent that is no submenu of another, as a child object of pOwner, and appends an
    // entry to *pActions for each action, submenus included, in document order. Texts come from Change::tr. Null if
    // the file cannot be read or has no such menu.
    QMenu* CreateMenuBar(QString strParent, QWidget* pOwner, QList<MENU::QActionInfo>* pActions);

private:
    Q_DISABLE_COPY(QBuildMenu)
    QBuildMenuPrivate* d;
};

} // namespace MENU

#endif // LINKHAND_CORE_QBUILDMENU_H
