#ifndef LINKHAND_HOST_STATUSAREA_H
#define LINKHAND_HOST_STATUSAREA_H

#include <QFrame>
#include <QStringList>
#include <QTimer>

#include "device/DeviceState.h"
#include "device/ModemStatus.h"
#include "text/Problem.h"

class QLabel;
class QToolButton;

// What the phonebook's table shows. A negative number of contacts: nothing, since it is not on the screen.
struct StatusCounts {
    int iContacts = -1;
    int iSelected = 0;
    bool bFound = false; // by a search
};

// The line at the foot of the window: the last notice, with the past ones behind it; which hardware it is; device, card
// and network; and what did not work.
class StatusArea : public QFrame
{
    Q_OBJECT

public:
    explicit StatusArea(QWidget* pParent);

    // Shows a notice for a while; the last hundred are kept. Cheap enough to be called for each of many changes. One
    // about something that has an end goes with it: strAbout names it.
    void ShowNotice(const QString& strText, const QString& strAbout = QString());
    void EndNotice(const QString& strAbout);

    // Says one of them in other words, in its place, without another look at it; nothing for one that is gone.
    void ReplaceNotice(const QString& strText, const QString& strBetter);
    const QStringList& Notices() const { return m_lstNotices; }

    // Drops all notices: they are in the language of their time.
    void ForgetNotices();

    void SetCounts(const StatusCounts& counts);
    void SetState(const DeviceState& state);

    // The hardware as HardwareChoice has it; a real one's modem.
    void SetHardware(const QString& strChoice);
    void SetModem(const ModemStatus& status);
    void SetProblems(const ProblemList& problems);

    // Whether another program has changed contacts that are not shown yet.
    void SetChangedElsewhere(bool bChanged);

    // How much the last import left, once that is of interest; 0 for nothing.
    void SetFindings(int iCount);
    void Retranslate();

signals:
    // The user wants to give the card its PIN.
    void unlockRequested();

    // The user wants to see what was changed elsewhere.
    void showChangesRequested();

    // The user wants to see what the last import left.
    void showFindingsRequested();

private slots:
    void OnNoticeOver();
    void OnHistory();
    void OnProblems();

private:
    bool isReal() const;
    QString hardwareText() const;
    QString networkText() const;

    QStringList m_lstNotices; // the latest first
    QString m_strAbout;       // what the one that is shown is about
    QTimer m_noticeTime;      // runs while one is shown
    StatusCounts m_counts;
    ProblemList m_problems;
    DeviceState m_state;
    QString m_strHardware;
    ModemStatus m_modem;
    QLabel* m_pCounts;
    QToolButton* m_pNotice;
    QLabel* m_pHardware;
    QLabel* m_pDevice;
    QLabel* m_pCard;
    QToolButton* m_pUnlock;
    QLabel* m_pNetwork;
    QToolButton* m_pProblems;
    QToolButton* m_pChanged;
    QToolButton* m_pFindings;
    int m_iFindings;
};

#endif // LINKHAND_HOST_STATUSAREA_H
