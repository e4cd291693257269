#ifndef TESTS_SUPPORT_FAKECORE_H
#define TESTS_SUPPORT_FAKECORE_H

#include <QDialog>
#include <QKeySequence>
#include <QList>
#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <utility>

#include "linkhand/core/Change.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/core/ExtendDialog.h"
#include "linkhand/core/QBuildMenu.h"
#include "linkhand/core/SearchLineEdit.h"
#include "linkhand/core/Startup.h"
#include "linkhand/core/ToolBarLogic.h"
#include "linkhand/plugin/IDeviceMgr.h"
#include "linkhand/plugin/IMMSUIPlugin.h"
#include "linkhand/plugin/INotifyService.h"
#include "linkhand/plugin/ISMSUIService.h"

// The host's user-interface library, scripted by the test: it offers every class of include/linkhand/core, answers what
// it was told to and records what it was asked for. User-interface thread only, but for what CommonUtils offers to any.
//
//     void init() { FakeCore::reset(); FakeSdk::reset(); }
//     ...
//     FakeCore::answer(QMessageBox::Cancel);
//     window.OnButtonClickedDelete();
//     QCOMPARE(FakeCore::messages().last().text, QString("IDS_DELETE_CONFIRM"));
class FakeCore
{
public:
    // Forgets everything. Texts are their ids, the settings are the host's shipped ones (callui/callvoice=1,
    // customize/simtype=SIM, customize/uimtype=UIM, addrbook/sortpreserve=1), there is a plug-in container with the
    // siblings below, no main window, and GetPluginLibraryPath is the source folder of this project.
    static void reset();

    // ---- Texts and settings --------------------------------------------------------------------------------------

    // A text in a language; the language in force is "en" until setLanguage. What is not set comes back as its id.
    static void setText(const QString& id, const QString& text, const QString& language = "en");
    static void setShortcut(const QString& id, const QKeySequence& key, const QString& language = "en");
    static void setLanguage(const QString& language);

    static void setSetting(const QString& section, const QString& key, const QString& value);
    static void removeSetting(const QString& section, const QString& key);

    // ---- Message boxes -------------------------------------------------------------------------------------------

    struct Message {
        QMessageBox::Icon icon;
        QWidget* parent; // may be gone by now
        QString caption;
        QString text;
        QStringList buttons; // ids, without the empty ones
        bool flag;
        Qt::WindowFlags windowFlags;
        QString extra;
        bool modal;
        int answer;
    };

    // The answers of the next boxes, in order of the calls; QMessageBox::Ok where there is none.
    static void answer(int button);
    static QList<Message> messages();
    static QStringList messageTexts();
    static void clearMessages();

    // Runs while each box is open, in place of the user: it may fire events, process them, or close windows.
    static void onMessage(std::function<void(const Message&)> function);

    // ---- The host ------------------------------------------------------------------------------------------------

    static void setMainWindow(QWidget* window);
    static void setPluginLibraryPath(const QString& path);
    static void setShuttingDown(bool on); // any thread

    // Workers counted in and not out; the pairs "file|function" in the order of their calls, "+" in and "-" out.
    static int runningWorkers();
    static QStringList workerLog();

    struct MadeCall {
        QString number;
        int type;
    };
    static QList<MadeCall> madeCalls();
    static void setMakeCallResult(bool ok);

    // Everything asked of CommonUtils, ToolBarLogic and QBuildMenu on the user-interface thread, such as
    // "MoveCentre", "EnableDisableItem(9000, true)", "ParanthesisCorrectionForHeAndAr(Friends(3))". IsShuttingDown,
    // GetSettings, tr and the worker counts are left out.
    static QStringList log();
    static void clearLog();

    // What the two text helpers do; both give the text back as it is until told otherwise.
    static void setParenthesisCorrection(std::function<void(QString&)> function);
    static void setHyperLinks(std::function<QString(const QString&)> function);

    // ---- Tool bar and menus --------------------------------------------------------------------------------------

    // Tool items instead of those of the file, and the subgroups flag. Without it the file is read.
    static void setToolItems(const QList<ToolItem>& items, bool subgroups);
    static void setCreateToolBarResult(bool ok);
    // The text of the menu file instead of the one in the plug-in's folder.
    static void setMenuXml(const QByteArray& xml);
    static void setMenuFails(bool fails); // CreateMenuBar gives null

    // ---- Siblings ------------------------------------------------------------------------------------------------

    static const char* const SmsId;
    static const char* const MmsId;
    static const char* const VoiceCallId;
    static const char* const VideoCallId;
    static const char* const NotifyId;
    static const char* const DeviceMgrId;

    struct Sms {
        QString numbers;
        QString text;
        QWidget* parent;
    };
    struct Notice {
        bool isPush; // else broadcast
        unsigned int message;
        unsigned int param1;
        unsigned int param2;
    };

    // What the siblings were asked for.
    static QList<Sms> sms();
    static QStringList mms();
    static QList<Notice> notices();
    static void clearNotices();

    // Takes a sibling away (not loaded, not installed) or brings it back.
    static void setSibling(const QString& id, bool present);
    // Serves another object for an identifier and kind; null for the scripted one again.
    static void setSiblingObject(const QString& id, int kind, QObject* object);
    static void setContainerPresent(bool present);
    // "id kind" of each lookup in the container.
    static QStringList lookups();

    // ---- Dialogs -------------------------------------------------------------------------------------------------

    // The frames alive, oldest first, and the content each was given.
    static QList<ExtendDialog*> dialogs();
    static QWidget* content(const ExtendDialog* dialog);
};

#endif // TESTS_SUPPORT_FAKECORE_H
