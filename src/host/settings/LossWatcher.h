#ifndef LINKHAND_HOST_LOSSWATCHER_H
#define LINKHAND_HOST_LOSSWATCHER_H

#include <QObject>
#include <QTimer>

#include "text/Problem.h"

// Learns from the SDK of changes to contacts that were taken and then lost, since the disk refused them, and whether
// the PC's phonebook can be written and read at all, and says so on the user-interface thread. One object a process;
// with an SDK that tells of none of that it is silent.
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

    // Which events of the SDK are for this. On any thread.
    static bool Takes(int iEvent);

signals:
    // One problem a memory.
    void lost(const ProblemList& problems);

    // Why the phonebook can only be read for now; none once it can be written.
    void accessChanged(const ProblemList& problems);

    // The phonebook could not be read, and can be.
    void readableAgain();

    // A contact that the user is at was deleted by another program.
    void contactGone();

private slots:
    void OnSdkEvent(int iEvent);
    void OnCheckAccess();

private:
    void tellLoss();

    bool m_bStarted;
    QTimer m_timer; // runs while the phonebook cannot be written
    long m_lAccess; // as it was last told; ORVA_OK for a phonebook that can be written
    bool m_bReadable;
};

#endif // LINKHAND_HOST_LOSSWATCHER_H
