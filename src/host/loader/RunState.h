#ifndef LINKHAND_HOST_RUNSTATE_H
#define LINKHAND_HOST_RUNSTATE_H

#include <atomic>

#include "loader/WorkerCount.h"

// How far the run of the program is, and which workers run in it. Any thread.
class RunState
{
public:
    // From here on the program is on its way out: it asks its user nothing any more.
    void SetClosing() { m_bClosing = true; }
    bool IsClosing() const { return m_bClosing; }

    // From here on the plug-ins are being taken down, and workers stop at the next record.
    void SetShuttingDown() { m_bShuttingDown = true; }
    bool IsShuttingDown() const { return m_bShuttingDown; }

    WorkerCount& Workers() { return m_workers; }

private:
    std::atomic<bool> m_bClosing{false};
    std::atomic<bool> m_bShuttingDown{false};
    WorkerCount m_workers;
};

#endif // LINKHAND_HOST_RUNSTATE_H
