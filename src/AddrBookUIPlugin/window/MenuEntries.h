#ifndef ADDRBOOKUIPLUGIN_MENUENTRIES_H
#define ADDRBOOKUIPLUGIN_MENUENTRIES_H

#include <QList>
#include <QString>

#include "linkhand/core/QBuildMenu.h"

class QAction;
class QObject;

// The entries of the two context menus by the identifiers that Config.xml gives them: what each triggers, and what is
// enabled whenever one of the menus opens. User-interface thread.
class MenuEntries
{
public:
    enum Menu { TABLE, TREE };

    // Over the window's own list, which its builder fills.
    MenuEntries(Menu enMenu, const QList<MENU::QActionInfo>& lstActions) : m_enMenu(enMenu), m_lstActions(lstActions) {}

    // The first action with the identifier; null for an empty one or none.
    static QAction* find(const QString& strId, const QList<MENU::QActionInfo>& lstActions);

    // Connects the action to its slot of the window, if it has one.
    void connectTo(QObject* pWindow, const MENU::QActionInfo& info) const;

    void enable(const char* szId, bool bEnable) const;

private:
    Menu m_enMenu;
    const QList<MENU::QActionInfo>& m_lstActions;
};

// What decides when a menu opens.
struct MenuSituation {
    bool bOnline;
    bool bSms;       // the SMS plug-in is there, which decides for MMS too
    bool bMmsListed; // the menu has an entry for MMS
    bool bRows;
    int iSelection; // ADDRBOOK_ENABLE_TABLE_SINGLE, _MULTIPLE or _NONE
};

// The rules common to all openings of both menus.
void applyMenuRules(const MenuSituation& situation, const MenuEntries& table, const MenuEntries& tree);

#endif // ADDRBOOKUIPLUGIN_MENUENTRIES_H
