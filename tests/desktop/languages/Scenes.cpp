#include "Scenes.h"

#include <QTableWidget>

#include "SceneContacts.h"
#include "SceneParts.h"

bool Scenes::Fill(const QString& strFolder)
{
    return SceneContacts::Fill(strFolder, csvFile());
}

QList<Scene> Scenes::All()
{
    QList<Scene> listScenes;
    addPhonebook(listScenes);
    addMessages(listScenes);
    addCalls(listScenes);
    addCare(listScenes);
    addPreferences(listScenes);
    // The first steps leave the phonebook with its contacts on the screen, where the others begin.
    listScenes << scene(
        "phonebook-again",
        [] {
            click("linkhand_NavBar_AddrBookUIPlugin");
            clickNode(node(NODE_LOCAL));
        },
        [] { return mainWindowIf(shown(20)); });
    addMenus(listScenes);
    addContactDialogs(listScenes);
    addMessageDialogs(listScenes);
    addHostDialogs(listScenes);
    addProblems(listScenes);
    addQuestions(listScenes);
    addFiles(listScenes);
    addBatch(listScenes);
    return listScenes;
}

int Scenes::Rows()
{
    const QTableWidget* pTable = Child<QTableWidget>(TABLE);
    return pTable != nullptr ? pTable->rowCount() : -1;
}
