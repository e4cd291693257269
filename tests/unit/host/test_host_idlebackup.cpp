#include <QPushButton>
#include <QtTest>

#include "app/IdleBackup.h"
#include "orva/orva_sim.h"
#include "orva/orva_store.h"

namespace
{

int countBackups()
{
    ORVA_STORE_BACKUP* pBackups = nullptr;
    int iCount = -1;
    if (ORVA_Store_GetBackups(ORVA_MEMORY_LOCAL, &pBackups, &iCount) == ORVA_OK) {
        ORVA_Store_BackupsRelease(ORVA_MEMORY_LOCAL, &pBackups);
    }
    return iCount;
}

void addContact()
{
    void* pRecord = nullptr;
    int iId = 0;
    const unsigned short name[] = {'A', 0};
    QCOMPARE(ORVA_PBSrv_CreateAddrRecord(ORVA_MEMORY_LOCAL, &pRecord), long(ORVA_OK));
    ORVA_PBSrv_AddrRecord_SetValue(pRecord, "Name", name);
    QCOMPARE(ORVA_PBSrv_AddAddrRec(pRecord, &iId), long(ORVA_OK));
    ORVA_PBSrv_AddrRecord_Release(pRecord);
}

const int IDLE_MS = 300;

// Keeps using a widget for three times as long as nobody may, with the key or with the mouse. False if the machine was
// so busy that it came to look as if nobody was there.
bool keepUsing(QWidget& widget, bool bKey)
{
    QElapsedTimer all;
    QElapsedTimer last;
    all.start();
    last.start();
    qint64 iLongest = 0;
    while (all.elapsed() < 3 * IDLE_MS) {
        if (bKey) {
            QTest::keyClick(&widget, Qt::Key_A);
        } else {
            QTest::mouseClick(&widget, Qt::LeftButton);
        }
        QCoreApplication::processEvents();
        iLongest = qMax(iLongest, last.restart());
    }
    return iLongest < IDLE_MS / 2;
}

} // namespace

// The daily backup, which comes when nobody is at the program.
class TestHostIdleBackup : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        const QByteArray folder = qgetenv("HOME") + "/" + QTest::currentTestFunction();
        QCOMPARE(ORVA_Sim_Reset(folder.constData()), long(ORVA_OK));
    }

    void whenNobodyIsThereOneBackupIsMade()
    {
        addContact();
        IdleBackup backup(20);
        QSignalSpy spyMade(&backup, SIGNAL(made()));
        QSignalSpy spyRuns(&backup, SIGNAL(finished()));
        backup.Start();
        QTRY_COMPARE(spyMade.count(), 1);
        QCOMPARE(countBackups(), 1);
        // It goes on to ask, for a program that runs for days, and gets no second one today.
        QTRY_VERIFY(spyRuns.count() >= 3);
        QCOMPARE(spyMade.count(), 1);
        QCOMPARE(countBackups(), 1);
    }

    void nothingIsMadeWhileSomebodyIsAtIt_data()
    {
        QTest::addColumn<bool>("key");
        QTest::newRow("key") << true;
        QTest::newRow("mouse") << false;
    }

    void nothingIsMadeWhileSomebodyIsAtIt()
    {
        QFETCH(bool, key);
        QPushButton button;
        button.show();
        bool bUsed = false;
        for (int iTry = 0; iTry < 50 && !bUsed; ++iTry) {
            IdleBackup backup(IDLE_MS);
            QSignalSpy spyRuns(&backup, SIGNAL(started()));
            backup.Start();
            bUsed = keepUsing(button, key);
            if (bUsed) {
                QCOMPARE(spyRuns.count(), 0);
                QTRY_VERIFY(spyRuns.count() > 0);
            }
        }
        QVERIFY(bUsed);
    }

    void anEndWaitsForTheCopy()
    {
        addContact();
        for (int i = 0; i < 10; ++i) {
            IdleBackup backup(0);
            backup.Start();
            QCoreApplication::processEvents();
        }
        QVERIFY(countBackups() <= 1);
    }
};

QTEST_MAIN(TestHostIdleBackup)
#include "test_host_idlebackup.moc"
