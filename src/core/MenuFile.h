#ifndef LINKHAND_CORE_MENUFILE_H
#define LINKHAND_CORE_MENUFILE_H

#include <QList>
#include <QString>

// A plug-in's menu file as it stands; docs/plugin.md tells its format.
struct MenuFile {
    struct Tool {
        int iId;
        QString strTip;
        QString strIcon;
        bool bSearch;
    };

    struct Item {
        int iPlace;           // in the file, over all menus
        QString strId;        // language id
        QString strSubmenu;   // name of the menu it opens, empty for a plain entry
        bool bOpensSubmenu;   // "POPUP" instead of "ITEM"
        bool bSeparatorAbove; // a line between this entry and the one above it
    };

    struct Menu {
        QString strName;
        QString strParent;
        QList<Item> lstItems;
    };

    bool bSubGroups = false;
    QList<Tool> lstTools;
    QList<Menu> lstMenus;

    // Reads strFile. Of a malformed file, what stands before the fault. False if it cannot be opened.
    bool read(const QString& strFile);

    // The place of the first menu of strParent that no entry opens, or -1.
    int topMenu(const QString& strParent) const;

    // The place of the menu that an entry of menu iMenu opens: the next one behind it with that name and the same
    // parent, or -1. A menu thus never contains itself.
    int submenu(int iMenu, const QString& strName) const;
};

#endif // LINKHAND_CORE_MENUFILE_H
