// Reads and batches through the worker against bare loops of the same SDK calls, in one run on one store.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <memory>

#include "logic/AddrBookLogic.h"
#include "logic/PointerCarrier.h"
#include "orva/orva_sim.h"
#include "worker/AddrBookThread.h"

namespace
{

const int g_contacts = 50000;
const int g_batch = 1000;
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
double bareWalk()
{
    QElapsedTimer timer;
    timer.start();
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
            record.lstValues.append(QString::fromUtf16(text));
            delete[] text;
        }
        records.append(record);
    } while (ORVA_PBSrv_AddrRecordSet_MoveNext(set) == 0);
    ORVA_PBSrv_AddrRecordSet_Release(set);
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double logicRead()
{
    QElapsedTimer timer;
    timer.start();
    QList<AddrBookRecord> records;
    AddrBookLogic::Instance()->GetRecordInGroup(records, PB_MEM_LOCAL, 0);
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double run(AddrBookThread& worker)
{
    QEventLoop loop;
    QObject::connect(&worker, SIGNAL(finished()), &loop, SLOT(quit()));
    QElapsedTimer timer;
    timer.start();
    worker.start(QThread::InheritPriority);
    loop.exec();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double workerRead()
{
    AddrBookThread worker;
    Receiver receiver;
    QObject::connect(&worker, SIGNAL(addContacts(int, qlonglong, int, int, int)), &receiver,
                     SLOT(OnAddContacts(int, qlonglong, int, int, int)));
    int anything = 0; // the worker only tests the table for null
    worker.SetOperation(ADDRBOOK_OP_READ, PB_MEM_LOCAL, QList<AddrBookRecord>(), 0);
    worker.SetReadOperation(reinterpret_cast<QTableWidget*>(&anything), 6);
    return run(worker);
}

double bareAdds()
{
    QElapsedTimer timer;
    timer.start();
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
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double workerAdds()
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
    return run(worker);
}

double best(double (*measure)())
{
    double fastest = measure();
    for (int i = 0; i < 4; ++i)
        fastest = std::min(fastest, measure());
    return fastest;
}

void print(const char* what, double milliseconds, double base)
{
    std::printf("%-52s %9.1f ms %6.2f\n", what, milliseconds, milliseconds / base);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QLatin1String("default.debug=false"));
    const QTemporaryDir folder;
    ORVA_Sim_Reset(folder.path().toUtf8().constData());
    fill();
    std::printf("%d contacts of 6 values, best of 5\n", g_contacts);
    const double walk = best(bareWalk);
    print("bare walk into a list of records", walk, walk);
    print("AddrBookLogic::GetRecordInGroup", best(logicRead), walk);
    print("worker, start to finished, one signal a record", best(workerRead), walk);
    std::printf("%d records added, 200 a commit, 500 us of sleep each, best of 5\n", g_batch);
    const double adds = best(bareAdds);
    print("bare loop", adds, adds);
    print("worker, with the slot's answer", best(workerAdds), adds);
    AddrBookLogic::Destroy();
    ORVA_Sim_Reset(nullptr);
    return 0;
}

#include "WorkerBenchmark.moc"
