// Prints a table of ratios: reading and writing contact files with the library against the CSV library's bare parse
// and plain SQLite loops. Each figure is the best of some rounds in which the two sides take turns.

#include <ctime>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

#include <csv.h>

#include "benchmarks/sdk/BareStore.h"
#include "csv/Unicode.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"

namespace
{

constexpr int memory = ORVA_MEMORY_LOCAL;
constexpr int contacts = 50000;
constexpr int transactionSize = 200;
const char* const keys[] = {"Name", "Mobile", "officePhone", "homePhone", "email", "remark"};

bool missed = false;

void expect(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "failed: %s\n", what);
    std::exit(1);
}

enum class Time { Clock, Processor };

double now(Time time)
{
    timespec at = {};
    clock_gettime(time == Time::Clock ? CLOCK_MONOTONIC : CLOCK_PROCESS_CPUTIME_ID, &at);
    return static_cast<double>(at.tv_sec) + static_cast<double>(at.tv_nsec) * 1e-9;
}

double secondsOf(const std::function<void()>& work, Time time)
{
    const double start = now(time);
    work();
    return now(time) - start;
}

void compare(const char* what, double most, int rounds, Time time, const std::function<void()>& ours,
             const std::function<void()>& bare)
{
    double best = 1e9;
    double bestBare = 1e9;
    for (int i = 0; i < rounds; ++i) {
        bestBare = std::min(bestBare, secondsOf(bare, time));
        best = std::min(best, secondsOf(ours, time));
    }
    const double ratio = best / bestBare;
    missed = missed || ratio > most;
    std::printf("%-58s %8.2f %8.1f %8s   %.0f ms against %.0f ms\n", what, ratio, most, ratio > most ? "MISSED" : "",
                best * 1e3, bestBare * 1e3);
    std::fflush(stdout);
}

std::u16string utf16(const std::string& text)
{
    std::u16string out;
    orva::appendUtf16(text, out);
    return out;
}

const unsigned short* api(const std::u16string& text)
{
    return reinterpret_cast<const unsigned short*>(text.c_str());
}

std::vector<bare::Row> makeRows()
{
    std::vector<bare::Row> rows;
    for (int i = 0; i < contacts; ++i) {
        const std::string n = std::to_string(i);
        const char* const names[] = {"Käthe Müller ", "Ольга Соколова ", "John Smith ", "王小明 "};
        const std::string note = i % 3 == 0   ? "Line one of " + n + "\r\nand \"two\", with a comma"
                                 : i % 3 == 1 ? "A note on " + n
                                              : "";
        rows.push_back({utf16(names[i % 4] + n), utf16("+4917" + n), i % 2 == 0 ? utf16("030" + n) : u"",
                        i % 4 == 0 ? utf16("0331" + n) : u"", utf16("contact" + n + "@example.org"), utf16(note)});
    }
    return rows;
}

void fillStore(const std::vector<bare::Row>& rows)
{
    expect(ORVA_PBSrv_BeginTransaction(memory) == ORVA_OK, "begin");
    for (const bare::Row& row : rows) {
        void* record = nullptr;
        expect(ORVA_PBSrv_CreateAddrRecord(memory, &record) == ORVA_OK, "record");
        for (std::size_t i = 0; i < bare::fields; ++i)
            ORVA_PBSrv_AddrRecord_SetValue(record, keys[i], api(row[i]));
        int id = 0;
        expect(ORVA_PBSrv_AddAddrRec(record, &id) == ORVA_OK, "add");
        ORVA_PBSrv_AddrRecord_Release(record);
    }
    expect(ORVA_PBSrv_EndTransaction(memory) == ORVA_OK, "end");
}

void* importFile(const std::u16string& path)
{
    int map[] = {0, 1, 2, 3, 4, 5};
    void* set = nullptr;
    expect(ORVA_PBSrv_ImportFromFile(api(path), map, memory, &set) == ORVA_OK, "import");
    return set;
}

// Import into the store as a client does it: each record is read from the set and added.
void importIntoStore(const std::u16string& path)
{
    void* set = importFile(path);
    int count = 0;
    expect(ORVA_PBSrv_BeginTransaction(memory) == ORVA_OK, "begin");
    for (long code = ORVA_PBSrv_AddrRecordSet_MoveFirst(set); code == ORVA_OK;
         code = ORVA_PBSrv_AddrRecordSet_MoveNext(set)) {
        if (++count % transactionSize == 0) {
            expect(ORVA_PBSrv_EndTransaction(memory) == ORVA_OK, "end");
            expect(ORVA_PBSrv_BeginTransaction(memory) == ORVA_OK, "begin");
        }
        void* record = nullptr;
        expect(ORVA_PBSrv_CreateAddrRecord(memory, &record) == ORVA_OK, "record");
        for (const char* key : keys) {
            unsigned short* value = nullptr;
            ORVA_PBSrv_AddrRecordSet_GetValue(set, key, &value);
            ORVA_PBSrv_AddrRecord_SetValue(record, key, value);
            delete[] value;
        }
        int id = 0;
        expect(ORVA_PBSrv_AddAddrRec(record, &id) == ORVA_OK, "add");
        ORVA_PBSrv_AddrRecord_Release(record);
    }
    expect(ORVA_PBSrv_EndTransaction(memory) == ORVA_OK, "end");
    ORVA_PBSrv_AddrRecordSet_Release(set);
    expect(count == contacts, "all rows");
}

void insertBare(bare::Store& store, const std::vector<bare::Row>& rows)
{
    int count = 0;
    store.run("BEGIN");
    for (const bare::Row& row : rows) {
        if (++count % transactionSize == 0) {
            store.run("COMMIT");
            store.run("BEGIN");
        }
        store.insert(row);
    }
    store.run("COMMIT");
}

void parseBare(const std::string& bytes)
{
    csv_parser parser;
    long counts[2] = {0, 0};
    csv_init(&parser, 0);
    csv_parse(
        &parser, bytes.data(), bytes.size(),
        [](void*, std::size_t length, void* data) { static_cast<long*>(data)[0] += static_cast<long>(length); },
        [](int, void* data) { ++static_cast<long*>(data)[1]; }, counts);
    csv_fini(&parser, nullptr, nullptr, nullptr);
    csv_free(&parser);
    expect(counts[1] == contacts + 1, "bare parse");
}

void writeQuoted(std::FILE* out, const char* text)
{
    if (std::strpbrk(text, "\",\r\n") == nullptr) {
        std::fputs(text, out);
        return;
    }
    std::fputc('"', out);
    for (const char* c = text; *c != 0; ++c) {
        if (*c == '"')
            std::fputc('"', out);
        std::fputc(*c, out);
    }
    std::fputc('"', out);
}

// The yardstick for export: one query over the same store, and the C library's buffered output.
void exportBare(const std::string& database, const std::string& path)
{
    sqlite3* db = nullptr;
    sqlite3_stmt* select = nullptr;
    expect(sqlite3_open(database.c_str(), &db) == SQLITE_OK, "open");
    expect(sqlite3_prepare_v2(db,
                              "SELECT name, mobile, office_phone, home_phone, email, remark FROM records ORDER BY id",
                              -1, &select, nullptr) == SQLITE_OK,
           "prepare");
    std::FILE* out = std::fopen(path.c_str(), "wb");
    std::fputs("\xEF\xBB\xBFName,Mobile,officePhone,homePhone,email,remark\r\n", out);
    while (sqlite3_step(select) == SQLITE_ROW) {
        for (int i = 0; i < bare::fields; ++i) {
            if (i > 0)
                std::fputc(',', out);
            writeQuoted(out, reinterpret_cast<const char*>(sqlite3_column_text(select, i)));
        }
        std::fputs("\r\n", out);
    }
    std::fflush(out);
    fsync(fileno(out));
    std::fclose(out);
    sqlite3_finalize(select);
    sqlite3_close(db);
}

std::string load(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void measure(const std::string& base)
{
    const std::vector<bare::Row> rows = makeRows();
    expect(ORVA_Sim_Reset((base + "/full").c_str()) == ORVA_OK, "reset");
    fillStore(rows);
    std::vector<int> ids;
    for (int id = 1; id <= contacts; ++id)
        ids.push_back(id);
    const std::u16string file = utf16(base + "/contacts.csv");
    const auto exportAll = [&] {
        expect(ORVA_PBSrv_ExportToFile(api(file), ids.data(), contacts, memory) == ORVA_OK, "export");
    };
    exportAll();
    const std::string bytes = load(base + "/contacts.csv");
    exportBare(base + "/full/local.db", base + "/bare.csv");
    expect(bytes == load(base + "/bare.csv"), "the same bytes");

    std::printf("%-58s %8s %8s\n", "what / against", "measured", "at most");
    compare(
        "import, parse and map / bare CSV parse, 50,000", 4.0, 15, Time::Processor,
        [&] { ORVA_PBSrv_AddrRecordSet_Release(importFile(file)); }, [&] { parseBare(bytes); });
    compare("export / SQLite loop writing the same bytes, 50,000", 2.0, 7, Time::Processor, exportAll,
            [&] { exportBare(base + "/full/local.db", base + "/bare.csv"); });

    expect(ORVA_Sim_Reset((base + "/target").c_str()) == ORVA_OK, "reset");
    expect(ORVA_Sim_SetCapacity(memory, 1000000) == ORVA_OK, "capacity");
    bare::Store plain(base + "/plain.db", true);
    compare(
        "import into the store / prepared insert of the same rows", 2.0, 5, Time::Clock, [&] { importIntoStore(file); },
        [&] { insertBare(plain, rows); });
}

} // namespace

int main()
{
    const std::string base =
        (std::filesystem::temp_directory_path() / ("files-benchmark-" + std::to_string(getpid()))).string();
    std::filesystem::create_directories(base);
    measure(base);
    ORVA_Sim_Reset(nullptr);
    std::filesystem::remove_all(base);
    return missed ? 1 : 0;
}
