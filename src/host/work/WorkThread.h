#ifndef LINKHAND_HOST_WORKTHREAD_H
#define LINKHAND_HOST_WORKTHREAD_H

#include <QThread>

#include <atomic>
#include <functional>

// Does one piece of work after the other on this thread. Lives on the user-interface thread, which alone calls its
// functions.
class WorkThread : public QThread
{
    Q_OBJECT

public:
    explicit WorkThread(QObject* pParent = nullptr);

    // Waits for the work.
    ~WorkThread() override;

    // The piece before has ended.
    void Begin(const std::function<void()>& work);

    // Whether ended() is still to come.
    bool IsBusy() const { return m_bBusy; }

    // Whether the last piece was done: the system may have no thread to give.
    bool HasRun() const { return m_bRun; }

signals:
    // What the work wrote can be read. Comes for each piece, never from within Begin().
    void ended();

protected:
    void run() override;

private slots:
    void OnFinished();

private:
    std::function<void()> m_work;
    bool m_bBusy;
    bool m_bRun;

    // Publishes what run() wrote to whoever saw its end. QThread does so too, but not visibly for the thread sanitizer.
    std::atomic<int> m_iRuns;
};

#endif // LINKHAND_HOST_WORKTHREAD_H
