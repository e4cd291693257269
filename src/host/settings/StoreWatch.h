#ifndef LINKHAND_HOST_STOREWATCH_H
#define LINKHAND_HOST_STOREWATCH_H

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

// Learns that another program has changed the PC's contacts. User-interface thread only; with an SDK that tells of no
// such changes it is silent.
class StoreWatch : public QObject
{
    Q_OBJECT

public:
    explicit StoreWatch(QObject* pParent = nullptr);

    // Begins with what is in the data folder now.
    void Start();

    // After it nothing is told.
    void Stop();

    // True once for each time that another program has written. Waits for a transaction of this process.
    bool TakeChange();

signals:
    // Something was written into the store, perhaps by this program itself.
    void touched();

private slots:
    void OnChanged();

private:
    void watchFiles();

    QFileSystemWatcher m_watcher;
    QString m_strStore;
    int m_iSeen;
    bool m_bStarted;
};

#endif // LINKHAND_HOST_STOREWATCH_H
