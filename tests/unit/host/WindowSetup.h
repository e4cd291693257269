#ifndef LINKHAND_TESTS_WINDOWSETUP_H
#define LINKHAND_TESTS_WINDOWSETUP_H

#include <QFile>
#include <QScopedPointer>
#include <QtTest>

#include "StandInFolder.h"
#include "app/Services.h"
#include "device/DeviceWatcher.h"
#include "device/SimulatedHardware.h"
#include "loader/PluginContainer.h"
#include "loader/PluginLifecycle.h"
#include "loader/PluginLoader.h"
#include "messages/MessageStore.h"
#include "orva/orva_sim.h"
#include "window/MainWindow.h"

// The main window with the real texts, stand-in plug-ins and the simulated device, with its card and network in order.
class WindowSetup : public QObject
{
    Q_OBJECT

protected:
    void begin()
    {
        SimulatedHardware::SetDevice(true);
        SimulatedHardware::SetCard(true);
        SimulatedHardware::SetPinStatus(1);
        SimulatedHardware::SetProductType(0);
        SimulatedHardware::SetCardType(1);
        ORVA_Sim_SetRadio(1, 1);
        SimulatedHardware::SetNetwork(true);
        ORVA_Sim_WaitEvents();
        m_pFolder.reset(new StandInFolder);
        QVERIFY(QFile::link(QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR")) + "/languages",
                            m_pFolder->Path() + "/languages"));
        m_pServices.reset(new Services(m_pFolder->Path(), m_pFolder->Path() + "/s.ini"));
        m_pServices->Publish();
        m_pOutbox.reset(new MessageStore(m_pFolder->Path()));
        m_pWatcher.reset(new DeviceWatcher);
        m_pContainer.reset(new PluginContainer);
        m_pServices->SetContainer(m_pContainer.data());
        m_pWindow.reset(new MainWindow(*m_pContainer, *m_pOutbox, *m_pWatcher));
        m_pServices->SetMainWindow(m_pWindow.data());
        m_pWatcher->Start();
    }

    void end()
    {
        m_pWindow.reset();
        m_pContainer.reset();
        m_pWatcher.reset();
        m_pServices->Withdraw();
        StandInFolder::TakeCalls();
    }

    // Loads the stand-ins of these names and shows the window with their pages.
    void build(const QStringList& lstNames)
    {
        foreach (const QString& strName, lstNames) {
            m_pFolder->Add(strName);
        }
        PluginLoader(m_pFolder->Path()).LoadAll(*m_pContainer, m_problems);
        PluginLifecycle(*m_pContainer, m_pServices->State()).InitAll(m_problems);
        QVERIFY(m_problems.isEmpty());
        m_pWindow->BuildPages();
        m_pWindow->Retranslate();
        m_pWindow->show();
        StandInFolder::TakeCalls();
    }

    template <class Widget>
    Widget* find(const char* pszName)
    {
        return m_pWindow->findChild<Widget*>(QLatin1String(pszName));
    }

    QScopedPointer<StandInFolder> m_pFolder;
    QScopedPointer<Services> m_pServices;
    QScopedPointer<MessageStore> m_pOutbox;
    QScopedPointer<DeviceWatcher> m_pWatcher;
    QScopedPointer<PluginContainer> m_pContainer;
    QScopedPointer<MainWindow> m_pWindow;
    ProblemList m_problems;
};

#endif // LINKHAND_TESTS_WINDOWSETUP_H
