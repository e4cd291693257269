#include <QElapsedTimer>
#include <QScopedPointer>
#include <QThread>
#include <QWidget>
#include <QtTest>

#include "StandInFolder.h"
#include "app/Services.h"
#include "loader/PluginContainer.h"
#include "loader/PluginHandle.h"
#include "loader/PluginLifecycle.h"
#include "loader/PluginLoader.h"

class TestHostLifecycle : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theStateFollowsEveryStep();
    void stepsThatDoNotFitAreLeftOut();
    void aFailedInitIsAProblemAndGetsNoWindow();
    void aWindowThatCannotBeShownLeavesTheStateAlone();
    void notifyReachesStartedPluginsAlone();
    void shutDownHidesFlagsUnregistersAndDestroys();
    void shutDownWaitsForAWorkerThatWaitsForItsSlot();
    void shutDownIsBoundedWhenAWorkerHangs();
    void pluginsThatNeverStartedAreNotAskedToStop();

private:
    void load(const QStringList& lstNames);
    PluginHandle* handle(const char* pszName) { return m_pContainer->FindByName(pszName); }

    QScopedPointer<StandInFolder> m_pFolder;
    QScopedPointer<Services> m_pServices;
    QScopedPointer<PluginContainer> m_pContainer;
    QScopedPointer<PluginLifecycle> m_pLifecycle;
    QScopedPointer<QWidget> m_pPage;
    ProblemList m_problems;
};

void TestHostLifecycle::init()
{
    m_problems.clear();
    m_pFolder.reset(new StandInFolder);
    m_pServices.reset(new Services(m_pFolder->Path(), m_pFolder->Path() + "/settings.ini"));
    m_pServices->Publish();
    m_pContainer.reset(new PluginContainer);
    m_pServices->SetContainer(m_pContainer.data());
    m_pLifecycle.reset(new PluginLifecycle(*m_pContainer, m_pServices->State()));
    m_pPage.reset(new QWidget);
    m_pPage->resize(300, 200);
    StandInFolder::TakeCalls();
}

void TestHostLifecycle::cleanup()
{
    m_pPage.reset();
    m_pLifecycle.reset();
    m_pContainer.reset();
    m_pServices->Withdraw();
    m_pServices.reset();
    qApp->setProperty("standin.initFails", QVariant());
    qApp->setProperty("standin.showFails", QVariant());
}

void TestHostLifecycle::load(const QStringList& lstNames)
{
    foreach (const QString& strName, lstNames) {
        m_pFolder->Add(strName);
    }
    PluginLoader(m_pFolder->Path()).LoadAll(*m_pContainer, m_problems);
    QCOMPARE(m_pContainer->Handles().size(), lstNames.size());
}

void TestHostLifecycle::theStateFollowsEveryStep()
{
    load(QStringList("StandInPlugin"));
    PluginHandle* pHandle = handle("StandInPlugin");
    QCOMPARE(pHandle->GetState(), PluginHandle::LOADED);
    m_pLifecycle->InitAll(m_problems);
    QCOMPARE(pHandle->GetState(), PluginHandle::READY);
    QVERIFY(pHandle->Show(m_pPage.data()));
    QCOMPARE(pHandle->GetState(), PluginHandle::SHOWN);
    pHandle->Fit(QRect(0, 0, 400, 250));
    QCOMPARE(pHandle->GetState(), PluginHandle::SHOWN);
    pHandle->Hide();
    QCOMPARE(pHandle->GetState(), PluginHandle::HIDDEN);
    QVERIFY(pHandle->Show(m_pPage.data()));
    QCOMPARE(pHandle->GetState(), PluginHandle::SHOWN);
    pHandle->Notify(515, 7, 0);
    pHandle->UnregisterEvents();
    QCOMPARE(pHandle->GetState(), PluginHandle::UNREGISTERED);
    pHandle->Destroy();
    QCOMPARE(pHandle->GetState(), PluginHandle::DESTROYED);
    QCOMPARE(StandInFolder::TakeCalls(), QStringList() << "StandInPlugin: Init"
                                                       << "StandInPlugin: ShowWindow 300x200"
                                                       << "StandInPlugin: FitSize 400x250"
                                                       << "StandInPlugin: Hide"
                                                       << "StandInPlugin: ShowWindow 300x200"
                                                       << "StandInPlugin: Notify 515 7"
                                                       << "StandInPlugin: UnSDKRegisterEvent too early"
                                                       << "StandInPlugin: OnDestroy");
}

void TestHostLifecycle::stepsThatDoNotFitAreLeftOut()
{
    load(QStringList("StandInPlugin"));
    PluginHandle* pHandle = handle("StandInPlugin");
    QVERIFY(!pHandle->Show(m_pPage.data()));
    pHandle->Fit(QRect(0, 0, 1, 1));
    pHandle->Hide();
    pHandle->Notify(320, 0, 0);
    QVERIFY(StandInFolder::TakeCalls().isEmpty());
    QVERIFY(pHandle->Init());
    QVERIFY(pHandle->Init());
    QCOMPARE(StandInFolder::TakeCalls(), QStringList("StandInPlugin: Init"));
    pHandle->Hide();
    pHandle->Fit(QRect(0, 0, 1, 1));
    QVERIFY(StandInFolder::TakeCalls().isEmpty());
    pHandle->UnregisterEvents();
    pHandle->UnregisterEvents();
    pHandle->Notify(320, 0, 0);
    pHandle->Destroy();
    pHandle->Destroy();
    QVERIFY(!pHandle->Show(m_pPage.data()));
    QCOMPARE(StandInFolder::TakeCalls().size(), 2);
}

void TestHostLifecycle::aFailedInitIsAProblemAndGetsNoWindow()
{
    qApp->setProperty("standin.initFails", true);
    load(QStringList("StandInPlugin"));
    m_pLifecycle->InitAll(m_problems);
    QCOMPARE(m_problems.size(), 1);
    QCOMPARE(m_problems.first().strName, QStringLiteral("StandInPlugin"));
    QCOMPARE(m_problems.first().strReasonId, QStringLiteral("IDS_HOST_PLUGIN_INIT"));
    QCOMPARE(handle("StandInPlugin")->GetState(), PluginHandle::FAILED);
    QVERIFY(!handle("StandInPlugin")->Show(m_pPage.data()));
    StandInFolder::TakeCalls();
    // It may have registered something before it failed.
    QVERIFY(m_pLifecycle->ShutDown(1000));
    QCOMPARE(StandInFolder::TakeCalls(), QStringList() << "StandInPlugin: UnSDKRegisterEvent"
                                                       << "StandInPlugin: OnDestroy");
}

void TestHostLifecycle::aWindowThatCannotBeShownLeavesTheStateAlone()
{
    load(QStringList("StandInPlugin"));
    m_pLifecycle->InitAll(m_problems);
    qApp->setProperty("standin.showFails", true);
    QVERIFY(!handle("StandInPlugin")->Show(m_pPage.data()));
    QCOMPARE(handle("StandInPlugin")->GetState(), PluginHandle::READY);
}

void TestHostLifecycle::notifyReachesStartedPluginsAlone()
{
    load(QStringList() << "StandInPlugin"
                       << "StandInWithId");
    QVERIFY(handle("StandInPlugin")->Init());
    StandInFolder::TakeCalls();
    m_pLifecycle->NotifyAll(577, 0);
    QCOMPARE(StandInFolder::TakeCalls(), QStringList("StandInPlugin: Notify 577 0"));
}

void TestHostLifecycle::shutDownHidesFlagsUnregistersAndDestroys()
{
    load(QStringList() << "StandInPlugin"
                       << "StandInWithId");
    m_pLifecycle->InitAll(m_problems);
    QVERIFY(handle("StandInPlugin")->Show(m_pPage.data()));
    StandInFolder::TakeCalls();
    QVERIFY(!m_pServices->IsShuttingDown());
    QVERIFY(m_pLifecycle->ShutDown(1000));
    QVERIFY(m_pServices->IsShuttingDown());
    QCOMPARE(StandInFolder::TakeCalls(), QStringList() << "StandInPlugin: Hide"
                                                       << "StandInPlugin: UnSDKRegisterEvent"
                                                       << "StandInWithId: UnSDKRegisterEvent"
                                                       << "StandInWithId: OnDestroy"
                                                       << "StandInPlugin: OnDestroy");
    m_pContainer.reset();
    QCOMPARE(StandInFolder::TakeCalls(), QStringList() << "StandInWithId: ~"
                                                       << "StandInPlugin: ~");
}

void TestHostLifecycle::shutDownWaitsForAWorkerThatWaitsForItsSlot()
{
    load(QStringList("StandInPlugin"));
    m_pLifecycle->InitAll(m_problems);
    QVERIFY(QMetaObject::invokeMethod(handle("StandInPlugin")->Root(), "StartWorker"));
    QTRY_COMPARE(m_pServices->Workers().Running(), 1);
    StandInFolder::TakeCalls();
    QVERIFY(m_pLifecycle->ShutDown(20000));
    QCOMPARE(m_pServices->Workers().Running(), 0);
    QCOMPARE(StandInFolder::TakeCalls().last().section(' ', 0, 1), QStringLiteral("StandInPlugin: OnDestroy"));
}

void TestHostLifecycle::shutDownIsBoundedWhenAWorkerHangs()
{
    load(QStringList("StandInPlugin"));
    m_pLifecycle->InitAll(m_problems);
    m_pServices->ThreadCountInc("AddrBookThread.cpp", "run");
    QElapsedTimer timer;
    timer.start();
    QTest::ignoreMessage(QtDebugMsg, "left to their owners: AddrBookThread.cpp: run");
    QVERIFY(!m_pLifecycle->ShutDown(200));
    QVERIFY(timer.elapsed() >= 200);
    // It ends all the same.
    QCOMPARE(handle("StandInPlugin")->GetState(), PluginHandle::DESTROYED);
}

void TestHostLifecycle::pluginsThatNeverStartedAreNotAskedToStop()
{
    load(QStringList("StandInPlugin"));
    QVERIFY(m_pLifecycle->ShutDown(1000));
    QVERIFY(StandInFolder::TakeCalls().isEmpty());
    QCOMPARE(handle("StandInPlugin")->GetState(), PluginHandle::DESTROYED);
}

QTEST_MAIN(TestHostLifecycle)
#include "test_host_lifecycle.moc"
