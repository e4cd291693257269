#ifndef LINKHAND_HOST_IDLEBACKUP_H
#define LINKHAND_HOST_IDLEBACKUP_H

#include <QThread>
#include <QTimer>

// Has the SDK make its daily backup of the contacts once nobody has used the program for a while; how often that comes
// to anything is the SDK's business. The copy is made on this thread. With an SDK that has no such function it is
// silent.
class IdleBackup : public QThread
{
    Q_OBJECT

public:
    // Waits for so long after the last key, click or turn of the wheel. Lives on the user-interface thread.
    explicit IdleBackup(int iIdleMs, QObject* pParent = nullptr);

    // Waits for a copy that is under way.
    ~IdleBackup() override;

    // Begins to wait.
    void Start();

signals:
    // A copy was made.
    void made();

protected:
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;
    void run() override;

private slots:
    void OnIdle();

private:
    QTimer m_timer;
};

#endif // LINKHAND_HOST_IDLEBACKUP_H
