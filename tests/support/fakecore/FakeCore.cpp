#include "fakecore/FakeCore.h"

#include "fakecore/FakeCoreState.h"

using fakecore::State;
using fakecore::state;

const char* const FakeCore::SmsId = "ED395DF6-E3BA-478e-8AE9-D8A1BF090214";
const char* const FakeCore::MmsId = "8A8F7C8C-B6DE-41cb-9228-D78C95312E87";
const char* const FakeCore::VoiceCallId = "58A0343A-93DB-4ea2-92B4-C51589629381";
const char* const FakeCore::VideoCallId = "EAF9E049-AFD3-4DCB-B721-172970E7F3F7";
const char* const FakeCore::NotifyId = "C986A689-A5F6-4215-84BD-39BA626F1F57";
const char* const FakeCore::DeviceMgrId = "8772F2BF-3227-4203-AFDD-DBAD1E9D1F98";

namespace fakecore
{

State::State() : language("en"), libraryPath(QString::fromLocal8Bit(qgetenv("LINKHAND_SOURCE_DIR")))
{
    settings["callui/callvoice"] = "1";
    settings["customize/simtype"] = "SIM";
    settings["customize/uimtype"] = "UIM";
    settings["addrbook/sortpreserve"] = "1";
}

State& state()
{
    static State instance;
    return instance;
}

std::atomic<bool>& shuttingDown()
{
    static std::atomic<bool> instance(false);
    return instance;
}

Workers& workers()
{
    static Workers instance;
    return instance;
}

QList<ExtendDialog*>& dialogs()
{
    static QList<ExtendDialog*> instance;
    return instance;
}

QHash<const ExtendDialog*, QPointer<QWidget>>& contents()
{
    static QHash<const ExtendDialog*, QPointer<QWidget>> instance;
    return instance;
}

} // namespace fakecore

void FakeCore::reset()
{
    state() = State();
    fakecore::shuttingDown() = false;
    std::lock_guard<std::mutex> lock(fakecore::workers().mutex);
    fakecore::workers().running = 0;
    fakecore::workers().log.clear();
}

void FakeCore::setText(const QString& id, const QString& text, const QString& language)
{
    state().texts[language][id] = text;
}

void FakeCore::setShortcut(const QString& id, const QKeySequence& key, const QString& language)
{
    state().keys[language][id] = key;
}

void FakeCore::setLanguage(const QString& language)
{
    state().language = language;
}

void FakeCore::setSetting(const QString& section, const QString& key, const QString& value)
{
    state().settings[section + "/" + key] = value;
}

void FakeCore::removeSetting(const QString& section, const QString& key)
{
    state().settings.remove(section + "/" + key);
}

void FakeCore::answer(int button)
{
    state().answers << button;
}

QList<FakeCore::Message> FakeCore::messages()
{
    return state().messages;
}

QStringList FakeCore::messageTexts()
{
    QStringList texts;
    for (const Message& message : state().messages)
        texts << message.text;
    return texts;
}

void FakeCore::clearMessages()
{
    state().messages.clear();
}

void FakeCore::onMessage(std::function<void(const Message&)> function)
{
    state().onMessage = std::move(function);
}

void FakeCore::setMainWindow(QWidget* window)
{
    state().mainWindow = window;
}
void FakeCore::setPluginLibraryPath(const QString& path)
{
    state().libraryPath = path;
}
void FakeCore::setShuttingDown(bool on)
{
    fakecore::shuttingDown() = on;
}

int FakeCore::runningWorkers()
{
    std::lock_guard<std::mutex> lock(fakecore::workers().mutex);
    return fakecore::workers().running;
}

QStringList FakeCore::workerLog()
{
    std::lock_guard<std::mutex> lock(fakecore::workers().mutex);
    return fakecore::workers().log;
}

QList<FakeCore::MadeCall> FakeCore::madeCalls()
{
    return state().madeCalls;
}
void FakeCore::setMakeCallResult(bool ok)
{
    state().makeCallResult = ok;
}
QStringList FakeCore::log()
{
    return state().log;
}
void FakeCore::clearLog()
{
    state().log.clear();
}

void FakeCore::setParenthesisCorrection(std::function<void(QString&)> function)
{
    state().correctParentheses = std::move(function);
}

void FakeCore::setHyperLinks(std::function<QString(const QString&)> function)
{
    state().hyperLinks = std::move(function);
}

void FakeCore::setToolItems(const QList<ToolItem>& items, bool subgroups)
{
    state().toolItemsFixed = true;
    state().toolItems = items;
    state().subgroups = subgroups;
}

void FakeCore::setCreateToolBarResult(bool ok)
{
    state().createToolBarResult = ok;
}

void FakeCore::setMenuXml(const QByteArray& xml)
{
    state().menuXmlFixed = true;
    state().menuXml = xml;
}

void FakeCore::setMenuFails(bool fails)
{
    state().menuFails = fails;
}

QList<FakeCore::Sms> FakeCore::sms()
{
    return state().sms;
}
QStringList FakeCore::mms()
{
    return state().mms;
}
QList<FakeCore::Notice> FakeCore::notices()
{
    return state().notices;
}
void FakeCore::clearNotices()
{
    state().notices.clear();
}

void FakeCore::setSibling(const QString& id, bool present)
{
    if (present)
        state().absent.remove(id);
    else
        state().absent.insert(id);
}

void FakeCore::setSiblingObject(const QString& id, int kind, QObject* object)
{
    if (object != nullptr)
        state().objects[qMakePair(id, kind)] = object;
    else
        state().objects.remove(qMakePair(id, kind));
}

void FakeCore::setContainerPresent(bool present)
{
    state().containerPresent = present;
}
QStringList FakeCore::lookups()
{
    return state().lookups;
}

QList<ExtendDialog*> FakeCore::dialogs()
{
    return fakecore::dialogs();
}
QWidget* FakeCore::content(const ExtendDialog* dialog)
{
    return fakecore::contents().value(dialog);
}
