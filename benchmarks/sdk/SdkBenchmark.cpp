// Prints a table of ratios: the library against bare SQLite, and against itself with ten times the records.
//
// Each figure is the best of some rounds in which the two sides take turns, so that a busy machine spoils neither. What
// only reads is measured in processor time, what writes in time on the clock, since it waits for the disk.

#include <malloc.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "BareStore.h"
#include "benchmarks/support/Bench.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"

namespace
{

constexpr int memory = ORVA_MEMORY_LOCAL;
constexpr int transactionSize = 200;
const char* const keys[] = {"Name", "Mobile", "officePhone", "homePhone", "email", "remark"};

int part = 1; // of the full counts: 5 for a fifth

void expect(long code)
{
    if (code == ORVA_OK)
        return;
    std::fprintf(stderr, "the library returned %ld\n", code);
    std::exit(2);
}

std::vector<bare::Row> makeRows(int count)
{
    std::vector<bare::Row> rows;
    const auto number = [](int value) {
        const std::string digits = std::to_string(value);
        return std::u16string(digits.begin(), digits.end());
    };
    for (int i = 0; i < count; ++i) {
        const std::u16string n = number(i);
        rows.push_back({u"Contact \x4e2d\x6587 " + n, u"+49170" + number(1000000 + i), u"030" + number(200000 + i),
                        u"0331" + number(300000 + i), u"contact" + n + u"@example.org", u"A note on " + n});
    }
    return rows;
}

const unsigned short* api(const std::u16string& text)
{
    return reinterpret_cast<const unsigned short*>(text.c_str());
}

void addRows(const std::vector<bare::Row>& rows, std::size_t first, std::size_t last)
{
    expect(ORVA_PBSrv_BeginTransaction(memory));
    for (std::size_t i = first; i < last; ++i) {
        if (i % transactionSize == 0) {
            expect(ORVA_PBSrv_EndTransaction(memory));
            expect(ORVA_PBSrv_BeginTransaction(memory));
        }
        void* record = nullptr;
        expect(ORVA_PBSrv_CreateAddrRecord(memory, &record));
        for (std::size_t field = 0; field < bare::fields; ++field)
            expect(ORVA_PBSrv_AddrRecord_SetValue(record, keys[field], api(rows[i][field])));
        int id = 0;
        expect(ORVA_PBSrv_AddAddrRec(record, &id));
        expect(ORVA_PBSrv_AddrRecord_Release(record));
    }
    expect(ORVA_PBSrv_EndTransaction(memory));
}

void addBare(bare::Store& store, const std::vector<bare::Row>& rows, std::size_t first, std::size_t last)
{
    store.run("BEGIN");
    for (std::size_t i = first; i < last; ++i) {
        if (i % transactionSize == 0) {
            store.run("COMMIT");
            store.run("BEGIN");
        }
        store.insert(rows[i]);
    }
    store.run("COMMIT");
}

long walkSet()
{
    void* set = nullptr;
    expect(ORVA_PBSrv_GetAddrRecList(memory, &set));
    long units = 0;
    for (long moved = ORVA_PBSrv_AddrRecordSet_MoveFirst(set); moved == ORVA_OK;
         moved = ORVA_PBSrv_AddrRecordSet_MoveNext(set)) {
        int id = 0;
        expect(ORVA_PBSrv_AddrRecordSet_GetID(set, &id));
        units += id != 0 ? 1 : 0;
        for (const char* const key : keys) {
            unsigned short* value = nullptr;
            expect(ORVA_PBSrv_AddrRecordSet_GetValue(set, key, &value));
            units += value[0] != 0 ? 1 : 0;
            delete[] value;
        }
    }
    expect(ORVA_PBSrv_AddrRecordSet_Release(set));
    return units;
}

void readEach(int count)
{
    for (int id = 1; id <= count; ++id) {
        void* record = nullptr;
        expect(ORVA_PBSrv_GetAddrRecord(id, memory, &record));
        for (const char* const key : keys) {
            unsigned short* value = nullptr;
            expect(ORVA_PBSrv_AddrRecord_GetValue(record, key, &value));
            delete[] value;
        }
        expect(ORVA_PBSrv_AddrRecord_Release(record));
    }
}

std::string useFolder(const std::string& base, const std::string& name)
{
    std::string folder = base + "/" + name;
    expect(ORVA_Sim_Reset(folder.c_str()));
    expect(ORVA_Sim_SetCapacity(memory, 1000000));
    return folder;
}

void measureAgainstBare(const std::string& base, bench::Table& table)
{
    const int count = 50000 / part;
    const std::vector<bare::Row> rows = makeRows(count);
    const std::string folder = useFolder(base, "bare");
    bare::Store plain(base + "/plain.db", true);
    std::size_t next = 0;
    std::size_t nextBare = 0;
    const auto fifth = static_cast<std::size_t>(count / 5);
    // Each round adds a fifth, so that both stores grow alike.
    const bench::Pair added = bench::inTurns(
        5,
        [&] {
            addRows(rows, next, next + fifth);
            next += fifth;
        },
        [&] {
            addBare(plain, rows, nextBare, nextBare + fifth);
            nextBare += fifth;
        });
    table.ratio("`AddAddrRec` in transactions of 200", "a plain prepared insert in the same", added.ours, added.base,
                2.0);
    bare::Store same(folder + "/local.db");
    const bench::Pair walked = bench::inTurns(
        9, [] { walkSet(); }, [&] { same.walk(); });
    table.ratio("record set walk through the C API, all values", "a plain SQLite loop with the same fresh buffers",
                walked.ours, walked.base, 1.5, bench::By::Processor);
}

// A store of some size, and the least that a record of it cost so far.
struct Sized {
    int count;
    std::string folder;
    std::vector<bare::Row> rows;
    bench::Best add;
    bench::Best walk;
    bench::Best read;
};

constexpr int sizeRounds = 5;
constexpr int addedARound = 2000; // not less in the short form, since it is timed

Sized fillStore(const std::string& base, int count)
{
    Sized store{count, useFolder(base, std::to_string(count)), makeRows(count + sizeRounds * addedARound), {}, {}, {}};
    addRows(store.rows, 0, static_cast<std::size_t>(count));
    return store;
}

void measureRound(Sized& store, int round)
{
    expect(ORVA_Sim_Reset(store.folder.c_str()));
    const int there = store.count + round * addedARound;
    const auto first = static_cast<std::size_t>(there);
    store.walk.add(bench::perItem(bench::timeOf([] { walkSet(); }), there));
    store.read.add(bench::perItem(bench::timeOf([&] { readEach(there); }), there));
    store.add.add(bench::perItem(bench::timeOf([&] { addRows(store.rows, first, first + addedARound); }), addedARound));
}

void measureAgainstSize(const std::string& base, bench::Table& table)
{
    Sized small = fillStore(base, 10000 / part);
    Sized large = fillStore(base, 100000 / part);
    for (int round = 0; round < sizeRounds; ++round) {
        measureRound(small, round);
        measureRound(large, round);
    }
    // What writes waits for the disk; what reads is told by the processor.
    table.ratio("add, 100,000 against 10,000 records, per record", "itself", large.add.time(), small.add.time(), 1.5);
    table.ratio("walk, 100,000 against 10,000, per record", "itself", large.walk.time(), small.walk.time(), 1.5,
                bench::By::Processor);
    table.ratio("point read in ascending order, 100,000 against 10,000, per record", "itself", large.read.time(),
                small.read.time(), 1.5, bench::By::Processor);

    // Still on the large store: heap that an open set holds in the middle of its walk.
    const std::size_t before = mallinfo2().uordblks;
    void* set = nullptr;
    expect(ORVA_PBSrv_GetAddrRecList(memory, &set));
    expect(ORVA_PBSrv_AddrRecordSet_MoveFirst(set));
    for (int i = 0; i < 50000 / part; ++i)
        expect(ORVA_PBSrv_AddrRecordSet_MoveNext(set));
    const double held = static_cast<double>(mallinfo2().uordblks) - static_cast<double>(before);
    table.line("memory held by an open record set of 100,000, in MB", "nothing held", held / 1048576, 4.0, "");
    expect(ORVA_PBSrv_AddrRecordSet_Release(set));
}

} // namespace

int main(int argc, char** argv)
{
    const bool quick = bench::isShort(argc, argv);
    part = quick ? 5 : 1;
    const std::string base =
        (std::filesystem::temp_directory_path() / ("sdk-benchmark-" + std::to_string(::getpid()))).string();
    std::filesystem::create_directories(base);
    bench::Table table(quick ? "SDK, with a fifth of the contacts" : "SDK");
    measureAgainstBare(base, table);
    measureAgainstSize(base, table);
    ORVA_Sim_Reset(nullptr);
    std::filesystem::remove_all(base);
    return table.result();
}
