#include "SceneParts.h"

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QTableWidget>
#include <QTimer>
#include <QTreeWidget>

#include "text/Problem.h"
#include "window/MainWindow.h"
#include "window/StatusArea.h"

using Scenes::later;
using Scenes::modal;
using Scenes::phonebook;

namespace
{

// Until the step says that it is done.
void startImport(const std::function<bool(QFileDialog*)>& step)
{
    later([step] {
        QFileDialog* pDialog = qobject_cast<QFileDialog*>(modal("QFileDialog"));
        return pDialog != nullptr && step(pDialog);
    });
    phonebook("OnClickImport");
}

} // namespace

void Scenes::addProblems(QList<Scene>& listScenes)
{
    listScenes << scene(
        "problems",
        [] {
            Problem problem("/usr/lib/linkhand/plugins/libOther.so", "IDS_HOST_PLUGIN_WRITABLE");
            Scenes::Main()->Status().SetProblems(ProblemList() << problem << problem);
            click("linkhand_StatusArea_problems");
        },
        [] { return windowOf("linkhand_Problems"); },
        [] {
            click("linkhand_Problems_close");
            Scenes::Main()->Status().SetProblems(ProblemList());
        });
}

void Scenes::addQuestions(QList<Scene>& listScenes)
{
    const auto box = [] { return modal("QMessageBox"); };
    listScenes << scene(
        "delete-contacts",
        [] {
            selectFirst(Child<QTableWidget>(TABLE));
            phonebook("OnButtonClickedDeleteContact");
        },
        box, [] { answerBox(false); });
    listScenes << scene(
        "delete-group",
        [] {
            clickNode(node(NODE_LOCAL, 0));
            phonebook("OnDeleteGroupClicked");
        },
        box,
        [] {
            answerBox(false);
            later([] {
                clickNode(modal("QMessageBox") == nullptr ? node(NODE_LOCAL) : nullptr);
                return modal("QMessageBox") == nullptr;
            });
        });
}

void Scenes::addFiles(QList<Scene>& listScenes)
{
    listScenes << scene(
        "open-file", [] { startImport([](QFileDialog*) { return true; }); }, [] { return modal("QFileDialog"); },
        [] { modal("QFileDialog")->close(); });
    listScenes << scene(
        "field-map",
        [] {
            startImport([](QFileDialog* pDialog) {
                // The dialog takes no name from elsewhere once its input has the keyboard, which comes at any time.
                pDialog->findChild<QLineEdit*>("fileNameEdit")->setText(csvFile());
                QMetaObject::invokeMethod(pDialog, "accept");
                return true;
            });
        },
        [] { return windowOf("AddrUIplugin_FieldMapokbtn"); }, [] { click("AddrUIplugin_FieldMapCancelbtn"); });
}
