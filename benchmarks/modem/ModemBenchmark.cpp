// Prints a table: reading 250 entries of a card in the simulated modem against the bare exchange of the same bytes, a
// whole program that lists them against gammu, a modem that is plugged against ModemManager's own listing of it, and
// what a modem costs while nothing happens.

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <thread>

#include "BareExchange.h"
#include "benchmarks/support/Bench.h"
#include "events/EventHub.h"
#include "modem/ModemHardware.h"
#include "tests/support/modem/ModemProcess.h"
#include "tests/support/modem/Options.h"
#ifdef FOLLOWER
#include "PlugTimes.h"
#endif

using namespace orva;

namespace
{

constexpr int entries = 250;
constexpr int lineSpeed = 115200;
constexpr int readyWithin = 60;

// Everything that the program asks of a card that it reads for the first time.
void readCard(Channel& channel)
{
    AtDialog dialog(channel);
    AtPhonebook book(dialog);
    if (!book.start() || book.cardState() != CardState::Ready)
        throw std::runtime_error("the modem does not answer");
    const PhonebookStorage storage = book.open("SM");
    if (book.readAll(storage).size() != entries)
        throw std::runtime_error("the card is not read in whole");
    book.finish();
}

void measureReading(bench::Table& table, const char* what, int baud, int rounds)
{
    std::vector<std::string> options = {"--entries", std::to_string(entries)};
    if (baud > 0)
        options.insert(options.end(), {"--baud", std::to_string(baud)});
    const modemsim::ModemProcess modem(options);
    Tty port(modem.portPath(0), -1);
    readCard(port); // what it says of itself differs the first time
    bare::Recorder recorder(port);
    readCard(recorder);
    const bench::Pair pair = bench::inTurns(
        rounds, [&port] { readCard(port); }, [&] { bare::exchange(port, recorder.steps()); });
    table.ratio(what, "the bare exchange of the same bytes", pair.ours, pair.base, 1.2);
}

void measurePrograms(bench::Table& table, const std::string& folder, int rounds)
{
    const modemsim::ModemProcess modem({"--entries", std::to_string(entries)});
    const std::string& port = modem.portPath(0);
    const std::string config = folder + "/gammurc";
    std::ofstream(config) << "[gammu]\ndevice = " << port
                          << "\nconnection = at115200\nsynchronizetime = no\nuse_locking = no\n";
    const auto run = [](const std::vector<std::string>& command) {
        const modemsim::Outcome outcome = modemsim::runProgram(command, {}, {}, Milliseconds(120000));
        if (outcome.status != 0)
            throw std::runtime_error(command[0] + ": " + outcome.output);
    };
    const bench::Pair pair = bench::inTurns(
        rounds,
        [&] {
            run({PBCTL, "--data-dir", folder + "/data", "--hardware", port, "--memory", "card", "list"});
        },
        [&] {
            run({"gammu", "-c", config, "getallmemory", "SM"});
        });
    table.ratio("pbctl lists 250 entries of a card", "gammu", pair.ours, pair.base, 0.1);
}

#ifdef FOLLOWER
void measurePlug(bench::Table& table, const std::string& folder, int rounds)
{
    modemsim::BenchSetup setup;
    setup.roles = {modemsim::Role::Primary, modemsim::Role::Secondary, modemsim::Role::Free};
    std::string words[] = {"", "--entries", std::to_string(entries)};
    char* arguments[] = {words[0].data(), words[1].data(), words[2].data()};
    int at = 1;
    modemsim::takeOption(3, arguments, at, setup.plan);
    modemsim::ModemManagerBench machine(setup);
    plug::Client client(machine, folder + "/follower");
    plug::Times best = {1e9, 0};
    for (int round = 0; round < rounds; ++round) {
        const plug::Times times = client.plug(entries);
        best = times.rows - times.listed < best.rows - best.listed ? times : best;
        client.unplug();
    }
    char text[80];
    std::snprintf(text, sizeof text, "rows after %.2f s, listed after %.2f s", best.rows, best.listed);
    table.line("from the plug of a modem to the rows of its card, in seconds more", "ModemManager's own listing",
               best.rows - best.listed, 1, text);
}

#endif

void measureIdle(bench::Table& table, const std::string& folder, int seconds)
{
    const modemsim::ModemProcess modem({"--entries", std::to_string(entries)});
    EventHub events;
    ModemHardware hardware(folder, modem.portPath(0), events);
    hardware.status();
    if (!hardware.state().waitLoaded(ORVA_MEMORY_CARD, std::chrono::seconds(readyWithin)) ||
        !hardware.state().waitLoaded(ORVA_MEMORY_DEVICE, std::chrono::seconds(readyWithin)))
        throw std::runtime_error("the modem is not read");
    const bench::Stopwatch watch;
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
    const bench::Time time = watch.elapsed();
    char text[80];
    std::snprintf(text, sizeof text, "%.2f ms in %.0f s", time.processor * 1e3, time.clock);
    table.line("processor time with a modem while nothing happens, in percent of a core", "",
               time.processor / time.clock * 100, 0.1, text);
}

} // namespace

int main(int argc, char** argv)
{
    const bool quick = bench::isShort(argc, argv);
    const std::string folder =
        (std::filesystem::temp_directory_path() / ("modem-benchmark-" + std::to_string(::getpid()))).string();
    std::filesystem::create_directories(folder);
    bench::Table table("Modem");
    try {
        // Each takes a millisecond or two, and a busy machine needs many to show its best.
        measureReading(table, "reading 250 entries of a card, over USB", 0, 400);
        measureReading(table, "the same at 115,200 baud", lineSpeed, quick ? 1 : 4);
        measurePrograms(table, folder, quick ? 1 : 3);
#ifdef FOLLOWER
        measurePlug(table, folder, quick ? 1 : 5);
#endif
        measureIdle(table, folder, quick ? 6 : 31);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "modem_benchmark: %s\n", failure.what());
        std::filesystem::remove_all(folder);
        return 2;
    }
    std::filesystem::remove_all(folder);
    return table.result();
}
