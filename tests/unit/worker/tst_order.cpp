#include "WorkerTest.h"

// Takes a batch's signals into one list, in the order of their arrival.
class OrderLog : public QObject
{
    Q_OBJECT

public:
    explicit OrderLog(AddrBookThread* worker) : m_worker(worker)
    {
        connect(worker, SIGNAL(addSelectDialogContact(int, int, int)), SLOT(added(int, int, int)));
        connect(worker, SIGNAL(deleteSelectDialogContact(int, int)), SLOT(deleted(int, int)));
        connect(worker, SIGNAL(removeContactFromGroup(int, int, int)), SLOT(removed(int, int, int)));
        connect(worker, SIGNAL(addResult(bool, qlonglong)), SLOT(record(bool, qlonglong)));
        connect(worker, SIGNAL(moveResult(bool, qlonglong)), SLOT(record(bool, qlonglong)));
        connect(worker, SIGNAL(delResult(bool, int)), SLOT(plain(bool, int)));
    }
    ~OrderLog() override { QCoreApplication::sendPostedEvents(this, QEvent::MetaCall); }

    QStringList lines;

private slots:
    void added(int, int iID, int) { lines << QString("added %1").arg(iID); }
    void deleted(int, int iID) { lines << QString("deleted %1").arg(iID); }
    void removed(int, int iID, int) { lines << QString("removed %1").arg(iID); }
    void record(bool bResult, qlonglong iRecord)
    {
        const std::unique_ptr<AddrBookRecord> pRecord(carrierToPointer<AddrBookRecord>(iRecord));
        plain(bResult, pRecord->iID);
    }
    void plain(bool bResult, int iID)
    {
        lines << QString("%1 %2").arg(bResult ? "done" : "failed").arg(iID);
        m_worker->SetSlotExecutionStatus();
    }

private:
    AddrBookThread* m_worker;
};

// A picker learns of a change before the window's result slot, which lets the worker go on.
class TestOrder : public WorkerTest
{
    Q_OBJECT

private slots:
    void aPickerHearsOfAnAddedContactBeforeItsResult()
    {
        AddrBookThread worker;
        const OrderLog log(&worker);
        worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(2), 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(log.lines, QStringList({"added 1", "done 1", "added 2", "done 2"}));
    }

    void aPickerHearsOfACopyBeforeItsResult()
    {
        AddrBookThread worker;
        const OrderLog log(&worker);
        worker.SetOperation(ADDRBOOK_OP_COPY, PB_MEM_SIM, {record({"Anna", "1"}), record({"", ""})}, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(log.lines, QStringList({"added 1", "done 1", "failed -1"}));
    }

    void aPickerHearsOfADeletionBeforeItsResult()
    {
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        AddrBookThread worker;
        const OrderLog log(&worker);
        worker.SetOperation(ADDRBOOK_OP_DELETE, PB_MEM_LOCAL, records(2), 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(log.lines, QStringList({"deleted 1", "done 1", "failed 2"}));
    }

    void aPickerHearsOfARemovalBeforeItsResult()
    {
        FakeSdk::addGroup("Friends");
        FakeSdk::join(1, FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna")));
        AddrBookThread worker;
        const OrderLog log(&worker);
        worker.SetOperation(ADDRBOOK_OP_REMOVE_FROM_GROUP, PB_MEM_LOCAL, records(1), 1);
        QVERIFY(runToEnd(worker));
        QCOMPARE(log.lines, QStringList({"removed 1", "done 1"}));
    }

    void aPickerHearsOfAMoveBeforeItsResult()
    {
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
        AddrBookThread worker;
        const OrderLog log(&worker);
        worker.SetOperation(ADDRBOOK_OP_MOVE, PB_MEM_SIM, PB_MEM_ME, {record({"Anna", "1"}, 1)}, 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(log.lines, QStringList({"added 1", "done 1"}));
    }
};

QTEST_GUILESS_MAIN(TestOrder)
#include "tst_order.moc"
