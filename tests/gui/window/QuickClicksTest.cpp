#include <atomic>
#include <thread>

#include "WindowFixture.h"

// Two quick clicks on different nodes, again and again, while the device comes and goes on the SDK's own thread.
class QuickClicksTest : public WindowTest
{
    Q_OBJECT

private slots:
    void rowsNeverMixWhileTheDeviceComesAndGoes()
    {
        WindowFixture f;
        for (int i = 0; i < 300; ++i)
            FakeSdk::addRecord(4, {QString("local %1").arg(i), "1"});
        for (int i = 0; i < 100; ++i)
            FakeSdk::addRecord(1, {QString("device %1").arg(i), "1"});
        for (int i = 0; i < 50; ++i)
            FakeSdk::addRecord(0, {QString("card %1").arg(i), "1"});
        const int group = FakeSdk::addGroup("Friends");
        for (int id = 1; id <= 60; ++id)
            FakeSdk::join(group, id);
        FakeSdk::setRecording(false);
        f.build();

        std::atomic<bool> stop(false);
        std::thread hardware([&stop] {
            for (int i = 0; !stop; ++i) {
                FakeSdk::setDevicePresent(i % 2 != 0);
                FakeSdk::fireHere(6014);
                std::this_thread::sleep_for(std::chrono::milliseconds(3));
            }
        });
        for (int round = 0; round < 50; ++round) {
            QTreeWidgetItem* first = round % 2 == 0 ? f.in().device() : f.in().sim();
            QTreeWidgetItem* second = round % 3 == 0 ? f.node("Friends") : f.in().local();
            if (first != nullptr)
                f.window()->OnTreeClicked(first);
            f.window()->OnTreeClicked(second);
            QCoreApplication::processEvents();
            if (f.in().device() != nullptr)
                f.window()->OnTreeClicked(f.in().device());
            f.window()->OnTreeClicked(f.in().local());
            QVERIFY(f.waitRead());
            // What shows belongs to one memory, and to the one that its cells name.
            const QStringList names = f.column(0);
            for (int row = 0; row < names.size(); ++row) {
                const TableRowData* data = tableRowData(f.table()->item(row, 0));
                const char* prefix = data->enType == PB_MEM_LOCAL ? "local"
                                     : data->enType == PB_MEM_ME  ? "device"
                                                                  : "card";
                QVERIFY2(names.at(row).startsWith(prefix), qPrintable(names.at(row)));
                QCOMPARE(data->enType, tableRowData(f.table()->item(0, 0))->enType);
            }
        }
        stop = true;
        hardware.join();
        FakeSdk::setDevicePresent(true);
        FakeSdk::fire(6014);
        // Every change of the hardware is queued by now and is told in its order: none may come after the click.
        QCoreApplication::sendPostedEvents();
        QTRY_VERIFY(f.in().device() != nullptr);
        f.click(f.in().device());
        QCOMPARE(f.table()->rowCount(), 100);
        f.destroy();
        QCOMPARE(FakeSdk::leaks(), QString());
        QCOMPARE(FakeCore::runningWorkers(), 0);
    }

    void endWhileALargeMemoryIsReadComesAtOnce()
    {
        WindowFixture f;
        FakeSdk::setRecording(false);
        for (int i = 0; i < 50000; ++i)
            FakeSdk::addRecord(4, {QString("Name %1").arg(i), "1"});
        f.build();
        f.in().current() = nullptr;
        f.window()->OnTreeClicked(f.in().local());
        QTRY_VERIFY(f.table()->rowCount() > 0);
        QElapsedTimer timer;
        timer.start();
        f.destroy();
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    }
};

QTEST_MAIN(QuickClicksTest)
#include "QuickClicksTest.moc"
