#ifndef LINKHAND_HOST_STATUSAREA_H
#define LINKHAND_HOST_STATUSAREA_H

#include <QFrame>
#include <QStringList>

#include "device/DeviceState.h"
#include "text/Problem.h"

class QLabel;
class QToolButton;

// The line at the foot of the window: the last notice, with the past ones behind it; device, card and network; and
// what did not work.
class StatusArea : public QFrame
{
    Q_OBJECT

public:
    explicit StatusArea(QWidget* pParent);

    // Shows a notice; the last hundred are kept. Cheap enough to be called for each of many changes.
    void ShowNotice(const QString& strText);
    const QStringList& Notices() const { return m_lstNotices; }

    // Drops all notices: they are in the language of their time.
    void ForgetNotices();

    void SetState(const DeviceState& state);
    void SetProblems(const ProblemList& problems);
    void Retranslate();

private slots:
    void OnHistory();
    void OnProblems();

private:
    QStringList m_lstNotices; // the latest first
    ProblemList m_problems;
    DeviceState m_state;
    QToolButton* m_pNotice;
    QLabel* m_pDevice;
    QLabel* m_pCard;
    QLabel* m_pNetwork;
    QToolButton* m_pProblems;
};

#endif // LINKHAND_HOST_STATUSAREA_H
