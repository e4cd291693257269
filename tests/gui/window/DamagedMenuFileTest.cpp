#include <QApplication>
#include <QContextMenuEvent>
#include <QDeadlineTimer>
#include <QDir>
#include <QMenu>
#include <QPluginLoader>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

#include "RealHost.h"
#include "linkhand/QtCompat.h"
#include "linkhand/plugin/IPluginContainer.h"
#include "linkhand/plugin/IUIPlugin.h"
#include "orva/orva_sim.h"

namespace
{
const int CONTACTS = 3;
const int RANGE = 512; // bytes

// A host in which every sibling is there.
class FullHost : public RealHost, public IPluginContainer
{
public:
    explicit FullHost(const QString& folder) : RealHost(folder) {}
    IPluginContainer* PluginContainer() override { return this; }
    bool IsPluginAvailable(const QString&) override { return true; }
    QObject* GetPlugin(QString, int) override { return &m_sibling; }

private:
    QObject m_sibling;
};
} // namespace

// The built plug-in on the real libraries with its menu file damaged in every place. With LINKHAND_FULL at every byte,
// else at some of them.
class DamagedMenuFileTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QTemporaryDir m_data;
    std::unique_ptr<FullHost> m_host;
    std::unique_ptr<QPluginLoader> m_loader;
    QByteArray m_content;
    QStringList m_opened; // entries of the menus of the last window

    QString file() const { return m_folder.filePath("plugins/AddrBookUIPlugin/Config.xml"); }
    static int step() { return qEnvironmentVariableIsSet("LINKHAND_FULL") ? 1 : 41; }

    // Waits without a pause in which nothing happens: there are thousands of windows to come.
    template <typename Condition>
    static bool waitFor(Condition condition)
    {
        const QDeadlineTimer limit(20000);
        QTimer wakeUp;
        wakeUp.start(100);
        while (!condition() && !limit.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return condition();
    }

    // Opens the context menu of a view on a point, and closes it again.
    void openMenu(QAbstractItemView* view, const QPoint& point)
    {
        QTimer closer;
        connect(&closer, &QTimer::timeout, this, [this] {
            if (QWidget* popup = QApplication::activePopupWidget()) {
                for (const QAction* action : popup->actions())
                    m_opened << action->text();
                popup->close();
            }
        });
        closer.start(0);
        view->activateWindow();
        view->setFocus();
        QVERIFY(waitFor([view] { return view->hasFocus(); }));
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, view->viewport()->mapToGlobal(point));
        QCoreApplication::sendEvent(view->viewport(), &event);
    }

    // A whole life of the window on this menu file.
    void live(const QByteArray& content)
    {
        QFile menuFile(file());
        QVERIFY(menuFile.open(QIODevice::WriteOnly | QIODevice::Truncate));
        menuFile.write(content);
        menuFile.close();
        m_opened.clear();

        IUIPlugin* plugin = qobject_cast<IUIPlugin*>(m_loader->instance());
        QVERIFY2(plugin != nullptr, qPrintable(m_loader->errorString()));
        QWidget page;
        page.resize(800, 600);
        QVERIFY(plugin->Init());
        QRect rect(0, 0, 800, 600);
        QVERIFY(plugin->ShowWindow(&page, rect));
        page.show();
        QTreeWidget* tree = page.findChild<QTreeWidget*>("AddrBookUIPlugin_TreeWidget");
        QTableWidget* table = page.findChild<QTableWidget*>("AddrBookUIPlugin_ContactTable");
        QVERIFY(tree != nullptr);
        QVERIFY(table != nullptr);
        QVERIFY(waitFor([table] { return table->rowCount() == CONTACTS && table->isSortingEnabled(); }));

        table->selectRow(1);
        openMenu(table, table->visualItemRect(table->item(1, 0)).center());
        openMenu(tree, tree->visualItemRect(tree->topLevelItem(0)).center());
        QCOMPARE(table->item(1, 0)->text(), QString("Name 1"));
        plugin->UnSDKRegisterEvent();
        QVERIFY(QTest::qWaitFor([this] { return m_host->workers() == 0; }));
        plugin->OnDestroy();
    }

private slots:
    void initTestCase()
    {
        QtCompat::setDebugEnabled(false);
        // Each damage is reported; thousands of them are not to be read.
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            if (type == QtFatalMsg)
                fprintf(stderr, "%s\n", qPrintable(text));
        });
        const QString build = QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR"));
        const QString deployed = build + "/plugins/AddrBookUIPlugin";
        QVERIFY(QDir(m_folder.path()).mkpath("plugins/AddrBookUIPlugin"));
        QVERIFY(QFile::link(build + "/languages", m_folder.filePath("languages")));
        for (const QString& name : QDir(deployed).entryList(QDir::Files)) {
            if (name != "Config.xml")
                QVERIFY(QFile::link(deployed + '/' + name, QFileInfo(file()).absolutePath() + '/' + name));
        }
        QFile shipped(deployed + "/Config.xml");
        QVERIFY(shipped.open(QIODevice::ReadOnly));
        m_content = shipped.readAll();
        m_host = std::make_unique<FullHost>(m_folder.path());
        m_loader = std::make_unique<QPluginLoader>(build + "/plugins/libAddrBookUIPlugin.so");

        QCOMPARE(ORVA_Sim_Reset(m_data.path().toUtf8().constData()), 0L);
        for (int i = 0; i < CONTACTS; ++i) {
            void* record = nullptr;
            QCOMPARE(ORVA_PBSrv_CreateAddrRecord(4, &record), 0L);
            ORVA_PBSrv_AddrRecord_SetValue(record, "Name", QString("Name %1").arg(i).utf16());
            int id = 0;
            QCOMPARE(ORVA_PBSrv_AddAddrRec(record, &id), 0L);
            ORVA_PBSrv_AddrRecord_Release(record);
        }
    }

    void cleanupTestCase() { ORVA_Sim_Reset(nullptr); }

    void theWholeFileGivesBothMenus()
    {
        live(m_content);
        QVERIFY(m_opened.contains("Delete") && m_opened.contains("New group"));
    }

    void anEmptyFileGivesNone()
    {
        live(QByteArray());
        QCOMPARE(m_opened, QStringList());
    }

    // Each row of the table has time of its own.
    void damaged_data()
    {
        QTest::addColumn<QByteArray>("byte"); // empty: cut off there
        QTest::addColumn<int>("from");
        const QList<QPair<const char*, QByteArray>> damages = {
            {"cut", ""}, {"angle", "<"}, {"quote", "\""}, {"not UTF-8", "\xff"}};
        for (const auto& damage : damages) {
            for (int from = 0; from < m_content.size(); from += RANGE)
                QTest::addRow("%s from %d", damage.first, from) << damage.second << from;
        }
    }
    void damaged()
    {
        QFETCH(QByteArray, byte);
        QFETCH(int, from);
        for (int i = from; i < qMin(from + RANGE, m_content.size()) && !QTest::currentTestFailed(); i += step())
            live(m_content.left(i) + byte + (byte.isEmpty() ? byte : m_content.mid(i + 1)));
    }

    void theSendMenuInALargeFile()
    {
        QByteArray many = R"(<config><menu name="Send" type="POPUP" parent="listview">)";
        for (int i = 0; i < 5000; ++i)
            many += R"(<item id="IDS_PMMENU_SEND_MSG" type="ITEM"/>)";
        live(many + "</menu></config>");
    }
};

QTEST_MAIN(DamagedMenuFileTest)
#include "DamagedMenuFileTest.moc"
