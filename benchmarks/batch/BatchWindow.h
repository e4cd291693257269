#ifndef BENCHMARKS_BATCH_BATCHWINDOW_H
#define BENCHMARKS_BATCH_BATCHWINDOW_H

#include <QCoreApplication>
#include <QMutex>
#include <QThread>

#include <atomic>

#include "benchmarks/support/Bench.h"
#include "window/AddrBookDlg.h"

// The phonebook's window on the real libraries, and what a user does with it in these measurements.
class BatchWindow
{
public:
    BatchWindow();
    ~BatchWindow();

    AddrBookDlg& dialog() { return m_dialog; }

    // Shows a memory's contacts: 0 card, 1 device, 4 PC.
    void show(int memory);
    int rows();

    // Each runs up to the end of the batch and of the table's reload behind it.
    bench::Time deleteAll();
    bench::Time add(const QList<QStringList>& contacts);
    bench::Time importFile(const QString& file); // from OK in the field map on

    // Drops all contacts of the PC on the card or the device: the time up to the worker's start, and the whole.
    void dropAll(int memory, bench::Time& reading, bench::Time& whole);

private:
    void waitForEnd();
    AddrBookDlg m_dialog;
};

// Asks the event loop again and again for a sign of life, from a thread of its own, and keeps the longest it took.
class Patience : public QObject
{
public:
    Patience();
    ~Patience() override;
    double longestSeconds() const;

protected:
    bool event(QEvent* event) override;

private:
    class Asker : public QThread
    {
    public:
        Patience* target = nullptr;
        std::atomic<bool> stop{false};

    protected:
        void run() override;
    };
    Asker m_asker;
    std::atomic<bool> m_answered;
    std::atomic<double> m_asked;
    double m_longest;
};

#endif // BENCHMARKS_BATCH_BATCHWINDOW_H
