#ifndef LINKHAND_TESTS_SCENEPARTS_H
#define LINKHAND_TESTS_SCENEPARTS_H

#include "SceneSteps.h"
#include "SceneWindows.h"
#include "Scenes.h"

class QTableWidget;
class QTreeWidgetItem;

// What the scenes are put together from.
namespace Scenes
{

const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const int NODE_LOCAL = 0;
const int NODE_CARD = 1;
const int NODE_DEVICE = 2;

// The file to import.
QString csvFile();

// The widget of this name while it is shown, or null.
template <class Widget = QWidget>
Widget* seen(const char* pszName)
{
    Widget* pWidget = Child<Widget>(pszName);
    return pWidget != nullptr && pWidget->isVisible() ? pWidget : nullptr;
}

// The window that it is in.
QWidget* windowOf(const char* pszName);

void click(const char* pszName);

// Calls a slot of the phonebook's window.
void phonebook(const char* pszSlot);

QTreeWidgetItem* node(int iRoot, int iGroup = -1);
void clickNode(QTreeWidgetItem* pItem);
void selectFirst(QTableWidget* pTable);

// True once the table shows so many rows, the first of which is selected then, as the preview tells.
bool shown(int iLeast);

QWidget* mainWindowIf(bool bCondition);
void menuKey();
void answerBox(bool bYes);

Scene scene(
    const char* pszName, const std::function<void()>& open, const std::function<QWidget*()>& find,
    const std::function<void()>& close = [] {});

// The scenes of each part of the program, in the order in which they are played.
void addPhonebook(QList<Scene>& listScenes);
void addMessages(QList<Scene>& listScenes);
void addCalls(QList<Scene>& listScenes);
void addCare(QList<Scene>& listScenes);
void addPreferences(QList<Scene>& listScenes);
void addMenus(QList<Scene>& listScenes);
void addContactDialogs(QList<Scene>& listScenes);
void addMessageDialogs(QList<Scene>& listScenes);
void addHostDialogs(QList<Scene>& listScenes);
void addProblems(QList<Scene>& listScenes);
void addQuestions(QList<Scene>& listScenes);
void addFiles(QList<Scene>& listScenes);
void addBatch(QList<Scene>& listScenes);

} // namespace Scenes

#endif // LINKHAND_TESTS_SCENEPARTS_H
