// Prints one table of growth: what a record costs in phonebooks of 1,000 to 200,000 contacts, a line an operation. In
// processor time, the best of some rounds in which the sizes take turns, so that no size meets a quieter machine. In a
// folder in memory, where there is one, since commits would mostly wait for a disk.

#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <numeric>
#include <string>
#include <vector>

#include "benchmarks/sdk/BareStore.h"
#include "benchmarks/support/Bench.h"
#include "orva/orva_care.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"
#include "orva/orva_store.h"

namespace
{

constexpr int memory = ORVA_MEMORY_LOCAL;
constexpr int transactionSize = 200;
constexpr double mostGrowth = 1.1;
const char* const keys[] = {"Name", "Mobile", "officePhone", "homePhone", "email", "remark"};

void expect(long code, const char* what)
{
    if (code == ORVA_OK)
        return;
    std::fprintf(stderr, "failed with %ld: %s\n", code, what);
    std::exit(2);
}

std::u16string utf16(const std::string& text)
{
    return std::u16string(text.begin(), text.end());
}

const unsigned short* api(const std::u16string& text)
{
    return reinterpret_cast<const unsigned short*>(text.c_str());
}

// The same lengths in each size, and nobody twice but one in fifty.
std::array<std::u16string, 6> contact(int i)
{
    const int person = i % 50 == 49 ? i - 1 : i;
    const std::string n = std::to_string(1000000 + person);
    const char* const given[] = {"Anna", "Bert", "Carla", "Dora", "Emil", "Frida", "Georg"};
    return {utf16(std::string(given[person % 7]) + " Number " + n),
            utf16("+49170" + n),
            utf16("030" + n),
            utf16("0331" + n),
            utf16("contact" + n + "@example.org"),
            utf16("A note on " + std::to_string(1000000 + i))};
}

using Contacts = std::vector<std::array<std::u16string, 6>>;

void addSome(const Contacts& contacts)
{
    expect(ORVA_PBSrv_BeginTransaction(memory), "begin");
    for (const auto& values : contacts) {
        void* record = nullptr;
        int id = 0;
        expect(ORVA_PBSrv_CreateAddrRecord(memory, &record), "create");
        for (std::size_t field = 0; field < values.size(); ++field)
            expect(ORVA_PBSrv_AddrRecord_SetValue(record, keys[field], api(values[field])), "set");
        expect(ORVA_PBSrv_AddAddrRec(record, &id), "add");
        expect(ORVA_PBSrv_AddrRecord_Release(record), "release");
    }
    expect(ORVA_PBSrv_EndTransaction(memory), "end");
}

// Without the time that the contacts' texts take.
bench::Time addAll(int count)
{
    bench::Time time = {};
    Contacts contacts;
    for (int i = 0; i < count; ++i) {
        contacts.push_back(contact(i));
        if (i % transactionSize == transactionSize - 1 || i == count - 1) {
            time = bench::sum(time, bench::timeOf([&contacts] { addSome(contacts); }));
            contacts.clear();
        }
    }
    return time;
}

void walk(int count)
{
    void* set = nullptr;
    int walked = 0;
    expect(ORVA_PBSrv_GetAddrRecList(memory, &set), "list");
    for (long moved = ORVA_PBSrv_AddrRecordSet_MoveFirst(set); moved == ORVA_OK;
         moved = ORVA_PBSrv_AddrRecordSet_MoveNext(set)) {
        for (const char* const key : keys) {
            unsigned short* value = nullptr;
            expect(ORVA_PBSrv_AddrRecordSet_GetValue(set, key, &value), "value");
            delete[] value;
        }
        ++walked;
    }
    expect(ORVA_PBSrv_AddrRecordSet_Release(set), "release");
    expect(walked == count ? ORVA_OK : ORVA_E_INTERNAL, "every record is walked over");
}

void exportAll(const std::u16string& path, int count)
{
    std::vector<int> ids(static_cast<std::size_t>(count));
    std::iota(ids.begin(), ids.end(), 1);
    expect(ORVA_PBSrv_ExportToFile(api(path), ids.data(), count, memory), "export");
}

void importAll(const std::u16string& path, int count)
{
    ORVA_IMPORT_SETTINGS settings = {};
    ORVA_IMPORT_COUNTS counts = {};
    void* import = nullptr;
    long code = ORVA_Care_OpenImport(memory, api(path), &settings, &import);
    while (code == ORVA_OK)
        code = ORVA_Care_Import_Step(import, transactionSize);
    expect(code == ORVA_E_END ? ORVA_OK : code, "import");
    expect(ORVA_Care_Import_GetCounts(import, &counts), "counts");
    expect(counts.added == count ? ORVA_OK : ORVA_E_INTERNAL, "every row is taken in");
    ORVA_Care_Import_Release(import);
}

void findDuplicates()
{
    ORVA_DUPLICATE* entries = nullptr;
    int count = 0;
    expect(ORVA_Care_GetDuplicates(memory, &entries, &count), "duplicates");
    expect(count > 0 ? ORVA_OK : ORVA_E_INTERNAL, "somebody is there twice");
    expect(ORVA_Care_DuplicatesRelease(memory, &entries), "release");
}

enum Operation { Walk, BareWalk, Add, Import, Backup, Duplicates, Export, Operations };
const char* const names[] = {"walk over a record set, all values",
                             "the same by a plain SQLite loop",
                             "`AddAddrRec` in transactions of 200",
                             "import of CSV by the library, its backup included",
                             "backup",
                             "search for duplicates",
                             "export to CSV"};

struct Size {
    int count;
    std::array<bench::Best, Operations> best;
};

void useFreshFolder(const std::string& folder)
{
    std::filesystem::remove_all(folder);
    expect(ORVA_Sim_Reset(folder.c_str()), "reset");
    expect(ORVA_Sim_SetCapacity(memory, 1000000), "capacity");
    int size = 0;
    expect(ORVA_PBSrv_GetSize(memory, &size), "open");
}

void measureRound(Size& size, const std::string& base)
{
    const std::u16string file = utf16(base + "/contacts.csv");
    const auto take = [&size](Operation operation, const std::function<void()>& work) {
        size.best[operation].add(bench::perItem(bench::timeOf(work), size.count));
    };
    useFreshFolder(base + "/filled");
    size.best[Add].add(bench::perItem(addAll(size.count), size.count));
    take(Walk, [&] { walk(size.count); });
    bare::Store plain(base + "/filled/local.db");
    take(BareWalk, [&] { plain.walk(); });
    take(Backup, [] { expect(ORVA_Store_KeepBackup(memory, ORVA_BACKUP_IMPORT), "backup"); });
    take(Duplicates, [] { findDuplicates(); });
    take(Export, [&] { exportAll(file, size.count); });
    useFreshFolder(base + "/imported");
    take(Import, [&] { importAll(file, size.count); });
}

bool print(const std::vector<Size>& sizes)
{
    std::printf("\nGrowth of the SDK, processor time a record in microseconds\n\n| what |");
    for (const Size& size : sizes)
        std::printf(" %d |", size.count);
    std::printf(" last two | at most | |\n|---|");
    for (std::size_t i = 0; i < sizes.size() + 3; ++i)
        std::printf("---|");
    bool met = true;
    for (int operation = 0; operation < Operations; ++operation) {
        const auto spent = [operation](const Size& size) {
            return size.best[static_cast<std::size_t>(operation)].time().processor;
        };
        std::printf("\n| %s |", names[operation]);
        for (const Size& size : sizes)
            std::printf(" %.2f |", spent(size) * 1e6);
        const double growth = spent(sizes.back()) / spent(sizes[sizes.size() - 2]);
        // What grows in a plain loop too, such as the part of the file that no cache of the processor holds, is not
        // ours.
        if (operation == BareWalk) {
            std::printf(" %.2f | | |", growth);
            continue;
        }
        met = met && growth <= mostGrowth;
        std::printf(" %.2f | %.1f | %s |", growth, mostGrowth, growth <= mostGrowth ? "met" : "MISSED");
    }
    std::printf("\n");
    return met;
}

} // namespace

int main(int argc, char** argv)
{
    const bool quick = bench::isShort(argc, argv);
    const int part = quick ? 10 : 1;
    const int rounds = quick ? 2 : 3;
    const std::filesystem::path inMemory = "/dev/shm";
    const std::string base =
        ((access(inMemory.c_str(), W_OK) == 0 ? inMemory : std::filesystem::temp_directory_path()) /
         ("growth-benchmark-" + std::to_string(::getpid())))
            .string();
    std::filesystem::create_directories(base);
    std::vector<Size> sizes;
    for (const int count : {1000, 10000, 50000, 200000})
        sizes.push_back(Size{count / part, {}});
    for (int round = 0; round < rounds; ++round) {
        for (Size& size : sizes)
            measureRound(size, base);
    }
    ORVA_Sim_Reset(nullptr);
    std::filesystem::remove_all(base);
    return print(sizes) ? 0 : 1;
}
