// Prints a table of ratios: a sync against vdirsyncer between two folders, and against a bare look at all files. Called
// with "growth": what a contact costs of 1,000 to 200,000.

#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "benchmarks/support/Bench.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"
#include "orva/orva_sync.h"

namespace fs = std::filesystem;

namespace
{

constexpr int memory = ORVA_MEMORY_LOCAL;
constexpr int changes = 10; // in a small sync, half of them on either side

// A file is not trusted by its times as long as it is as young as that.
constexpr std::chrono::seconds settles(3);

void expect(bool good, const char* what)
{
    if (good)
        return;
    std::fprintf(stderr, "failed: %s\n", what);
    std::exit(2);
}

const unsigned short* api(const std::u16string& text)
{
    return reinterpret_cast<const unsigned short*>(text.c_str());
}

std::u16string wide(const std::string& text)
{
    return std::u16string(text.begin(), text.end());
}

void fill(int count)
{
    expect(ORVA_PBSrv_BeginTransaction(memory) == ORVA_OK, "begin");
    for (int i = 0; i < count; ++i) {
        if (i % 200 == 0)
            expect(ORVA_PBSrv_EndTransaction(memory) + ORVA_PBSrv_BeginTransaction(memory) == ORVA_OK, "commit");
        const std::string n = std::to_string(1000000 + i);
        void* record = nullptr;
        int id = 0;
        expect(ORVA_PBSrv_CreateAddrRecord(memory, &record) == ORVA_OK, "create");
        ORVA_PBSrv_AddrRecord_SetValue(record, "Name", api(u"Contact \x4e2d\x6587 " + wide(n)));
        ORVA_PBSrv_AddrRecord_SetValue(record, "Mobile", api(wide("+49170" + n)));
        ORVA_PBSrv_AddrRecord_SetValue(record, "homePhone", api(wide("030" + n)));
        ORVA_PBSrv_AddrRecord_SetValue(record, "email", api(wide("c" + n + "@example.org")));
        ORVA_PBSrv_AddrRecord_SetValue(record, "remark", api(wide("A note on " + n)));
        expect(ORVA_PBSrv_AddAddrRec(record, &id) == ORVA_OK, "add");
        ORVA_PBSrv_AddrRecord_Release(record);
    }
    expect(ORVA_PBSrv_EndTransaction(memory) == ORVA_OK, "end");
}

void synchronise(const std::string& cards)
{
    void* result = nullptr;
    expect(ORVA_Sync_Run(memory, api(wide(cards)), 0, 10000, &result) == ORVA_OK, "sync");
    ORVA_Sync_Result_Release(result);
}

// The clock, and the processor's time of the programs that ran meanwhile.
template <typename Work>
bench::Time timeOfPrograms(const Work& work)
{
    const auto children = [] {
        rusage used = {};
        ::getrusage(RUSAGE_CHILDREN, &used);
        return static_cast<double>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) +
               static_cast<double>(used.ru_utime.tv_usec + used.ru_stime.tv_usec) * 1e-6;
    };
    const double before = children();
    const bench::Time time = bench::timeOf(work);
    return {time.clock, children() - before};
}

// vdirsyncer between the cards and an empty folder.
bench::Time timeOfClient(const std::string& base, const std::string& cards)
{
    const std::string folder = base + "/client";
    fs::remove_all(folder);
    fs::create_directories(folder + "/there");
    std::ofstream(folder + "/config") << "[general]\nstatus_path = \"" << folder << "/status\"\n"
                                      << "[pair book]\na = \"here\"\nb = \"there\"\ncollections = null\n"
                                      << "[storage here]\ntype = \"filesystem\"\nfileext = \".vcf\"\npath = \"" << cards
                                      << "\"\n[storage there]\ntype = \"filesystem\"\nfileext = \".vcf\"\npath = \""
                                      << folder << "/there\"\n";
    const std::string client = "vdirsyncer -v ERROR -c '" + folder + "/config' ";
    expect(std::system((client + "discover >/dev/null </dev/null").c_str()) == 0, "vdirsyncer discover");
    return timeOfPrograms([&] { expect(std::system((client + "sync >/dev/null").c_str()) == 0, "vdirsyncer sync"); });
}

std::string readFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// As clients do it: to disk under another name, and renamed.
void writeFile(const std::string& path, const std::string& text)
{
    const std::string half = path + ".half";
    const int file = ::open(half.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    expect(file >= 0 && ::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size()), "write");
    ::fsync(file);
    ::close(file);
    expect(std::rename(half.c_str(), path.c_str()) == 0, "rename");
}

// What nobody who looks for changes is spared, done as cheaply as it can be.
void lookBare(const std::string& cards, const std::vector<std::string>& changed)
{
    long long sum = 0;
    const std::unique_ptr<DIR, int (*)(DIR*)> opened(::opendir(cards.c_str()), &::closedir);
    while (const dirent* const entry = ::readdir(opened.get())) {
        struct stat state = {};
        ::fstatat(::dirfd(opened.get()), entry->d_name, &state, AT_SYMLINK_NOFOLLOW);
        sum += state.st_mtim.tv_nsec;
    }
    expect(sum != 1, "a look");
    for (std::size_t i = 0; i < changed.size(); ++i) {
        const std::string text = readFile(changed[i]);
        if (i % 2 == 0)
            writeFile(changed[i], text);
    }
}

void changeHere(int id, int round)
{
    void* record = nullptr;
    expect(ORVA_PBSrv_GetAddrRecord(id, memory, &record) == ORVA_OK, "read");
    ORVA_PBSrv_AddrRecord_SetValue(record, "officePhone", api(wide(std::to_string(round + 1))));
    expect(ORVA_PBSrv_UpdateAddrRec(record, id) == ORVA_OK, "update");
    ORVA_PBSrv_AddrRecord_Release(record);
}

void changeThere(const std::string& path, int round)
{
    std::string text = readFile(path);
    const std::size_t at = text.find("NOTE:");
    expect(at != std::string::npos, "a note in the card");
    writeFile(path, text.insert(at + 5, std::to_string(round)));
}

void measureFirst(const std::string& base, const std::string& cards, int count, bench::Table& table)
{
    fill(count);
    const bench::Time ours = bench::timeOf([&] { synchronise(cards); });
    const bench::Time client = timeOfClient(base, cards);
    table.ratio("first sync of 10,000 contacts, with vdirsyncer behind it", "vdirsyncer alone, between two folders",
                bench::sum(ours, client), client, 3.0, bench::By::Processor);
}

void measureSmall(const std::string& cards, int rounds, bench::Table& table)
{
    std::vector<std::string> paths;
    for (const auto& entry : fs::directory_iterator(cards))
        if (entry.path().extension() == ".vcf")
            paths.push_back(entry.path().string());
    bench::Best best;
    bench::Best bestBare;
    bench::Best bestQuiet;
    std::this_thread::sleep_for(settles);
    synchronise(cards);
    for (int round = 0; round < rounds; ++round) {
        std::vector<std::string> changed;
        for (int i = 0; i < changes; ++i)
            changed.push_back(paths[static_cast<std::size_t>(round * changes + i)]);
        bestBare.add(bench::timeOf([&] { lookBare(cards, changed); }));
        // The client's own part, which counts for neither: five changed cards, and five records.
        for (int i = 0; i < changes / 2; ++i) {
            changeThere(changed[static_cast<std::size_t>(2 * i)], round);
            changeHere(round * changes + i + 1, round);
        }
        best.add(bench::timeOf([&] { synchronise(cards); }));
        std::this_thread::sleep_for(settles);
        synchronise(cards);
        bestQuiet.add(bench::timeOf([&] { synchronise(cards); }));
    }
    table.ratio("sync of 10,000 contacts with 10 changes", "a bare look at all files, and those cards read and written",
                best.time(), bestBare.time(), 1.5, bench::By::Processor);
    table.relation("the same without a change", "the same", bestQuiet.time(), bestBare.time());
}

// A line a number of contacts: processor time a contact, without the client's.
int measureGrowth(const std::string& base)
{
    bench::Table table("Growth of syncs, by the processor's time");
    for (const int count : {1000, 10000, 50000, 200000}) {
        const std::string folder = base + "/" + std::to_string(count);
        const std::string cards = folder + "/cards";
        fs::create_directories(folder);
        expect(ORVA_Sim_Reset((folder + "/data").c_str()) == ORVA_OK, "a folder");
        expect(ORVA_Sim_SetCapacity(memory, 1000000) == ORVA_OK, "capacity");
        fill(count);
        const bench::Time first = bench::timeOf([&] { synchronise(cards); });
        std::this_thread::sleep_for(settles);
        synchronise(cards);
        bench::Best again;
        for (int round = 0; round < 5; ++round)
            again.add(bench::timeOf([&] { synchronise(cards); }));
        const std::string contacts = ", " + std::to_string(count) + " contacts";
        table.note(("first sync" + contacts).c_str(), first.processor * 1e6 / count, "us", "a contact");
        table.note(("sync without a change" + contacts).c_str(), again.time().processor * 1e6 / count, "us",
                   "a contact");
        ORVA_Sim_Reset(nullptr);
        fs::remove_all(folder);
    }
    return table.result();
}

} // namespace

int main(int argc, char** argv)
{
    const bool quick = bench::isShort(argc, argv);
    const std::string base = (fs::temp_directory_path() / ("sync-benchmark-" + std::to_string(::getpid()))).string();
    const std::string cards = base + "/cards";
    fs::create_directories(base);
    if (argc > 1 && std::strcmp(argv[1], "growth") == 0) {
        const int result = measureGrowth(base);
        fs::remove_all(base);
        return result;
    }
    expect(ORVA_Sim_Reset((base + "/data").c_str()) == ORVA_OK, "a folder");
    bench::Table table(quick ? "Sync, with a tenth of the contacts" : "Sync");
    measureFirst(base, cards, quick ? 1000 : 10000, table);
    measureSmall(cards, quick ? 2 : 7, table);
    ORVA_Sim_Reset(nullptr);
    fs::remove_all(base);
    return table.result();
}
