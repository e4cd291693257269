#ifndef LINKHAND_TESTS_SCENES_H
#define LINKHAND_TESTS_SCENES_H

#include <QApplication>
#include <QList>
#include <QString>
#include <QWidget>

#include "Director.h"

class MainWindow;

// The windows and states of the program, and how one gets there. The profile is that of Scenes::Fill.
namespace Scenes
{

// Fills the data folder that the environment names, before the program starts.
bool Fill(const QString& strFolder);

QList<Scene> All();

MainWindow* Main();

// What a scene still has to do by itself, such as to answer a question. Dropping it is for scenes that went wrong.
bool StepsLeft();
void DropSteps();

// The rows of the contact table, -1 if there is none.
int Rows();

// The widget of this kind and name, one that is shown before one that is not; null if there is none. One without a
// parent does not count: the phonebook keeps its last table so when it has made another.
template <class Widget>
Widget* Child(const char* pszName)
{
    Widget* pHidden = nullptr;
    foreach (QWidget* pWidget, QApplication::allWidgets()) {
        const bool bNamed = pWidget->objectName() == QLatin1String(pszName);
        Widget* pFound = bNamed ? qobject_cast<Widget*>(pWidget) : nullptr;
        if (pFound != nullptr && pFound->isVisible()) {
            return pFound;
        }
        pHidden = pFound != nullptr && pFound->parentWidget() != nullptr ? pFound : pHidden;
    }
    return pHidden;
}

} // namespace Scenes

#endif // LINKHAND_TESTS_SCENES_H
