#include "SelectWorkers.h"

#include <QScopeGuard>
#include <QThread>

#include <atomic>
#include <thread>

using namespace SelectWorkers;

// The five workers under everything that can happen to the dialog meanwhile.
class SelectThreadsTest : public SelectTest
{
    Q_OBJECT

    enum OwnAct { Quit = FirstOfATest };

    static void fill(int contacts)
    {
        FakeSdk::setRecording(false);
        FakeSdk::setDevicePresent(true);
        FakeSdk::setCardPresent(true);
        for (int i = 0; i < 5; ++i)
            FakeSdk::addGroup(QString("Group %1").arg(i));
        for (int i = 0; i < contacts; ++i) {
            const int id = FakeSdk::addRecord(4, {QString("Local %1").arg(i), QString::number(i), "0"});
            if (i % 2 == 0)
                FakeSdk::join(1 + i % 5, id);
        }
        for (int i = 0; i < 40; ++i) {
            FakeSdk::addRecord(0, {QString("Card %1").arg(i), QString::number(i)});
            FakeSdk::addRecord(1, {QString("Device %1").arg(i), QString::number(i)});
        }
    }

    static void act(Picker& picker, int what)
    {
        if (what == Quit)
            QCoreApplication::quit();
        else
            SelectWorkers::act(picker, what);
    }

    // Runs the dialog inside an application's loop, as the host does.
    static void runToEnd(int worker, int what)
    {
        QTimer::singleShot(0, qApp, [=] {
            const auto end = qScopeGuard([] { QCoreApplication::quit(); }); // also when a check leaves early
            Picker picker(true, {"1", "999"});
            // A worker may be through before the user gets there; the user then acts on the full tree.
            picker.run([&] { return isRunning(picker.access, worker) || picker.access.filled(); },
                       [&] { act(picker, what); });
            QCOMPARE(picker.dialog->GetButtonClicked(), what == Ok);
        });
        QCoreApplication::exec();
        FakeCore::setShuttingDown(false);
    }

private slots:
    void init()
    {
        SelectTest::init();
        AddrBookLogic::Instance();
        AddrBookLogic::RegisterCallbacks();
    }
    void cleanup()
    {
        AddrBookLogic::unSDKRegisterEvent();
        SelectTest::cleanup();
    }

    void theDialogGoesWhileAWorkerRuns_data()
    {
        QTest::addColumn<int>("worker");
        for (const auto& entry : SelectWorkers::all())
            QTest::newRow(entry.first) << entry.second;
    }
    void theDialogGoesWhileAWorkerRuns()
    {
        QFETCH(int, worker);
        fill(300);
        if (worker != Contacts)
            FakeSdk::setDelay(recordCall(worker), 1);
        Picker picker;
        // Delivers results without an event loop, so that the dialog can go between two of them.
        const QDeadlineTimer deadline(20000);
        while (!isRunning(picker.access, worker) && !deadline.hasExpired()) {
            QCoreApplication::sendPostedEvents(picker.dialog.get(), QEvent::MetaCall);
            QThread::yieldCurrentThread();
        }
        QVERIFY(!deadline.hasExpired());
        picker.dialog.reset();
        QCOMPARE(FakeCore::runningWorkers(), 0);
    }

    void theUserEndsTheDialogWhileAWorkerRuns_data()
    {
        QTest::addColumn<int>("worker");
        QTest::addColumn<int>("what");
        const QList<QPair<const char*, int>> acts = {
            {"OK", Ok}, {"Cancel", Cancel}, {"close", Close}, {"shut down", ShutDown}, {"quit", Quit}};
        for (const auto& entry : SelectWorkers::all()) {
            for (const auto& what : acts)
                QTest::newRow(QByteArray(entry.first) + ", " + what.first) << entry.second << what.second;
        }
    }
    void theUserEndsTheDialogWhileAWorkerRuns()
    {
        QFETCH(int, worker);
        QFETCH(int, what);
        fill(100);
        FakeSdk::setDelay(recordCall(worker), worker == Contacts ? 0 : 1);
        runToEnd(worker, what);
    }

    void theDeviceComesAndGoesThirtyTimesWhileTheTreeFills()
    {
        fill(50);
        FakeSdk::setDelay("AddrRecordSet_GetID", 1);
        Picker picker(true, {"7", "999"});
        for (int i = 0; i < 30; ++i) {
            FakeSdk::setDevicePresent(false);
            FakeSdk::fire(6014);
            QCoreApplication::processEvents();
            FakeSdk::setDevicePresent(true);
            FakeSdk::fire(6014);
            FakeSdk::fire(20301);
            FakeSdk::fire(20302);
            FakeSdk::fire(20303);
            QCoreApplication::processEvents();
        }
        QVERIFY(QTest::qWaitFor([&] { return picker.access.filled(); }, 60000));
        QCOMPARE(picker.access.pending(), 0);
        QCOMPARE(picker.access.tree()->topLevelItemCount(), 3);
        QCOMPARE(picker.access.simNode()->childCount(), 40);
        QCOMPARE(picker.access.deviceNode()->childCount(), 40);
        QCOMPARE(picker.access.contactsInIndex(0, 0).size(), 40);
        for (int i = 0; i < 40; ++i)
            QCOMPARE(picker.access.simNode()->child(i)->text(0), QString("Card %1").arg(i));
        QVERIFY(picker.chosen().contains("999"));
    }

    void theDeviceComesAndGoesAndTheDialogGoesInTheMiddle()
    {
        fill(50);
        FakeSdk::setDelay("AddrRecordSet_GetID", 1);
        Picker picker;
        QTRY_VERIFY(picker.access.deviceThread() != nullptr);
        for (int i = 0; i < 5; ++i) {
            FakeSdk::setDevicePresent(false);
            FakeSdk::fire(6014);
            QCoreApplication::processEvents();
            FakeSdk::setDevicePresent(true);
            FakeSdk::fire(20302);
            FakeSdk::fire(20303);
            QCoreApplication::processEvents();
        }
        FakeSdk::fire(20302); // still queued when the dialog goes
        picker.dialog.reset();
        QCOMPARE(FakeCore::runningWorkers(), 0);
    }

    void thePhonebookChangesUnderneath()
    {
        fill(100);
        std::atomic<bool> end(false);
        std::thread changer([&end] {
            for (int i = 0; !end; ++i) {
                const int id = FakeSdk::addRecord(4, {QString("New %1").arg(i), "1"});
                const int group = FakeSdk::addGroup(QString("New %1").arg(i % 7), i % 3);
                FakeSdk::join(group, id);
                FakeSdk::removeRecord(4, 1 + i % 100);
                ORVA_PBSrv_DelGroup(group, 4);
                FakeSdk::removeRecord(4, id);
                FakeSdk::removeRecord(0, 1 + i % 40);
                std::this_thread::yield();
            }
        });
        const auto stop = qScopeGuard([&] {
            end = true;
            changer.join();
        });
        for (int i = 0; i < 10; ++i) {
            Picker picker(true, {"5"});
            QVERIFY(QTest::qWaitFor([&] { return picker.access.filled(); }, 30000));
            picker.toggle(picker.item({"PC"}));
            picker.dialog->OnDeleteContact(PB_MEM_LOCAL, 3);
        }
    }
};

QTEST_MAIN(SelectThreadsTest)
#include "SelectThreadsTest.moc"
