#ifndef LINKHAND_HOST_CARE_CARERUNNER_H
#define LINKHAND_HOST_CARE_CARERUNNER_H

#include <QThread>

#include <atomic>
#include <memory>

#include "care/CareTask.h"

class CareSection;

// Runs the tasks of the care page's sections, one at a time, on this thread. Lives on the user-interface thread, which
// alone calls its functions.
class CareRunner : public QThread
{
    Q_OBJECT

public:
    explicit CareRunner(QObject* pParent);

    // Cancels what runs and waits for its step.
    ~CareRunner() override;

    // Takes a task of a section over and begins it: at once, or when what reads is cancelled and at its end. False, and
    // the task is gone, while another one writes or waits to.
    bool Begin(CareTask* pTask, CareSection* pSection);

    // What runs, or null.
    const CareTask* Current() const { return m_pTask.get(); }
    void CancelCurrent();

signals:
    void begun();

    // After the section has taken what its task found.
    void ended(bool bWrote);

protected:
    void run() override;

private slots:
    void OnFinished();

private:
    std::unique_ptr<CareTask> m_pTask;
    std::unique_ptr<CareTask> m_pNext;
    CareSection* m_pSection;
    CareSection* m_pNextSection;

    // Publishes what run() found to whoever saw its end. QThread does so too, but not visibly for the thread sanitizer.
    std::atomic<int> m_iRuns;
};

#endif // LINKHAND_HOST_CARE_CARERUNNER_H
