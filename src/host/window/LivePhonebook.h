#ifndef LINKHAND_HOST_LIVEPHONEBOOK_H
#define LINKHAND_HOST_LIVEPHONEBOOK_H

#include <QObject>
#include <QTimer>

class PluginContainer;
class QWidget;
class StatusArea;
class StoreWatch;
class WorkerCount;

// Has the phonebook's window show what another program has changed: by itself where nobody is in the middle of
// anything, else by a button in the status area. At most every two seconds. User-interface thread only.
class LivePhonebook : public QObject
{
    Q_OBJECT

public:
    // All outlive this. `page` is the one that the phonebook's window is on.
    LivePhonebook(StoreWatch& watch, PluginContainer& container, const WorkerCount& workers, QWidget& page,
                  StatusArea& status);

    // The same for contacts that could not be read before.
    void ReadAnew();

private slots:
    void OnTouched();
    void OnLook();
    void OnShow();

private:
    bool isBusy() const;
    bool isInUse() const;
    void reload();

    StoreWatch& m_watch;
    PluginContainer& m_container;
    const WorkerCount& m_workers;
    QWidget& m_page;
    StatusArea& m_status;
    QTimer m_pause;  // runs until the next look
    bool m_bPending; // something changed that is not shown
    int m_iLooks;    // still to come after the files were touched last
};

#endif // LINKHAND_HOST_LIVEPHONEBOOK_H
