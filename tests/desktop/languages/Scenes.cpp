#include "Scenes.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QProcess>
#include <QTableWidget>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

#include "SceneContacts.h"
#include "SceneSteps.h"
#include "SceneWindows.h"
#include "orva/orva_sim.h"
#include "shared/HostLink.h"
#include "text/Problem.h"
#include "window/MainWindow.h"
#include "window/StatusArea.h"

namespace
{

const char* const TREE = "AddrBookUIPlugin_TreeWidget";
const char* const TABLE = "AddrBookUIPlugin_ContactTable";
const int NODE_LOCAL = 0;
const int NODE_CARD = 1;
const int NODE_DEVICE = 2;
QString s_strCsvFile;

using Scenes::Child;
using Scenes::closePopup;
using Scenes::later;
using Scenes::modal;
using Scenes::popup;

template <class Widget = QWidget>
Widget* seen(const char* pszName)
{
    Widget* pWidget = Child<Widget>(pszName);
    return pWidget != nullptr && pWidget->isVisible() ? pWidget : nullptr;
}

QWidget* windowOf(const char* pszName)
{
    QWidget* pWidget = seen(pszName);
    return pWidget != nullptr ? pWidget->window() : nullptr;
}

void click(const char* pszName)
{
    if (QAbstractButton* pButton = Child<QAbstractButton>(pszName)) {
        pButton->click();
    }
}

void phonebook(const char* pszSlot)
{
    foreach (QWidget* pWidget, QApplication::allWidgets()) {
        if (pWidget->inherits("AddrBookDlg")) {
            QMetaObject::invokeMethod(pWidget, pszSlot);
            return;
        }
    }
}

QTreeWidgetItem* node(int iRoot, int iGroup = -1)
{
    QTreeWidget* pTree = Child<QTreeWidget>(TREE);
    QTreeWidgetItem* pItem = pTree != nullptr ? pTree->topLevelItem(iRoot) : nullptr;
    return pItem != nullptr && iGroup >= 0 ? pItem->child(iGroup) : pItem;
}

void clickNode(QTreeWidgetItem* pItem)
{
    if (pItem != nullptr) {
        QTreeWidget* pTree = pItem->treeWidget();
        pTree->setFocus();
        QTest::mouseClick(pTree->viewport(), Qt::LeftButton, Qt::NoModifier, pTree->visualItemRect(pItem).center());
    }
}

// Qt's own way to select a row finds no column in a table that runs from right to left.
void selectFirst(QTableWidget* pTable)
{
    pTable->clearSelection();
    pTable->setFocus();
    pTable->setCurrentCell(0, 0);
}

// True once the table shows so many rows, the first of which is selected then, as the preview tells.
bool shown(int iLeast)
{
    QTableWidget* pTable = seen<QTableWidget>(TABLE);
    const QTextEdit* pPreview = seen<QTextEdit>("AddrBookUIPlugin_labelPreview");
    if (pTable == nullptr || pPreview == nullptr || pTable->rowCount() < iLeast) {
        return false;
    }
    // A read restores the order that the user left, and so the order in which the director found the table.
    if (pTable->horizontalHeader()->sortIndicatorSection() != 0) {
        pTable->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
        return false;
    }
    const QString strName = pTable->item(0, 0) != nullptr ? pTable->item(0, 0)->text() : QString();
    if (!pPreview->toPlainText().contains(strName) || pTable->selectedItems().isEmpty()) {
        selectFirst(pTable);
        return false;
    }
    return true;
}

QWidget* mainWindowIf(bool bCondition)
{
    return bCondition ? Scenes::Main() : nullptr;
}

// A real key: only from the keyboard does Qt make a context menu of it.
void menuKey()
{
    QProcess::startDetached("xdotool", {"key", "Menu"});
}

void answerBox(bool bYes)
{
    later([bYes] {
        QMessageBox* pBox = qobject_cast<QMessageBox*>(modal("QMessageBox"));
        if (pBox != nullptr && !pBox->buttons().isEmpty()) {
            (bYes ? pBox->buttons().first() : pBox->buttons().last())->click();
        }
        return pBox != nullptr;
    });
}

Scene scene(
    const char* pszName, const std::function<void()>& open, const std::function<QWidget*()>& find,
    const std::function<void()>& close = [] {})
{
    return Scene{QString::fromLatin1(pszName), open, find, close};
}

// Until the step says that it is done.
void startImport(const std::function<bool(QFileDialog*)>& step)
{
    later([step] {
        QFileDialog* pDialog = qobject_cast<QFileDialog*>(modal("QFileDialog"));
        return pDialog != nullptr && step(pDialog);
    });
    phonebook("OnClickImport");
}

void addPhonebook(QList<Scene>& listScenes)
{
    listScenes << scene(
        "phonebook",
        [] {
            click("linkhand_NavBar_AddrBookUIPlugin");
            clickNode(node(NODE_LOCAL));
        },
        [] { return mainWindowIf(shown(20)); });
    listScenes << scene(
        "card", [] { clickNode(node(NODE_CARD)); }, [] { return mainWindowIf(shown(1) && Scenes::Rows() == 6); });
    listScenes << scene(
        "empty-group", [] { clickNode(node(NODE_LOCAL, 1)); }, [] { return mainWindowIf(Scenes::Rows() == 0); },
        [] { clickNode(node(NODE_LOCAL)); });
    listScenes << scene(
        "search",
        [] {
            click("AddrBookUIPlugin_ToolButton_9006");
            QTest::keyClicks(Child<QLineEdit>("AddrBookUIPlugin_SearchBox"), "an");
        },
        [] { return mainWindowIf(seen("AddrBookUIPlugin_SearchBox") != nullptr && Scenes::Rows() < 20 && shown(1)); },
        [] { click("AddrBookUIPlugin_ToolButton_9006"); });
    listScenes << scene(
        "search-box", [] { click("AddrBookUIPlugin_ToolButton_9006"); },
        [] { return mainWindowIf(seen("AddrBookUIPlugin_SearchBox") != nullptr && shown(20)); },
        [] { click("AddrBookUIPlugin_ToolButton_9006"); });
    listScenes << scene(
        "device-panel", [] { click("linkhand_NavBar_device"); },
        [] { return mainWindowIf(seen("linkhand_DevicePanel") != nullptr); }, [] { click("linkhand_NavBar_device"); });
    listScenes << scene(
        "group-editor",
        [] {
            clickNode(node(NODE_LOCAL, 0));
            phonebook("OnRenameGroupClicked");
        },
        [] {
            QTreeWidget* pTree = Child<QTreeWidget>(TREE);
            return mainWindowIf(pTree->viewport()->findChild<QLineEdit*>() != nullptr);
        },
        [] {
            QTreeWidget* pTree = Child<QTreeWidget>(TREE);
            QTest::keyClick(pTree->viewport()->findChild<QLineEdit*>(), Qt::Key_Escape);
            clickNode(node(NODE_LOCAL));
        });
}

void addMessages(QList<Scene>& listScenes)
{
    listScenes << scene(
        "messages-empty", [] { click("linkhand_NavBar_Messages"); },
        [] { return mainWindowIf(seen("linkhand_Page_Messages") != nullptr); });
    listScenes << scene(
        "messages",
        [] {
            HostLink::Instance()->SendMessage(HOST_MESSAGE_SMS, {"+4917012345", "0170 99"}, QString(),
                                              "See you at eight\nat the station");
            HostLink::Instance()->SendMessage(HOST_MESSAGE_MMS, {"+861065551234"}, "Pictures", "From the lake");
        },
        [] { return mainWindowIf(Child<QTreeWidget>("linkhand_Messages_list")->topLevelItemCount() == 2); },
        [] {
            for (int i = 0; i < 2; ++i) {
                answerBox(true);
                click("linkhand_Messages_delete");
            }
        });
}

void addCalls(QList<Scene>& listScenes)
{
    listScenes << scene(
        "calls-empty",
        [] {
            click("linkhand_NavBar_VoiceCallPlugin");
            // The calls of the passes before.
            Child<QTreeWidget>("VoiceCallPlugin_treeCalls")->clear();
            Child<QLineEdit>("VoiceCallPlugin_lineeditNumber")->clear();
        },
        [] { return mainWindowIf(seen("VoiceCallPlugin_MainWidget") != nullptr); });
    listScenes << scene(
        "call",
        [] {
            Child<QLineEdit>("VoiceCallPlugin_lineeditNumber")->setText("+4930231258");
            click("VoiceCallPlugin_buttonCall");
        },
        [] { return mainWindowIf(seen("VoiceCallPlugin_callBox") != nullptr); },
        [] { click("VoiceCallPlugin_buttonHangUp"); });
    listScenes << scene(
        "calls",
        [] {
            click("linkhand_NavBar_VoiceCallPlugin");
            if (Child<QTreeWidget>("VoiceCallPlugin_treeCalls")->topLevelItemCount() == 0) {
                Child<QLineEdit>("VoiceCallPlugin_lineeditNumber")->setText("+4930231258");
                click("VoiceCallPlugin_buttonCall");
                click("VoiceCallPlugin_buttonHangUp");
            }
        },
        [] { return mainWindowIf(Child<QTreeWidget>("VoiceCallPlugin_treeCalls")->topLevelItemCount() > 0); });
    listScenes << scene(
        "video-call", [] { click("VoiceCallPlugin_buttonVideoCall"); },
        [] { return windowOf("VideoCallPlugin_window"); },
        [] {
            click("VideoCallPlugin_buttonHangUp");
            click("linkhand_NavBar_AddrBookUIPlugin");
        });
}

void addMenus(QList<Scene>& listScenes)
{
    listScenes << scene(
        "table-menu",
        [] {
            selectFirst(Child<QTableWidget>(TABLE));
            menuKey();
        },
        [] { return Child<QTableWidget>(TABLE)->selectedItems().isEmpty() ? nullptr : popup(); }, closePopup);
    listScenes << scene(
        "tree-menu",
        [] {
            Child<QTreeWidget>(TREE)->setFocus();
            menuKey();
        },
        popup, closePopup);
    listScenes << scene(
        "send-menu",
        [] {
            selectFirst(Child<QTableWidget>(TABLE));
            Child<QToolButton>("AddrBookUIPlugin_ToolButton_9005")->showMenu();
        },
        popup, closePopup);
    listScenes << scene(
        "language-menu", [] { click("linkhand_NavBar_language"); }, popup, closePopup);
    listScenes << scene(
        "notices",
        [] {
            HostLink::Instance()->ShowStatus("+49170");
            HostLink::Instance()->ShowStatus("+49171");
            click("linkhand_StatusArea_notice");
        },
        popup, closePopup);
}

void addContactDialogs(QList<Scene>& listScenes)
{
    const auto closeEdit = [] { windowOf("AddrBookUIPlugin_New_Edit_Dlg")->close(); };
    listScenes << scene(
        "new-contact", [] { click("AddrBookUIPlugin_ToolButton_9000"); },
        [] { return windowOf("AddrBookUIPlugin_New_Edit_Dlg"); }, closeEdit);
    listScenes << scene(
        "edit-contact",
        [] {
            selectFirst(Child<QTableWidget>(TABLE));
            phonebook("OnButtonClickedEditContact");
        },
        [] { return windowOf("AddrBookUIPlugin_New_Edit_Dlg"); }, closeEdit);
    listScenes << scene(
        "card-contact",
        [] {
            clickNode(node(NODE_CARD));
            phonebook("OnButtonClickedNewContact");
        },
        [] { return windowOf("AddrBookUIPlugin_New_Edit_Dlg"); },
        [closeEdit] {
            closeEdit();
            clickNode(node(NODE_LOCAL));
        });
    listScenes << scene(
        "choose-number",
        [] {
            later([] {
                const bool bShown = shown(20);
                if (bShown) {
                    QTimer::singleShot(0, qApp, [] { phonebook("OnButtonClickedCall"); });
                }
                return bShown;
            });
        },
        [] { return windowOf("ChoosePhoneNumber_buttonCancel"); }, [] { click("ChoosePhoneNumber_buttonCancel"); });
}

void addMessageDialogs(QList<Scene>& listScenes)
{
    listScenes << scene(
        "sms", [] { click("linkhand_Messages_newSms"); }, [] { return windowOf("SMSUIPlugin_window"); },
        [] { click("SMSUIPlugin_buttonClose"); });
    listScenes << scene(
        "mms", [] { click("linkhand_Messages_newMms"); }, [] { return windowOf("MMSUIPlugin_window"); },
        [] { click("MMSUIPlugin_buttonClose"); });
    listScenes << scene(
        "select-contacts",
        [] {
            click("linkhand_Messages_newSms");
            later([] {
                const bool bReady =
                    windowOf("SMSUIPlugin_window") != nullptr && windowOf("SMSUIPlugin_window")->isActiveWindow();
                if (bReady) {
                    QTimer::singleShot(0, qApp, [] { click("SMSUIPlugin_buttonAddRecipients"); });
                }
                return bReady;
            });
        },
        []() -> QWidget* {
            QTreeWidget* pTree = seen<QTreeWidget>("AddrBookUIPlugin_selectContacts_treeContacts");
            if (pTree == nullptr || pTree->topLevelItemCount() < 3) {
                return nullptr;
            }
            pTree->topLevelItem(0)->setExpanded(true);
            return pTree->topLevelItem(0)->childCount() > 10 ? pTree->window() : nullptr;
        },
        [] {
            click("AddrBookUIPlugin_selectContacts_buttonCancel");
            click("SMSUIPlugin_buttonClose");
        });
}

void addProblems(QList<Scene>& listScenes)
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

void addQuestions(QList<Scene>& listScenes)
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

void addImport(QList<Scene>& listScenes)
{
    listScenes << scene(
        "open-file", [] { startImport([](QFileDialog*) { return true; }); }, [] { return modal("QFileDialog"); },
        [] { modal("QFileDialog")->close(); });
    listScenes << scene(
        "field-map",
        [] {
            startImport([](QFileDialog* pDialog) {
                // A name of a folder that is still being read is not taken while the input has the keyboard.
                pDialog->selectFile(s_strCsvFile);
                if (QFileInfo(pDialog->selectedFiles().value(0)).fileName() != QFileInfo(s_strCsvFile).fileName()) {
                    return false;
                }
                QMetaObject::invokeMethod(pDialog, "accept");
                return true;
            });
        },
        [] { return windowOf("AddrUIplugin_FieldMapokbtn"); }, [] { click("AddrUIplugin_FieldMapCancelbtn"); });
}

void addBatch(QList<Scene>& listScenes)
{
    listScenes << scene(
        "waiting",
        [] {
            clickNode(node(NODE_DEVICE));
            later([] {
                QTableWidget* pTable = seen<QTableWidget>(TABLE);
                if (pTable == nullptr || pTable->rowCount() < 100 || pTable->columnCount() != 2 || !shown(100)) {
                    return false;
                }
                ORVA_Sim_SetDelay(1, 0, 60);
                pTable->selectAll();
                answerBox(true);
                QTimer::singleShot(0, qApp, [] { phonebook("OnButtonClickedDeleteContact"); });
                return true;
            });
        },
        [] { return windowOf("AddrBook_WaitingDialogFrame"); },
        [] {
            foreach (QAbstractButton* pButton,
                     windowOf("AddrBook_WaitingDialogFrame")->findChildren<QAbstractButton*>()) {
                pButton->click();
            }
            ORVA_Sim_SetDelay(1, 0, 0);
            later([] {
                const bool bIdle = modal("QWidget") == nullptr;
                clickNode(bIdle ? node(NODE_LOCAL) : nullptr);
                return bIdle;
            });
        });
}

} // namespace

bool Scenes::Fill(const QString& strFolder)
{
    s_strCsvFile = QDir::homePath() + "/contacts.csv";
    return SceneContacts::Fill(strFolder, s_strCsvFile);
}

QList<Scene> Scenes::All()
{
    QList<Scene> listScenes;
    addPhonebook(listScenes);
    addMessages(listScenes);
    addCalls(listScenes);
    // The first steps leave the phonebook with its contacts on the screen, where the others begin.
    listScenes << scene(
        "phonebook-again", [] { clickNode(node(NODE_LOCAL)); }, [] { return mainWindowIf(shown(20)); });
    addMenus(listScenes);
    addContactDialogs(listScenes);
    addMessageDialogs(listScenes);
    addProblems(listScenes);
    addQuestions(listScenes);
    addImport(listScenes);
    addBatch(listScenes);
    return listScenes;
}

int Scenes::Rows()
{
    const QTableWidget* pTable = Child<QTableWidget>(TABLE);
    return pTable != nullptr ? pTable->rowCount() : -1;
}
