#ifndef LINKHAND_HOST_CARE_CARERUNNER_H
#define LINKHAND_HOST_CARE_CARERUNNER_H

#include <QObject>

#include <memory>

#include "care/CareTask.h"
#include "work/WorkThread.h"

class CareSection;

// Runs the tasks of the care page's sections, one at a time, on a thread of its own. Lives on the user-interface
// thread, which alone calls its functions.
class CareRunner : public QObject
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

private slots:
    void OnWorkEnded();

private:
    void run();

    std::unique_ptr<CareTask> m_pTask;
    std::unique_ptr<CareTask> m_pNext;
    CareSection* m_pSection;
    CareSection* m_pNextSection;
    WorkThread m_thread; // goes first
};

#endif // LINKHAND_HOST_CARE_CARERUNNER_H
