#include "SceneParts.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

#include "shared/HostLink.h"

namespace
{

// A text to two, and what comes then.
void writeSms(const std::function<void()>& then)
{
    Scenes::click("linkhand_Messages_newSms");
    Scenes::later([then] {
        QWidget* pWindow = Scenes::windowOf("SMSUIPlugin_window");
        if (pWindow == nullptr || !pWindow->isActiveWindow()) {
            return false;
        }
        Scenes::seen<QLineEdit>("SMSUIPlugin_lineeditTo")->setText("+4917000412; +4917000138");
        Scenes::seen<QPlainTextEdit>("SMSUIPlugin_texteditText")->setPlainText("See you at eight\nat the station");
        QTimer::singleShot(0, qApp, then);
        return true;
    });
}

// Answers the question of an editor that is closed with a text in it.
void discardText()
{
    Scenes::later([] {
        QWidget* pBox = Scenes::modal("QMessageBox");
        // After those to keep the text and to send it.
        QPushButton* pDiscard = pBox != nullptr ? pBox->findChildren<QPushButton*>().value(2) : nullptr;
        if (pDiscard != nullptr) {
            pDiscard->click();
        }
        return pDiscard != nullptr;
    });
}

} // namespace

void Scenes::addMessages(QList<Scene>& listScenes)
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
            HostLink::Instance()->KeepDraft(0, HOST_MESSAGE_SMS, {"+4917000138"}, QString(), "Shall we meet on");
        },
        [] { return mainWindowIf(Child<QTreeWidget>("linkhand_Messages_list")->topLevelItemCount() == 3); },
        [] {
            for (int i = 0; i < 3; ++i) {
                answerBox(true);
                click("linkhand_Messages_delete");
            }
        });
}

void Scenes::addMessageDialogs(QList<Scene>& listScenes)
{
    listScenes << scene(
        "sms", [] { click("linkhand_Messages_newSms"); }, [] { return windowOf("SMSUIPlugin_window"); },
        [] { click("SMSUIPlugin_buttonClose"); });
    listScenes << scene(
        "sms-written", [] { writeSms([] {}); },
        []() -> QWidget* { return StepsLeft() ? nullptr : windowOf("SMSUIPlugin_window"); },
        [] {
            discardText();
            click("SMSUIPlugin_buttonClose");
        });
    listScenes << scene(
        "sms-close", [] { writeSms([] { click("SMSUIPlugin_buttonClose"); }); }, [] { return modal("QMessageBox"); },
        discardText);
    listScenes << scene(
        "recipients", [] { writeSms([] { click("SMSUIPlugin_buttonByName"); }); },
        []() -> QWidget* {
            const QTreeWidget* pList = seen<QTreeWidget>("SMSUIPlugin_treeRecipients");
            return pList != nullptr && pList->topLevelItemCount() > 10 ? pList->window() : nullptr;
        },
        [] {
            click("SMSUIPlugin_buttonCloseRecipients");
            discardText();
            click("SMSUIPlugin_buttonClose");
        });
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
