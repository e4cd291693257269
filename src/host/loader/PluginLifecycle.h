#ifndef LINKHAND_HOST_PLUGINLIFECYCLE_H
#define LINKHAND_HOST_PLUGINLIFECYCLE_H

#include <QObject>

#include "text/Problem.h"

class PluginContainer;
class RunState;

// Drives all plug-ins through their life. The pages show and hide them; everything else is here. User-interface
// thread only.
class PluginLifecycle : public QObject
{
    Q_OBJECT

public:
    PluginLifecycle(PluginContainer& container, RunState& state, QObject* pParent = nullptr);

    // Calls Init on each, those without a window first: a window may ask for their services while it is built. One
    // that fails becomes a Problem.
    void InitAll(ProblemList& problems);

    // Takes everything down: hides the windows, sets the shutting-down flag, takes the SDK callbacks away, waits
    // iLimitMs at most for the running workers, with queued slots going on so that a worker that waits for one gets
    // free, and destroys the plug-ins in the reverse order of InitAll. False if workers still ran at the limit; a
    // plug-in stops and awaits what is left of its own when it is destroyed.
    bool ShutDown(int iLimitMs);

public slots:
    // Sends a notify code to each plug-in that has started.
    void NotifyAll(int iCode, int iParam1);

private:
    bool waitForWorkers(int iLimitMs);

    PluginContainer& m_container;
    RunState& m_state;
};

#endif // LINKHAND_HOST_PLUGINLIFECYCLE_H
