#include "linkhand/core/QBuildMenu.h"

#include <QtDebug>

#include "Host.h"
#include "MenuFile.h"
#include "linkhand/core/Change.h"

namespace MENU
{

class QBuildMenuPrivate
{
public:
    QString strPlugin;
    QString strFile;
};

} // namespace MENU

namespace
{

// Menus that open one another several times over could grow without bounds.
const int s_iMaxEntries = 1000;

// One run over a menu and the menus that its entries open.
class Builder
{
public:
    Builder(const MenuFile& file, const QString& strPlugin) : m_file(file), m_strPlugin(strPlugin) {}

    void fill(QMenu* pMenu, int iMenu)
    {
        for (const MenuFile::Item& item : m_file.lstMenus.at(iMenu).lstItems) {
            if (m_lstPlaces.size() >= s_iMaxEntries)
                return;
            if (item.bSeparatorAbove)
                pMenu->addSeparator();
            MENU::QActionInfo info;
            info.strId = item.strId;
            info.strName = item.strSubmenu;
            const QString strText = Change::tr(item.strId, m_strPlugin);
            if (!item.bOpensSubmenu) {
                info.pAction = pMenu->addAction(strText);
                insert(item.iPlace, info);
                continue;
            }
            QMenu& submenu = *pMenu->addMenu(strText);
            info.pAction = submenu.menuAction();
            insert(item.iPlace, info);
            const int iSubmenu = m_file.submenu(iMenu, item.strSubmenu);
            if (iSubmenu >= 0)
                fill(&submenu, iSubmenu);
        }
    }

    const QList<MENU::QActionInfo>& actions() const { return m_lstActions; }

private:
    // Keeps the entries in the order of the file, where a submenu's stand behind those of the menus before it.
    void insert(int iPlace, const MENU::QActionInfo& info)
    {
        int iAt = m_lstPlaces.size();
        while (iAt > 0 && m_lstPlaces.at(iAt - 1) > iPlace)
            --iAt;
        m_lstPlaces.insert(iAt, iPlace);
        m_lstActions.insert(iAt, info);
    }

    const MenuFile& m_file;
    QString m_strPlugin;
    QList<int> m_lstPlaces;
    QList<MENU::QActionInfo> m_lstActions;
};

} // namespace

MENU::QBuildMenu::QBuildMenu(QString strPlugin, QString strFile) : d(new QBuildMenuPrivate)
{
    d->strPlugin = strPlugin;
    d->strFile = strFile;
}

MENU::QBuildMenu::~QBuildMenu()
{
    delete d;
}

QMenu* MENU::QBuildMenu::CreateMenuBar(QString strParent, QWidget* pOwner, QList<MENU::QActionInfo>* pActions)
{
    MenuFile file;
    if (!file.read(Host::libraryPath() + QLatin1String("/plugins/") + d->strPlugin + QLatin1Char('/') + d->strFile))
        return nullptr;
    const int iMenu = file.topMenu(strParent);
    if (iMenu < 0)
        return nullptr;
    QMenu* pMenu = new QMenu(pOwner);
    Builder builder(file, d->strPlugin);
    builder.fill(pMenu, iMenu);
    if (pActions != nullptr)
        *pActions += builder.actions();
    return pMenu;
}
