#include <QThread>
#include <QtTest>

#include <atomic>

#include "FakeHost.h"
#include "linkhand/core/CommonUtils.h"

namespace
{

// Runs until the host shuts down, as a worker of a plug-in does.
class Worker : public QThread
{
public:
    void run() override
    {
        CommonUtils::ThreadCountInc("file", "function");
        bStarted = true;
        while (!CommonUtils::IsShuttingDown())
            QThread::yieldCurrentThread();
        CommonUtils::ThreadCountDec("file", "function");
    }

    std::atomic<bool> bStarted{false};
};

} // namespace

class CoreThreads : public QObject
{
    Q_OBJECT

private slots:
    void workersSeeTheShutdownAndAreCounted();
};

void CoreThreads::workersSeeTheShutdownAndAreCounted()
{
    FakeHost host;
    QVERIFY(!CommonUtils::IsShuttingDown());
    Worker workers[4];
    for (Worker& worker : workers)
        worker.start();
    for (Worker& worker : workers) {
        while (!worker.bStarted) {
            // What the host is asked meanwhile refreshes what the workers see.
            QVERIFY(CommonUtils::GetMainWindow() == nullptr);
            QThread::yieldCurrentThread();
        }
    }
    QCOMPARE(host.iThreads.loadRelaxed(), 4);
    host.iShuttingDown.storeRelaxed(1);
    for (Worker& worker : workers) {
        CommonUtils::WaitForThreadToStop(&worker, 60);
        QVERIFY(worker.isFinished());
    }
    QCOMPARE(host.iThreads.loadRelaxed(), 0);
}

QTEST_GUILESS_MAIN(CoreThreads)
#include "core_threads.moc"
