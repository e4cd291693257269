#ifndef LINKHAND_HOST_UNIXSIGNALS_H
#define LINKHAND_HOST_UNIXSIGNALS_H

#include <QObject>

class QSocketNotifier;

// Turns SIGTERM, SIGINT and SIGHUP into a signal on the user-interface thread, from now to the end of the process. A
// further one kills only where the first has been without effect for ten seconds. One object a process at a time.
class UnixSignals : public QObject
{
    Q_OBJECT

public:
    explicit UnixSignals(QObject* pParent = nullptr);
    ~UnixSignals() override;

signals:
    void received();

private slots:
    void OnReadable();

private:
    int m_aiPipe[2];
    QSocketNotifier* m_pNotifier;
};

#endif // LINKHAND_HOST_UNIXSIGNALS_H
