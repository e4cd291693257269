// Prints a table of ratios: the library against bare SQLite, and against itself with ten times the records.
//
// Each figure is the best of some rounds in which the two sides take turns, so that a busy machine spoils neither. What
// only reads is measured in processor time, what writes in time on the clock, since it waits for the disk.

#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <functional>

#include "BareStore.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"

namespace
{

constexpr int memory = ORVA_MEMORY_LOCAL;
constexpr int transactionSize = 200;
const char* const keys[] = {"Name", "Mobile", "officePhone", "homePhone", "email", "remark"};

using Clock = std::chrono::steady_clock;

bool missed = false;

double secondsOf(const std::function<void()>& work)
{
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double processorSecondsOf(const std::function<void()>& work)
{
    const auto now = [] {
        timespec time{};
        ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    const double start = now();
    work();
    return now() - start;
}

using Measure = double (*)(const std::function<void()>&);

void expect(long code)
{
    if (code == ORVA_OK)
        return;
    std::fprintf(stderr, "the library returned %ld\n", code);
    std::exit(1);
}

void show(const char* what, double ratio, double most, const char* unit = "")
{
    const bool good = ratio <= most;
    missed = missed || !good;
    std::printf("%-62s %8.2f%-3s %6.1f%-3s %s\n", what, ratio, unit, most, unit, good ? "" : "MISSED");
    std::fflush(stdout);
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

// The best time of each side over some rounds in turn.
std::pair<double, double> inTurns(Measure measure, int rounds, const std::function<void()>& one,
                                  const std::function<void()>& other)
{
    double best = 1e9;
    double bestOther = 1e9;
    for (int i = 0; i < rounds; ++i) {
        best = std::min(best, measure(one));
        bestOther = std::min(bestOther, measure(other));
    }
    return {best, bestOther};
}

std::string useFolder(const std::string& base, const std::string& name)
{
    const std::string folder = base + "/" + name;
    expect(ORVA_Sim_Reset(folder.c_str()));
    expect(ORVA_Sim_SetCapacity(memory, 1000000));
    return folder;
}

void measureAgainstBare(const std::string& base)
{
    constexpr int count = 50000;
    const std::vector<bare::Row> rows = makeRows(count);
    const std::string folder = useFolder(base, "bare");
    bare::Store plain(base + "/plain.db", true);
    std::size_t next = 0;
    // Each round adds a fifth, so that both stores grow alike.
    const auto added = inTurns(
        secondsOf, 5, [&] { addRows(rows, next, next + count / 5); },
        [&] {
            addBare(plain, rows, next, next + count / 5);
            next += count / 5;
        });
    show("AddAddrRec in transactions of 200 / prepared insert", added.first / added.second, 2.0);
    bare::Store same(folder + "/local.db");
    const auto walked = inTurns(
        processorSecondsOf, 7, [] { walkSet(); }, [&] { same.walk(); });
    show("record set walk, all values / SQLite loop, 50,000", walked.first / walked.second, 1.5);
    std::printf("    (add %.2f us, walk %.2f us a record; bare %.2f and %.2f us)\n", added.first * 5e6 / count,
                walked.first * 1e6 / count, added.second * 5e6 / count, walked.second * 1e6 / count);
}

// A store of some size, and the least that a record of it cost so far.
struct Sized {
    int count;
    std::string folder;
    std::vector<bare::Row> rows;
    double add = 1e9;
    double walk = 1e9;
    double read = 1e9;
};

constexpr int sizeRounds = 5;
constexpr int addedARound = 2000;

Sized fillStore(const std::string& base, int count)
{
    Sized store{count, useFolder(base, std::to_string(count)), makeRows(count + sizeRounds * addedARound)};
    addRows(store.rows, 0, static_cast<std::size_t>(count));
    return store;
}

void measureRound(Sized& store, int round)
{
    expect(ORVA_Sim_Reset(store.folder.c_str()));
    const int there = store.count + round * addedARound;
    const auto first = static_cast<std::size_t>(there);
    store.walk = std::min(store.walk, processorSecondsOf([] { walkSet(); }) / there);
    store.read = std::min(store.read, processorSecondsOf([&] { readEach(there); }) / there);
    store.add = std::min(store.add, secondsOf([&] { addRows(store.rows, first, first + addedARound); }) / addedARound);
}

void measureAgainstSize(const std::string& base)
{
    Sized small = fillStore(base, 10000);
    Sized large = fillStore(base, 100000);
    for (int round = 0; round < sizeRounds; ++round) {
        measureRound(small, round);
        measureRound(large, round);
    }
    show("add, per record, 100,000 / 10,000", large.add / small.add, 1.5);
    show("walk, per record, 100,000 / 10,000", large.walk / small.walk, 1.5);
    show("point read in ascending order, per record, 100,000 / 10,000", large.read / small.read, 1.5);

    // Still on the large store: heap that an open set holds in the middle of its walk.
    const std::size_t before = mallinfo2().uordblks;
    void* set = nullptr;
    expect(ORVA_PBSrv_GetAddrRecList(memory, &set));
    expect(ORVA_PBSrv_AddrRecordSet_MoveFirst(set));
    for (int i = 0; i < 50000; ++i)
        expect(ORVA_PBSrv_AddrRecordSet_MoveNext(set));
    const double held = static_cast<double>(mallinfo2().uordblks) - static_cast<double>(before);
    show("memory held by an open record set of 100,000", held / 1048576, 4.0, "MB");
    expect(ORVA_PBSrv_AddrRecordSet_Release(set));
}

} // namespace

int main()
{
    const std::string base =
        (std::filesystem::temp_directory_path() / ("sdk-benchmark-" + std::to_string(::getpid()))).string();
    std::filesystem::create_directories(base);
    std::printf("%-62s %11s %9s\n", "what / against", "measured", "at most");
    measureAgainstBare(base);
    measureAgainstSize(base);
    ORVA_Sim_Reset(nullptr);
    std::filesystem::remove_all(base);
    return missed ? 1 : 0;
}
