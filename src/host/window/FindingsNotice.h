#ifndef LINKHAND_HOST_FINDINGSNOTICE_H
#define LINKHAND_HOST_FINDINGSNOTICE_H

#include <QObject>
#include <QTimer>

#include "findings/FindingList.h"

class StatusArea;
class WorkerCount;

// Learns from the SDK what an import left, and offers the list in the status area once the import's own boxes are
// closed. One object a process, on the user-interface thread.
class FindingsNotice : public QObject
{
    Q_OBJECT

public:
    // Both outlive this.
    FindingsNotice(const WorkerCount& workers, StatusArea& status);

    // Takes the SDK callback away.
    ~FindingsNotice() override;

    void Start();

    // After it nothing is told.
    void Stop();

    // Which events of the SDK are for this. On any thread.
    static bool Takes(int iEvent);

private slots:
    void OnSdkEvent(int iEvent);
    void OnLook();
    void OnShow();

private:
    const WorkerCount& m_workers;
    StatusArea& m_status;
    bool m_bStarted;
    QTimer m_look; // runs while an import is under way
    FindingList m_findings;
};

#endif // LINKHAND_HOST_FINDINGSNOTICE_H
