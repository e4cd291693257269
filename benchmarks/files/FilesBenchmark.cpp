// Prints a table of ratios: reading and writing contact files with the library against the CSV library's bare parse
// and plain SQLite loops. Each figure is the best of some rounds in which the two sides take turns.

#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <csv.h>

#include "base/Unicode.h"
#include "benchmarks/sdk/BareStore.h"
#include "benchmarks/support/Bench.h"
#include "orva/orva_care.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"
#include "orva/orva_store.h"
#include "vcard/CardReader.h"

namespace
{

constexpr int memory = ORVA_MEMORY_LOCAL;
int contacts = 50000;
constexpr int transactionSize = 200;
const char* const keys[] = {"Name", "Mobile", "officePhone", "homePhone", "email", "remark"};

void expect(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "failed: %s\n", what);
    std::exit(2);
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

// What the library takes in by itself.
void takeIn(const std::u16string& path)
{
    ORVA_IMPORT_SETTINGS settings = {};
    void* import = nullptr;
    ORVA_IMPORT_COUNTS counts = {};
    long code = ORVA_Care_OpenImport(memory, api(path), &settings, &import);
    while (code == ORVA_OK)
        code = ORVA_Care_Import_Step(import, transactionSize);
    expect(code == ORVA_E_END, "import");
    expect(ORVA_Care_Import_GetCounts(import, &counts) == ORVA_OK && counts.added == contacts, "all contacts");
    ORVA_Care_Import_Release(import);
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

// The yardstick for cards: the library's own reader over the same bytes, and nothing made of what it reads.
void parseCards(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    orva::CardReader reader(in, orva::CardReport());
    orva::Card card;
    int count = 0;
    while (reader.next(card))
        ++count;
    expect(count == contacts, "all cards");
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

// An import from the file to the store, with everything that comes between.
void measureTaking(const std::string& base, const std::vector<bare::Row>& rows, const std::string& bytes,
                   bare::Store& plain, bench::Table& table)
{
    const std::u16string csv = utf16(base + "/contacts.csv");
    const std::u16string cards = utf16(base + "/contacts.vcf");
    int round = 0;
    const auto freshStore = [&] {
        const std::string folder = base + "/taken" + std::to_string(++round);
        expect(ORVA_Sim_Reset(folder.c_str()) == ORVA_OK, "reset");
        expect(ORVA_Sim_SetCapacity(memory, 1000000) == ORVA_OK, "capacity");
        int size = 0;
        expect(ORVA_PBSrv_GetSize(memory, &size) == ORVA_OK, "open");
    };
    const auto taken = [&](const std::u16string& file, const std::function<void()>& parse) {
        bench::Best ours;
        bench::Best bare;
        for (int i = 0; i < 5; ++i) {
            bare.add(bench::timeOf([&] {
                parse();
                insertBare(plain, rows);
            }));
            freshStore();
            ours.add(bench::timeOf([&] { takeIn(file); }));
        }
        return bench::Pair{ours.time(), bare.time()};
    };
    const bench::Pair ofRows = taken(csv, [&] { parseBare(bytes); });
    table.ratio("import of 50,000 rows by the library, its backup included",
                "the CSV library's bare parse plus a bare prepared insert in transactions of 200", ofRows.ours,
                ofRows.base, 2.0, bench::By::Processor);
    const bench::Pair ofCards = taken(cards, [&] { parseCards(base + "/contacts.vcf"); });
    table.ratio("import of 50,000 cards by the library, its backup included",
                "the library's bare reading of the cards plus the same insert", ofCards.ours, ofCards.base, 3.0,
                bench::By::Processor);
    const bench::Time backup =
        bench::timeOf([] { expect(ORVA_Store_KeepBackup(memory, ORVA_BACKUP_IMPORT) == ORVA_OK, "backup"); });
    table.note("a backup before such an import, with 50,000 contacts there", backup.processor * 1e3, "ms");
}

// The same by a client of the C functions. Each round is into an empty store: the copy that is made before an import
// would otherwise be one of all rounds so far.
void measureStoring(const std::string& base, const std::vector<bare::Row>& rows, const std::u16string& file,
                    bench::Table& table)
{
    bench::Best ours;
    bench::Best bare;
    for (int round = 0; round < 5; ++round) {
        const std::string number = std::to_string(round);
        bare::Store plain(base + "/bare" + number + ".db", true);
        bare.add(bench::timeOf([&] { insertBare(plain, rows); }));
        expect(ORVA_Sim_Reset((base + "/stored" + number).c_str()) == ORVA_OK, "reset");
        expect(ORVA_Sim_SetCapacity(memory, 1000000) == ORVA_OK, "capacity");
        int size = 0;
        expect(ORVA_PBSrv_GetSize(memory, &size) == ORVA_OK, "open");
        ours.add(bench::timeOf([&] { importIntoStore(file); }));
    }
    table.ratio("the same import into the store", "a bare prepared insert of the same rows in transactions of 200",
                ours.time(), bare.time(), 2.0, bench::By::Processor);
}

void measure(const std::string& base, bench::Table& table)
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
    expect(ORVA_Care_Export(memory, api(utf16(base + "/contacts.vcf")), ORVA_FORMAT_CARDS, nullptr, 0, nullptr) ==
               ORVA_OK,
           "cards");
    const std::string bytes = load(base + "/contacts.csv");
    exportBare(base + "/full/local.db", base + "/bare.csv");
    expect(bytes == load(base + "/bare.csv"), "the same bytes");

    const bench::Pair parsed = bench::inTurns(
        15, [&] { ORVA_PBSrv_AddrRecordSet_Release(importFile(file)); }, [&] { parseBare(bytes); });
    table.ratio("CSV import, parse and map 50,000 rows", "the CSV library's bare parse of the same bytes", parsed.ours,
                parsed.base, 4.0, bench::By::Processor);
    const bench::Pair exported =
        bench::inTurns(7, exportAll, [&] { exportBare(base + "/full/local.db", base + "/bare.csv"); });
    table.ratio("export of 50,000", "a plain SQLite loop writing the same bytes", exported.ours, exported.base, 2.0,
                bench::By::Processor);

    expect(ORVA_Sim_Reset((base + "/target").c_str()) == ORVA_OK, "reset");
    expect(ORVA_Sim_SetCapacity(memory, 1000000) == ORVA_OK, "capacity");
    bare::Store plain(base + "/plain.db", true);
    measureTaking(base, rows, bytes, plain, table);
    measureStoring(base, rows, file, table);
}

} // namespace

int main(int argc, char** argv)
{
    const bool quick = bench::isShort(argc, argv);
    contacts /= quick ? 5 : 1;
    const std::string base =
        (std::filesystem::temp_directory_path() / ("files-benchmark-" + std::to_string(getpid()))).string();
    std::filesystem::create_directories(base);
    bench::Table table(quick ? "Contact files, with a fifth of the contacts" : "Contact files");
    measure(base, table);
    ORVA_Sim_Reset(nullptr);
    std::filesystem::remove_all(base);
    return table.result();
}
