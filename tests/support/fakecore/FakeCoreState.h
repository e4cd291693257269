#ifndef TESTS_SUPPORT_FAKECORESTATE_H
#define TESTS_SUPPORT_FAKECORESTATE_H

// The inside of the scripted host library; tests include FakeCore.h alone.

#include <QHash>
#include <QMap>
#include <QPair>
#include <QPointer>
#include <QSet>

#include <atomic>
#include <mutex>

#include "fakecore/FakeCore.h"
#include "linkhand/plugin/IPluginContainer.h"

namespace fakecore
{

struct State {
    State();

    QHash<QString, QHash<QString, QString>> texts; // language, id
    QHash<QString, QHash<QString, QKeySequence>> keys;
    QString language;
    QMap<QString, QString> settings; // "section/key"

    QList<int> answers;
    QList<FakeCore::Message> messages;
    std::function<void(const FakeCore::Message&)> onMessage;

    QPointer<QWidget> mainWindow;
    QString libraryPath;
    QList<FakeCore::MadeCall> madeCalls;
    bool makeCallResult = true;
    QStringList log;
    std::function<void(QString&)> correctParentheses;
    std::function<QString(const QString&)> hyperLinks;

    bool toolItemsFixed = false;
    QList<ToolItem> toolItems;
    bool subgroups = false;
    bool createToolBarResult = true;
    bool menuXmlFixed = false;
    QByteArray menuXml;
    bool menuFails = false;

    QList<FakeCore::Sms> sms;
    QStringList mms;
    QList<FakeCore::Notice> notices;
    QSet<QString> absent;
    QMap<QPair<QString, int>, QObject*> objects;
    bool containerPresent = true;
    QStringList lookups;
};

State& state();

// Any thread.
std::atomic<bool>& shuttingDown();
struct Workers {
    // The last worker counts itself down shortly before it ends.
    ~Workers() { const std::lock_guard<std::mutex> lock(mutex); }

    std::mutex mutex;
    int running = 0;
    QStringList log;
};
Workers& workers();

// The frames alive and their contents; outlives reset, as the frames do.
QList<ExtendDialog*>& dialogs();
QHash<const ExtendDialog*, QPointer<QWidget>>& contents();

// The menu file's text: what the test gave, else the file. False if there is none.
bool readMenuFile(const QString& path, QByteArray& text);

} // namespace fakecore

#endif // TESTS_SUPPORT_FAKECORESTATE_H
