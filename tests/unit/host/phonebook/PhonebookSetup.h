#ifndef LINKHAND_TESTS_PHONEBOOKSETUP_H
#define LINKHAND_TESTS_PHONEBOOKSETUP_H

#include <QLabel>
#include <QLineEdit>
#include <QScopedPointer>
#include <QSettings>
#include <QSignalSpy>
#include <QSplitter>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include "app/Services.h"
#include "device/DeviceWatcher.h"
#include "device/SimulatedHardware.h"
#include "linkhand/plugin/Codes.h"
#include "loader/PluginContainer.h"
#include "loader/PluginLifecycle.h"
#include "loader/PluginLoader.h"
#include "messages/MessageStore.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"
#include "settings/HostSettings.h"
#include "window/MainWindow.h"
#include "window/PhonebookAids.h"
#include "window/PhonebookParts.h"
#include "window/StatusArea.h"

// The main window with the real phonebook on its page, and contacts in it.
class PhonebookSetup : public QObject
{
    Q_OBJECT

protected:
    static int addContact(const char* pszName, const char* pszNumber)
    {
        void* pRecord = nullptr;
        int iId = 0;
        ORVA_PBSrv_CreateAddrRecord(ORVA_MEMORY_LOCAL, &pRecord);
        ORVA_PBSrv_AddrRecord_SetValue(pRecord, "Name", QString(pszName).utf16());
        ORVA_PBSrv_AddrRecord_SetValue(pRecord, "Mobile", QString(pszNumber).utf16());
        ORVA_PBSrv_AddAddrRec(pRecord, &iId);
        ORVA_PBSrv_AddrRecord_Release(pRecord);
        return iId;
    }

    static int addGroup(const char* pszName)
    {
        void* pGroup = nullptr;
        int iId = 0;
        ORVA_PBSrv_CreateAddrGroup(ORVA_MEMORY_LOCAL, &pGroup);
        ORVA_PBSrv_AddrGroup_SetName(pGroup, QString(pszName).utf16());
        ORVA_PBSrv_AddrGroup_SetParentID(pGroup, 0);
        ORVA_PBSrv_AddGroup(pGroup, &iId);
        ORVA_PBSrv_AddrGroup_Release(pGroup);
        return iId;
    }

    // A start of the program; the settings stay from one to the next.
    void start()
    {
        const QString strBuild = QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR"));
        m_pServices.reset(new Services(strBuild, m_folder.path() + "/s.ini"));
        m_pServices->Publish();
        m_pSettings.reset(new HostSettings(m_folder.path() + "/s.ini"));
        m_pMessages.reset(new MessageStore(m_folder.path()));
        m_pWatcher.reset(new DeviceWatcher);
        m_pContainer.reset(new PluginContainer);
        m_pServices->SetContainer(m_pContainer.data());
        m_pLifecycle.reset(new PluginLifecycle(*m_pContainer, m_pServices->State()));
        m_pWindow.reset(new MainWindow(*m_pContainer, *m_pMessages, *m_pWatcher));
        m_pWindow->SetSettings(*m_pSettings);
        m_pServices->SetMainWindow(m_pWindow.data());
        QTemporaryDir plugins;
        const QString strFile = "/libAddrBookUIPlugin.so";
        QVERIFY(QFile::copy(strBuild + "/plugins" + strFile, plugins.path() + strFile));
        ProblemList problems;
        PluginLoader(plugins.path()).LoadAll(*m_pContainer, problems);
        m_pLifecycle->InitAll(problems);
        QVERIFY(problems.isEmpty());
        m_pWindow->BuildPages();
        m_pWindow->Retranslate();
        m_pWindow->resize(1000, 700);
        m_pWindow->show();
        m_pWindow->ShowPage(LINKHAND_ADDRBOOK_NAME);
        m_pAids.reset(new PhonebookAids(page(), m_pServices->Workers(), m_pWindow->Status(), *m_pSettings));
        QSignalSpy restored(&m_pAids->Layout(), SIGNAL(restored()));
        QSignalSpy moved(PhonebookParts::MainSplitter(page()), SIGNAL(splitterMoved(int, int)));
        QVERIFY(restored.wait());
        m_iMoved = moved.count();
        QVERIFY(QTest::qWaitForWindowExposed(m_pWindow.data()));
    }

    void stop()
    {
        if (!m_pWindow) {
            return;
        }
        m_pAids->Layout().Keep();
        m_pServices->State().SetClosing();
        m_pAids.reset();
        m_pLifecycle->ShutDown(5000);
        m_pWindow.reset();
        m_pContainer.reset();
        m_pWatcher.reset();
        m_pServices->Withdraw();
    }

    QWidget& page() { return *m_pWindow->Page(LINKHAND_ADDRBOOK_NAME); }
    QTableWidget* table() { return PhonebookParts::Table(page()); }
    QTreeWidget* tree() { return PhonebookParts::Tree(page()); }
    QLineEdit* search() { return PhonebookParts::Search(page()); }
    bool isRead() { return PhonebookParts::IsRead(page()); }
    QString shown(const char* pszName)
    {
        const QLabel* pLabel = m_pWindow->findChild<QLabel*>(pszName);
        return pLabel != nullptr && pLabel->isVisible() ? pLabel->text() : QString();
    }

    // The names that the table shows, in its order.
    QStringList names()
    {
        QStringList lstNames;
        for (int i = 0; i < table()->rowCount(); ++i) {
            lstNames << table()->item(i, 0)->text();
        }
        return lstNames;
    }

    QTemporaryDir m_folder;
    int m_iMoved = 0; // how often the main splitter told of a hand at the last start
    QScopedPointer<Services> m_pServices;
    QScopedPointer<HostSettings> m_pSettings;
    QScopedPointer<MessageStore> m_pMessages;
    QScopedPointer<DeviceWatcher> m_pWatcher;
    QScopedPointer<PluginContainer> m_pContainer;
    QScopedPointer<PluginLifecycle> m_pLifecycle;
    QScopedPointer<MainWindow> m_pWindow;
    QScopedPointer<PhonebookAids> m_pAids;
};

#endif // LINKHAND_TESTS_PHONEBOOKSETUP_H
