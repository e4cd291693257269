#include <functional>

#include "LogicTest.h"

// Every flow of the logic with each of its SDK calls failing once, and once giving null: the result of a failure,
// nothing left behind, no transaction open.

namespace
{

struct Flow {
    const char* name;
    std::function<int()> run;
    int failed;            // the result when a call of consequence fails
    QStringList tolerated; // calls whose failure changes nothing
    QStringList nullOk;    // calls that may give null without a failure
};

const QStringList transactions = {"BeginTransaction", "EndTransaction"};

AddrBookLogic* logic()
{
    return AddrBookLogic::Instance();
}

QStringList values(const QString& name)
{
    return QStringList{name, "1", "2", "3", "a@b", "note"};
}

void populate()
{
    FakeSdk::reset();
    for (const char* name : {"Anna", "Bruno"}) {
        FakeSdk::addRecord(PB_MEM_LOCAL, values(name));
        FakeSdk::addRecord(PB_MEM_SIM, {name, "1"});
    }
    FakeSdk::addGroup("Friends");
    FakeSdk::addGroup("Close", 1);
    FakeSdk::join(1, 1);
    FakeSdk::join(1, 2);
    FakeSdk::setImport("/a.csv", {{"Anna Maria Josefina", "1"}, {"Bruno", "2"}});
    FakeSdk::clearCalls();
}

int readAll(_ORVA_EN_PHONEBOOK_MEMORY memory, int group)
{
    QList<AddrBookRecord> records;
    return logic()->GetRecordInGroup(records, memory, group);
}

int readGroups()
{
    QList<AddrBookGroup*> groups;
    const int result = logic()->GetGroups(groups, PB_MEM_LOCAL);
    qDeleteAll(groups);
    return result;
}

const QStringList reading = transactions + QStringList({"AddrRecordSet_Release", "AddrRecord_Release",
                                                        "AddrGroupSet_Release", "GetProfile", "ProfileRelease"});

QList<Flow> readingFlows()
{
    const QStringList texts = {"AddrRecordSet_GetValue", "AddrRecord_GetValue", "AddrGroupSet_GetName"};
    return {
        {"GetAllFields",
         [] {
             QList<AddrBookField> fields;
             return logic()->GetAllFields(fields, PB_MEM_LOCAL);
         },
         1,
         {},
         {}},
        {"GetRecord",
         [] {
             QList<QString> list;
             return logic()->GetRecord(PB_MEM_LOCAL, 1, list);
         },
         1,
         {"AddrRecord_Release", "ProfileRelease"},
         texts},
        // A walk without its field list gives records without values, and a failing MoveNext is its end.
        {"GetRecordInGroup", [] { return readAll(PB_MEM_SIM, 0); }, 1, reading + QStringList("AddrRecordSet_MoveNext"),
         texts + QStringList("GetAddrRecList")},
        {"GetRecordInGroup of a group", [] { return readAll(PB_MEM_LOCAL, 1); }, 1, reading,
         texts + QStringList({"AddrGroupSet_GetAddrInGroupByID", "GetAddrRecord"})},
        {"GetAddrRecordCount",
         [] { return logic()->GetAddrRecordCount(PB_MEM_SIM) < 0 ? -1 : 0; },
         -1,
         {"AddrRecordSet_Release"},
         {"AddrRecordSet_GetAddrRecordCount"}},
        {"GetGroups", readGroups, 1, transactions + QStringList({"AddrGroupSet_MoveNext", "AddrGroupSet_Release"}),
         texts + QStringList("AddrGroupSet_GetGroupSize")},
    };
}

QList<Flow> changingFlows()
{
    const QStringList record = {"AddrRecord_Release", "ProfileRelease"};
    const QStringList search =
        transactions + QStringList({"AddrGroupSet_MoveNext", "AddrGroupSet_MoveFirst", "AddrGroupSet_GetParentID",
                                    "AddrGroupSet_Release", "AddrGroup_Release"});
    return {
        {"AddRecord",
         [] {
             int id = -1;
             const int result = logic()->AddRecord(PB_MEM_LOCAL, values("Carla"), id);
             return result == -1 ? 1 : result; // without a field list it is a mismatch
         },
         1,
         record,
         {"AddAddrRec"}},
        {"UpdateRecord",
         [] {
             const int result = logic()->UpdateRecord(PB_MEM_LOCAL, 1, values("Carla"));
             return result == -1 ? 1 : result;
         },
         1,
         record,
         {}},
        {"DelRecord", [] { return logic()->DelRecord(PB_MEM_LOCAL, 1); }, 1, {}, {}},
        {"AddGroup",
         [] {
             int id = -1;
             return logic()->AddGroup(PB_MEM_LOCAL, "New", 0, id);
         },
         1,
         search,
         {"AddrGroupSet_GetName"}},
        {"UpdateGroup",
         [] { return logic()->UpdateGroup(PB_MEM_LOCAL, 1, "New", 0); },
         1,
         search,
         {"AddrGroupSet_GetName"}},
        {"DelGroup", [] { return logic()->DelGroup(PB_MEM_LOCAL, 1); }, 1, {}, {}},
        {"AddAddrToGroup", [] { return logic()->AddAddrToGroup(PB_MEM_LOCAL, 1, 2); }, 1, {}, {}},
        {"RemoveAddrFromGroup", [] { return logic()->RemoveAddrFromGroup(PB_MEM_LOCAL, 1, 1); }, 1, {}, {}},
    };
}

QList<Flow> fileFlows()
{
    return {
        {"ImportFromFile",
         [] {
             QList<AddrBookRecord> records;
             return logic()->ImportFromFile("/a.csv", {0, 1}, records, PB_MEM_SIM);
         },
         1,
         transactions + QStringList({"AddrRecordSet_MoveNext", "AddrRecordSet_Release", "DevSrv_GetProductType",
                                     "PBContentCodingJudge", "GetProfile", "ProfileRelease"}),
         {"AddrRecordSet_GetValue", "GetProfile"}},
        {"ExportToFile", [] { return logic()->ExportToFile("/a.csv", {1}, PB_MEM_SIM); }, 1, {}, {}},
        {"GetAddrCapacity",
         [] {
             int capacity = 0;
             int size = 0;
             return logic()->GetAddrCapacity(PB_MEM_SIM, capacity, size) == 0 ? 0 : 1;
         },
         1,
         {},
         {"GetSize"}},
    };
}

QList<Flow> flows()
{
    return readingFlows() + changingFlows() + fileFlows();
}

// Operations to which "null" means something.
bool canGiveNull(const QString& name)
{
    static const QStringList names = {"CreateAddrRecord",
                                      "AddrRecord_GetValue",
                                      "GetAddrRecord",
                                      "GetAddrRecList",
                                      "AddrRecordSet_GetValue",
                                      "AddrRecordSet_GetAddrRecordCount",
                                      "GetGroupList",
                                      "AddrGroupSet_GetName",
                                      "AddrGroupSet_GetGroupSize",
                                      "AddrGroupSet_GetAddrInGroupByID",
                                      "CreateAddrGroup",
                                      "GetProfile",
                                      "GetCapacity",
                                      "GetSize",
                                      "ImportFromFile",
                                      "AddAddrRec"};
    return names.contains(name);
}

} // namespace

class TestFailures : public LogicTest
{
    Q_OBJECT

private slots:
    void eachCallFailingOnce_data()
    {
        QTest::addColumn<int>("flow");
        for (int i = 0; i < flows().size(); ++i)
            QTest::newRow(flows().at(i).name) << i;
    }

    void eachCallFailingOnce()
    {
        QFETCH(int, flow);
        const Flow tested = flows().at(flow);
        populate();
        QCOMPARE(tested.run(), 0);
        const int calls = FakeSdk::totalCalls();
        QVERIFY(calls > 0);
        for (int k = 1; k <= calls; ++k) {
            AddrBookLogic::Destroy();
            populate();
            FakeSdk::failCall(k);
            const int result = tested.run();
            const QString failed = FakeSdk::failedCall();
            const bool isTolerated = tested.tolerated.contains(failed);
            const QByteArray where = QString("call %1, %2").arg(k).arg(failed).toLatin1();
            QVERIFY2(!failed.isEmpty(), where);
            // The loss of a profile can be made good by the next question or end the flow, each being well.
            if (failed != "GetProfile" && failed != "ProfileRelease")
                QVERIFY2(result == (isTolerated ? 0 : tested.failed), where);
            QVERIFY2(FakeSdk::leaks().isEmpty(), where + ": " + FakeSdk::leaks().toLatin1());
            for (int memory : {PB_MEM_LOCAL, PB_MEM_SIM})
                QVERIFY2(FakeSdk::openTransactions(memory) ==
                             (failed == "BeginTransaction" && memory == flowMemory() ? -1 : 0),
                         where);
        }
    }

    void eachCallGivingNullOnce_data() { eachCallFailingOnce_data(); }

    void eachCallGivingNullOnce()
    {
        QFETCH(int, flow);
        const Flow tested = flows().at(flow);
        populate();
        QCOMPARE(tested.run(), 0);
        const QStringList names = FakeSdk::names();
        for (int k = 1; k <= names.size(); ++k) {
            const QString name = names.at(k - 1);
            if (!canGiveNull(name))
                continue;
            AddrBookLogic::Destroy();
            populate();
            FakeSdk::failCall(k, 0);
            const int result = tested.run();
            const QByteArray where = QString("call %1, %2").arg(k).arg(name).toLatin1();
            QCOMPARE(QString(FakeSdk::failedCall()), name);
            if (name != "GetProfile")
                QVERIFY2(result == (tested.nullOk.contains(name) ? 0 : tested.failed), where);
            QVERIFY2(FakeSdk::leaks().isEmpty(), where + ": " + FakeSdk::leaks().toLatin1());
        }
    }

    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false"); }

private:
    // The memory whose transaction the failed begin belonged to.
    static int flowMemory()
    {
        const QList<FakeSdk::Call> calls = FakeSdk::calls();
        for (const FakeSdk::Call& call : calls)
            if (call.name == "BeginTransaction")
                return call.arguments.first().toInt();
        return -1;
    }
};

QTEST_GUILESS_MAIN(TestFailures)
#include "tst_failures.moc"
