#ifndef BENCHMARKS_SUPPORT_BENCH_H
#define BENCHMARKS_SUPPORT_BENCH_H

#include <ctime>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>

// What all benchmark programs share: two clocks, rounds in which both sides of a ratio take turns, and one form of
// table. No Qt, so that those of the libraries below it can use it too.
namespace bench
{

// Seconds on the clock, and seconds that all threads of the process spent on a processor. On a busy machine the second
// says more, as long as the work waits for nothing.
struct Time {
    double clock;
    double processor;
};

enum class By { Clock, Processor };

inline double seconds(clockid_t id)
{
    timespec at = {};
    clock_gettime(id, &at);
    return static_cast<double>(at.tv_sec) + static_cast<double>(at.tv_nsec) * 1e-9;
}

// Started when made.
class Stopwatch
{
public:
    Stopwatch() : m_start(now()) {}
    Time elapsed() const
    {
        const Time end = now();
        return Time{end.clock - m_start.clock, end.processor - m_start.processor};
    }

private:
    static Time now() { return Time{seconds(CLOCK_MONOTONIC), seconds(CLOCK_PROCESS_CPUTIME_ID)}; }
    Time m_start;
};

inline Time timeOf(const std::function<void()>& work)
{
    const Stopwatch watch;
    work();
    return watch.elapsed();
}

// The shortest times of some rounds: what else runs on the machine can only make them longer.
class Best
{
public:
    void add(const Time& time)
    {
        m_time.clock = std::min(m_time.clock, time.clock);
        m_time.processor = std::min(m_time.processor, time.processor);
    }
    const Time& time() const { return m_time; }

private:
    Time m_time = {1e9, 1e9};
};

inline Time sum(const Time& a, const Time& b)
{
    return Time{a.clock + b.clock, a.processor + b.processor};
}

inline Time perItem(const Time& time, double count)
{
    return Time{time.clock / count, time.processor / count};
}

// Whether the program is to use small counts and few rounds: a look at the figures, not the figures.
inline bool isShort(int argc, char** argv)
{
    return std::any_of(argv + 1, argv + argc, [](const char* text) { return std::strcmp(text, "--short") == 0; });
}

// Whether a part of the program is to run: all do, unless some are named as arguments.
inline bool isWanted(int argc, char** argv, const char* part)
{
    const auto named = [](const char* text) { return text[0] != '-'; };
    return std::none_of(argv + 1, argv + argc, named) ||
           std::any_of(argv + 1, argv + argc, [part](const char* text) { return std::strcmp(text, part) == 0; });
}

// Takes turns, and keeps the best round of each side.
struct Pair {
    Time ours;
    Time base;
};
inline Pair inTurns(int rounds, const std::function<void()>& ours, const std::function<void()>& base)
{
    Best best;
    Best bestBase;
    for (int i = 0; i < rounds; ++i) {
        bestBase.add(timeOf(base));
        best.add(timeOf(ours));
    }
    return Pair{best.time(), bestBase.time()};
}

// Prints one line a ratio as it comes.
class Table
{
public:
    explicit Table(const char* title)
    {
        std::printf("\n%s\n\n| what | against | measured | at most | | |\n|---|---|---|---|---|---|\n", title);
        std::fflush(stdout);
    }

    void ratio(const char* what, const char* against, const Time& ours, const Time& base, double most,
               By by = By::Clock)
    {
        const double clock = ours.clock / base.clock;
        const double processor = ours.processor / base.processor;
        char text[160];
        std::snprintf(text, sizeof text, "clock %.3f : %.3f ms, %.2f; processor %.3f : %.3f ms, %.2f", ours.clock * 1e3,
                      base.clock * 1e3, clock, ours.processor * 1e3, base.processor * 1e3, processor);
        const double measured = by == By::Clock ? clock : processor;
        line(what, against, measured, most, text);
    }

    void line(const char* what, const char* against, double measured, double most, const char* text)
    {
        m_missed = m_missed || measured > most;
        std::printf("| %s | %s | %.2f | %g | %s | %s |\n", what, against, measured, most,
                    measured > most ? "MISSED" : "met", text);
        std::fflush(stdout);
    }

    // A ratio without a bound.
    void relation(const char* what, const char* against, const Time& ours, const Time& base)
    {
        std::printf("| %s | %s | %.2f | | | %.3f : %.3f ms |\n", what, against, ours.clock / base.clock,
                    ours.clock * 1e3, base.clock * 1e3);
        std::fflush(stdout);
    }

    // A figure without a bound.
    void note(const char* what, double value, const char* unit, const char* text = "")
    {
        std::printf("| %s | | %.2f %s | | | %s |\n", what, value, unit, text);
        std::fflush(stdout);
    }

    // The program's exit code.
    int result() const { return m_missed ? 1 : 0; }

private:
    bool m_missed = false;
};

} // namespace bench

#endif // BENCHMARKS_SUPPORT_BENCH_H
