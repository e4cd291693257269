#include <QPluginLoader>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QtTest>

#include <memory>

#include "../../support/RealStore.h"
#include "RealHost.h"
#include "linkhand/QtCompat.h"
#include "linkhand/plugin/IAddrBookUIPlugin.h"
#include "linkhand/plugin/INotify.h"
#include "linkhand/plugin/IUIPlugin.h"
#include "orva/orva_sim.h"

// The built plug-in on the real libraries, driven as a host drives it.
class RealLibrariesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RealHost> m_host;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QPluginLoader> m_loader;
    std::unique_ptr<QWidget> m_page;
    QObject* m_root = nullptr;
    IUIPlugin* m_plugin = nullptr;

    QTreeWidget* tree() const { return m_page->findChild<QTreeWidget*>("AddrBookUIPlugin_TreeWidget"); }
    QTableWidget* table() const { return m_page->findChild<QTableWidget*>("AddrBookUIPlugin_ContactTable"); }

    bool waitRead() const
    {
        return QTest::qWaitFor([this] { return table()->isSortingEnabled(); }, 20000);
    }

    QStringList names() const
    {
        QStringList list;
        for (int row = 0; row < table()->rowCount(); ++row)
            list << table()->item(row, 0)->text();
        return list;
    }

    void show()
    {
        QVERIFY(m_plugin->Init());
        QRect rect(0, 0, 800, 600);
        QVERIFY(m_plugin->ShowWindow(m_page.get(), rect));
        m_page->resize(800, 600);
        m_page->show();
        QVERIFY(waitRead());
    }

    void click(int node)
    {
        tree()->setCurrentItem(tree()->topLevelItem(node));
        QVERIFY(waitRead());
    }

private slots:
    void initTestCase()
    {
        QtCompat::setDebugEnabled(false);
        const QString build = QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR"));
        m_host = std::make_unique<RealHost>(build);
        m_loader = std::make_unique<QPluginLoader>(build + "/plugins/libAddrBookUIPlugin.so");
    }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QCOMPARE(ORVA_Sim_Reset(m_folder->path().toUtf8().constData()), 0L);
        m_page = std::make_unique<QWidget>();
        m_root = m_loader->instance();
        QVERIFY2(m_root != nullptr, qPrintable(m_loader->errorString()));
        m_plugin = qobject_cast<IUIPlugin*>(m_root);
        QVERIFY(m_plugin != nullptr);
    }

    void cleanup()
    {
        m_plugin->UnSDKRegisterEvent();
        QTRY_COMPARE(m_host->workers(), 0);
        m_plugin->OnDestroy();
        m_page.reset();
        ORVA_Sim_Reset(nullptr);
    }

    void secondInstanceIsTheFirst()
    {
        QCOMPARE(m_loader->instance(), m_root);
        QVERIFY(qobject_cast<INotify*>(m_root) != nullptr);
        QObject* service = nullptr;
        QCOMPARE(m_plugin->QueryInterface(4097, &service), 1);
        QVERIFY(qobject_cast<IAddrBookUIPlugin*>(service) != nullptr);
    }

    void contactsOfEveryMemoryReachTheTable()
    {
        ORVA_Sim_SetDevice(1);
        ORVA_Sim_SetCard(1);
        for (const char* name : {"Zoe", "anna", "Bert"})
            RealStore::addContact(4, {name, "1", "", "", "", "line\nbreak"});
        RealStore::addContact(0, {"Card", "2"});
        RealStore::addContact(1, {"Device", "3"});
        show();
        QCOMPARE(names(), (QStringList{"anna", "Bert", "Zoe"}));
        QCOMPARE(table()->item(0, 5)->text(), QString("line break"));
        QCOMPARE(tree()->topLevelItemCount(), 3);
        QStringList all;
        for (int node = 1; node < 3; ++node) {
            click(node);
            all << names();
        }
        all.sort();
        QCOMPARE(all, (QStringList{"Card", "Device"}));
    }

    void cardThatIsPulledOutLosesItsNode()
    {
        ORVA_Sim_SetDevice(0);
        show();
        QCOMPARE(tree()->topLevelItemCount(), 1);
        ORVA_Sim_SetCard(1);
        ORVA_Sim_SetDevice(1);
        QTRY_COMPARE(tree()->topLevelItemCount(), 3);
        ORVA_Sim_SetCard(0);
        QTRY_COMPARE(tree()->topLevelItemCount(), 2);
        ORVA_Sim_SetDevice(0);
        QTRY_COMPARE(tree()->topLevelItemCount(), 1);
    }

    void previewShowsTheSelectedContact()
    {
        RealStore::addContact(4, {"Anna", "123", "", "", "anna@example.org", "first\nsecond"});
        show();
        table()->selectRow(0);
        QTextBrowser* const preview = m_page->findChild<QTextBrowser*>("AddrBookUIPlugin_labelPreview");
        QVERIFY(preview->toPlainText().contains("Anna"));
        QVERIFY(preview->toPlainText().contains("first\nsecond"));
    }

    void quickClicksWhileTheDeviceComesAndGoes()
    {
        ORVA_Sim_SetDevice(1);
        ORVA_Sim_SetCard(1);
        for (int i = 0; i < 300; ++i)
            RealStore::addContact(4, {QString("local %1").arg(i), "1"});
        for (int i = 0; i < 50; ++i)
            RealStore::addContact(1, {QString("device %1").arg(i), "1"});
        show();
        for (int round = 0; round < 50; ++round) {
            ORVA_Sim_SetDevice(round % 2);
            tree()->setCurrentItem(tree()->topLevelItem(tree()->topLevelItemCount() - 1));
            tree()->setCurrentItem(tree()->topLevelItem(0));
            if (round % 5 == 0)
                QVERIFY(waitRead());
            else
                QCoreApplication::processEvents();
        }
        ORVA_Sim_WaitEvents();
        QCoreApplication::processEvents();
        tree()->setCurrentItem(tree()->topLevelItem(0));
        QVERIFY(waitRead());
        QCOMPARE(table()->rowCount(), 300);
        for (const QString& name : names())
            QVERIFY2(name.startsWith("local"), qPrintable(name));
    }

    void endDuringTheReadOfALargeMemoryComesWithinTwoSeconds()
    {
        ORVA_PBSrv_BeginTransaction(4);
        for (int i = 0; i < 20000; ++i)
            RealStore::addContact(4, {QString("Name %1").arg(i), "1"});
        ORVA_PBSrv_EndTransaction(4);
        QVERIFY(m_plugin->Init());
        QRect rect(0, 0, 800, 600);
        QVERIFY(m_plugin->ShowWindow(m_page.get(), rect));
        m_page->show();
        QTRY_VERIFY(table()->rowCount() > 0);
        QElapsedTimer timer;
        timer.start();
        m_plugin->UnSDKRegisterEvent();
        m_plugin->OnDestroy();
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    }
};

QTEST_MAIN(RealLibrariesTest)
#include "RealLibrariesTest.moc"
