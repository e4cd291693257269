// Times the start of the real program, from the fork on: up to the first painting of its window, and up to the last row
// on the screen, against an empty store and against a bare window in a fresh process. All sides take turns, and the
// best and the median of their rounds count. On the X server that there is (DISPLAY), and offscreen.

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "benchmarks/support/ContactStore.h"

namespace
{

using bench::Started;

constexpr int contacts = 10000;
constexpr int aimMs = 250;

struct Starts {
    std::vector<double> clock;
    std::vector<double> processor;
};

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double least(const std::vector<double>& values)
{
    return *std::min_element(values.begin(), values.end());
}

// Starts a program, waits for its mark in the pipe, and ends it.
void start(const std::vector<std::string>& command, bench::Marks& marks, const char* mark, Starts& starts)
{
    const double begin = bench::seconds(CLOCK_MONOTONIC);
    const Started program(command);
    marks.wait(mark);
    starts.clock.push_back(bench::seconds(CLOCK_MONOTONIC) - begin);
    starts.processor.push_back(program.processor());
}

struct Sides {
    Starts empty;
    Starts full;
    Starts rows;
    Starts bare;
};

void report(bench::Table& table, const std::string& where, const Sides& sides)
{
    char text[200];
    const auto line = [&](const std::string& what, const char* against, const Starts& ours, const Starts& base,
                          double most) {
        std::snprintf(text, sizeof text,
                      "%.0f : %.0f ms, medians %.0f : %.0f ms, processor %.0f : %.0f ms, %.2f; best of %zu",
                      least(ours.clock) * 1e3, least(base.clock) * 1e3, median(ours.clock) * 1e3,
                      median(base.clock) * 1e3, least(ours.processor) * 1e3, least(base.processor) * 1e3,
                      least(ours.processor) / least(base.processor), ours.clock.size());
        table.line((what + where).c_str(), against, least(ours.clock) / least(base.clock), most, text);
    };
    line("start of the host to its window, 10,000 contacts, ", "an empty store", sides.full, sides.empty, 1.3);
    line("start of the host to the last row, 10,000 contacts, ",
         "a bare window of the same widgets in a fresh process, filled from SQLite", sides.rows, sides.bare, 1.5);
    table.note(("start of the host to the last row, " + where).c_str(), least(sides.rows.clock) * 1e3, "ms",
               ("aim " + std::to_string(aimMs) + " ms").c_str());
}

void measure(bench::Table& table, const std::string& base, const char* platform, int rounds, bench::Marks& marks)
{
    setenv("QT_QPA_PLATFORM", platform, 1);
    const std::string program = (bench::buildFolder() / "linkhand-test").string();
    const std::string bare = (bench::buildFolder() / "benchmarks/bare_window").string();
    const std::string full = base + "/full";
    const std::string empty = base + "/empty";
    Sides sides;
    // The first start of each brings files into memory and makes the ones that are not there.
    for (int round = -1; round < rounds; ++round) {
        setenv("LINKHAND_TEST_SHOWN", marks.path().c_str(), 1);
        start({program, "--data-dir", empty}, marks, "shown", sides.empty);
        start({program, "--data-dir", full}, marks, "shown", sides.full);
        unsetenv("LINKHAND_TEST_SHOWN");
        setenv("LINKHAND_TEST_ROWS", marks.path().c_str(), 1);
        start({program, "--data-dir", full}, marks, "rows", sides.rows);
        unsetenv("LINKHAND_TEST_ROWS");
        start({bare, full + "/local.db", marks.path()}, marks, "rows", sides.bare);
        if (round < 0)
            sides = Sides();
    }
    report(table, std::strcmp(platform, "xcb") == 0 ? "on an X server" : platform, sides);
}

} // namespace

int main(int argc, char** argv)
{
    const int rounds = bench::isShort(argc, argv) ? 5 : 21;
    const std::string base =
        (std::filesystem::temp_directory_path() / ("start-benchmark-" + std::to_string(getpid()))).string();
    std::filesystem::create_directories(base);
    bench::makeStore(base + "/full", contacts);
    bench::makeStore(base + "/empty", 0);
    bench::Marks marks(base + "/marks");
    bench::Table table("Start of the host");
    if (std::getenv("DISPLAY") != nullptr)
        measure(table, base, "xcb", rounds, marks);
    measure(table, base, "offscreen", rounds, marks);
    std::filesystem::remove_all(base);
    return table.result();
}
