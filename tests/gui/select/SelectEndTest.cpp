#include "SelectWorkers.h"

#include <QPointer>
#include <QWidget>

#include <memory>

using namespace SelectWorkers;

// The window ends at once, whatever a slow memory still has to give: the worker in hand ends behind its record.
class SelectEndTest : public SelectTest
{
    Q_OBJECT

    enum OwnAct { LogicGoes = FirstOfATest, MainWindowGoes };

    // Enough that a worker is a minute away from its end by itself.
    static void fill(int worker)
    {
        FakeSdk::setRecording(false);
        FakeSdk::setMemoryList(worker == Card ? QList<int>{0} : worker == Device ? QList<int>{1} : QList<int>());
        if (worker == Groups)
            FakeSdk::addGroup("All");
        for (int i = 0; i < 600; ++i) {
            if (worker == Card || worker == Device) {
                FakeSdk::addRecord(worker == Card ? 0 : 1, {QString("Card %1").arg(i), "1"});
            } else {
                const int id = FakeSdk::addRecord(4, {QString("Local %1").arg(i), "1"});
                if (worker == Groups)
                    FakeSdk::join(1, id);
            }
        }
    }

    static void act(Picker& picker, int what, std::unique_ptr<QWidget>& mainWindow)
    {
        if (what == LogicGoes) {
            AddrBookLogic::Destroy();
        } else if (what == MainWindowGoes) {
            FakeCore::setMainWindow(nullptr);
            picker.dialog.release(); // a child of the window by now
            mainWindow.reset();
            return;
        }
        SelectWorkers::act(picker, what);
    }

private slots:
    void theWindowEndsWithinOneRecord_data()
    {
        QTest::addColumn<int>("worker");
        QTest::addColumn<int>("what");
        const QList<QPair<const char*, int>> acts = {{"OK", Ok},
                                                     {"Cancel", Cancel},
                                                     {"close", Close},
                                                     {"the program's end", ShutDown},
                                                     {"the logic's end", LogicGoes},
                                                     {"the main window's end", MainWindowGoes}};
        for (const auto& worker : SelectWorkers::all()) {
            for (const auto& what : acts)
                QTest::newRow(QByteArray(worker.first) + ", " + what.first) << worker.second << what.second;
        }
    }
    void theWindowEndsWithinOneRecord()
    {
        QFETCH(int, worker);
        QFETCH(int, what);
        fill(worker);
        const char* const call = recordCall(worker);
        FakeSdk::setDelay(call, 100);
        std::unique_ptr<QWidget> mainWindow(new QWidget);
        FakeCore::setMainWindow(mainWindow.get());
        if (worker == Contacts) // whose forerunner reads the same records
            FakeSdk::setDelay(call, 0);
        Picker picker;
        const QPointer<AddrBookSelectContactsDlg> dialog(picker.dialog.get());
        int before = 0;
        picker.run(
            [&] {
                return worker == Contacts ? isRunning(picker.access, worker) || picker.access.filled()
                                          : isRunning(picker.access, worker) && FakeSdk::count(call) > 1;
            },
            [&] {
                before = FakeSdk::count(call);
                act(picker, what, mainWindow);
            });
        picker.dialog.reset();
        QVERIFY(dialog.isNull());
        QVERIFY2(FakeSdk::count(call) - before <= 1,
                 qPrintable(QString("%1 records more").arg(FakeSdk::count(call) - before)));
        QCOMPARE(FakeCore::runningWorkers(), 0);
        FakeCore::setShuttingDown(false);
        FakeCore::setMainWindow(nullptr);
    }

    void contactsOfACardThatWentAreFreedAtOnce()
    {
        FakeSdk::setMemoryList({0, 1});
        FakeSdk::addRecord(0, {"Eve", "555"});
        FakeSdk::addRecord(1, {"Dan", "444"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.access.simNode()->childCount(), 1);
        picker.toggle(picker.item({"Card"}));
        FakeSdk::setMemoryList({});
        signalLogic("signalDeviceConnected", false);
        // The nodes themselves stay known, so that no address comes twice; the index holds them without contacts.
        QCOMPARE(picker.access.simNode()->childCount(), 0);
        QCOMPARE(picker.access.deviceNode()->childCount(), 0);
        QVERIFY(picker.access.inIndex(0, 0));
        QVERIFY(picker.access.inIndex(1, 0));
        QCOMPARE(picker.access.contactsInIndex(0, 0), QList<int>());
        QCOMPARE(picker.result(), QStringList("555"));
    }

    void aWindowTakenAwayLeavesNoNodeBehind_data()
    {
        QTest::addColumn<bool>("filled");
        QTest::newRow("while it fills") << false;
        QTest::newRow("filled") << true;
    }
    void aWindowTakenAwayLeavesNoNodeBehind()
    {
        QFETCH(bool, filled);
        FakeSdk::setMemoryList({0, 1});
        FakeSdk::addRecord(0, {"Eve", "555"});
        FakeSdk::addRecord(4, {"Ada", "111"});
        FakeSdk::addGroup("Friends");
        Picker picker;
        if (filled)
            QVERIFY(picker.waitFilled());
        delete picker.access.window();
        QVERIFY(picker.access.tree() == nullptr);
        QVERIFY(picker.access.localNode() == nullptr);
        QVERIFY(picker.access.simNode() == nullptr);
        QVERIFY(picker.access.deviceNode() == nullptr);
        QVERIFY(picker.waitFilled());
        signalLogic("signalAddrBookSimReady");
        signalLogic("signalAddrBookDeviceReady");
        signalLogic("signalDeviceConnected", false);
        picker.dialog->OnAddContact(PB_MEM_LOCAL, 0, 9, {"Zoe", "9"});
        picker.dialog->OnAddGroup(PB_MEM_LOCAL, 9, 0, "More");
        picker.dialog->OnUpdateGroup(PB_MEM_LOCAL, 1, "Other");
        picker.dialog->OnDeleteGroup(PB_MEM_LOCAL, 1);
        QVERIFY(picker.access.filled());
    }
};

QTEST_MAIN(SelectEndTest)
#include "SelectEndTest.moc"
