// Reads and batches through the worker against bare loops of the same SDK calls, in one run on one store.

#include <QCoreApplication>
#include <QEventLoop>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include "benchmarks/support/Bench.h"
#include "linkhand/QtCompat.h"
#include "logic/AddrBookLogic.h"
#include "logic/PointerCarrier.h"
#include "orva/orva_sim.h"
#include "worker/AddrBookThread.h"

namespace
{

int g_contacts = 50000;
int g_batch = 1000;
const char* const g_keys[] = {"Name", "Mobile", "officePhone", "homePhone", "email", "remark"};

QStringList valuesOf(int number)
{
    const QString text = QString::number(number);
    return {"Contact number " + text,    "+4917" + text,      "030" + text, "040" + text,
            "c" + text + "@example.org", "Met on day " + text};
}

class Receiver : public QObject
{
    Q_OBJECT

public:
    AddrBookThread* worker = nullptr;
    int received = 0;

public slots:
    void OnAddContacts(int, qlonglong iData, int, int, int)
    {
        delete carrierToPointer<AddrBookRecord>(iData);
        ++received;
    }
    void OnAddResult(bool, qlonglong iData)
    {
        OnAddContacts(0, iData, 0, 0, 0);
        worker->SetSlotExecutionStatus();
    }
};

void fill()
{
    ORVA_PBSrv_BeginTransaction(PB_MEM_LOCAL);
    for (int i = 0; i < g_contacts; ++i) {
        int id = 0;
        AddrBookLogic::Instance()->AddRecord(PB_MEM_LOCAL, valuesOf(i), id);
    }
    ORVA_PBSrv_EndTransaction(PB_MEM_LOCAL);
}

// The values go into a list of records, as anybody's would who reads contacts for a user interface.
void bareWalk()
{
    QList<AddrBookRecord> records;
    void* set = nullptr;
    ORVA_PBSrv_GetAddrRecList(PB_MEM_LOCAL, &set);
    ORVA_PBSrv_AddrRecordSet_MoveFirst(set);
    do {
        AddrBookRecord record;
        ORVA_PBSrv_AddrRecordSet_GetID(set, &record.iID);
        for (const char* key : g_keys) {
            unsigned short* text = nullptr;
            ORVA_PBSrv_AddrRecordSet_GetValue(set, key, &text);
            record.lstValues.append(QtCompat::fromUtf16(text));
            delete[] text;
        }
        records.append(record);
    } while (ORVA_PBSrv_AddrRecordSet_MoveNext(set) == 0);
    ORVA_PBSrv_AddrRecordSet_Release(set);
}

void logicRead()
{
    QList<AddrBookRecord> records;
    AddrBookLogic::Instance()->GetRecordInGroup(records, PB_MEM_LOCAL, 0);
}

void run(AddrBookThread& worker)
{
    QEventLoop loop;
    QObject::connect(&worker, SIGNAL(finished()), &loop, SLOT(quit()));
    worker.start(QThread::InheritPriority);
    loop.exec();
}

void workerRead()
{
    AddrBookThread worker;
    Receiver receiver;
    QObject::connect(&worker, SIGNAL(addContacts(int, qlonglong, int, int, int)), &receiver,
                     SLOT(OnAddContacts(int, qlonglong, int, int, int)));
    int anything = 0; // the worker only tests the table for null
    worker.SetOperation(ADDRBOOK_OP_READ, PB_MEM_LOCAL, QList<AddrBookRecord>(), 0);
    worker.SetReadOperation(reinterpret_cast<QTableWidget*>(&anything), 6);
    run(worker);
}

void bareAdds()
{
    for (int i = 0; i < g_batch; ++i) {
        if (i % 200 == 0) {
            ORVA_PBSrv_EndTransaction(PB_MEM_LOCAL);
            ORVA_PBSrv_BeginTransaction(PB_MEM_LOCAL);
        }
        const QStringList values = valuesOf(i);
        void* record = nullptr;
        int id = 0;
        ORVA_PBSrv_CreateAddrRecord(PB_MEM_LOCAL, &record);
        for (int field = 0; field < 6; ++field)
            ORVA_PBSrv_AddrRecord_SetValue(record, g_keys[field], values.at(field).utf16());
        ORVA_PBSrv_AddAddrRec(record, &id);
        ORVA_PBSrv_AddrRecord_Release(record);
        ORVA_PBSrv_AddAddrToGroup(0, id, PB_MEM_LOCAL);
        QThread::usleep(500);
    }
    ORVA_PBSrv_EndTransaction(PB_MEM_LOCAL);
}

void workerAdds()
{
    QList<AddrBookRecord> records;
    for (int i = 0; i < g_batch; ++i) {
        AddrBookRecord record;
        record.iID = 0;
        record.lstValues = valuesOf(i);
        records.append(record);
    }
    AddrBookThread worker;
    Receiver receiver;
    receiver.worker = &worker;
    QObject::connect(&worker, SIGNAL(addResult(bool, qlonglong)), &receiver, SLOT(OnAddResult(bool, qlonglong)));
    worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records, 0);
    run(worker);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QLatin1String("default.debug=false"));
    const bool quick = bench::isShort(argc, argv);
    g_contacts /= quick ? 5 : 1;
    g_batch /= quick ? 5 : 1;
    const QTemporaryDir folder;
    ORVA_Sim_Reset(folder.path().toUtf8().constData());
    fill();
    bench::Table table(quick ? "Worker, with a fifth of the contacts" : "Worker");
    bench::Best walk;
    bench::Best logic;
    bench::Best worker;
    for (int round = 0; round < 5; ++round) {
        walk.add(bench::timeOf(bareWalk));
        logic.add(bench::timeOf(logicRead));
        worker.add(bench::timeOf(workerRead));
    }
    table.relation("`AddrBookLogic::GetRecordInGroup`, 50,000 contacts", "a bare walk into a list of records",
                   logic.time(), walk.time());
    table.relation("a read by the worker, one signal a record, from start to finish", "the same walk", worker.time(),
                   walk.time());
    const bench::Pair added = bench::inTurns(5, workerAdds, bareAdds);
    table.relation("1,000 contacts added by the worker, each with the slot's answer", "a bare loop with the same pause",
                   added.ours, added.base);
    AddrBookLogic::Destroy();
    ORVA_Sim_Reset(nullptr);
    return 0;
}

#include "WorkerBenchmark.moc"
