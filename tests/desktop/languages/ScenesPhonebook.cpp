#include "SceneParts.h"

#include <QLineEdit>
#include <QTableWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

#include "orva/orva_sim.h"
#include "shared/HostLink.h"

void Scenes::addPhonebook(QList<Scene>& listScenes)
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

void Scenes::addMenus(QList<Scene>& listScenes)
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

void Scenes::addContactDialogs(QList<Scene>& listScenes)
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

void Scenes::addBatch(QList<Scene>& listScenes)
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
