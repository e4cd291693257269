#include <QDomDocument>
#include <QFile>

#include "fakecore/FakeCoreState.h"

using fakecore::state;

bool fakecore::readMenuFile(const QString& path, QByteArray& text)
{
    if (state().menuXmlFixed) {
        text = state().menuXml;
        return true;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    text = file.readAll();
    return true;
}

namespace
{

QList<QDomElement> menusOf(const QDomDocument& document, const QString& parent)
{
    QList<QDomElement> menus;
    QDomElement menu = document.documentElement().firstChildElement("menu");
    for (; !menu.isNull(); menu = menu.nextSiblingElement("menu"))
        if (menu.attribute("parent") == parent)
            menus << menu;
    return menus;
}

QList<QDomElement> itemsOf(const QDomElement& menu)
{
    QList<QDomElement> items;
    for (QDomElement item = menu.firstChildElement("item"); !item.isNull(); item = item.nextSiblingElement("item"))
        items << item;
    return items;
}

void fill(QMenu* menu, const QDomElement& element, const QList<QDomElement>& menus, QList<MENU::QActionInfo>* actions)
{
    for (const QDomElement& item : itemsOf(element)) {
        const QString id = item.attribute("id");
        const QString name = item.attribute("name");
        const QString text = Change::tr(id, "AddrBookUIPlugin");
        QMenu* submenu = nullptr;
        QDomElement submenuElement;
        for (const QDomElement& candidate : menus)
            if (item.attribute("type") == "POPUP" && candidate.attribute("name") == name && candidate != element)
                submenuElement = candidate;
        if (!submenuElement.isNull()) {
            submenu = new QMenu(menu);
            submenu->setTitle(text);
        }
        QAction* const action = submenu != nullptr ? menu->addMenu(submenu) : menu->addAction(text);
        if (actions != nullptr)
            actions->append(MENU::QActionInfo{action, id, name});
        if (submenu != nullptr)
            fill(submenu, submenuElement, menus, actions);
    }
}

} // namespace

namespace MENU
{

class QBuildMenuPrivate
{
public:
    QString path;
};

QBuildMenu::QBuildMenu(QString strPlugin, QString strFile) : d(new QBuildMenuPrivate)
{
    d->path = CommonUtils::GetPluginLibraryPath() + "/plugins/" + strPlugin + "/" + strFile;
}

QBuildMenu::~QBuildMenu()
{
    delete d;
}

QMenu* QBuildMenu::CreateMenuBar(QString strParent, QWidget* pOwner, QList<MENU::QActionInfo>* pActions)
{
    state().log << QString("CreateMenuBar(%1)").arg(strParent);
    QByteArray text;
    QDomDocument document;
    if (state().menuFails || !fakecore::readMenuFile(d->path, text) || !document.setContent(text))
        return nullptr;
    const QList<QDomElement> menus = menusOf(document, strParent);
    QStringList named;
    for (const QDomElement& menu : menus)
        for (const QDomElement& item : itemsOf(menu))
            if (item.attribute("type") == "POPUP")
                named << item.attribute("name");
    for (const QDomElement& element : menus) {
        if (named.contains(element.attribute("name")))
            continue;
        QMenu* const menu = new QMenu(pOwner);
        fill(menu, element, menus, pActions);
        return menu;
    }
    return nullptr;
}

} // namespace MENU
