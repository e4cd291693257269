#include "SceneSteps.h"

#include <QPointer>
#include <QTimer>

#include "Scenes.h"

namespace
{

QList<QPointer<QTimer>> s_listSteps; // that are still to be done

} // namespace

void Scenes::later(const std::function<bool()>& step)
{
    const QPointer<QTimer> pTimer = new QTimer(qApp);
    QObject::connect(pTimer, &QTimer::timeout, pTimer, [pTimer, step] {
        // The step may begin a loop in which its scene ends, and the timer with it.
        const QPointer<QTimer> pDone(pTimer);
        if (step() && pDone != nullptr) {
            // At once: its deletion waits for the end of a loop that the step may have begun.
            pDone->stop();
            pDone->deleteLater();
        }
    });
    pTimer->start(10);
    s_listSteps.append(pTimer);
}

bool Scenes::StepsLeft()
{
    foreach (const QPointer<QTimer>& pTimer, s_listSteps) {
        if (pTimer && pTimer->isActive()) {
            return true;
        }
    }
    s_listSteps.clear();
    return false;
}

void Scenes::DropSteps()
{
    foreach (const QPointer<QTimer>& pTimer, s_listSteps) {
        delete pTimer.data();
    }
    s_listSteps.clear();
}
