// What the real program holds in memory with its contacts shown, against a bare window with the same cells: the
// proportional set size of each process, once it has come to rest. Both run one after the other, never side by side.

#include <unistd.h>

#include <string>
#include <vector>

#include "benchmarks/support/ContactStore.h"

namespace
{

using bench::Started;

constexpr double mostRatio = 1.15;
constexpr double mostAContact = 1.2; // kB more than the bare window's

// Waits until a program has had nothing to do for a while. Its size alone does not tell: it changes with every other
// process that shares its libraries.
double sizeAtRest(const Started& program)
{
    constexpr double restingShare = 0.02; // of a core
    constexpr int lookMs = 200;
    constexpr int restingLooks = 4;
    constexpr int patience = 150; // looks
    int resting = 0;
    for (int look = 0; resting < restingLooks; ++look) {
        if (look == patience)
            bench::fail("a started program does not come to rest");
        const double spent = program.processor();
        usleep(lookMs * 1000);
        resting = program.processor() - spent < restingShare * lookMs / 1000 ? resting + 1 : 0;
    }
    return program.proportionalSize();
}

double sizeOf(const std::vector<std::string>& command, bench::Marks& marks)
{
    const Started program(command);
    marks.wait("rows");
    return sizeAtRest(program);
}

struct Sizes {
    double ours = 1e9;
    double bare = 1e9;
};

Sizes measure(const std::string& base, int contacts, int rounds, bench::Marks& marks)
{
    const std::string folder = base + "/" + std::to_string(contacts);
    const std::string program = (bench::buildFolder() / "linkhand-test").string();
    const std::string bare = (bench::buildFolder() / "benchmarks/bare_window").string();
    bench::makeStore(folder, contacts);
    Sizes least;
    for (int round = 0; round < rounds; ++round) {
        least.ours = std::min(least.ours, sizeOf({program, "--data-dir", folder}, marks));
        least.bare = std::min(least.bare, sizeOf({bare, folder + "/local.db", marks.path(), "--cells"}, marks));
    }
    return least;
}

void report(bench::Table& table, const char* contacts, const Sizes& sizes)
{
    char text[80];
    std::snprintf(text, sizeof text, "%.1f : %.1f MB, %.1f MB more", sizes.ours, sizes.bare, sizes.ours - sizes.bare);
    table.line((std::string("memory (PSS) of the host with ") + contacts + " contacts shown").c_str(),
               "a bare window with the same cells", sizes.ours / sizes.bare, mostRatio, text);
}

} // namespace

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const int rounds = bench::isShort(argc, argv) ? 1 : 3;
    const std::string base =
        (std::filesystem::temp_directory_path() / ("memory-benchmark-" + std::to_string(getpid()))).string();
    std::filesystem::create_directories(base);
    bench::Marks marks(base + "/marks");
    setenv("LINKHAND_TEST_ROWS", marks.path().c_str(), 1);
    bench::Table table("Memory");
    const Sizes none = measure(base, 0, rounds, marks);
    const Sizes some = measure(base, 10000, rounds, marks);
    const Sizes many = measure(base, 50000, rounds, marks);
    char text[80];
    std::snprintf(text, sizeof text, "%.1f : %.1f MB", none.ours, none.bare);
    table.note("memory of the host without contacts, more than the bare window's", none.ours - none.bare, "MB", text);
    report(table, "10,000", some);
    report(table, "50,000", many);
    const double ours = (many.ours - none.ours) * 1024 / 50000;
    const double bare = (many.bare - none.bare) * 1024 / 50000;
    std::snprintf(text, sizeof text, "%.2f : %.2f kB", ours, bare);
    table.line("memory a contact of 50,000, in kB more than the bare window's", "", ours - bare, mostAContact, text);
    std::filesystem::remove_all(base);
    return table.result();
}
