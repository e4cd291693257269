#include "SceneParts.h"

#include <QLineEdit>
#include <QTreeWidget>

void Scenes::addCalls(QList<Scene>& listScenes)
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
            Child<QLineEdit>("VoiceCallPlugin_lineeditNumber")->setText("+4917000412");
            click("VoiceCallPlugin_buttonCall");
        },
        [] { return mainWindowIf(seen("VoiceCallPlugin_callBox") != nullptr); },
        [] { click("VoiceCallPlugin_buttonHangUp"); });
    listScenes << scene(
        "calls",
        [] {
            click("linkhand_NavBar_VoiceCallPlugin");
            if (Child<QTreeWidget>("VoiceCallPlugin_treeCalls")->topLevelItemCount() == 0) {
                Child<QLineEdit>("VoiceCallPlugin_lineeditNumber")->setText("+4917000412");
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
