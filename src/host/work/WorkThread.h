#ifndef LINKHAND_HOST_WORKTHREAD_H
#define LINKHAND_HOST_WORKTHREAD_H

#include <QObject>

#include <functional>
#include <thread>

// Does one piece of work after the other on a thread of its own, which is joined: the thread sanitizer does not see the
// end of a QThread. Lives on the user-interface thread, which alone calls its functions.
class WorkThread : public QObject
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

private slots:
    void OnDone();

private:
    void join();

    std::thread m_thread;
    bool m_bBusy;
    bool m_bRun;
};

#endif // LINKHAND_HOST_WORKTHREAD_H
