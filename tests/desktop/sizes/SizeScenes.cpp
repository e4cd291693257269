#include "SizeScenes.h"

#include <QAbstractButton>
#include <QStringList>
#include <QTabWidget>

#include "Scenes.h"
#include "window/MainWindow.h"

namespace
{

const int CARE_TABS = 7;

// States that differ from others by their contacts alone.
const QStringList& left()
{
    static const QStringList s_lstLeft = {"card",           "empty-group", "search",
                                          "messages-empty", "calls-empty", "tree-menu"};
    return s_lstLeft;
}

QWidget* mainWindowOn(const char* pszPage)
{
    MainWindow* pMain = Scenes::Main();
    return pMain != nullptr && pMain->CurrentPage() == QLatin1String(pszPage) ? pMain : nullptr;
}

Scene page(const char* pszName, const char* pszPage)
{
    return Scene{QString::fromLatin1(pszName), [pszPage] { Scenes::Main()->ShowPage(QLatin1String(pszPage)); },
                 [pszPage] { return mainWindowOn(pszPage); }, [] {}};
}

Scene careTab(int iTab)
{
    const auto tabs = [] { return Scenes::Child<QTabWidget>("linkhand_Care_tabs"); };
    return Scene{QString::fromLatin1("care-%1").arg(iTab),
                 [iTab, tabs] {
                     Scenes::Main()->ShowPage(QLatin1String("Care"));
                     tabs()->setCurrentIndex(iTab);
                 },
                 [iTab, tabs] { return tabs()->currentIndex() == iTab ? mainWindowOn("Care") : nullptr; }, [] {}};
}

// A dialog of the host, with the button that closes it.
Scene dialog(const char* pszName, const char* pszSlot, const char* pszClose)
{
    return Scene{QString::fromLatin1(pszName), [pszSlot] { QMetaObject::invokeMethod(Scenes::Main(), pszSlot); },
                 [pszClose]() -> QWidget* {
                     const QWidget* pClose = Scenes::Child<QWidget>(pszClose);
                     return pClose != nullptr && pClose->isVisible() ? pClose->window() : nullptr;
                 },
                 [pszClose] {
                     if (QAbstractButton* pClose = Scenes::Child<QAbstractButton>(pszClose)) {
                         pClose->click();
                     }
                 }};
}

} // namespace

QList<Scene> SizeScenes::All()
{
    QList<Scene> listScenes;
    foreach (const Scene& scene, Scenes::All()) {
        if (!left().contains(scene.strName)) {
            listScenes << scene;
        }
    }
    for (int i = 0; i < CARE_TABS; ++i) {
        listScenes << careTab(i);
    }
    listScenes << page("preferences", "Preferences") << dialog("help", "OnHelp", "linkhand_Help_close")
               << dialog("about", "OnAbout", "linkhand_About_close");
    return listScenes;
}
