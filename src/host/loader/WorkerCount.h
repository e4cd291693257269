#ifndef LINKHAND_HOST_WORKERCOUNT_H
#define LINKHAND_HOST_WORKERCOUNT_H

#include <QHash>
#include <QString>
#include <QStringList>

#include <atomic>
#include <mutex>

// The running workers of all plug-ins, counted by place of work so that one that does not end can be named. Any
// thread.
class WorkerCount
{
public:
    // The last worker counts itself down shortly before it ends.
    ~WorkerCount() { const std::lock_guard<std::mutex> locker(m_mutex); }

    void Increment(const QString& strFile, const QString& strFunction);

    // Counting down what was never counted up changes nothing.
    void Decrement(const QString& strFile, const QString& strFunction);

    int Running() const { return m_iRunning.load(); }

    // "file: function" of each that runs.
    QStringList Names() const;

private:
    std::atomic<int> m_iRunning{0};
    mutable std::mutex m_mutex;
    QHash<QString, int> m_hashNames;
};

#endif // LINKHAND_HOST_WORKERCOUNT_H
