// Times the start of the real program, from the fork to the first painting of its window, with contacts against an
// empty store. Both take turns, and the best and the median of their rounds count.

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "benchmarks/support/Bench.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"

namespace
{

const int patienceMs = 60000;

[[noreturn]] void fail(const std::string& what)
{
    std::fprintf(stderr, "failed: %s\n", what.c_str());
    std::exit(2);
}

void expect(long code)
{
    if (code != ORVA_OK)
        fail("the library returned " + std::to_string(code));
}

std::u16string utf16(const std::string& text)
{
    return std::u16string(text.begin(), text.end());
}

void set(void* record, const char* key, const std::string& text)
{
    const std::u16string value = utf16(text);
    expect(ORVA_PBSrv_AddrRecord_SetValue(record, key, reinterpret_cast<const unsigned short*>(value.c_str())));
}

void makeStore(const std::string& folder, int contacts)
{
    expect(ORVA_Sim_Reset(folder.c_str()));
    expect(ORVA_PBSrv_BeginTransaction(ORVA_MEMORY_LOCAL));
    for (int i = 0; i < contacts; ++i) {
        const std::string n = std::to_string(i);
        void* record = nullptr;
        int id = 0;
        expect(ORVA_PBSrv_CreateAddrRecord(ORVA_MEMORY_LOCAL, &record));
        set(record, "Name", "Contact number " + n);
        set(record, "Mobile", "+4917" + n);
        set(record, "officePhone", "030" + n);
        set(record, "homePhone", "040" + n);
        set(record, "email", "c" + n + "@example.org");
        set(record, "remark", "A note on " + n);
        expect(ORVA_PBSrv_AddAddrRec(record, &id));
        expect(ORVA_PBSrv_AddrRecord_Release(record));
    }
    expect(ORVA_PBSrv_EndTransaction(ORVA_MEMORY_LOCAL));
    expect(ORVA_Sim_Reset(nullptr));
}

// Starts the program on a data folder, waits for its mark in the pipe, and ends it.
double secondsToWindow(const std::string& program, const std::string& folder, int pipe)
{
    const double start = bench::seconds(CLOCK_MONOTONIC);
    const pid_t child = fork();
    if (child < 0)
        fail("fork");
    if (child == 0) {
        execl(program.c_str(), program.c_str(), "--data-dir", folder.c_str(), static_cast<char*>(nullptr));
        _exit(127);
    }
    pollfd wait = {pipe, POLLIN, 0};
    if (poll(&wait, 1, patienceMs) != 1)
        fail(program + " shows no window");
    const double shown = bench::seconds(CLOCK_MONOTONIC);
    char text[64];
    if (read(pipe, text, sizeof text) <= 0)
        fail("the pipe");
    kill(child, SIGTERM);
    int status = 0;
    if (waitpid(child, &status, 0) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        fail(program + " did not end well");
    return shown - start;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double least(const std::vector<double>& values)
{
    return *std::min_element(values.begin(), values.end());
}

} // namespace

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const bool quick = bench::isShort(argc, argv);
    const int contacts = 10000;
    const int rounds = quick ? 5 : 21;
    const std::string program =
        (std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path() / "linkhand-test").string();
    const std::string base =
        (std::filesystem::temp_directory_path() / ("start-benchmark-" + std::to_string(getpid()))).string();
    std::filesystem::create_directories(base);
    const std::string mark = base + "/shown";
    if (mkfifo(mark.c_str(), 0600) != 0)
        fail("mkfifo");
    setenv("LINKHAND_TEST_SHOWN", mark.c_str(), 1);
    const int pipe = open(mark.c_str(), O_RDWR | O_CLOEXEC);
    const std::string full = base + "/full";
    const std::string empty = base + "/empty";
    makeStore(full, contacts);
    makeStore(empty, 0);
    // The first start of each brings files into memory and makes the ones that are not there.
    secondsToWindow(program, full, pipe);
    secondsToWindow(program, empty, pipe);

    std::vector<double> withContacts;
    std::vector<double> without;
    for (int round = 0; round < rounds; ++round) {
        without.push_back(secondsToWindow(program, empty, pipe));
        withContacts.push_back(secondsToWindow(program, full, pipe));
    }
    bench::Table table("Start of the host");
    char text[120];
    std::snprintf(text, sizeof text, "%.0f ms : %.0f ms, best of %d; medians %.0f and %.0f ms, ratio %.2f",
                  least(withContacts) * 1e3, least(without) * 1e3, rounds, median(withContacts) * 1e3,
                  median(without) * 1e3, median(withContacts) / median(without));
    table.line("start of the host to the window on screen, 10,000 contacts", "an empty store",
               least(withContacts) / least(without), 1.3, text);
    std::filesystem::remove_all(base);
    return table.result();
}
