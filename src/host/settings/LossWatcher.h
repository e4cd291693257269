#ifndef LINKHAND_HOST_LOSSWATCHER_H
#define LINKHAND_HOST_LOSSWATCHER_H

#include <QObject>

#include "text/Problem.h"

// Learns from the SDK of changes to contacts that were taken and then lost, since the disk refused them, and says so on
// the user-interface thread. One object a process; with an SDK that tells of no losses it is silent.
class LossWatcher : public QObject
{
    Q_OBJECT

public:
    explicit LossWatcher(QObject* pParent = nullptr);

    // Takes the SDK callback away.
    ~LossWatcher() override;

    void Start();

    // After it nothing is told.
    void Stop();

signals:
    // One problem a memory.
    void lost(const ProblemList& problems);

protected:
    void customEvent(QEvent* pEvent) override;

private:
    static int onSdkEvent(int iEvent, void* pData);

    bool m_bStarted;
};

#endif // LINKHAND_HOST_LOSSWATCHER_H
