#include <cstdio>

#include "WorkerTest.h"

// Workers that still run when the application object has gone: they read and change nothing more.
namespace
{

int s_iFailures = 0;

void check(bool ok, const char* what, int count)
{
    if (ok)
        return;
    ++s_iFailures;
    std::fprintf(stderr, "%s: %d calls\n", what, count);
}

AddrBookRecord contactRecord(int id)
{
    AddrBookRecord record;
    record.iID = id;
    record.lstValues = QList<QString>{"Anna", "1", "", "", "", ""};
    return record;
}

void runOne(AddrBookThread& worker)
{
    FakeSdk::clearCalls();
    worker.start(QThread::InheritPriority);
    if (worker.wait(10000))
        return;
    check(false, "a worker that does not end", FakeSdk::totalCalls());
    worker.StopOperation();
    worker.SetSlotExecutionStatus();
    worker.wait();
}

void batchesEndBeforeTheirFirstRecord(AddrBookThread& worker)
{
    const QList<AddrBookRecord> records = {contactRecord(1), contactRecord(2)};
    const QList<QPair<_ADDRBOOK_OPERATION_TYPE, const char*>> operations = {
        {ADDRBOOK_OP_ADD, "AddAddrRec"},
        {ADDRBOOK_OP_COPY, "AddAddrRec"},
        {ADDRBOOK_OP_DELETE, "DelAddrRec"},
        {ADDRBOOK_OP_REMOVE_FROM_GROUP, "DelAddrFromGroup"}};
    for (const auto& operation : operations) {
        worker.SetOperation(operation.first, PB_MEM_LOCAL, records, 1);
        runOne(worker);
        check(FakeSdk::count(operation.second) == 0, operation.second, FakeSdk::count(operation.second));
    }
    worker.SetOperation(ADDRBOOK_OP_MOVE, PB_MEM_LOCAL, PB_MEM_SIM, records, 0);
    runOne(worker);
    check(FakeSdk::count("AddAddrRec") == 0, "a move", FakeSdk::count("AddAddrRec"));
}

void readsEndBeforeTheirFirstRecord(AddrBookThread& worker)
{
    static int anything = 0;
    for (const int group : {0, 1}) {
        worker.SetOperation(ADDRBOOK_OP_READ, PB_MEM_LOCAL, QList<AddrBookRecord>(), group);
        worker.SetReadOperation(reinterpret_cast<QTableWidget*>(&anything), 6);
        runOne(worker);
        const char* const call = group == 0 ? "AddrRecordSet_GetID" : "GetAddrRecord";
        check(FakeSdk::count(call) == 0, call, FakeSdk::count(call));
    }
}

} // namespace

int main(int argc, char** argv)
{
    FakeSdk::reset();
    FakeCore::reset();
    {
        const QCoreApplication application(argc, argv);
        AddrBookLogic::Instance();
        for (const int memory : {0, 4}) {
            QList<AddrBookField> fields;
            AddrBookLogic::Instance()->GetAllFields(fields, static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(memory));
        }
    }
    FakeSdk::addGroup("Friends");
    FakeSdk::join(1, FakeSdk::addRecord(4, {"Anna", "1"}));
    FakeSdk::join(1, FakeSdk::addRecord(4, {"Bruno", "2"}));
    {
        AddrBookThread worker;
        batchesEndBeforeTheirFirstRecord(worker);
        readsEndBeforeTheirFirstRecord(worker);
    }
    AddrBookLogic::Destroy();
    check(FakeSdk::leaks().isEmpty(), qPrintable(FakeSdk::leaks()), 0);
    return s_iFailures == 0 ? 0 : 1;
}
