#ifndef LINKHAND_HOST_UNIXSIGNALS_H
#define LINKHAND_HOST_UNIXSIGNALS_H

#include <QObject>

class QSocketNotifier;

// Turns the first SIGTERM, SIGINT or SIGHUP into a signal on the user-interface thread; a second one kills as usual.
// One object a process.
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
