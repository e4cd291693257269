#include <QSemaphore>
#include <QThread>
#include <QtTest>

#include "NameAsker.h"
#include "NoThreads.h"
#include "RealStore.h"
#include "device/ContactNamer.h"
#include "linkhand/plugin/Codes.h"
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
        QSignalSpy spyEnded(&thread, SIGNAL(ended()));
        bool bDone = false;
        {
            const NoThreads none;
            thread.Begin([&] { bDone = true; });
        }
        QVERIFY(thread.IsBusy());
        QCOMPARE(spyEnded.count(), 0); // not before whoever began it is through
        QTRY_COMPARE(spyEnded.count(), 1);
        QVERIFY(!thread.IsBusy());
        QVERIFY(!thread.HasRun());
        QVERIFY(!bDone);

        // The next one finds its thread.
        thread.Begin([&] { bDone = true; });
        QTRY_COMPARE(spyEnded.count(), 2);
        QVERIFY(bDone && thread.HasRun());
    }

    void withoutAThreadNobodyKnowsTheContactsName()
    {
        QVERIFY(RealStore::addContact(ORVA_MEMORY_LOCAL, {"Ada"}) > 0);
        ContactNamer namer;
        NameAsker asker;
        namer.Ask(PHONEBOOK_CONTACT_ADDED, ORVA_MEMORY_LOCAL, 0, &asker, 1);
        QTRY_COMPARE(asker.lstAnswers, QStringList("1 Ada"));
        {
            const NoThreads none;
            namer.Ask(PHONEBOOK_CONTACT_ADDED, ORVA_MEMORY_LOCAL, 0, &asker, 2);
        }
        QCOMPARE(asker.lstAnswers.size(), 1); // not from within the question
        QTRY_COMPARE(asker.lstAnswers.value(1), QString("2 "));
        namer.Ask(PHONEBOOK_CONTACT_ADDED, ORVA_MEMORY_LOCAL, 0, &asker, 3);
        QTRY_COMPARE(asker.lstAnswers.value(2), QString("3 Ada"));
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
