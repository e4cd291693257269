#include "loader/PluginLifecycle.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QStringList>
#include <QThread>
#include <QtDebug>

#include "loader/PluginContainer.h"
#include "loader/PluginHandle.h"
#include "loader/RunState.h"

namespace
{

// Gives the core to the worker that is waited for.
class Pause : private QThread
{
public:
    static void OneMillisecond() { msleep(1); }
};

} // namespace

PluginLifecycle::PluginLifecycle(PluginContainer& container, RunState& state, QObject* pParent)
    : QObject(pParent), m_container(container), m_state(state)
{
}

void PluginLifecycle::InitAll(ProblemList& problems)
{
    for (const bool bWithWindow : {false, true}) {
        foreach (PluginHandle* pHandle, m_container.Handles()) {
            if (pHandle->HasWindow() == bWithWindow && !pHandle->Init()) {
                problems.append(Problem(pHandle->Name(), "IDS_HOST_PLUGIN_INIT"));
            }
        }
    }
}

bool PluginLifecycle::ShutDown(int iLimitMs)
{
    const QList<PluginHandle*> listHandles = m_container.Handles();
    foreach (PluginHandle* pHandle, listHandles) {
        pHandle->Hide();
    }
    m_state.SetShuttingDown();
    foreach (PluginHandle* pHandle, listHandles) {
        pHandle->UnregisterEvents();
    }
    const bool bIdle = waitForWorkers(iLimitMs);
    for (const bool bWithWindow : {true, false}) {
        for (int i = listHandles.size() - 1; i >= 0; --i) {
            if (listHandles.at(i)->HasWindow() == bWithWindow) {
                listHandles.at(i)->Destroy();
            }
        }
    }
    return bIdle;
}

void PluginLifecycle::NotifyAll(int iCode, int iParam1)
{
    foreach (PluginHandle* pHandle, m_container.Handles()) {
        pHandle->Notify(static_cast<unsigned int>(iCode), static_cast<unsigned int>(iParam1), 0);
    }
}

bool PluginLifecycle::waitForWorkers(int iLimitMs)
{
    QElapsedTimer timer;
    timer.start();
    while (m_state.Workers().Running() > 0) {
        if (timer.elapsed() >= iLimitMs) {
            qDebug("left to their owners: %s", qPrintable(m_state.Workers().Names().join(QLatin1String(", "))));
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 20);
        Pause::OneMillisecond();
    }
    return true;
}
