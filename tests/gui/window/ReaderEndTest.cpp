#include <atomic>
#include <ctime>
#include <pthread.h>

#include "WindowFixture.h"

// The window waits for the reader of the table before, which may be with a slow card: it leaves the processor to it.
class ReaderEndTest : public WindowTest
{
    Q_OBJECT

private:
    // Milliseconds that a thread has computed.
    static double computed(clockid_t clock)
    {
        timespec time = {};
        clock_gettime(clock, &time);
        return 1e3 * double(time.tv_sec) + 1e-6 * double(time.tv_nsec);
    }

private slots:
    void windowSleepsWhileTheReaderBeforeEndsItsRecord()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        clockid_t clock = {};
        QCOMPARE(pthread_getcpuclockid(pthread_self(), &clock), 0);
        std::atomic<bool> there{false};
        std::atomic<bool> clicked{false};
        double begin = 0;
        double used = 0;
        // The record takes a second and a half, or less if the window computes meanwhile.
        FakeSdk::onCall("AddrRecordSet_MoveNext", 1, [&] {
            there = true;
            while (!clicked)
                QThread::usleep(200);
            for (int i = 0; i < 1500 && used < 100; ++i) {
                QThread::msleep(1);
                used = computed(clock) - begin;
            }
        });
        f.in().current() = nullptr;
        f.window()->OnTreeClicked(f.in().local());
        QVERIFY(QTest::qWaitFor([&there] { return there.load(); }, 20000));
        begin = computed(clock);
        clicked = true;
        f.click(f.node("Friends"));
        QCOMPARE(f.column(0), QStringList({"Anna", "Bert"}));
        QVERIFY2(used < 100, qPrintable(QString("%1 ms").arg(used)));
        QCOMPARE(FakeCore::runningWorkers(), 0);
    }
};

QTEST_MAIN(ReaderEndTest)
#include "ReaderEndTest.moc"
