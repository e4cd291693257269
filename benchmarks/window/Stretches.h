#ifndef BENCHMARKS_WINDOW_STRETCHES_H
#define BENCHMARKS_WINDOW_STRETCHES_H

#include <QObject>
#include <QTimerEvent>

#include <algorithm>

#include "benchmarks/support/Bench.h"

// How long the event loop is away at a time: between two ticks of a timer, which comes in turn with the user's keys.
// Time on the processor, of this thread, says the same on a busy machine.
class Stretches : public QObject
{
public:
    Stretches() : m_timer(startTimer(1, Qt::PreciseTimer)), m_last(now()) {}

    // The longest so far, the one in hand included.
    bench::Time longest() const
    {
        const bench::Time at = now();
        return bench::Time{std::max(m_longest.clock, at.clock - m_last.clock),
                           std::max(m_longest.processor, at.processor - m_last.processor)};
    }

protected:
    void timerEvent(QTimerEvent*) override { tick(); }

private:
    static bench::Time now()
    {
        return bench::Time{bench::seconds(CLOCK_MONOTONIC), bench::seconds(CLOCK_THREAD_CPUTIME_ID)};
    }
    void tick()
    {
        const bench::Time at = now();
        m_longest.clock = std::max(m_longest.clock, at.clock - m_last.clock);
        m_longest.processor = std::max(m_longest.processor, at.processor - m_last.processor);
        m_last = at;
    }

    int m_timer;
    bench::Time m_last;
    bench::Time m_longest = {0, 0};
};

#endif // BENCHMARKS_WINDOW_STRETCHES_H
