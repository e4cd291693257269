#include <QApplication>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QDir>
#include <QPointer>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>

#include <malloc.h>

#include <memory>

#include "FailingNew.h"
#include "MessageLog.h"
#include "fakecore/FakeCore.h"
#include "fakesdk/FakeSdk.h"
#include "frame/AddrBookUIPlugin.h"
#include "frame/AddrBookUIService.h"
#include "linkhand/plugin/PluginVerification.h"
#include "window/AddrBookDlg.h"

extern "C" const char* qt_plugin_query_verification_data();
extern "C" QObject* qt_plugin_instance();

// What the host and the siblings see of the plug-in, in the host's order of calls.
class FrameTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<CAddrBookUIPlugin> m_plugin;
    std::unique_ptr<QWidget> m_page;

    static AddrBookDlg* window()
    {
        for (QWidget* widget : QApplication::allWidgets()) {
            if (AddrBookDlg* dialog = qobject_cast<AddrBookDlg*>(widget))
                return dialog;
        }
        return nullptr;
    }

    static int windows()
    {
        int count = 0;
        for (QWidget* widget : QApplication::allWidgets())
            count += qobject_cast<AddrBookDlg*>(widget) != nullptr ? 1 : 0;
        return count;
    }

    static bool buttonEnabled(int id)
    {
        // No tool bar is not the same as a button that is off.
        QList<QButtonGroup*> groups = window()->findChildren<QButtonGroup*>();
        if (groups.isEmpty() || groups.first()->button(id) == nullptr)
            qFatal("the window has no tool button %d", id);
        return groups.first()->button(id)->isEnabled();
    }

private slots:
    void init()
    {
        FakeCore::reset();
        FakeSdk::reset();
        FakeSdk::addRecord(4, {"Anna", "1"});
        m_plugin = std::make_unique<CAddrBookUIPlugin>();
        m_page = std::make_unique<QWidget>();
    }

    void cleanup()
    {
        m_plugin->UnSDKRegisterEvent();
        m_plugin->OnDestroy();
        QCOMPARE(windows(), 0);
        QCOMPARE(FakeSdk::callbackCount(), 0);
        QCOMPARE(FakeSdk::leaks(), QString());
        QCOMPARE(FakeCore::runningWorkers(), 0);
        m_page.reset();
        m_plugin.reset();
    }

    void rootObjectAnswersItsCasts()
    {
        QObject* object = m_plugin.get();
        QVERIFY(qobject_cast<CAddrBookUIPlugin*>(object) == m_plugin.get());
        QVERIFY(qobject_cast<IUIPlugin*>(object) == static_cast<IUIPlugin*>(m_plugin.get()));
        QVERIFY(qobject_cast<IBasePlugin*>(object) == static_cast<IBasePlugin*>(m_plugin.get()));
        QVERIFY(qobject_cast<INotify*>(object) == static_cast<INotify*>(m_plugin.get()));
        QVERIFY(qobject_cast<IAddrBookUIPlugin*>(object) == nullptr);
        QVERIFY(qobject_cast<IAddrBookUIPlugin*>(static_cast<QObject*>(CAddrBookUIService::instance())) != nullptr);
    }

    void fixedAnswers()
    {
        QCOMPARE(m_plugin->DoModal(), 1);
        QCOMPARE(m_plugin->GetLastError(), 0);
        QVERIFY(!m_plugin->IsAllowRelease());
        QCOMPARE(m_plugin->GetVersion(), 0);
        QCOMPARE(m_plugin->GetPluginType(), 0);
        QVERIFY(!m_plugin->IsReady());
        QCOMPARE(m_plugin->GetPluginName(), QString("AddrBookUIPlugin"));
        QVERIFY(m_plugin->GetCLSID().isNull());
        m_plugin->Release();
        QCOMPARE(m_plugin->GetLastError(), 0);
    }

    void verificationTextNamesTheQtInUse()
    {
        const QStringList lines = QString::fromLatin1(qt_plugin_query_verification_data()).split('\n');
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.at(0), QString("pattern=QT_PLUGIN_VERIFICATION_DATA"));
        QCOMPARE(lines.at(1), QString("version=%1").arg(qVersion()));
        QCOMPARE(lines.at(2), QString("debug=false"));
        QVERIFY(lines.at(3).startsWith("buildkey="));
        QVERIFY(lines.at(3).size() > 9);
    }

    void rootObjectIsMadeOnceWhileItLives()
    {
        QPointer<QObject> root(qt_plugin_instance());
        QVERIFY(qobject_cast<CAddrBookUIPlugin*>(root.data()) != nullptr);
        QCOMPARE(qt_plugin_instance(), root.data());
        delete root.data();
        const std::unique_ptr<QObject> again(qt_plugin_instance());
        QVERIFY(qobject_cast<CAddrBookUIPlugin*>(again.get()) != nullptr);
    }

    void queryInterfaceServesOneId()
    {
        QObject marker;
        QObject* object = &marker;
        QCOMPARE(m_plugin->QueryInterface(4096, &object), 0);
        QCOMPARE(object, &marker);
        QCOMPARE(m_plugin->QueryInterface(4097, &object), 1);
        QVERIFY(qobject_cast<CAddrBookUIService*>(object) != nullptr);
        m_plugin->OnDestroy();
        QCOMPARE(m_plugin->QueryInterface(4097, &object), 1); // creates it anew
        QVERIFY(qobject_cast<IAddrBookUIPlugin*>(object) != nullptr);
        QCOMPARE(windows(), 0);
    }

    void changeLangOnlyAnswers()
    {
        m_plugin->Init();
        FakeCore::setText("IDS_LOCAL_PHONEBOOKUI", "Ordinateur", "fr");
        FakeCore::setLanguage("fr");
        QVERIFY(!m_plugin->ChangeLang(""));
        QVERIFY(m_plugin->ChangeLang("fr"));
        QTreeWidget* tree = window()->findChild<QTreeWidget*>();
        QCOMPARE(tree->topLevelItem(0)->text(0), QString("IDS_LOCAL_PHONEBOOKUI(1)"));
        QCOMPARE(m_plugin->Notify(320, 0, 0), 0);
        QCOMPARE(tree->topLevelItem(0)->text(0), QString("Ordinateur(1)"));
    }

    void initBuildsTheWindowAndAddsTheFolder()
    {
        const QDir programs(QCoreApplication::applicationDirPath());
        QVERIFY(m_plugin->Init());
        QVERIFY(QCoreApplication::libraryPaths().contains(programs.canonicalPath() + "/plugins"));
        QCOMPARE(windows(), 1);
        QCOMPARE(window()->objectName(), QString("AddrBookUIPlugin_MainWidget"));
        QCOMPARE(FakeSdk::callbackCount(), 4);
        QVERIFY(m_plugin->Init());
        QCOMPARE(windows(), 1);
    }

    void noticesOfTheNetwork()
    {
        FakeSdk::setNetStatus(0);
        QRect rect(0, 0, 800, 600);
        m_plugin->ShowWindow(m_page.get(), rect);
        QTableWidget* table = window()->findChild<QTableWidget*>("AddrBookUIPlugin_ContactTable");
        QTRY_VERIFY(table->isSortingEnabled());
        table->selectRow(0);
        QVERIFY(!buttonEnabled(9005));
        QCOMPARE(m_plugin->Notify(515, 7, 0), 0);
        QVERIFY(buttonEnabled(9005));
        QCOMPARE(m_plugin->Notify(515, 0, 0), 0);
        QVERIFY(!buttonEnabled(9005));
        QCOMPARE(m_plugin->Notify(999, 1, 1), 0);
        QVERIFY(!buttonEnabled(9005));
        QCOMPARE(m_plugin->Notify(577, 0, 0), 0);
        QVERIFY(buttonEnabled(9005));
        QCOMPARE(m_plugin->Notify(999, 1, 1), 0);
        QVERIFY(buttonEnabled(9005));
        QCOMPARE(m_plugin->Notify(576, 0, 0), 0);
        QVERIFY(!buttonEnabled(9005));
    }

    void noticesOfCardAndSystemMode()
    {
        m_plugin->Init();
        QTreeWidget* tree = window()->findChild<QTreeWidget*>();
        QCOMPARE(tree->topLevelItemCount(), 3);
        QCOMPARE(m_plugin->Notify(579, 0, 0), 0);
        QCOMPARE(tree->topLevelItemCount(), 2);
        QCOMPARE(m_plugin->Notify(578, 0, 0), 0);
        QCOMPARE(tree->topLevelItemCount(), 3);
        QCOMPARE(m_plugin->Notify(4101, 0, 0), 0);
        QCOMPARE(tree->topLevelItemCount(), 1);
    }

    void showWindowTwiceBuildsOneWindow()
    {
        QRect rect(3, 5, 640, 480);
        QVERIFY(m_plugin->ShowWindow(m_page.get(), rect));
        QCOMPARE(windows(), 1);
        AddrBookDlg* first = window();
        QCOMPARE(first->parentWidget(), m_page.get());
        QCOMPARE(first->geometry(), QRect(3, 5, 640, 480));
        QCOMPARE(first->contentsMargins(), QMargins(4, 0, 4, 0));
        QVERIFY(first->hasMouseTracking());
        QVERIFY(!first->isHidden());
        QVERIFY(qobject_cast<QTreeWidget*>(first->focusWidget()) != nullptr);
        const int queries = FakeSdk::count("NetSrv_GetSrvStatus");

        QWidget other;
        QRect second(0, 0, 500, 400);
        QVERIFY(m_plugin->ShowWindow(&other, second));
        QCOMPARE(windows(), 1);
        QCOMPARE(window(), first);
        QCOMPARE(first->parentWidget(), &other);
        QCOMPARE(first->size(), QSize(500, 400));
        QCOMPARE(FakeSdk::count("NetSrv_GetSrvStatus"), queries + 1);
        first->setParent(nullptr);
    }

    void withoutRoomForTheWindowEveryRequestFails()
    {
        FailingNew::failNth(1);
        QVERIFY(!m_plugin->Init());
        QVERIFY(FailingNew::hasFailed());
        FailingNew::failNth(1);
        QRect rect(0, 0, 640, 480);
        QTest::ignoreMessage(QtWarningMsg, "CreateWindow failed inside the function ShowWindow");
        QVERIFY(!m_plugin->ShowWindow(m_page.get(), rect));
        QCOMPARE(FakeSdk::count("NetSrv_GetSrvStatus"), 0);
        FailingNew::failNth(1);
        QList<QString> numbers{"12"};
        QCOMPARE(CAddrBookUIService::instance()->OpenNumSelectDlg(true, FIELD_TYPE_DEFAULT, numbers), 0);
        QCOMPARE(numbers, QList<QString>{"12"});
        FailingNew::failNth(1);
        QCOMPARE(CAddrBookUIService::instance()->SaveNumberToAddrBook("5551234", nullptr), 0);
        QVERIFY(FailingNew::hasFailed());
        QCOMPARE(windows(), 0);
        QVERIFY(m_plugin->Init());
        QCOMPARE(windows(), 1);
    }

    // The page is hidden with an editor open; the end comes under the box about its name.
    void endUnderTheBoxOfHideTouchesNothingThatHasGone()
    {
        mallopt(M_PERTURB, 0xa5); // freed memory tells who reads it
        m_plugin->Init();
        QAction* entry = nullptr;
        for (QAction* action : window()->findChildren<QAction*>())
            entry = action->text() == "IDS_Add_GROUP" ? action : entry;
        QVERIFY(entry != nullptr);
        entry->trigger();
        FakeCore::onMessage([this](const FakeCore::Message&) { m_plugin->OnDestroy(); });
        m_plugin->Hide();
        FakeCore::onMessage({});
        mallopt(M_PERTURB, 0);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_GROUP_NAME_NULL"));
        QCOMPARE(windows(), 0);
    }

    void failingNetworkQueryMeansOffline()
    {
        FakeSdk::failAlways("NetSrv_GetSrvStatus");
        QRect rect(0, 0, 640, 480);
        QVERIFY(m_plugin->ShowWindow(m_page.get(), rect));
        QTableWidget* table = window()->findChild<QTableWidget*>("AddrBookUIPlugin_ContactTable");
        QTRY_VERIFY(table->isSortingEnabled());
        table->selectRow(0);
        QVERIFY(!buttonEnabled(9005));
    }

    void fitSizeAndHideWorkOnTheWindow()
    {
        QRect rect(10, 20, 300, 200);
        m_plugin->FitSize(rect); // without a window: nothing
        m_plugin->Hide();
        QCOMPARE(windows(), 0);
        m_plugin->ShowWindow(m_page.get(), rect);
        QRect fit(1, 2, 333, 222);
        m_plugin->FitSize(fit);
        QCOMPARE(window()->geometry(), fit);
        m_plugin->Hide();
        QCOMPARE(windows(), 1);
        QVERIFY(window()->isHidden());
    }

    void siblingsRequestsBuildTheWindowThemselves()
    {
        // Each request runs a dialog of its own, which is closed as it comes up.
        QTimer closer;
        connect(&closer, &QTimer::timeout, [] {
            if (QWidget* dialog = QApplication::activeModalWidget())
                dialog->close();
        });
        closer.start(10);
        QList<QString> numbers{"12"};
        QCOMPARE(CAddrBookUIService::instance()->OpenNumSelectDlg(true, FIELD_TYPE_DEFAULT, numbers), 0);
        QCOMPARE(numbers, QList<QString>{"12"});
        QCOMPARE(windows(), 1);
        m_plugin->OnDestroy();
        QCOMPARE(windows(), 0);
        QCOMPARE(CAddrBookUIService::instance()->SaveNumberToAddrBook("5551234", nullptr), 1);
        QCOMPARE(windows(), 1);
        int result = 42;
        CAddrBookUIService::instance()->SearchMobile("1", "2", result, true);
        QCOMPARE(result, 42);
        m_plugin->OnDestroy();
        QCOMPARE(windows(), 0);
    }

    void numberRequestGivesAWindowWithoutAParentTheHosts()
    {
        QWidget main;
        FakeCore::setMainWindow(&main);
        QTimer closer;
        connect(&closer, &QTimer::timeout, [] {
            if (QWidget* dialog = QApplication::activeModalWidget())
                dialog->close();
        });
        closer.start(10);
        QRect rect(0, 0, 640, 480);
        QList<QString> numbers;
        m_plugin->ShowWindow(m_page.get(), rect);
        CAddrBookUIService::instance()->OpenNumSelectDlg(true, FIELD_TYPE_DEFAULT, numbers);
        QCOMPARE(window()->parentWidget(), m_page.get()); // it has one
        m_plugin->ShowWindow(nullptr, rect);
        QVERIFY(window()->parentWidget() == nullptr);
        CAddrBookUIService::instance()->OpenNumSelectDlg(true, FIELD_TYPE_DEFAULT, numbers);
        QCOMPARE(window()->parentWidget(), &main);
        m_plugin->OnDestroy(); // before its parent goes
        FakeCore::setMainWindow(nullptr);
    }

    void linesNameTheFileWithoutItsFolder()
    {
        const MessageLog log;
        QRect rect(0, 0, 100, 100);
        m_plugin->ShowWindow(m_page.get(), rect);
        m_plugin->Hide();
        const QStringList lines = MessageLog::lines();
        const QStringList own =
            lines.filter(QRegularExpression("^AddrBookUI(Plugin|Service)\\.cpp: \\w+ (called|exit)$"));
        QVERIFY(!own.isEmpty());
        QCOMPARE(lines.filter(QRegularExpression(" rect: x=0, y=0, width=100, height=100$")).size(), 1);
        // Where it is built without optimisation, Qt names places of its own.
        for (const QString& line : lines.filter(QRegularExpression("^(?!QObject::connect).*\\.cpp")))
            QVERIFY2(!line.section(".cpp", 0, 0).contains("/"), qPrintable(line));
    }

    void noticeAfterTheEndFindsNoWindow()
    {
        m_plugin->Init();
        m_plugin->UnSDKRegisterEvent();
        m_plugin->OnDestroy();
        QCOMPARE(windows(), 0);
        QCOMPARE(m_plugin->Notify(320, 0, 0), 0);
        QCOMPARE(m_plugin->Notify(4101, 0, 0), 0);
        QCOMPARE(windows(), 0);
    }

    void unregisteringLeavesTheWindowAlone()
    {
        m_plugin->Init();
        QCOMPARE(FakeSdk::callbackCount(), 4);
        m_plugin->UnSDKRegisterEvent();
        QCOMPARE(FakeSdk::callbackCount(), 0);
        QCOMPARE(windows(), 1);
    }

    void windowLivesAgainAfterTheEnd()
    {
        m_plugin->Init();
        m_plugin->UnSDKRegisterEvent();
        m_plugin->OnDestroy();
        QVERIFY(m_plugin->Init());
        QCOMPARE(windows(), 1);
        QCOMPARE(FakeSdk::callbackCount(), 4);
    }
};

QTEST_MAIN(FrameTest)
#include "FrameTest.moc"
