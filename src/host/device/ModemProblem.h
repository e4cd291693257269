#ifndef LINKHAND_HOST_MODEMPROBLEM_H
#define LINKHAND_HOST_MODEMPROBLEM_H

#include <QObject>
#include <QString>
#include <QTimer>

class DeviceWatcher;
class Modem;

// What keeps the contacts of a real modem away, such as one without a port to spare, and what keeps messages away: no
// room for them. Nobody sends word of it, so that it is looked for, which waits for nothing; what passes at once is not
// told. With a choice of whatever modem there is, none that is there is no problem.
class ModemProblem : public QObject
{
    Q_OBJECT

public:
    // Both outlive the object.
    ModemProblem(const Modem& modem, const DeviceWatcher& watcher, QObject* pParent = nullptr);

    // Begins to look. Nothing is asked with simulated hardware.
    void Start();

    // In the SDK's words; empty if nothing is in the way.
    QString Text() const { return m_strText; }

    // True while no message can come in: those that are there fill the room for them.
    bool IsMessageStoreFull() const { return m_bFull; }

    // Which modem it is, as far as known.
    QString Name() const;

signals:
    void changed();

    // It is full from now on.
    void messageStoreFull();

private slots:
    void OnLook();
    void OnMessages();

private:
    QString read() const;
    void lookAtMessages();

    const Modem& m_modem;
    const DeviceWatcher& m_watcher;
    QTimer m_timer;
    QString m_strText;
    QString m_strSeen; // at the last look
    bool m_bFull;
    bool m_bAsk;         // the modem, how many messages it holds now
    int m_iLooksUnasked; // since it was asked last
};

#endif // LINKHAND_HOST_MODEMPROBLEM_H
