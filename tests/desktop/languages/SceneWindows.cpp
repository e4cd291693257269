#include "SceneWindows.h"

#include <QMenu>

#include "Scenes.h"
#include "window/MainWindow.h"

MainWindow* Scenes::Main()
{
    foreach (QWidget* pWidget, QApplication::topLevelWidgets()) {
        if (MainWindow* pWindow = qobject_cast<MainWindow*>(pWidget)) {
            return pWindow->isVisible() ? pWindow : nullptr;
        }
    }
    return nullptr;
}

QWidget* Scenes::modal(const char* pszClass)
{
    QWidget* pWidget = QApplication::activeModalWidget();
    return pWidget != nullptr && pWidget->inherits(pszClass) ? pWidget : nullptr;
}

QWidget* Scenes::popup()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

void Scenes::closePopup()
{
    if (QWidget* pMenu = popup()) {
        pMenu->close();
    }
}
