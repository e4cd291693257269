#include <QSemaphore>
#include <QtTest>

#include "work/WorkThread.h"

// Work on a thread of its own, and what becomes of it where there is none.
class TestHostWork : public QObject
{
    Q_OBJECT

private slots:
    void theWorkIsDoneElsewhereAndItsEndIsToldHere()
    {
        WorkThread thread;
        QSignalSpy spyEnded(&thread, SIGNAL(ended()));
        QSemaphore go;
        const QThread* pAt = nullptr;
        thread.Begin([&] {
            go.acquire();
            pAt = QThread::currentThread();
        });
        QVERIFY(thread.IsBusy());
        QCoreApplication::processEvents();
        QCOMPARE(spyEnded.count(), 0);
        go.release();
        QTRY_COMPARE(spyEnded.count(), 1);
        QVERIFY(pAt != nullptr && pAt != QThread::currentThread());
        QVERIFY(thread.HasRun());
        QVERIFY(!thread.IsBusy());
    }

    void onePieceFollowsTheOther()
    {
        WorkThread thread;
        QList<int> listDone;
        int iLeft = 100;
        // Each begins in the moment in which the end of the one before is told.
        const auto begin = [&] { thread.Begin([&] { listDone.append(iLeft); }); };
        connect(&thread, &WorkThread::ended, this, [&] {
            if (--iLeft > 0) {
                begin();
            }
        });
        begin();
        QTRY_COMPARE(iLeft, 0);
        QCOMPARE(listDone.size(), 100);
        QCOMPARE(listDone.last(), 1);
    }

    void whatFindsNoThreadIsToldAsEndedAndNotDone()
    {
        WorkThread thread;
        thread.setStackSize(1); // less than any system's least
        QSignalSpy spyEnded(&thread, SIGNAL(ended()));
        bool bDone = false;
        thread.Begin([&] { bDone = true; });
        QVERIFY(thread.IsBusy());
        QCOMPARE(spyEnded.count(), 0); // not before whoever began it is through
        QTRY_COMPARE(spyEnded.count(), 1);
        QVERIFY(!thread.IsBusy());
        QVERIFY(!thread.HasRun());
        QVERIFY(!bDone);

        // The next one finds its thread.
        thread.setStackSize(0);
        thread.Begin([&] { bDone = true; });
        QTRY_COMPARE(spyEnded.count(), 2);
        QVERIFY(bDone && thread.HasRun());
    }

    void theEndOfTheObjectWaitsForTheWork()
    {
        bool bDone = false;
        {
            WorkThread thread;
            thread.Begin([&] {
                QTest::qSleep(20);
                bDone = true;
            });
        }
        QVERIFY(bDone);
    }
};

QTEST_MAIN(TestHostWork)
#include "test_host_work.moc"
