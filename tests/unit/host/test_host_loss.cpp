#include <QtTest>

#include "FaultyVfs.h"
#include "orva/orva_sim.h"
#include "orva/orva_store.h"
#include "settings/LossWatcher.h"

namespace
{

int add(int iMemory)
{
    void* pRecord = nullptr;
    int iId = 0;
    if (ORVA_PBSrv_CreateAddrRecord(iMemory, &pRecord) != ORVA_OK) {
        return 0;
    }
    const unsigned short name[] = {'A', 0};
    ORVA_PBSrv_AddrRecord_SetValue(pRecord, "Name", name);
    ORVA_PBSrv_AddAddrRec(pRecord, &iId);
    ORVA_PBSrv_AddrRecord_Release(pRecord);
    return iId;
}

// A transaction of some records that a full disk refuses.
void lose(int iMemory, int iRecords)
{
    QVERIFY(add(iMemory) > 0);
    QCOMPARE(ORVA_PBSrv_BeginTransaction(iMemory), long(ORVA_OK));
    for (int i = 0; i < iRecords; ++i) {
        QVERIFY(add(iMemory) > 0);
    }
    faulty::arm(faulty::Fault::Full, 0, true);
    const long lEnded = ORVA_PBSrv_EndTransaction(iMemory);
    faulty::disarm();
    QCOMPARE(lEnded, long(ORVA_E_NO_SPACE));
}

} // namespace

// What the host hears of changes that the disk refused.
class TestHostLoss : public QObject
{
    Q_OBJECT

    ProblemList m_told;
    ProblemList m_access;
    int m_iChanges = 0;

public slots:
    void OnLost(const ProblemList& problems) { m_told += problems; }
    void OnAccessChanged(const ProblemList& problems)
    {
        ++m_iChanges;
        m_access = problems;
    }

private slots:
    void init()
    {
        faulty::install();
        m_told.clear();
        m_access.clear();
        m_iChanges = 0;
        const QByteArray folder = qgetenv("HOME") + "/" + QTest::currentTestFunction();
        QCOMPARE(ORVA_Sim_Reset(folder.constData()), long(ORVA_OK));
    }

    void aLossIsAProblemWithMemoryCodeAndNumber()
    {
        LossWatcher watcher;
        connect(&watcher, SIGNAL(lost(ProblemList)), this, SLOT(OnLost(ProblemList)));
        watcher.Start();
        lose(ORVA_MEMORY_LOCAL, 3);
        QTRY_COMPARE(m_told.size(), 1);
        QVERIFY2(m_told.first().strName.endsWith("/local.db (1015)"), qPrintable(m_told.first().strName));
        QCOMPARE(m_told.first().strReasonId, QString("IDS_HOST_PROBLEM_LOSS"));
        QCOMPARE(m_told.first().strDetail, QString("3"));
        QVERIFY(m_told.first().IsGrave());
        lose(ORVA_MEMORY_CARD, 2);
        QTRY_COMPARE(m_told.size(), 2);
        QVERIFY(m_told.last().strName.endsWith("/card.db (1015)"));
        QCOMPARE(m_told.last().strDetail, QString("2"));
    }

    void aFullDiskIsToldUntilThereIsRoom()
    {
        QVERIFY(add(ORVA_MEMORY_LOCAL) > 0);
        LossWatcher watcher;
        connect(&watcher, SIGNAL(accessChanged(ProblemList)), this, SLOT(OnAccessChanged(ProblemList)));
        watcher.Start();
        faulty::arm(faulty::Fault::Full, 0, true);
        QCOMPARE(add(ORVA_MEMORY_LOCAL), 0);
        QTRY_COMPARE(m_access.size(), 1);
        QVERIFY(m_access.first().strName.endsWith("/local.db"));
        QCOMPARE(m_access.first().strReasonId, QString("IDS_HOST_PROBLEM_NO_SPACE"));
        int iSize = 0;
        QCOMPARE(ORVA_PBSrv_GetSize(ORVA_MEMORY_LOCAL, &iSize), long(ORVA_OK));
        QCOMPARE(iSize, 1);
        faulty::disarm();
        QTRY_COMPARE(m_access.size(), 0);
        QCOMPARE(m_iChanges, 2);
        QVERIFY(add(ORVA_MEMORY_LOCAL) > 0);
    }

    void afterItsEndNothingIsTold()
    {
        LossWatcher watcher;
        connect(&watcher, SIGNAL(lost(ProblemList)), this, SLOT(OnLost(ProblemList)));
        watcher.Start();
        lose(ORVA_MEMORY_LOCAL, 1);
        QCOMPARE(ORVA_Sim_WaitEvents(), long(ORVA_OK));
        watcher.Stop();
        QCoreApplication::sendPostedEvents();
        QCOMPARE(m_told.size(), 0);
    }
};

QTEST_GUILESS_MAIN(TestHostLoss)
#include "test_host_loss.moc"
